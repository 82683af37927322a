#include "stations/Listing.h"

#include <algorithm>
#include <string_view>

#include "geo/Locator.h"
#include "geo/Utm.h"

namespace stations {

namespace {

std::string PositionColumns(geo::GeoPosition position, ListingMode mode,
                            geo::DegreeMinuteMode angleMode, const base::NumberFormat& format)
{
    constexpr std::string_view kDegrees = "#0.00000000";
    switch (mode) {
    case ListingMode::Utm: {
        const geo::UtmPosition utm = geo::GeoUTM(position);
        return format(utm.zone, "0") + '\t' + format(utm.easting, "0") + '\t'
               + format(utm.northing, "0");
    }
    case ListingMode::Locator: return geo::PositionToLocator(position.latitude, position.longitude);
    case ListingMode::Degrees:
        return format(position.latitude, kDegrees) + '\t' + format(position.longitude, kDegrees);
    case ListingMode::DegreeMinutes: break;
    }
    return geo::ListingAngle(position.latitude, angleMode) + '\t'
           + geo::ListingAngle(position.longitude, angleMode);
}

}  // namespace

std::string ListingText(std::span<const StationRecord> records, ListingMode mode,
                        geo::DegreeMinuteMode angleMode, const base::NumberFormat& format)
{
    constexpr std::size_t kUsualLine = 100;
    std::string listing;
    listing.reserve(records.size() * kUsualLine);
    for (const StationRecord& record : records) {
        listing += PositionColumns(record.Position(), mode, angleMode, format);
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
