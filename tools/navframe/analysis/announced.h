// Stations, antennas and receivers that said what they are.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "analysis/geodesy.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// Where an antenna of a station is.
struct ReferencePoint {
  std::uint16_t stationId = 0;
  std::uint16_t message = 0;  // 1005 or 1006
  Ecef position{};
  double antennaHeight = 0;  // m above the marker, NaN when it is not known
  bool isComputed = false;   // a virtual station
  std::uint64_t count = 0;

  bool IsSame(const ReferencePoint& other) const;
};

// What a station is made of. Texts are as they were sent, also below; empty ones are not known.
struct Equipment {
  std::uint16_t stationId = 0;
  std::uint16_t message = 0;  // 1007, 1008 or 1033
  std::string antenna;
  std::string antennaSerial;
  std::string receiver;
  std::string firmware;
  std::string receiverSerial;
  std::uint64_t count = 0;

  bool IsSame(const Equipment& other) const;
};

// MON-VER.
struct ReceiverVersion {
  std::string software;
  std::string hardware;
  std::vector<std::string> extensions;
  std::uint64_t count = 0;

  bool IsSame(const ReceiverVersion& other) const;
};

// A text for people: TXT, INF or 1029.
struct Announcement {
  std::string from;  // "GNTXT", "INF warning", "1029 of station 5"
  std::string text;
  std::uint64_t count = 0;

  bool IsSame(const Announcement& other) const;
};

// Different ones, in the order in which they came first; so many of each at most, and how many
// records were left out for that.
struct Announced {
  static constexpr std::size_t Most = 32;

  std::vector<ReferencePoint> points;
  std::vector<Equipment> equipment;
  std::vector<ReceiverVersion> versions;
  std::vector<Announcement> texts;
  std::uint64_t leftOut = 0;

  // Whether records of the kind announce something, and such a record.
  static bool IsOf(const NavframeKind& kind);
  void Take(const NavframeItem& item);
  void Add(const Announced& others);
};

}  // namespace navframe::analysis
