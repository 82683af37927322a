// The UI-View map calibration file (INF) beside a map image, a text of three lines:
//
//   48.15.00N, 011.30.00E     latitude of the upper edge, longitude of the left edge
//   48.00.00N, 012.00.00E     latitude of the lower edge, longitude of the right edge
//   karte.jpg                 name of the image
//
// Written in Windows-1252 with CR LF behind every line and no byte-order mark.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "map/Georeference.h"
#include "map/ReferencePoint.h"
#include "map/ReferenceTable.h"

namespace map {

// Decimal degrees, in the order in which a file names them. A map without a file, or a bound that
// its file lacks, has these defaults.
struct InfBounds {
    double firstLatitude = -80.0;
    double secondLatitude = 80.0;
    double firstLongitude = -180.0;
    double secondLongitude = 180.0;

    bool operator==(const InfBounds&) const = default;
};

// Decimal degrees at the edges of an image.
struct EdgeCoordinates {
    double left = 0.0;
    double right = 0.0;
    double upper = 0.0;
    double lower = 0.0;

    bool operator==(const EdgeCoordinates&) const = default;
};

// Degrees, minutes and hundredths of a minute, rounded by adding half a hundredth and truncating:
// 48.25 is "48.15.00N", -11.5 is "011.30.00W".
std::string InfLatitude(double degrees);
std::string InfLongitude(double degrees);

// The file's bytes for an image that its reference points tie down, usually at least three; the
// edges are measured at their middles. `imageName` is UTF-8. None when the points give one of the
// middles no finite position.
std::optional<std::string> InfText(const ReferenceTable& table, ImageSize size,
                                   std::string_view imageName);

// Bounds from a file's bytes, of which the first 32767 count. Any text can be read: what is not one
// to three digits of degrees, a point, one or two of minutes below 60, a point or a comma, decimals
// of a minute, blanks if any, and N, S, E or W is passed over; so are third and further latitudes
// and longitudes.
InfBounds ReadInf(std::string_view text);

// Whether a file's bytes are a calibration: a text of at most 32767 characters in which ReadInf
// finds two latitudes and two longitudes, no more.
bool IsInf(std::string_view text);

// The larger latitude is the upper edge, the smaller longitude the left one.
EdgeCoordinates EdgesOf(const InfBounds& bounds);

// Entries for four reference points at the corners of the image, from the bounds as they stand, and
// a fifth that is zero: top left, bottom left, top right, bottom right.
std::vector<ReferencePoint> ReferencesFromInf(const InfBounds& bounds, ImageSize size);

}  // namespace map
