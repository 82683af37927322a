// Clipping by Liang and Barsky: the line is from + t (to - from), and every edge bounds t from one
// side.

#include "plot/LineClip.h"

#include <algorithm>
#include <cmath>

namespace plot {

namespace {

constexpr double kMargin = 8.0;  // wider than any pen

// The stretch of t that is still inside.
struct Stretch {
    double begin = 0.0;
    double end = 1.0;

    // Keeps what has low <= start + t * delta <= high.
    void Bound(double start, double delta, double low, double high)
    {
        if (delta == 0.0) {
            if (start < low || start > high) {
                end = -1.0;
            }
            return;
        }
        const double atLow = (low - start) / delta;
        const double atHigh = (high - start) / delta;
        begin = std::max(begin, std::min(atLow, atHigh));
        end = std::min(end, std::max(atLow, atHigh));
    }
};

}  // namespace

std::optional<Line> ClipLine(const Line& line, SurfaceSize surface)
{
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    if (!std::isfinite(dx) || !std::isfinite(dy)) {
        return std::nullopt;
    }
    Stretch t;
    t.Bound(line.from.x, dx, -kMargin, surface.width + kMargin);
    t.Bound(line.from.y, dy, -kMargin, surface.height + kMargin);
    if (t.begin > t.end) {
        return std::nullopt;
    }
    Line cut = line;
    if (t.begin > 0.0) {
        cut.from = {.x = line.from.x + t.begin * dx, .y = line.from.y + t.begin * dy};
    }
    if (t.end < 1.0) {
        cut.to = {.x = line.from.x + t.end * dx, .y = line.from.y + t.end * dy};
    }
    return cut;
}

}  // namespace plot
