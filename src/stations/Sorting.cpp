// The quicksort runs on small entries instead of records: a number that orders like the leading
// field, and the record's index. Only where two numbers are equal the records themselves are
// compared. The records are moved once, at the end. As the steps and the comparison results are
// those of the same quicksort on whole records, so is the order of equal ones.

#include "stations/Sorting.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "base/Rounding.h"
#include "geo/Distance.h"

namespace stations {

namespace {

// What is compared, in this order, until something differs. The chains differ from key to key on
// purpose: equal entries are found by the latitude's, which goes through all texts.
struct Chain {
    std::array<std::int8_t, 8> parts;
    std::size_t length;
};

constexpr std::int8_t kLatitude = -1;
constexpr std::int8_t kLongitude = -2;

constexpr std::int8_t Part(Field field)
{
    return static_cast<std::int8_t>(field);
}

constexpr std::int8_t kCallsign = Part(Field::Callsign);
constexpr std::int8_t kName = Part(Field::Name);
constexpr std::int8_t kPlace = Part(Field::Place);
constexpr std::int8_t kFrequency = Part(Field::Frequency);
constexpr std::int8_t kRemark = Part(Field::Remark);
constexpr std::int8_t kDate = Part(Field::Date);

constexpr std::array<Chain, 10> kChains = {{
    {{kCallsign, kName, kPlace, kFrequency}, 4},
    {{kName, kCallsign, kPlace, kFrequency}, 4},
    {{kPlace, kCallsign, kName, kFrequency}, 4},
    {{kFrequency, kCallsign, kName, kPlace}, 4},
    {{kLatitude, kLongitude, kCallsign, kName, kPlace, kFrequency, kRemark, kDate}, 8},
    {{kLongitude, kLatitude, kCallsign, kName, kPlace}, 5},
    {{kRemark, kCallsign, kName, kPlace}, 4},
    {{}, 0},  // the key values alone
    {{}, 0},
    {{kDate, kCallsign, kName, kPlace}, 4},
}};

int CompareNumbers(double a, double b)
{
    return a < b ? -1 : static_cast<int>(a > b);
}

int ComparePart(const StationRecord& a, const StationRecord& b, std::int8_t part)
{
    if (part == kLatitude) {
        return CompareNumbers(a.Latitude(), b.Latitude());
    }
    if (part == kLongitude) {
        return CompareNumbers(a.Longitude(), b.Longitude());
    }
    return a.Bytes(static_cast<Field>(part)).compare(b.Bytes(static_cast<Field>(part)));
}

// A number that orders like `value`, both zeros alike. Not for NaN.
std::uint64_t OrderedNumber(double value)
{
    constexpr std::uint64_t kSign = std::uint64_t{1} << 63U;
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0);  // -0 + 0 is +0
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

// A number that orders like the first eight bytes of `text`. Texts with equal numbers may differ.
std::uint64_t OrderedNumber(std::string_view text)
{
    const std::string_view leading = text.substr(0, 8);
    std::array<char, 8> bytes = {};
    std::copy(leading.begin(), leading.end(), bytes.begin());
    std::uint64_t number = 0;
    for (const char byte : bytes) {
        number = number << 8U | static_cast<unsigned char>(byte);
    }
    return number;
}

struct Entry {
    std::uint64_t number;
    std::uint32_t index;
};

class Sorter {
public:
    Sorter(std::span<const StationRecord> records, ListKey key, Order order,
           std::span<const double> keyValues)
        : records_(records), keyValues_(keyValues), chain_(kChains[static_cast<std::size_t>(key)]),
          descending_(order == Order::Descending)
    {
        MakeEntries();
    }

    // Indexes of the records in their new order.
    std::vector<std::uint32_t> Run();

private:
    void MakeEntries();
    std::uint64_t LeadingNumber(std::size_t index) const;
    double LeadingValue(std::size_t index) const;
    bool LeadsWithNumber() const { return chain_.length == 0 || chain_.parts.front() < 0; }
    int Compare(const Entry& a, const Entry& b) const;
    int CompareRecords(std::uint32_t a, std::uint32_t b) const;
    std::pair<std::ptrdiff_t, std::ptrdiff_t> Partition(std::ptrdiff_t lo, std::ptrdiff_t hi);

    std::span<const StationRecord> records_;
    std::span<const double> keyValues_;
    const Chain& chain_;
    bool descending_;
    std::vector<Entry> entries_;
};

double Sorter::LeadingValue(std::size_t index) const
{
    if (chain_.length == 0) {
        return keyValues_[index];
    }
    return chain_.parts.front() == kLatitude ? records_[index].Latitude()
                                             : records_[index].Longitude();
}

std::uint64_t Sorter::LeadingNumber(std::size_t index) const
{
    if (LeadsWithNumber()) {
        return OrderedNumber(LeadingValue(index));
    }
    return OrderedNumber(records_[index].Bytes(static_cast<Field>(chain_.parts.front())));
}

void Sorter::MakeEntries()
{
    entries_.reserve(records_.size());
    bool ordered = true;
    for (std::size_t i = 0; i < records_.size(); ++i) {
        const std::uint64_t number = LeadingNumber(i);
        ordered = ordered && !(LeadsWithNumber() && std::isnan(LeadingValue(i)));
        entries_.push_back(
            {.number = descending_ ? ~number : number, .index = static_cast<std::uint32_t>(i)});
    }
    if (!ordered) {
        // NaN is neither below nor above anything, so no number can stand for it. With one number
        // for all, every comparison looks at the records.
        for (Entry& entry : entries_) {
            entry.number = 0;
        }
    }
}

int Sorter::CompareRecords(std::uint32_t a, std::uint32_t b) const
{
    int result = chain_.length == 0 ? CompareNumbers(keyValues_[a], keyValues_[b]) : 0;
    for (std::size_t i = 0; i < chain_.length && result == 0; ++i) {
        result = ComparePart(records_[a], records_[b], chain_.parts[i]);
    }
    return descending_ ? -result : result;
}

int Sorter::Compare(const Entry& a, const Entry& b) const
{
    if (a.number != b.number) {
        return a.number < b.number ? -1 : 1;
    }
    return a.index == b.index ? 0 : CompareRecords(a.index, b.index);
}

// One partition step of the entries lo..hi: the last index of the left part and the first of the
// right. No index leaves lo..hi: a comparison with the pivot stops at the pivot, and at what was
// swapped across it before.
std::pair<std::ptrdiff_t, std::ptrdiff_t> Sorter::Partition(std::ptrdiff_t lo, std::ptrdiff_t hi)
{
    std::ptrdiff_t i = lo;
    std::ptrdiff_t j = hi;
    // Halves go to the even neighbour: 0 and 5 have their middle at 2, 0 and 7 at 4.
    const std::ptrdiff_t sum = lo + hi;
    const std::ptrdiff_t half = sum / 2;
    const std::ptrdiff_t middle = sum % 2 != 0 && half % 2 != 0 ? half + 1 : half;
    const Entry pivot = entries_[static_cast<std::size_t>(middle)];
    const auto entry = [this](std::ptrdiff_t k) -> Entry& {
        return entries_[static_cast<std::size_t>(k)];
    };
    do {
        while (Compare(entry(i), pivot) < 0) {
            ++i;
        }
        while (Compare(entry(j), pivot) > 0) {
            --j;
        }
        if (i > j) {
            break;
        }
        std::swap(entry(i), entry(j));
        ++i;
        --j;
    } while (i <= hi && j >= lo);
    return {j, i};
}

std::vector<std::uint32_t> Sorter::Run()
{
    struct Range {
        std::ptrdiff_t lo;
        std::ptrdiff_t hi;
    };
    std::vector<Range> pending = {{0, static_cast<std::ptrdiff_t>(entries_.size()) - 1}};
    while (!pending.empty()) {
        const Range range = pending.back();
        pending.pop_back();
        if (range.lo >= range.hi) {
            continue;
        }
        const auto [left, right] = Partition(range.lo, range.hi);
        pending.push_back({right, range.hi});
        pending.push_back({range.lo, left});
    }
    std::vector<std::uint32_t> order;
    order.reserve(entries_.size());
    for (const Entry& entry : entries_) {
        order.push_back(entry.index);
    }
    return order;
}

bool IsKey(ListKey key)
{
    return key >= ListKey::Callsign && key <= ListKey::Date;
}

}  // namespace

std::vector<double> KeyValues(const StationDatabase& database, ListKey key,
                              geo::GeoPosition station1)
{
    std::vector<double> values;
    if (!HasKeyValues(key)) {
        return values;
    }
    values.reserve(database.Count());
    for (const StationRecord& record : database.Records()) {
        if (key == ListKey::Distance) {
            values.push_back(geo::Distance(station1, record.Position()));
        } else {
            // The raw bearing counts from east.
            const double bearing = geo::RawBearing(station1, record.Position()) + 90.0;
            values.push_back(bearing >= 360.0 ? bearing - 360.0 : bearing);
        }
    }
    return values;
}

void Sort(StationDatabase& database, ListKey key, Order order, std::vector<double>& keyValues)
{
    if (!IsKey(key)) {
        return;
    }
    std::vector<std::uint32_t> sequence = Sorter(database.Records(), key, order, keyValues).Run();
    if (HasKeyValues(key)) {
        std::vector<double> sorted;
        sorted.reserve(sequence.size());
        for (const std::uint32_t index : sequence) {
            sorted.push_back(keyValues[index]);
        }
        keyValues = std::move(sorted);
    }
    database.Reorder(std::move(sequence));
}

}  // namespace stations
