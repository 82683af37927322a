#include "ui/map/MapProperties.h"

#include <gtest/gtest.h>

namespace ui {
namespace {

TEST(CheckSuffix, BringsItsOwnLeadingBlank)
{
    EXPECT_EQ(CheckSuffix("Referenzmodus: ", true), "Referenzmodus:  ein");
    EXPECT_EQ(CheckSuffix("Referenzmodus: ", false), "Referenzmodus:  aus");
}

TEST(PropertyLines, ListModesPictureAndReferencePoints)
{
    app::MapState map;
    map.mapImage = true;
    map.references.AddStation2Reference(512, 300, {48.3125, -11.5});
    map.references.AddStation2Reference(0.5, 7, {-0.25, 179.9999999});
    EXPECT_EQ(
        PropertyLines(map, {3000, 2000}, "/karten/M\xC3\xBCnchen.jpg", base::NumberFormat(",")),
        (std::vector<std::string>{
            "Bildmodus:  ein",
            "Referenzmodus:  ein",
            "Bildbreite: 3000",
            "Bildh\xC3\xB6he: 2000",
            "Bild: /karten/M\xC3\xBCnchen.jpg",
            "2 Referenzpunkte: ",
            "Ref1:  X=512  Y=300  B=48,312500  L=-11,500000",
            "Ref2:  X=0,5  Y=7  B=-0,250000  L=180,000000",
        }));
}

TEST(PropertyLines, WithoutAPicture)
{
    EXPECT_EQ(PropertyLines(app::MapState(), {}, "", base::NumberFormat()),
              (std::vector<std::string>{"Bildmodus:  aus", "Referenzmodus:  aus", "Bildbreite: 0",
                                        "Bildh\xC3\xB6he: 0", "Bild: ", "0 Referenzpunkte: "}));
}

}  // namespace
}  // namespace ui
