#include "ui/CountingDialogs.h"

#include <gtest/gtest.h>

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// Answers with what it was asked, and says whether the counting dialogs took it for open.
class Watched : public UserDialogs {
public:
    const CountingDialogs* counting = nullptr;
    int calls = 0;
    bool openInAll = true;

    void Note()
    {
        ++calls;
        openInAll = openInAll && counting->AnyOpen();
    }

    void Inform(QWidget* /*parent*/, const QString& /*title*/, const QString& /*text*/,
                const QString& /*informative*/) override
    {
        Note();
    }
    bool AskOkCancel(QWidget* /*parent*/, const QString& /*title*/, const QString& /*text*/,
                     const QString& /*informative*/) override
    {
        Note();
        return true;
    }
    QString OpenFile(QWidget* /*parent*/, const FileRequest& request) override
    {
        Note();
        return request.title;
    }
    QString OpenOrCreateFile(QWidget* /*parent*/, const FileRequest& request) override
    {
        Note();
        return request.filter;
    }
    QString SaveFile(QWidget* /*parent*/, const FileRequest& /*request*/,
                     const QString& suffix) override
    {
        Note();
        return suffix;
    }
    bool OpenDocument(const QString& file) override { return file == u"FAQ"_s; }
};

TEST(CountingDialogs, KnowAboutADialogFromItsOpeningToItsAnswer)
{
    Watched watched;
    CountingDialogs dialogs(watched);
    watched.counting = &dialogs;
    EXPECT_FALSE(dialogs.AnyOpen());
    dialogs.Inform(nullptr, {}, u"Text"_s);
    EXPECT_TRUE(dialogs.AskOkCancel(nullptr, {}, u"Text"_s));
    EXPECT_EQ(dialogs.OpenFile(nullptr, {.title = u"a"_s, .filter = {}, .folder = {}}), u"a"_s);
    EXPECT_EQ(dialogs.OpenOrCreateFile(nullptr, {.title = {}, .filter = u"b"_s, .folder = {}}),
              u"b"_s);
    EXPECT_EQ(dialogs.SaveFile(nullptr, {}, u"txt"_s), u"txt"_s);
    EXPECT_EQ(watched.calls, 5);
    EXPECT_TRUE(watched.openInAll);
    EXPECT_FALSE(dialogs.AnyOpen());
    EXPECT_TRUE(dialogs.OpenDocument(u"FAQ"_s));
}

}  // namespace
}  // namespace ui
