// The configuration file, one record of 2172 bytes without padding.
//
//   offset  bytes                                        default
//        0      2  format, signed                        1
//        2      4  Station 1 index, signed               -1
//        6      4  Station 2 index                       -1
//       10      1  degree format                         1
//       11      1  Gauss-Krüger datum                    1
//       12     20  reserved                              zeros
//       32      2  zoom level, signed                    14
//       34      2  listing mode, signed                  0
//       36      2  automatic redraw, -1 true, 0 false    0
//       38      2  compass direction                     0
//       40      2  label choice, signed                  0
//       42      2  show reference points                 -1
//       44      2  optimised coordinate display          0
//       46      2  optimised output                      -1
//       48      2  show Station 1                        -1
//       50      2  show Station 2                        -1
//       52    512  working file name, blanks behind      WORK.QTH
//      564    512  last image                            blanks
//     1076    512  last map folder                       blanks
//     1588      4  150758, the mark of a configuration
//     1592    290  Station 1 record                      zeros
//     1882    290  Station 2 record                      zeros

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Bytes.h"
#include "base/OldBytes.h"
#include "geo/AngleText.h"
#include "stations/Listing.h"
#include "stations/StationRecord.h"

namespace stations {

inline constexpr const char* kConfigurationName = "KOMP_LOC.CFG";

inline constexpr std::size_t kFileNameLength = 512;

// The text that labels the stations on the map; any other value stands for Callsign.
enum class LabelChoice : std::int16_t {
    Callsign = 0,
    Name = 1,
    Place = 2,
    Frequency = 3,
    Remark = 4,
};

// A value that is none of an enumeration's is kept until the user chooses another.
struct Configuration {
    std::int16_t format = 1;
    std::int32_t station1Index = -1;  // -1: the built-in station, 0: `station1`
    std::int32_t station2Index = -1;  // likewise
    geo::DegreeMinuteMode degreeFormat = geo::DegreeMinuteMode::Hundredths;
    std::uint8_t datum = 1;  // 0: WGS84 (nur Süddeutschl.), 1: ED50
    std::array<unsigned char, 20> reserved = {};
    std::int16_t zoomLevel = 14;  // of the map, 1..33
    ListingMode listingMode = ListingMode::DegreeMinutes;
    bool autoRedraw = false;
    bool compassDirection = false;
    LabelChoice labelChoice = LabelChoice::Callsign;
    bool showReferencePoints = true;
    bool optimisedDisplay = false;
    bool optimisedOutput = true;
    bool showStation1 = true;
    bool showStation2 = true;
    // The bytes of the file system, without blanks and zeros at the end, at most 512.
    std::string workingFile = "WORK.QTH";
    std::string lastImage;      // of the map
    std::string lastMapFolder;  // of the dialog that loads one
    StationRecord station1;
    StationRecord station2;

    bool operator==(const Configuration&) const = default;
};

// True for a name that the configuration gives back as it was: 1 to 512 bytes, no blank at its end.
bool FitsConfiguration(std::string_view fileName);

base::ByteVector PackConfiguration(const Configuration& configuration);

enum class ConfigurationStatus {
    Read,
    New,         // missing or without a single byte
    Foreign,     // not marked as a configuration
    NoFolder,    // a link into a folder that is not there
    Unreadable,  // exists, but cannot be read
};

struct ConfigurationContents {
    ConfigurationStatus status = ConfigurationStatus::New;
    Configuration configuration;  // the defaults unless read
    base::OldBytes oldBytes = base::OldBytes::Known;
};

// Fields behind the end of `bytes` have their defaults; bytes behind the record are not read. A
// zoom level that the map does not have is 14.
ConfigurationContents UnpackConfiguration(base::ByteView bytes);

ConfigurationContents ReadConfiguration(const std::string& name);

// Replaces the configuration file, see base::ReplaceFile.
base::Written WriteConfiguration(const std::string& name, const Configuration& configuration,
                                 base::OldBytes& oldBytes);

}  // namespace stations
