#include "ui/main/CfgForm.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalSpy>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class CfgFormTest : public MainFormFixture {
protected:
    void SetUp() override
    {
        MainFormFixture::SetUp();
        form = window.findChild<CfgForm*>();
        ASSERT_NE(form, nullptr);
    }

    void Open()
    {
        Find<QAction>("MnuConfig")->trigger();
        ASSERT_TRUE(QTest::qWaitFor([this] { return form->isActiveWindow(); }));
    }

    // On its sign or the beginning of its text: a button may be wider than what can be clicked.
    static void ClickOn(QAbstractButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
    }

    CfgForm* form = nullptr;
};

TEST_F(CfgFormTest, ControlsCarryTheirNamesAndCaptions)
{
    EXPECT_EQ(form->objectName(), u"CfgForm"_s);
    EXPECT_EQ(form->windowTitle(), u"Konfiguration"_s);
    const struct {
        QString name;
        QString caption;
    } frames[] = {
        {u"Frame1"_s, u"Grad-Format"_s},
        {u"Frame2"_s, u"Gauss Krüger Normierung"_s},
        {u"Frame3"_s, u"Listing"_s},
    };
    for (const auto& f : frames) {
        auto* const frame = form->findChild<QGroupBox*>(f.name);
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(frame->title(), f.caption);
    }
    const struct {
        QAbstractButton* button;
        QString name;
        QString frame;
        QString caption;
    } buttons[] = {
        {form->Option1, u"Option1"_s, u"Frame1"_s, u"G-M-S (Sekunden)"_s},
        {form->Option2, u"Option2"_s, u"Frame1"_s, u"G-M-H (Hundertstel Minuten)"_s},
        {form->Option3, u"Option3"_s, u"Frame2"_s, u"WGS84 (nur Süddeutschl.)"_s},
        {form->Option4, u"Option4"_s, u"Frame2"_s, u"ED50"_s},
        {form->Option5[0], u"Option5_0"_s, u"Frame3"_s, u"G-M-S / G-M-H"_s},
        {form->Option5[1], u"Option5_1"_s, u"Frame3"_s, u"Grad"_s},
        {form->Option5[2], u"Option5_2"_s, u"Frame3"_s, u"UTM"_s},
        {form->Option5[3], u"Option5_3"_s, u"Frame3"_s, u"Locator"_s},
        {form->Check1, u"Check1"_s, u"CfgForm"_s, u"Autoredraw"_s},
        {form->Check2, u"Check2"_s, u"CfgForm"_s, u"Himmelsrichtung"_s},
        {form->Command1, u"Command1"_s, u"CfgForm"_s, u"O.k."_s},
        {form->Command2, u"Command2"_s, u"CfgForm"_s, u"abbrechen"_s},
    };
    for (const auto& b : buttons) {
        SCOPED_TRACE(b.name.toStdString());
        EXPECT_EQ(b.button->objectName(), b.name);
        EXPECT_EQ(b.button->parentWidget()->objectName(), b.frame);
        EXPECT_EQ(b.button->text(), b.caption);
    }
}

TEST_F(CfgFormTest, OpensModalWithTheSettingsOfTheConfiguration)
{
    Open();
    EXPECT_TRUE(form->isModal());
    EXPECT_TRUE(form->Option2->isChecked()) << "G-M-H";
    EXPECT_TRUE(form->Option4->isChecked()) << "ED50";
    EXPECT_TRUE(form->Option5[0]->isChecked());
    EXPECT_FALSE(form->Check1->isChecked());
    EXPECT_FALSE(form->Check2->isChecked());
    ClickOn(form->Command2);

    state.configuration.degreeFormat = geo::DegreeMinuteMode::Seconds;
    state.configuration.datum = 0;
    state.configuration.listingMode = stations::ListingMode::Locator;
    state.configuration.autoRedraw = true;
    state.configuration.compassDirection = true;
    Open();
    EXPECT_TRUE(form->Option1->isChecked());
    EXPECT_FALSE(form->Option2->isChecked());
    EXPECT_TRUE(form->Option3->isChecked());
    EXPECT_FALSE(form->Option4->isChecked());
    EXPECT_TRUE(form->Option5[3]->isChecked());
    EXPECT_FALSE(form->Option5[0]->isChecked());
    EXPECT_TRUE(form->Check1->isChecked());
    EXPECT_TRUE(form->Check2->isChecked());
}

TEST_F(CfgFormTest, AnyDegreeFormatButZeroIsHundredths)
{
    state.configuration.degreeFormat = static_cast<geo::DegreeMinuteMode>(200);
    Open();
    EXPECT_TRUE(form->Option2->isChecked());
}

TEST_F(CfgFormTest, SettingsThatNoButtonStandsForSelectNoneAndAreKept)
{
    state.configuration.datum = 7;
    state.configuration.listingMode = static_cast<stations::ListingMode>(-2);
    Open();
    EXPECT_FALSE(form->Option3->isChecked());
    EXPECT_FALSE(form->Option4->isChecked());
    for (const QRadioButton* const option : form->Option5) {
        EXPECT_FALSE(option->isChecked());
    }
    ClickOn(form->Command1);
    EXPECT_EQ(state.configuration.datum, 7);
    EXPECT_EQ(static_cast<int>(state.configuration.listingMode), -2);
}

TEST_F(CfgFormTest, OkTakesEverySettingOver)
{
    Open();
    ClickOn(form->Option3);
    ClickOn(form->Option5[2]);
    ClickOn(form->Check1);
    ClickOn(form->Check2);
    EXPECT_EQ(state.configuration, stations::Configuration()) << "only a copy until then";
    ClickOn(form->Command1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(state.configuration.datum, 0);
    EXPECT_EQ(state.configuration.listingMode, stations::ListingMode::Utm);
    EXPECT_TRUE(state.configuration.autoRedraw);
    EXPECT_TRUE(state.configuration.compassDirection);
    EXPECT_TRUE(state.session.configurationChanged);
    Open();
    ClickOn(form->Option4);
    ClickOn(form->Check1);
    ClickOn(form->Check2);
    ClickOn(form->Command1);
    EXPECT_EQ(state.configuration.datum, 1);
    EXPECT_FALSE(state.configuration.autoRedraw);
    EXPECT_FALSE(state.configuration.compassDirection);
}

TEST_F(CfgFormTest, OkLeavesTheDegreeFormatAsItWas)
{
    const std::string seconds = Text("Text6_1");
    Open();
    ClickOn(form->Option1);
    EXPECT_TRUE(form->Option1->isChecked());
    ClickOn(form->Command1);
    EXPECT_EQ(state.configuration.degreeFormat, geo::DegreeMinuteMode::Hundredths);
    EXPECT_EQ(Text("Text6_1"), seconds);
    Open();
    EXPECT_TRUE(form->Option2->isChecked()) << "and the choice is forgotten";
}

TEST_F(CfgFormTest, OkShowsBothStationsAndTheirDirectionsAnew)
{
    Type("Text1_1", u"JN58TH"_s);
    const std::string locator = Text("Text1_0");
    const std::string northing[] = {Text("Text13_0"), Text("Text13_1")};
    EXPECT_TRUE(Label("Label4_0").ends_with(" Grad"));
    const std::string direction = Label("Label4_0");
    Open();
    ClickOn(form->Option3);
    ClickOn(form->Check2);
    ClickOn(form->Command1);
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Decimal);
    EXPECT_NE(Text("Text13_0"), northing[0]) << "in the other datum";
    EXPECT_NE(Text("Text13_1"), northing[1]);
    EXPECT_NE(Label("Label4_0"), direction) << "as a compass direction";
    EXPECT_EQ(Text("Text1_0"), locator);
}

TEST_F(CfgFormTest, OkShowsTheUtmFieldsEvenWhenTheyWereBeingEdited)
{
    Type("Text22_0", u"5355000"_s);
    QTest::keyClicks(Field("Text22_0"), u".75"_s);
    EXPECT_EQ(Text("Text22_0"), "5355000.75");
    Open();
    ClickOn(form->Command1);
    EXPECT_EQ(Text("Text22_0"), "5355001");
}

TEST_F(CfgFormTest, AbbrechenAndEscapeTakeNothingOver)
{
    const QSignalSpy confirmed(form, &CfgForm::Confirmed);
    for (const bool escape : {false, true}) {
        Open();
        ClickOn(form->Option3);
        ClickOn(form->Option5[1]);
        ClickOn(form->Check1);
        ClickOn(form->Check2);
        if (escape) {
            QTest::keyClick(form, Qt::Key_Escape);
        } else {
            ClickOn(form->Command2);
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(state.configuration, stations::Configuration());
        EXPECT_FALSE(state.session.configurationChanged);
    }
    EXPECT_EQ(confirmed.count(), 0);
    Open();
    EXPECT_TRUE(form->Option5[0]->isChecked()) << "copied anew at each opening";
    EXPECT_TRUE(form->Option4->isChecked());
    EXPECT_FALSE(form->Check1->isChecked());
}

TEST_F(CfgFormTest, TheListingModeCanBeChosenByKeys)
{
    Open();
    form->Option5[0]->setFocus();
    ASSERT_TRUE(form->Option5[0]->hasFocus());
    QTest::keyClick(form->Option5[0], Qt::Key_Down);
    ASSERT_TRUE(form->Option5[1]->hasFocus());
    EXPECT_TRUE(form->Option5[1]->isChecked());
    QTest::keyClick(form->Option5[1], Qt::Key_Down);
    QTest::keyClick(form, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible()) << "Return is O.k.";
    EXPECT_EQ(state.configuration.listingMode, stations::ListingMode::Utm);
}

TEST_F(CfgFormTest, TheFileIsNotWrittenBeforeTheEndOfTheRun)
{
    ASSERT_TRUE(QFile::remove(u"KOMP_LOC.CFG"_s));
    Open();
    ClickOn(form->Check2);
    ClickOn(form->Command1);
    EXPECT_FALSE(QFile::exists(u"KOMP_LOC.CFG"_s));
    window.close();
    EXPECT_EQ(stations::ReadConfiguration("KOMP_LOC.CFG").configuration.compassDirection, true);
}

TEST_F(CfgFormTest, TheTabKeyFollowsTheReadingOrderWithOneStopPerFrame)
{
    Open();
    QWidget* const order[] = {form->Option2, form->Option3,  form->Option5[0], form->Check1,
                              form->Check2,  form->Command1, form->Command2};
    order[0]->setFocus();
    for (QWidget* const widget : order) {
        ASSERT_NE(form->focusWidget(), nullptr);
        EXPECT_EQ(form->focusWidget(), widget) << form->focusWidget()->objectName().toStdString();
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
}

}  // namespace
}  // namespace ui
