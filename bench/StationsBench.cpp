// The station database with 25000 records beside its peers: the standard sort, the quicksort
// written down plainly, bare system calls, the barest parser, gpsbabel.
//
// Works in a temporary folder; set TMPDIR to choose the file system.

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <random>
#include <span>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>
#include <utility>
#include <vector>

#include "SideBySide.h"
#include "TemporaryFolder.h"
#include "base/FileBytes.h"
#include "stations/CleanUp.h"
#include "stations/Listing.h"
#include "stations/PlainQuicksort.h"
#include "stations/Sorting.h"
#include "stations/TextImport.h"
#include "stations/WorkingFile.h"

namespace stations {
namespace {

using bench::Run;
using bench::Seconds;

constexpr geo::GeoPosition kStation1 = {.latitude = 48.3125, .longitude = 11.625};

void Require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "failed: %s\n", what);
        std::exit(EXIT_FAILURE);
    }
}

// Stations as a user has them: a callsign each, a few hundred names, some thousand places, every
// fiftieth entered twice.
StationDatabase Stations()
{
    std::mt19937 random(20060102);
    const auto below = [&random](unsigned limit) { return random() % limit; };
    const auto letter = [&below] { return static_cast<char>('A' + below(26)); };
    StationDatabase database;
    while (database.Count() < kMaxRecords) {
        if (database.Count() > 0 && below(50) == 0) {
            database.Append(database[below(static_cast<unsigned>(database.Count()))]);
            continue;
        }
        const std::string callsign = {'D',      letter(), static_cast<char>('0' + below(10)),
                                      letter(), letter(), letter()};
        const StationTexts texts = {
            .callsign = callsign,
            .name = "Name" + std::to_string(below(300)),
            .place = "Ort am See " + std::to_string(below(4000)),
            .frequency = "145." + std::to_string(200 + 25 * below(24)),
            .remark = below(4) == 0 ? "mobil" : "",
            .date = "2006.01.02-" + std::to_string(10 + below(14)) + ":00:00",
        };
        const geo::GeoPosition position = {
            .latitude = 47.0 + static_cast<double>(below(800000)) / 1e5,
            .longitude = 6.0 + static_cast<double>(below(900000)) / 1e5};
        database.Append(BuildRecord(texts, position, ""));
    }
    return database;
}

std::string Text(const StationRecord& record, Field field)
{
    return std::string(record.Bytes(field));
}

// The texts of both records, read as strings, one field after the other.
bool LessByTexts(const StationRecord& a, const StationRecord& b, std::span<const Field> fields)
{
    for (const Field field : fields) {
        const int order = Text(a, field).compare(Text(b, field));
        if (order != 0) {
            return order < 0;
        }
    }
    return false;
}

bool LessByCallsign(const StationRecord& a, const StationRecord& b)
{
    static constexpr std::array kFields = {Field::Callsign, Field::Name, Field::Place,
                                           Field::Frequency};
    return LessByTexts(a, b, kFields);
}

bool LessByLatitude(const StationRecord& a, const StationRecord& b)
{
    static constexpr std::array kFields = {Field::Callsign,  Field::Name,   Field::Place,
                                           Field::Frequency, Field::Remark, Field::Date};
    if (a.Latitude() != b.Latitude()) {
        return a.Latitude() < b.Latitude();
    }
    if (a.Longitude() != b.Longitude()) {
        return a.Longitude() < b.Longitude();
    }
    return LessByTexts(a, b, kFields);
}

struct KeyedRecord {
    StationRecord record;
    double keyValue;
};

double TimeSort(const StationDatabase& original, ListKey key)
{
    StationDatabase database = original;
    std::vector<double> keyValues = KeyValues(database, key, kStation1);
    return Seconds([&] { Sort(database, key, Order::Ascending, keyValues); });
}

double TimeStandardSort(const StationDatabase& original, ListKey key)
{
    if (HasKeyValues(key)) {
        const std::vector<double> keyValues = KeyValues(original, key, kStation1);
        std::vector<KeyedRecord> records;
        for (std::size_t i = 0; i < original.Count(); ++i) {
            records.push_back({original[i], keyValues[i]});
        }
        return Seconds([&] {
            std::sort(records.begin(), records.end(),
                      [](const auto& a, const auto& b) { return a.keyValue < b.keyValue; });
        });
    }
    std::vector<StationRecord> records(original.Records().begin(), original.Records().end());
    return Seconds([&] {
        if (key == ListKey::Callsign) {
            std::sort(records.begin(), records.end(), LessByCallsign);
        } else {
            std::sort(records.begin(), records.end(), LessByLatitude);
        }
    });
}

double TimePlainQuicksort(const StationDatabase& original, ListKey key)
{
    std::vector<StationRecord> records(original.Records().begin(), original.Records().end());
    std::vector<double> keyValues = KeyValues(original, key, kStation1);
    PlainQuicksort sort(records, static_cast<int>(key), false, keyValues);
    return Seconds([&] { sort.Sort(0, static_cast<long>(records.size()) - 1); });
}

void CompareSorting(const StationDatabase& database)
{
    const std::array<std::tuple<ListKey, const char*, double>, 3> keys = {{
        {ListKey::Callsign, "0", 0.38},
        {ListKey::Latitude, "4", 0.80},
        {ListKey::Distance, "7", 0.65},
    }};
    for (const auto& [key, name, atMost] : keys) {
        const auto ours = [&database, key = key] { return TimeSort(database, key); };
        Run({std::string("sort by key ") + name + " / std::sort over the records", atMost, ours,
             [&database, key = key] { return TimeStandardSort(database, key); }});
        Run({std::string("sort by key ") + name + " / the quicksort written down plainly", 0.35,
             ours, [&database, key = key] { return TimePlainQuicksort(database, key); }});
    }
    Run({"remove equal entries / sort by key 4", 1.2,
         [&database] {
             StationDatabase copy = database;
             return Seconds([&copy] { RemoveEqualEntries(copy, Order::Ascending); });
         },
         [&database] { return TimeSort(database, ListKey::Latitude); }});
}

void WriteBarely(const std::string& bytes)
{
    const int file = open("bare.tmp", O_WRONLY | O_CREAT | O_TRUNC, 0666);
    Require(write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
            "bare write");
    Require(fsync(file) == 0, "bare fsync");
    close(file);
    Require(std::rename("bare.tmp", "bare") == 0, "bare rename");
}

void CompareFiles(const StationDatabase& database)
{
    Require(!WriteDatabase("W.QTH", database), "write");
    const std::string bytes = GetFile("W.QTH");
    Run({"read the working file / one read into a fresh array", 1.15,
         [] {
             return Seconds(
                 [] { Require(ReadDatabase("W.QTH").status == DatabaseStatus::Complete, "read"); });
         },
         [&bytes] {
             return Seconds([&bytes] {
                 const auto array = std::make_unique_for_overwrite<unsigned char[]>(bytes.size());
                 const int file = open("W.QTH", O_RDONLY);
                 Require(read(file, array.get(), bytes.size())
                             == static_cast<ssize_t>(bytes.size()),
                         "bare read");
                 close(file);
             });
         },
         101});
    const auto ours = [&database] {
        return Seconds([&database] { Require(!WriteDatabase("W.QTH", database), "write"); });
    };
    constexpr int kRounds = 101;
    Run({"write the working file / write, fsync, rename", 1.10, ours,
         [&bytes] { return Seconds([&bytes] { WriteBarely(bytes); }); }, kRounds});
    Run({"write the working file / the same and fsync of the folder", 1.10, ours,
         [&bytes] {
             return Seconds([&bytes] {
                 WriteBarely(bytes);
                 const int folder = open(".", O_RDONLY | O_DIRECTORY);
                 Require(fsync(folder) == 0, "bare fsync of the folder");
                 close(folder);
             });
         },
         kRounds});
}

// The barest way from "latitude TAB longitude TAB text" to records.
std::vector<StationRecord> ParseBarely(const base::ByteVector& bytes, std::string_view date)
{
    std::vector<StationRecord> records;
    records.reserve(kMaxRecords);
    const char* at = reinterpret_cast<const char*>(bytes.data());
    const char* const end = at + bytes.size();
    while (at < end) {
        const auto* const newline =
            static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        const char* const lineEnd = newline == nullptr ? end : newline;
        double latitude = 0.0;
        double longitude = 0.0;
        const char* next = std::from_chars(at, lineEnd, latitude).ptr + 1;
        next = std::from_chars(next, lineEnd, longitude).ptr + 1;
        const auto* tab = static_cast<const char*>(
            std::memchr(next, '\t', static_cast<std::size_t>(lineEnd - next)));
        const std::string_view text(
            next, static_cast<std::size_t>((tab == nullptr ? lineEnd : tab) - next));
        StationRecord record = EmptyRecord();
        record.SetBytes(Field::Callsign, text);
        record.SetBytes(Field::Name, {});
        record.SetBytes(Field::Place, text);
        record.SetBytes(Field::Frequency, {});
        record.SetBytes(Field::Remark, {});
        record.SetBytes(Field::Date, date);
        record.SetBytes(Field::Reserved6, {});
        record.SetBytes(Field::Reserved7, {});
        record.SetPosition({.latitude = latitude, .longitude = longitude});
        records.push_back(record);
        at = lineEnd + 1;
    }
    return records;
}

constexpr std::string_view kDate = "2006.01.02-03:04:05";

double TimeImport(std::size_t count)
{
    return Seconds([count] {
        StationDatabase imported;
        ImportText(base::ReadFile("listing.txt").bytes, kDate, imported);
        Require(imported.Count() == count, "import");
    });
}

// Wall-clock seconds of a gpsbabel run.
double TimeGpsbabel(const char* input, const char* outputFormat)
{
    return Seconds([&] {
        std::array<std::string, 9> arguments = {
            "gpsbabel", "-i", "unicsv", "-f", input, "-o", outputFormat, "-F", "gpsbabel.out"};
        std::array<char*, 10> pointers = {};
        std::transform(arguments.begin(), arguments.end(), pointers.begin(),
                       [](std::string& argument) { return argument.data(); });
        pid_t child = 0;
        int status = -1;
        Require(posix_spawnp(&child, "gpsbabel", nullptr, nullptr, pointers.data(), environ) == 0,
                "start gpsbabel");
        waitpid(child, &status, 0);
        Require(status == 0, "gpsbabel");
    });
}

// Less its start-up: a run on an empty table.
double TimeGpsbabelWork(const char* outputFormat)
{
    return TimeGpsbabel("stations.csv", outputFormat) - TimeGpsbabel("none.csv", outputFormat);
}

void PutCsv(const StationDatabase& database)
{
    std::string csv = "Latitude,Longitude,Name,Description\n";
    PutFile("none.csv", csv);
    const base::NumberFormat format(".");
    for (const StationRecord& record : database.Records()) {
        csv += format(record.Latitude(), "#0.00000000") + ','
               + format(record.Longitude(), "#0.00000000") + ',' + Text(record, Field::Callsign)
               + ',' + Text(record, Field::Place) + '\n';
    }
    PutFile("stations.csv", csv);
}

void CompareText(const StationDatabase& database)
{
    const base::NumberFormat format(".");
    const auto listing = [&](ListingMode mode) {
        return ListingText(database.Records(), mode, geo::DegreeMinuteMode::Seconds, format);
    };
    PutFile("listing.txt", listing(ListingMode::Degrees));
    PutCsv(database);
    const std::size_t count = database.Count();
    const auto import = [count] { return TimeImport(count); };
    Run({"text import / the barest parser", 1.3, import,
         [count] {
             return Seconds([count] {
                 const auto records = ParseBarely(base::ReadFile("listing.txt").bytes, kDate);
                 Require(records.size() == count, "bare import");
             });
         },
         101});
    constexpr int kProcessRounds = 11;
    Run({"text import / gpsbabel unicsv to gpx", 0.03, import,
         [] { return TimeGpsbabelWork("gpx"); }, kProcessRounds});
    for (const auto& [mode, name] : {std::pair{ListingMode::DegreeMinutes, "G-M-S"},
                                     {ListingMode::Degrees, "Grad"},
                                     {ListingMode::Utm, "UTM"},
                                     {ListingMode::Locator, "Locator"}}) {
        Run({std::string("listing ") + name + ", written / gpsbabel unicsv to unicsv", 0.15,
             [&listing, mode = mode] {
                 return Seconds([&] {
                     const std::string text = listing(mode);
                     Require(!base::WriteFile("out.lst",
                                              {reinterpret_cast<const unsigned char*>(text.data()),
                                               text.size()}),
                             "write listing");
                 });
             },
             [] { return TimeGpsbabelWork("unicsv"); }, kProcessRounds});
    }
}

}  // namespace
}  // namespace stations

int main()
try {
    const TemporaryFolder folder;
    const stations::StationDatabase database = stations::Stations();
    std::printf("%-58s %12s %12s %7s\n", "with 25000 records", "ours", "peer", "ratio");
    stations::CompareSorting(database);
    stations::CompareFiles(database);
    stations::CompareText(database);
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}
