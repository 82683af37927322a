#include "base/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>
#include <utility>

namespace base {

namespace {

// What digits beyond the range of a double stand for: too large or too small.
double NearestFinite(std::string_view digits)
{
    const std::size_t first = digits.find_first_not_of('0');
    const bool large = first != std::string_view::npos && digits[first] != '.';
    return large ? std::numeric_limits<double>::max() : 0.0;
}

// A pattern taken apart.
struct Pattern {
    std::string_view before;
    std::string_view behind;
    std::size_t integerDigits = 0;  // forced digits before the separator
    std::size_t decimals = 0;
};

Pattern ParsePattern(std::string_view pattern)
{
    const std::size_t begin = std::min(pattern.find_first_of("#0"), pattern.size());
    const std::size_t point = std::min(pattern.find_first_not_of("#0", begin), pattern.size());
    std::size_t end = point;
    if (pattern.substr(point).starts_with(".0")) {
        end = std::min(pattern.find_first_not_of('0', point + 1), pattern.size());
    }
    const std::string_view integer = pattern.substr(begin, point - begin);
    return {
        .before = pattern.substr(0, begin),
        .behind = pattern.substr(end),
        .integerDigits = static_cast<std::size_t>(std::count(integer.begin(), integer.end(), '0')),
        .decimals = end - std::min(point + 1, end),
    };
}

// `magnitude` with `decimals` decimals, halves rounded up.
std::string RoundedDigits(double magnitude, std::size_t decimals)
{
    constexpr double kAllWhole = 9007199254740992.0;  // 2^53; a double from here on has no fraction
    if (decimals == 0 && magnitude < kAllWhole && magnitude == std::floor(magnitude)) {
        return std::to_string(static_cast<std::uint64_t>(magnitude));
    }
    std::array<char, 400> buffer;  // the longest double: 309 digits, a point and the decimals
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                            std::chars_format::fixed, static_cast<int>(decimals));
    std::string digits(buffer.data(), end);
    // A half was rounded to the even digit: where that is the one below it, one more is due. With d
    // decimals a half is an odd multiple of 10^-d / 2, which a double can hold only as an odd
    // multiple k of 2^-(d+1); the digit below is even when k mod 4 is 1, because 5 mod 4 is.
    const double halves = std::ldexp(magnitude, static_cast<int>(decimals));
    if (halves - 2.0 * std::floor(halves / 2.0) == 0.5) {
        ++digits.back();
    }
    return digits;
}

}  // namespace

std::string RepairDecimalComma(std::string_view text)
{
    std::string repaired(text);
    std::replace(repaired.begin(), repaired.end(), ',', '.');
    return repaired;
}

double Val(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) {
        text.remove_prefix(1);
    }
    const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789."));
    double magnitude = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(),
                                              magnitude, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        magnitude = NearestFinite(digits);
    } else if (error != std::errc()) {
        magnitude = 0.0;
    }
    return negative ? 0.0 - magnitude : magnitude;
}

double ReadNumber(std::string_view text)
{
    return Val(RepairDecimalComma(text));
}

std::string PlainDecimal(double value)
{
    if (!std::isfinite(value)) {
        return {};
    }
    std::array<char, 800> buffer;  // the smallest double has 1 + 1 + 324 + 17 characters
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                            value + 0.0, std::chars_format::fixed);
    return {buffer.data(), end};
}

NumberFormat::NumberFormat(std::string decimalSeparator)
    : decimalSeparator_(std::move(decimalSeparator))
{
}

std::string NumberFormat::operator()(double value, std::string_view pattern) const
{
    if (!std::isfinite(value)) {
        return {};
    }
    const Pattern parts = ParsePattern(pattern);
    const std::string digits = RoundedDigits(std::fabs(value), parts.decimals);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    std::string_view integer = std::string_view(digits).substr(0, point);
    if (integer == "0") {
        integer = {};
    }
    const bool negative = value < 0.0 && digits.find_first_not_of("0.") != std::string::npos;

    std::string text(parts.before);
    if (negative) {
        text += '-';
    }
    text.append(parts.integerDigits - std::min(parts.integerDigits, integer.size()), '0');
    text += integer;
    if (parts.decimals > 0) {
        text += decimalSeparator_;
        text += std::string_view(digits).substr(point + 1);
    }
    text += parts.behind;
    return text;
}

std::string NumberFormat::Plain(double value) const
{
    std::string text = PlainDecimal(value);
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, decimalSeparator_);
    }
    return text;
}

std::string NumberFormat::Repair(std::string_view text) const
{
    std::string repaired = RepairDecimalComma(text);
    if (decimalSeparator_.empty()) {
        return repaired;
    }
    std::size_t at = 0;
    while ((at = repaired.find(decimalSeparator_, at)) != std::string::npos) {
        repaired.replace(at++, decimalSeparator_.size(), ".");
    }
    return repaired;
}

double NumberFormat::Read(std::string_view text) const
{
    return Val(Repair(text));
}

}  // namespace base
