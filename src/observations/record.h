// Records of observations in the making.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "navframe/records_observations.h"
#include "observations/signals.h"
#include "output/record_sink.h"

namespace navframe::observations {

// The only record of a message: begun with an unknown head, then filled, then pushed.
class Draft {
 public:
  explicit Draft(RecordSink& sink)
      : sink_(sink),
        room_(sink.AllocateRecurring(MsgIdObservations, sizeof(ObservationsRecord))),
        record(*static_cast<ObservationsRecord*>(room_.payload)) {
    std::memcpy(&record, catalogue::UnknownBytes<ObservationsRecord>.data(),
                offsetof(ObservationsRecord, observations));
    record.rangeModulus = 0;
  }

  // With this many observations, of which every byte is written.
  void Push(std::uint32_t count) {
    record.count = static_cast<std::uint8_t>(count);
    catalogue::MakeUnknownFrom(
        offsetof(ObservationsRecord, observations) + count * sizeof(Observation), *room_.written,
        record);
    sink_.PushMessage(MsgIdObservations, &record, sizeof record);
  }

 private:
  RecordSink& sink_;
  RecurringRoom room_;

 public:
  ObservationsRecord& record;
};

// Writes signal, code and frequency; returns cycles per metre, unknown when the frequency is.
// `shift` is the channel as a number, NaN for an unknown one and 0 where there are none.
inline double PutCarrier(const Signal& signal, double shift, Observation& out) {
  std::memcpy(out.code, signal.code.data(), sizeof out.code);
  out.frequency = signal.frequency + signal.step * shift;
  return out.frequency * (1 / SpeedOfLight);
}

// Writes the members that only UBX has.
inline void PutNoDeviations(Observation& out) {
  out.pseudorangeDeviation = Unknown<float>();
  out.carrierPhaseDeviation = Unknown<float>();
  out.dopplerDeviation = Unknown<float>();
  out.halfCycleSubtracted = Unknown<std::uint8_t>();
  out.reserved = 0;
}

// The channel of GLONASS that is sent as a number from 0 on, or as another one where none is known.
inline std::int8_t ChannelOf(std::uint32_t sent) {
  constexpr std::uint32_t LastSent = 20;
  return sent > LastSent ? UnknownChannel : static_cast<std::int8_t>(static_cast<int>(sent) - 7);
}

inline double ShiftOf(std::int8_t channel) {
  return channel == UnknownChannel ? Unknown<double>() : channel;
}

// The channels of GLONASS satellites, as far as a stream told them.
class GlonassChannels {
 public:
  GlonassChannels() { channels_.fill(UnknownChannel); }
  std::int8_t Of(std::uint32_t satellite) const { return channels_[satellite % Satellites]; }
  // As it was sent. What tells none changes nothing.
  void Note(std::uint32_t satellite, std::uint32_t sent) {
    const std::int8_t channel = ChannelOf(sent);
    if (channel != UnknownChannel) channels_[satellite % Satellites] = channel;
  }

 private:
  static constexpr std::size_t Satellites = 64;
  std::array<std::int8_t, Satellites> channels_;
};

}  // namespace navframe::observations
