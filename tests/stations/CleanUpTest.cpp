#include "stations/CleanUp.h"

#include <cstddef>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "stations/Records.h"

namespace stations {
namespace {

using Indexes = std::vector<std::size_t>;

constexpr geo::GeoPosition kHere = {.latitude = 48.3125, .longitude = 11.625};
constexpr geo::GeoPosition kNorth = {.latitude = 50.0, .longitude = 11.625};

TEST(RemoveEqualEntries, KeepsTheFirstOfEachRunInTheOrderOfTheSort)
{
    StationDatabase database = MakeDatabase({
        MakeRecord({"B"}, kNorth),
        MakeRecord({"A"}, kHere),
        MakeRecord({"C"}, kNorth),
        MakeRecord({"B"}, kNorth),
        MakeRecord({"A"}, kHere),
        MakeRecord({"B"}, kNorth),
    });
    RemoveEqualEntries(database, Order::Ascending);
    EXPECT_EQ(Callsigns(database), "A B C ");
}

TEST(RemoveEqualEntries, SortsEvenWhenNothingIsRemoved)
{
    StationDatabase database = MakeDatabase({MakeRecord({"B"}, kNorth), MakeRecord({"A"}, kHere)});
    RemoveEqualEntries(database, Order::Ascending);
    EXPECT_EQ(Callsigns(database), "A B ");
    RemoveEqualEntries(database, Order::Descending);
    EXPECT_EQ(Callsigns(database), "B A ");
}

TEST(RemoveEqualEntries, KeepsTheRecordThatSortsFirst)
{
    // Equal but for a reserved text, so that it shows which one is left.
    StationDatabase database = MakeDatabase({
        MakeRecord({"A", "", "", "", "", "", "first"}, kHere),
        MakeRecord({"A", "", "", "", "", "", "second"}, kHere),
    });
    StationDatabase sorted = database;
    std::vector<double> noKeyValues;
    Sort(sorted, ListKey::Latitude, Order::Ascending, noKeyValues);
    RemoveEqualEntries(database, Order::Ascending);
    ASSERT_EQ(database.Count(), 1U);
    EXPECT_EQ(database[0], sorted[0]);
}

TEST(RemoveEqualEntries, ComparesEveryTextButTheReservedOnes)
{
    const std::vector<StationRecord> different = {
        MakeRecord({"B", "2", "3", "4", "5", "6"}, kHere),
        MakeRecord({"1", "B", "3", "4", "5", "6"}, kHere),
        MakeRecord({"1", "2", "B", "4", "5", "6"}, kHere),
        MakeRecord({"1", "2", "3", "B", "5", "6"}, kHere),
        MakeRecord({"1", "2", "3", "4", "B", "6"}, kHere),
        MakeRecord({"1", "2", "3", "4", "5", "B"}, kHere),
        MakeRecord({"1", "2", "3", "4", "5", "6"}, kNorth),
        MakeRecord({"1", "2", "3", "4", "5", "6"},
                   {.latitude = kHere.latitude, .longitude = 11.6250000000001}),
    };
    const StationRecord record = MakeRecord({"1", "2", "3", "4", "5", "6"}, kHere);
    for (const StationRecord& other : different) {
        EXPECT_FALSE(AreEqual(record, other, Equality::Full));
        StationDatabase database = MakeDatabase({record, other});
        RemoveEqualEntries(database, Order::Ascending);
        EXPECT_EQ(database.Count(), 2U);
    }
    const StationRecord reserved = MakeRecord({"1", "2", "3", "4", "5", "6", "7", "8"}, kHere);
    EXPECT_TRUE(AreEqual(record, reserved, Equality::Full));
    EXPECT_FALSE(
        AreEqual(record, MakeRecord({"1", "2", "3", "4", "5", "6 7"}, kHere), Equality::Full));
}

TEST(RemoveEqualEntries, TellsUpperFromLowerCase)
{
    EXPECT_FALSE(AreEqual(MakeRecord({"dl1abc"}), MakeRecord({"DL1ABC"}), Equality::Full));
}

TEST(AreEqual, TakesBothZerosAsEqualAndNanAsEqualToNothing)
{
    const StationRecord zero = MakeRecord({"A"}, {.latitude = 0.0, .longitude = 0.0});
    const StationRecord minus = MakeRecord({"A"}, {.latitude = -0.0, .longitude = -0.0});
    const StationRecord nan =
        MakeRecord({"A"}, {.latitude = std::numeric_limits<double>::quiet_NaN(), .longitude = 0.0});
    EXPECT_TRUE(AreEqual(zero, minus, Equality::Full));
    EXPECT_FALSE(AreEqual(nan, nan, Equality::Full));
    EXPECT_FALSE(AreEqual(nan, nan, Equality::Position));
}

TEST(CleanUp, ChangesNothingInAnEmptyDatabase)
{
    StationDatabase database;
    RemoveEqualEntries(database, Order::Ascending);
    EXPECT_TRUE(database.Empty());
    EXPECT_TRUE(FindEqualEntries(database, Equality::Full, Order::Ascending).empty());
    EXPECT_TRUE(FindEqualEntries(database, Equality::Position, Order::Ascending).empty());
}

TEST(FindEqualEntries, GivesEachRunButForItsFirstRecord)
{
    StationDatabase database = MakeDatabase({
        MakeRecord({"B"}, kNorth),
        MakeRecord({"A"}, kHere),
        MakeRecord({"B"}, kNorth),
        MakeRecord({"A"}, kHere),
        MakeRecord({"A"}, kHere),
        MakeRecord({"C"}, kHere),
    });
    EXPECT_EQ(FindEqualEntries(database, Equality::Full, Order::Ascending), (Indexes{1, 2, 5}));
    EXPECT_EQ(Callsigns(database), "A A A C B B ");
}

TEST(FindEqualEntries, FindsDifferentTextsAtOnePositionByPositionOnly)
{
    StationDatabase database = MakeDatabase({
        MakeRecord({"A"}, kHere),
        MakeRecord({"B"}, kHere),
        MakeRecord({"C"}, {.latitude = kHere.latitude, .longitude = 11.0}),
    });
    EXPECT_EQ(FindEqualEntries(database, Equality::Full, Order::Ascending), Indexes{});
    EXPECT_EQ(FindEqualEntries(database, Equality::Position, Order::Ascending), Indexes{2});
    EXPECT_EQ(Callsigns(database), "C A B ");
}

TEST(MeanOfMarked, IsTheArithmeticMeanOfTheDegrees)
{
    const StationDatabase database = MakeDatabase({
        MakeRecord({"A"}, {.latitude = 10.0, .longitude = 179.0}),
        MakeRecord({"B"}, {.latitude = 80.0, .longitude = 80.0}),
        MakeRecord({"C"}, {.latitude = 20.0, .longitude = -179.0}),
    });
    const std::optional<MeanStation> mean = MeanOfMarked(database, Indexes{0, 2});
    ASSERT_TRUE(mean.has_value());
    EXPECT_EQ(mean->position.latitude, 15.0);
    EXPECT_EQ(mean->position.longitude, 0.0) << "no wrap-around";
    EXPECT_EQ(mean->texts.callsign, "MIWERT");
    EXPECT_EQ(mean->texts.remark, "Mittelwert von 2 Stationen");
    EXPECT_EQ(mean->texts.name + mean->texts.place + mean->texts.frequency + mean->texts.date, "");
}

TEST(MeanOfMarked, IsNoneWithoutMarks)
{
    EXPECT_FALSE(MeanOfMarked(CountedDatabase(2), {}).has_value());
}

TEST(MeanOfMarked, CountsInPlainDigits)
{
    Indexes all;
    for (std::size_t i = 0; i < 1000; ++i) {
        all.push_back(i);
    }
    EXPECT_EQ(MeanOfMarked(CountedDatabase(1000), all)->texts.remark,
              "Mittelwert von 1000 Stationen");
}

}  // namespace
}  // namespace stations
