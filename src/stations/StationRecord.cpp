#include "stations/StationRecord.h"

#include <algorithm>
#include <bit>

#include "base/CodePage.h"

namespace stations {

namespace {

// One place of the text buffer stays unused: a field never ends behind position 255.
constexpr std::size_t kEndOfRoom = 255;

}  // namespace

std::string StationRecord::Text(Field field) const
{
    return base::FromCodePage(Bytes(field));
}

void StationRecord::SetBytes(Field field, std::string_view bytes)
{
    const auto k = static_cast<std::size_t>(field);
    const std::size_t start = k == 0 ? 1 : ends_[k - 1];
    if (start == 0 || start >= kEndOfRoom) {
        return;
    }
    const std::string_view stored = Trimmed(bytes).substr(0, kEndOfRoom - start);
    std::copy(stored.begin(), stored.end(), text_.data() + start - 1);
    ends_[k] = static_cast<std::uint8_t>(start + stored.size());
}

void StationRecord::SetPosition(geo::GeoPosition position)
{
    longitude_ = std::bit_cast<std::array<unsigned char, 8>>(position.longitude);
    latitude_ = std::bit_cast<std::array<unsigned char, 8>>(position.latitude);
}

StationRecord BuildRecord(const StationTexts& texts, geo::GeoPosition position,
                          std::string_view now)
{
    const std::string_view date = Trimmed(texts.date).empty() ? now : texts.date;
    StationRecord record = EmptyRecord();
    record.SetBytes(Field::Callsign, base::ToCodePage(texts.callsign));
    record.SetBytes(Field::Name, base::ToCodePage(texts.name));
    record.SetBytes(Field::Place, base::ToCodePage(texts.place));
    record.SetBytes(Field::Frequency, base::ToCodePage(texts.frequency));
    record.SetBytes(Field::Remark, base::ToCodePage(texts.remark));
    record.SetBytes(Field::Date, base::ToCodePage(date));
    record.SetBytes(Field::Reserved6, {});
    record.SetBytes(Field::Reserved7, {});
    record.SetPosition(position);
    return record;
}

StationTexts TextsOf(const StationRecord& record)
{
    return {
        .callsign = record.Text(Field::Callsign),
        .name = record.Text(Field::Name),
        .place = record.Text(Field::Place),
        .frequency = record.Text(Field::Frequency),
        .remark = record.Text(Field::Remark),
        .date = record.Text(Field::Date),
    };
}

}  // namespace stations
