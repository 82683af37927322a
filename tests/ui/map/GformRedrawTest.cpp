// Every command that changes what is shown shows it at once.

#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class GformRedrawTest : public GformFixture {
protected:
    // A map with references at its corners, two records, one of them marked, and both stations.
    void OpenWithMap()
    {
        AddRecord({48.05, 11.05}, "MARKED");
        AddRecord({48.15, 11.15}, "PLAIN");
        mainWindow.marked = {0};
        Open();
        LoadMap(MapFile(700, 500));
        state.map.bounds = {.firstLatitude = 48.3,
                            .secondLatitude = 47.9,
                            .firstLongitude = 10.9,
                            .secondLongitude = 11.3};
        Choose("MnuRefInf");
    }
};

TEST_F(GformRedrawTest, ATogglingItemChangesThePictureAndBringsItBack)
{
    OpenWithMap();
    for (const char* const item :
         {"MnuSel", "MnuAlle", "MnuS1Anz", "MnuS2Anz", "MnuRef", "MnuRast"}) {
        SCOPED_TRACE(item);
        const QImage before = Picture();
        Choose(item);
        EXPECT_NE(Picture(), before);
        Choose(item);
        EXPECT_EQ(Picture(), before);
    }
    EXPECT_TRUE(dialogs.said.empty());
}

TEST_F(GformRedrawTest, AClickModeRedraws)
{
    OpenWithMap();
    for (const char* const item : {"MnuSet1", "MnuNop", "MnuRouF"}) {
        SCOPED_TRACE(item);
        const QImage before = Picture();
        const double step = 0.02 * static_cast<double>(state.database.Count());
        AddRecord({48.05, 11.0 + step}, "NEU");
        ASSERT_EQ(Picture(), before) << "nothing redraws by itself";
        Choose(item);
        EXPECT_NE(Picture(), before);
    }
}

TEST_F(GformRedrawTest, MarkedAndUnmarkedStationsHaveAnItemEach)
{
    OpenWithMap();
    state.configuration.showStation1 = false;
    state.configuration.showStation2 = false;
    Choose("MnuClrAll");
    state.map.edges = {.left = 10.9, .right = 11.3, .upper = 48.3, .lower = 47.9};
    form->pane->Redraw();
    const auto shown = [this](std::size_t record) {
        // The frame of a symbol, on its plate, in the ink of the map.
        const geo::GeoPosition position = state.database[record].Position();
        const int x = qRound((position.longitude - 10.9) / 0.4 * 700);
        const int y = qRound((48.3 - position.latitude) / 0.4 * 500);
        return Picture().pixel(x - 2, y - 2) == qRgb(0xCC, 0xCC, 0xCC);
    };
    EXPECT_TRUE(shown(0));
    EXPECT_TRUE(shown(1));
    Choose("MnuSel");
    EXPECT_FALSE(shown(0)) << "marked";
    EXPECT_TRUE(shown(1));
    Choose("MnuAlle");
    EXPECT_FALSE(shown(1)) << "not marked";
    Choose("MnuSel");
    EXPECT_TRUE(shown(0));
}

TEST_F(GformRedrawTest, EachLabelHasItsOwnPicture)
{
    stations::StationTexts texts = {.callsign = "QQ1A",
                                    .name = "Name",
                                    .place = "Ort am See",
                                    .frequency = "145.500",
                                    .remark = "Anm",
                                    .date = {}};
    state.database.Append(stations::BuildRecord(texts, {48.05, 11.05}, "2024.01.01-00:00:00"));
    Open();
    std::vector<QImage> seen;
    for (const char* const item : {"MnuRZ2", "MnuRZ3", "MnuRZ4", "MnuRZ5", "MnuRZ1"}) {
        Choose(item);
        for (const QImage& other : seen) {
            EXPECT_NE(Picture(), other) << item;
        }
        seen.push_back(Picture());
    }
}

TEST_F(GformRedrawTest, ChangesOfTheReferencesAreSeenAtOnce)
{
    OpenWithMap();
    for (const char* const item : {"MnuClrLast", "MnuRefInf", "MnuClrAll"}) {
        SCOPED_TRACE(item);
        const QImage before = Picture();
        Choose(item);
        EXPECT_NE(Picture(), before);
    }
}

TEST_F(GformRedrawTest, NewColoursOfTheDesktopAreTakenUp)
{
    Open();
    const QImage before = Picture();
    QPalette palette = form->palette();
    palette.setColor(QPalette::Highlight, Qt::darkGreen);
    form->setPalette(palette);
    EXPECT_NE(Picture(), before);
}

TEST_F(GformRedrawTest, AGridThatCannotBeMadeIsTold)
{
    OpenWithMap();
    // A map of a few hundred degrees has more lines than a picture can show.
    state.map.bounds = {.firstLatitude = 5e6,
                        .secondLatitude = -5e6,
                        .firstLongitude = -5e6,
                        .secondLongitude = 5e6};
    Choose("MnuRefInf");
    const QImage before = Picture();
    Choose("MnuRast");
    EXPECT_EQ(dialogs.said.size(), 1U);
    EXPECT_FALSE(Checked("MnuRast"));
    EXPECT_EQ(Picture(), before);
}

}  // namespace
}  // namespace ui
