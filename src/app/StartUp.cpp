#include "app/StartUp.h"

#include <exception>
#include <string_view>
#include <utility>

#include "app/DefaultStations.h"
#include "base/CodePage.h"
#include "base/FileNames.h"

namespace app {

namespace {

using base::OldBytes;
using base::Written;
using stations::ConfigurationStatus;
using stations::DatabaseStatus;
using Fault = SetupFault::Kind;
using Notice = StartNotice::Kind;

// The name of a file in the current directory as it is spelt there; `name` when there is none.
std::string SpellingFound(const std::string& name)
{
    return base::NameExists(name) ? name : base::FindWithoutCase(".", name).value_or(name);
}

std::string LastName(const std::string& name, std::string_view separators)
{
    return name.substr(name.find_last_of(separators) + 1);  // npos + 1 is 0
}

// The steps of the start, one after the other, and what there is to say about them.
class Loader {
public:
    explicit Loader(AppState& state) : state_(state), session_(state.session) {}

    StartReport Run()
    {
        // Until they have been read, nobody knows what the two files hold.
        session_.configurationBytes = OldBytes::Unknown;
        session_.workingFileBytes = OldBytes::Unknown;
        try {
            LoadConfiguration();
            if (!report_.fault) {
                LoadDatabase();
            }
            if (!report_.fault) {
                WriteBackup();
            }
        } catch (const std::exception&) {  // out of memory
            Break(Fault::NoMemory, state_.configuration.workingFile);
        }
        return std::move(report_);
    }

private:
    void LoadConfiguration()
    {
        session_.configurationName = SpellingFound(stations::kConfigurationName);
        session_.backupName = SpellingFound(stations::kBackupName);
        const std::string& name = session_.configurationName;
        stations::ConfigurationContents contents = stations::ReadConfiguration(name);
        state_.configuration = std::move(contents.configuration);
        session_.configurationBytes = contents.oldBytes;
        configured_ = contents.status != ConfigurationStatus::New;
        switch (contents.status) {
        case ConfigurationStatus::Read:
            if (name != stations::kConfigurationName) {
                Note(Notice::ConfigurationFound, stations::kConfigurationName, name);
            }
            return;
        case ConfigurationStatus::New:
        case ConfigurationStatus::Foreign: NewConfiguration(); return;
        case ConfigurationStatus::NoFolder: Break(Fault::NoFolder, name); return;
        case ConfigurationStatus::Unreadable: Break(Fault::Unreadable, name); return;
        }
    }

    void NewConfiguration()
    {
        const std::string& name = session_.configurationName;
        const Written written =
            stations::WriteConfiguration(name, state_.configuration, session_.configurationBytes);
        if (!NoteFailure(written, name, session_.configurationBytes) && !written.keptAs.empty()) {
            Note(Notice::ForeignConfiguration, name, {}, written.keptAs);
        }
    }

    // Settles which file the configuration means, see LoadAtStartUp.
    void FindWorkingFile()
    {
        const std::string stored = state_.configuration.workingFile;
        const bool ownPath =
            stored.find('\\') == std::string::npos && stored.find('/') != std::string::npos;
        const std::string last = LastName(stored, "/\\");
        if (last.empty() || ownPath || base::NameExists(stored)) {
            return;
        }
        const std::optional<std::string> found = base::FindWithoutCase(".", last);
        std::string name = found ? *found : base::IsUtf8(last) ? last : base::FromCodePage(last);
        if (name == stored || !stations::FitsConfiguration(name)) {
            return;
        }
        state_.configuration.workingFile = std::move(name);
        storedName_ = stored;
        if (found) {
            Note(Notice::WorkingFileFound, stored, *found);
        }
    }

    void LoadDatabase()
    {
        FindWorkingFile();
        const std::string& name = state_.configuration.workingFile;
        if (name.empty()) {
            Break(Fault::NoName, session_.configurationName);
            return;
        }
        stations::DatabaseContents contents = stations::ReadDatabase(name);
        state_.database = std::move(contents.database);
        session_.workingFileBytes = contents.oldBytes;
        switch (contents.status) {
        case DatabaseStatus::Complete:
            if (contents.oldBytes == OldBytes::Unknown) {
                Note(Notice::BytesBehindRecords, name);
            }
            return;
        case DatabaseStatus::Missing: NewWorkingFile(Notice::NewWorkingFile); return;
        case DatabaseStatus::Empty: NewWorkingFile(Notice::EmptyWorkingFile); return;
        case DatabaseStatus::Foreign: NewWorkingFile(Notice::ForeignWorkingFile); return;
        case DatabaseStatus::NoFolder: Break(Fault::NoFolder, name); return;
        case DatabaseStatus::BadCount: Break(Fault::BadCount, name); return;
        case DatabaseStatus::CutShort: Break(Fault::CutShort, name); return;
        case DatabaseStatus::Unreadable: Break(Fault::Unreadable, name); return;
        }
    }

    void NewWorkingFile(Notice kind)
    {
        const std::string& name = state_.configuration.workingFile;
        const stations::Written written = stations::UpdateQTHFile(
            name, state_.database, session_.workingFileBytes, session_.backupName);
        // Nothing is missing in a folder that the program has not been in before.
        if (NoteFailure(written, name, session_.workingFileBytes)
            || (kind == Notice::NewWorkingFile && !configured_)) {
            return;
        }
        Note(kind, name, storedName_, written.keptAs);
    }

    void WriteBackup()
    {
        OldBytes ignored = OldBytes::Known;
        const Written written =
            stations::WriteBackup(state_.database, session_.workingFileBytes, session_.backupName);
        if (!NoteFailure(written, session_.backupName, ignored) && !written.keptAs.empty()) {
            Note(Notice::BackupReplaced, session_.backupName, {}, written.keptAs);
        }
    }

    // True for a failed write, after which nobody knows what stands under that name.
    bool NoteFailure(const Written& written, const std::string& file, OldBytes& oldBytes)
    {
        if (written.error) {
            report_.failedWrites.push_back(file);
            oldBytes = OldBytes::Unknown;
        }
        return static_cast<bool>(written.error);
    }

    void Break(Fault kind, const std::string& file)
    {
        SetupFault fault = {.kind = kind, .file = file, .sameNameHere = {}};
        if (kind == Fault::NoFolder) {
            const std::string last = LastName(file, "/");
            fault.sameNameHere = base::FindWithoutCase(".", last).value_or("");
        }
        report_.fault = std::move(fault);
    }

    void Note(Notice kind, const std::string& file, const std::string& other = {},
              const std::string& keptAs = {})
    {
        report_.notices.push_back({.kind = kind, .file = file, .other = other, .keptAs = keptAs});
    }

    AppState& state_;
    SessionState& session_;
    StartReport report_;
    bool configured_ = false;  // there was a configuration, whatever it held
    std::string storedName_;   // of the working file, when another is used in its place
};

}  // namespace

StartReport LoadAtStartUp(AppState& state)
{
    return Loader(state).Run();
}

StartStation StationAtStartUp(const stations::Configuration& configuration, int station)
{
    const bool first = station == 0;
    if ((first ? configuration.station1Index : configuration.station2Index) >= 0) {
        const stations::StationRecord& stored =
            first ? configuration.station1 : configuration.station2;
        return {.texts = stations::TextsOf(stored), .position = stored.Position()};
    }
    const BuiltInStation& builtIn = kDefaultStations[first ? 0 : 1];
    return {.texts = {.callsign = builtIn.callsign,
                      .name = builtIn.name,
                      .place = builtIn.place,
                      .frequency = {},
                      .remark = {},
                      .date = {}},
            .position = builtIn.position};
}

}  // namespace app
