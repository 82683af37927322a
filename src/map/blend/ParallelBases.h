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

#include "map/blend/PlanePoint.h"

namespace map {

// Whether P - C and B - A are parallel, by the exact values of the doubles; true when P is C.
// Coordinates beyond InRange and differences below 1e-140 may be judged wrongly.
bool ExactlyParallel(PlanePoint p, PlanePoint c, PlanePoint a, PlanePoint b);

// Two tables of bits by direction: clear for nearly every direction that no base has, set for each
// that one has. The first takes the low, the second the high places of the squared cosine, the
// first of which spread the bases evenly.
struct DirectionFilter {
    static constexpr double kScale = 1073741824.0;  // 2^30 steps of the squared cosine
    static constexpr std::uint32_t kScaleBits = 30;

    const std::uint32_t* low;
    const std::uint32_t* high;
    std::uint32_t mask;   // the number of bits of a table less 1
    std::uint32_t shift;  // from a step to its high places

    static std::uint32_t BitOf(const std::uint32_t* table, std::uint32_t bit)
    {
        return table[bit / 32] >> (bit % 32);
    }

    // The first answer, in the lowest bit; the others mean nothing, so that several answers can be
    // combined before one look. `step` is the squared cosine times kScale.
    std::uint32_t Perhaps(std::int32_t step) const
    {
        return BitOf(low, static_cast<std::uint32_t>(step) & mask);
    }

    // Both together; rounding may lift a step to the full scale.
    bool Possible(std::int32_t step) const
    {
        return (Perhaps(step) & 1U) != 0
               && (BitOf(high, (static_cast<std::uint32_t>(step) >> shift) & mask) & 1U) != 0;
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

    DirectionFilter Filter() const
    {
        return {.low = low_.data(), .high = high_.data(), .mask = mask_, .shift = shift_};
    }

    // The bases whose slope is dy / dx but for rounding; none when dx is 0.
    std::span<const Base> Near(double dx, double dy) const;

    // All bases, by slope.
    std::span<const Base> All() const { return bases_; }

private:
    void Mark(double cosineSquared);

    std::vector<Base> bases_;
    std::vector<std::uint32_t> low_ = {0};
    std::vector<std::uint32_t> high_ = {0};
    std::uint32_t mask_ = 31;
    std::uint32_t shift_ = DirectionFilter::kScaleBits - 5;
};

}  // namespace map
