#include "map/blend/Elimination.h"

#include <cmath>
#include <cstddef>

namespace map {

namespace {

// Extents across the strip below this part, squared, of those along it.
constexpr double kThin = 1e-2;

// What is left of a square below this part of it is summed up again.
constexpr double kCancelled = 0.1;

}  // namespace

Elimination::Place Elimination::PlaceOf(PlanePoint p) const
{
    const Extended x = static_cast<Extended>(p.x) - middle_.x;
    const Extended y = static_cast<Extended>(p.y) - middle_.y;
    return {.x = static_cast<double>(x),
            .y = static_cast<double>(y),
            .along = static_cast<double>(cosine_ * x + sine_ * y),
            .across = static_cast<double>(cosine_ * y - sine_ * x)};
}

void Elimination::Prepare(std::span<const ReferencePoint> points)
{
    const auto count = static_cast<double>(points.size());
    middle_ = {};
    for (const ReferencePoint& point : points) {
        middle_.x += point.Longitude / count;
        middle_.y += point.Latitude / count;
    }
    Extended xx = 0;
    Extended xy = 0;
    Extended yy = 0;
    for (const ReferencePoint& point : points) {
        const Extended x = static_cast<Extended>(point.Longitude) - middle_.x;
        const Extended y = static_cast<Extended>(point.Latitude) - middle_.y;
        xx += x * x;
        xy += x * y;
        yy += y * y;
    }
    thin_ = xx * yy - xy * xy < kThin * (xx + yy) * (xx + yy);
    const Extended angle = std::atan2(2 * xy, xx - yy) / 2;
    cosine_ = std::cos(angle);
    sine_ = std::sin(angle);
    places_.clear();
    for (const ReferencePoint& point : points) {
        places_.push_back(PlaceOf({.x = point.Longitude, .y = point.Latitude}));
    }
}

void Elimination::Add(WeightedPixel& sum, double share, const ReferencePoint& point)
{
    sum.weight += share;
    sum.x += share * point.X;
    sum.y += share * point.Y;
}

Elimination::View Elimination::ViewFrom(std::span<const ReferencePoint> points, PlanePoint p) const
{
    View v;
    v.p = PlaceOf(p);
    v.weights.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double weight = PointWeight(points[i].Longitude - p.x, points[i].Latitude - p.y);
        v.weights.push_back(weight);
        v.one += weight;
        v.along += weight * places_[i].along;
        v.across += weight * places_[i].across;
    }
    v.along /= v.one;
    v.across /= v.one;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double a = places_[i].along - v.along;
        const double b = places_[i].across - v.across;
        v.aa += v.weights[i] * a * a;
        v.ab += v.weights[i] * a * b;
        v.bb += v.weights[i] * b * b;
    }
    v.slope = v.aa > 0.0 ? v.ab / v.aa : 0.0;
    v.rest = v.bb - v.slope * v.ab;
    if (v.rest < kCancelled * v.bb) {
        v.rest = 0.0;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const double b = places_[i].across - v.across - v.slope * (places_[i].along - v.along);
            v.rest += v.weights[i] * b * b;
        }
    }
    return v;
}

// The rotations over the bases of columns, with a minus.
WeightedPixel Elimination::WithoutColumns(std::span<const ReferencePoint> points,
                                          std::span<const Column> columns, const View& v) const
{
    WeightedPixel sum;
    const auto c = static_cast<double>(cosine_);
    const auto s = static_cast<double>(sine_);
    const double meanX = c * v.along - s * v.across;
    const double meanY = s * v.along + c * v.across;
    const double xx = c * c * v.aa - 2.0 * c * s * v.ab + s * s * v.bb;
    const double xy = c * s * (v.aa - v.bb) + (c * c - s * s) * v.ab;
    double ofOne = 0.0;
    double ofX = 0.0;
    for (const Column& column : columns) {
        double one = 0.0;
        double y = 0.0;
        for (std::size_t i = column.begin; i < column.end; ++i) {
            one += v.weights[i];
            y += v.weights[i] * places_[i].y;
        }
        y /= one;
        double yy = 0.0;
        for (std::size_t i = column.begin; i < column.end; ++i) {
            yy += v.weights[i] * (places_[i].y - y) * (places_[i].y - y);
        }
        const double toMean = meanX - places_[column.begin].x;
        const double fromColumn = v.p.x - places_[column.begin].x;
        ofX += fromColumn * one * yy;
        ofOne += fromColumn * one * yy * toMean;
        // Over the apexes, from the column.
        const double dd = xx + toMean * toMean * v.one;
        const double d = toMean * v.one;
        const double dy = xy + (meanY - y) * d;
        const double ownOne = yy * (dd - fromColumn * d);
        const double ownY = one * (dd * (v.p.y - y) - fromColumn * dy);
        for (std::size_t i = column.begin; i < column.end; ++i) {
            Add(sum, -v.weights[i] * (ownOne + ownY * (places_[i].y - y)), points[i]);
        }
    }
    for (std::size_t i = 0; i < points.size() && !columns.empty(); ++i) {
        Add(sum, -v.weights[i] * (ofOne + ofX * (places_[i].x - meanX)), points[i]);
    }
    return sum;
}

WeightedPixel Elimination::At(std::span<const ReferencePoint> points,
                              std::span<const Column> columns, PlanePoint p) const
{
    const View v = ViewFrom(points, p);
    const double pAlong = v.p.along - v.along;
    const double pRest = v.p.across - v.across - v.slope * pAlong;
    const double ofOne = 3.0 * v.aa * v.rest;
    const double ofAlong = 3.0 * v.one * v.rest * pAlong;
    const double ofRest = 3.0 * v.one * v.aa * pRest;
    WeightedPixel sum = WithoutColumns(points, columns, v);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double a = places_[i].along - v.along;
        const double b = places_[i].across - v.across - v.slope * a;
        Add(sum, v.weights[i] * (ofOne + ofAlong * a + ofRest * b), points[i]);
    }
    return sum;
}

}  // namespace map
