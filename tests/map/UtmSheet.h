// Printed map sheets in UTM with reference points on their geographic grid.

#pragma once

#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"

namespace map {

// A scan of 5000 x 4000 pixels, turned by 2 degrees, that a grid of positions just fills.
class UtmSheet {
public:
    // columns x rows grid lines, `spacing` degrees apart, from the south-western corner on.
    UtmSheet(int columns, int rows, double spacing, geo::GeoPosition southWest);

    // Where a position lies on the scan, exactly.
    Pixel TruePixel(geo::GeoPosition position) const;

    // The crossings of the grid, on whole pixels.
    const std::vector<ReferencePoint>& Points() const { return points_; }

private:
    Pixel OnPaper(geo::GeoPosition position) const;

    double centralMeridian_;
    double scale_ = 1.0;  // pixels per metre
    Pixel origin_;
    std::vector<ReferencePoint> points_;
};

// The maps that the quality of the model is measured on: 7 spacings at 12 places each.
std::vector<UtmSheet> QualitySheets(int columns, int rows, const std::vector<double>& spacings);

inline const std::vector<double> kPrintedSpacings = {0.02, 0.03, 0.04, 0.05, 0.06, 0.08, 0.1};

// Positions over a sheet's grid, reaching `beyond` cells over its edge (0 or more).
std::vector<geo::GeoPosition> PositionsOver(const UtmSheet& sheet, double beyond, double spacing);

}  // namespace map
