#include "stations/StationRecord.h"

#include <algorithm>

#include "base/CodePage.h"

namespace stations {

namespace {

// One place of the text buffer stays unused: a field never ends behind position 255.
constexpr std::size_t kEndOfRoom = 255;

// Stores the texts in `record` and gives the fields that were cut or left out.
std::vector<Field> StoreTexts(StationRecord& record, const StationTexts& texts,
                              std::string_view now)
{
    const std::string_view date = Trimmed(texts.date).empty() ? now : texts.date;
    return record.SetTexts({base::ToCodePage(texts.callsign), base::ToCodePage(texts.name),
                            base::ToCodePage(texts.place), base::ToCodePage(texts.frequency),
                            base::ToCodePage(texts.remark), base::ToCodePage(date)});
}

}  // namespace

std::string StationRecord::Text(Field field) const
{
    return base::FromCodePage(Bytes(field));
}

bool StationRecord::SetBytes(Field field, std::string_view bytes)
{
    const std::string_view text = Trimmed(bytes);
    const auto k = static_cast<std::size_t>(field);
    const std::size_t start = k == 0 ? 1 : ends_[k - 1];
    if (start == 0 || start >= kEndOfRoom) {
        return text.empty();
    }
    const std::string_view stored = text.substr(0, kEndOfRoom - start);
    std::copy(stored.begin(), stored.end(), text_.data() + start - 1);
    ends_[k] = static_cast<std::uint8_t>(start + stored.size());
    return stored.size() == text.size();
}

std::vector<Field>
StationRecord::SetTexts(const std::array<std::string_view, kTextFields.size()>& texts)
{
    std::vector<Field> cut;
    for (const Field field : kTextFields) {
        if (!SetBytes(field, texts[static_cast<std::size_t>(field)])) {
            cut.push_back(field);
        }
    }
    SetBytes(Field::Reserved6, {});
    SetBytes(Field::Reserved7, {});
    return cut;
}

void StationRecord::SetPosition(geo::GeoPosition position)
{
    longitude_ = std::bit_cast<std::array<unsigned char, 8>>(position.longitude);
    latitude_ = std::bit_cast<std::array<unsigned char, 8>>(position.latitude);
}

StationRecord BuildRecord(const StationTexts& texts, geo::GeoPosition position,
                          std::string_view now)
{
    StationRecord record = EmptyRecord();
    StoreTexts(record, texts, now);
    record.SetPosition(position);
    return record;
}

std::vector<Field> CutFields(const StationTexts& texts, std::string_view now)
{
    StationRecord record = EmptyRecord();
    return StoreTexts(record, texts, now);
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
