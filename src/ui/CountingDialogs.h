// The dialogs of one window, which wants to know whether any of them is open.

#pragma once

#include <type_traits>

#include <QScopeGuard>

#include "ui/UserDialogs.h"

namespace ui {

// Hands every call on to `dialogs`, which outlives it.
class CountingDialogs : public UserDialogs {
public:
    explicit CountingDialogs(UserDialogs& dialogs) : dialogs_(dialogs) {}

    bool AnyOpen() const { return open_ > 0; }

    void Inform(QWidget* parent, const QString& title, const QString& text,
                const QString& informative = {}) override
    {
        Counted([&] { dialogs_.Inform(parent, title, text, informative); });
    }
    bool AskOkCancel(QWidget* parent, const QString& title, const QString& text,
                     const QString& informative = {}) override
    {
        return Counted([&] { return dialogs_.AskOkCancel(parent, title, text, informative); });
    }
    QString OpenFile(QWidget* parent, const FileRequest& request) override
    {
        return Counted([&] { return dialogs_.OpenFile(parent, request); });
    }
    QString OpenOrCreateFile(QWidget* parent, const FileRequest& request) override
    {
        return Counted([&] { return dialogs_.OpenOrCreateFile(parent, request); });
    }
    QString SaveFile(QWidget* parent, const FileRequest& request, const QString& suffix) override
    {
        return Counted([&] { return dialogs_.SaveFile(parent, request, suffix); });
    }
    bool OpenDocument(const QString& file) override { return dialogs_.OpenDocument(file); }

private:
    template <typename Ask>
    std::invoke_result_t<Ask> Counted(const Ask& ask)
    {
        ++open_;
        const auto closed = qScopeGuard([this] { --open_; });
        return ask();
    }

    UserDialogs& dialogs_;
    int open_ = 0;
};

}  // namespace ui
