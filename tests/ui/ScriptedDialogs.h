// Answers message boxes from a list and keeps what was said.

#pragma once

#include <deque>
#include <vector>

#include <QString>

#include "ui/FileNameText.h"
#include "ui/UserDialogs.h"

namespace ui {

class ScriptedDialogs : public UserDialogs {
public:
    struct Message {
        QString title;
        QString text;
        QString informative = {};

        bool operator==(const Message&) const = default;
    };

    void Inform(QWidget* parent, const QString& title, const QString& text,
                const QString& informative = {}) override
    {
        said.push_back({title, text, informative});
        parents.push_back(parent);
    }

    bool AskOkCancel(QWidget* parent, const QString& title, const QString& text,
                     const QString& informative = {}) override
    {
        said.push_back({title, text, informative});
        parents.push_back(parent);
        if (answers.empty()) {
            return false;
        }
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }

    QString OpenFile(QWidget* /*parent*/, const FileRequest& request) override
    {
        return NextFile(request);
    }

    QString OpenOrCreateFile(QWidget* /*parent*/, const FileRequest& request) override
    {
        return NextFile(request);
    }

    QString SaveFile(QWidget* /*parent*/, const FileRequest& request,
                     const QString& suffix) override
    {
        const QString file = NextFile(request);
        return file.isEmpty() ? file : WithEnding(file, suffix);
    }

    bool OpenDocument(const QString& file) override
    {
        opened.push_back(file);
        return canOpen;
    }

    std::vector<Message> said;
    std::vector<const QWidget*> parents;  // of the boxes in `said`
    std::vector<FileRequest> asked;       // what the file dialogs were asked for
    std::deque<QString> files;            // what they return; cancelled when there is none left
    std::vector<QString> opened;          // documents
    bool canOpen = true;
    std::deque<bool> answers;  // true = OK; Cancel when there is none left

private:
    QString NextFile(const FileRequest& request)
    {
        asked.push_back(request);
        if (files.empty()) {
            return {};
        }
        QString file = files.front();
        files.pop_front();
        return file;
    }
};

}  // namespace ui
