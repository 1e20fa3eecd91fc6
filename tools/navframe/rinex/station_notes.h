// What a stream says of its station, for headers.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "navframe/records.h"
#include "navframe/stream.h"
#include "rinex/epochs.h"
#include "rinex/observed.h"

namespace navframe::tool {

using Vector = std::array<double, 3>;

// What a reference station says of itself, or a receiver. Empty and NaN for what is not known.
struct Equipment {
  std::string antenna;
  std::string antennaSerial;
  std::string receiver;
  std::string firmware;
  std::string receiverSerial;
  std::optional<Vector> position;                      // of the antenna reference point, ECEF, m
  std::uint16_t positionMessage = 0;                   // that told it
  double antennaHeight = 0;                            // of that point above the marker, m
  std::optional<std::array<double, 4>> glonassBiases;  // C1C, C1P, C2C, C2P, m; NaN for unknown
};

class StationNotes {
 public:
  StationNotes() { channels_.fill(UnknownChannel); }

  // Takes what a record tells.
  void Note(const NavframeItem& item);
  void NoteObservations(const ObservationsRecord& record);

  // Of the station that observed; of a receiver that sends UBX that of the only one there is.
  Equipment Of(std::optional<StationNumber> station) const;

  // The first position that a receiver found; and what told it.
  const std::optional<Vector>& Fix() const { return fix_; }
  const std::string& FixMessage() const { return fixMessage_; }

  std::optional<int> LeapSeconds() const { return leapSeconds_; }

  // The frequency channel of a GLONASS satellite.
  std::optional<int> ChannelOf(std::size_t satellite) const;

  static std::vector<const NavframeKind*> Kinds();

 private:
  static constexpr std::int8_t UnknownChannel = -128;

  Equipment* Of(std::uint16_t station);
  void NoteFix(const NavframeItem& item);
  void NoteLeapSeconds(const NavframeItem& item);

  std::map<std::uint16_t, Equipment> stations_;
  Equipment receiver_;
  std::optional<Vector> fix_;
  std::string fixMessage_;
  std::optional<int> leapSeconds_;
  std::array<std::int8_t, SatelliteRoom> channels_;
};

}  // namespace navframe::tool
