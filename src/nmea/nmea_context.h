// What the NMEA decoder remembers from sentence to sentence.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "nmea/satellites_in_view.h"
#include "nmea/seen_satellites.h"
#include "nmea/wide_view.h"

namespace navframe::nmea {

// Whether a sentence came plain or behind a tag block: the first byte of most records.
enum class TagFlag : std::uint8_t { Plain = 0, BehindTagBlock = 1 };

// A field kept as text; no field of a sentence is longer.
class KeptField {
 public:
  std::string_view View() const { return {characters_.data(), length_}; }
  void operator=(std::string_view field) {
    length_ = field.copy(characters_.data(), characters_.size());
  }

 private:
  std::array<char, 256> characters_;
  std::size_t length_ = 0;
};

// One for plain sentences, one for those behind a tag block.
struct NmeaContext {
  explicit NmeaContext(WideGsvRecord& wideRecord) : wide(wideRecord) {}

  SatellitesInView satellites;
  WideView wide;           // where all are kept
  SeenSatellites seen;     // where they tell the system of a GSA
  std::uint32_t kind = 0;  // of the current and of the previous sentence, recognised or not
  std::uint32_t previousKind = 0;
  std::int64_t gsvAnnounced = 0;  // sentences of the cycle, by the first of each group
  std::int64_t gsvCame = 0;
  KeptField previousEpochTime;  // time field of the last GGA or RMC that had one
};

}  // namespace navframe::nmea
