#include "stations/Exchange.h"

#include <utility>

#include "stations/Configuration.h"

namespace stations {

namespace {

ExchangeResult ResultOf(DatabaseStatus status)
{
    switch (status) {
    case DatabaseStatus::Complete: return ExchangeResult::Done;
    case DatabaseStatus::Missing:
    case DatabaseStatus::Empty:
    case DatabaseStatus::NoFolder:
    case DatabaseStatus::Foreign: return ExchangeResult::Ignored;
    case DatabaseStatus::BadCount:
    case DatabaseStatus::CutShort: return ExchangeResult::Damaged;
    case DatabaseStatus::Unreadable: break;
    }
    return ExchangeResult::Unreadable;
}

}  // namespace

ExchangeResult Open(const std::string& name, KeptDatabase kept)
{
    DatabaseContents contents = ReadDatabase(name);
    const ExchangeResult result = ResultOf(contents.status);
    if (result != ExchangeResult::Done) {
        return result;
    }
    if (!FitsConfiguration(name)) {
        return ExchangeResult::NameTooLong;
    }
    kept.database = std::move(contents.database);
    kept.workingFile = name;
    kept.oldBytes = contents.oldBytes;
    return ExchangeResult::Done;
}

ExchangeResult AppendFile(const std::string& name, StationDatabase& database)
{
    const DatabaseContents contents = ReadDatabase(name);
    const ExchangeResult result = ResultOf(contents.status);
    if (result != ExchangeResult::Done) {
        return result;
    }
    if (database.Count() + contents.database.Count() >= kMaxRecords) {
        return ExchangeResult::TooMany;
    }
    database.Append(contents.database);
    return ExchangeResult::Done;
}

std::error_code SaveMarked(const std::string& name, const StationDatabase& database,
                           std::span<const std::size_t> marked)
{
    StationDatabase selection;
    selection.Reserve(marked.size());
    for (const std::size_t index : marked) {
        selection.Append(database[index]);
    }
    return WriteDatabase(name, selection);
}

}  // namespace stations
