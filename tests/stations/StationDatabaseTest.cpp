#include "stations/StationDatabase.h"

#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include "stations/Records.h"

namespace stations {
namespace {

TEST(StationDatabase, TakesTheLastRecordAndRefusesTheNext)
{
    StationDatabase database = CountedDatabase(kMaxRecords - 1);
    EXPECT_TRUE(database.Append(MakeRecord({"last"})));
    EXPECT_EQ(database.Count(), 25000U);
    EXPECT_FALSE(database.Append(MakeRecord({"one more"})));
    EXPECT_EQ(database.Count(), 25000U);
    EXPECT_EQ(database[24999].Text(Field::Callsign), "last");
}

TEST(StationDatabase, AppendsAllRecordsOrNone)
{
    StationDatabase database = CountedDatabase(kMaxRecords - 2);
    EXPECT_FALSE(database.Append(CountedDatabase(3)));
    EXPECT_EQ(database.Count(), kMaxRecords - 2);
    EXPECT_TRUE(database.Append(CountedDatabase(2)));
    EXPECT_EQ(database.Count(), kMaxRecords);
}

TEST(StationDatabase, MovesTheRecordsBehindADeletedOneDown)
{
    StationDatabase database = CountedDatabase(4);
    database.Delete(1);
    EXPECT_EQ(Callsigns(database), "0 2 3 ");
    database.Delete(2);
    database.Delete(0);
    database.Delete(0);
    EXPECT_TRUE(database.Empty());
}

TEST(StationDatabase, DeletesSeveralRecordsAndKeepsTheOrder)
{
    const struct {
        std::vector<std::size_t> deleted;
        const char* left;
    } cases[] = {
        {{}, "0 1 2 3 4 "}, {{0}, "1 2 3 4 "},   {{4}, "0 1 2 3 "},
        {{1, 2}, "0 3 4 "}, {{0, 2, 4}, "1 3 "}, {{0, 1, 2, 3, 4}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.left);
        StationDatabase database = CountedDatabase(5);
        database.Delete(c.deleted);
        EXPECT_EQ(Callsigns(database), c.left);
    }
}

TEST(StationDatabase, KeepsTheFirstRecordsWhenTruncated)
{
    StationDatabase database = CountedDatabase(3);
    database.Truncate(5);
    EXPECT_EQ(database.Count(), 3U) << "never grows";
    database.Truncate(1);
    EXPECT_EQ(Callsigns(database), "0 ");
}

TEST(StationDatabase, TakesANewOrder)
{
    StationDatabase database = CountedDatabase(3);
    database.Reorder({2, 0, 1});
    EXPECT_EQ(Callsigns(database), "2 0 1 ");
    database.Reorder({0, 2, 1});
    EXPECT_EQ(Callsigns(database), "2 1 0 ");
}

}  // namespace
}  // namespace stations
