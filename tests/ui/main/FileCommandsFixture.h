// A window with a few records for the tests of the file commands.

#pragma once

#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include <QAction>
#include <QListView>
#include <QPushButton>

#include "stations/WorkingFile.h"
#include "ui/main/MainFormFixture.h"

namespace ui {

inline stations::StationRecord Record(const std::string& callsign, double latitude = 48.0,
                                      double longitude = 11.0)
{
    return stations::BuildRecord({.callsign = callsign,
                                  .name = "Name " + callsign,
                                  .place = "Ort",
                                  .frequency = "145.500",
                                  .remark = "",
                                  .date = "2001.02.03-04:05:06"},
                                 {.latitude = latitude, .longitude = longitude}, "");
}

inline stations::StationDatabase Database(std::initializer_list<const char*> callsigns)
{
    stations::StationDatabase database;
    for (const char* const callsign : callsigns) {
        database.Append(Record(callsign));
    }
    return database;
}

// The main window over a database of four records, with file dialogs that answer from a list.
class FileCommandsFixture : public MainFormFixture {
protected:
    void SetUp() override
    {
        MainFormFixture::SetUp();
        for (const char* const callsign : {"QQ1A", "QQ2B", "QQ3C", "QQ4D"}) {
            ASSERT_TRUE(state.database.Append(Record(callsign)));
        }
        window.TakeDatabaseChange();
    }

    void Choose(const char* action) { Find<QAction>(action)->trigger(); }

    std::string Path(const char* name) const
    {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }

    void Write(const char* name, const stations::StationDatabase& database)
    {
        ASSERT_FALSE(stations::WriteDatabase(Path(name), database));
    }

    static std::string Bytes(const std::string& name)
    {
        std::ifstream file(name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void WriteBytes(const char* name, const std::string& bytes)
    {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }

    std::vector<std::string> Callsigns() const
    {
        std::vector<std::string> callsigns;
        for (const stations::StationRecord& record : state.database.Records()) {
            callsigns.push_back(record.Text(stations::Field::Callsign));
        }
        return callsigns;
    }

    // Shows the list and marks lines with the mouse, the second and later ones with Ctrl.
    void Mark(const std::vector<int>& rows)
    {
        QTest::mouseClick(Find<QPushButton>("Command1_0"), Qt::LeftButton);
        auto* const list = Find<QListView>("List1");
        for (const int row : rows) {
            const QRect line = list->visualRect(list->model()->index(row, 0));
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, line.center());
        }
    }

    void ChooseFile(const char* name)
    {
        dialogs.files.push_back(folder.filePath(QString::fromUtf8(name)));
    }

    int Lines() { return Find<QListView>("List1")->model()->rowCount(); }

    using Names = std::vector<std::string>;
};

}  // namespace ui
