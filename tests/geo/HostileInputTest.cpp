// Whatever is typed or loaded: no function of geo/ fails, and no text shows "nan" or "inf".

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "geo/AngleText.h"
#include "geo/Distance.h"
#include "geo/DistanceText.h"
#include "geo/GaussKrueger.h"
#include "geo/Locator.h"
#include "geo/Utm.h"

namespace geo {
namespace {

constexpr int kRounds = 30000;

// Any double there is, and those that bring formulas down more often than their share.
class HostileDoubles {
public:
    double Next()
    {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        constexpr std::array kSpecial = {
            0.0,
            -0.0,
            90.0,
            -90.0,
            180.0,
            -180.0,
            360.0,
            1e300,
            -1e300,
            1e-300,
            5e-324,
            kInfinity,
            -kInfinity,
            32767.5,
            2.2e9,
            -2.2e9,
            1e19,
            -1.5,
            89.999999,
            45.0,
            std::numeric_limits<double>::max(),
            std::numeric_limits<double>::quiet_NaN(),
        };
        switch (random_() % 4) {
        case 0: return kSpecial[random_() % kSpecial.size()];
        case 1: return std::bit_cast<double>(random_());
        case 2: return std::ldexp(ordinary_(random_), static_cast<int>(random_() % 80));
        default: return ordinary_(random_);
        }
    }

    GeoPosition NextPosition() { return {.latitude = Next(), .longitude = Next()}; }

    std::string NextText()
    {
        std::string text(random_() % 12, ' ');
        for (char& c : text) {
            c = static_cast<char>(random_());
        }
        return text;
    }

private:
    std::mt19937_64 random_{1234};
    std::uniform_real_distribution<double> ordinary_{-400.0, 400.0};
};

// Digits, sign, separators and whatever else the forms consist of; never words like "nan" or "inf".
bool ShowsANumber(std::string_view text)
{
    return text.find_first_not_of("0123456789+-.'\" EntfernugOSTUDWNRGadkm=")
               == std::string_view::npos
           && text.find("nan") == std::string_view::npos
           && text.find("inf") == std::string_view::npos;
}

TEST(HostileInput, LeavesTheAnglesInTheirRanges)
{
    HostileDoubles doubles;
    for (int i = 0; i < kRounds; ++i) {
        const GeoPosition position = doubles.NextPosition();
        for (const auto mode : {DegreeMinuteMode::Seconds, DegreeMinuteMode::Hundredths}) {
            const DegreeMinutes angles = GRDMINSEC(position, mode);
            for (const AngleComponents& angle : {angles.longitude, angles.latitude}) {
                ASSERT_GE(angle.degrees, 0);
                ASSERT_TRUE(angle.minutes >= 0 && angle.minutes < 60) << position.latitude;
                ASSERT_TRUE(angle.third >= 0 && angle.third < 100) << position.latitude;
            }
            for (const std::string& text : FieldTexts(angles)) {
                ASSERT_EQ(text.find_first_not_of("0123456789NSOW"), std::string::npos) << text;
            }
            ASSERT_TRUE(ShowsANumber(ListingAngle(position.latitude, mode)));
        }
        ASSERT_TRUE(ShowsANumber(DecimalText(position.latitude, base::NumberFormat())));
    }
}

TEST(HostileInput, LeavesTheLocatorSixPrintableCharacters)
{
    HostileDoubles doubles;
    for (int i = 0; i < kRounds; ++i) {
        const GeoPosition position = doubles.NextPosition();
        const std::string locator = PositionToLocator(position.latitude, position.longitude);
        const bool finite = std::isfinite(position.latitude) && std::isfinite(position.longitude);
        ASSERT_EQ(locator.size(), finite ? 6U : 0U);
        for (const char c : locator) {
            ASSERT_TRUE(c >= ' ' && c <= '~');
        }
    }
}

TEST(HostileInput, LeavesTheDistanceAndTheBearingInTheirRanges)
{
    const base::NumberFormat format;
    HostileDoubles doubles;
    for (int i = 0; i < kRounds; ++i) {
        const GeoPosition start = doubles.NextPosition();
        const GeoPosition target = doubles.NextPosition();
        const auto [distance, rawBearing] = DistanceAndRawBearing(start, target);
        const bool finite = std::isfinite(start.latitude) && std::isfinite(target.latitude)
                            && std::isfinite(target.longitude - start.longitude);
        ASSERT_EQ(std::isfinite(distance), finite);
        ASSERT_EQ(std::isfinite(rawBearing), finite);
        if (finite) {
            ASSERT_GE(distance, 0.0);
            ASSERT_TRUE(rawBearing >= 0.0 && rawBearing < 360.0) << rawBearing;
        }
        ASSERT_TRUE(ShowsANumber(DistanceLine(distance, format)));
        for (const auto mode : {DirectionMode::Degrees, DirectionMode::CompassPoint}) {
            ASSERT_TRUE(ShowsANumber(DirectionText(start, target, mode, format)));
        }
    }
}

TEST(HostileInput, LeavesTheGridsTextsThatAreNumbersOrEmpty)
{
    const base::NumberFormat format;
    HostileDoubles doubles;
    for (int i = 0; i < kRounds; ++i) {
        const auto datum = static_cast<std::uint8_t>(i);
        const GeoPosition position = doubles.NextPosition();
        const GridPosition grid = GeoGk(position, datum);
        const UtmPosition utm = GeoUTM(position);
        const GeoPosition fromGk =
            GkToGeo({.easting = doubles.Next(), .northing = doubles.Next()}, datum);
        const GeoPosition fromUtm = UtmToGeo(doubles.Next(), doubles.Next(), doubles.Next());
        for (const double number :
             {grid.easting, grid.northing, utm.easting, utm.northing, fromGk.latitude,
              fromGk.longitude, fromUtm.latitude, fromUtm.longitude}) {
            const std::string text = GridText(number, format);
            ASSERT_EQ(text.empty(), !std::isfinite(number));
            ASSERT_TRUE(ShowsANumber(text));
        }
        if (std::fabs(position.latitude) < 1e5 && std::fabs(position.longitude) < 1e5) {
            ASSERT_TRUE(std::isfinite(utm.easting) && std::isfinite(utm.northing))
                << position.latitude << ' ' << position.longitude;
        }
    }
}

TEST(HostileInput, ReadsAnyTextAsAPositionOnTheMap)
{
    HostileDoubles doubles;
    for (int i = 0; i < kRounds; ++i) {
        const GeoPosition position = LocatorToPosition(doubles.NextText());
        ASSERT_TRUE(position.latitude > -90.0 && position.latitude < 150.0);
        ASSERT_TRUE(position.longitude > -180.0 && position.longitude < 300.0);
        DegreeMinuteTexts texts;
        for (std::string& text : texts) {
            text = doubles.NextText();
        }
        const GeoPosition read = ReadDegreeMinutes(texts, DegreeMinuteMode::Seconds);
        ASSERT_TRUE(std::isfinite(read.latitude) && std::isfinite(read.longitude));
    }
}

}  // namespace
}  // namespace geo
