// Weights of points and of what they add up to: docs/map-model.md.

#pragma once

namespace map {

// Added to every squared distance, it matters to coincident points alone: their weight is 1e40.
inline constexpr double kCoincident = 1e-40;

template <typename Real>
inline Real PointWeight(Real dx, Real dy)
{
    return 1 / (dx * dx + dy * dy + kCoincident);
}

// Weight of a set of rotations, and the weighted sums of the pixels that they give. The unit of
// the weight is I_i I_j I_k det², once per rotation.
struct WeightedPixel {
    double weight = 0.0;
    double x = 0.0;
    double y = 0.0;
};

}  // namespace map
