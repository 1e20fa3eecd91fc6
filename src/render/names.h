// Short names of satellite systems and their signals, as the library's texts have them.
#pragma once

#include <cstdint>
#include <string_view>

namespace navframe {

// Where a name stands. Hosts know these names: they differ from text to text.
enum class NameOf : std::uint8_t {
  Export,         // what GNSSSysIdToName and GNSSSigIdToName answer, and GSA, GSV and GBS write
  SatelliteLine,  // systems in the lines of satellites in view
  SignalSet,      // systems and signals in the text of message 4074 sub-type 254
};

// By NMEA ids of system and signal. Empty for an unknown id or pair.
std::string_view SystemName(std::int32_t systemId, NameOf where = NameOf::Export);
std::string_view SignalName(std::int32_t systemId, std::uint32_t signalId,
                            NameOf where = NameOf::Export);

// Writes a name with its terminator and returns its length; an empty name writes nothing.
std::int32_t CopyName(std::string_view name, char* out);

}  // namespace navframe
