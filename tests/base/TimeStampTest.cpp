#include "base/TimeStamp.h"

#include <ctime>
#include <limits>

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(TimeStamp, WritesLocalTimeWithLeadingZeros)
{
    std::tm local = {};
    local.tm_year = 2007 - 1900;
    local.tm_mon = 2;
    local.tm_mday = 4;
    local.tm_hour = 5;
    local.tm_min = 6;
    local.tm_sec = 7;
    local.tm_isdst = -1;
    EXPECT_EQ(TimeStamp(std::mktime(&local)), "2007.03.04-05:06:07");
}

TEST(TimeStamp, IsEmptyForAYearBeyondTheCalendar)
{
    EXPECT_EQ(TimeStamp(std::numeric_limits<std::time_t>::max()), "");
}

}  // namespace
}  // namespace base
