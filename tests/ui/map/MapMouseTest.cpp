#include "ui/map/MapMouse.h"

#include <limits>

#include <QRegularExpression>

#include "base/NumberText.h"
#include "geo/AngleText.h"
#include "map/Georeference.h"
#include "stations/WorkingFile.h"
#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// Clicks on the real window over a map of 2000 x 1500 pixels, 10 to 12 E, 49 down to 47.5 N.
class MapMouseTest : public GformFixture {
protected:
    void SetUp() override
    {
        Open(880, 620);
        LoadMap(MapFile(2000, 1500));
        state.map.bounds = {49.0, 47.5, 10.0, 12.0};
        state.map.edges = map::EdgesOf(state.map.bounds);
    }

    static geo::GeoPosition TruePosition(double x, double y)
    {
        return {.latitude = 49.0 - y / 1000.0, .longitude = 10.0 + x / 1000.0};
    }

    std::string Title() const { return form->windowTitle().toStdString(); }

    static std::string Caption(geo::GeoPosition position)
    {
        const auto mode = geo::DegreeMinuteMode::Hundredths;
        return geo::ListingAngle(position.latitude, mode) + ' '
               + geo::ListingAngle(position.longitude, mode);
    }

    void SetStation2(geo::GeoPosition position) { state.shown.position[1] = position; }

    stations::StationDatabase Written() const
    {
        return stations::ReadDatabase(state.configuration.workingFile).database;
    }

    // A reference where the map really has that position.
    void AddReference(int x, int y)
    {
        SetStation2(TruePosition(x, y));
        ClickAt(x, y);
    }
};

TEST_F(MapMouseTest, PressShowsThePositionInTheCaption)
{
    ClickAt(500, 250);
    EXPECT_EQ(Title(), "  48.45.00   10.30.00");
    ClickAt(501, 251, Qt::RightButton);  // any button presses
    EXPECT_EQ(Title(), Caption(TruePosition(501, 251)));
    ClickAt(502, 252, Qt::MiddleButton);
    EXPECT_EQ(Title(), Caption(TruePosition(502, 252)));
    state.configuration.degreeFormat = geo::DegreeMinuteMode::Seconds;
    ClickAt(500, 250);
    EXPECT_EQ(Title(), "  48.45'00\"   10.30'00\"");
}

TEST_F(MapMouseTest, PressCapturesThePixelOfTheWholeImage)
{
    form->pane->HScroll1->setValue(700);
    form->pane->VScroll1->setValue(400);
    ClickAt(100, 50);
    EXPECT_EQ(Title(), Caption(TruePosition(800, 450)));
}

TEST_F(MapMouseTest, PressInThePolarViewCapturesNothing)
{
    const std::string before = Title();
    Choose("MnuSet1");
    Choose("MnuPicOff");
    mainWindow.calls.clear();
    ClickAt(100, 50);
    EXPECT_EQ(Title(), before);
    EXPECT_TRUE(mainWindow.calls.empty()) << "clicks do nothing there, in any mode";
}

TEST_F(MapMouseTest, CaptionHasItsOwnRefinementAndTolerance)
{
    Choose("MnuRefInf");
    state.map.references.AddStation2Reference(1000, 700, {48.31, 11.02});  // not quite affine
    const auto expected = [this](map::Refinement refinement) {
        return Caption(
            map::PixelToGeo(state.map.references, 333, 222, map::kPointerTolerance, refinement)
                .position);
    };
    ClickAt(333, 222);
    EXPECT_EQ(Title(), expected(map::Refinement::Off)) << "optimised output does not count";
    Choose("MnuOptAnzg");
    ClickAt(333, 222);
    EXPECT_EQ(Title(), expected(map::Refinement::On));
    EXPECT_NE(expected(map::Refinement::On), expected(map::Refinement::Off));
}

TEST_F(MapMouseTest, ModeNopDoesNothing)
{
    mainWindow.calls.clear();
    ClickAt(10, 10);
    EXPECT_TRUE(mainWindow.calls.empty());
    EXPECT_EQ(state.database.Count(), 0U);
}

TEST_F(MapMouseTest, SetsStation1And2)
{
    mainWindow.calls.clear();
    Choose("MnuSet1");
    ClickAt(512, 300);
    const stations::StationTexts& texts = mainWindow.panel[0];
    EXPECT_EQ(texts.callsign, "Station 1");
    EXPECT_EQ(texts.name, "");
    EXPECT_EQ(texts.place, "X/Y: 512 300");
    EXPECT_EQ(texts.frequency, "");
    EXPECT_EQ(texts.remark, "Projektionsabw: 0.00 Pixel");
    EXPECT_TRUE(QRegularExpression(u"^\\d{4}\\.\\d\\d\\.\\d\\d-\\d\\d:\\d\\d:\\d\\d$"_s)
                    .match(QString::fromStdString(texts.date))
                    .hasMatch())
        << texts.date;
    EXPECT_NEAR(state.shown.position[0].latitude, 48.7, 1e-12);
    EXPECT_NEAR(state.shown.position[0].longitude, 10.512, 1e-12);
    EXPECT_EQ(mainWindow.calls, (std::vector<std::string>{"SetStation", "S1S2_Update"}));

    Choose("MnuSet2");
    ClickAt(513, 300);
    EXPECT_EQ(mainWindow.panel[1].callsign, "Station 2");
    EXPECT_EQ(mainWindow.panel[1].place, "X/Y: 513 300");
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 512 300");
}

TEST_F(MapMouseTest, OnlyTheLeftButtonClicks)
{
    Choose("MnuSet1");
    mainWindow.calls.clear();
    ClickAt(10, 10, Qt::RightButton);
    ClickAt(10, 10, Qt::MiddleButton);
    EXPECT_TRUE(mainWindow.calls.empty());
    // Pressed on the surface but let go beside it: no click.
    QTest::mousePress(form->pane->Picture1, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(form->pane->Picture1, Qt::LeftButton, {}, QPoint(-10, 10));
    EXPECT_TRUE(mainWindow.calls.empty());
    // The position is that of the press.
    QTest::mousePress(form->pane->Picture1, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseRelease(form->pane->Picture1, Qt::LeftButton, {}, QPoint(30, 40));
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 10 10");
}

TEST_F(MapMouseTest, ClickIsRefinedByOptimisedOutput)
{
    Choose("MnuRefInf");
    state.map.references.AddStation2Reference(1000, 700, {48.31, 11.02});
    Choose("MnuSet1");
    ClickAt(333, 222);
    const map::FoundPosition refined =
        map::PixelToGeo(state.map.references, 333, 222, map::kClickTolerance, map::Refinement::On);
    EXPECT_EQ(state.shown.position[0], refined.position);
    EXPECT_EQ(mainWindow.panel[0].remark, "Projektionsabw: 0.00 Pixel");
    Choose("MnuOptAusg");
    ClickAt(333, 222);
    const map::FoundPosition estimate =
        map::PixelToGeo(state.map.references, 333, 222, map::kClickTolerance, map::Refinement::Off);
    EXPECT_EQ(state.shown.position[0], estimate.position);
    EXPECT_EQ(mainWindow.panel[0].remark,
              "Projektionsabw: " + state.numberFormat(estimate.error, "0.00") + " Pixel");
    EXPECT_GT(estimate.error, 0.005);
}

TEST_F(MapMouseTest, LandmarksAreNumberedInTheOrderOfTheirClicks)
{
    Choose("MnuAddLand");
    mainWindow.calls.clear();
    ClickAt(512, 300);
    EXPECT_EQ(mainWindow.calls, (std::vector<std::string>{"TakeDatabaseChange"}));
    EXPECT_EQ(Written().Count(), 1U);
    ClickAt(100, 200);
    ASSERT_EQ(state.database.Count(), 2U);
    const stations::StationRecord& first = state.database[0];
    EXPECT_EQ(first.Text(stations::Field::Callsign), "LM001");
    EXPECT_EQ(first.Text(stations::Field::Name), "");
    EXPECT_EQ(first.Text(stations::Field::Place), "X/Y: 512 300");
    EXPECT_EQ(first.Text(stations::Field::Frequency), "");
    EXPECT_EQ(first.Text(stations::Field::Remark), "Projektionsabw: 0.00 Pixel");
    EXPECT_EQ(first.Text(stations::Field::Date).size(), 19U);
    EXPECT_EQ(first.Text(stations::Field::Reserved6), "");
    EXPECT_EQ(first.Text(stations::Field::Reserved7), "");
    EXPECT_NEAR(first.Latitude(), 48.7, 1e-12);
    EXPECT_NEAR(first.Longitude(), 10.512, 1e-12);
    EXPECT_EQ(state.database[1].Text(stations::Field::Callsign), "LM002");

    form.reset();
    Open();
    EXPECT_EQ(state.map.clickMode, app::ClickMode::Nop);
    Choose("MnuAddLand");
    ClickAt(10, 10);
    EXPECT_EQ(state.database[2].Text(stations::Field::Callsign), "LM001") << "starts again";
}

TEST_F(MapMouseTest, NoLandmarkInAFullDatabase)
{
    const stations::StationRecord record = stations::EmptyRecord();
    while (state.database.Append(record)) {
    }
    Choose("MnuAddLand");
    mainWindow.calls.clear();
    ClickAt(10, 10);
    EXPECT_EQ(state.database.Count(), stations::kMaxRecords);
    EXPECT_TRUE(mainWindow.calls.empty());
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_TRUE(dialogs.said[0].text.startsWith(u"Fehler: Zu viele Datensätze."_s));
    EXPECT_EQ(dialogs.parents[0], form.get()) << "the box belongs to the map";
    state.database.Truncate(10);
    ClickAt(10, 10);
    EXPECT_EQ(state.database[10].Text(stations::Field::Callsign), "LM001") << "not counted";
}

TEST_F(MapMouseTest, WriteErrorOfALandmarkIsToldByTheMap)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"WORK.QTH"_s));
    Choose("MnuAddLand");
    ClickAt(10, 10);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0].title, u"Schreibfehler"_s);
    EXPECT_EQ(dialogs.parents[0], form.get()) << "the main window would rise with its box";
    EXPECT_EQ(state.database.Count(), 1U);
}

TEST_F(MapMouseTest, NoClickStoresAPositionThatIsNotFinite)
{
    state.map.edges.upper = std::numeric_limits<double>::infinity();
    Choose("MnuSet1");
    ClickAt(512, 300);
    EXPECT_EQ(state.shown.position[0], geo::GeoPosition{});
    EXPECT_EQ(mainWindow.panel[0].place, "X/Y: 512 300");
    Choose("MnuAddLand");
    ClickAt(512, 300);
    ASSERT_EQ(state.database.Count(), 1U);
    EXPECT_EQ(state.database[0].Position(), geo::GeoPosition{});
}

TEST_F(MapMouseTest, Station2WithoutAPositionIsNoReference)
{
    Choose("MnuS2Ref");
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const geo::GeoPosition position :
         {geo::GeoPosition{infinity, 11.0}, geo::GeoPosition{48.0, nan}}) {
        dialogs.said.clear();
        SetStation2(position);
        ClickAt(50, 60);
        EXPECT_EQ(state.map.references.RefCount(), 0);
        EXPECT_FALSE(state.map.references.ReferenceMode());
        ASSERT_EQ(dialogs.said.size(), 1U);
        EXPECT_TRUE(dialogs.said[0].text.contains(u"Station 2 hat keine Position"_s));
    }
}

TEST_F(MapMouseTest, Station2BecomesAReferencePoint)
{
    Choose("MnuS2Ref");
    form->pane->HScroll1->setValue(100);
    SetStation2({48.5, 11.5});
    ClickAt(50, 60);
    ASSERT_EQ(state.map.references.RefCount(), 1);
    EXPECT_EQ(state.map.references.Points()[0],
              (map::ReferencePoint{.X = 150, .Y = 60, .Longitude = 11.5, .Latitude = 48.5}));
    EXPECT_TRUE(state.map.references.ReferenceMode());
    EXPECT_TRUE(Item("MnuRast")->isEnabled());
    EXPECT_EQ(state.map.clickMode, app::ClickMode::Station2AsReference) << "stays in force";
}

TEST_F(MapMouseTest, DuplicateReferenceIsRefused)
{
    Choose("MnuS2Ref");
    SetStation2({48.5, 11.5});
    ClickAt(50, 60);
    ClickAt(50, 60);
    SetStation2({48.6, 11.6});
    ClickAt(50, 60);  // the same pixel
    SetStation2({48.5, 11.5});
    ClickAt(70, 80);  // Station 2 back where it was
    EXPECT_EQ(state.map.references.RefCount(), 1);
    ASSERT_EQ(dialogs.said.size(), 3U);
    for (const auto& message : dialogs.said) {
        EXPECT_EQ(message, (ScriptedDialogs::Message{{}, u"Diese Referenz existiert bereits!"_s}));
    }
}

TEST_F(MapMouseTest, AddingAReferenceSwitchesTheGridOff)
{
    Choose("MnuRefInf");
    Choose("MnuRast");
    EXPECT_TRUE(Checked("MnuRast"));
    const QImage withGrid = Picture();
    Choose("MnuS2Ref");
    SetStation2({48.5, 11.5});
    ClickAt(50, 60);
    EXPECT_FALSE(Checked("MnuRast"));
    EXPECT_NE(Picture(), withGrid);
}

TEST_F(MapMouseTest, DeletesTheNearestReference)
{
    Choose("MnuS2Ref");
    AddReference(100, 100);
    AddReference(200, 100);
    AddReference(300, 100);
    Choose("MnuRefClr");
    ClickAt(150, 100);  // as far from the first as from the second: the first goes
    ASSERT_EQ(state.map.references.RefCount(), 2);
    EXPECT_EQ(state.map.references.Points()[0].X, 200.0);
    ClickAt(700, 500);  // however far
    ASSERT_EQ(state.map.references.RefCount(), 1);
    EXPECT_EQ(state.map.references.Points()[0].X, 200.0);
    ClickAt(0, 0);
    ClickAt(0, 0);  // none is left: only redraws
    EXPECT_EQ(state.map.references.RefCount(), 0);
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(MapMouseTest, RouteBeginsWithPenUpAndGoesOn)
{
    Choose("MnuRouS");
    ClickAt(100, 100);
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteContinue);
    const QImage one = Picture();
    ClickAt(300, 100);
    const QImage two = Picture();
    EXPECT_NE(one, two) << "joined to the point before";
    Choose("MnuRouS");
    ClickAt(300, 300);
    EXPECT_EQ(Picture(), two) << "a new chain starts";
    ClickAt(500, 300);
    EXPECT_NE(Picture(), two);
}

TEST_F(MapMouseTest, FewerThanThreeReferencesPutEveryClickAtZero)
{
    Choose("MnuS2Ref");
    AddReference(100, 100);
    Choose("MnuSet1");
    ClickAt(512, 300);
    // The estimate is 0/0; the search cannot do better.
    EXPECT_EQ(Title(), Caption({0.0, 0.0}));
    EXPECT_EQ(state.shown.position[0], geo::GeoPosition{}) << "Station 1 goes there, too";
}

}  // namespace
}  // namespace ui
