#include "base/Bytes.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <limits>

namespace base {

static_assert(CHAR_BIT == 8 && std::numeric_limits<double>::is_iec559 && sizeof(double) == 8
                  && FLT_EVAL_METHOD == 0,
              "doubles stand in the files, and results are those of IEEE doubles, step by step");

void ByteWriter::PutText(std::string_view text, std::size_t length)
{
    const std::string_view kept = text.substr(0, length);
    bytes_.insert(bytes_.end(), kept.begin(), kept.end());
    bytes_.insert(bytes_.end(), length - kept.size(), ' ');
}

void ByteReader::GetBoolean(bool& value)
{
    std::int16_t number = value ? -1 : 0;
    Get(number);
    value = number != 0;
}

void ByteReader::GetText(std::string& text, std::size_t length)
{
    if (const ByteView field = Next(length); !field.empty()) {
        text.assign(field.begin(), field.end());
    }
}

void ByteReader::GetBytes(std::span<unsigned char> target)
{
    const ByteView field = Next(target.size());
    std::copy(field.begin(), field.end(), target.begin());
}

ByteView ByteReader::Next(std::size_t count)
{
    if (failed_ || count > rest_.size()) {
        failed_ = true;
        return {};
    }
    const ByteView field = rest_.first(count);
    rest_ = rest_.subspan(count);
    return field;
}

}  // namespace base
