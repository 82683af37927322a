#include "ui/map/Gform.h"

#include <QDialog>
#include <QWheelEvent>

#include "ui/map/GformFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class GformTest : public GformFixture {
protected:
    QRect Surface() const { return form->pane->Picture1->geometry(); }

    void Turn(QPoint eighths, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QPointF at(50, 50);
        QWheelEvent event(at, form->pane->Picture1->mapToGlobal(at), {}, eighths, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(form->pane->Picture1, &event);
    }

    std::int16_t Zoom() const { return state.configuration.zoomLevel; }
};

TEST_F(GformTest, HasItsControlsUnderTheirNames)
{
    Open();
    EXPECT_EQ(form->objectName(), u"Gform"_s);
    EXPECT_EQ(form->windowTitle(), u"Form1"_s);
    EXPECT_EQ(form->pane->Command2->text(), u"OUT"_s);
    EXPECT_EQ(form->pane->Command1->text(), u"IN"_s);
    for (const char* const name :
         {"Command1", "Command2", "List1", "HScroll1", "VScroll1", "Picture1"}) {
        EXPECT_NE(form->findChild<QWidget*>(QLatin1StringView(name)), nullptr) << name;
    }
    for (const QWidget* const widget : std::initializer_list<const QWidget*>{
             form->pane->Picture1, form->pane->HScroll1, form->pane->VScroll1, form->pane->List1}) {
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
}

TEST_F(GformTest, ButtonsZoomAndStopAtTheEnds)
{
    Open();
    EXPECT_EQ(Zoom(), 14);
    QTest::mouseClick(form->pane->Command1, Qt::LeftButton);
    EXPECT_EQ(Zoom(), 13);
    QTest::mouseClick(form->pane->Command2, Qt::LeftButton);
    QTest::mouseClick(form->pane->Command2, Qt::LeftButton);
    EXPECT_EQ(Zoom(), 15);
    for (int i = 0; i < 40; ++i) {
        QTest::mouseClick(form->pane->Command2, Qt::LeftButton);
    }
    EXPECT_EQ(Zoom(), 33);
    for (int i = 0; i < 40; ++i) {
        QTest::mouseClick(form->pane->Command1, Qt::LeftButton);
    }
    EXPECT_EQ(Zoom(), 1);
}

TEST_F(GformTest, ZoomingAtTheEndStillRedraws)
{
    state.configuration.zoomLevel = 1;
    Open();
    const QImage before = Picture();
    AddRecord({48.00005, 11.0}, "NEU");
    EXPECT_EQ(Picture(), before) << "nothing redraws by itself";
    QTest::mouseClick(form->pane->Command1, Qt::LeftButton);
    EXPECT_EQ(Zoom(), 1);
    EXPECT_NE(Picture(), before);

    state.configuration.zoomLevel = 33;
    form->pane->Redraw();
    const QImage far = Picture();
    AddRecord({-30.0, 11.0}, "FERN");
    QTest::mouseClick(form->pane->Command2, Qt::LeftButton);
    EXPECT_EQ(Zoom(), 33);
    EXPECT_NE(Picture(), far);
}

TEST_F(GformTest, ZoomLevelOutlivesTheWindow)
{
    Open();
    QTest::mouseClick(form->pane->Command2, Qt::LeftButton);
    form.reset();
    Open();
    EXPECT_EQ(Zoom(), 15);
}

TEST_F(GformTest, WheelAndKeysZoomThePolarView)
{
    Open();
    Turn({0, 120});
    EXPECT_EQ(Zoom(), 13);
    Turn({0, -240});
    EXPECT_EQ(Zoom(), 15);
    Turn({0, -60});
    EXPECT_EQ(Zoom(), 15) << "half a notch is kept";
    Turn({0, -60});
    EXPECT_EQ(Zoom(), 16);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Plus);
    EXPECT_EQ(Zoom(), 15);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Minus);
    EXPECT_EQ(Zoom(), 16);
}

TEST_F(GformTest, WheelAndKeysScrollTheMap)
{
    Open();
    LoadMap(MapFile(2000, 1500));
    const std::int16_t zoom = Zoom();
    Turn({0, -120});
    EXPECT_EQ(form->pane->VScroll1->value(), 60);
    EXPECT_EQ(form->pane->HScroll1->value(), 0);
    Turn({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(form->pane->HScroll1->value(), 60);
    Turn({-120, 0});
    EXPECT_EQ(form->pane->HScroll1->value(), 120);
    Turn({0, 120});
    EXPECT_EQ(form->pane->VScroll1->value(), 0);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Down);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Right);
    EXPECT_EQ(form->pane->VScroll1->value(), 20);
    EXPECT_EQ(form->pane->HScroll1->value(), 140);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Up);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Left);
    EXPECT_EQ(form->pane->VScroll1->value(), 0);
    EXPECT_EQ(form->pane->HScroll1->value(), 120);
    QTest::keyClick(form->pane->Picture1, Qt::Key_Plus);
    EXPECT_EQ(Zoom(), zoom);
}

TEST_F(GformTest, SurfaceFillsTheWindowInThePolarView)
{
    Open(880, 620);
    EXPECT_EQ(Surface(), QRect(0, 0, 800, 600));
    Resize(500, 300);
    EXPECT_EQ(Surface(), QRect(0, 0, 420, 280));
    EXPECT_FALSE(form->pane->HScroll1->isVisible());
    EXPECT_FALSE(form->pane->VScroll1->isVisible());
}

TEST_F(GformTest, SmallImageShrinksTheSurface)
{
    Open(880, 620);
    LoadMap(MapFile(400, 300));
    EXPECT_EQ(Surface(), QRect(0, 0, 400, 300));
    LeaveAndComeBack();
    EXPECT_EQ(Surface(), QRect(0, 0, 400, 300));
    Choose("MnuPicOff");
    EXPECT_EQ(Surface(), QRect(0, 0, 800, 600));
}

TEST_F(GformTest, LargeImageIsShownFromItsUpperLeftCorner)
{
    Open(880, 620);
    LoadMap(MapFile(2000, 1500));
    EXPECT_EQ(Surface(), QRect(0, 0, 780, 580));
    EXPECT_EQ(form->pane->HScroll1->geometry(), QRect(0, 580, 780, 20));
    EXPECT_EQ(form->pane->VScroll1->geometry(), QRect(780, 0, 20, 580));
    EXPECT_EQ(form->pane->HScroll1->value(), 0);
    EXPECT_EQ(form->pane->VScroll1->value(), 0);
    // The last clip reaches the right and the lower edge.
    EXPECT_EQ(form->pane->HScroll1->maximum(), 2000 - 780);
    EXPECT_EQ(form->pane->VScroll1->maximum(), 1500 - 580);
}

TEST_F(GformTest, OneBarIsEnoughForOneDirection)
{
    Open(880, 620);
    LoadMap(MapFile(2000, 300));
    EXPECT_TRUE(form->pane->HScroll1->isVisible());
    EXPECT_FALSE(form->pane->VScroll1->isVisible());
    EXPECT_EQ(Surface(), QRect(0, 0, 800, 300));
}

TEST_F(GformTest, ScrollingMovesTheClip)
{
    QImage picture(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(x % 256, y % 256, x / 256 * 16 + y / 256));
        }
    }
    const QString file = folder.filePath(u"karte.png"_s);
    ASSERT_TRUE(picture.save(file));
    state.configuration.showStation1 = false;
    state.configuration.showStation2 = false;
    Open(880, 620);
    LoadMap(file);
    const QSize size(780, 580);
    EXPECT_EQ(Picture(), picture.copy({{0, 0}, size}));
    form->pane->HScroll1->setValue(333);
    EXPECT_EQ(Picture(), picture.copy({{333, 0}, size}));
    form->pane->VScroll1->setValue(form->pane->VScroll1->maximum());
    EXPECT_EQ(Picture(), picture.copy({{333, 620}, size}));

    // A dragged scroll box is followed at every position.
    form->pane->HScroll1->setSliderDown(true);
    form->pane->HScroll1->setSliderPosition(500);
    EXPECT_EQ(Picture(), picture.copy({{500, 620}, size}));
    form->pane->HScroll1->setSliderDown(false);

    LeaveAndComeBack();
    EXPECT_EQ(Picture(), picture.copy({{0, 0}, size})) << "every activation goes back";
}

TEST_F(GformTest, ResizingKeepsTheClipWithinTheImage)
{
    Open(480, 320);
    LoadMap(MapFile(1000, 800));
    form->pane->HScroll1->setValue(form->pane->HScroll1->maximum());
    form->pane->VScroll1->setValue(form->pane->VScroll1->maximum());
    Resize(880, 620);
    EXPECT_EQ(form->pane->HScroll1->value(), 1000 - 780);
    EXPECT_EQ(form->pane->VScroll1->value(), 800 - 580);
    Resize(1200, 900);
    EXPECT_EQ(Surface(), QRect(0, 0, 1000, 800));
    EXPECT_EQ(form->pane->HScroll1->value(), 0);
}

TEST_F(GformTest, TinyWindowIsLaidOutAsIfItWereTwentyUnits)
{
    Open();
    form->centralWidget()->resize(10, 10);
    QCoreApplication::processEvents();
    EXPECT_EQ(Surface().size(), QSize(20, 20));
    EXPECT_EQ(Picture().size(), QSize(20, 20));
}

TEST_F(GformTest, ActivationBringsTheStationsUpToDateAndEmptiesTheRoute)
{
    Open();
    LoadMap(MapFile(400, 300));
    Choose("MnuRouS");
    ClickAt(10, 10);
    ClickAt(100, 10);
    const QImage withRoute = Picture();
    mainWindow.calls.clear();
    LeaveAndComeBack();
    EXPECT_EQ(mainWindow.calls, std::vector<std::string>{"S1S2_Update"});
    EXPECT_NE(Picture(), withRoute);
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteStart) << "the route is empty";
}

TEST_F(GformTest, OwnMessageBoxIsNoActivation)
{
    // A real window takes the activation and gives it back, as a message box does.
    class Boxes : public ScriptedDialogs {
    public:
        void Inform(QWidget* parent, const QString& title, const QString& text,
                    const QString& /*informative*/) override
        {
            ScriptedDialogs::Inform(parent, title, text);
            QDialog box(parent);
            box.show();
            box.activateWindow();
            ASSERT_TRUE(QTest::qWaitFor(
                [&box] { return QGuiApplication::focusWindow() == box.windowHandle(); }));
            box.hide();
        }
    } boxes;
    form = std::make_unique<Gform>(state, image, mainWindow, boxes);
    form->setAttribute(Qt::WA_DeleteOnClose, false);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    Resize(480, 320);
    boxes.files.push_back(MapFile(1000, 800));
    Choose("MnuGLoad");
    form->pane->HScroll1->setValue(50);
    Choose("MnuRouS");
    ClickAt(10, 10);
    mainWindow.calls.clear();

    Choose("MnuStoJ");  // fewer than three references: a message
    ASSERT_EQ(boxes.said.size(), 1U);
    form->activateWindow();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == form->windowHandle(); }));
    EXPECT_TRUE(mainWindow.calls.empty());
    EXPECT_EQ(form->pane->HScroll1->value(), 50);
    Choose("MnuRouF");
    EXPECT_EQ(state.map.clickMode, app::ClickMode::RouteContinue) << "the route is still there";

    // The box of a landmark that cannot be written.
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"WORK.QTH"_s));
    Choose("MnuAddLand");
    mainWindow.calls.clear();
    ClickAt(10, 10);
    ASSERT_EQ(boxes.said.size(), 2U);
    form->activateWindow();
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == form->windowHandle(); }));
    EXPECT_EQ(mainWindow.calls, std::vector<std::string>{"TakeDatabaseChange"});
    EXPECT_EQ(form->pane->HScroll1->value(), 50);
    mainWindow.calls.clear();

    LeaveAndComeBack();
    EXPECT_EQ(mainWindow.calls, std::vector<std::string>{"S1S2_Update"});
    EXPECT_EQ(form->pane->HScroll1->value(), 0);
}

TEST_F(GformTest, ReopeningShowsTheSamePicture)
{
    Open(480, 320);
    LoadMap(MapFile(1000, 800));
    const QImage before = Picture();
    form.reset();
    Open(480, 320);
    EXPECT_TRUE(state.map.mapImage);
    EXPECT_EQ(Picture(), before);
}

TEST_F(GformTest, RedrawsByItselfOnlyWithAutoredraw)
{
    Open();
    const QImage before = Picture();
    AddRecord({48.03, 11.0}, "DL1ABC");
    form->AutoRedraw();
    EXPECT_EQ(Picture(), before);
    state.configuration.autoRedraw = true;
    mainWindow.calls.clear();
    form->AutoRedraw();
    EXPECT_NE(Picture(), before);
    EXPECT_EQ(mainWindow.calls, std::vector<std::string>{"S1S2_Update"});
}

TEST_F(GformTest, AngleTrueDisplayLeavesTheMap)
{
    Open();
    const QImage polar = Picture();
    LoadMap(MapFile(400, 300));
    EXPECT_NE(Picture(), polar);
    Choose("MnuPicOff");
    EXPECT_EQ(Picture(), polar);
}

TEST_F(GformTest, CloseItemClosesTheWindow)
{
    Open();
    Choose("MnuClose");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(GformTest, PropertiesAreListedAndFoldAway)
{
    Open();
    const int narrow = form->pane->List1->width();
    Choose("MnuEig");
    ASSERT_EQ(form->pane->List1->count(), 6);
    EXPECT_EQ(form->pane->List1->item(0)->text(), u"Bildmodus:  aus"_s);
    EXPECT_GE(form->pane->List1->width(), narrow);
    EXPECT_TRUE(form->pane->List1->hasFocus());

    LoadMap(MapFile(400, 300));
    Choose("MnuRefInf");
    QTest::mouseClick(form->pane->List1->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(form->pane->List1->count(), 10) << "emptied first";
    EXPECT_EQ(form->pane->List1->item(0)->text(), u"Bildmodus:  ein"_s);
    EXPECT_GT(form->pane->List1->width(), narrow) << "wide enough to be read";
    QTest::keyClick(form->pane->List1, Qt::Key_Escape);
    EXPECT_EQ(form->pane->List1->width(), narrow);
    EXPECT_TRUE(form->pane->Picture1->hasFocus());
}

}  // namespace
}  // namespace ui
