// Maps with known reference points for the tests.

#pragma once

#include <random>
#include <vector>

#include "map/Georeference.h"
#include "map/ReferencePoint.h"

namespace map {

struct SampleMap {
    ImageSize size;
    std::vector<ReferencePoint> points;
};

using Random = std::mt19937_64;

double Between(Random& random, double low, double high);

// A scanned sheet somewhere in Europe, 0.05 to 10 degrees wide, slightly turned, with `count`
// reference points on random pixels. Meridians converge; positions have six decimals.
SampleMap ScannedSheet(Random& random, int count);

// A position on the sheet or up to half its extent outside.
geo::GeoPosition PositionAround(Random& random, const SampleMap& map);

// Corners and mid-edges.
std::vector<Pixel> EdgePixels(ImageSize size);

// A printed map grid of columns x rows reference points, `spacing` degrees apart, its first point
// at a whole multiple of the spacing, on a sheet of slightly bent lines. Row by row from the south.
SampleMap PrintedGrid(int columns, int rows, double spacing, double longitude, double latitude);

}  // namespace map
