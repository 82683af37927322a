// The menus of the map window as tables, and their states.

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "ui/Controls.h"
#include "ui/map/Gform.h"
#include "ui/map/MapPane.h"

namespace ui {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kLabelItems[] = {"MnuRZ1", "MnuRZ2", "MnuRZ3", "MnuRZ4", "MnuRZ5"};

struct ClickItem {
    app::ClickMode mode;
    const char* name;
};

constexpr ClickItem kClickItems[] = {
    {app::ClickMode::Nop, "MnuNop"},
    {app::ClickMode::SetStation1, "MnuSet1"},
    {app::ClickMode::SetStation2, "MnuSet2"},
    {app::ClickMode::AddLandmark, "MnuAddLand"},
    {app::ClickMode::Station2AsReference, "MnuS2Ref"},
    {app::ClickMode::DeleteReference, "MnuRefClr"},
    {app::ClickMode::RouteStart, "MnuRouS"},
    {app::ClickMode::RouteContinue, "MnuRouF"},
};

}  // namespace

void Gform::AddMenus()
{
    AddFileMenu();
    AddDisplayMenu();
    AddEditMenu();
    AddClickMenu();
    Item("MnuSel")->setChecked(view_.showMarked);
    Item("MnuAlle")->setChecked(view_.showUnmarked);
}

QMenu* Gform::NewMenu(const char* name, const QString& caption)
{
    return Named(menuBar()->addMenu(caption), QLatin1StringView(name));
}

void Gform::AddItems(QMenu* menu, std::initializer_list<MenuItem> items)
{
    ui::AddItems(menu, items, [this] { activatingPress_.ForgetClip(); });
}

void Gform::AddFileMenu()
{
    AddItems(NewMenu("MnuDatei", u"Datei"_s),
             {
                 {"MnuGLoad", u"Landkarte laden"_s, [this](bool) { LoadMap(); }},
                 {"MnuPicOff", u"Winkeltreue Darstellung"_s, [this](bool) { LeaveMap(); }},
                 {"MnuMin1"},
                 {"MnuClose", u"schliessen"_s, [this](bool) { close(); }},
             });
}

void Gform::AddDisplayMenu()
{
    const auto marks = [this](const char* name, const QString& caption,
                              bool plot::MapView::*shown) {
        return MenuItem{name, caption,
                        [this, shown](bool on) {
                            view_.*shown = on;
                            Redraw();
                        },
                        true};
    };
    using stations::LabelChoice;
    const auto label = [this](LabelChoice choice, const QString& caption) {
        return MenuItem{kLabelItems[static_cast<std::size_t>(choice)], caption,
                        [this, choice](bool) {
                            SetLabelChoice(choice);
                            Redraw();
                        },
                        true};
    };
    const auto check = [this](const char* name, const QString& caption,
                              bool stations::Configuration::*shown) {
        return MenuItem{name, caption, [this, shown](bool on) { Toggle(shown, on); }, true};
    };
    using Switches = stations::Configuration;
    AddItems(
        NewMenu("MnuAnz", u"Anzeige"_s),
        {
            marks("MnuSel", u"ausgewählte Stationen"_s, &plot::MapView::showMarked),
            marks("MnuAlle", u"nicht ausgewählte Stationen"_s, &plot::MapView::showUnmarked),
            {"MnuMin17"},
            label(LabelChoice::Callsign, u"Rufzeichen"_s),
            label(LabelChoice::Name, u"Name"_s),
            label(LabelChoice::Place, u"Ort"_s),
            label(LabelChoice::Frequency, u"Frequenz"_s),
            label(LabelChoice::Remark, u"Anmerkung"_s),
            {"MnuMin10"},
            check("MnuS1Anz", u"Station 1"_s, &Switches::showStation1),
            check("MnuS2Anz", u"Station 2"_s, &Switches::showStation2),
            {"MnuMin13"},
            check("MnuRef", u"Referenzpunkte"_s, &Switches::showReferencePoints),
            {"MnuMin11"},
            check("MnuOptAusg", u"Optimierte Ausgabe"_s, &Switches::optimisedOutput),
            check("MnuOptAnzg", u"Optimierte Koordinatenanzeige"_s, &Switches::optimisedDisplay),
            {"MnuMin12"},
            {"MnuRast", u"Rasteranzeige"_s, [this](bool on) { ToggleGrid(on); }, true},
            {"MnuMin14"},
            {"MnuEig", u"Eigenschaften"_s, [this](bool) { pane_->ShowProperties(); }},
        });
}

void Gform::AddEditMenu()
{
    QMenu* const menu = NewMenu("MnuBearb", u"Bearbeiten"_s);
    AddItems(menu, {
                       {"MnuStoJ", u"Justage speichern"_s, [this](bool) { SaveAdjustment(); }},
                       {"MnuMin21"},
                       {"MnuClrAll", u"alle Referenzpunkte löschen"_s,
                        [this](bool) { ClearAllReferences(); }},
                       {"MnuClrLast", u"letzten Referenzpunkt löschen"_s,
                        [this](bool) { ClearLastReference(); }},
                       {"MnuMin15"},
                   });
    AddItems(
        Named(menu->addMenu(u"UI-View Maps"_s), u"MnuUIView"_s),
        {
            {"MnuRefInf", u"Referenz aus INF erzeugen"_s, [this](bool) { ReferencesFromBounds(); }},
            {"MnuInf", u"UI-View INF File erzeugen"_s, [this](bool) { SaveCalibration(); }},
        });
}

void Gform::AddClickMenu()
{
    const auto click = [this](app::ClickMode mode, const char* name, const QString& caption) {
        return MenuItem{name, caption, [this, mode](bool) { SetClickMode(mode); }, true};
    };
    using Mode = app::ClickMode;
    AddItems(NewMenu("MnuClk", u"Click"_s),
             {
                 click(Mode::Nop, "MnuNop", u"(nop)"_s),
                 click(Mode::SetStation1, "MnuSet1", u"Setze Station 1"_s),
                 click(Mode::SetStation2, "MnuSet2", u"Setze Station 2"_s),
                 click(Mode::AddLandmark, "MnuAddLand", u"Add Landmark"_s),
                 click(Mode::Station2AsReference, "MnuS2Ref", u"Station 2 als Referenz setzen"_s),
                 click(Mode::DeleteReference, "MnuRefClr", u"Referenz löschen"_s),
                 click(Mode::RouteStart, "MnuRouS", u"Route starten"_s),
                 {"MnuRouF", u"Route fortsetzen"_s, [this](bool) { ContinueRoute(); }, true},
             });
}

QAction* Gform::Item(const char* name) const
{
    return findChild<QAction*>(QLatin1StringView(name));
}

void Gform::ShowSwitches()
{
    const stations::Configuration& shown = state_.configuration;
    Item("MnuRef")->setChecked(shown.showReferencePoints);
    Item("MnuS1Anz")->setChecked(shown.showStation1);
    Item("MnuS2Anz")->setChecked(shown.showStation2);
    Item("MnuOptAnzg")->setChecked(shown.optimisedDisplay);
    Item("MnuOptAusg")->setChecked(shown.optimisedOutput);
}

void Gform::SetImageMode(bool on)
{
    state_.map.mapImage = on;
    pane_->SetImageMode(on);
    for (const char* const name : {"MnuClk", "MnuBearb"}) {
        findChild<QMenu*>(QLatin1StringView(name))->menuAction()->setEnabled(on);
    }
    Item("MnuPicOff")->setEnabled(on);
    SetClickMode(state_.map.clickMode);  // for the pointer's form
}

void Gform::SetReferenceMode(bool on)
{
    state_.map.references.SetReferenceMode(on);
    ShowReferenceMode();
}

void Gform::ShowReferenceMode()
{
    const bool on = state_.map.references.ReferenceMode();
    for (const char* const name : {"MnuRast", "MnuRef", "MnuOptAusg", "MnuOptAnzg"}) {
        Item(name)->setEnabled(on);
    }
    if (on) {
        Item("MnuRast")->setChecked(false);
        view_.grid.reset();
    }
}

void Gform::SetClickMode(app::ClickMode mode)
{
    state_.map.clickMode = mode;
    for (const ClickItem& item : kClickItems) {
        Item(item.name)->setChecked(item.mode == mode);
    }
    const bool acts = state_.map.mapImage && mode != app::ClickMode::Nop;
    Picture1->setCursor(acts ? Qt::CrossCursor : Qt::ArrowCursor);
    Redraw();
}

void Gform::SetLabelChoice(stations::LabelChoice choice)
{
    state_.configuration.labelChoice = choice;
    const auto counted = static_cast<std::size_t>(CountedLabelChoice(choice));
    for (std::size_t i = 0; i < std::size(kLabelItems); ++i) {
        Item(kLabelItems[i])->setChecked(i == counted);
    }
}

void Gform::OfferClickModes(QPoint point)
{
    if (state_.map.mapImage) {
        findChild<QMenu*>(u"MnuClk"_s)->popup(Picture1->mapToGlobal(point));
    }
}

}  // namespace ui
