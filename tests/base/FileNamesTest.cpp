#include "base/FileNames.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace base {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

TEST(FolderOf, GivesEveryNameAFolder)
{
    EXPECT_EQ(FolderOf("a"), ".");
    EXPECT_EQ(FolderOf("/a"), "/");
    EXPECT_EQ(FolderOf("x/y/a"), "x/y");
}

class FileNamesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string copy;  // where bytes were set aside
};

TEST_F(FileNamesTest, FollowsLinksFromTheirOwnFolder)
{
    fs::create_directory("sub");
    fs::create_symlink("b", "sub/a");
    fs::create_symlink(folder.Path() / "c", "sub/b");
    EXPECT_EQ(FollowLinks("sub/a"), (folder.Path() / "c").string());
    EXPECT_EQ(FollowLinks("plain"), "plain");
}

TEST_F(FileNamesTest, KnowsTheSameFileByAnyPathOrLink)
{
    fs::create_directory("sub");
    PutFile("a", "x");
    PutFile("b", "x");
    fs::create_symlink("a", "symbolic");
    fs::create_hard_link("a", "hard");
    for (const char* other : {"a", "./a", "sub/../a", "symbolic", "hard"}) {
        EXPECT_TRUE(SameFile("a", other)) << other;
    }
    EXPECT_TRUE(SameFile((folder.Path() / "a").string(), "a"));
    EXPECT_FALSE(SameFile("a", "b"));
    EXPECT_FALSE(SameFile("a", "missing"));
}

TEST_F(FileNamesTest, KnowsTheSameFileBeforeItExists)
{
    fs::create_directory("sub");
    fs::create_symlink("../new", "sub/link");
    EXPECT_TRUE(SameFile("new", "./new"));
    EXPECT_TRUE(SameFile("new", "sub/../new"));
    EXPECT_TRUE(SameFile("new", "sub/link"));
    EXPECT_FALSE(SameFile("new", "sub/new"));
    EXPECT_FALSE(SameFile("new", "other"));
    EXPECT_FALSE(SameFile("no/folder", "no/folder")) << "neither can be created";
}

TEST_F(FileNamesTest, SetsASideUnderTheNextFreeName)
{
    PutFile("W.QTH", "one");
    EXPECT_FALSE(SetAside("W.QTH", copy));
    EXPECT_EQ(GetFile("W.QTH.ALT"), "one");
    fs::remove("W.QTH");
    PutFile("W.QTH", "two");
    EXPECT_FALSE(SetAside("W.QTH", copy));
    fs::remove("W.QTH");
    PutFile("W.QTH", "three");
    EXPECT_FALSE(SetAside("W.QTH", copy));
    EXPECT_EQ(GetFile("W.QTH.ALT"), "one");
    EXPECT_EQ(GetFile("W.QTH.ALT2"), "two");
    EXPECT_EQ(GetFile("W.QTH.ALT3"), "three");
}

TEST_F(FileNamesTest, SetsTheSameBytesAsideOnlyOnce)
{
    PutFile("a", "x");
    EXPECT_FALSE(SetAside("a", copy));
    EXPECT_FALSE(SetAside("a", copy));
    EXPECT_EQ(TemporaryFolder::Names(), (Names{"a", "a.ALT"}));
}

TEST_F(FileNamesTest, FoldsTheLettersThatTheCodePageHasInBothCases)
{
    EXPECT_EQ(FoldCase("WORK.QTH"), "work.qth");
    EXPECT_EQ(FoldCase("MÜNCHEN × ŠŽŒŸ ß÷"), "münchen × šžœÿ ß÷");
    EXPECT_EQ(FoldCase("M\xDCNCHEN"), "münchen") << "not UTF-8";
    EXPECT_EQ(FoldCase(""), "");
}

TEST_F(FileNamesTest, FindsRegularFilesWithoutCase)
{
    EXPECT_EQ(FindWithoutCase(".", "WORK.QTH"), std::nullopt);
    fs::create_directory("work.qth");
    EXPECT_EQ(FindWithoutCase(".", "WORK.QTH"), std::nullopt);
    PutFile("Work.Qth", "");
    EXPECT_EQ(FindWithoutCase(".", "WORK.QTH"), "Work.Qth");
    EXPECT_EQ(FindWithoutCase("gone", "WORK.QTH"), std::nullopt);
}

TEST_F(FileNamesTest, TellsWhatIsThere)
{
    fs::create_symlink("nowhere", "link");
    EXPECT_TRUE(NameExists("link"));
    EXPECT_FALSE(NameExists("nowhere"));
    EXPECT_TRUE(FolderExists("."));
    EXPECT_FALSE(FolderExists("link"));
}

TEST_F(FileNamesTest, TellsUnderWhichNameBytesAreKept)
{
    PutFile("a", "x");
    copy = "old";
    EXPECT_FALSE(SetAside("a", copy));
    EXPECT_EQ(copy, "a.ALT");
    EXPECT_FALSE(SetAside("missing", copy));
    EXPECT_EQ(copy, "");
}

TEST_F(FileNamesTest, HasNothingToSetAsideOfAMissingOrEmptyFile)
{
    PutFile("empty", "");
    EXPECT_FALSE(SetAside("empty", copy));
    EXPECT_FALSE(SetAside("missing", copy));
    EXPECT_EQ(TemporaryFolder::Names(), Names{"empty"});
}

TEST_F(FileNamesTest, SetsTheTargetOfALinkAsideBesideIt)
{
    fs::create_directory("sub");
    PutFile("sub/target", "x");
    fs::create_symlink("sub/target", "link");
    EXPECT_FALSE(SetAside("link", copy));
    EXPECT_EQ(GetFile("sub/target.ALT"), "x");
    EXPECT_TRUE(fs::is_symlink("link"));
}

TEST_F(FileNamesTest, DoesNotSetAFolderAside)
{
    fs::create_directory("sub");
    EXPECT_TRUE(SetAside("sub", copy));
    EXPECT_EQ(TemporaryFolder::Names(), Names{"sub"});
}

}  // namespace
}  // namespace base
