#include "ui/MenuTable.h"

#include <string>

#include <QAction>
#include <QMenu>

#include <gtest/gtest.h>

namespace ui {
namespace {

using namespace Qt::StringLiterals;

TEST(MenuTable, MakesItemsAndLinesInTheirOrder)
{
    QMenu menu;
    AddItems(&menu, {
                        {"MnuA", u"Öffnen"_s, [](bool) {}, false, QKeySequence::Open},
                        {},
                        {"MnuB", u"Raster"_s, [](bool) {}, true},
                        {"MnuMin1"},
                    });
    const QList<QAction*> actions = menu.actions();
    ASSERT_EQ(actions.size(), 4);
    EXPECT_EQ(actions[0]->objectName(), u"MnuA"_s);
    EXPECT_EQ(actions[0]->text(), u"Öffnen"_s);
    EXPECT_EQ(actions[0]->shortcut(), QKeySequence(QKeySequence::Open));
    EXPECT_FALSE(actions[0]->isCheckable());
    EXPECT_TRUE(actions[1]->isSeparator());
    EXPECT_TRUE(actions[1]->objectName().isEmpty());
    EXPECT_TRUE(actions[2]->isCheckable());
    EXPECT_TRUE(actions[3]->isSeparator());
    EXPECT_EQ(actions[3]->objectName(), u"MnuMin1"_s);
}

TEST(MenuTable, RunsWhatComesBeforeEveryCommandAndTellsTheMark)
{
    QMenu menu;
    std::string run;
    AddItems(&menu, {{"MnuA", u"Raster"_s, [&](bool on) { run += on ? "on " : "off "; }, true}},
             [&] { run += "before "; });
    menu.actions()[0]->trigger();
    menu.actions()[0]->trigger();
    EXPECT_EQ(run, "before on before off ");
}

}  // namespace
}  // namespace ui
