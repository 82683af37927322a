#include "map/CompanionNames.h"

#include <vector>

#include <gtest/gtest.h>

namespace map {
namespace {

TEST(CompanionName, ReplacesWhatStandsBehindTheLastDot)
{
    const struct {
        const char* image;
        const char* calibration;
        const char* adjustment;
    } cases[] = {
        {"karte.jpg", "karte.INF", "karte.JUS"},
        {"karte.nord.gif", "karte.nord.INF", "karte.nord.JUS"},
        {"/karten/a.b/karte.jpeg", "/karten/a.b/karte.INF", "/karten/a.b/karte.JUS"},
        {"karte.", "karte.INF", "karte.JUS"},
        {".jpg", ".INF", ".JUS"},
        {"M\u00fcnchen.jpg", "M\u00fcnchen.INF", "M\u00fcnchen.JUS"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.image);
        EXPECT_EQ(CompanionName(c.image, Companion::Calibration), c.calibration);
        EXPECT_EQ(CompanionName(c.image, Companion::Adjustment), c.adjustment);
    }
}

TEST(CompanionName, IsNoneWithoutADotInTheFilesName)
{
    for (const char* const image : {"karte", "", "/karten.alt/karte", "./karte", "karten.d/"}) {
        EXPECT_FALSE(CompanionName(image, Companion::Adjustment)) << image;
    }
    EXPECT_FALSE(
        CompanionName("karte", Companion::Adjustment, std::vector<std::string>{"karte.jus"}));
}

TEST(CompanionName, PrefersTheNameInCapitals)
{
    const std::vector<std::string> folder = {"karte.Jus", "karte.JUS", "karte.jus", "karte.jpg"};
    EXPECT_EQ(CompanionName("/k/karte.jpg", Companion::Adjustment, folder), "/k/karte.JUS");
}

TEST(CompanionName, TakesTheOtherSpellingThatExists)
{
    const std::vector<std::string> folder = {"karte.jus",  "karte.Jus",  "Karte.JUS",
                                             "karte.jusx", "karte.xjus", "karte.inf"};
    EXPECT_EQ(CompanionName("/k/karte.jpg", Companion::Adjustment, folder), "/k/karte.Jus");
    EXPECT_EQ(CompanionName("karte.jpg", Companion::Calibration, folder), "karte.inf");
    EXPECT_EQ(CompanionName("other.jpg", Companion::Calibration, folder), "other.INF");
}

}  // namespace
}  // namespace map
