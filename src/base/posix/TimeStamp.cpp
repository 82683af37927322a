#include "base/TimeStamp.h"

#include <array>

namespace base {

std::string TimeStamp(std::time_t time)
{
    std::tm local = {};
    if (localtime_r(&time, &local) == nullptr) {
        return {};
    }
    std::array<char, 64> text = {};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y.%m.%d-%H:%M:%S", &local);
    return {text.data(), length};
}

}  // namespace base
