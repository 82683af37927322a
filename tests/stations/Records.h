// Records and databases for the tests.

#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

#include "geo/GeoPosition.h"
#include "stations/StationDatabase.h"
#include "stations/StationRecord.h"

namespace stations {

// Texts in the order of the fields, code-page bytes; missing ones are empty.
inline StationRecord MakeRecord(std::initializer_list<std::string_view> texts,
                                geo::GeoPosition position = {})
{
    StationRecord record = EmptyRecord();
    for (std::size_t k = 0; k < 8; ++k) {
        record.SetBytes(static_cast<Field>(k),
                        k < texts.size() ? texts.begin()[k] : std::string_view());
    }
    record.SetPosition(position);
    return record;
}

inline StationDatabase MakeDatabase(std::initializer_list<StationRecord> records)
{
    StationDatabase database;
    for (const StationRecord& record : records) {
        database.Append(record);
    }
    return database;
}

// `count` records with the callsigns "0", "1" ...
inline StationDatabase CountedDatabase(std::size_t count)
{
    StationDatabase database;
    for (std::size_t i = 0; i < count; ++i) {
        database.Append(MakeRecord({std::to_string(i)}));
    }
    return database;
}

// The callsigns in the order of the records, a blank behind each.
inline std::string Callsigns(const StationDatabase& database)
{
    std::string callsigns;
    for (const StationRecord& record : database.Records()) {
        callsigns += record.Text(Field::Callsign) + ' ';
    }
    return callsigns;
}

// The 290 bytes of a record.
inline std::string_view RawBytes(const StationRecord& record)
{
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

// A record of any 290 bytes.
inline StationRecord RecordOf(const std::array<char, sizeof(StationRecord)>& bytes)
{
    return reinterpret_cast<const StationRecord&>(bytes);
}

}  // namespace stations
