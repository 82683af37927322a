#include "stations/Configuration.h"

#include "base/FileBytes.h"

namespace stations {

namespace {

using base::OldBytes;

constexpr std::int32_t kMagic = 150758;
constexpr std::size_t kConfigurationSize = 2172;
constexpr std::int16_t kFarthestZoom = 33;

// The bytes of a record; it has no padding.
base::ByteView BytesOf(const StationRecord& record)
{
    return {reinterpret_cast<const unsigned char*>(&record), sizeof record};
}

void GetRecord(base::ByteReader& reader, StationRecord& record)
{
    reader.GetBytes({reinterpret_cast<unsigned char*>(&record), sizeof record});
}

void GetFileName(base::ByteReader& reader, std::string& name)
{
    reader.GetText(name, kFileNameLength);
    // Another system may have filled the rest up with zeros.
    constexpr std::string_view kFilling(" \0", 2);
    name.erase(name.find_last_not_of(kFilling) + 1);  // npos + 1 is 0
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
    writer.Put(configuration.format);
    writer.Put(configuration.station1Index);
    writer.Put(configuration.station2Index);
    writer.Put(configuration.degreeFormat);
    writer.Put(configuration.datum);
    writer.PutBytes(configuration.reserved);
    writer.Put(configuration.zoomLevel);
    writer.Put(configuration.listingMode);
    writer.PutBoolean(configuration.autoRedraw);
    writer.PutBoolean(configuration.compassDirection);
    writer.Put(configuration.labelChoice);
    writer.PutBoolean(configuration.showReferencePoints);
    writer.PutBoolean(configuration.optimisedDisplay);
    writer.PutBoolean(configuration.optimisedOutput);
    writer.PutBoolean(configuration.showStation1);
    writer.PutBoolean(configuration.showStation2);
    writer.PutText(configuration.workingFile, kFileNameLength);
    writer.PutText(configuration.lastImage, kFileNameLength);
    writer.PutText(configuration.lastMapFolder, kFileNameLength);
    writer.Put(kMagic);
    writer.PutBytes(BytesOf(configuration.station1));
    writer.PutBytes(BytesOf(configuration.station2));
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
    reader.Get(configuration.format);
    reader.Get(configuration.station1Index);
    reader.Get(configuration.station2Index);
    reader.Get(configuration.degreeFormat);
    reader.Get(configuration.datum);
    reader.GetBytes(configuration.reserved);
    reader.Get(configuration.zoomLevel);
    reader.Get(configuration.listingMode);
    reader.GetBoolean(configuration.autoRedraw);
    reader.GetBoolean(configuration.compassDirection);
    reader.Get(configuration.labelChoice);
    reader.GetBoolean(configuration.showReferencePoints);
    reader.GetBoolean(configuration.optimisedDisplay);
    reader.GetBoolean(configuration.optimisedOutput);
    reader.GetBoolean(configuration.showStation1);
    reader.GetBoolean(configuration.showStation2);
    GetFileName(reader, configuration.workingFile);
    GetFileName(reader, configuration.lastImage);
    GetFileName(reader, configuration.lastMapFolder);
    reader.Get(magic);
    GetRecord(reader, configuration.station1);
    GetRecord(reader, configuration.station2);

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
    switch (file.status) {
    case base::FileStatus::Missing: return {};
    case base::FileStatus::NoFolder:
        return {.status = ConfigurationStatus::NoFolder,
                .configuration = {},
                .oldBytes = OldBytes::Unknown};
    case base::FileStatus::Unreadable:
        return {.status = ConfigurationStatus::Unreadable,
                .configuration = {},
                .oldBytes = OldBytes::Unknown};
    case base::FileStatus::Readable: break;
    }
    return UnpackConfiguration(file.bytes);
}

base::Written WriteConfiguration(const std::string& name, const Configuration& configuration,
                                 OldBytes& oldBytes)
{
    return base::ReplaceFile(name, {PackConfiguration(configuration)}, oldBytes);
}

}  // namespace stations
