#include "stations/WorkingFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

#include "base/Bytes.h"
#include "base/FileBytes.h"
#include "base/FileNames.h"

namespace stations {

namespace {

using base::OldBytes;

constexpr std::int32_t kMagic = 171294;
constexpr std::size_t kHeaderSize = 20;

base::ByteView BytesOf(std::span<const StationRecord> records)
{
    return {reinterpret_cast<const unsigned char*>(records.data()), records.size_bytes()};
}

std::span<unsigned char> BytesOf(std::span<StationRecord> records)
{
    return {reinterpret_cast<unsigned char*>(records.data()), records.size_bytes()};
}

base::ByteVector PackHeader(std::size_t count)
{
    base::ByteWriter writer;
    writer.Put<std::int32_t>(0);
    writer.Put(static_cast<std::int32_t>(count));
    writer.Put<std::int32_t>(-1);
    writer.Put<std::int32_t>(-1);
    writer.Put(kMagic);
    return writer.Take();
}

struct Header {
    std::int32_t count = 0;
    std::int32_t magic = 0;
};

Header UnpackHeader(base::ByteView bytes)
{
    Header header;
    base::ByteReader reader(bytes);
    reader.Skip(sizeof(std::int32_t));
    reader.Get(header.count);
    reader.Skip(2 * sizeof(std::int32_t));
    reader.Get(header.magic);
    return header;
}

// Reads the `count` records that follow the header, as far as the file holds them.
DatabaseContents ReadRecords(base::InputFile& file, std::size_t count)
{
    DatabaseContents contents;
    const std::uint64_t held = (file.Size() - kHeaderSize) / sizeof(StationRecord);
    const auto whole = static_cast<std::size_t>(std::min<std::uint64_t>(count, held));
    if (!file.Read(BytesOf(contents.database.Extend(whole)))) {
        contents.database.Truncate(0);
        contents.status = DatabaseStatus::Unreadable;
        contents.oldBytes = OldBytes::Unknown;
        return contents;
    }
    const std::uint64_t end = kHeaderSize + (std::uint64_t{count} + 1) * sizeof(StationRecord);
    const bool cutShort = whole < count;
    contents.status = cutShort ? DatabaseStatus::CutShort : DatabaseStatus::Complete;
    contents.oldBytes = cutShort || file.Size() > end ? OldBytes::Unknown : OldBytes::Known;
    return contents;
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
    const base::ByteVector header = PackHeader(database.Count());
    const std::array spare = {EmptyRecord()};
    return base::ReplaceFile(
        name, {header, BytesOf(database.Records()), BytesOf(std::span<const StationRecord>(spare))},
        oldBytes);
}

}  // namespace

DatabaseContents ReadDatabase(const std::string& name)
{
    base::InputFile file(name);
    const bool readable = file.Status() == base::FileStatus::Readable;
    DatabaseContents contents;
    if (file.Status() == base::FileStatus::Missing || (readable && file.Size() == 0)) {
        contents.status = readable ? DatabaseStatus::Empty : DatabaseStatus::Missing;
        return contents;
    }
    contents.oldBytes = OldBytes::Unknown;
    if (file.Status() == base::FileStatus::NoFolder) {
        contents.status = DatabaseStatus::NoFolder;
        return contents;
    }
    if (readable && file.Size() < kHeaderSize) {
        contents.status = DatabaseStatus::Foreign;
        return contents;
    }
    std::array<unsigned char, kHeaderSize> bytes = {};
    if (!file.Read(bytes)) {
        contents.status = DatabaseStatus::Unreadable;
        return contents;
    }
    const Header header = UnpackHeader(bytes);
    if (header.magic != kMagic) {
        contents.status = DatabaseStatus::Foreign;
        return contents;
    }
    if (header.count < 0 || static_cast<std::size_t>(header.count) > kMaxRecords) {
        contents.status = DatabaseStatus::BadCount;
        return contents;
    }
    return ReadRecords(file, static_cast<std::size_t>(header.count));
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
