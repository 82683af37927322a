// Finds the triangle sides that are exactly parallel to a given direction.
//
// A rotation of a triangle is left out when the line from its apex through P is parallel to its
// base. On whole pixels and on round coordinates that happens at every turn, and leaving out a
// third of a triangle's weight bends the result visibly. So each direction P - C is looked up among
// the directions of all bases: a bit table by the direction's squared cosine rules out nearly all,
// a search by slope nearly all of the rest, exact arithmetic decides.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "map/PlanePoint.h"

namespace map {

// Whether P - C and B - A are parallel, by the exact values of the doubles; true when P is C.
// Coordinates beyond InRange and differences below 1e-140 may be judged wrongly.
bool ExactlyParallel(PlanePoint p, PlanePoint c, PlanePoint a, PlanePoint b);

// Bits by direction: clear for nearly every direction that no base has, set for each that one has.
// Directions that differ by the whole length of the table share a bit, which spreads the bases
// evenly over it.
struct DirectionFilter {
    static constexpr double kScale = 1073741824.0;  // 2^30 steps of the squared cosine

    const std::uint32_t* bits;
    std::uint32_t mask;

    // `step` is the squared cosine times kScale.
    std::uint32_t Bit(std::int32_t step) const
    {
        const std::uint32_t bit = static_cast<std::uint32_t>(step) & mask;
        return bits[bit / 32] >> (bit % 32) & 1U;
    }
};

class ParallelBases {
public:
    struct Base {
        double slope;  // dy / dx
        std::uint16_t a;
        std::uint16_t b;  // a < b
    };

    // Takes all pairs of `points` with different x; none when there are more than kExactPoints.
    void Prepare(std::span<const PlanePoint> points);

    DirectionFilter Filter() const { return {bits_.data(), mask_}; }

    // The bases whose slope is dy / dx but for rounding; none when dx is 0.
    std::span<const Base> Near(double dx, double dy) const;
    bool HasNear(double dx, double dy) const { return !Near(dx, dy).empty(); }

    // All bases, by slope.
    std::span<const Base> All() const { return bases_; }

private:
    void Mark(double cosineSquared);

    std::vector<Base> bases_;
    std::vector<std::uint32_t> bits_ = {0};
    std::uint32_t mask_ = 31;  // the number of bits less 1
};

}  // namespace map
