#include "map/blend/InverseBlend.h"

#include <algorithm>

#include "map/blend/HasTriangle.h"
#include "map/blend/Weights.h"

namespace map {

void InverseBlend::Prepare(std::span<const ReferencePoint> points)
{
    vertices_.clear();
    places_.clear();
    rotations_ = 0;
    for (const ReferencePoint& point : points) {
        const PlanePoint place = {.x = point.X, .y = point.Y};
        if (InRange(place) && InRange({.x = point.Longitude, .y = point.Latitude})) {
            vertices_.push_back(
                {.place = place, .longitude = point.Longitude, .latitude = point.Latitude});
            places_.push_back(place);
        }
    }
    bases_.Prepare(places_);
    if (!HasTriangle(places_)) {
        return;
    }
    if (places_.size() > kExactPoints) {
        AddAllTriangles();
        rotations_ = vertices_.size();
        return;
    }
    for (std::size_t i = 0; i < vertices_.size(); ++i) {
        for (std::size_t j = i + 1; j < vertices_.size(); ++j) {
            for (std::size_t k = j + 1; k < vertices_.size(); ++k) {
                AddTriangle(vertices_[i], vertices_[j], vertices_[k]);
            }
        }
    }
}

void InverseBlend::AddTriangle(Vertex& i, Vertex& j, Vertex& k)
{
    const double cross = Cross(i.place, j.place, k.place);
    if (cross == 0.0) {
        return;
    }
    const PlanePoint ij = {.x = j.place.x - i.place.x, .y = j.place.y - i.place.y};
    const PlanePoint ik = {.x = k.place.x - i.place.x, .y = k.place.y - i.place.y};
    const double jLongitude = j.longitude - i.longitude;
    const double kLongitude = k.longitude - i.longitude;
    const double jLatitude = j.latitude - i.latitude;
    const double kLatitude = k.latitude - i.latitude;
    const double weight = cross * cross;
    const double longitudeX = cross * (jLongitude * ik.y - kLongitude * ij.y);
    const double longitudeY = cross * (kLongitude * ij.x - jLongitude * ik.x);
    const double latitudeX = cross * (jLatitude * ik.y - kLatitude * ij.y);
    const double latitudeY = cross * (kLatitude * ij.x - jLatitude * ik.x);
    // Each rotation begins at the first end of its base, in cyclic order; vertical bases drop out.
    const auto add = [&](Vertex& first, const Vertex& second) {
        if (first.place.x == second.place.x) {
            return;
        }
        ++rotations_;
        first.weight += weight;
        first.longitudeX += longitudeX;
        first.longitudeY += longitudeY;
        first.latitudeX += latitudeX;
        first.latitudeY += latitudeY;
    };
    add(j, k);
    add(k, i);
    add(i, j);
}

// For a table too large to go through its triangles: their sum in closed form, with x and y from
// each vertex. Vertical bases and collinear triples are left in.
void InverseBlend::AddAllTriangles()
{
    const auto count = static_cast<Extended>(vertices_.size());
    Extended meanX = 0;
    Extended meanY = 0;
    Extended meanLongitude = 0;
    Extended meanLatitude = 0;
    for (const Vertex& v : vertices_) {
        meanX += v.place.x / count;
        meanY += v.place.y / count;
        meanLongitude += v.longitude / count;
        meanLatitude += v.latitude / count;
    }
    // Products about the means, once; moving them to a vertex adds one term to each.
    struct Products {
        Extended xx, xy, yy, xLongitude, yLongitude, xLatitude, yLatitude;
    };
    const auto add = [&](Products& sums, const Vertex& v, Extended factor) {
        const Extended x = v.place.x - meanX;
        const Extended y = v.place.y - meanY;
        const Extended longitude = v.longitude - meanLongitude;
        const Extended latitude = v.latitude - meanLatitude;
        sums.xx += factor * x * x;
        sums.xy += factor * x * y;
        sums.yy += factor * y * y;
        sums.xLongitude += factor * x * longitude;
        sums.yLongitude += factor * y * longitude;
        sums.xLatitude += factor * x * latitude;
        sums.yLatitude += factor * y * latitude;
    };
    Products aboutMeans = {};
    for (const Vertex& v : vertices_) {
        add(aboutMeans, v, 1);
    }
    for (Vertex& v : vertices_) {
        Products of = aboutMeans;
        add(of, v, count);
        v.weight = static_cast<double>(of.xx * of.yy - of.xy * of.xy);
        v.longitudeX = static_cast<double>(of.yy * of.xLongitude - of.xy * of.yLongitude);
        v.longitudeY = static_cast<double>(of.xx * of.yLongitude - of.xy * of.xLongitude);
        v.latitudeX = static_cast<double>(of.yy * of.xLatitude - of.xy * of.yLatitude);
        v.latitudeY = static_cast<double>(of.xx * of.yLatitude - of.xy * of.xLatitude);
    }
}

std::optional<geo::GeoPosition> InverseBlend::Find(Pixel pixel) const
{
    if (!Usable()) {
        return std::nullopt;
    }
    const PlanePoint p = {.x = std::clamp(pixel.x, -kFarthestPoint, kFarthestPoint),
                          .y = std::clamp(pixel.y, -kFarthestPoint, kFarthestPoint)};
    const DirectionFilter filter = bases_.Filter();
    Sum sum;
    for (std::size_t i = 0; i < vertices_.size(); ++i) {
        const Vertex& v = vertices_[i];
        const double dx = p.x - v.place.x;
        const double dy = p.y - v.place.y;
        const double weight = PointWeight(dx, dy);
        sum.weight += weight * v.weight;
        sum.longitude += weight * (v.weight * v.longitude + v.longitudeX * dx + v.longitudeY * dy);
        sum.latitude += weight * (v.weight * v.latitude + v.latitudeX * dx + v.latitudeY * dy);
        if (filter.Possible(static_cast<std::int32_t>(weight * dx * dx * DirectionFilter::kScale))
            || (dx == 0.0 && dy == 0.0)) {
            SubtractParallel(sum, p, i);
        }
    }
    if (sum.weight == 0.0 || sum.leftOut == rotations_) {
        return std::nullopt;
    }
    return geo::GeoPosition{.latitude = sum.latitude / sum.weight,
                            .longitude = sum.longitude / sum.weight};
}

void InverseBlend::SubtractParallel(Sum& sum, PlanePoint p, std::size_t apex) const
{
    const PlanePoint c = places_[apex];
    if (p.x == c.x && p.y == c.y) {
        // Beside the rotations that begin here, with the weight 1e40, those that end here vanish.
        if (vertices_[apex].weight == 0.0) {
            for (const auto& base : bases_.All()) {
                Subtract(sum, p, base.a, base.b, apex);
            }
        }
        return;
    }
    for (const auto& base : bases_.Near(p.x - c.x, p.y - c.y)) {
        if (Cross(places_[base.a], places_[base.b], c) != 0.0
            && ExactlyParallel(p, c, places_[base.a], places_[base.b])) {
            Subtract(sum, p, base.a, base.b, apex);
        }
    }
}

void InverseBlend::Subtract(Sum& sum, PlanePoint p, std::size_t a, std::size_t b,
                            std::size_t apex) const
{
    const Vertex& va = vertices_[a];
    const Vertex& vb = vertices_[b];
    const Vertex& vc = vertices_[apex];
    const double cross = Cross(va.place, vb.place, vc.place);
    if (cross == 0.0) {
        return;
    }
    // With a < b, the cyclic order of the three begins the base at b only around an apex between.
    const PlanePoint first = a < apex && apex < b ? vb.place : va.place;
    const double weight = PointWeight(first.x - p.x, first.y - p.y) * cross;
    const double ofA = Cross(p, vb.place, vc.place);
    const double ofB = Cross(va.place, p, vc.place);
    const double ofC = Cross(va.place, vb.place, p);
    sum.weight -= weight * cross;
    sum.longitude -= weight * (ofA * va.longitude + ofB * vb.longitude + ofC * vc.longitude);
    sum.latitude -= weight * (ofA * va.latitude + ofB * vb.latitude + ofC * vc.latitude);
    ++sum.leftOut;
}

}  // namespace map
