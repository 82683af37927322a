#include "stations/CleanUp.h"

#include <algorithm>
#include <string>

namespace stations {

bool AreEqual(const StationRecord& a, const StationRecord& b, Equality equality)
{
    if (a.Latitude() != b.Latitude() || a.Longitude() != b.Longitude()) {
        return false;
    }
    return equality == Equality::Position || std::ranges::all_of(kTextFields, [&](Field field) {
               return a.Bytes(field) == b.Bytes(field);
           });
}

void RemoveEqualEntries(StationDatabase& database, Order order)
{
    database.Delete(FindEqualEntries(database, Equality::Full, order));
}

std::vector<std::size_t> FindEqualEntries(StationDatabase& database, Equality equality, Order order)
{
    std::vector<double> noKeyValues;
    Sort(database, ListKey::Latitude, order, noKeyValues);
    std::vector<std::size_t> equal;
    std::size_t first = 0;  // of the run
    for (std::size_t i = 1; i < database.Count(); ++i) {
        if (AreEqual(database[first], database[i], equality)) {
            equal.push_back(i);
        } else {
            first = i;
        }
    }
    return equal;
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
