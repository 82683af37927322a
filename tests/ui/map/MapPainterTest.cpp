#include "ui/map/MapPainter.h"

#include <cmath>
#include <numbers>

#include <QPainter>

#include <gtest/gtest.h>

#include "base/Rounding.h"
#include "geo/Distance.h"
#include "plot/ZoomLevels.h"
#include "ui/map/FakeMainWindow.h"
#include "ui/map/LinePainter.h"
#include "ui/map/PolarPicture.h"

namespace ui {
namespace {

constexpr QColor kPlate{0x30, 0x8C, 0xC6};
constexpr QColor kMapGround{0xE0, 0xF0, 0xD0};
constexpr geo::GeoPosition kHome{.latitude = 48.0, .longitude = 11.0};

class MapPainterTest : public testing::Test {
protected:
    MapPainterTest()
    {
        state.configuration.showStation1 = false;
        state.configuration.showStation2 = false;
        state.shown.position = {kHome, geo::GeoPosition{48.01, 11.01}};
        view.surface = {.width = 800, .height = 600};
    }

    // A map of 1000 x 800 pixels from 10 to 12 E and from 49 down to 47 N.
    void ShowMap()
    {
        QImage picture(1000, 800, QImage::Format_RGB32);
        picture.fill(kMapGround);
        image.Set(picture);
        state.map.mapImage = true;
        state.map.bounds = {49.0, 47.0, 10.0, 12.0};
        state.map.edges = map::EdgesOf(state.map.bounds);
    }

    void UseReferences()
    {
        state.map.references.Replace(map::ReferencesFromInf(state.map.bounds, image.Size()), 4);
        state.configuration.showReferencePoints = false;
    }

    void AddStation(geo::GeoPosition position, const stations::StationTexts& texts)
    {
        state.database.Append(stations::BuildRecord(texts, position, "2024.01.01-00:00:00"));
    }
    void AddStation(geo::GeoPosition position, const char* callsign)
    {
        AddStation(position, stations::StationTexts{.callsign = callsign,
                                                    .name = {},
                                                    .place = {},
                                                    .frequency = {},
                                                    .remark = {},
                                                    .date = {}});
    }

    QImage Frame(qreal scale = 1.0)
    {
        QImage frame(qRound(view.surface.width * scale), qRound(view.surface.height * scale),
                     QImage::Format_RGB32);
        frame.fill(Qt::magenta);  // what is left of it was not drawn
        painter.Redraw(frame, view, scale, kPlate);
        return frame;
    }

    std::vector<std::string> Labels() const
    {
        std::vector<std::string> labels;
        for (const Marker& marker : painter.Markers()) {
            labels.emplace_back(painter.LabelOf(marker));
        }
        return labels;
    }

    // The frame without any marker, and the markers on it one by one.
    QImage Expected(QImage ground,
                    const std::vector<std::pair<plot::SurfacePoint, std::string>>& markers,
                    QColor ink) const
    {
        const MarkerPainter marker(1.0, kPlate, ink);
        QPainter drawing(&ground);
        for (const auto& [at, label] : markers) {
            marker.DrawMarker(drawing, at, label);
        }
        return ground;
    }

    app::AppState state;
    MapImage image;
    FakeMainWindow mainWindow{state};
    MapPainter painter{state, image, mainWindow};
    plot::MapView view;
};

// The smallest rectangle around the pixels in which two frames of one size differ.
QRect Difference(const QImage& one, const QImage& other)
{
    QRect box;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

geo::GeoPosition North(double kilometres)
{
    return {.latitude = kHome.latitude + kilometres / geo::kEarthRadius * 180.0 / std::numbers::pi,
            .longitude = kHome.longitude};
}

TEST_F(MapPainterTest, PolarViewPutsStationsWhereTheyAreSeenFromStation1)
{
    const QImage ground = Frame();
    AddStation(kHome, "MITTE");
    AddStation(North(5.0), "NORD");
    state.configuration.showStation1 = true;
    state.shown.record[0] = state.database[0];
    EXPECT_EQ(Frame(),
              Expected(ground, {{{400, 300}, "MITTE"}, {{400, 150}, "NORD"}, {{400, 300}, "MITTE"}},
                       kPolarInk));
}

TEST_F(MapPainterTest, MapWithoutReferencesPutsStationsBetweenItsEdges)
{
    ShowMap();
    AddStation({48.0, 11.0}, "MITTE");        // pixel 500/400
    AddStation({48.5, 10.25}, "LINKS OBEN");  // 125/200
    QImage ground(800, 600, QImage::Format_RGB32);
    ground.fill(kMapGround);
    EXPECT_EQ(Frame(),
              Expected(ground, {{{500, 400}, "MITTE"}, {{125, 200}, "LINKS OBEN"}}, kMapInk));
    view.clipOrigin = {.x = 120, .y = 30};
    EXPECT_EQ(Frame(),
              Expected(ground, {{{380, 370}, "MITTE"}, {{5, 170}, "LINKS OBEN"}}, kMapInk));
}

TEST_F(MapPainterTest, MapWithReferencesPutsStationsByThem)
{
    ShowMap();
    UseReferences();
    state.map.edges = {};  // no longer asked
    AddStation({48.0, 11.0}, "MITTE");
    AddStation({48.5, 10.25}, "LINKS OBEN");
    QImage ground(800, 600, QImage::Format_RGB32);
    ground.fill(kMapGround);
    EXPECT_EQ(Frame(),
              Expected(ground, {{{500, 400}, "MITTE"}, {{125, 200}, "LINKS OBEN"}}, kMapInk));
}

TEST_F(MapPainterTest, MapWithEqualEdgesDrawsNoStations)
{
    ShowMap();
    AddStation({48.0, 11.0}, "MITTE");
    state.configuration.showStation1 = true;
    for (const map::EdgeCoordinates& edges :
         {map::EdgeCoordinates{.left = 11.0, .right = 11.0, .upper = 49.0, .lower = 47.0},
          map::EdgeCoordinates{.left = 10.0, .right = 12.0, .upper = 48.0, .lower = 48.0}}) {
        state.map.edges = edges;
        Frame();
        EXPECT_TRUE(painter.Markers().empty());
    }
}

TEST_F(MapPainterTest, StationsFarOutsideAreLeftOut)
{
    state.configuration.zoomLevel = 1;  // 30000 units a kilometre
    AddStation(North(2.1666), "NAH");
    AddStation(North(2.1668), "WEIT");
    AddStation({-48.0, -169.0}, "ANTIPODE");
    Frame();
    EXPECT_EQ(Labels(), std::vector<std::string>{"NAH"});  // 64998 and 65004 units from the centre
}

TEST_F(MapPainterTest, DrawsInTheOrderOfTheDatabaseThenStation1Station2AndReferences)
{
    ShowMap();
    UseReferences();
    state.configuration.showStation1 = true;
    state.configuration.showStation2 = true;
    state.configuration.showReferencePoints = true;
    AddStation({48.0, 11.0}, "B");
    AddStation({48.0, 11.0}, "A");
    mainWindow.panel[0].callsign = "EINS";
    mainWindow.panel[1].callsign = "ZWEI";
    mainWindow.S1S2_Update();
    view.clipOrigin = {.x = 10, .y = 20};
    Frame();
    EXPECT_EQ(Labels(), (std::vector<std::string>{"B", "A", "EINS", "ZWEI", "(REF1)", "(REF2)",
                                                  "(REF3)", "(REF4)"}));
    EXPECT_EQ(painter.Markers()[4].at, (plot::SurfacePoint{-10, -20}));
    EXPECT_EQ(painter.Markers()[7].at, (plot::SurfacePoint{990, 780}));
}

TEST_F(MapPainterTest, SwitchesShowAndHide)
{
    ShowMap();
    UseReferences();
    AddStation({48.0, 11.0}, "OFFEN");
    AddStation({48.1, 11.1}, "MARKIERT");
    mainWindow.marked = {1};
    const auto shown = [this] {
        Frame();
        return Labels();
    };
    using List = std::vector<std::string>;
    EXPECT_EQ(shown(), (List{"OFFEN", "MARKIERT"}));
    view.showUnmarked = false;
    EXPECT_EQ(shown(), List{"MARKIERT"});
    view.showMarked = false;
    view.showUnmarked = true;
    EXPECT_EQ(shown(), List{"OFFEN"});
    view.showUnmarked = false;
    EXPECT_EQ(shown(), List{});
    state.configuration.showStation1 = true;
    EXPECT_EQ(shown(), List{""});
    state.configuration.showReferencePoints = true;
    EXPECT_EQ(shown(), (List{"", "(REF1)", "(REF2)", "(REF3)", "(REF4)"}));
    state.map.references.SetReferenceMode(false);
    EXPECT_EQ(shown(), List{""}) << "no references without their mode";
}

TEST_F(MapPainterTest, PolarViewShowsNoReferencePoints)
{
    ShowMap();
    UseReferences();
    state.configuration.showReferencePoints = true;
    state.map.mapImage = false;
    Frame();
    EXPECT_TRUE(painter.Markers().empty());
}

TEST_F(MapPainterTest, LabelIsTheChosenField)
{
    AddStation(kHome, {.callsign = "DL1ABC",
                       .name = "J\xC3\xBCrgen",
                       .place = "Dachau",
                       .frequency = "145.500",
                       .remark = "Relais",
                       .date = {}});
    AddStation(kHome, "DL2XYZ");  // without a frequency: an empty label box
    const struct {
        std::int16_t choice;
        const char* first;
        const char* second;
    } cases[] = {{0, "DL1ABC", "DL2XYZ"}, {1, "J\xFCrgen", ""}, {2, "Dachau", ""},
                 {3, "145.500", ""},      {4, "Relais", ""},    {17, "DL1ABC", "DL2XYZ"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.choice);
        state.configuration.labelChoice = static_cast<stations::LabelChoice>(c.choice);
        Frame();
        EXPECT_EQ(Labels(), (std::vector<std::string>{c.first, c.second}));
    }
}

TEST_F(MapPainterTest, FollowsEveryChange)
{
    AddStation(North(3.0), "DL1ABC");
    AddStation(North(-3.0), "DL2ABC");
    Frame();
    const auto expectLike = [this](const char* what) {
        SCOPED_TRACE(what);
        const QImage frame = Frame();
        MapPainter fresh(state, image, mainWindow);
        QImage expected(frame.size(), frame.format());
        fresh.Redraw(expected, view, 1.0, kPlate);
        EXPECT_EQ(frame, expected);
    };
    expectLike("nothing");
    AddStation(North(1.0), "DL3ABC");
    expectLike("a new record");
    state.database.Delete(0);
    expectLike("one less");
    state.shown.position[0] = North(2.0);
    expectLike("Station 1");
    state.configuration.zoomLevel = 12;
    expectLike("zoom level");
    view.surface = {.width = 500, .height = 333};
    expectLike("surface");
    state.configuration.labelChoice = stations::LabelChoice::Place;
    expectLike("label choice");
    state.configuration.labelChoice = stations::LabelChoice::Callsign;
    ShowMap();
    expectLike("map view");
    UseReferences();
    expectLike("references");
    state.map.references.ClearLastReference();
    expectLike("one reference less");
    view.clipOrigin = {.x = 300, .y = 200};
    expectLike("clip");
    state.map.mapImage = false;
    expectLike("polar view");
}

TEST_F(MapPainterTest, RingsAndRadialsStandAtTheirPlaces)
{
    struct Case {
        std::int16_t zoomLevel;
        plot::SurfaceSize surface;
    };
    for (const Case& c : {Case{1, {800, 600}}, Case{14, {800, 600}}, Case{33, {800, 600}},
                          Case{1, {420, 280}}, Case{14, {420, 280}}, Case{33, {420, 280}}}) {
        SCOPED_TRACE(testing::Message()
                     << "level " << c.zoomLevel << ", height " << c.surface.height);
        state.configuration.zoomLevel = c.zoomLevel;
        view.surface = c.surface;
        const QImage frame = Frame();
        const int cx = c.surface.width / 2;
        const int cy = c.surface.height / 2;
        // The upright and the level line are sharp.
        EXPECT_EQ(frame.pixelColor(cx, c.surface.height - 3), kLineColour);
        EXPECT_EQ(frame.pixelColor(3, cy), kLineColour);
        EXPECT_EQ(frame.pixelColor(cx + 4, c.surface.height - 9), kPolarGround);
        const plot::ZoomScale scale = plot::ComputeScale(c.zoomLevel);
        for (int ring = 1; ring <= scale.RingCount(); ++ring) {
            const int radius = static_cast<int>(base::RoundHalfEven(
                static_cast<double>(ring) * scale.ringSpacing * cy / scale.viewRange));
            // 5 degrees above the level line there is no radial.
            const double angle = 5.0 * std::numbers::pi / 180.0;
            const int x = static_cast<int>(std::lround(cx - radius * std::cos(angle)));
            const int y = static_cast<int>(std::lround(cy - radius * std::sin(angle)));
            if (radius < 20 || x < 0) {
                continue;
            }
            int darkest = 255;
            for (int dx = -1; dx <= 1; ++dx) {
                if (frame.rect().contains(x + dx, y)) {
                    darkest = std::min(darkest, frame.pixelColor(x + dx, y).red());
                }
            }
            EXPECT_LT(darkest, 128) << "ring " << ring;
        }
        // The radial at 40 degrees through the lower right quarter, between two rings or on one.
        const double t = std::tan(40.0 * std::numbers::pi / 180.0);
        const int y = cy + cy * 3 / 5 + 3;
        const int x = static_cast<int>(std::lround(cx + (y - cy) * t));
        int darkest = 255;
        for (int dx = -1; dx <= 1; ++dx) {
            darkest = std::min(darkest, frame.pixelColor(x + dx, y).red());
        }
        EXPECT_LT(darkest, 160);
        EXPECT_EQ(frame.pixelColor(x + 6, y), kPolarGround);
    }
}

TEST_F(MapPainterTest, RingLabelStandsJustUnderTheTopOfItsRing)
{
    const QImage frame = Frame();
    const MarkerPainter marker(1.0, kPlate, kPolarInk);
    const int half = marker.TextWidth("4 km") / 2;
    // 4 km of 10 on a half height of 300: the top of the ring is at 180.
    EXPECT_EQ(frame.pixelColor(400 - half - 2, 184), kPlate);
    EXPECT_EQ(frame.pixelColor(400 - half - 2, 192), kPlate);
    EXPECT_EQ(frame.pixelColor(400 + half + 2, 192), kPlate);
    EXPECT_NE(frame.pixelColor(400 - half - 4, 188), kPlate);
    EXPECT_NE(frame.pixelColor(400 - half - 2, 183), kPlate);
    EXPECT_NE(frame.pixelColor(400 - half - 2, 193), kPlate);
    bool ink = false;
    for (int x = 400 - half; x <= 400 + half; ++x) {
        for (int y = 184; y <= 192; ++y) {
            ink = ink || frame.pixelColor(x, y).lightness() > 220;
        }
    }
    EXPECT_TRUE(ink);
}

TEST_F(MapPainterTest, RouteJoinsThePointsOfEachChain)
{
    ShowMap();
    const auto at = [](double x, double y) {
        return geo::GeoPosition{.latitude = 49.0 - y / 400.0, .longitude = 10.0 + x / 500.0};
    };
    view.route.Append({plot::Pen::Up, at(100, 100)});
    view.route.Append({plot::Pen::Down, at(300, 100)});
    view.route.Append({plot::Pen::Up, at(300, 300)});
    view.route.Append({plot::Pen::Down, at(500, 300)});
    const QImage frame = Frame();
    EXPECT_EQ(frame.pixelColor(200, 100), kLineColour);
    EXPECT_EQ(frame.pixelColor(400, 300), kLineColour);
    EXPECT_EQ(frame.pixelColor(200, 99), kMapGround);
    EXPECT_EQ(frame.pixelColor(300, 200), kMapGround) << "a new chain starts there";
    view.route.Clear();
    EXPECT_EQ(Frame().pixelColor(200, 100), kMapGround);
}

TEST_F(MapPainterTest, RouteGoesThroughThePolarViewToo)
{
    view.route.Append({plot::Pen::Up, kHome});
    view.route.Append({plot::Pen::Down, {48.0, 11.2}});     // 14.9 km due east
    view.route.Append({plot::Pen::Down, {-48.0, -169.0}});  // and to the other end of the world
    const plot::Route route = view.route;
    // The great circle eastward runs beside the level line; the leg back runs all along it.
    for (const auto& [zoomLevel, left] : {std::pair<std::int16_t, int>{1, 407}, {14, 0}}) {
        SCOPED_TRACE(zoomLevel);
        state.configuration.zoomLevel = zoomLevel;
        view.route.Clear();
        const QImage ground = Frame();
        view.route = route;
        EXPECT_EQ(Difference(Frame(), ground), QRect(QPoint(left, 299), QPoint(799, 299)));
    }
}

TEST_F(MapPainterTest, GridIsDrawnInTheMapViewWhileTheReferenceModeIsOn)
{
    ShowMap();
    UseReferences();
    view.grid =
        plot::MakeGrid(state.map.references, image.Size(), map::Refinement::On);  // 5 minutes
    ASSERT_TRUE(view.grid.has_value());
    view.clipOrigin = {.x = 100, .y = 50};
    // 48 N is row 400, 11 E column 500 of the image; the next lines are 33 1/3 and 41 2/3 away.
    QImage frame = Frame();
    EXPECT_LT(frame.pixelColor(383, 350).red(), 40);
    EXPECT_LT(frame.pixelColor(400, 333).red(), 40);
    EXPECT_EQ(frame.pixelColor(383, 333), kMapGround);
    state.map.references.SetReferenceMode(false);
    frame = Frame();
    EXPECT_EQ(frame.pixelColor(383, 350), kMapGround);
    UseReferences();
    EXPECT_LT(Frame().pixelColor(383, 350).red(), 40);
    state.map.mapImage = false;
    const QImage polar = Frame();
    view.grid.reset();
    EXPECT_EQ(Frame(), polar) << "no grid in the polar view";
}

TEST_F(MapPainterTest, DrawsAtTheResolutionOfTheDisplay)
{
    AddStation(kHome, "DL1ABC");
    const QImage frame = Frame(2.0);
    EXPECT_EQ(frame.size(), QSize(1600, 1200));
    EXPECT_EQ(frame.pixelColor(800 - 8, 600 - 10), kPlate);
    EXPECT_NE(frame.pixelColor(800 - 9, 600 - 10), kPlate);
    ShowMap();
    EXPECT_EQ(Frame(1.5).pixelColor(10, 10), kMapGround);
}

TEST_F(MapPainterTest, FindsTheTopmostMarkerAtAPoint)
{
    AddStation(kHome, "UNTEN");
    AddStation(kHome, "OBEN");
    AddStation(North(5.0), "NORD");
    Frame();
    EXPECT_EQ(painter.MarkerAt({400, 300})->index, 1U);
    EXPECT_EQ(painter.MarkerAt({402, 150})->index, 2U);
    EXPECT_FALSE(painter.MarkerAt({300, 300}).has_value());
    EXPECT_FALSE(painter.MarkerAt({395, 300}).has_value());  // one left of the plate
    EXPECT_TRUE(painter.MarkerAt({396, 300}).has_value());
}

}  // namespace
}  // namespace ui
