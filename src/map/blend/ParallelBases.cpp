#include "map/blend/ParallelBases.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>

namespace map {

namespace {

// Bits per base: more find fewer false candidates, but leave the processor's first cache.
constexpr std::size_t kBitsPerBase = 128;

// By this much, relative to the slope and absolute for the squared cosine, rounding may part two
// equal directions; a few units in the last place.
constexpr double kRounding = 4e-15;

// A number as the exact sum of two doubles.
struct Exact {
    double high;
    double low;
};

Exact Difference(double a, double b)
{
    const double high = a - b;
    const double bRounded = a - high;
    const double aRounded = high + bRounded;
    return {.high = high, .low = (a - aRounded) + (bRounded - b)};
}

Exact Product(double a, double b)
{
    const double high = a * b;
    return {.high = high, .low = std::fma(a, b, -high)};
}

// Sum of doubles without rounding: parts that do not overlap, smallest first.
class ExactSum {
public:
    void Add(double value)
    {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < size_; ++i) {
            const double sum = value + parts_[i];
            const double added = sum - value;
            const double rest = (value - (sum - added)) + (parts_[i] - added);
            if (rest != 0.0) {
                parts_[kept++] = rest;
            }
            value = sum;
        }
        parts_[kept++] = value;
        size_ = kept;
    }

    // The parts do not overlap, so the sum is 0 only when each of them is.
    bool IsZero() const
    {
        return std::all_of(parts_.begin(), parts_.begin() + size_,
                           [](double part) { return part == 0.0; });
    }

private:
    std::array<double, 17> parts_ = {};
    std::size_t size_ = 0;
};

void AddProduct(ExactSum& sum, Exact a, Exact b, double sign)
{
    for (const double x : {a.high, a.low}) {
        for (const double y : {b.high, b.low}) {
            const Exact product = Product(x, sign * y);
            sum.Add(product.low);
            sum.Add(product.high);
        }
    }
}

void SetBit(std::vector<std::uint32_t>& table, std::uint32_t bit)
{
    table[bit / 32] |= 1U << (bit % 32);
}

}  // namespace

bool ExactlyParallel(PlanePoint p, PlanePoint c, PlanePoint a, PlanePoint b)
{
    ExactSum determinant;
    AddProduct(determinant, Difference(p.x, c.x), Difference(b.y, a.y), 1.0);
    AddProduct(determinant, Difference(p.y, c.y), Difference(b.x, a.x), -1.0);
    return determinant.IsZero();
}

void ParallelBases::Prepare(std::span<const PlanePoint> points)
{
    bases_.clear();
    const std::size_t n = points.size() <= kExactPoints ? points.size() : 0;
    for (std::size_t a = 0; a < n; ++a) {
        for (std::size_t b = a + 1; b < n; ++b) {
            const double dx = points[b].x - points[a].x;
            if (dx != 0.0) {
                bases_.push_back({.slope = (points[b].y - points[a].y) / dx,
                                  .a = static_cast<std::uint16_t>(a),
                                  .b = static_cast<std::uint16_t>(b)});
            }
        }
    }
    std::sort(bases_.begin(), bases_.end(),
              [](const Base& left, const Base& right) { return left.slope < right.slope; });

    const std::size_t bits = std::bit_ceil(std::max<std::size_t>(bases_.size() * kBitsPerBase, 64));
    low_.assign(bits / 32, 0);
    high_.assign(bits / 32, 0);
    mask_ = static_cast<std::uint32_t>(bits - 1);
    shift_ = DirectionFilter::kScaleBits - static_cast<std::uint32_t>(std::countr_zero(bits));
    for (const Base& base : bases_) {
        Mark(1.0 / (1.0 + base.slope * base.slope));
    }
}

void ParallelBases::Mark(double cosineSquared)
{
    for (const double rounded : {cosineSquared - kRounding, cosineSquared + kRounding}) {
        const auto step =
            static_cast<std::uint32_t>(std::max(rounded, 0.0) * DirectionFilter::kScale);
        SetBit(low_, step & mask_);
        SetBit(high_, (step >> shift_) & mask_);
    }
}

std::span<const ParallelBases::Base> ParallelBases::Near(double dx, double dy) const
{
    if (dx == 0.0) {
        return {};
    }
    const double slope = dy / dx;
    const double tolerance = kRounding * std::fabs(slope);
    const auto first =
        std::lower_bound(bases_.begin(), bases_.end(), slope - tolerance,
                         [](const Base& base, double least) { return base.slope < least; });
    const auto last =
        std::upper_bound(first, bases_.end(), slope + tolerance,
                         [](double most, const Base& base) { return most < base.slope; });
    return {first, last};
}

}  // namespace map
