// Whether a picture file is all there.
//
// The decoders of JPEG, GIF, BMP and XBM fill up what a file that was cut off lacks, and say
// nothing.

#pragma once

#include "base/FileBytes.h"

namespace map {

// False for a file of one of these formats, told by its first bytes, that ends before its picture
// does: a JPEG without its end marker, a GIF without its trailer, a BMP with fewer rows than its
// header names, an XBM without its brace. What stands behind the end does not matter. Reads the
// file from the front; one that cannot be read is not whole.
bool IsWholePicture(base::InputFile& file);

}  // namespace map
