// GDAL's thin plate spline transformer over reference points, the peer of the map model.

#pragma once

#include <memory>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"

namespace bench {

class ThinPlateSpline {
public:
    explicit ThinPlateSpline(std::span<const map::ReferencePoint> points);

    // In place: longitude and latitude to x and y, or back.
    void ToPixels(std::span<double> x, std::span<double> y);
    void ToPositions(std::span<double> x, std::span<double> y);

private:
    struct Destroy {
        void operator()(void* transformer) const;
    };

    void Transform(bool toPixels, std::span<double> x, std::span<double> y);

    std::unique_ptr<void, Destroy> transformer_;
    std::vector<double> z_;
    std::vector<int> success_;
};

}  // namespace bench
