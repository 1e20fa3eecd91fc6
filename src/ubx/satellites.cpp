#include <algorithm>
#include <array>
#include <cstring>

#include "base/read_le.h"
#include "ubx/messages.h"
#include "ubx/record_head.h"

namespace navframe::ubx {
namespace {

constexpr std::size_t EntriesOffset = 8;
constexpr std::size_t EntryLength = 12;
constexpr std::size_t Room = std::size(UbxSatellitesRecord{}.satellites);

constexpr std::uint8_t LowestUnknownElevation = 91;  // negative ones are above, as unsigned bytes

void DecodeFlags(std::uint32_t flags, UbxSatellite& satellite) {
  satellite.quality = Bits(flags, 0, 3);
  satellite.used = Bits(flags, 3, 1);
  satellite.health = Bits(flags, 4, 2);
  satellite.corrected = Bits(flags, 6, 1);
  satellite.smoothed = Bits(flags, 7, 1);
  satellite.orbitSource = Bits(flags, 8, 3);
  // The flags from bit 11 on stand in the record in the order of their bits.
  constexpr std::size_t Offset = offsetof(UbxSatellite, ephemeris);
  static_assert(offsetof(UbxSatellite, spartnCorrections) == Offset + 8);
  WriteFlags<8>(Bits(flags, 11, 8), Offset, satellite);
  WriteFlags<4>(Bits(flags, 19, 4), Offset + 8, satellite);
}

void DecodeSatellite(const std::uint8_t* entry, UbxSatellite& satellite) {
  satellite.systemId = entry[0];
  satellite.satelliteId = entry[1];
  satellite.cn0 = entry[2] == 0 ? Unknown<std::uint8_t>() : entry[2];
  const bool hasDirection = entry[3] < LowestUnknownElevation;
  satellite.elevation = hasDirection ? entry[3] : Unknown<std::uint8_t>();
  satellite.azimuth = hasDirection ? ReadLe<std::uint16_t>(entry, 4) : Unknown<std::uint16_t>();
  satellite.residual = ReadLe<std::int16_t>(entry, 6);
  DecodeFlags(ReadLe<std::uint32_t>(entry, 8), satellite);
}

}  // namespace

void DecodeSatellites(const Payload& payload, TimeManager& time, UbxSatellitesRecord& record,
                      std::uint32_t& written) {
  WriteHead(ReadLe<std::uint32_t>(payload.bytes, 0), time.getWeek(), time, record);
  record.version = payload.bytes[4];
  const std::size_t held = payload.Entries(EntriesOffset, EntryLength);
  const std::size_t count = std::min({std::size_t{payload.bytes[5]}, held, Room});
  record.count = static_cast<std::uint8_t>(count);
  for (std::size_t i = 0; i < count; ++i) {
    DecodeSatellite(payload.bytes + EntriesOffset + i * EntryLength, record.satellites[i]);
  }
  // The rest of the record: satellites behind the last one, and padding at its end.
  MakeUnknownFrom(offsetof(UbxSatellitesRecord, satellites) + count * sizeof(UbxSatellite), written,
                  record);
}

}  // namespace navframe::ubx
