#include "ui/main/StationListModel.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "stations/Records.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class StationListModelTest : public testing::Test {
protected:
    StationListModelTest()
    {
        database.Append(stations::MakeRecord({"ONE", "Emil", "Ort"}, {48.125, -11.5}));
        database.Append(stations::MakeRecord({"TWO", "", "Aalen am Kocher"}));
    }

    QString Line(int row) const { return model.index(row, 0).data().toString(); }

    stations::StationDatabase database;
    base::NumberFormat format{","};
    StationListModel model{database, format, nullptr};
};

TEST_F(StationListModelTest, IsEmptyUntilItIsFilled)
{
    EXPECT_EQ(model.rowCount(), 0);
    model.Fill(stations::ListKey::Callsign, {});
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(Line(0), u"ONE - Emil - Ort"_s);
    EXPECT_EQ(Line(1), u"TWO -  - Aalen am Kocher"_s);
}

TEST_F(StationListModelTest, EachFillIsAnnouncedAsAReset)
{
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.Fill(stations::ListKey::Name, {});
    model.Fill(stations::ListKey::Name, {});
    EXPECT_EQ(resets.count(), 2);
}

TEST_F(StationListModelTest, NumbersCarryTheSeparatorOfTheRegion)
{
    model.Fill(stations::ListKey::Latitude, {});
    EXPECT_EQ(Line(0), u"48,13 - ONE - Emil - Ort"_s);
    model.Fill(stations::ListKey::Longitude, {});
    EXPECT_EQ(Line(0), u"-11,50 - ONE - Emil - Ort"_s);
    model.Fill(stations::ListKey::Distance, {12.3456, 0.0});
    EXPECT_EQ(Line(0), u"12,346 km - ONE - Emil - Ort"_s);
    EXPECT_EQ(Line(1), u"0,000 km - TWO -  - Aalen am Kocher"_s);
    model.Fill(stations::ListKey::Direction, {359.999, 90.0});
    EXPECT_EQ(Line(0), u"360,00° - ONE - Emil - Ort"_s);
}

TEST_F(StationListModelTest, KeepsItsLinesWhileRecordsComeAndGo)
{
    model.Fill(stations::ListKey::Distance, {1.0, 2.0});
    database.Append(stations::MakeRecord({"NEW"}));
    EXPECT_EQ(model.rowCount(), 2) << "until the next fill";
    EXPECT_EQ(Line(1), u"2,000 km - TWO -  - Aalen am Kocher"_s);
    database.Truncate(1);
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_FALSE(model.index(1, 0).data().isValid()) << "its record is gone";
}

TEST_F(StationListModelTest, ShowsTextOnly)
{
    model.Fill(stations::ListKey::Callsign, {});
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data({}, Qt::DisplayRole).isValid());
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0) << "a list, not a tree";
}

TEST_F(StationListModelTest, ALineBreakInATextIsShownAsABlank)
{
    database.Append(stations::MakeRecord({"DL1\r\nABC", "Anna\nBerta", "Ort"}));
    model.Fill(stations::ListKey::Callsign, {});
    EXPECT_EQ(Line(2), u"DL1 ABC - Anna Berta - Ort"_s);
    EXPECT_EQ(database[2].Text(stations::Field::Name), "Anna\nBerta");
}

TEST_F(StationListModelTest, TheLongestLineIsThatOfTheLongestTexts)
{
    EXPECT_EQ(StationListModel(stations::StationDatabase(), format, nullptr).LongestLine(), u""_s);
    model.Fill(stations::ListKey::Place, {});
    EXPECT_EQ(model.LongestLine(), u"Aalen am Kocher - TWO - "_s);
}

}  // namespace
}  // namespace ui
