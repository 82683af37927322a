// The map picture: loaded whole, shown a clip at a time.
//
// main() owns the only object beside the shared state, so that the picture survives the window.

#pragma once

#include <cstdint>

#include <QImage>
#include <QRect>
#include <QString>

#include "map/Georeference.h"

namespace ui {

enum class PictureStatus {
    Loaded,
    Unreadable,  // missing, cut off, or no picture that can be read
    TooLarge,    // an edge is longer than map::kLongestEdge
    NoMemory,    // larger than the memory that is free
};

// Bytes of memory that can be used without putting other programs out of it; the largest number
// where the system does not tell.
std::uint64_t FreeMemory();

// The filter of a file dialog for pictures: the usual ones, all files, and what else can be read
// here.
QString PictureFilter();

class MapImage {
public:
    // Loads a JPEG, GIF or PNG file, or another that Qt reads. Unless the result is Loaded, the old
    // picture stays; until the new one is whole, both are in memory.
    PictureStatus Load(const QString& file, std::uint64_t freeMemory = FreeMemory());

    // Takes a picture over. One with transparent parts gets a white ground. False, and the old
    // picture stays, when there is no memory for that.
    bool Set(QImage picture);

    bool Empty() const { return picture_.isNull(); }
    map::ImageSize Size() const { return {.width = picture_.width(), .height = picture_.height()}; }

    // The part of the picture within `area`, in 32 bits a pixel; white where the picture does not
    // reach. It shares the memory of the picture where it can and lives as long as that.
    QImage Clip(const QRect& area) const;

private:
    QImage picture_;
};

}  // namespace ui
