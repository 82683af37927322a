// The geodetic core beside the libraries that do the same: the time of each operation over random
// positions as a ratio to the peer's, with the ratio that is to be kept.

#include <GeographicLib/TransverseMercator.hpp>
#include <GeographicLib/UTMUPS.hpp>
#include <array>
#include <boost/geometry.hpp>
#include <boost/geometry/strategies/spherical/azimuth.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <hamlib/rotator.h>
#include <memory>
#include <numeric>
#include <proj.h>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Interleaved.h"
#include "geo/Distance.h"
#include "geo/GaussKrueger.h"
#include "geo/Locator.h"
#include "geo/Radians.h"
#include "geo/Utm.h"

namespace bench {
namespace {

using geo::GeoPosition;
using geo::GridPosition;

constexpr int kPositions = 100000;
constexpr int kUtmZone = 32;
constexpr int kGkStrip = 3;
constexpr double kCentralMeridian = 9.0;  // of both
constexpr std::uint8_t kNoOffset = 1;

struct Region {
    double south;
    double north;
    double west;
    double east;
};
constexpr Region kGlobe = {.south = -90.0, .north = 90.0, .west = -180.0, .east = 180.0};
constexpr Region kZone = {.south = -80.0, .north = 84.0, .west = 6.0, .east = 12.0};
constexpr Region kStrip = {.south = 47.0, .north = 55.0, .west = 7.5, .east = 10.5};

std::vector<GeoPosition> RandomPositions(const Region& region, unsigned seed)
{
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> latitude(region.south, region.north);
    std::uniform_real_distribution<double> longitude(region.west, region.east);
    std::vector<GeoPosition> positions(kPositions);
    for (GeoPosition& position : positions) {
        position = {.latitude = latitude(random), .longitude = longitude(random)};
    }
    return positions;
}

// The sum of what `function` makes of every element.
template <typename T, typename Function>
Work SumOver(const std::vector<T>& values, Function function)
{
    return [&values, function] {
        return std::accumulate(
            values.begin(), values.end(), 0.0,
            [&function](double sum, const T& value) { return sum + function(value); });
    };
}

// One line of the table: a work of the project, a work of the peer, the ratio to be kept.
struct Line {
    const char* operation;
    const char* peer;
    std::size_t project;
    std::size_t other;
    double goal;
};

// The operations and their peers; the lines come out in the order in which they were added.
class Comparison {
public:
    std::size_t Add(Work work) { return runs_.Add(std::move(work)); }

    void Compare(const char* operation, std::size_t project, const char* peer, double goal,
                 Work work)
    {
        lines_.push_back({.operation = operation,
                          .peer = peer,
                          .project = project,
                          .other = runs_.Add(std::move(work)),
                          .goal = goal});
    }

    void RunAndPrint()
    {
        runs_.Run();
        std::printf("| operation | peer | ns | peer ns | ratio | at most | |\n"
                    "|---|---|---|---|---|---|---|\n");
        for (const Line& line : lines_) {
            const double ratio = runs_.MedianRatio(line.project, line.other);
            std::printf("| %s | %s | %.1f | %.1f | %.4f | %.3f | %s |\n", line.operation, line.peer,
                        Nanoseconds(line.project), Nanoseconds(line.other), ratio, line.goal,
                        ratio <= line.goal ? "kept" : "MISSED");
        }
    }

private:
    double Nanoseconds(std::size_t work) const
    {
        return runs_.MedianSeconds(work) / kPositions * 1e9;
    }

    Interleaved runs_;
    std::vector<Line> lines_;
};

// A PROJ projection.
class Projection {
public:
    explicit Projection(const char* definition)
        : projection_(proj_create(context_.get(), definition))
    {
        if (!projection_) {
            throw std::runtime_error(std::string("PROJ does not know ") + definition);
        }
    }

    double Forward(GeoPosition position) const
    {
        const PJ_COORD grid =
            proj_trans(projection_.get(), PJ_FWD,
                       proj_coord(position.longitude * geo::kRadiansPerDegree,
                                  position.latitude * geo::kRadiansPerDegree, 0.0, 0.0));
        return grid.enu.e + grid.enu.n;
    }

    double Inverse(GridPosition grid) const
    {
        const PJ_COORD position = proj_trans(projection_.get(), PJ_INV,
                                             proj_coord(grid.easting, grid.northing, 0.0, 0.0));
        return (position.lp.lam + position.lp.phi) * geo::kDegreesPerRadian;
    }

private:
    struct Destroy {
        void operator()(PJ* projection) const { proj_destroy(projection); }
        void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
    };
    std::unique_ptr<PJ_CONTEXT, Destroy> context_{proj_context_create()};
    std::unique_ptr<PJ, Destroy> projection_;
};

double Sum(GeoPosition position)
{
    return position.latitude + position.longitude;
}

double Sum(GridPosition grid)
{
    return grid.easting + grid.northing;
}

void AddLocators(Comparison& comparison, const std::vector<GeoPosition>& positions,
                 const std::vector<std::string>& locators)
{
    const std::size_t read = comparison.Add(SumOver(
        locators, [](const std::string& text) { return Sum(geo::LocatorToPosition(text)); }));
    comparison.Compare("locator to position", read, "hamlib locator2longlat", 0.01,
                       SumOver(locators, [](const std::string& text) {
                           GeoPosition p;
                           locator2longlat(&p.longitude, &p.latitude, text.c_str());
                           return Sum(p);
                       }));

    const std::size_t written = comparison.Add(SumOver(positions, [](GeoPosition p) {
        return static_cast<double>(geo::PositionToLocator(p.latitude, p.longitude)[5]);
    }));
    comparison.Compare("position to locator", written, "hamlib longlat2locator", 0.03,
                       SumOver(positions, [](GeoPosition p) {
                           std::array<char, 8> text{};
                           longlat2locator(p.longitude, p.latitude, text.data(), 3);
                           return static_cast<double>(text[5]);
                       }));
}

using BoostPoint = boost::geometry::model::point<
    double, 2, boost::geometry::cs::spherical_equatorial<boost::geometry::degree>>;

struct Pair {
    GeoPosition start;
    GeoPosition target;
    BoostPoint boostStart;
    BoostPoint boostTarget;
};

std::vector<Pair> MakePairs(const std::vector<GeoPosition>& starts,
                            const std::vector<GeoPosition>& targets)
{
    std::vector<Pair> pairs;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        pairs.push_back({.start = starts[i],
                         .target = targets[i],
                         .boostStart = {starts[i].longitude, starts[i].latitude},
                         .boostTarget = {targets[i].longitude, targets[i].latitude}});
    }
    return pairs;
}

void AddDistances(Comparison& comparison, const std::vector<Pair>& pairs)
{
    const boost::geometry::strategy::distance::haversine<double> haversine(geo::kEarthRadius);
    const auto boostAzimuth = [](const Pair& pair) {
        double azimuth = 0.0;
        boost::geometry::strategy::azimuth::spherical<double>().apply(
            boost::geometry::get_as_radian<0>(pair.boostStart),
            boost::geometry::get_as_radian<1>(pair.boostStart),
            boost::geometry::get_as_radian<0>(pair.boostTarget),
            boost::geometry::get_as_radian<1>(pair.boostTarget), azimuth);
        return azimuth * geo::kDegreesPerRadian;
    };
    const std::size_t distance = comparison.Add(
        SumOver(pairs, [](const Pair& pair) { return geo::Distance(pair.start, pair.target); }));
    const std::size_t both = comparison.Add(SumOver(pairs, [](const Pair& pair) {
        const auto [length, bearing] = geo::DistanceAndRawBearing(pair.start, pair.target);
        return length + bearing;
    }));

    comparison.Compare("distance", distance, "Boost.Geometry haversine", 1.0,
                       SumOver(pairs, [haversine](const Pair& pair) {
                           return boost::geometry::distance(pair.boostStart, pair.boostTarget,
                                                            haversine);
                       }));
    comparison.Compare("distance and bearing", both, "Boost.Geometry haversine, spherical azimuth",
                       0.9, SumOver(pairs, [haversine, boostAzimuth](const Pair& pair) {
                           return boost::geometry::distance(pair.boostStart, pair.boostTarget,
                                                            haversine)
                                  + boostAzimuth(pair);
                       }));
    comparison.Compare("distance and bearing", both, "hamlib qrb", 0.15,
                       SumOver(pairs, [](const Pair& pair) {
                           double length = 0.0;
                           double azimuth = 0.0;
                           qrb(pair.start.longitude, pair.start.latitude, pair.target.longitude,
                               pair.target.latitude, &length, &azimuth);
                           return length + azimuth;
                       }));
}

void AddUtm(Comparison& comparison, const std::vector<GeoPosition>& positions,
            const std::vector<GridPosition>& grids, const Projection& proj)
{
    const std::size_t forward = comparison.Add(SumOver(positions, [](GeoPosition p) {
        const geo::UtmPosition utm = geo::GeoUTM(p);
        return utm.easting + utm.northing;
    }));
    const std::size_t inverse = comparison.Add(SumOver(grids, [](GridPosition grid) {
        return Sum(geo::UtmToGeo(kUtmZone, grid.easting, grid.northing));
    }));
    comparison.Compare("UTM forward", forward, "GeographicLib UTMUPS", 0.10,
                       SumOver(positions, [](GeoPosition p) {
                           int zone = 0;
                           bool north = true;
                           GridPosition grid;
                           GeographicLib::UTMUPS::Forward(p.latitude, p.longitude, zone, north,
                                                          grid.easting, grid.northing);
                           return Sum(grid);
                       }));
    comparison.Compare("UTM inverse", inverse, "GeographicLib UTMUPS", 0.15,
                       SumOver(grids, [](GridPosition grid) {
                           const bool north = grid.northing >= 0.0;
                           const double northing = north ? grid.northing : grid.northing + 1e7;
                           GeoPosition p;
                           GeographicLib::UTMUPS::Reverse(kUtmZone, north, grid.easting, northing,
                                                          p.latitude, p.longitude);
                           return Sum(p);
                       }));
    comparison.Compare("UTM forward", forward, "PROJ utm +approx", 0.75,
                       SumOver(positions, [&proj](GeoPosition p) { return proj.Forward(p); }));
    comparison.Compare("UTM inverse", inverse, "PROJ utm +approx", 0.62,
                       SumOver(grids, [&proj](GridPosition grid) { return proj.Inverse(grid); }));
}

void AddGaussKrueger(Comparison& comparison, const std::vector<GeoPosition>& positions,
                     const std::vector<GridPosition>& grids, const Projection& proj)
{
    static const GeographicLib::TransverseMercator kBessel(6377397.155, 1.0 / 299.1528128, 1.0);
    constexpr double kFalseEasting = 1e6 * kGkStrip + 5e5;

    const std::size_t forward = comparison.Add(
        SumOver(positions, [](GeoPosition p) { return Sum(geo::GeoGk(p, kNoOffset)); }));
    const std::size_t inverse = comparison.Add(
        SumOver(grids, [](GridPosition grid) { return Sum(geo::GkToGeo(grid, kNoOffset)); }));
    comparison.Compare("Gauss-Krüger forward", forward, "GeographicLib TransverseMercator", 0.09,
                       SumOver(positions, [](GeoPosition p) {
                           GridPosition grid;
                           kBessel.Forward(kCentralMeridian, p.latitude, p.longitude, grid.easting,
                                           grid.northing);
                           return Sum(grid) + kFalseEasting;
                       }));
    comparison.Compare("Gauss-Krüger inverse", inverse, "GeographicLib TransverseMercator", 0.085,
                       SumOver(grids, [](GridPosition grid) {
                           GeoPosition p;
                           kBessel.Reverse(kCentralMeridian, grid.easting - kFalseEasting,
                                           grid.northing, p.latitude, p.longitude);
                           return Sum(p);
                       }));
    comparison.Compare("Gauss-Krüger forward", forward, "PROJ tmerc +approx", 0.55,
                       SumOver(positions, [&proj](GeoPosition p) { return proj.Forward(p); }));
    comparison.Compare("Gauss-Krüger inverse", inverse, "PROJ tmerc +approx", 0.35,
                       SumOver(grids, [&proj](GridPosition grid) { return proj.Inverse(grid); }));
}

void CompareAll()
{
    const std::vector<GeoPosition> globe = RandomPositions(kGlobe, 1);
    const std::vector<GeoPosition> zone = RandomPositions(kZone, 2);
    const std::vector<GeoPosition> strip = RandomPositions(kStrip, 3);
    const std::vector<Pair> pairs = MakePairs(globe, RandomPositions(kGlobe, 4));
    const Projection utm("+proj=utm +zone=32 +ellps=GRS80 +approx");
    const Projection gk("+proj=tmerc +lon_0=9 +x_0=3500000 +ellps=bessel +approx");

    std::vector<std::string> locators;
    std::vector<GridPosition> utmGrids;
    std::vector<GridPosition> gkGrids;
    for (int i = 0; i < kPositions; ++i) {
        locators.push_back(geo::PositionToLocator(globe[i].latitude, globe[i].longitude));
        const geo::UtmPosition inZone = geo::GeoUTM(zone[i]);
        utmGrids.push_back({.easting = inZone.easting, .northing = inZone.northing});
        gkGrids.push_back(geo::GeoGk(strip[i], kNoOffset));
    }

    Comparison comparison;
    AddLocators(comparison, globe, locators);
    AddDistances(comparison, pairs);
    AddUtm(comparison, zone, utmGrids, utm);
    AddGaussKrueger(comparison, strip, gkGrids, gk);
    comparison.RunAndPrint();
}

}  // namespace
}  // namespace bench

int main()
{
    try {
        rig_set_debug(RIG_DEBUG_NONE);
        bench::CompareAll();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "geo_peers: %s\n", error.what());
        return 1;
    }
    return 0;
}
