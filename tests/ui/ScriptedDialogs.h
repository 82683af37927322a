// Answers message boxes from a list and keeps what was said.

#pragma once

#include <deque>
#include <vector>

#include <QString>

#include "ui/UserDialogs.h"

namespace ui {

class ScriptedDialogs : public UserDialogs {
public:
    struct Message {
        QString title;
        QString text;

        bool operator==(const Message&) const = default;
    };

    void Inform(QWidget* /*parent*/, const QString& title, const QString& text) override
    {
        said.push_back({title, text});
    }

    bool AskOkCancel(QWidget* /*parent*/, const QString& title, const QString& text) override
    {
        said.push_back({title, text});
        if (answers.empty()) {
            return false;
        }
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<Message> said;
    std::deque<bool> answers;  // true = OK; Cancel when there is none left
};

}  // namespace ui
