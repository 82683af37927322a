#include "ui/UserDialogs.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>

#include <gtest/gtest.h>

#include "TemporaryFolder.h"
#include "ui/GermanTexts.h"
#include "ui/ModalSteps.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// The real message boxes and file dialogs.
class UserDialogsTest : public testing::Test, protected ModalSteps {
protected:
    static void SetUpTestSuite() { InstallGermanTexts(); }

    void TearDown() override { EXPECT_TRUE(AllTaken()) << "a window did not appear"; }

    QString InFolder(const char* name) const
    {
        return QString::fromStdString((folder.Path() / name).string());
    }

    TemporaryFolder folder;
    QtDialogs dialogs;
    const FileRequest request{.title = u"QTH Datenbank öffnen"_s,
                              .filter = u"QTH-Dateien (*.qth)|*.QTH|alle Dateien (*.*)|*.*"_s,
                              .folder = {}};
};

TEST_F(UserDialogsTest, AMessageHasItsTitleItsTextAsItStandsAndAnOkButton)
{
    Then([](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.windowTitle(), u"Schreibfehler"_s);
        EXPECT_EQ(box.text(), u"<b>a</b>\n    b"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        Press(box, QMessageBox::Ok);
    });
    dialogs.Inform(nullptr, u"Schreibfehler"_s, u"<b>a</b>\n    b"_s);
}

TEST_F(UserDialogsTest, AMessageWithoutATitleShowsTheProgramsName)
{
    Then([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Kompasso"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    dialogs.Inform(nullptr, {}, u"text"_s);
}

TEST_F(UserDialogsTest, AMessageOfSeveralLinesWrapsNone)
{
    const QString text = u"History\n"_s + QString(20, u'W') + u"\n"_s
                         + u"V0.28: Programmabbruch in Kartendarstellung nach fehlendem "_s
                         + u"Listenupdate beseitigt,\n           Anzeige"_s;
    Then([&](QWidget& window) {
        const auto* const label = window.findChild<QLabel*>(u"qt_msgbox_label"_s);
        ASSERT_NE(label, nullptr);
        const QRect lines = label->fontMetrics().boundingRect(QRect(), 0, text);
        ASSERT_LT(lines.width(), window.screen()->availableSize().width() - 200) << "test's text";
        EXPECT_GE(label->contentsRect().width(), lines.width());
        EXPECT_LE(label->heightForWidth(label->width()), lines.height() + 2 * label->margin());
        EXPECT_GE(label->height(), lines.height());
        EXPECT_LE(label->geometry().right(), window.width()) << "nor is it cut";
        Press(window, QMessageBox::Ok);
    });
    dialogs.Inform(nullptr, {}, text);
}

TEST_F(UserDialogsTest, AMessageOfEndlessLinesStaysOnTheScreen)
{
    const QString text = QString(500, u'W') + u"\n"_s + QStringList(100, u"word"_s).join(u' ');
    Then([&](QWidget& window) {
        const auto* const label = window.findChild<QLabel*>(u"qt_msgbox_label"_s);
        EXPECT_LE(window.width(), window.screen()->availableSize().width());
        EXPECT_LE(label->geometry().right(), window.width()) << "nor is it cut";
        Press(window, QMessageBox::Ok);
    });
    dialogs.Inform(nullptr, {}, text);
}

TEST_F(UserDialogsTest, AQuestionIsAnsweredByItsButtonsInGerman)
{
    const auto answer = [this](QMessageBox::StandardButton button) {
        Then([button](QWidget& window) {
            const auto& box = dynamic_cast<QMessageBox&>(window);
            EXPECT_EQ(box.button(QMessageBox::Cancel)->text().remove(u'&'), u"Abbrechen"_s);
            Press(window, button);
        });
        return dialogs.AskOkCancel(nullptr, u"Kompasso Setup-Fehler"_s, u"Beenden?"_s);
    };
    EXPECT_TRUE(answer(QMessageBox::Ok));
    EXPECT_FALSE(answer(QMessageBox::Cancel));
}

TEST_F(UserDialogsTest, ClosingAQuestionMeansCancel)
{
    Then([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_FALSE(dialogs.AskOkCancel(nullptr, u"t"_s, u"q"_s));
}

TEST_F(UserDialogsTest, OpenFileReturnsTheWholeNameOfAFileThatExists)
{
    PutFile("a.QTH", "x");
    Then([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"QTH Datenbank öffnen"_s);
        Choose(window, u"a.QTH"_s);
    });
    EXPECT_EQ(dialogs.OpenFile(nullptr, request), InFolder("a.QTH"));
}

TEST_F(UserDialogsTest, OpenFileRefusesANameThatDoesNotExist)
{
    QWidget* dialog = nullptr;
    Then([&](QWidget& window) {
        dialog = &window;
        Choose(window, u"missing.QTH"_s);
    });
    Then([&](QWidget& window) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(window).text().contains(u"missing.QTH"_s));
        QTimer::singleShot(0, dialog, [&] { QTest::keyClick(dialog, Qt::Key_Escape); });
        Press(window, QMessageBox::Ok);
    });
    EXPECT_EQ(dialogs.OpenFile(nullptr, request), QString());
}

TEST_F(UserDialogsTest, OpenOrCreateFileTakesANameThatDoesNotExistAndAsksNothing)
{
    PutFile("old.lst", "x");
    Then([](QWidget& window) { Choose(window, u"new.lst"_s); });
    EXPECT_EQ(dialogs.OpenOrCreateFile(nullptr, request), InFolder("new.lst"));
    Then([](QWidget& window) { Choose(window, u"old.lst"_s); });
    EXPECT_EQ(dialogs.OpenOrCreateFile(nullptr, request), InFolder("old.lst"));
}

TEST_F(UserDialogsTest, SaveFileAppendsTheEndingToANameWithout)
{
    const struct {
        QString typed;
        const char* chosen;
    } cases[] = {
        {u"neu"_s, "neu.QTH"},
        {u"neu.qth"_s, "neu.qth"},
        {u"neu.txt"_s, "neu.txt"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.chosen);
        Then([&](QWidget& window) { Choose(window, c.typed); });
        EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), InFolder(c.chosen));
    }
}

TEST_F(UserDialogsTest, SaveFileAsksBeforeTheFinalNameReplacesAFile)
{
    PutFile("alt.QTH", "x");
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        QWidget* dialog = nullptr;
        Then([&](QWidget& window) {
            dialog = &window;
            Choose(window, u"alt"_s);
        });
        Then([&](QWidget& window) {
            const auto& question = dynamic_cast<QMessageBox&>(window);
            EXPECT_EQ(question.text(),
                      u"Die Datei alt.QTH existiert bereits.\nSoll sie überschrieben werden?"_s);
            EXPECT_EQ(question.button(QMessageBox::Yes)->text().remove(u'&'), u"Ja"_s);
            if (button == QMessageBox::No) {
                QTimer::singleShot(0, dialog, [&] { QTest::keyClick(dialog, Qt::Key_Escape); });
            }
            Press(window, button);
        });
        EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s),
                  button == QMessageBox::Yes ? InFolder("alt.QTH") : QString());
    }
    EXPECT_EQ(GetFile("alt.QTH"), "x") << "the dialog itself writes nothing";
}

TEST_F(UserDialogsTest, SaveFileAskedAboutANameThatIsNotTheOneItWrites)
{
    std::filesystem::create_symlink("ziel", "verweis");
    const struct {
        const char* typed;
        const char* written;
    } cases[] = {
        {".hidden", ".hidden.QTH"},   {"name.", "name."},
        {"DL.0.ABC", "DL.0.ABC"},     {"blank ", "blank .QTH"},
        {".QTH", ".QTH.QTH"},         {"verweis", "verweis.QTH"},
        {"\"quoted\"", "quoted.QTH"}, {"sub/.hidden", "sub/.hidden.QTH"},
    };
    std::filesystem::create_directory("sub");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        const QString typed = QString::fromUtf8(c.typed);
        Then([&](QWidget& window) { Choose(window, typed); });
        EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), InFolder(c.written)) << "new";

        PutFile(c.written, "x");
        QWidget* dialog = nullptr;
        Then([&](QWidget& window) {
            dialog = &window;
            Choose(window, typed);
        });
        Then([&](QWidget& window) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(window).text(),
                      u"Die Datei %1 existiert bereits.\nSoll sie überschrieben werden?"_s.arg(
                          QFileInfo(QString::fromUtf8(c.written)).fileName()));
            QTimer::singleShot(0, dialog, [&] { QTest::keyClick(dialog, Qt::Key_Escape); });
            Press(window, QMessageBox::No);
        });
        EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), QString()) << "old, refused";
        Then([&](QWidget& window) { Choose(window, typed); });
        Then([](QWidget& window) { Press(window, QMessageBox::Yes); });
        EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), InFolder(c.written)) << "old";
    }
}

TEST_F(UserDialogsTest, SaveFileAsksNothingAboutAFileThatItsEndingLeavesAlone)
{
    PutFile(".hidden", "x");
    Then([](QWidget& window) { Choose(window, u".hidden"_s); });
    EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), InFolder(".hidden.QTH"));
}

TEST_F(UserDialogsTest, SaveFileAppendsTheEndingToANameInAnotherFolder)
{
    const TemporaryFolder other;
    const QString typed = QString::fromStdString((other.Path() / ".hidden").string());
    Then([&](QWidget& window) { Choose(window, typed); });
    EXPECT_EQ(
        dialogs.SaveFile(nullptr, {.title = {}, .filter = {}, .folder = InFolder(".")}, u"QTH"_s),
        typed + u".QTH"_s);
}

TEST_F(UserDialogsTest, SaveFileEntersAFolderInsteadOfAppendingTheEnding)
{
    std::filesystem::create_directory(".folder");
    QWidget* dialog = nullptr;
    Then([&](QWidget& window) {
        dialog = &window;
        Choose(window, u".folder"_s);
        EXPECT_EQ(dynamic_cast<QFileDialog&>(window).directory().path(), InFolder(".folder"));
        Choose(window, u"a"_s);
    });
    EXPECT_EQ(dialogs.SaveFile(nullptr, request, u"QTH"_s), InFolder(".folder/a.QTH"));
}

TEST_F(UserDialogsTest, AFileDialogOffersTheFiltersAndSpeaksGerman)
{
    Then([](QWidget& window) {
        const auto& dialog = dynamic_cast<QFileDialog&>(window);
        EXPECT_EQ(dialog.nameFilters(), QtNameFilters(u"QTH-Dateien (*.qth)|*.QTH|"
                                                      u"alle Dateien (*.*)|*.*"_s));
        const auto* const types = window.findChild<QComboBox*>(u"fileTypeCombo"_s);
        EXPECT_EQ(types->itemText(0).section(u' ', 0, 0), u"QTH-Dateien"_s);
        const auto* const buttons = window.findChild<QDialogButtonBox*>(u"buttonBox"_s);
        EXPECT_EQ(buttons->button(QDialogButtonBox::Cancel)->text().remove(u'&'), u"Abbrechen"_s);
        EXPECT_EQ(buttons->button(QDialogButtonBox::Open)->text().remove(u'&'), u"Öffnen"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    EXPECT_EQ(dialogs.OpenFile(nullptr, request), QString());
}

TEST_F(UserDialogsTest, AFileDialogWithoutATitleHasQtsOwn)
{
    Then([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Öffnen"_s);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    dialogs.OpenFile(nullptr, {.title = {}, .filter = request.filter, .folder = {}});
}

TEST_F(UserDialogsTest, AFileDialogStartsWhereItIsToldAndMovesNobody)
{
    std::filesystem::create_directory("karten");
    PutFile("karten/a.QTH", "x");
    const auto start = [&](const QString& folderName, const QString& typed) {
        Then([typed](QWidget& window) { Choose(window, typed); });
        return dialogs.OpenFile(nullptr,
                                {.title = {}, .filter = request.filter, .folder = folderName});
    };
    EXPECT_EQ(start(u"karten"_s, u"a.QTH"_s), InFolder("karten/a.QTH"));
    EXPECT_EQ(std::filesystem::current_path(), folder.Path());
    PutFile("b.QTH", "x");
    EXPECT_EQ(start({}, u"b.QTH"_s), InFolder("b.QTH")) << "the current folder again";
}

TEST_F(UserDialogsTest, ADocumentIsHandedToTheDesktop)
{
    QTextBrowser desktop;  // stands in for it
    QDesktopServices::setUrlHandler(u"file"_s, &desktop, "setSource");
    PutFile("Häufige #1.HLP", "x");
    EXPECT_TRUE(dialogs.OpenDocument(InFolder("Häufige #1.HLP")));
    EXPECT_EQ(desktop.source().toLocalFile(), InFolder("Häufige #1.HLP"));
    QDesktopServices::unsetUrlHandler(u"file"_s);
}

TEST_F(UserDialogsTest, WithoutADesktopNoDocumentIsOpened)
{
    const bool desktop = QGuiApplication::platformName() != u"offscreen"_s;
    EXPECT_TRUE(desktop || !dialogs.OpenDocument(InFolder("KOMPLOC1.HLP")));
}

TEST(QtNameFilters, HoldEachPatternInBothCases)
{
    EXPECT_EQ(QtNameFilters(u"LST|*.lst;*.TXT|alle Dateien|*.*"_s),
              (QStringList{u"LST (*.lst *.LST *.txt *.TXT)"_s, u"alle Dateien (*)"_s}));
}

TEST(QtNameFilters, PassOverALabelWithoutPatterns)
{
    EXPECT_EQ(QtNameFilters({}), QStringList());
    EXPECT_EQ(QtNameFilters(u"nur ein Name"_s), QStringList());
    EXPECT_EQ(QtNameFilters(u"a|*.a|b"_s), QStringList{u"a (*.a *.A)"_s});
}

}  // namespace
}  // namespace ui
