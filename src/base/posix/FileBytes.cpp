#include "base/FileBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/FileNames.h"

namespace base {

namespace {

// One call of read or write moves at most this much; the system's own limit is just above 2 GB.
constexpr std::size_t kLargestTransfer = std::size_t{1} << 30U;

std::error_code LastError()
{
    return {errno, std::generic_category()};
}

std::error_code WriteAll(int descriptor, ByteView bytes)
{
    while (!bytes.empty()) {
        const ssize_t written =
            write(descriptor, bytes.data(), std::min(bytes.size(), kLargestTransfer));
        if (written > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        } else if (written == 0) {
            return std::make_error_code(std::errc::io_error);
        } else if (errno != EINTR) {
            return LastError();
        }
    }
    return {};
}

// The old file, as far as the new one takes after it.
struct OldFile {
    bool exists = false;
    struct stat status = {};
    std::error_code refusal;  // why it must not be replaced
};

OldFile Inspect(const std::string& target)
{
    OldFile old;
    old.exists = stat(target.c_str(), &old.status) == 0;
    if (!old.exists) {
        if (errno != ENOENT) {
            old.refusal = LastError();
        }
        return old;
    }
    // The superuser may write everywhere, but a write protection is meant for everybody.
    const bool isProtected = (old.status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    if (!S_ISREG(old.status.st_mode)) {
        old.refusal = std::make_error_code(std::errc::invalid_argument);
    } else if (isProtected || access(target.c_str(), W_OK) != 0) {
        old.refusal = std::make_error_code(std::errc::permission_denied);
    }
    return old;
}

// A new file of its own in `folder`, removed again unless it was renamed.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& folder)
    {
        constexpr int kAttempts = 100;
        const std::string stem = folder + "/.kompasso-" + std::to_string(getpid()) + '-';
        for (int attempt = 0; attempt < kAttempts && descriptor_ < 0; ++attempt) {
            name_ = stem + std::to_string(attempt) + ".tmp";
            descriptor_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor_ < 0 && errno != EEXIST) {
                break;
            }
        }
        if (descriptor_ < 0) {
            error_ = LastError();
        }
    }

    ~TemporaryFile()
    {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
        if (!error_ && !renamed_) {
            unlink(name_.c_str());
        }
    }

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    // Why there is no such file.
    std::error_code Error() const { return error_; }

    std::error_code Fill(const OldFile& old, std::initializer_list<ByteView> parts)
    {
        if (old.exists && !TakeAfter(old.status)) {
            return LastError();
        }
        for (const ByteView part : parts) {
            if (const std::error_code error = WriteAll(descriptor_, part)) {
                return error;
            }
        }
        return fsync(descriptor_) == 0 ? std::error_code() : LastError();
    }

    std::error_code RenameTo(const std::string& target)
    {
        // Some network file systems report a failed write only here.
        const int descriptor = descriptor_;
        descriptor_ = -1;
        if (close(descriptor) != 0 || std::rename(name_.c_str(), target.c_str()) != 0) {
            return LastError();
        }
        renamed_ = true;
        return {};
    }

private:
    bool TakeAfter(const struct stat& old) const
    {
        // Without the right to give a file away it stays the user's own, which is no failure. The
        // owner comes first because changing it may clear mode bits.
        [[maybe_unused]] const int given = fchown(descriptor_, old.st_uid, old.st_gid);
        return fchmod(descriptor_, old.st_mode & 07777U) == 0;
    }

    std::string name_;
    int descriptor_ = -1;
    std::error_code error_;
    bool renamed_ = false;
};

}  // namespace

InputFile::InputFile(const std::string& name)
{
    if (name.find('\0') != std::string::npos) {
        status_ = FileStatus::Unreadable;
        return;
    }
    descriptor_ = open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor_ < 0) {
        status_ = errno != ENOENT                             ? FileStatus::Unreadable
                  : FolderExists(FolderOf(FollowLinks(name))) ? FileStatus::Missing
                                                              : FileStatus::NoFolder;
        return;
    }
    struct stat status = {};
    if (fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode)) {
        status_ = FileStatus::Unreadable;
        return;
    }
    status_ = FileStatus::Readable;
    size_ = static_cast<std::uint64_t>(status.st_size);
}

InputFile::~InputFile()
{
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

bool InputFile::Read(std::span<unsigned char> target)
{
    if (status_ != FileStatus::Readable) {
        return false;
    }
    while (!target.empty()) {
        const ssize_t count =
            read(descriptor_, target.data(), std::min(target.size(), kLargestTransfer));
        if (count > 0) {
            target = target.subspan(static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            return false;
        }
    }
    return true;
}

std::error_code WriteFile(const std::string& name, std::initializer_list<ByteView> parts)
{
    if (name.empty() || name.find('\0') != std::string::npos) {
        return std::make_error_code(std::errc::invalid_argument);
    }
    const std::string target = FollowLinks(name);
    const OldFile old = Inspect(target);
    if (old.refusal) {
        return old.refusal;
    }
    const std::string folder = FolderOf(target);
    TemporaryFile temporary(folder);
    if (temporary.Error()) {
        return temporary.Error();
    }
    if (const std::error_code error = temporary.Fill(old, parts)) {
        return error;
    }
    if (const std::error_code error = temporary.RenameTo(target)) {
        return error;
    }
    return SyncFolder(folder);
}

}  // namespace base
