// Replacing files that may hold what this run does not know.

#pragma once

#include <initializer_list>
#include <string>
#include <system_error>

#include "base/Bytes.h"

namespace base {

// What a program may still find on the disk under the name of a file it is about to replace.
enum class OldBytes {
    Known,    // nothing that was not read whole or written by this run
    Unknown,  // possibly something else: it is set aside before it is replaced
};

// What became of a write.
struct Written {
    std::error_code error;
    std::string keptAs;  // where the old bytes are now; empty when nothing had to be set aside

    // True when there is an error, as for the error alone.
    explicit operator bool() const { return static_cast<bool>(error); }
};

// Replaces a file by `parts`, durably. Bytes that are not known are set aside first; when that
// fails nothing is written. Success makes the bytes known.
Written ReplaceFile(const std::string& name, std::initializer_list<ByteView> parts,
                    OldBytes& oldBytes);

}  // namespace base
