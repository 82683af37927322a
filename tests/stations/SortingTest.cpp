#include "stations/Sorting.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "geo/Distance.h"
#include "stations/PlainQuicksort.h"
#include "stations/Records.h"

namespace stations {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string SortedCallsigns(StationDatabase database, ListKey key, Order order = Order::Ascending)
{
    std::vector<double> noKeyValues;
    Sort(database, key, order, noKeyValues);
    return Callsigns(database);
}

TEST(Sort, ComparesTextsByTheirBytes)
{
    const StationDatabase database =
        MakeDatabase({MakeRecord({"dl1abc"}), MakeRecord({"Z9"}), MakeRecord({"\xC4"}),
                      MakeRecord({"DL1ABC"}), MakeRecord({"DL1"})});
    EXPECT_EQ(SortedCallsigns(database, ListKey::Callsign), "DL1 DL1ABC Z9 dl1abc \u00c4 ");
    EXPECT_EQ(SortedCallsigns(database, ListKey::Callsign, Order::Descending),
              "\u00c4 dl1abc Z9 DL1ABC DL1 ");
}

// The fields that the comparison under a key goes through: latitude -1, longitude -2, else texts.
struct KeyFields {
    ListKey key;
    std::vector<int> fields;
};

const std::vector<KeyFields>& AllKeyFields()
{
    static const std::vector<KeyFields> all = {
        {ListKey::Callsign, {0, 1, 2, 3}},
        {ListKey::Name, {1, 0, 2, 3}},
        {ListKey::Place, {2, 0, 1, 3}},
        {ListKey::Frequency, {3, 0, 1, 2}},
        {ListKey::Latitude, {-1, -2, 0, 1, 2, 3, 4, 5}},
        {ListKey::Longitude, {-2, -1, 0, 1, 2}},
        {ListKey::Remark, {4, 0, 1, 2}},
        {ListKey::Date, {5, 0, 1, 2}},
    };
    return all;
}

// A record of ones that has `value` in one field of the chain and the opposite in all fields
// behind.
StationRecord RecordWith(const std::vector<int>& fields, std::size_t place, int value)
{
    std::array<std::string, 6> texts;
    texts.fill("1");
    geo::GeoPosition position = {.latitude = 1.0, .longitude = 1.0};
    for (std::size_t i = place; i < fields.size(); ++i) {
        const int here = i == place ? value : 1 - value;
        if (fields[i] == -1) {
            position.latitude = here;
        } else if (fields[i] == -2) {
            position.longitude = here;
        } else {
            texts[static_cast<std::size_t>(fields[i])] = std::to_string(here);
        }
    }
    return MakeRecord({texts[0], texts[1], texts[2], texts[3], texts[4], texts[5]}, position);
}

TEST(Sort, DecidesByTheFirstFieldOfItsKeyThatDiffers)
{
    for (const auto& [key, fields] : AllKeyFields()) {
        for (std::size_t place = 0; place < fields.size(); ++place) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(key) << " at " << place);
            const StationRecord less = RecordWith(fields, place, 0);
            const StationRecord greater = RecordWith(fields, place, 1);
            for (StationDatabase database :
                 {MakeDatabase({less, greater}), MakeDatabase({greater, less})}) {
                std::vector<double> noKeyValues;
                Sort(database, key, Order::Ascending, noKeyValues);
                EXPECT_EQ(database[0], less);
                Sort(database, key, Order::Descending, noKeyValues);
                EXPECT_EQ(database[0], greater);
            }
        }
    }
}

TEST(Sort, LooksAtNoFieldThatItsKeyDoesNotName)
{
    for (const auto& [key, fields] : AllKeyFields()) {
        SCOPED_TRACE(static_cast<int>(key));
        std::array<std::string, 6> texts;
        for (int field = 0; field < 6; ++field) {
            const bool named = std::find(fields.begin(), fields.end(), field) != fields.end();
            texts[static_cast<std::size_t>(field)] = named ? "1" : "0";
        }
        const StationRecord ones = RecordWith(fields, fields.size(), 0);
        const StationRecord others =
            MakeRecord({texts[0], texts[1], texts[2], texts[3], texts[4], texts[5]},
                       {.latitude = 1.0, .longitude = 1.0});
        StationDatabase database = MakeDatabase({others, ones});
        std::vector<double> noKeyValues;
        Sort(database, key, Order::Ascending, noKeyValues);
        EXPECT_EQ(database[0], ones) << "two equal neighbours change places";
    }
}

TEST(Sort, ByLongitudeTakesRecordsOfDifferentFrequencyAsEqual)
{
    const StationDatabase database =
        MakeDatabase({MakeRecord({"A", "N", "O", "1"}), MakeRecord({"A", "N", "O", "2"})});
    StationDatabase sorted = database;
    std::vector<double> noKeyValues;
    Sort(sorted, ListKey::Longitude, Order::Ascending, noKeyValues);
    Sort(sorted, ListKey::Longitude, Order::Ascending, noKeyValues);
    EXPECT_EQ(sorted[0], database[0]) << "each sort exchanges two equal neighbours";
}

TEST(Sort, LeavesEverythingUnderAKeyThatItDoesNotKnow)
{
    for (const int key : {-32768, -1, 10, 32767}) {
        EXPECT_EQ(SortedCallsigns(MakeDatabase({MakeRecord({"B"}), MakeRecord({"A"})}),
                                  static_cast<ListKey>(key)),
                  "B A ");
    }
}

TEST(Sort, AcceptsNoRecordAndOneRecord)
{
    EXPECT_EQ(SortedCallsigns({}, ListKey::Latitude), "");
    EXPECT_EQ(SortedCallsigns(MakeDatabase({MakeRecord({"A"})}), ListKey::Latitude), "A ");
}

TEST(Sort, OrdersNumbersFromMinusToPlusInfinity)
{
    StationDatabase database;
    std::vector<double> values = {5.0,  -kInfinity, 0.0,    -1e-310, kInfinity,
                                  -5.0, 1e300,      1e-310, -1e300};
    for (const double value : values) {
        database.Append(MakeRecord({std::to_string(value)}, {.latitude = value, .longitude = 0.0}));
    }
    std::vector<double> noKeyValues;
    Sort(database, ListKey::Latitude, Order::Ascending, noKeyValues);
    std::sort(values.begin(), values.end());
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_EQ(database[i].Latitude(), values[i]);
    }
}

TEST(KeyValues, AreDistancesFromStation1)
{
    const geo::GeoPosition station1 = {.latitude = 48.0, .longitude = 11.0};
    const StationDatabase database = MakeDatabase({
        MakeRecord({"far"}, {.latitude = 50.0, .longitude = 12.0}),
        MakeRecord({"here"}, station1),
    });
    const std::vector<double> values = KeyValues(database, ListKey::Distance, station1);
    ASSERT_EQ(values.size(), 2U);
    EXPECT_EQ(values[0], geo::Distance(48.0, 50.0, 11.0, 12.0));
    EXPECT_EQ(values[1], 0.0);
}

TEST(KeyValues, AreCompassBearingsFromStation1)
{
    const geo::GeoPosition station1 = {.latitude = 0.0, .longitude = 11.0};
    const struct {
        const char* where;
        geo::GeoPosition position;
        double bearing;
    } cases[] = {
        {"north", {.latitude = 1.0, .longitude = 11.0}, 0.0},
        {"east", {.latitude = 0.0, .longitude = 12.0}, 90.0},
        {"south", {.latitude = -1.0, .longitude = 11.0}, 180.0},
        {"west", {.latitude = 0.0, .longitude = 10.0}, 270.0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.where);
        const std::vector<double> values =
            KeyValues(MakeDatabase({MakeRecord({"A"}, c.position)}), ListKey::Direction, station1);
        ASSERT_EQ(values.size(), 1U);
        EXPECT_NEAR(values[0], c.bearing, 1e-9);
        EXPECT_GE(values[0], 0.0);
        EXPECT_LT(values[0], 360.0);
    }
}

TEST(KeyValues, AreNotNeededByOtherKeysNorByAnEmptyDatabase)
{
    EXPECT_TRUE(KeyValues(CountedDatabase(2), ListKey::Latitude, {}).empty());
    EXPECT_TRUE(KeyValues({}, ListKey::Distance, {}).empty());
}

TEST(Sort, BringsTheKeyValuesIntoTheNewOrder)
{
    StationDatabase database = CountedDatabase(3);
    std::vector<double> keyValues = {2.0, 3.0, 1.0};
    Sort(database, ListKey::Distance, Order::Ascending, keyValues);
    EXPECT_EQ(Callsigns(database), "2 0 1 ");
    EXPECT_EQ(keyValues, (std::vector<double>{1.0, 2.0, 3.0}));
}

// Databases that make comparisons tie, chains run deep and numbers have no order.
class ArrayMaker {
public:
    StationDatabase Make(int number)
    {
        StationDatabase database;
        const std::size_t count = number % 50 == 0 ? 700 : Below(60);
        const int kind = number % 8;
        for (std::size_t i = 0; i < count; ++i) {
            database.Append(kind == 7 ? AnyBytes() : Structured(kind, i, count));
        }
        return database;
    }

    std::vector<double> MakeKeyValues(std::size_t count, int number)
    {
        std::vector<double> values;
        for (std::size_t i = 0; i < count; ++i) {
            values.push_back(number % 3 == 0 ? Hostile() : Number(number % 8, i, count));
        }
        return values;
    }

private:
    std::size_t Below(std::size_t limit) { return random_() % limit; }

    double Hostile()
    {
        const std::array values = {0.0,   -0.0,      1.0,        -1.0,  kNan,
                                   -kNan, kInfinity, -kInfinity, 1e-320};
        return values[Below(values.size())];
    }

    double Number(int kind, std::size_t i, std::size_t count)
    {
        switch (kind) {
        case 0: return 1.0;                                          // all equal
        case 1: return static_cast<double>(i);                       // ascending
        case 2: return static_cast<double>(count - i);               // descending
        case 3: return static_cast<double>(std::min(i, count - i));  // organ pipe
        case 4: return static_cast<double>(Below(3)) - 1.0;          // many equal
        case 5: return Hostile();
        default: return static_cast<double>(Below(1000)) / 7.0 - 70.0;
        }
    }

    std::string Text(int kind, std::size_t i, std::size_t count)
    {
        const std::array texts = {"",          "A",         "AB",     "DL1ABC",   "DL1ABCDE",
                                  "DL1ABCDEF", "DL1ABCDEG", "dl1abc", "\xE4\xF6", "A\x01"};
        if (kind == 4 || kind == 5) {
            // Texts that differ behind the eighth byte, or only by a NUL at their end.
            return Below(2) == 0 ? texts[Below(texts.size())] : std::string("AB\0", 2 + Below(2));
        }
        return kind == 6 ? std::to_string(Below(100000))
                         : std::to_string(100000.0 + Number(kind, i, count));
    }

    StationRecord Structured(int kind, std::size_t i, std::size_t count)
    {
        StationRecord record =
            MakeRecord({Text(kind, i, count), Text(kind, i, count), Text(kind, i, count),
                        Text(kind, i, count), Text(kind, i, count), Text(kind, i, count),
                        std::to_string(i)});  // tells equal records apart
        record.SetPosition(
            {.latitude = Number(kind, i, count), .longitude = Number(kind, i, count)});
        return record;
    }

    StationRecord AnyBytes()
    {
        std::array<char, 290> bytes = {};
        for (char& byte : bytes) {
            byte = static_cast<char>(static_cast<unsigned char>(Below(256)));
        }
        return RecordOf(bytes);
    }

    std::mt19937 random_{20060102};
};

TEST(Sort, LeavesEqualRecordsInTheOrderOfTheDefinedQuicksort)
{
    ArrayMaker maker;
    for (int number = 0; number < 1000; ++number) {
        const StationDatabase original = maker.Make(number);
        const std::vector<double> values = maker.MakeKeyValues(original.Count(), number);
        for (int key = -1; key <= 10; ++key) {
            for (const bool descending : {false, true}) {
                std::vector<StationRecord> expected(original.Records().begin(),
                                                    original.Records().end());
                std::vector<double> expectedValues = values;
                PlainQuicksort(expected, key, descending, expectedValues)
                    .Sort(0, static_cast<long>(expected.size()) - 1);

                StationDatabase database = original;
                std::vector<double> keyValues = values;
                Sort(database, static_cast<ListKey>(key),
                     descending ? Order::Descending : Order::Ascending, keyValues);
                ASSERT_TRUE(std::equal(expected.begin(), expected.end(), database.Records().begin(),
                                       database.Records().end()))
                    << "array " << number << ", key " << key << ", descending " << descending;
                ASSERT_TRUE(std::equal(
                    expectedValues.begin(), expectedValues.end(), keyValues.begin(),
                    keyValues.end(),
                    [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }))
                    << "array " << number << ", key " << key;
            }
        }
    }
}

TEST(Sort, LeavesTheLargestDatabaseInTheOrderOfTheDefinedQuicksort)
{
    std::mt19937 random(7);
    StationDatabase original;
    for (std::size_t i = 0; i < kMaxRecords; ++i) {
        const auto value = [&random](unsigned limit) { return std::to_string(random() % limit); };
        original.Append(
            MakeRecord({value(9000), value(50), value(300), value(20), "", "", value(9)},
                       {.latitude = static_cast<double>(random() % 500),
                        .longitude = static_cast<double>(random() % 500)}));
    }
    for (const int key : {0, 3, 4, 5}) {
        SCOPED_TRACE(key);
        std::vector<StationRecord> expected(original.Records().begin(), original.Records().end());
        std::vector<double> noKeyValues;
        PlainQuicksort(expected, key, false, noKeyValues).Sort(0, kMaxRecords - 1);
        StationDatabase database = original;
        Sort(database, static_cast<ListKey>(key), Order::Ascending, noKeyValues);
        EXPECT_TRUE(std::equal(expected.begin(), expected.end(), database.Records().begin()));
    }
}

}  // namespace
}  // namespace stations
