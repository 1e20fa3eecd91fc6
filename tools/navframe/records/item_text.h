// What all forms say of an item.
#pragma once

#include <string>

#include "navframe/stream.h"

namespace navframe::tool {

// "2026-03-14T12:00:00.000Z", the time of the stream. False, and nothing appended, before it
// has a date.
bool AppendTime(const NavframeTime& time, std::string& out);

// "UBX 01-07", "RTCM 3 4074-11", "NMEA GPTXT"; of skipped bytes nothing.
std::string MessageOf(const NavframeItem& item);

// "undecoded", "malformed", "rejected", "skipped"; of frames without a reason "frame".
const char* PartOf(const NavframeItem& item);

}  // namespace navframe::tool
