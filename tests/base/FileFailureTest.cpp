// What a write does when the system refuses one of its steps. The program is linked so that its
// calls of write, fsync, close, rename and link come through the functions below.

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "base/FileBytes.h"
#include "base/FileNames.h"

namespace {

enum class Step { None, Write, Sync, Close, Rename, Link };

// The call that fails: the `countdown`-th one of `step`.
struct Fault {
    Step step = Step::None;
    int countdown = 0;
    int error = 0;
    std::size_t largestWrite = 0;  // a longer write is done in part; 0: no limit
};
Fault fault;

bool Fails(Step step)
{
    if (fault.step != step || --fault.countdown != 0) {
        return false;
    }
    errno = fault.error;
    return true;
}

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier, readability-identifier-naming): the linker's names
extern "C" {
ssize_t __real_write(int descriptor, const void* bytes, std::size_t size);
int __real_fsync(int descriptor);
int __real_close(int descriptor);
int __real_rename(const char* from, const char* to);
int __real_link(const char* from, const char* to);

ssize_t __wrap_write(int descriptor, const void* bytes, std::size_t size)
{
    if (Fails(Step::Write)) {
        return -1;
    }
    const bool cut = fault.largestWrite != 0 && size > fault.largestWrite;
    return __real_write(descriptor, bytes, cut ? fault.largestWrite : size);
}

int __wrap_fsync(int descriptor)
{
    return Fails(Step::Sync) ? -1 : __real_fsync(descriptor);
}

int __wrap_close(int descriptor)
{
    const int result = __real_close(descriptor);
    return Fails(Step::Close) ? -1 : result;
}

int __wrap_rename(const char* from, const char* to)
{
    return Fails(Step::Rename) ? -1 : __real_rename(from, to);
}

int __wrap_link(const char* from, const char* to)
{
    return Fails(Step::Link) ? -1 : __real_link(from, to);
}
}
// NOLINTEND(bugprone-reserved-identifier, readability-identifier-naming)

namespace base {
namespace {

ByteView BytesOf(std::string_view text)
{
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

class FileFailureTest : public testing::Test {
protected:
    FileFailureTest() { PutFile("a", "old"); }
    void TearDown() override { fault = {}; }

    static std::error_code WriteParts()
    {
        const std::error_code error = WriteFile("a", {BytesOf("123"), BytesOf("45678")});
        fault = {};
        return error;
    }

    TemporaryFolder folder;
};

TEST_F(FileFailureTest, KeepsTheOldFileWhole)
{
    const struct {
        const char* what;
        Step step;
        int countdown;
        int error;
    } cases[] = {
        {"first write, disk full", Step::Write, 1, ENOSPC},
        {"second write, disk full", Step::Write, 2, ENOSPC},
        {"write, quota", Step::Write, 2, EDQUOT},
        {"synchronisation", Step::Sync, 1, EIO},
        {"close", Step::Close, 1, EIO},
        {"rename", Step::Rename, 1, EACCES},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        fault = {.step = c.step, .countdown = c.countdown, .error = c.error, .largestWrite = 0};
        const std::error_code error = WriteParts();
        EXPECT_EQ(error.value(), c.error);
        EXPECT_EQ(GetFile("a"), "old");
        EXPECT_EQ(TemporaryFolder::Names(), std::vector<std::string>{"a"});
    }
}

TEST_F(FileFailureTest, ReportsAFolderThatIsNotSynchronised)
{
    fault = {.step = Step::Sync, .countdown = 2, .error = EIO, .largestWrite = 0};
    EXPECT_EQ(WriteParts().value(), EIO);
    EXPECT_EQ(GetFile("a"), "12345678") << "replaced, though perhaps not for good";
}

TEST_F(FileFailureTest, AcceptsAFileSystemWithoutSynchronisationOfFolders)
{
    fault = {.step = Step::Sync, .countdown = 2, .error = EINVAL, .largestWrite = 0};
    EXPECT_FALSE(WriteParts());
    EXPECT_EQ(GetFile("a"), "12345678");
}

TEST_F(FileFailureTest, GoesOnAfterAnInterruptedWrite)
{
    fault = {.step = Step::Write, .countdown = 2, .error = EINTR, .largestWrite = 2};
    EXPECT_FALSE(WriteParts());
    EXPECT_EQ(GetFile("a"), "12345678");
}

TEST_F(FileFailureTest, GoesOnAfterWritesDoneInPart)
{
    fault = {.step = Step::None, .countdown = 0, .error = 0, .largestWrite = 2};
    EXPECT_FALSE(WriteParts());
    EXPECT_EQ(GetFile("a"), "12345678");
}

TEST_F(FileFailureTest, SetsAsideByACopyWhereTheFileSystemHasNoLinks)
{
    fault = {.step = Step::Link, .countdown = 1, .error = EPERM};
    std::string copy;
    EXPECT_FALSE(SetAside("a", copy));
    EXPECT_EQ(GetFile("a"), "old") << "never vacant";
    EXPECT_EQ(GetFile("a.ALT"), "old");
}

TEST_F(FileFailureTest, KeepsTheOldFileWhereThereIsNoRoom)
{
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit tiny = before;
    tiny.rlim_cur = 4;
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &tiny), 0);
    const std::error_code error = WriteParts();
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, std::errc::file_too_large);
    EXPECT_EQ(GetFile("a"), "old");
    EXPECT_EQ(TemporaryFolder::Names(), std::vector<std::string>{"a"});
}

}  // namespace
}  // namespace base
