// What a caster is told of its user's place.
#pragma once

#include <ctime>
#include <optional>
#include <string>

#include "navframe/stream.h"
#include "sources/source.h"

namespace navframe::tool {

// "48.5,11.25" or "48.5,11.25,545": degrees, and meters above the sea. Nothing for others.
std::optional<Position> ParsePosition(const std::string& text);

// That of a record, of any kind that tells latitude, longitude and height.
std::optional<Position> PositionOf(const NavframeItem& item);

// A GGA sentence without its line end.
std::string GgaSentence(const Position& position, std::time_t now);

}  // namespace navframe::tool
