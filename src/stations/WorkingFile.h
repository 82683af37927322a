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

#include "base/OldBytes.h"
#include "stations/StationDatabase.h"

namespace stations {

inline constexpr const char* kBackupName = "WORK.BAK";

enum class DatabaseStatus {
    Complete,
    Missing,
    Empty,       // without a single byte
    Foreign,     // not marked as a database file
    BadCount,    // the number of records is negative or above 25000
    CutShort,    // ends before its last record does
    NoFolder,    // the folder it would lie in is not there: whether it exists is not known
    Unreadable,  // exists, but cannot be read
};

// What became of a write of the working file.
struct Written : base::Written {
    std::string backupKeptAs;  // where the bytes of its backup are now; empty likewise
};

struct DatabaseContents {
    DatabaseStatus status = DatabaseStatus::Missing;
    StationDatabase database;  // whole records only; those before the damage when cut short
    base::OldBytes oldBytes = base::OldBytes::Known;  // unknown unless every byte is accounted for
};

// Reads a database file. A missing spare record is accepted; bytes behind it are not read.
DatabaseContents ReadDatabase(const std::string& name);

// Replaces a file by the whole database, durably.
std::error_code WriteDatabase(const std::string& name, const StationDatabase& database);

// Writes the working file. Bytes that are not known are set aside first, and with them a backup
// that holds records; when either fails nothing is written. Success makes the bytes known.
Written UpdateQTHFile(const std::string& name, const StationDatabase& database,
                      base::OldBytes& oldBytes, const std::string& backupName = kBackupName);

// Writes the backup of the state found at start-up, read from a file whose old bytes are `source`.
// A backup that holds records, and other bytes than the new one, is set aside before an empty
// database or one from a file that was not accounted for to its last byte replaces it.
base::Written WriteBackup(const StationDatabase& database,
                          base::OldBytes source = base::OldBytes::Known,
                          const std::string& backupName = kBackupName);

}  // namespace stations
