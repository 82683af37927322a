// The reference points of a map and what is prepared from them.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "geo/GeoPosition.h"
#include "map/ReferencePoint.h"
#include "map/blend/Blend.h"

namespace map {

enum class AddResult {
    Added,
    Duplicate,  // "Diese Referenz existiert bereits!"; nothing changed
    Full,       // the 16-bit count is at its limit; nothing changed
};

// A growing array of entries of which the first RefCount are valid. Deleting does not shorten the
// array, and the adjustment file keeps all of it.
//
// Both directions of the map model are prepared at every change, so that a conversion never sees
// an older table.
class ReferenceTable {
public:
    std::int16_t RefCount() const { return refCount_; }
    bool ReferenceMode() const { return referenceMode_; }

    std::span<const ReferencePoint> Points() const;  // the valid entries
    std::span<const ReferencePoint> Entries() const { return entries_; }

    // Ties the clicked pixel to the position of Station 2, and switches the reference mode on. A
    // point is a duplicate when an entry has exactly the same pixel or exactly the same position.
    AddResult AddStation2Reference(double clickX, double clickY, geo::GeoPosition station2);

    // Deletes the entry nearest to the pixel, however far; of equally near ones the first. False
    // when there is none.
    bool DeleteNearestReference(double clickX, double clickY);

    // Leaves one empty entry and the reference mode off.
    void ClearAllReferences();

    // Drops the last valid entry, if there is one. The reference mode stays, also at the last.
    void ClearLastReference();

    // Off sets RefCount to 0 and keeps the array.
    void SetReferenceMode(bool on);

    // The whole array anew, as a file or the image's bounds give it: `refCount` of its entries
    // valid, at least 0 and at most all. Switches the reference mode on if any is.
    void Replace(std::vector<ReferencePoint> entries, std::int16_t refCount);

    // As at the start: no entries, reference mode off. So is the table of an image without an
    // adjustment file.
    void Reset();

    const ForwardBlend& Forward() const { return forward_; }
    const InverseBlend& Inverse() const { return inverse_; }

private:
    void Prepare();

    std::vector<ReferencePoint> entries_;
    std::int16_t refCount_ = 0;
    bool referenceMode_ = false;
    ForwardBlend forward_;
    InverseBlend inverse_;
};

}  // namespace map
