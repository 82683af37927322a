#include "base/FileBytes.h"

namespace base {

FileContents ReadFile(const std::string& name, std::uint64_t largest)
{
    InputFile file(name);
    FileContents contents = {.status = file.Status(), .bytes = {}};
    if (file.Status() != FileStatus::Readable) {
        return contents;
    }
    if (file.Size() > largest) {
        contents.status = FileStatus::Unreadable;
        return contents;
    }
    contents.bytes.resize(static_cast<std::size_t>(file.Size()));
    if (!file.Read(contents.bytes)) {
        return {.status = FileStatus::Unreadable, .bytes = {}};
    }
    return contents;
}

std::error_code WriteFile(const std::string& name, ByteView bytes)
{
    return WriteFile(name, {bytes});
}

}  // namespace base
