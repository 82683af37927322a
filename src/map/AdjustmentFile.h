// The adjustment file (JUS) beside a map image: its reference points.
//
//   0   int16     1, the version
//   2   int16     number of reference points
//   4   int16     240, the length of this header
//   6   2 bytes   0
//   8   int32     width of the image in pixels
//   12  int32     height
//   16  5 double  latitudes of the corners: top left, bottom left, top right, bottom right, 0
//   56  5 double  longitudes of the corners
//   96  uint32    0x00CCCCCC, a colour
//   100 uint32    0x8000000D, a system colour
//   104 132 bytes 0
//   236 int32     161101, the stamp
//   240           every entry of the reference table, 32 bytes each: X, Y, longitude, latitude

#pragma once

#include <cstdint>
#include <vector>

#include "base/Bytes.h"
#include "map/Georeference.h"
#include "map/ReferencePoint.h"
#include "map/ReferenceTable.h"

namespace map {

// Fewer reference points than this are not worth a file.
inline constexpr std::int16_t kLeastReferences = 3;

// The whole file. The corners are those of PixelToGeoEstimate.
base::ByteVector PackAdjustment(const ReferenceTable& table, ImageSize size);

enum class AdjustmentState {
    Good,
    TooShort,   // ends inside the header
    Foreign,    // another stamp
    Version,    // another version or header length
    Count,      // negative, or more than the file holds
    NotFinite,  // NaN or infinity among the corners or entries
};

// What an adjustment file holds; valid only in the state Good. Bytes behind the last whole entry
// are not read. The size may differ from that of the image.
struct Adjustment {
    AdjustmentState state = AdjustmentState::Good;
    ImageSize size;
    std::int16_t refCount = 0;
    std::vector<ReferencePoint> entries;  // at least refCount
};

Adjustment UnpackAdjustment(base::ByteView bytes);

}  // namespace map
