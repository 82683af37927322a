// The real main window over a database of a few stations, its list open to the mouse and the keys.

#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include <QAbstractItemModel>

#include "TemporaryFolder.h"
#include "stations/Records.h"
#include "stations/WorkingFile.h"
#include "ui/main/MainFormFixture.h"
#include "ui/main/StationListFrame.h"
#include "ui/main/StationListView.h"

namespace ui {

class StationListFixture : public MainFormFixture {
protected:
    using Texts = std::vector<std::string>;
    using Rows = std::vector<int>;

    void SetUp() override
    {
        MainFormFixture::SetUp();
        list = window.findChild<StationListFrame*>();
        ASSERT_NE(list, nullptr);
    }

    void PrepareFolder() override { ASSERT_FALSE(stations::WriteDatabase("WORK.QTH", Stations())); }

    // Five stations, in the order of none of the sort keys.
    virtual stations::StationDatabase Stations() const
    {
        using stations::MakeRecord;
        return stations::MakeDatabase({
            MakeRecord({"DL3C", "Cara", "Aalen", "145.500", "b", "2020.01.05"}, {48.9, 10.1}),
            MakeRecord({"DL1A", "Emil", "Bonn", "145.300", "e", "2020.01.02"}, {50.7, 7.1}),
            MakeRecord({"DL5E", "Anna", "Celle", "145.100", "a", "2020.01.03"}, {52.6, 10.2}),
            MakeRecord({"DL2B", "Dora", "Essen", "145.400", "d", "2020.01.04"}, {51.5, 7.0}),
            MakeRecord({"DL4D", "Berta", "Dachau", "145.200", "c", "2020.01.01"}, {48.3, 11.4}),
        });
    }

    Texts Lines() const
    {
        const QAbstractItemModel& model = *list->List1->model();
        Texts lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            lines.push_back(model.index(row, 0).data().toString().toStdString());
        }
        return lines;
    }

    Rows Marked() const
    {
        Rows rows;
        for (int row = 0; row < list->List1->model()->rowCount(); ++row) {
            if (list->List1->IsMarked(static_cast<std::size_t>(row))) {
                rows.push_back(row);
            }
        }
        return rows;
    }

    int CurrentRow() const { return list->List1->currentIndex().row(); }

    // Callsigns of the working file as it lies on the disk.
    static std::string Saved()
    {
        return stations::Callsigns(stations::ReadDatabase("WORK.QTH").database);
    }

    std::string Held() const { return stations::Callsigns(state.database); }

    // A point on the line, within the visible part of the list.
    QPoint PointOn(int row) const
    {
        const QModelIndex index = list->List1->model()->index(row, 0);
        list->List1->scrollTo(index);
        const QRect line = list->List1->visualRect(index);
        return {line.left() + 5, line.center().y()};
    }

    void ClickLine(int row, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(list->List1->viewport(), Qt::LeftButton, modifiers, PointOn(row));
    }

    // All that the window system sends for one: a click, then a second press and its release.
    void DoubleClickLine(int row)
    {
        QWidget* const viewport = list->List1->viewport();
        const QPoint point = PointOn(row);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, point);
        QTest::mouseDClick(viewport, Qt::LeftButton, {}, point);
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, point);
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(list->List1, static_cast<Qt::Key>(key), modifiers);
    }

    StationListFrame* list = nullptr;
};

}  // namespace ui
