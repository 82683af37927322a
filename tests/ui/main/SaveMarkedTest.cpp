#include <QListView>
#include <QPushButton>

#include "TemporaryFolder.h"
#include "app/FileForms.h"
#include "stations/Records.h"
#include "ui/GermanTexts.h"
#include "ui/ModalSteps.h"
#include "ui/UserDialogs.h"
#include "ui/main/MainForm.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// The main window over one record, with the dialogs of the desktop.
class SaveMarkedTest : public testing::Test, protected ModalSteps {
protected:
    static void SetUpTestSuite() { InstallGermanTexts(); }

    void SetUp() override
    {
        PutFile("WORK.QTH", app::DatabaseFile({stations::MakeRecord({"QQ1A"}, {48.0, 11.0})}));
        ASSERT_TRUE(window.Start());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::mouseClick(window.findChild<QPushButton*>(u"Command1_0"_s), Qt::LeftButton);
        auto* const list = window.findChild<QListView*>(u"List1"_s);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualRect(list->model()->index(0, 0)).center());
    }

    void TearDown() override { EXPECT_TRUE(AllTaken()) << "a window did not appear"; }

    // Presses a button of the list, types ".hidden" and answers the question about ".hidden.QTH".
    void SaveAsHidden(const char* button, QMessageBox::StandardButton answer)
    {
        QWidget* dialog = nullptr;
        Then([&](QWidget& opened) {
            dialog = &opened;
            Choose(opened, u".hidden"_s);
        });
        Then([&](QWidget& question) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(question).text(),
                      u"Die Datei .hidden.QTH existiert bereits.\nSoll sie überschrieben "
                      u"werden?"_s);
            if (answer == QMessageBox::No) {
                QTimer::singleShot(0, dialog, [&] { QTest::keyClick(dialog, Qt::Key_Escape); });
            }
            Press(question, answer);
        });
        QTest::mouseClick(window.findChild<QPushButton*>(QLatin1StringView(button)),
                          Qt::LeftButton);
    }

    TemporaryFolder folder;
    app::AppState state;
    QtDialogs dialogs;
    MainForm window{state, dialogs};
};

TEST_F(SaveMarkedTest, AHiddenNameReplacedAnExistingDatabaseUnasked)
{
    PutFile(".hidden.QTH", "precious");
    for (const char* const button : {"Command7", "Command6"}) {
        SaveAsHidden(button, QMessageBox::No);
        EXPECT_EQ(GetFile(".hidden.QTH"), "precious");
        EXPECT_EQ(state.database.Count(), 1U);
    }
    SaveAsHidden("Command7", QMessageBox::Yes);
    EXPECT_EQ(GetFile(".hidden.QTH"), app::DatabaseFile({state.database[0]}));
}

}  // namespace
}  // namespace ui
