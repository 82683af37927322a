#include "stations/CleanUp.h"

#include <algorithm>
#include <array>
#include <string>

namespace stations {

namespace {

constexpr std::array kComparedTexts = {
    Field::Callsign, Field::Name, Field::Place, Field::Frequency, Field::Remark, Field::Date,
};

void SortByLatitude(StationDatabase& database, Order order)
{
    std::vector<double> noKeyValues;
    Sort(database, ListKey::Latitude, order, noKeyValues);
}

// Of records in order: each that equals the first of its run.
std::vector<std::size_t> FollowersOf(std::span<const StationRecord> records, Equality equality)
{
    std::vector<std::size_t> followers;
    std::size_t first = 0;
    for (std::size_t i = 1; i < records.size(); ++i) {
        if (AreEqual(records[first], records[i], equality)) {
            followers.push_back(i);
        } else {
            first = i;
        }
    }
    return followers;
}

}  // namespace

bool AreEqual(const StationRecord& a, const StationRecord& b, Equality equality)
{
    if (a.Latitude() != b.Latitude() || a.Longitude() != b.Longitude()) {
        return false;
    }
    return equality == Equality::Position
           || std::all_of(kComparedTexts.begin(), kComparedTexts.end(),
                          [&](Field field) { return a.Bytes(field) == b.Bytes(field); });
}

void RemoveEqualEntries(StationDatabase& database, Order order)
{
    SortByLatitude(database, order);
    database.Delete(FollowersOf(database.Records(), Equality::Full));
}

std::vector<std::size_t> FindEqualEntries(StationDatabase& database, Equality equality, Order order)
{
    SortByLatitude(database, order);
    return FollowersOf(database.Records(), equality);
}

std::optional<MeanStation> MeanOfMarked(const StationDatabase& database,
                                        std::span<const std::size_t> marked)
{
    if (marked.empty()) {
        return std::nullopt;
    }
    geo::GeoPosition sum;
    for (const std::size_t index : marked) {
        sum.latitude += database[index].Latitude();
        sum.longitude += database[index].Longitude();
    }
    const auto count = static_cast<double>(marked.size());
    MeanStation mean;
    mean.texts.callsign = "MIWERT";
    mean.texts.remark = "Mittelwert von " + std::to_string(marked.size()) + " Stationen";
    mean.position = {.latitude = sum.latitude / count, .longitude = sum.longitude / count};
    return mean;
}

}  // namespace stations
