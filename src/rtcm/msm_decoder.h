// MSM observations.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/unknown.h"
#include "navframe/records.h"
#include "rtcm/bits.h"
#include "rtcm/msm_header.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// The message numbers that are looked for among the MSM; not all of them are decoded.
inline constexpr std::uint32_t FirstMsmNumber = 1074;
inline constexpr std::uint32_t LastMsmNumber = 1127;

// The steps between the epochs of all messages, whatever their system.
class EpochInterval {
 public:
  // The last step of less than two seconds. Not positive before the first one, nor after an epoch
  // that lies before the one before it: a new week, or a system that lags behind.
  std::int32_t Milliseconds() const { return interval_; }

  void Add(std::uint32_t epochTime) {
    const auto step = static_cast<std::int32_t>(epochTime - last_);
    if (step != 0 && step <= LongestStep) interval_ = step;
    last_ = epochTime;
  }

 private:
  static constexpr std::int32_t LongestStep = 1999;
  std::uint32_t last_ = 0;
  std::int32_t interval_ = 0;
};

// The time of day of an epoch, which all messages of the epoch tell: it is made once.
class EpochText {
 public:
  // The same as clock.updateTOW.
  void MoveTo(std::uint32_t epochTime, DecoderClock& clock);
  std::string_view View() const { return text_; }

 private:
  std::uint32_t epochTime_ = Unknown<std::uint32_t>();  // the text is of these two
  std::int32_t leapSeconds_ = 0;
  std::string text_;
};

// Makes the epoch one of a true clock, and its time.
void KeepTrueTime(const Frame& frame, MsmSystem system, MsmHeader& header, DecoderClock& clock);

class MsmDecoder {
 public:
  // Decodes message `number`, sets the clock to its epoch and pushes its record. A number that is
  // not decoded, or a frame that does not hold what it announces, leaves no trace.
  DecodeResult Decode(std::uint32_t number, const Frame& frame, Services& services);

 private:
  EpochInterval interval_;
  EpochText epochText_;
};

}  // namespace navframe::rtcm
