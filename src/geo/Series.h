// Sums of powers and of sines, the forms of every series between the ellipsoid and the plane.

#pragma once

#include <array>
#include <cstddef>

namespace geo {

// c0 + c1 x + c2 x^2 + ..., the powers nested (Horner).
constexpr double Polynomial([[maybe_unused]] double x, double c0)
{
    return c0;
}
template <typename... Rest>
constexpr double Polynomial(double x, double c0, Rest... rest)
{
    return c0 + x * Polynomial(x, rest...);
}

// c[0] sin x + c[1] sin 2x + c[2] sin 3x + ..., from the sine and cosine of x alone (Clenshaw's
// recurrence, "A note on the summation of Chebyshev series", Mathematical Tables 9, 1955): one call
// of the sine instead of one for each term.
template <std::size_t count>
double SineSeries(const std::array<double, count>& c, double sinX, double cosX)
{
    const double twoCosX = 2.0 * cosX;
    double sum = c[count - 1];
    double previous = 0.0;
    for (std::size_t i = count - 1; i-- > 0;) {
        const double next = (c[i] - previous) + twoCosX * sum;
        previous = sum;
        sum = next;
    }
    return sum * sinX;
}

}  // namespace geo
