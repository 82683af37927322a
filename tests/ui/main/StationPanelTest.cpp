#include "ui/main/StationPanel.h"

#include <set>

#include <QPushButton>
#include <QRadioButton>

#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

class StationPanelTest : public MainFormFixture {};

TEST_F(StationPanelTest, ControlsCarryTheirNamesAndCaptions)
{
    for (int field = 1; field <= 22; ++field) {
        for (const int station : {0, 1}) {
            const QString name = u"Text%1_%2"_s.arg(field).arg(station);
            EXPECT_EQ(window.findChildren<QLineEdit*>(name).size(), 1) << name.toStdString();
        }
    }
    const struct {
        const char* name;
        const char* text;
    } labels[] = {
        {"Label1", "Station1"},
        {"Label2", "Station2"},
        {"Label5", "INFO"},
        {"Label6", "KOMPASSO"},
        {"Label7", "GRAD"},
        {"Label9", "GAUSS-KRÜGER"},
        {"Label13", "UTM"},
        {"Label11", "ERGEBNIS"},
        {"Label10_0", "Richtung Station 1:"},
        {"Label10_1", "Richtung Station 2:"},
    };
    for (const auto& l : labels) {
        EXPECT_EQ(Label(l.name), l.text);
    }
    EXPECT_EQ(Find<QRadioButton>("Option2_0")->text(), u"G-M-H"_s);
    EXPECT_EQ(Find<QRadioButton>("Option2_1")->text(), u"G-M-S"_s);
    EXPECT_TRUE(Find<QRadioButton>("Option2_0")->isChecked());
    for (const char* const station : {"0", "1"}) {
        const std::string index = station;
        EXPECT_EQ(Find<QPushButton>(("Command1_" + index).c_str())->text(), u"Laden"_s);
        EXPECT_EQ(Find<QPushButton>(("Command4_" + index).c_str())->text(), u"REMOVE"_s);
        EXPECT_EQ(Find<QPushButton>(("SA_" + index).c_str())->text(), u"Sichern"_s);
    }
}

TEST_F(StationPanelTest, EveryCaptionIsTheBuddyOfAFieldOfItsPanel)
{
    std::multiset<QString> captions;
    for (int i = 0; i < 15; ++i) {
        for (const int station : {0, 1}) {
            auto* const label = window.findChild<QLabel*>(u"Label12_%1"_s.arg(station * 15 + i));
            ASSERT_NE(label, nullptr);
            ASSERT_NE(label->buddy(), nullptr);
            EXPECT_TRUE(label->buddy()->objectName().endsWith(u"_%1"_s.arg(station)));
            captions.insert(label->text());
        }
    }
    for (const QString& text :
         {u"Rufz."_s, u"Name"_s, u"Ort"_s, u"Frequ."_s, u"Anm."_s, u"Datum"_s, u"Zone"_s}) {
        EXPECT_EQ(captions.count(text), 2U) << text.toStdString();
    }
    for (const QString& text : {u"Breite"_s, u"Länge"_s, u"Rechts"_s, u"Höhe"_s}) {
        EXPECT_EQ(captions.count(text), 4U) << text.toStdString();
    }
}

TEST_F(StationPanelTest, TheTabKeyFollowsTheReadingOrder)
{
    const char* const order[] = {
        "Text14_0", "Text15_0",   "Text16_0",   "Text17_0", "Text18_0", "Text19_0", "Text1_0",
        "Text3_0",  "Text2_0",    "Text8_0",    "Text9_0",  "Text10_0", "Text11_0", "Text4_0",
        "Text5_0",  "Text6_0",    "Text7_0",    "Text12_0", "Text13_0", "Text20_0", "Text21_0",
        "Text22_0", "Command1_0", "Command4_0", "SA_0",     "Text14_1"};
    Field(order[0])->setFocus();
    for (const char* const name : order) {
        ASSERT_NE(window.focusWidget(), nullptr);
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), name);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
}

TEST_F(StationPanelTest, TheTabKeyReachesTheDegreeFormatBeforeTheFields)
{
    for (const char* const chosen : {"Option2_0", "Option2_1", "Option2_0"}) {
        SCOPED_TRACE(chosen);
        QTest::mouseClick(Find<QRadioButton>(chosen), Qt::LeftButton);
        Field("Text14_0")->setFocus();
        QTest::keyClick(Field("Text14_0"), Qt::Key_Backtab);
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), chosen);
        QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), "Command5");
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget()->objectName().toStdString(), chosen);
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), Field("Text14_0"));
    }
}

TEST_F(StationPanelTest, TheDefaultStationsAreShownAtFirst)
{
    EXPECT_EQ(Text("Text14_0"), "QQ0AAA");
    EXPECT_EQ(Text("Text15_0"), "Muster");
    EXPECT_EQ(Text("Text16_0"), "Musterdorf");
    EXPECT_EQ(Text("Text2_0"), "11.45");
    EXPECT_EQ(Text("Text3_0"), "48.35");
    EXPECT_EQ(Text("Text1_0"), "JN58RI");
    EXPECT_EQ(Text("Text14_1"), "QQ0RR");
    EXPECT_EQ(Text("Text15_1"), "Zugspitzrelais");
    EXPECT_EQ(Text("Text16_1"), "Zugspitze");
    EXPECT_EQ(Text("Text2_1"), "10.986667");
    EXPECT_EQ(Text("Text3_1"), "47.422778");
    for (const char* const name : {"Text17_0", "Text18_0", "Text19_0", "Text17_1"}) {
        EXPECT_EQ(Text(name), "");
    }
    EXPECT_EQ(Label("Label3").substr(0, 13), "Entfernung = ");
}

}  // namespace
}  // namespace ui
