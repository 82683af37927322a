#include "ui/FileNameText.h"

#include <gtest/gtest.h>

namespace ui {
namespace {

using namespace Qt::StringLiterals;

TEST(WithEnding, AppendsItOnlyToANameWithoutOne)
{
    const struct {
        const char* name;
        const char* expected;
    } cases[] = {
        {"stations", "stations.QTH"},
        {"stations.qth", "stations.qth"},
        {"a.b/stations", "a.b/stations.QTH"},
        {"stations.txt", "stations.txt"},
        {"a/.hidden", "a/.hidden.QTH"},
        {"Köln", "Köln.QTH"},
        {"name.", "name."},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(WithEnding(QString::fromUtf8(c.name), u"QTH"_s).toStdString(), c.expected);
    }
}

}  // namespace
}  // namespace ui
