#include "base/FileNames.h"

#include <filesystem>
#include <utility>

#include "base/CodePage.h"

namespace base {

namespace {

// The small letter of a capital that Windows-1252 has in both cases.
char32_t Lower(char32_t character)
{
    const bool ascii = character >= U'A' && character <= U'Z';
    const bool latin1 = character >= 0xC0 && character <= 0xDE && character != 0xD7;
    if (ascii || latin1) {
        return character + 0x20;
    }
    switch (character) {
    case 0x152:  // the ligature OE, S and Z with caron
    case 0x160:
    case 0x17D: return character + 1;
    case 0x178: return 0xFF;  // Y with diaeresis
    default: return character;
    }
}

}  // namespace

std::string FolderOf(const std::string& name)
{
    const std::size_t slash = name.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : name.substr(0, slash);
}

std::string FollowLinks(const std::string& name)
{
    constexpr int kLongestChain = 40;
    std::filesystem::path current = name;
    std::error_code error;
    for (int links = 0; links < kLongestChain; ++links) {
        const std::filesystem::path next = std::filesystem::read_symlink(current, error);
        if (error) {
            break;
        }
        current = FolderOf(current.string()) / next;
    }
    return current.string();
}

bool FolderExists(const std::string& folder)
{
    std::error_code error;
    return std::filesystem::is_directory(folder, error);
}

bool NameExists(const std::string& name)
{
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(name, error));
}

std::string FoldCase(std::string_view text)
{
    const std::string utf8 = IsUtf8(text) ? std::string(text) : FromCodePage(text);
    std::string folded;
    for (std::string_view rest = utf8; !rest.empty();) {
        const DecodedCharacter next = DecodeUtf8(rest);
        AppendUtf8(folded, Lower(next.character));
        rest.remove_prefix(next.length);
    }
    return folded;
}

std::optional<std::string> FindWithoutCase(const std::string& folder, const std::string& name)
{
    const std::string wanted = FoldCase(name);
    std::optional<std::string> found;
    std::filesystem::file_time_type newest;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        std::string candidate = entry->path().filename().string();
        if (FoldCase(candidate) != wanted || !entry->is_regular_file(ignored)) {
            continue;
        }
        const auto changed = entry->last_write_time(ignored);
        // The name decides between files of one time, so that the order of the folder does not.
        if (!found || changed > newest || (changed == newest && candidate < *found)) {
            found = std::move(candidate);
            newest = changed;
        }
    }
    return found;
}

}  // namespace base
