#include "base/FileNames.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/FileBytes.h"

namespace base {

namespace {

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

bool SameStatus(const struct stat& first, const struct stat& second)
{
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

std::string LastPart(const std::string& name)
{
    return name.substr(name.rfind('/') + 1);  // npos + 1 is 0
}

}  // namespace

bool MayWriteIn(const std::string& folder)
{
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

std::error_code SyncFolder(const std::string& folder)
{
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return LastError();
    }
    std::error_code error;
    // EINVAL: a file system without synchronisation of folders.
    if (fsync(descriptor) != 0 && errno != EINVAL) {
        error = LastError();
    }
    close(descriptor);
    return error;
}

bool SameFile(const std::string& first, const std::string& second)
{
    struct stat firstStatus = {};
    struct stat secondStatus = {};
    const bool firstExists = stat(first.c_str(), &firstStatus) == 0;
    const bool secondExists = stat(second.c_str(), &secondStatus) == 0;
    if (firstExists || secondExists) {
        return firstExists && secondExists && SameStatus(firstStatus, secondStatus);
    }
    const std::string firstTarget = FollowLinks(first);
    const std::string secondTarget = FollowLinks(second);
    return LastPart(firstTarget) == LastPart(secondTarget)
           && stat(FolderOf(firstTarget).c_str(), &firstStatus) == 0
           && stat(FolderOf(secondTarget).c_str(), &secondStatus) == 0
           && SameStatus(firstStatus, secondStatus);
}

std::error_code SetAside(const std::string& name, std::string& copy)
{
    copy.clear();
    const std::string target = FollowLinks(name);
    struct stat status = {};
    if (stat(target.c_str(), &status) != 0) {
        return errno == ENOENT ? std::error_code() : LastError();
    }
    if (!S_ISREG(status.st_mode)) {
        return std::make_error_code(std::errc::invalid_argument);
    }
    if (status.st_size == 0) {
        return {};
    }
    constexpr int kMostCopies = 10000;
    for (int number = 1; number <= kMostCopies; ++number) {
        const std::string next = target + ".ALT" + (number == 1 ? "" : std::to_string(number));
        struct stat other = {};
        if (lstat(next.c_str(), &other) == 0) {
            if (SameStatus(status, other)) {
                copy = next;
                return {};
            }
            continue;
        }
        copy = next;
        // A second name keeps the bytes without reading them: files are replaced, never
        // overwritten.
        if (link(target.c_str(), next.c_str()) == 0) {
            return SyncFolder(FolderOf(target));
        }
        // A file system without second names: copied, so that the old name is never vacant.
        const FileContents old = ReadFile(target);
        return old.status == FileStatus::Readable ? WriteFile(next, old.bytes)
                                                  : std::make_error_code(std::errc::io_error);
    }
    return std::make_error_code(std::errc::file_exists);
}

}  // namespace base
