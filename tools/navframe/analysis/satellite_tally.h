// Which systems, satellites and signals there were, and how strong.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "analysis/signal_sums.h"
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

class SatelliteTally {
 public:
  // Which of these a kind is; Nothing of others.
  static SeenIn PartOf(const NavframeKind& kind);

  // A record of such a kind. What is less preferred than what came before is left alone.
  void Take(SeenIn in, const NavframeItem& item) {
    if (in <= in_) TakeMore(in, item);
  }

  // To be asked once, in the end.
  Seen Found();

 private:
  // Observations have numbers of signals by three rules.
  enum Numbering : std::uint8_t { Msm, Rtk, UbxRaw };
  static constexpr std::size_t Numberings = 3;
  struct Code {
    char text[2];  // 0 of one that is not listed
  };
  static constexpr std::size_t Messages = 8;  // that come in turn
  struct Counted {
    SignalSums sums;
    std::array<SignalOrder, Messages> orders;
    std::array<std::array<Code, SignalSums::Signals>, SignalSums::Systems> codes{};
  };

  class Gathered;

  void TakeMore(SeenIn in, const NavframeItem& item);
  void Observe(const void* record);
  template <Numbering Rule>
  void Count(const void* record);
  template <Numbering Rule>
  std::uint32_t PlaceOf(const Observation& one);
  template <class One, class Head, class Where>
  void InView(const One* list, std::size_t count, Head headOf, Where placeOf);
  void NavSig(const void* record);
  template <class Record>
  void NavSat(const void* record);
  void SvInfo(const void* record);
  template <class Record>
  void Gsv(const void* record);
  static void GatherObserved(const Counted& counted, Gathered& gathered);
  void GatherInView(Gathered& gathered) const;

  SeenIn in_ = SeenIn::Nothing;
  std::array<std::unique_ptr<Counted>, Numberings> observed_;
  std::unique_ptr<Counted> inView_;
};

}  // namespace navframe::analysis
