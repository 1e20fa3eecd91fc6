#include "rtcm/station_messages.h"

#include <array>
#include <cstring>

#include "base/unknown.h"
#include "catalogue/unknown_records.h"
#include "navframe/records.h"
#include "rtcm/field_rows.h"
#include "time/true_clock.h"

namespace navframe::rtcm {
namespace {

// The coordinates are kept as the bits of the message on purpose, without their sign.
#define P(...) NAVFRAME_FIELD(StationPositionRecord, __VA_ARGS__)
constexpr auto StationPosition = std::to_array<FieldRow>({
    P(stationId, 12),
    P(itrfYear, 6),
    P(gps, 1),
    P(glonass, 1),
    P(galileo, 1),
    P(referenceStation, 1),
    P(x, 38),
    Skipped(2),  // single-receiver oscillator indicator, reserved
    P(y, 38),
    Skipped(2),  // quarter-cycle indicator
    P(z, 38),
});
#undef P
static_assert(BitLength(StationPosition) == 140);

#define S(...) NAVFRAME_FIELD(SystemParametersRecord, __VA_ARGS__)
constexpr auto SystemParameters = std::to_array<FieldRow>({
    S(stationId, 12),
    S(modifiedJulianDay, 16),
    S(secondsOfDay, 17),
    S(count, 5),
    S(leapSeconds, 8),
});
#undef S
static_assert(BitLength(SystemParameters) == 58);

#define A(...) NAVFRAME_FIELD(MessageAnnouncement, __VA_ARGS__)
constexpr auto Announcement =
    std::to_array<FieldRow>({A(messageId, 12), A(synchronous, 1), A(interval, 16)});
#undef A
static_assert(BitLength(Announcement) == 29);

bool HoldsAnnouncements(const Frame& frame) {
  constexpr std::uint32_t Fixed = BitLength(SystemParameters);
  constexpr std::uint32_t CountBit = FirstFieldBit + 45;
  if (!frame.Has(FirstFieldBit, Fixed)) return false;
  const auto count = static_cast<std::uint32_t>(UnsignedBits(frame.bytes, CountBit, 5));
  return frame.Has(FirstFieldBit, Fixed + count * BitLength(Announcement));
}

void DecodeAnnouncements(const Frame& frame, std::uint32_t bit, SystemParametersRecord& record) {
  for (std::uint32_t i = 0; i < record.count; ++i) {  // 5 bits: at most the 31 there are
    bit = ReadFields(frame, bit, Announcement, &record.announcements[i]);
  }
}

void KeepSystemTime(const void* record, DecoderClock& clock) {
  const auto& parameters = *static_cast<const SystemParametersRecord*>(record);
  if (IsUnknown(parameters.modifiedJulianDay) || IsUnknown(parameters.secondsOfDay)) return;
  if (!IsUnknown(parameters.leapSeconds)) {
    true_clock::SetLeapSeconds(parameters.leapSeconds, clock);
  }
  true_clock::SetJulianDay(parameters.modifiedJulianDay, parameters.secondsOfDay,
                           NavframeTimeFromRtcm, clock);
}

// What a message becomes.
struct StationRow {
  std::uint32_t number;
  std::uint32_t msgId;
  std::span<const FieldRow> fields;
  std::uint32_t size = 0;         // of the record
  const void* unknown = nullptr;  // as it is before its fields are read
  // Reads what no row of fields tells, from `bit` on, where they end; null for nothing.
  void (*rest)(const Frame& frame, std::uint32_t bit, void* record) = nullptr;
  void (*keepTime)(const void* record, DecoderClock& clock) = nullptr;  // moves a true clock
  bool (*isWhole)(const Frame& frame) = nullptr;                        // asked by streams alone
};

// Adds to a row what follows from the type of its record.
template <class Record>
constexpr StationRow With(StationRow row) {
  static_assert(offsetof(Record, tow) == 0);
  row.size = sizeof(Record);
  row.unknown = catalogue::UnknownBytes<Record>.data();
  return row;
}
template <class Record, void (*Rest)(const Frame&, std::uint32_t, Record&)>
constexpr StationRow With(StationRow row) {
  row = With<Record>(row);
  row.rest = [](const Frame& frame, std::uint32_t bit, void* record) {
    Rest(frame, bit, *static_cast<Record*>(record));
  };
  return row;
}

// Message number, kind, fields.
constexpr StationRow StationRows[] = {
    With<StationPositionRecord>({1005, MsgIdStationPosition, StationPosition}),
    With<SystemParametersRecord, DecodeAnnouncements>({.number = 1013,
                                                       .msgId = MsgIdSystemParameters,
                                                       .fields = SystemParameters,
                                                       .keepTime = KeepSystemTime,
                                                       .isWhole = HoldsAnnouncements}),
};

// Unlike everywhere else the filter is asked before the kind counts as decoded.
void Decode(const StationRow& row, const Frame& frame, Services& services) {
  if (!services.sink.Passes(row.msgId)) return;
  services.sink.NoteDecoded(row.msgId);
  void* const record = services.sink.Allocate(row.size);
  std::memcpy(record, row.unknown, row.size);
  const std::uint32_t bit = ReadFields(frame, FirstFieldBit, row.fields, record);
  if (row.rest != nullptr) row.rest(frame, bit, record);
  if (services.time.isTrue && row.keepTime != nullptr) row.keepTime(record, services.time);
  const std::uint32_t tow = services.time.getTOW();
  std::memcpy(record, &tow, sizeof tow);
  services.sink.PushMessage(row.msgId, record, row.size);
}

}  // namespace

std::optional<DecodeResult> DecodeStation(std::uint32_t number, const Frame& frame,
                                          Services& services) {
  for (const StationRow& row : StationRows) {
    if (row.number != number) continue;
    if (services.dialect.standardRecords && row.isWhole != nullptr && !row.isWhole(frame)) {
      return DecodeResult{NavframeBadContent};
    }
    Decode(row, frame, services);
    return DecodeResult{};
  }
  return std::nullopt;
}

}  // namespace navframe::rtcm
