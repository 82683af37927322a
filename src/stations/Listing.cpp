#include "stations/Listing.h"

#include <algorithm>
#include <string_view>

#include "geo/Locator.h"
#include "geo/Utm.h"

namespace stations {

namespace {

void AppendPosition(std::string& listing, geo::GeoPosition position, ListingMode mode,
                    geo::DegreeMinuteMode angleMode, const base::NumberFormat& format)
{
    const auto append = [&listing](const std::string& first, const auto&... more) {
        listing += first;
        ((listing += '\t', listing += more), ...);
    };
    constexpr std::string_view kDegrees = "#0.00000000";
    switch (mode) {
    case ListingMode::Utm: {
        const geo::UtmPosition utm = geo::GeoUTM(position);
        append(format(utm.zone, "0"), format(utm.easting, "0"), format(utm.northing, "0"));
        return;
    }
    case ListingMode::Locator:
        append(geo::PositionToLocator(position.latitude, position.longitude));
        return;
    case ListingMode::Degrees:
        append(format(position.latitude, kDegrees), format(position.longitude, kDegrees));
        return;
    case ListingMode::DegreeMinutes: break;
    }
    append(geo::ListingAngle(position.latitude, angleMode),
           geo::ListingAngle(position.longitude, angleMode));
}

}  // namespace

std::string ListingText(std::span<const StationRecord> records, ListingMode mode,
                        geo::DegreeMinuteMode angleMode, const base::NumberFormat& format)
{
    constexpr std::size_t kUsualLine = 100;
    std::string listing;
    listing.reserve(records.size() * kUsualLine);
    for (const StationRecord& record : records) {
        AppendPosition(listing, record.Position(), mode, angleMode, format);
        for (const Field field : kTextFields) {
            std::string text = record.Text(field);
            std::ranges::replace_if(
                text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
            listing += '\t';
            listing += text;
        }
        listing += "\r\n";
    }
    return listing;
}

}  // namespace stations
