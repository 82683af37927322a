#include "stations/Configuration.h"

#include <tuple>

#include "base/FileBytes.h"

namespace stations {

namespace {

using base::OldBytes;

constexpr std::int32_t kMagic = 150758;
constexpr std::size_t kConfigurationSize = 2172;
constexpr std::int16_t kFarthestZoom = 33;

// The fields in the order of the file, of a configuration to write or to fill.
auto FieldsOf(auto& c, auto& magic)
{
    return std::tie(c.format, c.station1Index, c.station2Index, c.degreeFormat, c.datum, c.reserved,
                    c.zoomLevel, c.listingMode, c.autoRedraw, c.compassDirection, c.labelChoice,
                    c.showReferencePoints, c.optimisedDisplay, c.optimisedOutput, c.showStation1,
                    c.showStation2, c.workingFile, c.lastImage, c.lastMapFolder, magic, c.station1,
                    c.station2);
}

// All fields but these two kinds stand in the file as they do in memory.
void Put(base::ByteWriter& writer, bool value)
{
    writer.PutBoolean(value);
}
void Put(base::ByteWriter& writer, const std::string& name)
{
    writer.PutText(name, kFileNameLength);
}
template <typename T>
void Put(base::ByteWriter& writer, const T& field)
{
    writer.PutBytes({reinterpret_cast<const unsigned char*>(&field), sizeof field});
}

void Get(base::ByteReader& reader, bool& value)
{
    reader.GetBoolean(value);
}
void Get(base::ByteReader& reader, std::string& name)
{
    reader.GetText(name, kFileNameLength);
    // Another system may have filled the rest up with zeros.
    constexpr std::string_view kFilling(" \0", 2);
    name.erase(name.find_last_not_of(kFilling) + 1);  // npos + 1 is 0
}
template <typename T>
void Get(base::ByteReader& reader, T& field)
{
    reader.GetBytes({reinterpret_cast<unsigned char*>(&field), sizeof field});
}

}  // namespace

bool FitsConfiguration(std::string_view fileName)
{
    return !fileName.empty() && fileName.size() <= kFileNameLength && fileName.back() != ' ';
}

base::ByteVector PackConfiguration(const Configuration& configuration)
{
    base::ByteWriter writer;
    writer.Reserve(kConfigurationSize);
    std::apply([&](const auto&... field) { (Put(writer, field), ...); },
               FieldsOf(configuration, kMagic));
    return writer.Take();
}

ConfigurationContents UnpackConfiguration(base::ByteView bytes)
{
    ConfigurationContents contents;
    if (bytes.empty()) {
        return contents;
    }
    Configuration configuration;
    std::int32_t magic = 0;
    base::ByteReader reader(bytes);
    std::apply([&](auto&... field) { (Get(reader, field), ...); }, FieldsOf(configuration, magic));

    const bool whole = magic == kMagic && bytes.size() == kConfigurationSize;
    contents.oldBytes = whole ? OldBytes::Known : OldBytes::Unknown;
    if (magic != kMagic) {
        contents.status = ConfigurationStatus::Foreign;
        return contents;
    }
    if (configuration.zoomLevel < 1 || configuration.zoomLevel > kFarthestZoom) {
        configuration.zoomLevel = Configuration().zoomLevel;
    }
    contents.status = ConfigurationStatus::Read;
    contents.configuration = configuration;
    return contents;
}

ConfigurationContents ReadConfiguration(const std::string& name)
{
    const base::FileContents file = base::ReadFile(name);
    if (file.status == base::FileStatus::Readable || file.status == base::FileStatus::Missing) {
        return UnpackConfiguration(file.bytes);
    }
    const bool noFolder = file.status == base::FileStatus::NoFolder;
    return {.status = noFolder ? ConfigurationStatus::NoFolder : ConfigurationStatus::Unreadable,
            .configuration = {},
            .oldBytes = OldBytes::Unknown};
}

base::Written WriteConfiguration(const std::string& name, const Configuration& configuration,
                                 OldBytes& oldBytes)
{
    return base::ReplaceFile(name, {PackConfiguration(configuration)}, oldBytes);
}

}  // namespace stations
