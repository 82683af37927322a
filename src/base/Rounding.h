// Rounding and narrowing. No function here has an undefined result: what does not fit saturates,
// NaN becomes 0.

#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace base {

// Nearest whole number, halves to the even neighbour, whatever the rounding mode of the processor.
// Infinity and NaN are returned as they are.
inline double RoundHalfEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5 || (rest == 0.5 && std::fmod(below, 2.0) == 0.0)) {
        return below;
    }
    return rest >= 0.5 ? below + 1.0 : value;
}

// Whole part of `value` as an integer type, truncated towards zero and kept within the type's
// range.
template <typename Integer>
Integer Saturate(double value)
{
    static_assert(std::is_integral_v<Integer> && sizeof(Integer) <= sizeof(std::int32_t),
                  "the limits must be exact as doubles");
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= static_cast<double>(std::numeric_limits<Integer>::min())) {
        return std::numeric_limits<Integer>::min();
    }
    if (value >= static_cast<double>(std::numeric_limits<Integer>::max())) {
        return std::numeric_limits<Integer>::max();
    }
    return static_cast<Integer>(value);
}

// Largest whole number not above `value` as an integer type, kept within the type's range. Quicker
// than Saturate of std::floor, which goes to an integer and back first.
template <typename Integer>
Integer SaturateFloor(double value)
{
    const auto whole = Saturate<Integer>(value);
    const bool roundedUp =
        static_cast<double>(whole) > value && whole > std::numeric_limits<Integer>::min();
    return roundedUp ? static_cast<Integer>(whole - 1) : whole;
}

}  // namespace base
