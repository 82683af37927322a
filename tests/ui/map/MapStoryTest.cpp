// An afternoon with a scanned map, on the real windows.

#include <cmath>
#include <memory>

#include <QAction>
#include <QImage>
#include <QScrollBar>

#include "base/FileBytes.h"
#include "stations/WorkingFile.h"
#include "ui/main/MainFormFixture.h"
#include "ui/map/Gform.h"
#include "ui/map/MapPane.h"
#include "ui/map/MarkerPainter.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

constexpr QColor kGround{0xE8, 0xE4, 0xD0};

class MapStoryTest : public MainFormFixture {
protected:
    void SetUp() override
    {
        MainFormFixture::SetUp();
        form = std::make_unique<Gform>(state, image, window, dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        QObject::connect(&window, &MainForm::Changed, form.get(), [this] { form->AutoRedraw(); });
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    // The map is turned by some degrees against north.
    static geo::GeoPosition PositionOf(double x, double y)
    {
        return {.latitude = 48.9 - 0.00030 * y - 0.00002 * x,
                .longitude = 10.8 + 0.00045 * x - 0.00003 * y};
    }

    void Choose(const char* name) const
    {
        auto* const action = form->findChild<QAction*>(QLatin1StringView(name));
        ASSERT_NE(action, nullptr) << name;
        ASSERT_TRUE(action->isEnabled()) << name;
        action->trigger();
    }

    // Scrolls until the pixel of the image is on the surface, and clicks it.
    void ClickPixel(int x, int y) const
    {
        form->pane->HScroll1->setValue(x - 200);
        form->pane->VScroll1->setValue(y - 150);
        QTest::mouseClick(
            form->pane->Picture1, Qt::LeftButton, {},
            QPoint(x - form->pane->HScroll1->value(), y - form->pane->VScroll1->value()));
    }

    void TypeStation2(geo::GeoPosition position)
    {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        Type("Text2_1", QString::number(position.longitude, 'f', 6));
        Type("Text3_1", QString::number(position.latitude, 'f', 6));
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    void LoadMap()
    {
        dialogs.files.push_back(map);
        Choose("MnuGLoad");
    }

    // True when the surface shows a marker's square within a pixel of a pixel of the image.
    bool MarkerStandsAt(int x, int y) const
    {
        form->pane->HScroll1->setValue(x - 200);
        form->pane->VScroll1->setValue(y - 150);
        const QImage picture = form->pane->Picture1->grab().toImage();
        for (int dy = -1; dy <= 1; ++dy) {
            for (int dx = -1; dx <= 1; ++dx) {
                const QPoint centre(x - form->pane->HScroll1->value() + dx,
                                    y - form->pane->VScroll1->value() + dy);
                if (IsSquare(picture, centre)) {
                    return true;
                }
            }
        }
        return false;
    }

    static bool IsSquare(const QImage& picture, QPoint centre)
    {
        const QColor plate = picture.pixelColor(centre);
        if (plate == kGround || plate == kMapInk) {
            return false;
        }
        for (int dy = -3; dy <= 3; ++dy) {
            for (int dx = -3; dx <= 3; ++dx) {
                const bool ink = std::max(std::abs(dx), std::abs(dy)) == 2;
                if (picture.pixelColor(centre + QPoint(dx, dy)) != (ink ? kMapInk : plate)) {
                    return false;
                }
            }
        }
        return true;
    }

    MapImage image;
    std::unique_ptr<Gform> form;
    QString map = folder.filePath(u"karte.png"_s);
};

TEST_F(MapStoryTest, FromAScanToLandmarksAndBack)
{
    QImage scan(3000, 2000, QImage::Format_RGB32);
    scan.fill(kGround);
    ASSERT_TRUE(scan.save(map));
    LoadMap();
    ASSERT_TRUE(state.map.mapImage);

    // Four places of the map, typed into Station 2 and clicked.
    const QPoint places[] = {{150, 120}, {2850, 200}, {300, 1880}, {2700, 1750}};
    for (const QPoint& place : places) {
        TypeStation2(PositionOf(place.x(), place.y()));
        Choose("MnuS2Ref");
        ClickPixel(place.x(), place.y());
    }
    ASSERT_EQ(state.map.references.RefCount(), 4);
    EXPECT_TRUE(dialogs.said.empty());

    // A station of the database lands at its true place.
    stations::StationTexts texts;
    texts.callsign = "DL1ABC";
    ASSERT_TRUE(state.database.Append(
        stations::BuildRecord(texts, PositionOf(1400, 900), "2024.05.01-12:00:00")));
    window.TakeDatabaseChange();
    EXPECT_TRUE(MarkerStandsAt(1400, 900));
    EXPECT_FALSE(MarkerStandsAt(1430, 930));

    // Adjustment and UI-View file are written; loading the image again finds the references.
    Choose("MnuStoJ");
    Choose("MnuInf");
    EXPECT_TRUE(dialogs.said.empty());
    EXPECT_TRUE(QFile::exists(folder.filePath(u"karte.JUS"_s)));
    EXPECT_TRUE(QFile::exists(folder.filePath(u"karte.INF"_s)));
    const auto points = state.map.references.Points();
    const std::vector<map::ReferencePoint> placed(points.begin(), points.end());
    LoadMap();
    const auto found = state.map.references.Points();
    EXPECT_EQ(std::vector(found.begin(), found.end()), placed);
    EXPECT_TRUE(state.map.references.ReferenceMode());
    EXPECT_TRUE(MarkerStandsAt(1400, 900));

    // Two landmarks end up in the working file.
    Choose("MnuAddLand");
    ClickPixel(1000, 800);
    ClickPixel(2000, 1200);
    const stations::DatabaseContents file = stations::ReadDatabase(state.configuration.workingFile);
    ASSERT_EQ(file.database.Count(), 3U);
    for (const std::size_t k : {1U, 2U}) {
        const stations::StationRecord& record = file.database[k];
        EXPECT_EQ(record.Text(stations::Field::Callsign), k == 1 ? "LM001" : "LM002");
        EXPECT_TRUE(record.Text(stations::Field::Remark).starts_with("Projektionsabw: 0.00"));
        const geo::GeoPosition place = k == 1 ? PositionOf(1000, 800) : PositionOf(2000, 1200);
        EXPECT_NEAR(record.Latitude(), place.latitude, 1e-5);
        EXPECT_NEAR(record.Longitude(), place.longitude, 1e-5);
    }
    EXPECT_TRUE(MarkerStandsAt(1000, 800));
    EXPECT_TRUE(MarkerStandsAt(2000, 1200));

    // The reference nearest to a click goes.
    Choose("MnuRefClr");
    ClickPixel(2900, 300);
    ASSERT_EQ(state.map.references.RefCount(), 3);
    EXPECT_EQ(state.map.references.Points()[1].X, 300.0);

    // A route, with its places joined.
    Choose("MnuRouS");
    ClickPixel(1100, 1000);
    ClickPixel(1300, 1000);
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteContinue);
    form->pane->HScroll1->setValue(1000);
    form->pane->VScroll1->setValue(900);
    QImage picture = form->pane->Picture1->grab().toImage();
    EXPECT_LT(picture.pixelColor(200, 100).red(), 0x60);
    EXPECT_EQ(picture.pixelColor(200, 110), kGround);

    // A click becomes Station 1 in the main window.
    Choose("MnuSet1");
    ClickPixel(1500, 1100);
    EXPECT_EQ(Text("Text14_0"), "Station 1");
    EXPECT_EQ(Text("Text16_0"), "X/Y: 1500 1100");
    EXPECT_NEAR(Field("Text3_0")->text().toDouble(), PositionOf(1500, 1100).latitude, 1e-5);

    // The polar view, and back by loading the map again.
    Choose("MnuPicOff");
    EXPECT_FALSE(state.map.mapImage);
    picture = form->pane->Picture1->grab().toImage();
    EXPECT_EQ(picture.pixelColor(3, 3), QColor(Qt::white));
    LoadMap();
    EXPECT_TRUE(state.map.mapImage);
    EXPECT_EQ(state.map.references.RefCount(), 4) << "as saved";
    EXPECT_TRUE(MarkerStandsAt(1000, 800));
}

}  // namespace
}  // namespace ui
