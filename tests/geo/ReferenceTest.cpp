// Accuracy of the grids against the libraries of record: PROJ's transverse Mercator and
// GeographicLib's UTM.

#include <GeographicLib/UTMUPS.hpp>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <proj.h>
#include <random>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "geo/GaussKrueger.h"
#include "geo/Radians.h"
#include "geo/Utm.h"

namespace geo {
namespace {

constexpr std::uint8_t kNoOffset = 1;
constexpr double kMetresPerDegree = 111700.0;

// Gauss-Krüger strip of PROJ: transverse Mercator on the Bessel ellipsoid.
class ProjStrip {
public:
    explicit ProjStrip(int strip)
    {
        const std::string definition =
            "+proj=tmerc +lat_0=0 +k=1 +ellps=bessel +lon_0=" + std::to_string(3 * strip)
            + " +x_0=" + std::to_string(strip * 1000000 + 500000);
        projection_.reset(proj_create(context_.get(), definition.c_str()));
        if (!projection_) {
            throw std::runtime_error("PROJ does not know " + definition);
        }
    }

    GridPosition Forward(GeoPosition position) const
    {
        const PJ_COORD grid =
            proj_trans(projection_.get(), PJ_FWD,
                       proj_coord(position.longitude * kRadiansPerDegree,
                                  position.latitude * kRadiansPerDegree, 0.0, 0.0));
        return {.easting = grid.enu.e, .northing = grid.enu.n};
    }

private:
    struct Destroy {
        void operator()(PJ* projection) const { proj_destroy(projection); }
        void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
    };
    std::unique_ptr<PJ_CONTEXT, Destroy> context_{proj_context_create()};
    std::unique_ptr<PJ, Destroy> projection_;
};

// Metres between two positions that are close together.
double Apart(GeoPosition p, GeoPosition q)
{
    const double east =
        (p.longitude - q.longitude) * std::cos(p.latitude * kRadiansPerDegree) * kMetresPerDegree;
    return std::hypot((p.latitude - q.latitude) * kMetresPerDegree, east);
}

TEST(GaussKrueger, AgreesWithProjTo10MillimetresInGermany)
{
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> latitudes(47.0, 55.0);
    std::uniform_real_distribution<double> offsets(-1.5, 1.5);
    double largestForward = 0.0;
    double largestInverse = 0.0;
    for (int strip = 2; strip <= 5; ++strip) {
        const ProjStrip reference(strip);
        for (int i = 0; i < 50000; ++i) {
            const GeoPosition position = {.latitude = latitudes(random),
                                          .longitude = 3.0 * strip + offsets(random)};
            const GridPosition expected = reference.Forward(position);
            const GridPosition grid = GeoGk(position, kNoOffset);
            largestForward =
                std::max(largestForward, std::hypot(grid.easting - expected.easting,
                                                    grid.northing - expected.northing));
            largestInverse =
                std::max(largestInverse, Apart(GkToGeo(expected, kNoOffset), position));
        }
    }
    RecordProperty("forward_mm", std::to_string(largestForward * 1000.0));
    RecordProperty("inverse_mm", std::to_string(largestInverse * 1000.0));
    EXPECT_LT(largestForward, 0.010);
    EXPECT_LT(largestInverse, 0.010);
}

TEST(Utm, AgreesWithGeographicLibToAMillimetre)
{
    constexpr double kFalseNorthing = 1e7;  // GeographicLib's, in the south
    std::mt19937_64 random(6);
    std::uniform_real_distribution<double> latitudes(-80.0, 84.0);
    std::uniform_real_distribution<double> longitudes(-180.0, 180.0);
    double largestForward = 0.0;
    double largestInverse = 0.0;
    for (int i = 0; i < 200000; ++i) {
        const GeoPosition position = {.latitude = latitudes(random),
                                      .longitude = longitudes(random)};
        const UtmPosition utm = GeoUTM(position);
        int zone = 0;
        bool north = true;
        double easting = 0.0;
        double northing = 0.0;
        GeographicLib::UTMUPS::Forward(position.latitude, position.longitude, zone, north, easting,
                                       northing, utm.zone);
        ASSERT_EQ(zone, utm.zone);
        northing -= north ? 0.0 : kFalseNorthing;
        largestForward =
            std::max(largestForward, std::hypot(utm.easting - easting, utm.northing - northing));
        largestInverse =
            std::max(largestInverse, Apart(UtmToGeo(zone, easting, northing), position));
    }
    RecordProperty("forward_mm", std::to_string(largestForward * 1000.0));
    RecordProperty("inverse_mm", std::to_string(largestInverse * 1000.0));
    EXPECT_LT(largestForward, 0.001);
    EXPECT_LT(largestInverse, 0.001);
}

}  // namespace
}  // namespace geo
