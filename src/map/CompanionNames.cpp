#include "map/CompanionNames.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>

namespace map {

namespace {

std::string_view Extension(Companion companion)
{
    return companion == Companion::Calibration ? "INF" : "JUS";
}

// Where the file's own name begins.
std::size_t NameBegin(std::string_view path)
{
    constexpr char kSeparators[] = {
        '/', static_cast<char>(std::filesystem::path::preferred_separator), '\0'};
    const std::size_t separator = path.find_last_of(kSeparators);
    return separator == std::string_view::npos ? 0 : separator + 1;
}

// Letters of the extension in any case; no locale has a say.
bool SpeltAlike(std::string_view text, std::string_view capitals)
{
    return std::equal(
        text.begin(), text.end(), capitals.begin(), capitals.end(),
        [](char c, char capital) { return c == capital || c == capital - 'A' + 'a'; });
}

}  // namespace

std::optional<std::string> CompanionName(std::string_view imageName, Companion companion)
{
    const std::size_t dot = imageName.rfind('.');
    if (dot == std::string_view::npos || dot < NameBegin(imageName)) {
        return std::nullopt;
    }
    std::string name(imageName.substr(0, dot + 1));
    name += Extension(companion);
    return name;
}

std::optional<std::string> CompanionName(std::string_view imageName, Companion companion,
                                         std::span<const std::string> folder)
{
    std::optional<std::string> capitals = CompanionName(imageName, companion);
    if (!capitals) {
        return std::nullopt;
    }
    const std::size_t begin = NameBegin(*capitals);
    const std::string_view wanted = std::string_view(*capitals).substr(begin);
    const std::string_view stem = wanted.substr(0, wanted.size() - Extension(companion).size());
    const std::string* found = nullptr;
    for (const std::string& name : folder) {
        if (name == wanted) {
            return capitals;
        }
        if (name.starts_with(stem)
            && SpeltAlike(std::string_view(name).substr(stem.size()), Extension(companion))
            && (found == nullptr || name < *found)) {
            found = &name;
        }
    }
    return found == nullptr ? *capitals : capitals->substr(0, begin) + *found;
}

}  // namespace map
