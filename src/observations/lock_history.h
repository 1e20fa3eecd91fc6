// When the phases of signals were last seen: with the time of their lock this tells whether lock
// was lost in between.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/unknown.h"

namespace navframe::observations {

// Moments that go on over the ends of weeks, in ms, for times of week that are near each other.
class Moments {
 public:
  std::uint32_t Of(std::uint32_t tow) {
    if (tow + WeekMs / 2 < last_) weeks_ += WeekMs;
    if (last_ + WeekMs / 2 < tow) weeks_ -= WeekMs;
    last_ = tow;
    return weeks_ + tow + 1;
  }

 private:
  static constexpr std::uint32_t WeekMs = 604'800'000;
  std::uint32_t last_ = 0;
  std::uint32_t weeks_ = WeekMs;
};

// The last phase of a signal.
struct SignalLock {
  std::uint32_t signal;  // any number that tells it from others
  std::uint32_t moment;  // 0 for none

  // Notes a phase at a moment, after `lockTime` ms of lock; whether lock may have been lost since
  // the one before it, as Observation::lossOfLock tells it. A lock time of `longest` may stand for
  // any longer one.
  std::uint8_t Note(std::uint32_t now, std::uint32_t lockTime, std::uint32_t longest) {
    const std::uint32_t before = moment;
    moment = now;
    if (before == 0) return Unknown<std::uint8_t>();
    return static_cast<std::uint8_t>(lockTime < std::min(now - before, longest));
  }
};

// Of the signals that were seen last, more than receivers track at once: a new one takes the place
// of that whose last phase is the longest ago, which then begins anew. So the memory is the same
// whatever the numbers are.
class LockHistory {
 public:
  SignalLock& Of(std::uint32_t signal, std::uint32_t now) {
    constexpr std::uint32_t Spread = 0x9E3779B1;  // 2^32 by the golden ratio
    auto& set = sets_[signal * Spread >> (32 - SetBits)];
    for (SignalLock& lock : set) {
      if (lock.signal == signal) return lock;
    }
    return Replace(set, signal, now);
  }

 private:
  static constexpr int SetBits = 6;
  using Set = std::array<SignalLock, 8>;

  [[gnu::noinline]] static SignalLock& Replace(Set& set, std::uint32_t signal, std::uint32_t now) {
    const auto age = [now](const SignalLock& lock) { return now - lock.moment; };
    SignalLock& oldest = *std::ranges::max_element(set, {}, age);
    oldest = {signal, 0};
    return oldest;
  }

  std::array<Set, 1 << SetBits> sets_{};
};

}  // namespace navframe::observations
