// Counts and sums by signal.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <vector>

namespace navframe::analysis {

// By system, number of the satellite and number of the signal as messages have them: one place for
// each, so that counting is all that is done. Names are found in the end.
class SignalSums {
 public:
  static constexpr std::uint32_t Systems = 8;
  static constexpr std::uint32_t Numbers = 512;
  static constexpr std::uint32_t Signals = 32;

  struct Sum {
    std::uint64_t count = 0;
    std::uint64_t measured = 0;  // of them, with a value
    std::uint64_t values = 0;
  };

  // Pages of memory are taken as they are used.
  SignalSums() : sums_(static_cast<Sum*>(std::calloc(Places, sizeof(Sum)))) {
    if (sums_ == nullptr) throw std::bad_alloc();
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

  void Add(std::uint32_t place, const Sum& more) {
    Sum& sum = sums_[place];
    if (sum.count == 0) used_.push_back(place);
    sum.count += more.count;
    sum.measured += more.measured;
    sum.values += more.values;
  }

  // System, number, signal and sum of what was counted.
  template <class Take>
  void ForEach(Take take) const {
    for (const std::uint32_t place : used_) {
      take(place / (Numbers * Signals), place / Signals % Numbers, place % Signals, sums_[place]);
    }
  }

 private:
  static constexpr std::uint32_t Places = Systems * Numbers * Signals;

  struct Free {
    void operator()(Sum* sums) const { std::free(sums); }
  };

  std::unique_ptr<Sum[], Free> sums_;
  std::vector<std::uint32_t> used_;
};

// The signals of one message in their order. A receiver tells the same ones in the same order,
// epoch for epoch: then a value is added to what stands at its position, and the epochs are counted
// once for all of them. What stood there goes to the sums when another signal takes its position.
class SignalOrder {
 public:
  struct Position {
    std::uint32_t head = None;  // by which a message tells what it is
    std::uint32_t place = 0;    // in the sums
    std::uint32_t epochs = 0;   // before it came here
    std::uint32_t without = 0;  // epochs without a value
    std::uint32_t values = 0;
  };

  // A message with so many signals at most.
  Position* Begin(std::size_t most) {
    if (positions_.size() < most) positions_.resize(most);
    return positions_.data();
  }
  // What stands at a position is another than before.
  void Renew(Position& position, std::uint32_t head, std::uint32_t place, SignalSums& sums) {
    Settle(position, sums);
    position.head = head;
    position.place = place;
  }
  // A value below 65536; 0 of what has none.
  static void Add(Position& position, std::uint32_t value) {
    if (value == 0) [[unlikely]] {
      ++position.without;
    } else {
      position.values += value;
    }
  }
  // The message ends in front of this position.
  void End(const Position* end, SignalSums& sums) {
    const auto used = static_cast<std::size_t>(end - positions_.data());
    for (std::size_t i = used; i < used_; ++i) Renew(positions_[i], None, 0, sums);
    used_ = used;
    if (++epochs_ == MostEpochs) [[unlikely]]
      Settle(sums);
  }

  // Everything goes to the sums.
  void Settle(SignalSums& sums);

 private:
  static constexpr std::uint32_t None = 0xFFFFFFFF;
  static constexpr std::uint32_t MostEpochs = 65536;  // whose values are below 2^32 together

  void Settle(Position& position, SignalSums& sums) const;

  std::vector<Position> positions_;
  std::size_t used_ = 0;  // by the last message
  std::uint32_t epochs_ = 0;
};

}  // namespace navframe::analysis
