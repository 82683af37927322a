#include <algorithm>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "map/UtmSheet.h"
#include "map/blend/ForwardBlend.h"

namespace map {
namespace {

TEST(SheetQuality, IsBelowAPixelOnPrintedGrids)
{
    const struct {
        int columns;
        int rows;
    } cases[] = {{3, 3}, {4, 3}, {4, 4}, {5, 4}, {5, 5}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.columns << "x" << c.rows);
        double worst = 0.0;
        double squares = 0.0;
        std::size_t count = 0;
        const std::vector<UtmSheet> sheets = QualitySheets(c.columns, c.rows, kPrintedSpacings);
        ASSERT_EQ(sheets.size(), 84U);
        for (const UtmSheet& sheet : sheets) {
            ForwardBlend blend;
            blend.Prepare(sheet.Points());
            for (const geo::GeoPosition position : PositionsOver(sheet, 0.0, 0.0)) {
                const Pixel found = blend.At(position);
                const Pixel expected = sheet.TruePixel(position);
                const double off = Distance(found, expected);
                worst = std::max(worst, off);
                squares += off * off;
                ++count;
            }
        }
        const double rms = std::sqrt(squares / static_cast<double>(count));
        RecordProperty("worst", std::to_string(worst));
        EXPECT_LE(worst, 3.0);
        EXPECT_LT(rms, 0.5);
    }
}

}  // namespace
}  // namespace map
