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
    Ignored,      // missing, empty or not a database file
    Damaged,      // a database file that does not hold the records it names
    Unreadable,   // exists, but cannot be read
    TooMany,      // the records would not fit
    NameTooLong,  // the configuration could not hold the name until the next start
};

// The database and what is known of the working file that keeps it.
struct KeptDatabase {
    StationDatabase& database;
    std::string& workingFile;  // name, as in the configuration
    base::OldBytes& oldBytes;
};

// How the configuration names a file: relative to the program directory, which is the current one,
// when it lies in it or below it, so that a folder which is moved as a whole finds it again. Else,
// and when its folder cannot be asked, as it stands.
std::string NameToKeep(const std::string& name);

// Makes `name` the working file and its records the database.
ExchangeResult Open(const std::string& name, KeptDatabase kept);

// Adds the records of a file behind those of the database. Refused when they would make 25000 or
// more together: one record earlier than saving a single one.
ExchangeResult AppendFile(const std::string& name, StationDatabase& database);

// Writes a database file of the records with the given indexes, which ascend and are below Count().
// No record at all makes a valid file, too. An error leaves the old file as it was.
std::error_code SaveMarked(const std::string& name, const StationDatabase& database,
                           std::span<const std::size_t> marked);

}  // namespace stations
