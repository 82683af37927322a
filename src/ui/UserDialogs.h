// Message boxes, file dialogs and the help viewer behind one interface, so that tests answer them.

#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace ui {

// What a file dialog asks for.
struct FileRequest {
    QString title = {};   // empty: the dialog's own
    QString filter = {};  // "label|pattern;pattern|label|pattern"
    QString folder = {};  // where it starts; empty: the current directory
};

class UserDialogs {
public:
    UserDialogs() = default;
    UserDialogs(const UserDialogs&) = delete;
    UserDialogs& operator=(const UserDialogs&) = delete;
    virtual ~UserDialogs() = default;

    // A box with an OK button; an empty title shows the program's name. `informative` stands below
    // the text, in smaller type.
    virtual void Inform(QWidget* parent, const QString& title, const QString& text,
                        const QString& informative = {}) = 0;

    // A question with OK and Cancel; true for OK.
    virtual bool AskOkCancel(QWidget* parent, const QString& title, const QString& text,
                             const QString& informative = {}) = 0;

    // Each returns the chosen file, or an empty text when the user cancels.
    virtual QString OpenFile(QWidget* parent, const FileRequest& request) = 0;
    // Like OpenFile, but the file need not exist yet.
    virtual QString OpenOrCreateFile(QWidget* parent, const FileRequest& request) = 0;
    // Appends "." and `suffix` to a name without an ending, then asks before an existing file is
    // chosen: what is returned is the very name to write.
    virtual QString SaveFile(QWidget* parent, const FileRequest& request,
                             const QString& suffix) = 0;

    // Opens a document with the program that the desktop has for it; false when there is none.
    virtual bool OpenDocument(const QString& file) = 0;
};

// The dialogs of the desktop.
class QtDialogs : public UserDialogs {
public:
    void Inform(QWidget* parent, const QString& title, const QString& text,
                const QString& informative = {}) override;
    bool AskOkCancel(QWidget* parent, const QString& title, const QString& text,
                     const QString& informative = {}) override;
    QString OpenFile(QWidget* parent, const FileRequest& request) override;
    QString OpenOrCreateFile(QWidget* parent, const FileRequest& request) override;
    QString SaveFile(QWidget* parent, const FileRequest& request, const QString& suffix) override;
    bool OpenDocument(const QString& file) override;
};

// The filters in Qt's form: one "label (patterns)" each, patterns in lower and upper case.
QStringList QtNameFilters(const QString& filter);

}  // namespace ui
