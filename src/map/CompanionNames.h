// The two files beside a map image: karte.jpg has karte.INF and karte.JUS.

#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace map {

enum class Companion {
    Calibration,  // INF
    Adjustment,   // JUS
};

// The name for a new companion: up to the last "." of the file's name (not of a folder), then "INF"
// or "JUS". None for a name without a dot.
std::optional<std::string> CompanionName(std::string_view imageName, Companion companion);

// The companion to read, ask about and replace, when `folder` lists the names of the files beside
// the image, without their path: the name in capitals if it is there or nothing is; else the first
// in order of bytes that is spelt otherwise ("karte.jus"), so that two never lie side by side.
std::optional<std::string> CompanionName(std::string_view imageName, Companion companion,
                                         std::span<const std::string> folder);

}  // namespace map
