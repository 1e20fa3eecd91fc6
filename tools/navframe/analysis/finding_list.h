// Findings as they come together.
#pragma once

#include <array>
#include <bit>
#include <functional>
#include <vector>

#include "analysis/diagnosis.h"

namespace navframe::analysis {

// By the bits of NavframeProtocol, and NavframeReason.
using HeadCounts = std::array<std::array<std::uint64_t, 16>, 8>;

inline void Count(std::uint32_t protocol, std::uint32_t reason, HeadCounts& counts) {
  ++counts[static_cast<std::size_t>(std::countr_zero(protocol | 0x80U))][reason & 15];
}

class FindingList {
 public:
  // Offsets of what is added are those of the bytes that are examined; `original` says where they
  // stood in the recording.
  using Original = std::function<std::uint64_t(std::uint64_t)>;
  explicit FindingList(Original original) : original_(std::move(original)) {}

  void Add(Cause cause, Place place);
  // The same with an offset of the recording.
  void AddMapped(Cause cause, Place place);
  // Bytes without an explanation: heads in them, and what they begin with.
  void AddHeads(const HeadCounts& counts);
  void AddBeginning(std::uint8_t first, std::uint8_t second);
  // Places turn out to be of another cause; the first ones of `all`.
  void Recast(Cause from, Cause to, const std::vector<Place>& first, std::uint64_t all);

  std::uint64_t Map(std::uint64_t offset) const { return original_(offset); }
  std::vector<Finding> End(std::int64_t origin) const;

 private:
  struct Beginning {
    std::array<std::uint8_t, 2> bytes;
    std::uint64_t count;
  };
  static constexpr std::size_t MostBeginnings = 16;

  void AppendHeads(std::vector<HeadCount>& heads) const;

  Original original_;
  std::array<Finding, Causes> findings_{};
  HeadCounts heads_{};
  std::vector<Beginning> beginnings_;
};

}  // namespace navframe::analysis
