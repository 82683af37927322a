// A fresh folder that is the current one as long as the object lives.

#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

class TemporaryFolder {
public:
    TemporaryFolder() : before_(std::filesystem::current_path())
    {
        std::string name = (std::filesystem::temp_directory_path() / "kompasso-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        path_ = name;
        std::filesystem::current_path(path_);
    }

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

    // Names of all that is in the current folder, in order.
    static std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(".")) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

// The plain way to a file, independent of what is tested.
inline void PutFile(const std::string& name, std::string_view contents)
{
    std::ofstream(name, std::ios::binary) << contents;
}

inline std::string GetFile(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
