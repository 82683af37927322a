#include "stations/WorkingFile.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "stations/Records.h"

namespace stations {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

const std::string kMagic("\x1E\x9D\x02\x00", 4);
const std::string kSpare = std::string(10, '\0') + std::string(256, ' ') + std::string(24, '\0');

std::string HeaderOf(std::string_view count, std::string_view magic = kMagic)
{
    return std::string(4, '\0') + std::string(count) + std::string(8, '\xFF') + std::string(magic);
}

const std::string kNoRecords(4, '\0');
const std::string kTwoRecords("\x02\x00\x00\x00", 4);

// A record that uses everything the program itself leaves empty.
std::string ForeignRecord()
{
    std::string bytes = "\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C";
    bytes += "ABCDEFGHIJKL" + std::string(244, '\xE4');
    bytes += std::string("\x00\x00\x00\x00\x00\x40\x27\x40", 8);
    bytes += std::string("\x00\x00\x00\x00\x00\x28\x48\x40", 8);
    bytes += "reserved";
    return bytes;
}

class WorkingFileTest : public testing::Test {
protected:
    TemporaryFolder folder;
};

TEST_F(WorkingFileTest, WritesAnEmptyDatabaseInto310Bytes)
{
    EXPECT_FALSE(WriteDatabase("W.QTH", StationDatabase()));
    EXPECT_EQ(GetFile("W.QTH"), HeaderOf(kNoRecords) + kSpare);
    EXPECT_EQ(GetFile("W.QTH").size(), 310U);
}

TEST_F(WorkingFileTest, WritesHeaderRecordsAndSpare)
{
    const StationDatabase database = MakeDatabase(
        {MakeRecord({"A"}, {.latitude = 48.3125, .longitude = 11.625}), MakeRecord({"B"})});
    EXPECT_FALSE(WriteDatabase("W.QTH", database));
    const std::string ends = {2, 2, 2, 2, 2, 2, 2, 2, 0, 0};
    EXPECT_EQ(GetFile("W.QTH"),
              HeaderOf(kTwoRecords)                                             //
                  + ends + 'A' + std::string(255, ' ')                          //
                  + std::string("\x00\x00\x00\x00\x00\x40\x27\x40", 8)          // longitude
                  + std::string("\x00\x00\x00\x00\x00\x28\x48\x40", 8)          // latitude
                  + std::string(8, '\0')                                        //
                  + ends + 'B' + std::string(255, ' ') + std::string(24, '\0')  //
                  + kSpare);
}

TEST_F(WorkingFileTest, KeepsEveryByteOfARecord)
{
    const std::string file = HeaderOf(kTwoRecords) + ForeignRecord() + ForeignRecord() + kSpare;
    PutFile("W.QTH", file);
    const DatabaseContents contents = ReadDatabase("W.QTH");
    ASSERT_EQ(contents.status, DatabaseStatus::Complete);
    EXPECT_EQ(contents.database[1].Bytes(Field::Reserved7), "I");
    EXPECT_FALSE(WriteDatabase("W.QTH", contents.database));
    EXPECT_EQ(GetFile("W.QTH"), file);
}

TEST_F(WorkingFileTest, WritesHeaderAndSpareAfresh)
{
    std::string file = HeaderOf(kNoRecords);
    file.replace(0, 4, "abcd");
    file.replace(8, 8, "efghijkl");
    PutFile("W.QTH", file + ForeignRecord());
    const DatabaseContents contents = ReadDatabase("W.QTH");
    EXPECT_EQ(contents.status, DatabaseStatus::Complete);
    EXPECT_EQ(contents.oldBytes, base::OldBytes::Known);
    EXPECT_FALSE(WriteDatabase("W.QTH", contents.database));
    EXPECT_EQ(GetFile("W.QTH"), HeaderOf(kNoRecords) + kSpare);
}

TEST_F(WorkingFileTest, TellsWhatIsWrongWithAFile)
{
    const std::string two = ForeignRecord() + ForeignRecord();
    const struct {
        const char* what;
        std::string file;
        std::size_t records;
        DatabaseStatus status;
        base::OldBytes oldBytes;
    } cases[] = {
        {"whole", HeaderOf(kTwoRecords) + two + kSpare, 2, DatabaseStatus::Complete,
         base::OldBytes::Known},
        {"no spare", HeaderOf(kTwoRecords) + two, 2, DatabaseStatus::Complete,
         base::OldBytes::Known},
        {"half a spare", HeaderOf(kTwoRecords) + two + "half", 2, DatabaseStatus::Complete,
         base::OldBytes::Known},
        {"bytes behind the spare", HeaderOf(kTwoRecords) + two + kSpare + 'x', 2,
         DatabaseStatus::Complete, base::OldBytes::Unknown},
        {"no byte at all", "", 0, DatabaseStatus::Empty, base::OldBytes::Known},
        {"half a header", HeaderOf(kTwoRecords).substr(0, 19), 0, DatabaseStatus::Foreign,
         base::OldBytes::Unknown},
        {"foreign mark", HeaderOf(kTwoRecords, "MARK") + two, 0, DatabaseStatus::Foreign,
         base::OldBytes::Unknown},
        {"header alone", HeaderOf(kTwoRecords), 0, DatabaseStatus::CutShort,
         base::OldBytes::Unknown},
        {"ends in the second record", HeaderOf(kTwoRecords) + two.substr(0, 579), 1,
         DatabaseStatus::CutShort, base::OldBytes::Unknown},
        {"more records than the file holds", HeaderOf(std::string("\xA8\x61\x00\x00", 4)) + two, 2,
         DatabaseStatus::CutShort, base::OldBytes::Unknown},
        {"25001 records", HeaderOf(std::string("\xA9\x61\x00\x00", 4)) + two, 0,
         DatabaseStatus::BadCount, base::OldBytes::Unknown},
        {"largest count", HeaderOf("\xFF\xFF\xFF\x7F") + two, 0, DatabaseStatus::BadCount,
         base::OldBytes::Unknown},
        {"negative count", HeaderOf("\xFF\xFF\xFF\xFF") + two, 0, DatabaseStatus::BadCount,
         base::OldBytes::Unknown},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        PutFile("W.QTH", c.file);
        const DatabaseContents contents = ReadDatabase("W.QTH");
        EXPECT_EQ(contents.status, c.status);
        EXPECT_EQ(contents.database.Count(), c.records);
        EXPECT_EQ(contents.oldBytes, c.oldBytes);
    }
    EXPECT_EQ(ReadDatabase("missing").status, DatabaseStatus::Missing);
    fs::create_directory("folder");
    EXPECT_EQ(ReadDatabase("folder").status, DatabaseStatus::Unreadable);
    EXPECT_EQ(ReadDatabase("folder").oldBytes, base::OldBytes::Unknown);
}

TEST_F(WorkingFileTest, SurvivesEveryLengthOfAFile)
{
    const std::string file = HeaderOf(kTwoRecords) + ForeignRecord() + ForeignRecord() + kSpare;
    for (std::size_t length = 0; length <= file.size(); ++length) {
        SCOPED_TRACE(length);
        PutFile("W.QTH", file.substr(0, length));
        const DatabaseContents contents = ReadDatabase("W.QTH");
        const std::size_t whole = length < 20 ? 0 : std::min<std::size_t>((length - 20) / 290, 2);
        EXPECT_EQ(contents.database.Count(), whole);
        EXPECT_EQ(contents.status == DatabaseStatus::Complete, length >= 600);
    }
}

TEST_F(WorkingFileTest, SurvivesEveryByteOfTheHeader)
{
    const std::string file = HeaderOf(kTwoRecords) + ForeignRecord() + ForeignRecord() + kSpare;
    for (std::size_t place = 0; place < 20; ++place) {
        for (const char byte : {'\x00', '\x7F', '\x80', '\xFF'}) {
            SCOPED_TRACE(testing::Message() << place << ": " << static_cast<int>(byte));
            std::string changed = file;
            changed[place] = byte;
            PutFile("W.QTH", changed);
            const DatabaseContents contents = ReadDatabase("W.QTH");
            EXPECT_LE(contents.database.Count(), 3U) << "the spare may be taken for a record";
            const bool meansNothing = place < 4 || (place >= 8 && place < 16);
            const bool same = changed == file || meansNothing;
            const bool fewer = place == 4 && byte == '\x00';
            EXPECT_EQ(contents.status == DatabaseStatus::Complete, same || fewer);
        }
    }
}

TEST_F(WorkingFileTest, ReplacesAKnownFileWithoutACopy)
{
    base::OldBytes oldBytes = base::OldBytes::Known;
    EXPECT_FALSE(UpdateQTHFile("W.QTH", CountedDatabase(1), oldBytes));
    EXPECT_FALSE(UpdateQTHFile("W.QTH", CountedDatabase(2), oldBytes));
    EXPECT_EQ(TemporaryFolder::Names(), Names{"W.QTH"});
    EXPECT_EQ(ReadDatabase("W.QTH").database.Count(), 2U);
}

TEST_F(WorkingFileTest, SetsAFileAsideThatItDidNotReadWhole)
{
    PutFile("W.QTH", "something else");
    EXPECT_FALSE(WriteDatabase("WORK.BAK", CountedDatabase(3)));
    base::OldBytes oldBytes = ReadDatabase("W.QTH").oldBytes;
    EXPECT_FALSE(UpdateQTHFile("W.QTH", StationDatabase(), oldBytes));
    EXPECT_EQ(oldBytes, base::OldBytes::Known);
    EXPECT_EQ(GetFile("W.QTH.ALT"), "something else");
    EXPECT_EQ(ReadDatabase("WORK.BAK.ALT").database.Count(), 3U);
    EXPECT_EQ(ReadDatabase("W.QTH").status, DatabaseStatus::Complete);

    // The start-up goes on with the backup, whose records are safe by now.
    EXPECT_FALSE(WriteBackup(StationDatabase()));
    EXPECT_EQ(TemporaryFolder::Names(), (Names{"W.QTH", "W.QTH.ALT", "WORK.BAK", "WORK.BAK.ALT"}));
}

TEST_F(WorkingFileTest, WritesNothingWhenTheOldBytesCannotBeKept)
{
    fs::create_directory("W.QTH");
    base::OldBytes oldBytes = base::OldBytes::Unknown;
    EXPECT_TRUE(UpdateQTHFile("W.QTH", StationDatabase(), oldBytes));
    EXPECT_EQ(oldBytes, base::OldBytes::Unknown);
    EXPECT_TRUE(fs::is_directory("W.QTH"));
}

TEST_F(WorkingFileTest, KeepsTheDatabaseAndTheFileWhenTheWriteFails)
{
    base::OldBytes oldBytes = base::OldBytes::Known;
    EXPECT_FALSE(UpdateQTHFile("W.QTH", CountedDatabase(1), oldBytes));
    fs::permissions("W.QTH", static_cast<fs::perms>(0444));
    const StationDatabase database = CountedDatabase(2);
    EXPECT_TRUE(UpdateQTHFile("W.QTH", database, oldBytes));
    EXPECT_EQ(database.Count(), 2U);
    EXPECT_EQ(ReadDatabase("W.QTH").database.Count(), 1U);
}

TEST_F(WorkingFileTest, BacksUpWhatWasFoundAtStart)
{
    EXPECT_FALSE(WriteBackup(CountedDatabase(2)));
    EXPECT_FALSE(WriteBackup(CountedDatabase(1)));
    EXPECT_EQ(ReadDatabase("WORK.BAK").database.Count(), 1U);
    EXPECT_EQ(TemporaryFolder::Names(), Names{"WORK.BAK"});
}

TEST_F(WorkingFileTest, DoesNotLoseABackupToAnEmptyDatabase)
{
    EXPECT_FALSE(WriteBackup(CountedDatabase(2)));
    EXPECT_FALSE(WriteBackup(StationDatabase()));
    EXPECT_EQ(ReadDatabase("WORK.BAK.ALT").database.Count(), 2U);
    EXPECT_EQ(ReadDatabase("WORK.BAK").database.Count(), 0U);
    EXPECT_FALSE(WriteBackup(StationDatabase()));
    EXPECT_EQ(TemporaryFolder::Names(), (Names{"WORK.BAK", "WORK.BAK.ALT"}))
        << "an empty backup is no loss";
}

TEST_F(WorkingFileTest, HoldsTheLargestDatabase)
{
    EXPECT_FALSE(WriteDatabase("W.QTH", CountedDatabase(kMaxRecords)));
    EXPECT_EQ(GetFile("W.QTH").size(), 20U + 25001U * 290U);
    const DatabaseContents contents = ReadDatabase("W.QTH");
    EXPECT_EQ(contents.status, DatabaseStatus::Complete);
    EXPECT_EQ(contents.database.Count(), kMaxRecords);
    EXPECT_EQ(contents.database[24999].Text(Field::Callsign), "24999");
}

}  // namespace
}  // namespace stations
