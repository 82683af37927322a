#include "app/FileKind.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "app/FileForms.h"

namespace app {
namespace {

TEST(KindOf, KnowsFilesByTheirMarks)
{
    const TemporaryFolder folder;
    const std::string adjustment = std::string(236, '\0') + LittleEndian(161101, 4);
    const std::string configuration = ConfigurationFile();
    const struct {
        const char* what;
        std::string bytes;
        FileKind kind;
    } cases[] = {
        {"nothing", "", FileKind::Other},
        {"text", std::string(5000, 'x'), FileKind::Other},
        {"database", DatabaseFile({stations::EmptyRecord()}), FileKind::Database},
        {"impossible count", DatabaseHeader(-1), FileKind::Database},
        {"missing records", DatabaseHeader(25000), FileKind::Database},
        {"foreign database", DatabaseHeader(0, 171295), FileKind::Other},
        {"adjustment header", adjustment, FileKind::Adjustment},
        {"long adjustment", adjustment + std::string(10000, '\0'), FileKind::Adjustment},
        {"foreign adjustment", std::string(236, '\0') + LittleEndian(161102, 4), FileKind::Other},
        {"configuration", configuration, FileKind::Configuration},
        {"configuration up to its mark", configuration.substr(0, 1592), FileKind::Configuration},
        {"configuration without its mark", configuration.substr(0, 1591), FileKind::Other},
        {"long configuration", configuration + std::string(5000, 'x'), FileKind::Configuration},
    };
    for (const auto& c : cases) {
        PutFile("file", c.bytes);
        EXPECT_EQ(KindOf("file"), c.kind) << c.what;
    }
}

TEST(KindOf, TellsAMissingFileFromOneThatNobodyCanRead)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory("folder");
    std::filesystem::create_symlink("nowhere", "dangling");
    EXPECT_EQ(KindOf("missing"), FileKind::Missing);
    EXPECT_EQ(KindOf("dangling"), FileKind::Missing);
    EXPECT_EQ(KindOf("folder"), FileKind::Unreadable);
}

}  // namespace
}  // namespace app
