// A user who answers real message boxes and file dialogs, one after the other.

#pragma once

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace ui {

// Each step waits for the next modal window. A window that no step is left for fails the test.
class ModalSteps {
public:
    using Step = std::function<void(QWidget& window)>;

    ModalSteps()
    {
        QObject::connect(&waiting_, &QTimer::timeout, [this] { TakeStep(); });
        waiting_.start(std::chrono::milliseconds(10));
    }

    void Then(Step step) { steps_.push_back(std::move(step)); }

    bool AllTaken() const { return steps_.empty(); }

    // Types a name into the file dialog and presses Return.
    static void Choose(QWidget& window, const QString& name)
    {
        auto* const field = window.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(field, nullptr);
        field->clear();
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
    }

    static void Press(QWidget& box, QMessageBox::StandardButton button)
    {
        QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(button), Qt::LeftButton);
    }

private:
    void TakeStep()
    {
        QWidget* const window = QApplication::activeModalWidget();
        if (window == nullptr) {
            return;
        }
        const bool seen = window->property("seen").toBool();
        if (!seen && !steps_.empty()) {
            window->setProperty("seen", true);
            idle_.start();
            const Step step = steps_.front();
            steps_.erase(steps_.begin());
            // Outside this call, during which the timer would stand still: a step may open a
            // window of its own and wait for it.
            QTimer::singleShot(0, window, [step, window] { step(*window); });
        } else if (!seen || idle_.hasExpired(kPatience)) {
            ADD_FAILURE() << "unexpected window " << window->windowTitle().toStdString();
            window->close();
        }
    }

    static constexpr qint64 kPatience = 5000;  // ms

    QTimer waiting_;
    std::vector<Step> steps_;
    QElapsedTimer idle_;
};

}  // namespace ui
