// Packs of four doubles, for the inner loops.

#pragma once

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
using LaneIndices = std::int32_t __attribute__((vector_size(16)));
inline constexpr std::size_t kLanes = sizeof(Lanes) / sizeof(double);

[[gnu::always_inline]] inline Lanes Load(const double* values)
{
    return Lanes{values[0], values[1], values[2], values[3]};
}

[[gnu::always_inline]] inline Lanes Broadcast(double value)
{
    return value - Lanes{};
}

[[gnu::always_inline]] inline double SumOf(const Lanes& v)
{
    return (v[0] + v[2]) + (v[1] + v[3]);
}

}  // namespace map
