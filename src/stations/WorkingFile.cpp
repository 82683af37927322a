#include "stations/WorkingFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "base/FileBytes.h"
#include "base/FileNames.h"

namespace stations {

namespace {

using base::OldBytes;

constexpr std::int32_t kMagic = 171294;
// 0, number of records, -1, -1, mark.
using Header = std::array<std::int32_t, 5>;
constexpr std::uint64_t kHeaderSize = sizeof(Header);

// What stands in the file as it does in memory.
base::ByteView BytesOf(const auto& values)
{
    const auto bytes = std::as_bytes(std::span(values));
    return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

bool Read(base::InputFile& file, auto& values)
{
    const auto bytes = std::as_writable_bytes(std::span(values));
    return file.Read({reinterpret_cast<unsigned char*>(bytes.data()), bytes.size()});
}

DatabaseContents Without(DatabaseStatus status, OldBytes oldBytes = OldBytes::Unknown)
{
    return {.status = status, .database = {}, .oldBytes = oldBytes};
}

// Reads the `count` records that follow the header, as far as the file holds them.
DatabaseContents ReadRecords(base::InputFile& file, std::size_t count)
{
    const std::uint64_t held = (file.Size() - kHeaderSize) / sizeof(StationRecord);
    const auto whole = static_cast<std::size_t>(std::min<std::uint64_t>(count, held));
    std::vector<StationRecord> records(whole);
    if (!Read(file, records)) {
        return Without(DatabaseStatus::Unreadable);
    }
    const std::uint64_t end = kHeaderSize + (std::uint64_t{count} + 1) * sizeof(StationRecord);
    const bool cutShort = whole < count;
    const bool unknown = cutShort || file.Size() > end;
    return {.status = cutShort ? DatabaseStatus::CutShort : DatabaseStatus::Complete,
            .database = StationDatabase(std::move(records)),
            .oldBytes = unknown ? OldBytes::Unknown : OldBytes::Known};
}

// False only for what is certainly no loss: no file, or an empty database and nothing behind it.
bool MayHoldRecords(const std::string& name)
{
    const DatabaseContents contents = ReadDatabase(name);
    return !contents.database.Empty() || contents.oldBytes == OldBytes::Unknown;
}

bool Holds(const std::string& name, const StationDatabase& database)
{
    const DatabaseContents contents = ReadDatabase(name);
    return contents.status == DatabaseStatus::Complete && contents.oldBytes == OldBytes::Known
           && std::ranges::equal(contents.database.Records(), database.Records());
}

base::Written Replace(const std::string& name, const StationDatabase& database, OldBytes& oldBytes)
{
    const Header header = {0, static_cast<std::int32_t>(database.Count()), -1, -1, kMagic};
    const std::array spare = {EmptyRecord()};
    return base::ReplaceFile(name, {BytesOf(header), BytesOf(database.Records()), BytesOf(spare)},
                             oldBytes);
}

}  // namespace

DatabaseContents ReadDatabase(const std::string& name)
{
    base::InputFile file(name);
    switch (file.Status()) {
    case base::FileStatus::Missing: return Without(DatabaseStatus::Missing, OldBytes::Known);
    case base::FileStatus::NoFolder: return Without(DatabaseStatus::NoFolder);
    case base::FileStatus::Unreadable: return Without(DatabaseStatus::Unreadable);
    case base::FileStatus::Readable: break;
    }
    if (file.Size() == 0) {
        return Without(DatabaseStatus::Empty, OldBytes::Known);
    }
    if (file.Size() < kHeaderSize) {
        return Without(DatabaseStatus::Foreign);
    }
    Header header = {};
    if (!Read(file, header)) {
        return Without(DatabaseStatus::Unreadable);
    }
    if (header[4] != kMagic) {
        return Without(DatabaseStatus::Foreign);
    }
    const std::int32_t count = header[1];
    if (count < 0 || static_cast<std::size_t>(count) > kMaxRecords) {
        return Without(DatabaseStatus::BadCount);
    }
    return ReadRecords(file, static_cast<std::size_t>(count));
}

std::error_code WriteDatabase(const std::string& name, const StationDatabase& database)
{
    OldBytes known = OldBytes::Known;
    return Replace(name, database, known).error;
}

Written UpdateQTHFile(const std::string& name, const StationDatabase& database, OldBytes& oldBytes,
                      const std::string& backupName)
{
    Written written;
    if (oldBytes == OldBytes::Unknown && MayHoldRecords(backupName)) {
        written.error = base::SetAside(backupName, written.backupKeptAs);
    }
    if (!written.error) {
        static_cast<base::Written&>(written) = Replace(name, database, oldBytes);
    }
    return written;
}

base::Written WriteBackup(const StationDatabase& database, OldBytes source,
                          const std::string& backupName)
{
    const bool mayLose = (database.Empty() || source == OldBytes::Unknown)
                         && MayHoldRecords(backupName) && !Holds(backupName, database);
    OldBytes oldBytes = mayLose ? OldBytes::Unknown : OldBytes::Known;
    return Replace(backupName, database, oldBytes);
}

}  // namespace stations
