#include "ui/map/MapMenus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "ui/Controls.h"
#include "ui/map/MapCommands.h"
#include "ui/map/MapPainter.h"

namespace ui {

using namespace Qt::StringLiterals;

MapMenus::MapMenus(QMainWindow& window, app::AppState& state, plot::MapView& view,
                   MapCommands& commands, std::function<void()> before)
    : window_(window), state_(state), view_(view), commands_(commands), before_(std::move(before))
{
    AddFileMenu();
    AddDisplayMenu();
    AddEditMenu();
    AddClickMenu();
}

void MapMenus::Show() const
{
    for (const auto& [name, marked] : marks_) {
        Item(name)->setChecked(marked());
    }
    for (const char* const name : {"MnuRast", "MnuRef", "MnuOptAusg", "MnuOptAnzg"}) {
        Item(name)->setEnabled(state_.map.references.ReferenceMode());
    }
    for (const char* const name : {"MnuClk", "MnuBearb"}) {
        window_.findChild<QMenu*>(QLatin1StringView(name))
            ->menuAction()
            ->setEnabled(state_.map.mapImage);
    }
    Item("MnuPicOff")->setEnabled(state_.map.mapImage);
}

QAction* MapMenus::Item(const char* name) const
{
    return window_.findChild<QAction*>(QLatin1StringView(name));
}

QMenu* MapMenus::AddMenu(const char* name, const QString& caption,
                         std::initializer_list<MenuItem> items)
{
    QMenu* const menu = Named(window_.menuBar()->addMenu(caption), QLatin1StringView(name));
    AddItems(menu, items, before_);
    return menu;
}

MenuItem MapMenus::Marked(const char* name, const QString& caption,
                          std::function<void(bool)> command, std::function<bool()> marked)
{
    marks_.emplace_back(name, std::move(marked));
    return {name, caption, std::move(command), true};
}

MenuItem MapMenus::Switch(const char* name, const QString& caption, bool& on)
{
    return Marked(
        name, caption, [this, &on](bool checked) { commands_.Set(on, checked); },
        [&on] { return on; });
}

void MapMenus::AddFileMenu()
{
    AddMenu("MnuDatei", u"Datei"_s,
            {
                {"MnuGLoad", u"Landkarte laden"_s, [this](bool) { commands_.LoadMap(); }},
                {"MnuPicOff", u"Winkeltreue Darstellung"_s, [this](bool) { commands_.LeaveMap(); }},
                {"MnuMin1"},
                {"MnuClose", u"schliessen"_s, [this](bool) { window_.close(); }},
            });
}

void MapMenus::AddDisplayMenu()
{
    using stations::LabelChoice;
    stations::Configuration& shown = state_.configuration;
    const auto label = [this, &choice = shown.labelChoice](const char* name, const QString& caption,
                                                           LabelChoice value) {
        return Marked(
            name, caption, [this, &choice, value](bool) { commands_.Set(choice, value); },
            [&choice, value] { return CountedLabelChoice(choice) == value; });
    };
    AddMenu("MnuAnz", u"Anzeige"_s,
            {
                Switch("MnuSel", u"ausgewählte Stationen"_s, view_.showMarked),
                Switch("MnuAlle", u"nicht ausgewählte Stationen"_s, view_.showUnmarked),
                {"MnuMin17"},
                label("MnuRZ1", u"Rufzeichen"_s, LabelChoice::Callsign),
                label("MnuRZ2", u"Name"_s, LabelChoice::Name),
                label("MnuRZ3", u"Ort"_s, LabelChoice::Place),
                label("MnuRZ4", u"Frequenz"_s, LabelChoice::Frequency),
                label("MnuRZ5", u"Anmerkung"_s, LabelChoice::Remark),
                {"MnuMin10"},
                Switch("MnuS1Anz", u"Station 1"_s, shown.showStation1),
                Switch("MnuS2Anz", u"Station 2"_s, shown.showStation2),
                {"MnuMin13"},
                Switch("MnuRef", u"Referenzpunkte"_s, shown.showReferencePoints),
                {"MnuMin11"},
                Switch("MnuOptAusg", u"Optimierte Ausgabe"_s, shown.optimisedOutput),
                Switch("MnuOptAnzg", u"Optimierte Koordinatenanzeige"_s, shown.optimisedDisplay),
                {"MnuMin12"},
                Marked(
                    "MnuRast", u"Rasteranzeige"_s, [this](bool on) { commands_.ToggleGrid(on); },
                    [this] { return view_.grid.has_value(); }),
                {"MnuMin14"},
                {"MnuEig", u"Eigenschaften"_s, [this](bool) { commands_.ShowProperties(); }},
            });
}

void MapMenus::AddEditMenu()
{
    QMenu* const menu = AddMenu(
        "MnuBearb", u"Bearbeiten"_s,
        {
            {"MnuStoJ", u"Justage speichern"_s, [this](bool) { commands_.SaveAdjustment(); }},
            {"MnuMin21"},
            {"MnuClrAll", u"alle Referenzpunkte löschen"_s,
             [this](bool) { commands_.ClearAllReferences(); }},
            {"MnuClrLast", u"letzten Referenzpunkt löschen"_s,
             [this](bool) { commands_.ClearLastReference(); }},
            {"MnuMin15"},
        });
    AddItems(Named(menu->addMenu(u"UI-View Maps"_s), u"MnuUIView"_s),
             {
                 {"MnuRefInf", u"Referenz aus INF erzeugen"_s,
                  [this](bool) { commands_.ReferencesFromBounds(); }},
                 {"MnuInf", u"UI-View INF File erzeugen"_s,
                  [this](bool) { commands_.SaveCalibration(); }},
             },
             before_);
}

void MapMenus::AddClickMenu()
{
    using Mode = app::ClickMode;
    const auto marked = [&mode = state_.map.clickMode](Mode value) {
        return [&mode, value] { return mode == value; };
    };
    const auto click = [&](const char* name, const QString& caption, Mode mode) {
        return Marked(
            name, caption, [this, mode](bool) { commands_.Set(state_.map.clickMode, mode); },
            marked(mode));
    };
    AddMenu("MnuClk", u"Click"_s,
            {
                click("MnuNop", u"(nop)"_s, Mode::Nop),
                click("MnuSet1", u"Setze Station 1"_s, Mode::SetStation1),
                click("MnuSet2", u"Setze Station 2"_s, Mode::SetStation2),
                click("MnuAddLand", u"Add Landmark"_s, Mode::AddLandmark),
                click("MnuS2Ref", u"Station 2 als Referenz setzen"_s, Mode::Station2AsReference),
                click("MnuRefClr", u"Referenz löschen"_s, Mode::DeleteReference),
                click("MnuRouS", u"Route starten"_s, Mode::RouteStart),
                Marked(
                    "MnuRouF", u"Route fortsetzen"_s, [this](bool) { commands_.ContinueRoute(); },
                    marked(Mode::RouteContinue)),
            });
}

}  // namespace ui
