// Observations of any RTCM 3 message, as records that all sources share.
#pragma once

#include <cstdint>
#include <optional>

#include "observations/lock_history.h"
#include "observations/record.h"
#include "rtcm/bits.h"
#include "rtcm/services.h"

namespace navframe::rtcm {

// What messages tell about later ones.
struct ObservationHistory {
  observations::Moments moments;
  observations::LockHistory locks;
  observations::GlonassChannels channels;
};

// The number of a signal there: MSM are told from 1001 to 1012 by the message number.
constexpr std::uint32_t LockOf(std::uint32_t number, std::uint32_t satellite,
                               std::uint32_t signal) {
  constexpr std::uint32_t FirstMsm = 1070;
  const std::uint32_t messages = number < FirstMsm ? number / 8 : number / 10;
  return messages << 12 | satellite % 64 << 6 | signal;
}
static_assert(LockOf(1001, 0, 0) == LockOf(1004, 0, 0) && LockOf(1009, 0, 0) == LockOf(1012, 0, 0));
static_assert(LockOf(1074, 0, 0) == LockOf(1077, 0, 0) && LockOf(1004, 0, 0) != LockOf(1009, 0, 0));

// MSM4 to MSM7 of all systems.
bool IsObservedMsm(std::uint32_t number);
DecodeResult DecodeMsmObservations(std::uint32_t number, const Frame& frame,
                                   ObservationHistory& history, Services& services);

// 1001 to 1004 and 1009 to 1012. Nothing for any other number.
std::optional<DecodeResult> DecodeRtkObservations(std::uint32_t number, const Frame& frame,
                                                  ObservationHistory& history, Services& services);

// Keeps the channel that an ephemeris of GLONASS tells.
void KeepChannel(std::uint32_t number, const Frame& frame, ObservationHistory& history);

}  // namespace navframe::rtcm
