#include "geo/Series.h"

#include <array>
#include <cmath>
#include <cstddef>

#include <gtest/gtest.h>

namespace geo {
namespace {

TEST(SineSeries, SumsTheSinesOfTheMultiples)
{
    constexpr std::array kTerms = {3.0, -2.0, 0.5, 0.25};
    for (int degree = -360; degree <= 360; ++degree) {
        SCOPED_TRACE(degree);
        const double x = degree * 0.0174532925;
        double sum = 0.0;
        for (std::size_t i = 0; i < kTerms.size(); ++i) {
            sum += kTerms[i] * std::sin(static_cast<double>(i + 1) * x);
        }
        EXPECT_NEAR(SineSeries(kTerms, std::sin(x), std::cos(x)), sum, 1e-13);
    }
}

TEST(SineSeries, OfOneTermIsThatTerm)
{
    EXPECT_EQ(SineSeries(std::array{2.0}, 0.6, 0.8), 1.2);
}

}  // namespace
}  // namespace geo
