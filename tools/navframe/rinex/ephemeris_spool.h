// Ephemerides that are put in order, however many there are.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <variant>
#include <vector>

#include "navframe/records_ephemerides.h"
#include "outputs/temporary_file.h"

namespace navframe::tool {

// What tells one ephemeris from another. Whether the satellite is healthy may change while the
// issue of its data does not.
struct EphemerisKey {
  std::int64_t epoch;      // as in the first line, s
  char system;             // its letter
  std::uint8_t satellite;  // number
  std::uint8_t message;    // a value EphemerisMessage; 0 of GLONASS
  std::int64_t toe;        // s; of GLONASS as epoch
  std::uint16_t issueOfData;
  std::uint16_t issueOfClock;
  std::uint16_t health;

  auto operator<=>(const EphemerisKey&) const = default;
};

struct Ephemeris {
  EphemerisKey key;
  bool isFromCaster;     // a message tells what the satellite sent
  std::uint64_t number;  // in the order in which they came
  std::variant<KeplerEphemerisRecord, GlonassEphemerisRecord> record;
};

// Sorts by keys. Of several with the same key the first stays that was taken from the satellite's
// own message, which tells more, or the first of all. What does not fit in little memory lies in a
// temporary file, as runs that are in order and merged at the end.
class EphemerisSpool {
 public:
  explicit EphemerisSpool(std::size_t mostInMemory = 8192) : mostInMemory_(mostInMemory) {}

  void Add(const Ephemeris& ephemeris);
  bool IsEmpty() const { return memory_.empty() && runs_.empty(); }
  // Hands out all of them in order. Nothing is left then.
  void Drain(const std::function<void(const Ephemeris&)>& take);

 private:
  // Stretches of file_, in ephemerides.
  struct Run {
    std::uint64_t next;
    std::uint64_t end;
  };
  class Reader;

  void SortMemory();
  void Spill();

  const std::size_t mostInMemory_;
  std::vector<Ephemeris> memory_;
  TemporaryFile file_;
  std::vector<Run> runs_;
  // The last key of each satellite's message: most that comes is what came before.
  std::map<std::pair<char, std::uint16_t>, std::pair<EphemerisKey, bool>> last_;
};

}  // namespace navframe::tool
