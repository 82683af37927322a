// The route that the user draws by clicks on the map.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"

namespace plot {

enum class Pen : std::int16_t {
    Up = 0,    // a new chain starts here
    Down = 1,  // the chain continues to here
};

struct RoutePoint {
    Pen pen = Pen::Up;
    geo::GeoPosition position;
};

// Only the first Count() points of the storage belong to the route. An empty route holds two
// placeholders, which the first clicks overwrite.
class Route {
public:
    Route() { Clear(); }

    void Clear()
    {
        points_ = {{Pen::Up, {.latitude = 48.4, .longitude = 11.4}},
                   {Pen::Down, {.latitude = 48.4, .longitude = 11.6}}};
        count_ = 0;
    }

    // Removes the first `count` points, at most all.
    void RemoveFirst(std::size_t count)
    {
        const auto left = Points().subspan(std::min(count, count_));
        const std::vector<RoutePoint> kept(left.begin(), left.end());
        Clear();
        for (const RoutePoint& point : kept) {
            Append(point);
        }
    }

    void Append(RoutePoint point)
    {
        if (count_ < points_.size()) {
            points_[count_] = point;
        } else {
            points_.push_back(point);
        }
        ++count_;
    }

    bool Empty() const { return count_ == 0; }
    std::size_t Count() const { return count_; }
    std::span<const RoutePoint> Points() const { return std::span(points_).first(count_); }

private:
    std::vector<RoutePoint> points_;
    std::size_t count_ = 0;
};

}  // namespace plot
