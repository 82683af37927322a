// The real main window, shown and active, with controls found by their names.

#pragma once

#include <stdexcept>
#include <string>

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "app/AppState.h"
#include "ui/ScriptedDialogs.h"
#include "ui/main/MainForm.h"

namespace ui {

// One run of the program in the current directory, from its start to the end of the object.
class ProgramRun {
public:
    // False when the program ended at its start.
    bool Start()
    {
        if (!window.Start()) {
            return false;
        }
        window.show();
        return QTest::qWaitForWindowActive(&window);
    }

    template <typename Widget>
    Widget* Find(const char* name)
    {
        auto* const widget = window.findChild<Widget*>(QLatin1StringView(name));
        if (widget == nullptr) {
            ADD_FAILURE() << "no control named " << name;
            throw std::runtime_error(name);
        }
        return widget;
    }

    QLineEdit* Field(const char* name) { return Find<QLineEdit>(name); }

    std::string Text(const char* name) { return Field(name)->text().toStdString(); }
    std::string Label(const char* name) { return Find<QLabel>(name)->text().toStdString(); }

    // Clicks into the field, which selects its text, and types over it.
    void Type(const char* name, const QString& text)
    {
        QLineEdit* const field = Field(name);
        field->clearFocus();
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
    }

    void Click(const char* button) { QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton); }

    app::AppState state;
    ScriptedDialogs dialogs;
    MainForm window{state, dialogs};
};

class MainFormFixture : public testing::Test, protected ProgramRun {
public:
    // The folder is about to go.
    ~MainFormFixture() override { QDir::setCurrent(QDir::rootPath()); }

protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        ASSERT_TRUE(QDir::setCurrent(folder.path()));
        PrepareFolder();
        ASSERT_TRUE(Start());
    }

    // Puts files into the program directory, which is the current one, before the program starts.
    virtual void PrepareFolder() {}

    QTemporaryDir folder;  // the program directory of the test
};

}  // namespace ui
