// Whether a BMP file holds all the rows that its header names.

#pragma once

#include <cstdint>

#include "map/ByteStream.h"

namespace map {

// `bytes` stand behind the two of the mark "BM". Rows are looked for where the decoder does: at the
// offset that the header names, but not before its colours end. Compressed rows are gone through to
// the mark behind the last; one that is missing behind whole rows is forgiven.
bool IsWholeBmp(ByteStream& bytes, std::uint64_t fileSize);

}  // namespace map
