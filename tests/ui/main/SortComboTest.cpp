#include <QComboBox>
#include <QListView>
#include <QSignalSpy>

#include "ui/main/StationListFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// The sort selector, used as a user does: "Sortieren", then an entry of the open selector.
class SortComboTest : public StationListFixture {
protected:
    void SetUp() override
    {
        StationListFixture::SetUp();
        Click("Command1_0");
    }

    void SortBy(int entry)
    {
        QTest::mouseClick(list->Command3, Qt::LeftButton);
        ASSERT_TRUE(list->SortCombo->isEnabled());
        QTest::keyClick(list->SortCombo, Qt::Key_Down, Qt::AltModifier);
        QAbstractItemView* const entries = list->SortCombo->view();
        ASSERT_TRUE(entries->isVisible());
        entries->setCurrentIndex(entries->model()->index(entry, 0));
        QTest::keyClick(entries, Qt::Key_Return);
        ASSERT_FALSE(entries->isVisible());
    }

    bool IsReset() const
    {
        return !list->SortCombo->isEnabled() && list->SortCombo->currentIndex() == 0;
    }
};

TEST_F(SortComboTest, HoldsTheElevenEntriesInOrder)
{
    const QStringList entries = {u"sortieren nach ..."_s,
                                 u"Rufzeichen"_s,
                                 u"Name"_s,
                                 u"Ort"_s,
                                 u"Frequenz"_s,
                                 u"geografischer Breite"_s,
                                 u"geografischer Länge"_s,
                                 u"Anmerkung"_s,
                                 u"Entfernung von Station 1"_s,
                                 u"Himmelsrichtung von Station 1"_s,
                                 u"Datum"_s};
    ASSERT_EQ(list->SortCombo->count(), 11);
    for (int i = 0; i < list->SortCombo->count(); ++i) {
        EXPECT_EQ(list->SortCombo->itemText(i), entries[i]);
    }
    EXPECT_EQ(list->SortCombo->objectName(), u"SortCombo"_s);
}

TEST_F(SortComboTest, IsSwitchedOffUntilSortierenSwitchesItOn)
{
    EXPECT_TRUE(IsReset());
    QTest::mouseClick(list->Command3, Qt::LeftButton);
    EXPECT_TRUE(list->SortCombo->isEnabled());
    EXPECT_EQ(list->SortCombo->currentText(), u"sortieren nach ..."_s);
}

TEST_F(SortComboTest, EachEntrySortsTheRecordsTheListAndTheFile)
{
    const struct {
        int entry;
        stations::ListKey keyAfterwards;
        const char* callsigns;
        const char* firstLine;
    } cases[] = {
        {1, stations::ListKey::Callsign, "DL1A DL2B DL3C DL4D DL5E ", "DL1A - Emil - Bonn"},
        {2, stations::ListKey::Name, "DL5E DL4D DL3C DL2B DL1A ", "Anna - DL5E - Celle"},
        {3, stations::ListKey::Place, "DL3C DL1A DL5E DL4D DL2B ", "Aalen - DL3C - Cara"},
        {4, stations::ListKey::Frequency, "DL5E DL4D DL1A DL2B DL3C ", "145.100 - DL5E - Anna"},
        {5, stations::ListKey::Latitude, "DL4D DL3C DL1A DL2B DL5E ",
         "48.30 - DL4D - Berta - Dachau"},
        {6, stations::ListKey::Longitude, "DL2B DL1A DL3C DL5E DL4D ",
         "7.00 - DL2B - Dora - Essen"},
        {7, stations::ListKey::Remark, "DL5E DL3C DL4D DL2B DL1A ", "a - DL5E - Anna - Celle"},
        {8, stations::ListKey::Callsign, "DL4D DL3C DL1A DL2B DL5E ",
         "6.677 km - DL4D - Berta - Dachau"},
        {9, stations::ListKey::Callsign, "DL4D DL3C DL1A DL2B DL5E ", ""},
        {10, stations::ListKey::Date, "DL4D DL1A DL5E DL2B DL3C ",
         "2020.01.01 - DL4D - Berta - Dachau"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(list->SortCombo->itemText(c.entry).toStdString());
        state.database = Stations();
        window.TakeDatabaseChange();
        const QSignalSpy changes(&window, &MainForm::Changed);
        SortBy(c.entry);
        if (c.entry != 9) {
            EXPECT_EQ(Held(), c.callsigns);
            EXPECT_EQ(Lines().front(), c.firstLine);
        }
        EXPECT_EQ(Saved(), Held());
        EXPECT_EQ(state.list.key, c.keyAfterwards);
        EXPECT_EQ(changes.count(), 1);
        EXPECT_TRUE(IsReset());
        EXPECT_EQ(Lines().size(), 5U);
    }
}

TEST_F(SortComboTest, TheDirectionCountsFromNorthOverEast)
{
    state.database = {};
    for (const auto& [callsign, position] :
         {std::pair<const char*, geo::GeoPosition>{"WEST", {48.35, 11.0}},
          {"SOUTH", {48.0, 11.45}},
          {"EAST", {48.35, 12.0}},
          {"NORTH", {49.0, 11.45}}}) {
        state.database.Append(stations::MakeRecord({callsign}, position));
    }
    window.TakeDatabaseChange();
    SortBy(9);
    EXPECT_EQ(Held(), "NORTH EAST SOUTH WEST ");
    EXPECT_EQ(Lines()[0], "0.00° - NORTH -  - ");
    EXPECT_EQ(Lines()[2], "180.00° - SOUTH -  - ");
}

TEST_F(SortComboTest, TheFirstEntryChangesNothing)
{
    const QSignalSpy changes(&window, &MainForm::Changed);
    ClickLine(2, Qt::ControlModifier);
    SortBy(0);
    EXPECT_EQ(Held(), "DL3C DL1A DL5E DL2B DL4D ");
    EXPECT_EQ(Marked(), Rows{2}) << "not even filled anew";
    EXPECT_EQ(state.list.key, stations::ListKey::Callsign);
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(IsReset());
}

TEST_F(SortComboTest, LeavingTheOpenSelectorWithEscapeSortsNothing)
{
    QTest::mouseClick(list->Command3, Qt::LeftButton);
    QTest::keyClick(list->SortCombo, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(list->SortCombo->view(), Qt::Key_Escape);
    EXPECT_EQ(Held(), "DL3C DL1A DL5E DL2B DL4D ");
    EXPECT_TRUE(list->isVisible());
}

TEST_F(SortComboTest, AnEmptyDatabaseIsNeitherSortedNorWritten)
{
    state.database = {};
    window.TakeDatabaseChange();
    const std::string before = GetFile("WORK.QTH");
    SortBy(8);
    EXPECT_EQ(state.list.key, stations::ListKey::Callsign);
    EXPECT_EQ(Lines(), Texts{});
    EXPECT_EQ(GetFile("WORK.QTH"), before);
    EXPECT_TRUE(IsReset());
    SortBy(3);
    EXPECT_EQ(state.list.key, stations::ListKey::Place) << "kept for the records to come";
}

TEST_F(SortComboTest, DistancesStayWithTheirLinesUntilTheNextFill)
{
    SortBy(8);
    const Texts lines = Lines();
    EXPECT_EQ(lines[0], "6.677 km - DL4D - Berta - Dachau");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_LE(std::stod(lines[i - 1]), std::stod(lines[i]));
        EXPECT_NE(lines[i].find(" km - " + state.database[i].Text(stations::Field::Callsign)),
                  std::string::npos);
    }
    EXPECT_EQ(state.list.key, stations::ListKey::Callsign);
    Type("Text1_0", u"JJ00AA"_s);
    EXPECT_EQ(Lines(), lines) << "as they were when they were sorted";
    ClickLine(0);
    EXPECT_EQ(Lines(), lines) << "loading a record fills nothing";
    Click("SA_0");
    EXPECT_EQ(Lines().front(), "DL4D - Berta - Dachau") << "the plain layout, not stale distances";
    EXPECT_EQ(Lines().size(), 6U);
}

TEST_F(SortComboTest, OtherKeysKeepTheirLayoutForLaterFills)
{
    SortBy(3);
    Click("SA_0");
    EXPECT_EQ(Lines().back(), "Musterdorf - QQ0AAA - Muster");
    Click("Command1_1");
    EXPECT_EQ(Lines().front(), "Aalen - DL3C - Cara");
}

TEST_F(SortComboTest, TheLinesUseTheRegionalSeparator)
{
    state.numberFormat = base::NumberFormat(",");
    SortBy(5);
    EXPECT_EQ(Lines().front(), "48,30 - DL4D - Berta - Dachau");
    SortBy(8);
    EXPECT_EQ(Lines().front(), "6,677 km - DL4D - Berta - Dachau");
}

TEST_F(SortComboTest, ALineThatIsChosenSwitchesTheSelectorOffAgain)
{
    QTest::mouseClick(list->Command3, Qt::LeftButton);
    ClickLine(1);
    EXPECT_TRUE(IsReset());
}

TEST_F(SortComboTest, AnOrderThatCannotBeWrittenIsTold)
{
    ASSERT_TRUE(QFile::setPermissions(u"WORK.QTH"_s, QFile::ReadOwner));
    SortBy(1);
    ASSERT_EQ(dialogs.said.size(), 1U);
    EXPECT_EQ(dialogs.said[0].title, u"Schreibfehler"_s);
    EXPECT_EQ(Held(), "DL1A DL2B DL3C DL4D DL5E ");
    EXPECT_TRUE(IsReset());
}

}  // namespace
}  // namespace ui
