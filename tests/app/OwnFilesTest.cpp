#include "app/OwnFiles.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace app {
namespace {

TEST(IsOwnFile, KnowsThemByAnyPathOrLink)
{
    const TemporaryFolder folder;
    const AppState state;
    PutFile("WORK.QTH", "x");
    PutFile("KOMP_LOC.CFG", "x");
    std::filesystem::create_symlink("WORK.QTH", "symbolic");
    std::filesystem::create_hard_link("KOMP_LOC.CFG", "hard");
    for (const char* name : {"WORK.QTH", "./WORK.QTH", "symbolic", "hard", "WORK.BAK"}) {
        EXPECT_TRUE(IsOwnFile(state, name)) << name;
    }
    EXPECT_TRUE(IsOwnFile(state, (folder.Path() / "WORK.BAK").string()));
    EXPECT_FALSE(IsOwnFile(state, "other.QTH"));
}

}  // namespace
}  // namespace app
