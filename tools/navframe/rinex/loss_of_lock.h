// Which phases may have slipped since the last one that a file has.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "rinex/observed.h"

namespace navframe::tool {

class LossOfLock {
 public:
  // A phase of a signal after `lockTime` ms of lock at least; `longest` stands for longer ones,
  // too. Lock that is younger than the phase before may have been lost in between.
  void Note(SignalKey key, Ticks time, std::uint32_t lockTime, std::uint32_t longest) {
    constexpr Ticks TicksPerMs = TicksPerSecond / 1000;
    Signal& signal = signals_[key];
    const Ticks elapsed = (time - signal.last) / TicksPerMs;
    signal.isLost |= signal.isKnown && lockTime < std::min<Ticks>(elapsed, longest);
    signal.last = time;
    signal.isKnown = true;
  }
  // A phase whose message tells a loss itself.
  void NoteLost(SignalKey key) { signals_[key].isLost = true; }

  // The phase goes into the file: whether lock may have been lost since the one before it there.
  bool Take(SignalKey key) { return std::exchange(signals_[key].isLost, false); }

  // All moments so far were these ticks later.
  void Shift(Ticks ticks) {
    for (Signal& signal : signals_) signal.last += ticks;
  }

 private:
  struct Signal {
    Ticks last = 0;
    bool isKnown = false;
    bool isLost = false;  // since the last one that was taken
  };
  std::vector<Signal> signals_ = std::vector<Signal>(KeyCount);
};

}  // namespace navframe::tool
