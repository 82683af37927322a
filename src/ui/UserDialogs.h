// Message boxes and file dialogs behind one interface, so that tests answer them.

#pragma once

#include <QString>

class QWidget;

namespace ui {

class UserDialogs {
public:
    UserDialogs() = default;
    UserDialogs(const UserDialogs&) = delete;
    UserDialogs& operator=(const UserDialogs&) = delete;
    virtual ~UserDialogs() = default;

    // An information box with an OK button; an empty title shows the program's name.
    virtual void Inform(QWidget* parent, const QString& title, const QString& text) = 0;

    // A question with OK and Cancel; true for OK.
    virtual bool AskOkCancel(QWidget* parent, const QString& title, const QString& text) = 0;
};

// The dialogs of the desktop.
class QtDialogs : public UserDialogs {
public:
    void Inform(QWidget* parent, const QString& title, const QString& text) override;
    bool AskOkCancel(QWidget* parent, const QString& title, const QString& text) override;
};

}  // namespace ui
