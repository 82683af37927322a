#include "stations/Listing.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "geo/Locator.h"
#include "geo/Utm.h"

namespace stations {

namespace {

constexpr std::array kListedTexts = {
    Field::Callsign, Field::Name, Field::Place, Field::Frequency, Field::Remark, Field::Date,
};

void AppendUtm(std::string& listing, geo::GeoPosition position, const base::NumberFormat& format)
{
    const geo::UtmPosition utm = geo::GeoUTM(position);
    listing += format(utm.zone, "0");
    listing += '\t';
    listing += format(utm.easting, "0");
    listing += '\t';
    listing += format(utm.northing, "0");
}

void AppendPosition(std::string& listing, geo::GeoPosition position, ListingMode mode,
                    geo::DegreeMinuteMode angleMode, const base::NumberFormat& format)
{
    constexpr std::string_view kDegrees = "#0.00000000";
    switch (mode) {
    case ListingMode::Utm: AppendUtm(listing, position, format); return;
    case ListingMode::Locator:
        listing += geo::PositionToLocator(position.latitude, position.longitude);
        return;
    case ListingMode::Degrees:
        listing += format(position.latitude, kDegrees);
        listing += '\t';
        listing += format(position.longitude, kDegrees);
        return;
    case ListingMode::DegreeMinutes: break;
    }
    listing += geo::ListingAngle(position.latitude, angleMode);
    listing += '\t';
    listing += geo::ListingAngle(position.longitude, angleMode);
}

void AppendText(std::string& listing, const StationRecord& record, Field field)
{
    std::string text = record.Text(field);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    listing += text;
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
        for (const Field field : kListedTexts) {
            listing += '\t';
            AppendText(listing, record, field);
        }
        listing += "\r\n";
    }
    return listing;
}

}  // namespace stations
