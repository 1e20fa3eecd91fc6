// Which systems, satellites and signals there were, and how strong.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "navframe/records_observations.h"
#include "navframe/stream.h"

namespace navframe::analysis {

// How often something was seen, and how strong.
struct Strength {
  std::uint64_t count = 0;
  std::uint64_t measured = 0;  // of them, with a C/N0
  double sum = 0;              // dB-Hz

  void Add(double cn0) {
    ++count;
    if (cn0 > 0) {
      ++measured;
      sum += cn0;
    }
  }
  void Add(const Strength& others);
  // NaN when none was measured.
  double Mean() const;
};

struct NamedStrength {
  char system;       // letter of RINEX
  std::string name;  // "G", "G05", "1C"; "signal 7" of one without a code
  Strength strength;
};

// Where the counts are from: what comes first is preferred.
enum class SeenIn : std::uint8_t { Observations, NavSig, NavSat, NavSvInfo, Gsv, Nothing };

struct Seen {
  SeenIn in = SeenIn::Nothing;
  std::vector<NamedStrength> systems;
  std::vector<NamedStrength> satellites;
  std::vector<NamedStrength> signals;

  void Add(const Seen& others);
};

const char* NameOf(SeenIn in);
// "GPS" of 'G'.
const char* SystemName(char letter);

// What was seen, counted by system, number of the satellite and number of the signal as the
// messages have them: one place for each, so that counting is all that is done. Names are found in
// the end.
class SignalCells {
 public:
  static constexpr std::uint32_t Systems = 8;
  static constexpr std::uint32_t Numbers = 512;
  static constexpr std::uint32_t Signals = 32;

  // Pages of memory are taken as they are used.
  SignalCells() : cells_(static_cast<std::uint64_t*>(std::calloc(Places, sizeof(std::uint64_t)))) {
    if (cells_ == nullptr) throw std::bad_alloc();
  }

  // The place of what was seen. What is out of range counts as the last one there is, a system as
  // the first, which is none.
  static std::uint32_t PlaceOf(std::uint32_t system, std::uint32_t number, std::uint32_t signal) {
    if (system >= Systems || number >= Numbers || signal >= Signals) [[unlikely]] {
      system = system < Systems ? system : 0;
      number = std::min(number, Numbers - 1);
      signal = std::min(signal, Signals - 1);
    }
    return (system * Numbers + number) * Signals + signal;
  }

  // Counts one with that value, below 65536. Whether it may be the first.
  bool Add(std::uint32_t place, std::uint32_t value) {
    const std::uint64_t cell = cells_[place] += std::uint64_t{value} << CountBits | 1;
    if ((cell & (Full - 1)) > 1) [[likely]]
      return false;
    Sort(place);
    return true;
  }

  // Places that were used, with counts and sums.
  template <class Take>
  void ForEach(Take take) const {
    for (const auto& [place, sum] : sums_) {
      const std::uint64_t cell = cells_[place];
      take(place / (Numbers * Signals), place / Signals % Numbers, place % Signals,
           Sum{sum.count + cell % (2 * Full), sum.values + (cell >> CountBits)});
    }
  }
  struct Sum {
    std::uint64_t count = 0;
    std::uint64_t values = 0;
  };

 private:
  static constexpr std::uint32_t Places = Systems * Numbers * Signals;
  // A cell has a count and, above it, the sum of the values. Before either can overflow they go to
  // the sums.
  static constexpr int CountBits = 21;
  static constexpr std::uint64_t Full = std::uint64_t{1} << (CountBits - 1);

  struct Free {
    void operator()(std::uint64_t* cells) const { std::free(cells); }
  };

  void Sort(std::uint32_t place);

  std::unique_ptr<std::uint64_t[], Free> cells_;
  std::map<std::uint32_t, Sum> sums_;
};

class SatelliteTally {
 public:
  // Which of these a kind is; Nothing of others.
  static SeenIn PartOf(const NavframeKind& kind);

  // A record of such a kind. What is less preferred than what came before is left alone.
  void Take(SeenIn in, const NavframeItem& item) {
    if (in <= in_) TakeMore(in, item);
  }

  Seen Found() const;

 private:
  // Observations have numbers of signals by three rules.
  enum Numbering : std::uint8_t { Msm, Rtk, UbxRaw };
  static constexpr std::size_t Numberings = 3;
  struct Code {
    char text[2];  // 0 of one that is not listed
  };
  struct Expected {
    std::uint32_t head = 0xFFFFFFFF;  // of nothing
    std::uint32_t place = 0;
  };
  static constexpr std::size_t Messages = 8;        // that come in turn
  static constexpr std::size_t Observations = 255;  // of one of them
  struct Observed {
    SignalCells measured;
    SignalCells unmeasured;
    std::array<std::array<Code, SignalCells::Signals>, SignalCells::Systems> codes{};
    std::array<std::array<Expected, Observations>, Messages> expected{};
  };

  class Gathered;

  void TakeMore(SeenIn in, const NavframeItem& item);
  void Observe(const void* record);
  template <Numbering Rule>
  void Count(const void* record);
  template <Numbering Rule>
  std::uint32_t PlaceOf(const Observation& one);
  void NavSig(const void* record);
  template <class Record>
  void NavSat(const void* record);
  void SvInfo(const void* record);
  template <class Record>
  void Gsv(const void* record);
  void Gather(std::size_t rule, Gathered& gathered) const;

  SeenIn in_ = SeenIn::Nothing;
  std::array<std::unique_ptr<Observed>, Numberings> observed_;
  std::optional<SignalCells> inView_;
};

}  // namespace navframe::analysis
