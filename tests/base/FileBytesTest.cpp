#include "base/FileBytes.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"

namespace base {
namespace {

namespace fs = std::filesystem;

ByteView BytesOf(std::string_view text)
{
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

ByteVector VectorOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

class FileBytesTest : public testing::Test {
protected:
    TemporaryFolder folder;
};

TEST_F(FileBytesTest, AFileInAMissingFolderIsNotKnownToBeMissing)
{
    EXPECT_EQ(ReadFile("missing").status, FileStatus::Missing);
    EXPECT_EQ(ReadFile("gone/file").status, FileStatus::NoFolder);
    fs::create_symlink("gone/file", "link");
    EXPECT_EQ(ReadFile("link").status, FileStatus::NoFolder);
}

TEST_F(FileBytesTest, ReadsAWholeFile)
{
    PutFile("a", std::string_view("x\0y\n", 4));
    const FileContents contents = ReadFile("a");
    EXPECT_EQ(contents.status, FileStatus::Readable);
    EXPECT_EQ(contents.bytes, VectorOf(std::string_view("x\0y\n", 4)));
}

TEST_F(FileBytesTest, TellsMissingFromUnreadable)
{
    EXPECT_EQ(ReadFile("missing").status, FileStatus::Missing);
    EXPECT_EQ(ReadFile("").status, FileStatus::Missing);
    EXPECT_EQ(ReadFile(".").status, FileStatus::Unreadable) << "a folder";
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EQ(ReadFile("pipe").status, FileStatus::Unreadable) << "and it does not wait";
    EXPECT_EQ(ReadFile("/dev/zero").status, FileStatus::Unreadable);
    PutFile("a", "");
    EXPECT_EQ(ReadFile(std::string("a\0b", 3)).status, FileStatus::Unreadable);
}

TEST_F(FileBytesTest, RefusesAFileLargerThanAllowed)
{
    PutFile("a", "12345");
    EXPECT_EQ(ReadFile("a", 5).status, FileStatus::Readable);
    EXPECT_EQ(ReadFile("a", 4).status, FileStatus::Unreadable);
    EXPECT_TRUE(ReadFile("a", 4).bytes.empty());
}

TEST_F(FileBytesTest, ReadsPieceAfterPieceAndFailsBehindTheEnd)
{
    PutFile("a", "12345");
    InputFile file("a");
    ByteVector piece(3);
    EXPECT_EQ(file.Size(), 5U);
    EXPECT_TRUE(file.Read(piece));
    EXPECT_EQ(piece, VectorOf("123"));
    EXPECT_FALSE(file.Read(piece));
}

TEST_F(FileBytesTest, WritesAllPartsAndLeavesNothingElseBehind)
{
    EXPECT_FALSE(WriteFile("a", {BytesOf("12"), BytesOf(""), BytesOf("345")}));
    EXPECT_EQ(GetFile("a"), "12345");
    EXPECT_FALSE(WriteFile("a", BytesOf("6")));
    EXPECT_EQ(GetFile("a"), "6") << "replaced, not overwritten from the front";
    EXPECT_EQ(TemporaryFolder::Names(), std::vector<std::string>{"a"});
}

TEST_F(FileBytesTest, FollowsSymbolicLinksAndKeepsThem)
{
    fs::create_directory("far");
    PutFile("far/target", "old");
    fs::create_symlink("far/target", "near");
    fs::create_symlink("near", "link");
    EXPECT_FALSE(WriteFile("link", BytesOf("new")));
    EXPECT_TRUE(fs::is_symlink("link"));
    EXPECT_TRUE(fs::is_symlink("near"));
    EXPECT_FALSE(fs::is_symlink("far/target"));
    EXPECT_EQ(GetFile("far/target"), "new");
}

TEST_F(FileBytesTest, CreatesTheTargetOfALinkThatPointsNowhere)
{
    fs::create_symlink("target", "link");
    EXPECT_FALSE(WriteFile("link", BytesOf("new")));
    EXPECT_TRUE(fs::is_symlink("link"));
    EXPECT_EQ(GetFile("target"), "new");
}

TEST_F(FileBytesTest, RefusesARingOfLinks)
{
    fs::create_symlink("b", "a");
    fs::create_symlink("a", "b");
    EXPECT_TRUE(WriteFile("a", BytesOf("new")));
    EXPECT_TRUE(fs::is_symlink("a"));
    EXPECT_TRUE(fs::is_symlink("b"));
}

TEST_F(FileBytesTest, KeepsTheModeOfTheOldFile)
{
    PutFile("a", "old");
    const auto mode = static_cast<fs::perms>(0640);
    fs::permissions("a", mode);
    EXPECT_FALSE(WriteFile("a", BytesOf("new")));
    EXPECT_EQ(fs::status("a").permissions(), mode);
}

TEST_F(FileBytesTest, GivesANewFileTheUsualMode)
{
    const mode_t before = umask(027);
    EXPECT_FALSE(WriteFile("a", BytesOf("new")));
    umask(before);
    EXPECT_EQ(fs::status("a").permissions(), static_cast<fs::perms>(0640));
}

TEST_F(FileBytesTest, RefusesAWriteProtectedTarget)
{
    PutFile("a", "old");
    fs::permissions("a", static_cast<fs::perms>(0444));
    fs::create_symlink("a", "link");
    EXPECT_EQ(WriteFile("a", BytesOf("new")), std::errc::permission_denied);
    EXPECT_EQ(WriteFile("link", BytesOf("new")), std::errc::permission_denied);
    EXPECT_EQ(GetFile("a"), "old");
    EXPECT_EQ(TemporaryFolder::Names(), (std::vector<std::string>{"a", "link"}));
}

TEST_F(FileBytesTest, RefusesWhatIsNoFile)
{
    fs::create_directory("folder");
    EXPECT_TRUE(WriteFile("folder", BytesOf("new")));
    EXPECT_TRUE(WriteFile("", BytesOf("new")));
    EXPECT_TRUE(WriteFile("no/such/folder", BytesOf("new")));
    EXPECT_TRUE(WriteFile(std::string("a\0b", 3), BytesOf("new")));
    EXPECT_TRUE(WriteFile("/dev/full", BytesOf("new")));
    EXPECT_EQ(TemporaryFolder::Names(), std::vector<std::string>{"folder"});
}

}  // namespace
}  // namespace base
