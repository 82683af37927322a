#include "ui/main/EditCommands.h"

#include <filesystem>

#include <QAction>
#include <QGroupBox>
#include <QListView>
#include <QPushButton>

#include "stations/WorkingFile.h"
#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class EditCommandsTest : public MainFormFixture {
protected:
    void Add(const char* callsign, double latitude, double longitude, const char* remark = "")
    {
        ASSERT_TRUE(state.database.Append(
            stations::BuildRecord({.callsign = callsign,
                                   .name = {},
                                   .place = {},
                                   .frequency = {},
                                   .remark = remark,
                                   .date = "2001.02.03-04:05:06"},
                                  {.latitude = latitude, .longitude = longitude}, "")));
    }

    void Show() { window.TakeDatabaseChange(); }

    void Choose(const char* action) { Find<QAction>(action)->trigger(); }

    std::vector<int> Marks()
    {
        std::vector<int> rows;
        for (const QModelIndex& index :
             Find<QListView>("List1")->selectionModel()->selectedRows()) {
            rows.push_back(index.row());
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    std::vector<std::string> Lines()
    {
        const QAbstractItemModel* const model = Find<QListView>("List1")->model();
        std::vector<std::string> lines;
        for (int row = 0; row < model->rowCount(); ++row) {
            lines.push_back(model->index(row, 0).data().toString().toStdString());
        }
        return lines;
    }

    using Rows = std::vector<int>;
    using Texts = std::vector<std::string>;
};

TEST_F(EditCommandsTest, EqualEntriesAreRemovedAndTheListShowsTheNewOrder)
{
    Add("QQ3C", 49, 11);
    Add("QQ1A", 48, 11);
    Add("QQ3C", 49, 11);
    Add("QQ2B", 48, 11);
    Add("QQ1A", 48, 11);
    Show();
    Choose("MnuGEE");
    EXPECT_EQ(Lines(), (Texts{"48.00 - QQ1A -  - ", "48.00 - QQ2B -  - ", "49.00 - QQ3C -  - "}));
    EXPECT_EQ(stations::ReadDatabase("WORK.QTH").database.Count(), 3U);
}

TEST_F(EditCommandsTest, TheListShowsTheNewOrderAlsoWhenNothingIsRemoved)
{
    Add("QQ3C", 49, 11);
    Add("QQ1A", 48, 11);
    Show();
    Choose("MnuGEE");
    EXPECT_EQ(Lines(), (Texts{"48.00 - QQ1A -  - ", "49.00 - QQ3C -  - "}));
    EXPECT_EQ(stations::ReadDatabase("WORK.QTH").database[0], state.database[0]);
}

TEST_F(EditCommandsTest, DuplicatesAreMarkedAndShown)
{
    Add("QQ3C", 49, 11);
    Add("QQ1A", 48, 11);
    Add("QQ3C", 49, 11);
    Add("QQ2B", 48, 11);
    Add("QQ1A", 48, 11);
    Add("QQ1A", 48, 11);
    Show();
    EXPECT_FALSE(Find<QGroupBox>("Frame1")->isVisible());
    Choose("MnuDopMark");
    EXPECT_EQ(Marks(), (Rows{1, 2, 5}));
    EXPECT_TRUE(Find<QGroupBox>("Frame1")->isVisible());
    EXPECT_EQ(Find<QGroupBox>("Frame1")->title(), u"List"_s);
    EXPECT_EQ(state.list.mode, app::ListMode::Nop);
    EXPECT_TRUE(Find<QPushButton>("Command6")->isEnabled());
    EXPECT_TRUE(Find<QPushButton>("Command7")->isEnabled());
    EXPECT_EQ(stations::ReadDatabase("WORK.QTH").database[0], state.database[0])
        << "written sorted";
}

TEST_F(EditCommandsTest, EqualPositionsAreMarkedWhateverTheTexts)
{
    Add("QQ3C", 48, 11, "x");
    Add("QQ1A", 48, 11);
    Add("QQ9Z", 47, 11);
    Show();
    Choose("MnuDopMark");
    EXPECT_EQ(Marks(), Rows{});
    Choose("MnuGlPMark");
    EXPECT_EQ(Marks(), Rows{2});
}

TEST_F(EditCommandsTest, MarksOfTheUserDoNotRemain)
{
    Add("QQ1A", 48, 11);
    Add("QQ2B", 48, 12);
    Add("QQ2B", 48, 12);
    Show();
    QTest::mouseClick(Find<QPushButton>("Command4_1"), Qt::LeftButton);
    auto* const list = Find<QListView>("List1");
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Marks().size(), 3U);
    Choose("MnuDopMark");
    EXPECT_EQ(Marks(), Rows{2});
    EXPECT_EQ(Find<QGroupBox>("Frame1")->title(), u"remove => Station 2"_s);
    EXPECT_EQ(state.list.mode, app::ListMode::Clear) << "a mode in force stays";
}

TEST_F(EditCommandsTest, AnEmptyDatabaseIsNotWritten)
{
    std::filesystem::remove("WORK.QTH");
    for (const char* const action : {"MnuGEE", "MnuDopMark", "MnuGlPMark", "MnuMiWert"}) {
        Choose(action);
    }
    EXPECT_FALSE(std::filesystem::exists("WORK.QTH"));
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(EditCommandsTest, TheMeanOfTheMarkedStationsBecomesStation1)
{
    Add("QQ1A", 48, 179);
    Add("QQ2B", 50, -179);
    Add("QQ3C", 10, 20);
    Show();
    QTest::mouseClick(Find<QPushButton>("Command1_0"), Qt::LeftButton);
    auto* const list = Find<QListView>("List1");
    for (const int row : {0, 1}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    Choose("MnuMiWert");
    EXPECT_EQ(Text("Text14_0"), "MIWERT");
    EXPECT_EQ(Text("Text15_0") + Text("Text16_0") + Text("Text17_0") + Text("Text19_0"), "");
    EXPECT_EQ(Text("Text18_0"), "Mittelwert von 2 Stationen");
    EXPECT_EQ(Text("Text2_0"), "0");
    EXPECT_EQ(Text("Text3_0"), "49");
    EXPECT_EQ(Text("Text1_0"), "JN09AA");
    EXPECT_EQ(state.shown.position[0], (geo::GeoPosition{.latitude = 49.0, .longitude = 0.0}));
}

TEST_F(EditCommandsTest, TheMeanOfNothingChangesNothing)
{
    Add("QQ1A", 48, 11);
    Show();
    Choose("MnuMiWert");
    EXPECT_EQ(Text("Text14_0"), "QQ0AAA");
}

}  // namespace
}  // namespace ui
