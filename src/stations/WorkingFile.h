// The working file: the station database on the disk. Its backup and every other database file
// (*.QTH) have the same form.
//
//   offset  bytes
//        0      4  0
//        4      4  number of records n, 32-bit signed
//        8      4  -1
//       12      4  -1
//       16      4  171294, the mark of a database file
//       20  290*n  records
//     then    290  spare record: end positions 0, 256 blanks, zeros

#pragma once

#include <string>
#include <system_error>

#include "stations/StationDatabase.h"

namespace stations {

inline constexpr const char* kBackupName = "WORK.BAK";

enum class DatabaseStatus {
    Complete,
    New,         // missing or without a single byte
    Foreign,     // not marked as a database file
    BadCount,    // the number of records is negative or above 25000
    CutShort,    // ends before its last record does
    Unreadable,  // exists, but cannot be read
};

// What a program may still find on the disk under the name of a file it is about to replace.
enum class OldBytes {
    Known,    // nothing that was not read whole or written by this run
    Unknown,  // possibly something else: it is set aside before it is replaced
};

struct DatabaseContents {
    DatabaseStatus status = DatabaseStatus::New;
    StationDatabase database;  // whole records only; those before the damage when cut short
    OldBytes oldBytes = OldBytes::Known;  // unknown unless every byte is accounted for
};

// Reads a database file. A missing spare record is accepted; bytes behind it are not read.
DatabaseContents ReadDatabase(const std::string& name);

// Replaces a file by the whole database, durably.
std::error_code WriteDatabase(const std::string& name, const StationDatabase& database);

// Writes the working file. Bytes that are not known are set aside first, and with them a backup
// that holds records; when that fails nothing is written. Success makes the bytes known.
std::error_code UpdateQTHFile(const std::string& name, const StationDatabase& database,
                              OldBytes& oldBytes);

// Writes the backup of the state found at start-up. An empty database does not replace a backup
// that holds records without setting it aside.
std::error_code WriteBackup(const StationDatabase& database);

}  // namespace stations
