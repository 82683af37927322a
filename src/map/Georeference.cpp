#include "map/Georeference.h"

#include <cmath>

namespace map {

namespace {

constexpr double kFirstStep = 0.1;  // degrees
constexpr int kMostRounds = 1001;

// The thresholds differ on purpose: an x between 32767 and 32768 stays as it is, a y does not.
Pixel Limited(Pixel pixel)
{
    if (std::fabs(pixel.x) > 32768.0) {
        pixel.x = pixel.x > 0.0 ? 32767.0 : -32768.0;
    }
    if (std::fabs(pixel.y) > 32767.0) {
        pixel.y = pixel.y > 0.0 ? 32767.0 : -32768.0;
    }
    return pixel;
}

// Walks from a position to the one that is drawn at a given pixel.
class Search {
public:
    Search(const ReferenceTable& table, Pixel target, geo::GeoPosition start)
        : table_(table), target_(target), found_{.position = start, .error = ErrorAt(start)}
    {
    }

    const FoundPosition& Found() const { return found_; }

    void Run(double tolerance)
    {
        double step = kFirstStep;
        for (int round = 0; round < kMostRounds; ++round) {
            bool improved = false;
            bool moved = false;
            for (const double change : {-step, step}) {
                for (double geo::GeoPosition::*const coordinate :
                     {&geo::GeoPosition::latitude, &geo::GeoPosition::longitude}) {
                    geo::GeoPosition next = found_.position;
                    next.*coordinate += change;
                    moved = moved || next.*coordinate != found_.position.*coordinate;
                    const double error = ErrorAt(next);
                    if (error < found_.error) {
                        found_ = {.position = next, .error = error};
                        improved = true;
                        if (error < tolerance) {
                            return;
                        }
                    }
                }
            }
            if (!moved) {
                return;  // the step is below the last place of both; it only gets smaller
            }
            step = improved ? step * 2.0 : step / 2.0;
        }
    }

private:
    double ErrorAt(geo::GeoPosition position) const
    {
        return Distance(GeoToPixel(table_, position), target_);
    }

    const ReferenceTable& table_;
    Pixel target_;
    FoundPosition found_;
};

Pixel ToPixel(std::int32_t x, std::int32_t y)
{
    return {.x = static_cast<double>(x), .y = static_cast<double>(y)};
}

}  // namespace

Pixel GeoToPixel(const ReferenceTable& table, geo::GeoPosition position)
{
    return Limited(table.Forward().At(position));
}

void GeoToPixel(const ReferenceTable& table, std::span<const geo::GeoPosition> positions,
                std::span<Pixel> pixels)
{
    table.Forward().At(positions, pixels);
    for (Pixel& pixel : pixels) {
        pixel = Limited(pixel);
    }
}

geo::GeoPosition PixelToGeoEstimate(const ReferenceTable& table, std::int32_t x, std::int32_t y)
{
    return table.Inverse().At(ToPixel(x, y));
}

std::optional<geo::GeoPosition> KnownPosition(const ReferenceTable& table, std::int32_t x,
                                              std::int32_t y)
{
    return table.Inverse().Find(ToPixel(x, y));
}

FoundPosition PixelToGeo(const ReferenceTable& table, std::int32_t x, std::int32_t y,
                         double tolerance, Refinement refinement)
{
    Search search(table, ToPixel(x, y), PixelToGeoEstimate(table, x, y));
    if (refinement == Refinement::On) {
        search.Run(tolerance);
    }
    return search.Found();
}

bool GivesPosition(const ReferenceTable& table, std::int32_t x, std::int32_t y,
                   Refinement refinement)
{
    return KnownPosition(table, x, y).has_value()
           || (refinement == Refinement::On && table.Inverse().Usable()
               && table.Forward().Usable());
}

FoundPosition CornerToGeo(const ReferenceTable& table, ImageSize size, int i, int j,
                          Refinement refinement)
{
    return PixelToGeo(table, i * size.width, j * size.height, kClickTolerance, refinement);
}

}  // namespace map
