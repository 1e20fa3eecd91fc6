// The kinds of records decoded since the host last asked.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace navframe {

// A bit per MsgId below Limit. Kinds with higher ids, of ASCII logs and of streams, are none of the
// exports' and stay out.
class DecodedIdSet {
 public:
  static constexpr std::uint32_t Limit = 256;

  void Insert(std::uint32_t id) {
    if (id < Limit) bits_[id / 64] |= std::uint64_t{1} << (id % 64);
  }

  // Writes the ids to consecutive places and empties the set. Returns their number.
  std::uint32_t Drain(std::uint32_t* ids) {
    std::uint32_t count = 0;
    for (std::uint32_t word = 0; word < bits_.size(); ++word) {
      for (std::uint64_t rest = bits_[word]; rest != 0; rest &= rest - 1) {
        ids[count++] = word * 64 + static_cast<std::uint32_t>(std::countr_zero(rest));
      }
    }
    bits_ = {};
    return count;
  }

 private:
  std::array<std::uint64_t, Limit / 64> bits_{};
};

}  // namespace navframe
