// From the start of the process to the first paint of its window: the program with an empty
// database and with 25000 records, beside an empty main window. Run by scripts/bench.sh,
// which brings the screen and the plugin that ends each process.
//
// start_bench PROGRAM EMPTY_WINDOW

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <string>
#include <sys/wait.h>

#include "SideBySide.h"
#include "TemporaryFolder.h"
#include "stations/WorkingFile.h"

namespace {

double SecondsOf(const std::string& program, const std::string& dataFolder)
{
    setenv("XDG_DATA_HOME", dataFolder.c_str(), 1);
    char* const arguments[] = {const_cast<char*>(program.c_str()), nullptr};
    int status = 0;
    const double seconds = bench::Seconds([&] {
        pid_t process = 0;
        if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0
            || waitpid(process, &status, 0) != process) {
            status = -1;
        }
    });
    if (status != 0) {
        std::fprintf(stderr, "%s failed\n", program.c_str());
        std::exit(EXIT_FAILURE);
    }
    return seconds;
}

void FillWorkingFile(const std::string& dataFolder)
{
    stations::StationDatabase database;
    const stations::StationRecord record =
        stations::BuildRecord({.callsign = "QQ1A",
                               .name = "Name",
                               .place = "Ort",
                               .frequency = {},
                               .remark = {},
                               .date = {}},
                              {.latitude = 48.0, .longitude = 11.0}, "2001.01.01-00:00:00");
    while (database.Append(record)) {
    }
    std::filesystem::create_directories(dataFolder + "/Kompasso");
    if (stations::WriteDatabase(dataFolder + "/Kompasso/WORK.QTH", database)) {
        std::exit(EXIT_FAILURE);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "start_bench PROGRAM EMPTY_WINDOW\n");
        return EXIT_FAILURE;
    }
    const std::string program = argv[1];
    const std::string emptyWindow = argv[2];
    const TemporaryFolder folder;
    const std::string empty = (folder.Path() / "empty").string();
    const std::string full = (folder.Path() / "full").string();
    FillWorkingFile(full);
    constexpr int kRounds = 21;
    const auto peer = [&] { return SecondsOf(emptyWindow, empty); };
    std::printf("%-58s %12s %12s %7s\n", "start to first paint", "Kompasso", "empty", "ratio");
    bench::Run({"empty database", 1.65, [&] { return SecondsOf(program, empty); }, peer, kRounds});
    bench::Run({"25000 records", 2.3, [&] { return SecondsOf(program, full); }, peer, kRounds});
    return EXIT_SUCCESS;
}
