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

// What is compared: a field, in the order of Field, or one of the numbers behind them.
enum class Part : std::uint8_t {
    None,
    Callsign,
    Name,
    Place,
    Frequency,
    Remark,
    Date,
    Latitude,
    Longitude,
    KeyValue,
};

using enum Part;

// What each key compares, in this order, until something differs. The chains differ from key to key
// on purpose: equal entries are found by the latitude's, which goes through all texts.
using Chain = std::array<Part, 8>;
constexpr std::array<Chain, 10> kChains = {{
    {Callsign, Name, Place, Frequency},
    {Name, Callsign, Place, Frequency},
    {Place, Callsign, Name, Frequency},
    {Frequency, Callsign, Name, Place},
    {Latitude, Longitude, Callsign, Name, Place, Frequency, Remark, Date},
    {Longitude, Latitude, Callsign, Name, Place},
    {Remark, Callsign, Name, Place},
    {KeyValue},
    {KeyValue},
    {Date, Callsign, Name, Place},
}};

bool IsNumber(Part part)
{
    return part >= Latitude;
}

int CompareNumbers(double a, double b)
{
    return a < b ? -1 : static_cast<int>(a > b);
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
    double Number(Part part, std::uint32_t index) const;
    std::string_view Text(Part part, std::uint32_t index) const;
    int Compare(const Entry& a, const Entry& b) const;
    int CompareRecords(std::uint32_t a, std::uint32_t b) const;
    std::pair<std::ptrdiff_t, std::ptrdiff_t> Partition(std::ptrdiff_t lo, std::ptrdiff_t hi);

    std::span<const StationRecord> records_;
    std::span<const double> keyValues_;
    const Chain& chain_;
    bool descending_;
    std::vector<Entry> entries_;
};

double Sorter::Number(Part part, std::uint32_t index) const
{
    switch (part) {
    case Latitude: return records_[index].Latitude();
    case Longitude: return records_[index].Longitude();
    default: return keyValues_[index];
    }
}

std::string_view Sorter::Text(Part part, std::uint32_t index) const
{
    return records_[index].Bytes(static_cast<Field>(static_cast<int>(part) - 1));
}

void Sorter::MakeEntries()
{
    const Part leading = chain_.front();
    bool ordered = true;
    entries_.resize(records_.size());
    for (std::uint32_t i = 0; i < entries_.size(); ++i) {
        const std::uint64_t number =
            IsNumber(leading) ? OrderedNumber(Number(leading, i)) : OrderedNumber(Text(leading, i));
        ordered = ordered && !(IsNumber(leading) && std::isnan(Number(leading, i)));
        entries_[i] = {.number = descending_ ? ~number : number, .index = i};
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
    int result = 0;
    for (std::size_t i = 0; i < chain_.size() && chain_[i] != None && result == 0; ++i) {
        result = IsNumber(chain_[i]) ? CompareNumbers(Number(chain_[i], a), Number(chain_[i], b))
                                     : Text(chain_[i], a).compare(Text(chain_[i], b));
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
    std::vector<std::pair<std::ptrdiff_t, std::ptrdiff_t>> pending = {
        {0, static_cast<std::ptrdiff_t>(entries_.size()) - 1}};
    while (!pending.empty()) {
        const auto [lo, hi] = pending.back();
        pending.pop_back();
        if (lo < hi) {
            const auto [left, right] = Partition(lo, hi);
            pending.emplace_back(right, hi);
            pending.emplace_back(lo, left);
        }
    }
    std::vector<std::uint32_t> order(entries_.size());
    std::ranges::transform(entries_, order.begin(), &Entry::index);
    return order;
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
    if (static_cast<std::size_t>(key) >= kChains.size()) {  // a negative key is a large one here
        return;
    }
    std::vector<std::uint32_t> sequence = Sorter(database.Records(), key, order, keyValues).Run();
    if (HasKeyValues(key)) {
        std::vector<double> sorted(sequence.size());
        std::ranges::transform(sequence, sorted.begin(),
                               [&](std::uint32_t index) { return keyValues[index]; });
        keyValues = std::move(sorted);
    }
    database.Reorder(std::move(sequence));
}

}  // namespace stations
