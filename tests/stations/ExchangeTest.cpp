#include "stations/Exchange.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "stations/Records.h"

namespace stations {
namespace {

namespace fs = std::filesystem;

using Indexes = std::vector<std::size_t>;
using Names = std::vector<std::string>;

class ExchangeTest : public testing::Test {
protected:
    ExchangeResult Open(const std::string& name)
    {
        return stations::Open(
            name, {.database = database, .workingFile = workingFile, .oldBytes = oldBytes});
    }

    // A database file of `count` records, changed at one place of its header.
    static void PutChanged(const std::string& name, std::size_t count, std::size_t place, char byte)
    {
        EXPECT_FALSE(WriteDatabase(name, CountedDatabase(count)));
        std::string file = GetFile(name);
        file[place] = byte;
        PutFile(name, file);
    }

    TemporaryFolder folder;
    StationDatabase database = MakeDatabase({MakeRecord({"X"})});
    std::string workingFile = "WORK.QTH";
    base::OldBytes oldBytes = base::OldBytes::Unknown;
};

TEST_F(ExchangeTest, OpensAFileAsTheWorkingFile)
{
    EXPECT_FALSE(WriteDatabase("other.QTH", CountedDatabase(2)));
    EXPECT_EQ(Open("other.QTH"), ExchangeResult::Done);
    EXPECT_EQ(Callsigns(database), "0 1 ");
    EXPECT_EQ(workingFile, "other.QTH");
    EXPECT_EQ(oldBytes, base::OldBytes::Known);

    database.Append(MakeRecord({"2"}));
    EXPECT_FALSE(UpdateQTHFile(workingFile, database, oldBytes));
    EXPECT_EQ(TemporaryFolder::Names(), Names{"other.QTH"});
    EXPECT_EQ(ReadDatabase("other.QTH").database.Count(), 3U);
}

TEST_F(ExchangeTest, SetsBytesBehindAnOpenedDatabaseAside)
{
    EXPECT_FALSE(WriteDatabase("other.QTH", CountedDatabase(2)));
    const std::string file = GetFile("other.QTH") + "appendix";
    PutFile("other.QTH", file);
    EXPECT_EQ(Open("other.QTH"), ExchangeResult::Done);
    EXPECT_FALSE(UpdateQTHFile(workingFile, database, oldBytes));
    EXPECT_EQ(GetFile("other.QTH.ALT"), file);
}

TEST_F(ExchangeTest, ChangesNothingWhenAFileIsRefused)
{
    PutChanged("foreign.QTH", 2, 16, 'x');
    PutChanged("negative.QTH", 2, 7, '\xFF');
    PutChanged("many.QTH", 2, 6, '\x01');
    PutChanged("short.QTH", 2, 4, '\x05');
    PutFile("empty.QTH", "");
    fs::create_directory("folder.QTH");
    const struct {
        const char* name;
        ExchangeResult result;
    } cases[] = {
        {"foreign.QTH", ExchangeResult::Ignored},   {"missing.QTH", ExchangeResult::Ignored},
        {"empty.QTH", ExchangeResult::Ignored},     {"negative.QTH", ExchangeResult::Damaged},
        {"many.QTH", ExchangeResult::Damaged},      {"short.QTH", ExchangeResult::Damaged},
        {"folder.QTH", ExchangeResult::Unreadable},
    };
    const Names before = TemporaryFolder::Names();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Open(c.name), c.result);
        EXPECT_EQ(AppendFile(c.name, database), c.result);
        EXPECT_EQ(Callsigns(database), "X ");
        EXPECT_EQ(workingFile, "WORK.QTH");
        EXPECT_EQ(oldBytes, base::OldBytes::Unknown);
    }
    EXPECT_EQ(TemporaryFolder::Names(), before) << "a missing file is not created";
}

TEST_F(ExchangeTest, RefusesEveryLengthOfAFileThatLacksARecord)
{
    EXPECT_FALSE(WriteDatabase("whole.QTH", CountedDatabase(2)));
    const std::string file = GetFile("whole.QTH");
    for (std::size_t length = 0; length < 600; ++length) {
        SCOPED_TRACE(length);
        PutFile("cut.QTH", file.substr(0, length));
        const ExchangeResult expected =
            length < 20 ? ExchangeResult::Ignored : ExchangeResult::Damaged;
        EXPECT_EQ(Open("cut.QTH"), expected);
        EXPECT_EQ(AppendFile("cut.QTH", database), expected);
        EXPECT_EQ(Callsigns(database), "X ");
    }
    PutFile("cut.QTH", file.substr(0, 600));
    EXPECT_EQ(Open("cut.QTH"), ExchangeResult::Done) << "only the spare is missing";
}

TEST_F(ExchangeTest, SurvivesEveryByteOfTheHeader)
{
    for (std::size_t place = 0; place < 20; ++place) {
        for (const char byte : {'\x00', '\x7F', '\x80', '\xFF'}) {
            SCOPED_TRACE(testing::Message() << place << ": " << static_cast<int>(byte));
            PutChanged("changed.QTH", 2, place, byte);
            database = MakeDatabase({MakeRecord({"X"})});
            const ExchangeResult appended = AppendFile("changed.QTH", database);
            EXPECT_TRUE(Callsigns(database).starts_with("X "));
            EXPECT_TRUE(appended == ExchangeResult::Done || Callsigns(database) == "X ");
            const std::string before = Callsigns(database);
            const ExchangeResult opened = Open("changed.QTH");
            EXPECT_EQ(opened, appended);
            EXPECT_TRUE(opened == ExchangeResult::Done || Callsigns(database) == before);
        }
    }
}

TEST_F(ExchangeTest, DoesNotOpenAFileWhoseNameTheConfigurationCannotHold)
{
    std::string deep;
    while (deep.size() < 480) {
        deep += std::string(20, 'd') + '/';
    }
    fs::create_directories(deep);
    const std::string fits = deep + std::string(512 - deep.size(), 'x');
    EXPECT_FALSE(WriteDatabase(fits, CountedDatabase(2)));
    EXPECT_FALSE(WriteDatabase(fits + 'x', CountedDatabase(2)));
    EXPECT_EQ(Open(fits + 'x'), ExchangeResult::NameTooLong);
    EXPECT_EQ(Callsigns(database), "X ");
    EXPECT_EQ(workingFile, "WORK.QTH");
    EXPECT_EQ(Open(fits), ExchangeResult::Done);
    EXPECT_EQ(AppendFile(fits + 'x', database), ExchangeResult::Done) << "its name is not kept";
}

TEST_F(ExchangeTest, NamesAFileInTheProgramDirectoryWithoutItsPath)
{
    fs::create_directory("sub");
    const std::string here = folder.Path().string();
    const std::string parent = folder.Path().parent_path().string();
    const struct {
        std::string name;
        std::string kept;
    } cases[] = {
        {"a.QTH", "a.QTH"},
        {"./a.QTH", "a.QTH"},
        {here + "//a.QTH", "a.QTH"},
        {"sub/../a.QTH", "a.QTH"},
        {"sub/a.QTH", "sub/a.QTH"},
        {here + "/sub/./a.QTH", "sub/./a.QTH"},
        {"../" + folder.Path().filename().string() + "/a.QTH", "a.QTH"},
        {parent + "/a.QTH", parent + "/a.QTH"},
        {"../a.QTH", "../a.QTH"},
        {"/a.QTH", "/a.QTH"},
        {here + "/", ""},
        {"/no such folder/a.QTH", "/no such folder/a.QTH"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(NameToKeep(c.name), c.kept) << c.name;
    }
}

TEST_F(ExchangeTest, AppendsRecordsBehindTheOthers)
{
    EXPECT_FALSE(WriteDatabase("other.QTH", CountedDatabase(2)));
    EXPECT_EQ(AppendFile("other.QTH", database), ExchangeResult::Done);
    EXPECT_EQ(Callsigns(database), "X 0 1 ");
}

TEST_F(ExchangeTest, DoublesTheWorkingFileAppendedToItself)
{
    database = CountedDatabase(2);
    EXPECT_FALSE(WriteDatabase(workingFile, database));
    EXPECT_EQ(AppendFile(workingFile, database), ExchangeResult::Done);
    EXPECT_EQ(Callsigns(database), "0 1 0 1 ");
}

TEST_F(ExchangeTest, RefusesToAppendUpToTheLimit)
{
    // One record fewer than saving a single one allows.
    database = CountedDatabase(24998);
    EXPECT_FALSE(WriteDatabase("two.QTH", CountedDatabase(2)));
    EXPECT_FALSE(WriteDatabase("one.QTH", CountedDatabase(1)));
    EXPECT_EQ(AppendFile("two.QTH", database), ExchangeResult::TooMany);
    EXPECT_EQ(database.Count(), 24998U);
    EXPECT_EQ(AppendFile("one.QTH", database), ExchangeResult::Done);
    EXPECT_EQ(database.Count(), 24999U);
}

TEST_F(ExchangeTest, SavesTheMarkedRecordsInTheirOrder)
{
    database = CountedDatabase(4);
    EXPECT_FALSE(SaveMarked("marked.QTH", database, Indexes{1, 3}));
    const DatabaseContents contents = ReadDatabase("marked.QTH");
    EXPECT_EQ(contents.status, DatabaseStatus::Complete);
    EXPECT_EQ(Callsigns(contents.database), "1 3 ");
    EXPECT_EQ(GetFile("marked.QTH").size(), 20U + 3U * 290U) << "with its spare";
    EXPECT_EQ(Callsigns(database), "0 1 2 3 ");
}

TEST_F(ExchangeTest, SavesAValidFileWithoutMarks)
{
    EXPECT_FALSE(SaveMarked("none.QTH", database, {}));
    EXPECT_EQ(GetFile("none.QTH").size(), 310U);
    EXPECT_EQ(ReadDatabase("none.QTH").status, DatabaseStatus::Complete);
}

TEST_F(ExchangeTest, SavesTheSameBytesAfterSavingAndOpening)
{
    database = CountedDatabase(3);
    EXPECT_FALSE(SaveMarked("a.QTH", database, Indexes{0, 2}));
    EXPECT_EQ(Open("a.QTH"), ExchangeResult::Done);
    EXPECT_FALSE(SaveMarked("b.QTH", database, Indexes{0, 1}));
    EXPECT_EQ(GetFile("a.QTH"), GetFile("b.QTH"));
}

TEST_F(ExchangeTest, ReportsAFileThatCannotBeWritten)
{
    EXPECT_TRUE(SaveMarked("no/such/folder.QTH", database, Indexes{0}));
}

}  // namespace
}  // namespace stations
