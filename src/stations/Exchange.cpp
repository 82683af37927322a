#include "stations/Exchange.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/FileNames.h"
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

// What follows the part of `name` that is the current directory, by any path or link.
std::optional<std::string> BelowCurrentFolder(const std::string& name)
{
    for (std::size_t slash = name.rfind('/'); slash != std::string::npos && slash > 0;
         slash = name.rfind('/', slash - 1)) {
        if (base::SameFile(name.substr(0, slash), ".")) {
            return name.substr(std::min(name.find_first_not_of('/', slash), name.size()));
        }
    }
    return std::nullopt;
}

}  // namespace

std::string NameToKeep(const std::string& name)
{
    if (const std::optional<std::string> below = BelowCurrentFolder(name)) {
        return *below;
    }
    const std::filesystem::path path(name);
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::canonical(path.parent_path(), error);
    return error ? name : BelowCurrentFolder((folder / path.filename()).string()).value_or(name);
}

ExchangeResult Open(const std::string& name, KeptDatabase kept)
{
    DatabaseContents contents = ReadDatabase(name);
    const ExchangeResult result = ResultOf(contents.status);
    if (result != ExchangeResult::Done) {
        return result;
    }
    std::string nameToKeep = NameToKeep(name);
    if (!FitsConfiguration(nameToKeep)) {
        return ExchangeResult::NameTooLong;
    }
    kept.database = std::move(contents.database);
    kept.workingFile = std::move(nameToKeep);
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
