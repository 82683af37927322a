#include "app/ProgramFolder.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace app {
namespace {

namespace fs = std::filesystem;

class ProgramFolderTest : public testing::Test {
protected:
    std::string NewFolder(const char* name)
    {
        const fs::path path = folder.Path() / name;
        fs::create_directories(path);
        return path.string();
    }

    TemporaryFolder folder;
};

TEST_F(ProgramFolderTest, IsTheFolderOfAPortableCopy)
{
    const std::string program = NewFolder("stick/kompasso");
    EXPECT_EQ(ProgramFolder(program, "/home/user/data"), program);
}

TEST_F(ProgramFolderTest, IsTheUsersFolderWhenTheProgramsOwnIsMissing)
{
    EXPECT_EQ(ProgramFolder((folder.Path() / "gone").string(), "/home/user/data"),
              "/home/user/data");
}

// The superuser may write everywhere; nobody may not.
[[noreturn]] void ExitWithFolderAsNobody(const std::string& program, const std::string& expected)
{
    constexpr uid_t kNobody = 65534;
    if (getuid() == 0 && setresuid(kNobody, kNobody, kNobody) != 0) {
        _exit(EXIT_FAILURE);
    }
    _exit(ProgramFolder(program, "/home/user/data") == expected ? EXIT_SUCCESS : EXIT_FAILURE);
}

TEST_F(ProgramFolderTest, IsTheUsersFolderWhenTheProgramsOwnCannotBeWritten)
{
    const std::string program = NewFolder("usr");
    fs::permissions(folder.Path(), fs::perms(0755));
    fs::permissions(program, fs::perms(0555));
    EXPECT_EXIT(ExitWithFolderAsNobody(program, "/home/user/data"),
                testing::ExitedWithCode(EXIT_SUCCESS), "");
    fs::permissions(program, fs::perms(0777));
    EXPECT_EXIT(ExitWithFolderAsNobody(program, program), testing::ExitedWithCode(EXIT_SUCCESS),
                "");
}

TEST_F(ProgramFolderTest, IsTheUsersFolderForAProgramInItsBuildTree)
{
    const std::string build = NewFolder("build/dev");
    const std::string below = NewFolder("build/dev/src/bin");
    PutFile(build + "/CMakeCache.txt", "");
    EXPECT_EQ(ProgramFolder(build, "/home/user/data"), "/home/user/data");
    EXPECT_EQ(ProgramFolder(below, "/home/user/data"), "/home/user/data");
    EXPECT_EQ(ProgramFolder(folder.Path() / "build", "/home/user/data"), folder.Path() / "build")
        << "above the tree";
}

TEST_F(ProgramFolderTest, IsPassedOverWhereAUserWouldLookForHisFiles)
{
    const std::string stick = NewFolder("stick");
    EXPECT_TRUE(IsPassedOver(stick, "/home/user/data"));
    EXPECT_FALSE(IsPassedOver(stick, stick));
    EXPECT_FALSE(IsPassedOver("/usr/bin", "/home/user/data")) << "installed";
    const std::string build = NewFolder("build");
    PutFile(build + "/CMakeCache.txt", "");
    EXPECT_FALSE(IsPassedOver(build, "/home/user/data"));
}

TEST_F(ProgramFolderTest, EnterFolderCreatesItAndMakesItTheCurrentOne)
{
    const fs::path target = folder.Path() / "share" / "Kompasso";
    EXPECT_FALSE(EnterFolder(target.string()));
    EXPECT_EQ(fs::current_path(), target);
    EXPECT_FALSE(EnterFolder(target.string())) << "already there";
    EXPECT_EQ(fs::current_path(), target);
}

TEST_F(ProgramFolderTest, EnterFolderReportsAFolderThatCannotBe)
{
    PutFile("file", "x");
    EXPECT_TRUE(EnterFolder((folder.Path() / "file").string()));
    EXPECT_TRUE(EnterFolder((folder.Path() / "file" / "below").string()));
    EXPECT_EQ(fs::current_path(), folder.Path());
}

}  // namespace
}  // namespace app
