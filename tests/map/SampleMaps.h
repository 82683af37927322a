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
    std::vector<geo::GeoPosition> edges = {};  // of the image: corners and mid-edges
};

using Random = std::mt19937_64;

double Between(Random& random, double low, double high);

// A scanned sheet somewhere in Europe, 0.05 to 10 degrees wide, slightly turned, with `count`
// reference points on random pixels. Meridians converge; positions have six decimals.
SampleMap ScannedSheet(Random& random, int count);

// Sizes for tables in turn: every one from 3 to 50 comes up again and again, small ones far
// more often, because the step-by-step form takes the cube of the size.
int TableSize(int table);

// How many tables the sheet comparisons go through: 1000, ten times as many when the environment
// variable KOMPASSO_ALL_SHEETS is set.
int SheetTables();

// A position in the rectangle around the reference points, and one there or up to half its extent
// outside.
geo::GeoPosition PositionInside(Random& random, const SampleMap& map);
geo::GeoPosition PositionAround(Random& random, const SampleMap& map);

// Corners and mid-edges.
std::vector<Pixel> EdgePixels(ImageSize size);

// A printed map grid of columns x rows reference points, `spacing` degrees apart, its first point
// at a whole multiple of the spacing, on a sheet of slightly bent lines. Row by row from the south.
SampleMap PrintedGrid(int columns, int rows, double spacing, double longitude, double latitude);

}  // namespace map
