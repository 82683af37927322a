// Moving records between the database and other database files.

#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <system_error>

#include "stations/StationDatabase.h"
#include "stations/WorkingFile.h"

namespace stations {

// Everything but Done leaves the database as it was.
enum class ExchangeResult {
    Done,
    Ignored,      // missing, empty or not a database file: ends without a message
    Damaged,      // a database file that does not hold the records it names
    Unreadable,   // exists, but cannot be read
    TooMany,      // the records would not fit
    NameTooLong,  // the configuration could not hold the name until the next start
};

// The database and what is known of the working file that keeps it.
struct KeptDatabase {
    StationDatabase& database;
    std::string& workingFile;  // name, as in the configuration
    OldBytes& oldBytes;
};

// Makes `name` the working file and its records the database.
ExchangeResult Open(const std::string& name, KeptDatabase kept);

// Adds the records of a file behind those of the database. Refused when they would make 25000 or
// more together: one record earlier than saving a single one.
ExchangeResult AppendFile(const std::string& name, StationDatabase& database);

// Writes a database file of the records with the given indexes, which ascend and are below Count().
// No record at all makes a valid file, too.
std::error_code SaveMarked(const std::string& name, const StationDatabase& database,
                           std::span<const std::size_t> marked);

}  // namespace stations
