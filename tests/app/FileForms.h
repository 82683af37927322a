// The bytes of the program's files as they must lie on the disk, put together by hand.

#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "stations/StationRecord.h"

namespace app {

// `bytes` bytes of a whole number, the lowest first.
inline std::string LittleEndian(std::int64_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i) & 0xFFU);
    }
    return text;
}

inline constexpr std::int32_t kDatabaseMark = 171294;

inline std::string DatabaseHeader(std::int32_t count, std::int32_t mark = kDatabaseMark)
{
    return LittleEndian(0, 4) + LittleEndian(count, 4) + LittleEndian(-1, 4) + LittleEndian(-1, 4)
           + LittleEndian(mark, 4);
}

inline std::string SpareRecord()
{
    return std::string(10, '\0') + std::string(256, ' ') + std::string(24, '\0');
}

inline std::string RecordBytes(const stations::StationRecord& record)
{
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

inline std::string DatabaseFile(std::initializer_list<stations::StationRecord> records)
{
    std::string bytes = DatabaseHeader(static_cast<std::int32_t>(records.size()));
    for (const stations::StationRecord& record : records) {
        bytes += RecordBytes(record);
    }
    return bytes + SpareRecord();
}

// What differs from the defaults.
struct ConfigurationForm {
    std::int32_t station1Index = -1;
    std::int32_t station2Index = -1;
    std::int32_t mark = 150758;
    std::string workingFile = "WORK.QTH";
    std::string station1 = std::string(sizeof(stations::StationRecord), '\0');
    std::string station2 = std::string(sizeof(stations::StationRecord), '\0');
};

inline std::string ConfigurationFile(const ConfigurationForm& form = {})
{
    constexpr std::size_t kNameLength = 512;
    std::string bytes = LittleEndian(1, 2) + LittleEndian(form.station1Index, 4)
                        + LittleEndian(form.station2Index, 4);
    bytes += std::string("\x01\x01", 2) + std::string(20, '\0');  // G-M-H, ED50
    for (const int field : {14, 0, 0, 0, 0, -1, 0, -1, -1, -1}) {
        bytes += LittleEndian(field, 2);
    }
    bytes += form.workingFile + std::string(kNameLength - form.workingFile.size(), ' ');
    bytes += std::string(2 * kNameLength, ' ');
    return bytes + LittleEndian(form.mark, 4) + form.station1 + form.station2;
}

}  // namespace app
