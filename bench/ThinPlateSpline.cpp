#include "ThinPlateSpline.h"

#include <cstddef>
#include <gdal_alg.h>

namespace bench {

ThinPlateSpline::ThinPlateSpline(std::span<const map::ReferencePoint> points)
{
    std::vector<GDAL_GCP> controls(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        controls[i] = {};
        controls[i].dfGCPPixel = points[i].X;
        controls[i].dfGCPLine = points[i].Y;
        controls[i].dfGCPX = points[i].Longitude;
        controls[i].dfGCPY = points[i].Latitude;
    }
    transformer_.reset(
        GDALCreateTPSTransformer(static_cast<int>(controls.size()), controls.data(), FALSE));
}

void ThinPlateSpline::Destroy::operator()(void* transformer) const
{
    GDALDestroyTPSTransformer(transformer);
}

void ThinPlateSpline::ToPixels(std::span<double> x, std::span<double> y)
{
    Transform(true, x, y);
}

void ThinPlateSpline::ToPositions(std::span<double> x, std::span<double> y)
{
    Transform(false, x, y);
}

void ThinPlateSpline::Transform(bool toPixels, std::span<double> x, std::span<double> y)
{
    if (z_.size() < x.size()) {
        z_.resize(x.size());
        success_.resize(x.size());
    }
    GDALTPSTransform(transformer_.get(), toPixels ? TRUE : FALSE, static_cast<int>(x.size()),
                     x.data(), y.data(), z_.data(), success_.data());
}

}  // namespace bench
