// The real map window, shown and active, with a main window that keeps what it was asked for.

#pragma once

#include <memory>
#include <stdexcept>

#include <QAction>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "ui/ScriptedDialogs.h"
#include "ui/map/FakeMainWindow.h"
#include "ui/map/Gform.h"
#include "ui/map/MapPane.h"
#include "ui/map/PropertiesList.h"

namespace ui {

class GformFixture : public testing::Test {
protected:
    GformFixture()
    {
        state.shown.position = {geo::GeoPosition{48.0, 11.0}, geo::GeoPosition{48.1, 11.2}};
        mainWindow.panel[0].callsign = "S1";
        mainWindow.panel[1].callsign = "S2";
        state.configuration.workingFile = folder.filePath(QStringLiteral("WORK.QTH")).toStdString();
    }

    // Opens the window at a given inner size; the surface is 80 narrower and 20 lower.
    void Open(int width = 880, int height = 620)
    {
        form = std::make_unique<Gform>(state, image, mainWindow, dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        Resize(width, height);
    }

    void Resize(int width, int height)
    {
        const QSize frame = form->size() - form->centralWidget()->size();
        form->resize(frame + QSize(width, height));
        QCoreApplication::processEvents();
    }

    // Another window becomes active, then the map again.
    void LeaveAndComeBack()
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    QAction* Item(const char* name) const
    {
        auto* const action = form->findChild<QAction*>(QLatin1StringView(name));
        if (action == nullptr) {
            throw std::runtime_error(name);
        }
        return action;
    }

    void Choose(const char* name) const
    {
        ASSERT_TRUE(Item(name)->isEnabled()) << name;
        Item(name)->trigger();
    }

    bool Checked(const char* name) const { return Item(name)->isChecked(); }

    // A map of plain colour under its own name in the test's folder; .jpg is lossy.
    QString MapFile(int width, int height, const char* name = "karte.png",
                    QColor colour = QColor(0xE0, 0xF0, 0xD0))
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(colour);
        QString file = folder.filePath(QLatin1StringView(name));
        EXPECT_TRUE(picture.save(file));
        return file;
    }

    void LoadMap(const QString& file)
    {
        dialogs.files.push_back(file);
        Choose("MnuGLoad");
    }

    void ClickAt(int x, int y, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(form->pane->Picture1, button, {}, QPoint(x, y));
    }

    // The surface as it is on the screen.
    QImage Picture() const
    {
        return form->pane->Picture1->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    void AddRecord(geo::GeoPosition position, const char* callsign)
    {
        stations::StationTexts texts;
        texts.callsign = callsign;
        state.database.Append(stations::BuildRecord(texts, position, "2024.01.01-00:00:00"));
    }

    QTemporaryDir folder;
    app::AppState state;
    MapImage image;
    FakeMainWindow mainWindow{state};
    ScriptedDialogs dialogs;
    std::unique_ptr<Gform> form;
};

}  // namespace ui
