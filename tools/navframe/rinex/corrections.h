// What navigation files of RINEX say besides ephemerides: ionosphere, offsets of time scales.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "navframe/records_asciilog_orbits.h"
#include "navframe/records_ephemerides.h"
#include "navframe/stream.h"

namespace navframe::tool {

// Of what a stream tells several times the last counts, but for offsets of GLONASS in version 4.
class Corrections {
 public:
  // Keeps what logs tell, and leaves all other items.
  void Take(const NavframeItem& item);
  // Keeps the offsets that came with an ephemeris.
  void Take(const GlonassEphemerisRecord& record);

  // Lines of the header of version 3.
  void PutHeaderLines(std::string& out) const;
  // Records ION and STO of version 4, but for those of GLONASS.
  void PutRecords(std::string& out) const;

 private:
  template <class Record>
  struct Timed {
    Record record;
    std::int64_t gpsSeconds;  // since 1980-01-06
  };

  std::optional<Timed<IonosphereLogRecord>> gpsIonosphere_;
  std::optional<Timed<IonosphereLogRecord>> beiDouIonosphere_;
  std::optional<Timed<GalileoIonosphereLogRecord>> galileoIonosphere_;
  std::optional<Timed<UtcLogRecord>> gpsUtc_;
  std::optional<Timed<UtcLogRecord>> galileoUtc_;
  std::optional<GlonassEphemerisRecord> glonass_;
};

// The offsets of GLONASS time as records STO of version 4, in front of the ephemerides that they
// came with. Satellites send the same ones, and change to others one after the other: what was
// written lately is left out.
class GlonassOffsets {
 public:
  void Put(std::string& out, const GlonassEphemerisRecord& record);

 private:
  struct Written {
    std::uint16_t day = 0;  // none, those of GLONASS start with 1
    double toUtc = 0;
    double toGps = 0;

    bool operator==(const Written&) const = default;
  };
  std::array<Written, 64> written_;
  std::size_t next_ = 0;
};

}  // namespace navframe::tool
