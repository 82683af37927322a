// Sums of sines of multiple angles, the form of every series between latitude and meridian arc.

#pragma once

#include <array>
#include <cstddef>

namespace geo {

// c[0] sin x + c[1] sin 2x + c[2] sin 3x + ..., from the sine and cosine of x alone (Clenshaw's
// recurrence): one call of the sine instead of one for each term.
template <std::size_t count>
double SineSeries(const std::array<double, count>& c, double sinX, double cosX)
{
    double sum = 0.0;
    double previous = 0.0;
    for (std::size_t i = count; i-- > 0;) {
        const double next = c[i] + 2.0 * cosX * sum - previous;
        previous = sum;
        sum = next;
    }
    return sum * sinX;
}

}  // namespace geo
