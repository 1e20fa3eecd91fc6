#include <algorithm>
#include <cstring>

#include "base/read_le.h"
#include "time/time_of_day.h"
#include "ubx/deviations.h"
#include "ubx/messages.h"
#include "ubx/record_head.h"

namespace navframe::ubx {
namespace {

constexpr std::size_t EntriesOffset = 16;
constexpr std::size_t EntryLength = 32;

// A time of week in seconds, in ms; unknown when it is no time of a week, a NaN among them.
std::uint32_t RoundedTow(double seconds) {
  const double ms = seconds * 1000.0 + 0.5;
  return ms >= 0.0 && ms < static_cast<double>(WeekMs + 1) ? static_cast<std::uint32_t>(ms)
                                                           : Unknown<std::uint32_t>();
}

// The field at `offset`, or `absent` when the payload ends before the end of the field.
template <class T>
T ReadOr(const Payload& payload, std::size_t offset, T absent) {
  return offset + sizeof(T) <= payload.length ? ReadLe<T>(payload.bytes, offset) : absent;
}

void DecodeHead(const Payload& payload, const TimeManager& time, UbxRawMeasurementsRecord& record) {
  const auto seconds = ReadOr(payload, 0, Unknown<double>());
  const auto week = ReadOr(payload, 8, Unknown<std::uint16_t>());
  WriteHead(RoundedTow(seconds), week, time, record);
  record.leapSeconds = ReadOr(payload, 10, UnknownSigned<std::int8_t>());
  record.leapKnown = Unknown<std::uint8_t>();
  record.clockReset = Unknown<std::uint8_t>();
  if (payload.length > 12) {
    record.leapKnown = Bits(payload.bytes[12], 0, 1);
    record.clockReset = Bits(payload.bytes[12], 1, 1);
  }
  record.version = ReadOr(payload, 13, Unknown<std::uint8_t>());
  std::memset(record.reservedInHead, 0, sizeof(record.reservedInHead));
}

void DecodeMeasurement(const std::uint8_t* entry, UbxRawMeasurement& measurement) {
  measurement.pseudorange = ReadLe<double>(entry, 0);
  measurement.carrierPhase = ReadLe<double>(entry, 8);
  measurement.doppler = ReadLe<float>(entry, 16);
  measurement.systemId = entry[20];
  measurement.satelliteId = entry[21];
  measurement.signalId = entry[22];
  measurement.frequencySlot = entry[23];
  measurement.lockTime = ReadLe<std::uint16_t>(entry, 24);
  measurement.cn0 = entry[26];
  measurement.pseudorangeDeviation = PseudorangeDeviations[entry[27]];
  measurement.carrierPhaseDeviation = PhaseDeviations[entry[28]];
  measurement.dopplerDeviation = DopplerDeviations[entry[29]];
  WriteFlags<4>(entry[30], offsetof(UbxRawMeasurement, pseudorangeValid), measurement);
  std::memset(measurement.reserved, 0, sizeof(measurement.reserved));
}

}  // namespace

void DecodeRawMeasurements(const Payload& payload, TimeManager& time,
                           UbxRawMeasurementsRecord& record, std::uint32_t& written) {
  DecodeHead(payload, time, record);
  const std::size_t held = payload.Entries(EntriesOffset, EntryLength);
  const std::size_t count = std::min<std::size_t>(ReadOr<std::uint8_t>(payload, 11, 0), held);
  record.count = static_cast<std::uint8_t>(count);
  for (std::size_t i = 0; i < count; ++i) {
    DecodeMeasurement(payload.bytes + EntriesOffset + i * EntryLength, record.measurements[i]);
  }
  // Only what the count leaves: the record is many times as long as its message.
  MakeUnknownFrom(
      offsetof(UbxRawMeasurementsRecord, measurements) + count * sizeof(UbxRawMeasurement), written,
      record);
}

}  // namespace navframe::ubx
