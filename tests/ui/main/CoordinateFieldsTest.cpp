#include "ui/main/CoordinateFields.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <QAction>
#include <QKeyEvent>
#include <QRadioButton>

#include "ui/main/CfgForm.h"
#include "ui/main/EntryField.h"
#include "ui/main/MainFormFixture.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

const char* const kEveryField[] = {"Text1",  "Text2",  "Text3",  "Text4",  "Text5",  "Text6",
                                   "Text7",  "Text8",  "Text9",  "Text10", "Text11", "Text12",
                                   "Text13", "Text14", "Text15", "Text16", "Text17", "Text18",
                                   "Text19", "Text20", "Text21", "Text22"};

class CoordinateFieldsTest : public MainFormFixture {
protected:
    // The coordinate texts of a station by field name without index.
    std::string Of(const char* array, int station)
    {
        return Text((std::string(array) + '_' + std::to_string(station)).c_str());
    }

    std::vector<std::string> DegreeMinutes(int station)
    {
        std::vector<std::string> texts;
        for (const char* const name :
             {"Text4", "Text5", "Text6", "Text7", "Text8", "Text9", "Text10", "Text11"}) {
            texts.push_back(Of(name, station));
        }
        return texts;
    }

    // Type() for characters that QTest knows no key for.
    void TypeCharacters(const char* name, const QString& text)
    {
        Type(name, {});
        for (const QChar c : text) {
            QKeyEvent key(QEvent::KeyPress, 0, {}, QString(c));
            QCoreApplication::sendEvent(Field(name), &key);
        }
    }

    using Texts = std::vector<std::string>;
};

TEST_F(CoordinateFieldsTest, TypedLocatorIsShownInEveryOtherForm)
{
    Type("Text1_1", u"JN58TH"_s);
    EXPECT_EQ(Text("Text1_1"), "JN58TH");
    EXPECT_EQ(Text("Text2_1"), "11.625000");
    EXPECT_EQ(Text("Text3_1"), "48.312500");
    EXPECT_EQ(DegreeMinutes(1), (Texts{"11", "37", "50", "O", "48", "18", "75", "N"}));
    EXPECT_EQ(Text("Text20_1"), "32");
    EXPECT_EQ(Text("Text12_1").size(), 7U);
    EXPECT_EQ(Text("Text12_1").substr(0, 2), "44") << "strip 4, west of its central meridian";
    EXPECT_EQ(state.shown.position[1],
              (geo::GeoPosition{.latitude = 48.3125, .longitude = 11.625}));
}

TEST_F(CoordinateFieldsTest, EachKeystrokeIsFollowed)
{
    const struct {
        const char* typed;
        const char* longitude;
        const char* latitude;
    } steps[] = {
        {"J", "0.041667", "0.020833"},   {"N", "0.041667", "40.020833"},
        {"5", "10.041667", "40.020833"}, {"8", "10.041667", "48.020833"},
        {"t", "11.625000", "48.020833"}, {"h", "11.625000", "48.312500"},
        {"9", "11.625000", "48.312500"},
    };
    Type("Text1_1", u""_s);
    for (const auto& step : steps) {
        SCOPED_TRACE(step.typed);
        const std::string distance = Label("Label3");
        QTest::keyClicks(Field("Text1_1"), QLatin1StringView(step.typed));
        EXPECT_EQ(Text("Text2_1"), step.longitude);
        EXPECT_EQ(Text("Text3_1"), step.latitude);
        const bool moves = std::string("N58th").find(step.typed) != std::string::npos;
        EXPECT_EQ(Label("Label3") != distance, moves);
    }
    EXPECT_EQ(Text("Text1_1"), "JN58th9") << "left exactly as typed";
}

TEST_F(CoordinateFieldsTest, TypingMovesDistanceAndBothDirections)
{
    Type("Text3_0", u"0"_s);
    Type("Text2_0", u"10"_s);
    Type("Text3_1", u"0"_s);
    Type("Text2_1", u"11"_s);
    EXPECT_EQ(Label("Label3"), "Entfernung = 111.199 km");
    EXPECT_EQ(Label("Label4_0"), "90.00 Grad");
    EXPECT_EQ(Label("Label4_1"), "270.00 Grad");
    Type("Text2_1", u"10"_s);
    EXPECT_EQ(Label("Label3"), "Entfernung = 0.000 mm");
    EXPECT_EQ(Label("Label4_0"), "90.00 Grad");
    EXPECT_EQ(Label("Label4_1"), "90.00 Grad");
}

TEST_F(CoordinateFieldsTest, DecimalFieldsTakeCommaAndPoint)
{
    Type("Text3_0", u"48,5"_s);
    EXPECT_EQ(state.shown.position[0].latitude, 48.5);
    Type("Text3_0", u"48.25"_s);
    EXPECT_EQ(state.shown.position[0].latitude, 48.25);
    EXPECT_EQ(Text("Text3_0"), "48.25");
}

TEST_F(CoordinateFieldsTest, DegreeMinuteAndGridFieldsTakeCommaAndPoint)
{
    Type("Text8_0", u"48,5"_s);
    Type("Text9_0", u"0"_s);
    Type("Text10_0", u"0"_s);
    EXPECT_EQ(Text("Text3_0"), "48.500000");
    Type("Text12_0", u"4468503,25"_s);
    const double comma = state.shown.position[0].longitude;
    Type("Text12_0", u"4468503.25"_s);
    EXPECT_EQ(state.shown.position[0].longitude, comma);
    Type("Text12_0", u"4468503"_s);
    EXPECT_NE(state.shown.position[0].longitude, comma);
}

TEST_F(CoordinateFieldsTest, OneDecimalFieldLeavesTheOtherCoordinateAlone)
{
    Type("Text1_0", u"JN58TH"_s);
    state.shown.position[0].longitude = 11.1234567890123;
    Type("Text3_0", u"47"_s);
    EXPECT_EQ(state.shown.position[0].longitude, 11.1234567890123);
}

TEST_F(CoordinateFieldsTest, DegreeMinutesAreReadAsTheyStand)
{
    Type("Text8_0", u"48"_s);
    Type("Text9_0", u"18"_s);
    Type("Text10_0", u"45"_s);
    Type("Text11_0", u"n"_s);
    EXPECT_EQ(Text("Text3_0"), "48.307500") << "hundredths of a minute";
    QTest::mouseClick(Find<QRadioButton>("Option2_1"), Qt::LeftButton);
    Type("Text10_0", u"45"_s);
    EXPECT_EQ(Text("Text3_0"), "48.312500") << "seconds";
    Type("Text7_0", u"west"_s);
    EXPECT_EQ(state.shown.position[0].longitude, -11.45);
    Type("Text7_0", u"Ost"_s);
    EXPECT_EQ(state.shown.position[0].longitude, 11.45);
    Type("Text9_0", u"75"_s);
    EXPECT_EQ(Text("Text9_0"), "75") << "the edited form is not rewritten";
    EXPECT_EQ(Text("Text3_0"), "49.262500");
}

TEST_F(CoordinateFieldsTest, GaussKruegerFieldsSetThePosition)
{
    Type("Text1_1", u"JN58TH"_s);
    const std::string easting = Text("Text12_1");
    const std::string northing = Text("Text13_1");
    Type("Text1_1", u"JJ00AA"_s);
    Type("Text12_1", QString::fromStdString(easting));
    Type("Text13_1", QString::fromStdString(northing));
    EXPECT_NEAR(state.shown.position[1].latitude, 48.3125, 1e-5);
    EXPECT_NEAR(state.shown.position[1].longitude, 11.625, 1e-5);
    EXPECT_EQ(Text("Text1_1"), "JN58TH");
    EXPECT_EQ(Text("Text12_1"), easting);
}

TEST_F(CoordinateFieldsTest, UtmFieldsSetThePosition)
{
    Type("Text1_1", u"JN58TH"_s);
    const std::string easting = Text("Text21_1");
    const std::string northing = Text("Text22_1");
    Type("Text1_1", u"JJ00AA"_s);
    Type("Text20_1", u"32"_s);
    Type("Text21_1", QString::fromStdString(easting));
    Type("Text22_1", QString::fromStdString(northing));
    EXPECT_NEAR(state.shown.position[1].latitude, 48.3125, 1e-5);
    EXPECT_NEAR(state.shown.position[1].longitude, 11.625, 1e-5);
    EXPECT_EQ(Text("Text1_1"), "JN58TH");
    EXPECT_EQ(Text("Text21_1"), easting) << "not rewritten while it is edited";
}

TEST_F(CoordinateFieldsTest, TypingIntoAnInactiveFormIsIgnoredUntilItGetsTheFocusAgain)
{
    Field("Text5_0")->setFocus();
    state.entry.activeGroup =
        app::EntryGroup::Decimal;  // as a station set from elsewhere leaves it
    const geo::GeoPosition before = state.shown.position[0];
    QTest::keyClicks(Field("Text5_0"), u"33"_s);
    EXPECT_EQ(state.shown.position[0], before);
    Field("Text9_0")->setFocus();
    Field("Text5_0")->setFocus();
    QTest::keyClicks(Field("Text5_0"), u"30"_s);
    EXPECT_EQ(Text("Text2_0"), "11.500000");
}

TEST_F(CoordinateFieldsTest, FocusActivatesTheFormAndSelectsTheText)
{
    const struct {
        const char* name;
        app::EntryGroup group;
    } cases[] = {
        {"Text1_0", app::EntryGroup::Locator},       {"Text2_1", app::EntryGroup::Decimal},
        {"Text3_0", app::EntryGroup::Decimal},       {"Text4_0", app::EntryGroup::DegreeMinute},
        {"Text11_1", app::EntryGroup::DegreeMinute}, {"Text12_0", app::EntryGroup::GaussKrueger},
        {"Text13_1", app::EntryGroup::GaussKrueger}, {"Text20_0", app::EntryGroup::Utm},
        {"Text21_0", app::EntryGroup::Utm},          {"Text22_1", app::EntryGroup::Utm},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Field(c.name)->clearFocus();
        state.entry.activeGroup = app::EntryGroup::None;
        QTest::mouseClick(Field(c.name), Qt::LeftButton);
        EXPECT_EQ(state.entry.activeGroup, c.group);
        EXPECT_EQ(Field(c.name)->selectedText(), Field(c.name)->text());
    }
    state.entry.activeGroup = app::EntryGroup::Utm;
    QTest::mouseClick(Field("Text14_0"), Qt::LeftButton);
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Utm)
        << "station data leave the group alone";
    EXPECT_EQ(Field("Text14_0")->selectedText(), u"QQ0AAA"_s);
}

TEST_F(CoordinateFieldsTest, ClickingTheFormatShowsBothStationsAnewAndNothingElse)
{
    Type("Text1_1", u"JN58TH"_s);
    const Texts others = {Text("Text1_0"), Text("Text2_0"),  Text("Text3_1"),
                          Text("Text1_1"), Text("Text12_1"), Text("Text22_0")};
    EXPECT_EQ(DegreeMinutes(0), (Texts{"11", "27", "0", "O", "48", "21", "0", "N"}));
    QTest::mouseClick(Find<QRadioButton>("Option2_1"), Qt::LeftButton);
    EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::None);
    EXPECT_EQ(DegreeMinutes(1), (Texts{"11", "37", "30", "O", "48", "18", "45", "N"}));
    EXPECT_EQ(state.configuration.degreeFormat, geo::DegreeMinuteMode::Seconds)
        << "the choice survives the run";
    EXPECT_EQ(others, (Texts{Text("Text1_0"), Text("Text2_0"), Text("Text3_1"), Text("Text1_1"),
                             Text("Text12_1"), Text("Text22_0")}));
    QTest::mouseClick(Find<QRadioButton>("Option2_0"), Qt::LeftButton);
    EXPECT_EQ(DegreeMinutes(1), (Texts{"11", "37", "50", "O", "48", "18", "75", "N"}));
    EXPECT_EQ(state.configuration.degreeFormat, geo::DegreeMinuteMode::Hundredths);
}

TEST_F(CoordinateFieldsTest, WritingTheTextAFieldShowsStillRefreshesTheForms)
{
    auto* const fields = window.findChild<CoordinateFields*>();
    ASSERT_NE(fields, nullptr);
    fields->SetPosition(1, {.latitude = 48.0, .longitude = 11.0});
    Type("Text1_1", u"JJ00AA"_s);
    Find<EntryField>("Text2_1")->Show(u"11"_s);  // ignored: the locator is being edited
    Find<EntryField>("Text3_1")->Show(u"48"_s);
    fields->SetPosition(1, {.latitude = 48.0, .longitude = 11.0});
    EXPECT_EQ(Text("Text1_1"), "JN58MA");
    EXPECT_EQ(state.shown.position[1], (geo::GeoPosition{.latitude = 48.0, .longitude = 11.0}));
}

TEST_F(CoordinateFieldsTest, ProgrammaticTextIsReadLikeTypedText)
{
    state.entry.activeGroup = app::EntryGroup::Decimal;
    Field("Text3_1")->setText(u"48.3125"_s);
    Field("Text2_1")->setText(u"11.625"_s);
    EXPECT_EQ(Text("Text1_1"), "JN58TH");
}

TEST_F(CoordinateFieldsTest, NumbersOnTheScreenUseTheRegionalSeparator)
{
    state.numberFormat = base::NumberFormat(",");
    Type("Text1_1", u"JN58TH"_s);
    EXPECT_EQ(Text("Text2_1"), "11,625000");
    EXPECT_NE(Label("Label3").find(','), std::string::npos);
    EXPECT_EQ(Label("Label3").find('.'), std::string::npos);
}

TEST_F(CoordinateFieldsTest, ALoadedPositionIsShownWithTheRegionalSeparator)
{
    for (const char* const separator : {",", "\u066b"}) {
        SCOPED_TRACE(separator);
        state.numberFormat = base::NumberFormat(separator);
        const geo::GeoPosition position = {.latitude = -48.3500001, .longitude = 11.45};
        window.SetStation(1, {}, position);
        EXPECT_EQ(Text("Text2_1"), "11" + std::string(separator) + "45");
        EXPECT_EQ(Text("Text3_1"), "-48" + std::string(separator) + "3500001");
        EXPECT_EQ(state.shown.position[1], position);
        EXPECT_EQ(Text("Text12_1").size(), 7U) << "the other forms follow";
    }
}

TEST_F(CoordinateFieldsTest, EveryFormReadsTheRegionalSeparatorCommaAndPoint)
{
    state.numberFormat = base::NumberFormat("\u066b");
    for (const QString& separator : {u"\u066b"_s, u","_s, u"."_s}) {
        SCOPED_TRACE(separator.toStdString());
        Type("Text1_0", u"JJ00AA"_s);
        TypeCharacters("Text3_0", u"48"_s + separator + u"25"_s);
        EXPECT_EQ(state.shown.position[0].latitude, 48.25);
        TypeCharacters("Text8_0", u"47"_s + separator + u"5"_s);
        Type("Text9_0", u"0"_s);
        Type("Text10_0", u"0"_s);
        EXPECT_EQ(state.shown.position[0].latitude, 47.5);
        Type("Text12_0", u"4468503"_s);
        const double whole = state.shown.position[0].longitude;
        TypeCharacters("Text12_0", u"4468503"_s + separator + u"25"_s);
        EXPECT_NEAR(state.shown.position[0].longitude, whole, 1e-5);
        EXPECT_NE(state.shown.position[0].longitude, whole);
        Type("Text21_0", u"668503"_s);
        const double utm = state.shown.position[0].longitude;
        TypeCharacters("Text21_0", u"668503"_s + separator + u"25"_s);
        EXPECT_NEAR(state.shown.position[0].longitude, utm, 1e-5);
        EXPECT_NE(state.shown.position[0].longitude, utm);
    }
}

// What a grid field that names no point on the earth leaves behind.
class PositionWithoutResultTest : public CoordinateFieldsTest {
protected:
    static constexpr double kInfinite = std::numeric_limits<double>::infinity();
    static constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

    // For comparing: "no number" does not equal itself.
    static std::array<std::uint64_t, 2> Bits(const geo::GeoPosition& position)
    {
        return {std::bit_cast<std::uint64_t>(position.latitude),
                std::bit_cast<std::uint64_t>(position.longitude)};
    }

    void ExpectNothingShown(int station)
    {
        for (const char* const name : kEveryField) {
            const int number = std::stoi(std::string(name).substr(4));
            if (number < 14 || number > 19) {
                EXPECT_EQ(Of(name, station), "") << name;
            }
        }
        for (const char* const label : {"Label3", "Label4_0", "Label4_1"}) {
            EXPECT_EQ(Label(label), "");
        }
    }
};

TEST_F(PositionWithoutResultTest, IsSetAsItIsAndLeavesEveryFormEmpty)
{
    const geo::GeoPosition positions[] = {
        {kInfinite, -kInfinite}, {48.0, kInfinite}, {kNoNumber, 11.0}, {kNoNumber, kNoNumber}};
    for (const geo::GeoPosition& position : positions) {
        window.SetStation(1, {}, {.latitude = 48.0, .longitude = 11.0});
        window.SetStation(1, {}, position);
        const geo::GeoPosition& held = state.shown.position[1];
        EXPECT_EQ(Bits(held), Bits(position));
        ExpectNothingShown(1);
        EXPECT_EQ(state.entry.activeGroup, app::EntryGroup::Decimal);
        QTest::mouseClick(Find<QRadioButton>("Option2_1"), Qt::LeftButton);
        QTest::mouseClick(Find<QRadioButton>("Option2_0"), Qt::LeftButton);
        QTest::mouseClick(Find<QRadioButton>("Option2_1"), Qt::LeftButton);
        ExpectNothingShown(1);
        Find<QAction>("MnuConfig")->trigger();
        QTest::keyClick(window.findChild<CfgForm*>(), Qt::Key_Return);
        ExpectNothingShown(1);
        EXPECT_EQ(Text("Text3_0"), "48.35") << "the other station is not touched";
    }
}

TEST_F(PositionWithoutResultTest, EndsWithTheNextThingTyped)
{
    const struct {
        const char* field;
        QString typed;
        const char* longitude;
        const char* latitude;
    } cases[] = {
        {"Text1_1", u"JN58TH"_s, "11.625000", "48.312500"},
        {"Text2_1", u"11"_s, "11", ""},
        {"Text3_1", u"48"_s, "", "48"},
        {"Text8_1", u"48"_s, "0.000000", "48.000000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.field);
        window.SetStation(1, {}, {kInfinite, kInfinite});
        Type(c.field, c.typed);
        EXPECT_EQ(Text("Text2_1"), c.longitude);
        EXPECT_EQ(Text("Text3_1"), c.latitude);
        EXPECT_TRUE(std::isfinite(state.shown.position[1].latitude)) << "an empty field is 0";
        EXPECT_TRUE(std::isfinite(state.shown.position[1].longitude));
        EXPECT_EQ(Text("Text1_1").size(), 6U);
        EXPECT_NE(Label("Label3"), "");
    }
}

TEST_F(PositionWithoutResultTest, SurvivesTheEndOfTheRun)
{
    Type("Text21_0", QString(60, u'9'));
    const geo::GeoPosition left = state.shown.position[0];
    ASSERT_FALSE(std::isfinite(left.latitude) && std::isfinite(left.longitude));
    window.close();
    ProgramRun next;
    ASSERT_TRUE(next.Start());
    for (const char* const name : {"Text1_0", "Text2_0", "Text3_0", "Text8_0", "Text13_0",
                                   "Text20_0", "Text21_0", "Text22_0"}) {
        EXPECT_EQ(next.Text(name), "") << name;
    }
    EXPECT_EQ(next.Label("Label3"), "");
    EXPECT_NE(next.Text("Text3_1"), "");
    const geo::GeoPosition& held = next.state.shown.position[0];
    EXPECT_EQ(Bits(held), Bits(left));
    next.window.close();
}

TEST_F(CoordinateFieldsTest, TheDirectionFollowsTheConfiguration)
{
    state.configuration.compassDirection = true;
    Type("Text1_0", u"JN58TH"_s);
    Type("Text1_1", u"JN58TH"_s);
    EXPECT_EQ(Label("Label4_0"), "OST   + 0.00 Grad");
}

TEST_F(CoordinateFieldsTest, AFormWithoutAFiniteResultIsLeftEmpty)
{
    Type("Text22_0", QString(69, u'9'));
    Type("Text21_0", QString(300, u'9'));
    for (const char* const name : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7",
                                   "Text8", "Text9", "Text10", "Text11", "Text12", "Text13"}) {
        EXPECT_EQ(Of(name, 0), "") << name;
    }
    for (const char* const label : {"Label3", "Label4_0", "Label4_1"}) {
        EXPECT_EQ(Label(label), "");
    }
    Type("Text3_0", u"17"_s + QString(307, u'0'));
    EXPECT_EQ(Text("Text12_0"), "");
    EXPECT_EQ(Text("Text13_0"), "") << "not half a form";
    Type("Text1_0", u"JN58TH"_s);
    EXPECT_EQ(Text("Text3_0"), "48.312500");
}

// Texts that somebody may type or paste: numbers out of range, letters, signs, long rubbish.
QString RandomText(std::mt19937& random)
{
    static const QString kAlphabet = u"0123456789.,-+eENSWOnan inf°'\"äß€𝄞\t"_s;
    const auto pick = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    const int length = pick(0, 19) == 0 ? pick(100, 400) : pick(0, 12);
    QString text;
    for (int i = 0; i < length; ++i) {
        text += pick(0, 3) == 0 ? kAlphabet[pick(0, static_cast<int>(kAlphabet.size()) - 1)]
                                : QChar(u'0' + pick(0, 9));
    }
    return text;
}

// The form that a field belongs to, by the number in its name; none for the station's texts.
app::EntryGroup FormOf(const QLineEdit* field)
{
    const int number = field->objectName().section(u'_', 0, 0).mid(4).toInt();
    if (number == 1) {
        return app::EntryGroup::Locator;
    }
    if (number <= 3) {
        return app::EntryGroup::Decimal;
    }
    if (number <= 11) {
        return app::EntryGroup::DegreeMinute;
    }
    if (number <= 13) {
        return app::EntryGroup::GaussKrueger;
    }
    return number >= 20 ? app::EntryGroup::Utm : app::EntryGroup::None;
}

bool NamesNoNumber(const QString& text)
{
    return text.contains(u"nan"_s, Qt::CaseInsensitive)
           || text.contains(u"inf"_s, Qt::CaseInsensitive);
}

// A computed field that shows "nan" or "inf", none when there is none. The form that was typed into
// last, per station, keeps what was typed; a locator may happen to contain such letters.
const QLineEdit* FieldWithoutNumber(const QWidget& window,
                                    const std::array<app::EntryGroup, 2>& typed)
{
    for (const QLineEdit* const field : window.findChildren<QLineEdit*>()) {
        const app::EntryGroup form = FormOf(field);
        const bool computed = form != app::EntryGroup::None && form != app::EntryGroup::Locator
                              && form != typed[field->objectName().endsWith(u'1') ? 1 : 0];
        if (computed && NamesNoNumber(field->text())) {
            return field;
        }
    }
    return nullptr;
}

TEST_F(CoordinateFieldsTest, NoRandomTextShowsNanOrInf)
{
    constexpr int kTexts = 10000;
    std::array<app::EntryGroup, 2> typed = {app::EntryGroup::None, app::EntryGroup::None};
    std::mt19937 random(20260101);
    for (int i = 0; i < kTexts; ++i) {
        const QString name = QLatin1StringView(kEveryField[random() % std::size(kEveryField)])
                             + (random() % 2 == 0 ? u"_0"_s : u"_1"_s);
        auto* const field = window.findChild<QLineEdit*>(name);
        ASSERT_NE(field, nullptr);
        field->setFocus();
        const QString text = RandomText(random);
        field->setText(text);
        QTest::keyClick(field, random() % 2 == 0 ? '7' : 'x');
        if (FormOf(field) != app::EntryGroup::None) {
            typed[name.endsWith(u'1') ? 1 : 0] = FormOf(field);
        }
        const QLineEdit* const wrong = FieldWithoutNumber(window, typed);
        ASSERT_EQ(wrong, nullptr) << wrong->objectName().toStdString() << " after "
                                  << text.toStdString();
        for (const char* const label : {"Label3", "Label4_0", "Label4_1"}) {
            ASSERT_FALSE(NamesNoNumber(QString::fromStdString(Label(label))))
                << label << " after " << text.toStdString() << " in " << name.toStdString();
        }
    }
}

}  // namespace
}  // namespace ui
