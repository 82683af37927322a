#include "ui/GermanTexts.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTranslator>

#include <gtest/gtest.h>

namespace ui {
namespace {

using namespace Qt::StringLiterals;

TEST(GermanTexts, ButtonsOfQtAreGerman)
{
    InstallGermanTexts();
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    EXPECT_EQ(box.button(QDialogButtonBox::Cancel)->text().remove(u'&'), u"Abbrechen"_s);
}

TEST(GermanTexts, TheProgramCarriesItsOwnCopy)
{
    QTranslator translator;
    EXPECT_TRUE(translator.load(u"qtbase_de"_s, u":/translations"_s));
}

}  // namespace
}  // namespace ui
