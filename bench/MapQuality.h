#pragma once

namespace bench {

// Prints how far the map model and the thin plate spline are off on printed sheets, in pixels.
void PrintMapQuality();

}  // namespace bench
