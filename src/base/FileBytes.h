// Whole files, read and written: the only code that touches the contents of files.
//
// A write is durable: when it reports success the new contents are on the disk, and until then the
// old file stays whole under its name. What asks the system stands in posix/.

#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <system_error>

#include "base/Bytes.h"

namespace base {

enum class FileStatus {
    Readable,
    Missing,
    NoFolder,    // not there, nor the folder it would lie in: whether it exists is not known
    Unreadable,  // refused, not a regular file, broken off by an error, or too large
};

// A file being read from front to back. Only regular files are opened; a pipe could wait for ever.
class InputFile {
public:
    explicit InputFile(const std::string& name);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    FileStatus Status() const { return status_; }

    // Bytes in the file when it was opened; 0 unless readable.
    std::uint64_t Size() const { return size_; }

    // Fills the whole of `target` with the next bytes; false when that many cannot be read.
    bool Read(std::span<unsigned char> target);

private:
    int descriptor_ = -1;
    FileStatus status_ = FileStatus::Missing;
    std::uint64_t size_ = 0;
};

struct FileContents {
    FileStatus status = FileStatus::Missing;
    ByteVector bytes;  // empty unless readable
};

inline constexpr std::uint64_t kLargestFile = std::uint64_t{256} << 20U;

// The whole file. One larger than `largest` bytes is unreadable: no file of this program is, and
// reading it could exhaust the memory.
FileContents ReadFile(const std::string& name, std::uint64_t largest = kLargestFile);

// Replaces the file by `parts`, one after the other; a missing one is created. No error: the
// contents and the name are on the disk. Any error but one of the folder's own synchronisation
// leaves the old file as it was and no temporary file behind.
//
// Symbolic links are followed: the link stays, its target is replaced. Mode and, where the system
// permits, owner are those of the old file. A file whose mode or owner forbids writing is refused
// although its folder would allow it to be replaced.
std::error_code WriteFile(const std::string& name, std::initializer_list<ByteView> parts);
std::error_code WriteFile(const std::string& name, ByteView bytes);

}  // namespace base
