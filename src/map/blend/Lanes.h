// Packs of four doubles, for the inner loops.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// A function with this exists twice, the faster for processors with four doubles to a register.
// Both do the same arithmetic in the same order. What it calls on packs must be inlined.
#if defined(__x86_64__)
#define KOMPASSO_WIDE __attribute__((target_clones("avx2", "default")))
#else
#define KOMPASSO_WIDE
#endif

namespace map {

using Lanes = double __attribute__((vector_size(32)));
using LaneMask = std::int64_t __attribute__((vector_size(32)));
using LaneIndices = std::int32_t __attribute__((vector_size(16)));
inline constexpr std::size_t kLanes = sizeof(Lanes) / sizeof(double);

[[gnu::always_inline]] inline Lanes Load(const std::array<double, kLanes>& values)
{
    return Lanes{values[0], values[1], values[2], values[3]};
}

[[gnu::always_inline]] inline double SumOf(const Lanes& v)
{
    return (v[0] + v[2]) + (v[1] + v[3]);
}

// The same number in every lane.
[[gnu::always_inline]] inline Lanes Spread(double value)
{
    return Lanes{value, value, value, value};
}

// Whether a comparison holds in any lane.
[[gnu::always_inline]] inline bool Any(const LaneMask& mask)
{
    return (mask[0] | mask[1] | mask[2] | mask[3]) != 0;
}

}  // namespace map
