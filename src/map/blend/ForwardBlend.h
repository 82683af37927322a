// The map model from the earth to the image, prepared once per reference table.
//
// Gives what TriangleBlendToPixel gives, at a cost that grows with the number of points instead of
// its cube. Three rotations of every triangle come from Moments; taken off again are
//   - the rotations over bases of equal longitude, column by column,
//   - the few triangles that count as collinear and yet have an area that matters,
//   - the rotations whose line CP is exactly parallel to the base, as ParallelBases finds them.
// Where the points nearly lie in a line as seen from P, the sums are made again by elimination in
// extended precision. Up to four triangles are simply evaluated one by one.

#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "map/blend/FewTriangles.h"
#include "map/blend/PackedColumns.h"
#include "map/blend/ParallelBases.h"
#include "map/blend/PlanePoint.h"
#include "map/blend/TriangleSurvey.h"

namespace map {

struct PreparedPoints;
template <typename V>
struct WeightedPixel;

class ForwardBlend {
public:
    void Prepare(std::span<const ReferencePoint> points);

    // Pixel of a position, before it is brought into the 16-bit range. 0/0 without a usable
    // triangle, NaN for a position that is not finite. A position beyond kFarthestPoint degrees
    // counts as if it were there.
    Pixel At(geo::GeoPosition position) const;

    // The same for many positions, as many as there are pixels; results may differ from those of
    // single calls in the last places.
    void At(std::span<const geo::GeoPosition> positions, std::span<Pixel> pixels) const;

    // False when there is no usable triangle.
    bool Usable() const { return !points_.empty() || !few_.Empty(); }

private:
    void TakePoints(std::span<const ReferencePoint> points);
    void PrepareMoments();
    void PrepareFewTriangles();

    PreparedPoints Prepared() const;
    Pixel ByMoments(PlanePoint p) const;
    void SubtractParallel(WeightedPixel<double>& sum, PlanePoint p, std::size_t c) const;
    void SubtractTriangle(WeightedPixel<double>& sum, PlanePoint p, const Triangle& triangle,
                          double rotations) const;

    // Points in use, by longitude, and their places.
    std::vector<ReferencePoint> points_;
    std::vector<PlanePoint> places_;

    std::vector<Column> columns_;

    // The same once more, laid out for one position and for a pack of them.
    std::vector<PointPack> packs_;
    std::vector<PackedColumns> packedColumns_;
    std::vector<PointPack> spread_;

    std::vector<Triangle> collinear_;
    ParallelBases bases_;
    Extent extent_;
    FewTriangles few_;  // instead of all these, when there are not more
};

}  // namespace map
