#include <string>
#include <vector>

#include <QMenuBar>

#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class GformMenuTest : public GformFixture {};

// Name and caption of every item in order; submenus follow their item.
void Collect(const QMenu* menu, std::vector<std::string>& lines)
{
    lines.push_back(menu->objectName().toStdString() + ' ' + menu->title().toStdString());
    for (const QAction* const action : menu->actions()) {
        if (action->menu() != nullptr) {
            Collect(action->menu(), lines);
        } else {
            lines.push_back(action->objectName().toStdString()
                            + (action->isSeparator() ? "" : ' ' + action->text().toStdString()));
        }
    }
}

TEST_F(GformMenuTest, HasEveryItemInItsPlace)
{
    Open();
    std::vector<std::string> lines;
    for (const QAction* const action : form->menuBar()->actions()) {
        Collect(action->menu(), lines);
    }
    EXPECT_EQ(lines, (std::vector<std::string>{
                         "MnuDatei Datei",
                         "MnuGLoad Landkarte laden",
                         "MnuPicOff Winkeltreue Darstellung",
                         "MnuMin1",
                         "MnuClose schliessen",
                         "MnuAnz Anzeige",
                         "MnuSel ausgewählte Stationen",
                         "MnuAlle nicht ausgewählte Stationen",
                         "MnuMin17",
                         "MnuRZ1 Rufzeichen",
                         "MnuRZ2 Name",
                         "MnuRZ3 Ort",
                         "MnuRZ4 Frequenz",
                         "MnuRZ5 Anmerkung",
                         "MnuMin10",
                         "MnuS1Anz Station 1",
                         "MnuS2Anz Station 2",
                         "MnuMin13",
                         "MnuRef Referenzpunkte",
                         "MnuMin11",
                         "MnuOptAusg Optimierte Ausgabe",
                         "MnuOptAnzg Optimierte Koordinatenanzeige",
                         "MnuMin12",
                         "MnuRast Rasteranzeige",
                         "MnuMin14",
                         "MnuEig Eigenschaften",
                         "MnuBearb Bearbeiten",
                         "MnuStoJ Justage speichern",
                         "MnuMin21",
                         "MnuClrAll alle Referenzpunkte löschen",
                         "MnuClrLast letzten Referenzpunkt löschen",
                         "MnuMin15",
                         "MnuUIView UI-View Maps",
                         "MnuRefInf Referenz aus INF erzeugen",
                         "MnuInf UI-View INF File erzeugen",
                         "MnuClk Click",
                         "MnuNop (nop)",
                         "MnuSet1 Setze Station 1",
                         "MnuSet2 Setze Station 2",
                         "MnuAddLand Add Landmark",
                         "MnuS2Ref Station 2 als Referenz setzen",
                         "MnuRefClr Referenz löschen",
                         "MnuRouS Route starten",
                         "MnuRouF Route fortsetzen",
                     }));
}

TEST_F(GformMenuTest, ChecksWhatTheSharedSwitchesSay)
{
    state.configuration.showStation2 = false;
    state.configuration.optimisedDisplay = true;
    state.configuration.labelChoice = stations::LabelChoice::Frequency;
    Open();
    for (const char* const on : {"MnuSel", "MnuAlle", "MnuRZ4", "MnuS1Anz", "MnuRef", "MnuOptAusg",
                                 "MnuOptAnzg", "MnuNop"}) {
        EXPECT_TRUE(Checked(on)) << on;
    }
    for (const char* const off :
         {"MnuRZ1", "MnuRZ2", "MnuRZ3", "MnuRZ5", "MnuS2Anz", "MnuRast", "MnuSet1", "MnuRouF"}) {
        EXPECT_FALSE(Checked(off)) << off;
    }
}

TEST_F(GformMenuTest, SwitchesOutliveTheWindow)
{
    Open();
    LoadMap(MapFile(400, 300));
    Choose("MnuRefInf");
    for (const char* const item : {"MnuS1Anz", "MnuS2Anz", "MnuRef", "MnuOptAusg", "MnuOptAnzg"}) {
        Choose(item);
    }
    Choose("MnuRZ5");
    const stations::Configuration& kept = state.configuration;
    EXPECT_FALSE(kept.showStation1);
    EXPECT_FALSE(kept.showStation2);
    EXPECT_FALSE(kept.showReferencePoints);
    EXPECT_FALSE(kept.optimisedOutput);
    EXPECT_TRUE(kept.optimisedDisplay);
    EXPECT_EQ(kept.labelChoice, stations::LabelChoice::Remark);

    form.reset();
    Open();
    for (const char* const item : {"MnuS1Anz", "MnuS2Anz", "MnuRef", "MnuOptAusg"}) {
        EXPECT_FALSE(Checked(item)) << item;
    }
    EXPECT_TRUE(Checked("MnuOptAnzg"));
    EXPECT_TRUE(Checked("MnuRZ5"));
    EXPECT_FALSE(Checked("MnuRZ1"));
    EXPECT_TRUE(Item("MnuRast")->isEnabled()) << "the reference mode is still on";
}

TEST_F(GformMenuTest, LabelChoiceChecksExactlyItsItem)
{
    Open();
    const char* const items[] = {"MnuRZ1", "MnuRZ2", "MnuRZ3", "MnuRZ4", "MnuRZ5"};
    for (int chosen = 0; chosen < 5; ++chosen) {
        for (const int again : {1, 2}) {  // choosing it again does not take the mark away
            Choose(items[chosen]);
            EXPECT_EQ(static_cast<int>(state.configuration.labelChoice), chosen) << again;
            for (int i = 0; i < 5; ++i) {
                EXPECT_EQ(Checked(items[i]), i == chosen) << chosen << ' ' << i;
            }
        }
    }
}

TEST_F(GformMenuTest, LabelChoiceThatDoesNotExistIsShownAsTheCallsign)
{
    for (const int stored : {-1, 5, 32767, -32768}) {
        state.configuration.labelChoice = static_cast<stations::LabelChoice>(stored);
        Open();
        EXPECT_TRUE(Checked("MnuRZ1")) << stored;
        for (const char* const other : {"MnuRZ2", "MnuRZ3", "MnuRZ4", "MnuRZ5"}) {
            EXPECT_FALSE(Checked(other)) << stored;
        }
        EXPECT_EQ(static_cast<int>(state.configuration.labelChoice), stored) << "nobody has chosen";
    }
}

TEST_F(GformMenuTest, ClickModeChecksExactlyItsItem)
{
    Open();
    LoadMap(MapFile(400, 300));
    const struct {
        const char* item;
        int mode;
    } modes[] = {{"MnuSet1", 1},   {"MnuSet2", 2}, {"MnuAddLand", 3}, {"MnuS2Ref", 5},
                 {"MnuRefClr", 6}, {"MnuRouS", 7}, {"MnuNop", 0}};
    for (const auto& chosen : modes) {
        Choose(chosen.item);
        EXPECT_EQ(static_cast<int>(state.map.clickMode), chosen.mode);
        for (const auto& other : modes) {
            EXPECT_EQ(Checked(other.item), other.mode == chosen.mode) << other.item;
        }
        EXPECT_FALSE(Checked("MnuRouF"));
    }
}

TEST_F(GformMenuTest, RouteIsStartedWhereThereIsNoneToContinue)
{
    Open();
    LoadMap(MapFile(400, 300));
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteStart);
    EXPECT_TRUE(Checked("MnuRouS"));
    EXPECT_FALSE(Checked("MnuRouF"));
    ClickAt(10, 10);
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteContinue);
    EXPECT_TRUE(Checked("MnuRouF"));
    EXPECT_FALSE(Checked("MnuRouS"));
    Choose("MnuNop");
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteContinue);
}

TEST_F(GformMenuTest, ViewsHaveTheirMenus)
{
    Open();
    const auto expectMap = [this](bool map) {
        EXPECT_EQ(form->findChild<QMenu*>(u"MnuClk"_s)->menuAction()->isEnabled(), map);
        EXPECT_EQ(form->findChild<QMenu*>(u"MnuBearb"_s)->menuAction()->isEnabled(), map);
        EXPECT_EQ(Item("MnuPicOff")->isEnabled(), map);
        EXPECT_EQ(form->pane->Command1->isVisible(), !map);
        EXPECT_EQ(form->pane->Command2->isVisible(), !map);
    };
    expectMap(false);
    LoadMap(MapFile(400, 300));
    expectMap(true);
    form.reset();
    Open();
    expectMap(true);
    Choose("MnuPicOff");
    expectMap(false);
    EXPECT_FALSE(state.map.mapImage);
    EXPECT_FALSE(image.Empty()) << "the picture stays loaded";
}

TEST_F(GformMenuTest, ReferenceModeEnablesItsFourItems)
{
    Open();
    const auto expectEnabled = [this](bool on) {
        for (const char* const item : {"MnuRast", "MnuRef", "MnuOptAusg", "MnuOptAnzg"}) {
            EXPECT_EQ(Item(item)->isEnabled(), on) << item;
        }
    };
    expectEnabled(false);
    LoadMap(MapFile(400, 300));
    expectEnabled(false);
    Choose("MnuRefInf");
    expectEnabled(true);
    EXPECT_TRUE(state.map.references.ReferenceMode());
    Choose("MnuClrLast");
    Choose("MnuClrLast");
    Choose("MnuClrLast");
    Choose("MnuClrLast");
    EXPECT_EQ(state.map.references.RefCount(), 0);
    expectEnabled(true);  // the mode stays on at the last
    Choose("MnuClrAll");
    expectEnabled(false);
    EXPECT_FALSE(state.map.references.ReferenceMode());
}

TEST_F(GformMenuTest, GridIsSwitchedOnAndOff)
{
    Open();
    LoadMap(MapFile(400, 300));
    Choose("MnuRefInf");
    const QImage without = Picture();
    Choose("MnuRast");
    EXPECT_TRUE(Checked("MnuRast"));
    EXPECT_NE(Picture(), without);
    Choose("MnuRast");
    EXPECT_FALSE(Checked("MnuRast"));
    EXPECT_EQ(Picture(), without);
}

TEST_F(GformMenuTest, GridThatCannotBeMadeIsToldAndStaysUnchecked)
{
    Open();
    LoadMap(MapFile(400, 300));
    state.map.bounds = {20'000.0, 0.0, 0.0, 30.0};  // more than a thousand parallels
    Choose("MnuRefInf");
    const QImage without = Picture();
    Choose("MnuRast");
    EXPECT_FALSE(Checked("MnuRast"));
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(dialogs.said[0].text.contains(u"Raster"_s));
    EXPECT_EQ(Picture(), without);
}

TEST_F(GformMenuTest, GridWithoutUsablePointsIsToldAndStaysUnchecked)
{
    Open();
    LoadMap(MapFile(400, 300));
    Choose("MnuS2Ref");
    for (const int x : {0, 100, 200}) {  // on one line
        SCOPED_TRACE(x);
        state.shown.position[1] = {48.0 - 0.001 * x, 11.0 + 0.001 * x};
        ClickAt(x, x);
        dialogs.said.clear();
        Choose("MnuRast");
        EXPECT_FALSE(Checked("MnuRast"));
        ASSERT_EQ(dialogs.said.size(), 1U);
        EXPECT_TRUE(dialogs.said[0].text.contains(u"Raster"_s));
        EXPECT_EQ(dialogs.parents.back(), form.get());
    }
    state.shown.position[1] = {48.0, 11.2};
    ClickAt(200, 0);
    Choose("MnuRast");
    EXPECT_TRUE(Checked("MnuRast"));
}

TEST_F(GformMenuTest, SurfaceOffersTheClickModes)
{
    Open();
    auto* const menu = form->findChild<QMenu*>(u"MnuClk"_s);
    emit form->pane->Picture1->customContextMenuRequested(QPoint(5, 5));
    EXPECT_FALSE(menu->isVisible()) << "nothing acts in the polar view";
    LoadMap(MapFile(400, 300));
    emit form->pane->Picture1->customContextMenuRequested(QPoint(5, 5));
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

TEST_F(GformMenuTest, PointerTellsWhetherAClickActs)
{
    Open();
    const auto shape = [this] { return form->pane->Picture1->cursor().shape(); };
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    LoadMap(MapFile(400, 300));
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    Choose("MnuSet1");
    EXPECT_EQ(shape(), Qt::CrossCursor);
    Choose("MnuPicOff");
    EXPECT_EQ(shape(), Qt::ArrowCursor);
    LoadMap(MapFile(400, 300));
    EXPECT_EQ(shape(), Qt::CrossCursor) << "the mode is still set";
    Choose("MnuNop");
    EXPECT_EQ(shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace ui
