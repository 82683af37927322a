#include "ui/map/MapHint.h"

#include <QToolTip>

#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

TEST(StationHint, TellsWhoItIsHowFarAndWhere)
{
    app::AppState state;
    state.shown.position[0] = {48.0, 11.0};
    stations::StationTexts texts;
    texts.callsign = "DL1ABC";
    texts.place = "Dachau";
    const geo::GeoPosition east{48.0, 11.1};
    const std::string hint =
        StationHint(state, stations::BuildRecord(texts, east, "2024.01.01-00:00:00"), east);
    EXPECT_EQ(hint.substr(0, hint.find("Entfernung")), "DL1ABC\nDachau\n");
    EXPECT_NE(hint.find("Entfernung = 7.4"), std::string::npos) << hint;
    EXPECT_NE(hint.find("Richtung von Station 1: 89.96 Grad"), std::string::npos) << hint;
}

// A plain map with one point that lies 10 pixels beside its place.
map::ReferenceTable WithOneWrong()
{
    map::ReferenceTable table;
    const double wrong = 10.0;
    table.Replace({{0, 0, 10, 49},
                   {1000, 0, 11, 49},
                   {0, 1000, 10, 48},
                   {1000, 1000, 11, 48},
                   {500 + wrong, 500, 10.5, 48.5}},
                  5);
    return table;
}

TEST(ReferenceHint, TellsNumberAndDeviation)
{
    app::AppState state;
    state.map.references = WithOneWrong();
    EXPECT_EQ(ReferenceHint(state, 4), "Referenzpunkt 5\nAbweichung von den \xC3\xBC"
                                       "brigen: 10.00 Pixel");
    state.map.references.SetReferenceMode(false);
    state.map.references.AddStation2Reference(1, 2, {3, 4});
    EXPECT_EQ(ReferenceHint(state, 0), "Referenzpunkt 1");
}

class HintTest : public GformFixture {
protected:
    QString HintAt(QPoint point) const
    {
        QHelpEvent event(QEvent::ToolTip, point, form->pane->Picture1->mapToGlobal(point));
        QCoreApplication::sendEvent(form->pane->Picture1, &event);
        // A hint that goes away does so a moment later.
        const bool gone = QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 500);
        return gone ? QString() : QToolTip::text();
    }
};

TEST_F(HintTest, RestingOnAMarkerTellsWhoseItIs)
{
    AddRecord({48.05, 11.0}, "DL1<b>ABC");
    Open(880, 620);
    Picture();
    // 5.56 km of 10 on a half height of 300.
    const QString hint = HintAt({400, 300 - 167});
    EXPECT_TRUE(hint.contains(u"DL1&lt;b&gt;ABC"_s)) << hint.toStdString();
    EXPECT_TRUE(hint.contains(u"Entfernung"_s));
    EXPECT_TRUE(HintAt({400, 300}).contains(u"S1"_s));
    EXPECT_TRUE(HintAt({100, 100}).isEmpty());
}

TEST_F(HintTest, RestingWhereTheReferencesGiveNoPositionTellsSo)
{
    Open(880, 620);
    EXPECT_TRUE(HintAt({200, 200}).isEmpty()) << "the polar view";
    LoadMap(MapFile(400, 300));
    EXPECT_TRUE(HintAt({200, 200}).isEmpty()) << "the edges give one";
    Choose("MnuS2Ref");
    for (const int x : {100, 150, 250}) {  // on one line
        state.shown.position[1] = {48.0 - 0.001 * x, 11.0 + 0.001 * x};
        ClickAt(x, x);
        Picture();
        EXPECT_TRUE(HintAt({300, 50}).contains(u"keine Position"_s)) << x;
        EXPECT_TRUE(HintAt({x, x}).contains(u"Referenzpunkt"_s)) << "a marker comes first";
    }
    state.shown.position[1] = {48.0, 11.35};
    ClickAt(350, 0);
    Picture();
    EXPECT_TRUE(HintAt({300, 50}).isEmpty());
}

TEST_F(HintTest, RestingOnAReferenceTellsItsNumber)
{
    Open(880, 620);
    LoadMap(MapFile(400, 300));
    Choose("MnuRefInf");
    Picture();
    EXPECT_TRUE(HintAt({1, 1}).contains(u"Referenzpunkt 1"_s));
    EXPECT_TRUE(HintAt({399, 298}).contains(u"Referenzpunkt 4"_s));
}

}  // namespace
}  // namespace ui
