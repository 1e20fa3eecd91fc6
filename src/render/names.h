// Short names of satellite systems and their signals.
#pragma once

#include <cstdint>
#include <string_view>

namespace navframe {

// Empty for an unknown id or pair.
std::string_view SystemName(std::int32_t systemId);
std::string_view SignalName(std::int32_t systemId, std::uint32_t signalId);

// Writes a name with its terminator and returns its length; an empty name writes nothing.
std::int32_t CopyName(std::string_view name, char* out);

}  // namespace navframe
