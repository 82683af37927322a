// The map model from the image to the earth, prepared once per reference table.
//
// A rotation's weight hangs on its first vertex alone, so all rotations that begin at one reference
// point add up to one affine map, prepared with the table: docs/map-model.md, "The way back".
// What is left is to take off the rotations whose line CP is exactly parallel to the base: pixels
// are whole numbers, so on rows, mid-edges and diagonals that is the rule.

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/Pixel.h"
#include "map/ReferencePoint.h"
#include "map/blend/ParallelBases.h"
#include "map/blend/PlanePoint.h"

namespace map {

class InverseBlend {
public:
    void Prepare(std::span<const ReferencePoint> points);

    // Position of a finite pixel; none when no triangle contributes.
    std::optional<geo::GeoPosition> Find(Pixel pixel) const;

    // The same, with 0/0 instead of none.
    geo::GeoPosition At(Pixel pixel) const { return Find(pixel).value_or(geo::GeoPosition{}); }

    // False when no triangle contributes to any pixel.
    bool Usable() const { return rotations_ > 0; }

private:
    // A reference point and the weighted sum of the affine maps of the rotations that begin there.
    struct Vertex {
        PlanePoint place;
        double longitude = 0.0;
        double latitude = 0.0;
        double weight = 0.0;                        // sum of the squared doubled areas
        double longitudeX = 0.0, longitudeY = 0.0;  // weight times change per pixel
        double latitudeX = 0.0, latitudeY = 0.0;
    };

    struct Sum {
        double weight = 0.0;
        double longitude = 0.0;
        double latitude = 0.0;
        std::size_t leftOut = 0;  // rotations taken off
    };

    void AddTriangle(Vertex& i, Vertex& j, Vertex& k);
    void AddAllTriangles();
    void SubtractParallel(Sum& sum, PlanePoint p, std::size_t apex) const;
    void Subtract(Sum& sum, PlanePoint p, std::size_t a, std::size_t b, std::size_t apex) const;

    std::vector<Vertex> vertices_;    // in the order of the table, which decides the rotations
    std::vector<PlanePoint> places_;  // theirs
    std::size_t rotations_ = 0;       // all that are in the vertices' sums
    ParallelBases bases_;
};

}  // namespace map
