// Numbers to text and back. One way to read a number, one way to print one.
//
// Reading never fails: the longest leading part that is a number counts, the rest is ignored, and
// a text without one reads as 0.

#pragma once

#include <string>
#include <string_view>

namespace base {

// The text with every "," replaced by ".", so that "11,625" and "11.625" are read alike.
std::string RepairDecimalComma(std::string_view text);

// Leading number of `text`: leading blanks are skipped, then one sign, then digits with at most one
// point. No exponent. Nothing readable gives 0; more digits than a double holds give the nearest
// finite value, never infinity; the result is never a negative zero.
double Val(std::string_view text);

// What a user typed, as a number: Val of the repaired text.
double ReadNumber(std::string_view text);

// Shortest decimal text that reads back to the same double, without an exponent: "48.3125", "1000",
// "0.00001". The decimal separator is always a point. 0 for a negative zero; empty when `value` is
// not finite.
std::string PlainDecimal(double value);

// Prints numbers with one decimal separator, usually that of the regional settings, and reads them.
class NumberFormat {
public:
    // `decimalSeparator` is UTF-8; it may be longer than one byte.
    explicit NumberFormat(std::string decimalSeparator = ".");

    // `value` by `pattern`: the first run of "#" and "0", with the decimals behind it, is replaced
    // by the number, what stands before and behind it is copied. Each "0" is a digit that is always
    // shown, "#" one that may be left out; more digits before the separator than the pattern has
    // are all shown. Rounds half away from zero on the exact value of the double and never prints a
    // negative zero. Empty when `value` is not finite.
    //
    // -0.4 by "0.00 km - " is "-0.40 km - ", 1234.5 by "##0.0" is "1234.5".
    std::string operator()(double value, std::string_view pattern) const;

    // PlainDecimal with the separator.
    std::string Plain(double value) const;

    // The text with the separator and every "," replaced by ".".
    std::string Repair(std::string_view text) const;

    // What a user typed, as a number: the separator, "," and "." are read alike.
    double Read(std::string_view text) const;

private:
    std::string decimalSeparator_;
};

}  // namespace base
