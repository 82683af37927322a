// Date and time as they stand in a record.

#pragma once

#include <ctime>
#include <string>

namespace base {

// "yyyy.mm.dd-hh:mm:ss" in local time. Empty for a time whose year the calendar cannot hold.
std::string TimeStamp(std::time_t time);

}  // namespace base
