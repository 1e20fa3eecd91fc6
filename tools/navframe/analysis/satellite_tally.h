// Which systems, satellites and signals there were, and how strong.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

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

  struct Cell {
    std::uint64_t count;
    double sum;
  };

  // Pages of memory are taken as they are used.
  SignalCells() : cells_(static_cast<Cell*>(std::calloc(Places, sizeof(Cell)))) {
    if (cells_ == nullptr) throw std::bad_alloc();
  }

  // Adds what was measured. What is out of range counts as the last one there is, a system as the
  // first, which is none. Whether it is the first time.
  bool Add(std::uint32_t system, std::uint32_t number, std::uint32_t signal, double cn0) {
    const std::uint32_t place = PlaceOf(system, number, signal);
    Cell& cell = cells_[place];
    if (cn0 > 0) [[likely]] {
      cell.sum += cn0;
    } else {
      ++unmeasured_[place];
    }
    if (cell.count++ != 0) [[likely]] return false;
    used_.push_back(place);
    return true;
  }

  // Cells that were used, with their numbers and how often nothing was measured.
  template <class Take>
  void ForEach(Take take) const {
    for (const std::uint32_t place : used_) {
      const auto found = unmeasured_.find(place);
      take(place / (Numbers * Signals), place / Signals % Numbers, place % Signals, cells_[place],
           found == unmeasured_.end() ? 0 : found->second);
    }
  }

 private:
  static constexpr std::uint32_t Places = Systems * Numbers * Signals;

  struct Free {
    void operator()(Cell* cells) const { std::free(cells); }
  };

  static std::uint32_t PlaceOf(std::uint32_t system, std::uint32_t number, std::uint32_t signal) {
    if (system >= Systems || number >= Numbers || signal >= Signals) [[unlikely]] {
      system = system < Systems ? system : 0;
      number = std::min(number, Numbers - 1);
      signal = std::min(signal, Signals - 1);
    }
    return (system * Numbers + number) * Signals + signal;
  }

  std::unique_ptr<Cell[], Free> cells_;
  std::vector<std::uint32_t> used_;
  std::unordered_map<std::uint32_t, std::uint64_t> unmeasured_;
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

  void TakeMore(SeenIn in, const NavframeItem& item);
  void Observations(const void* record);
  template <Numbering Rule>
  void Count(const void* record);
  void NavSig(const void* record);
  template <class Record>
  void NavSat(const void* record);
  void SvInfo(const void* record);
  template <class Record>
  void Gsv(const void* record);

  SeenIn in_ = SeenIn::Nothing;
  std::array<std::optional<SignalCells>, Numberings> observed_;
  std::array<std::array<std::array<Code, SignalCells::Signals>, SignalCells::Systems>, Numberings>
      codes_{};  // of their signals
  std::optional<SignalCells> inView_;
};

}  // namespace navframe::analysis
