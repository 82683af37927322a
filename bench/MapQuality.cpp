#include "MapQuality.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "ThinPlateSpline.h"
#include "map/Pixel.h"
#include "map/UtmSheet.h"
#include "map/blend/ForwardBlend.h"

namespace bench {

namespace {

struct Deviation {
    double worst = 0.0;
    double squares = 0.0;
    double count = 0.0;

    void Add(map::Pixel found, map::Pixel expected)
    {
        const double off = map::Distance(found, expected);
        worst = std::max(worst, off);
        squares += off * off;
        count += 1.0;
    }

    double Rms() const { return std::sqrt(squares / count); }
};

void PrintRow(int columns, int rows, const std::vector<double>& spacings, double beyond)
{
    Deviation model;
    Deviation spline;
    for (const double spacing : spacings) {
        for (const map::UtmSheet& sheet : map::QualitySheets(columns, rows, {spacing})) {
            map::ForwardBlend blend;
            blend.Prepare(sheet.Points());
            ThinPlateSpline peer(sheet.Points());
            for (const geo::GeoPosition position : map::PositionsOver(sheet, beyond, spacing)) {
                const map::Pixel expected = sheet.TruePixel(position);
                model.Add(blend.At(position), expected);
                double x = position.longitude;
                double y = position.latitude;
                peer.ToPixels({&x, 1}, {&y, 1});
                spline.Add({.x = x, .y = y}, expected);
            }
        }
    }
    std::printf("%dx%d  %-12s %-8s | %8.3f %8.3f | %8.3f %8.3f\n", columns, rows,
                spacings.size() > 1 ? "0.02 - 0.1" : std::to_string(spacings[0]).c_str(),
                beyond > 0.0 ? "+ half" : "hull", model.worst, model.Rms(), spline.worst,
                spline.Rms());
}

}  // namespace

void PrintMapQuality()
{
    std::printf("\nDeviation in pixels on UTM sheets of 5000 x 4000, positions over the grid\n");
    std::printf("(+ half: half a cell beyond its edges as well)\n");
    std::printf("%-17s %8s | %8s %8s | %8s %8s\n", "grid, degrees", "", "model", "rms", "spline",
                "rms");
    const struct {
        int columns;
        int rows;
    } grids[] = {{3, 3}, {4, 3}, {4, 4}, {5, 4}, {5, 5}};
    for (const auto& grid : grids) {
        for (const double beyond : {0.0, 0.5}) {
            PrintRow(grid.columns, grid.rows, map::kPrintedSpacings, beyond);
            for (const double spacing : {0.2, 0.5, 1.0}) {
                PrintRow(grid.columns, grid.rows, {spacing}, beyond);
            }
        }
    }
}

}  // namespace bench
