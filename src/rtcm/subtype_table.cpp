#include "rtcm/subtype_table.h"

#include <cstring>
#include <optional>

#include "catalogue/unknown_records.h"
#include "navframe/navframe.h"
#include "rtcm/proprietary.h"
#include "time/true_clock.h"

namespace navframe::rtcm {
namespace {

// What a message and the decoder's clock do to each other.
enum class TimeHandling : std::uint8_t {
  None,
  StampRecord,      // the record begins with the clock's time of week
  SetClock,         // the record's time sets the clock
  SetOrClearClock,  // likewise; without a time of week the clock's time of day is cleared
};
using enum TimeHandling;

struct SubTypeRow {
  std::uint32_t number;
  std::uint32_t subType;
  std::uint32_t msgId;
  std::uint32_t twin;         // second filter value that lets the record pass; 0 for none
  std::uint32_t frameLength;  // required; 0 for any
  TimeHandling time;
  std::uint32_t size = 0;  // of the record
  const void* unknown = nullptr;
  void (*decode)(const Frame& frame, void* record) = nullptr;
  GPSTIME (*timeOf)(const void* record) = nullptr;
  bool noTowIsZero = false;  // the record has time of week 0 for none
};

// Adds to a row what follows from the type of its record.
template <class Record, void (*Decode)(const Frame&, Record&)>
constexpr SubTypeRow With(SubTypeRow row) {
  row.size = sizeof(Record);
  row.unknown = catalogue::UnknownBytes<Record>.data();
  row.decode = [](const Frame& frame, void* record) {
    Decode(frame, *static_cast<Record*>(record));
  };
  if constexpr (requires { Record::gpsTime; }) {
    row.timeOf = [](const void* record) { return static_cast<const Record*>(record)->gpsTime; };
  } else if constexpr (requires { Record::week; }) {
    row.noTowIsZero = std::is_same_v<Record, TimeStatusRecord>;
    row.timeOf = [](const void* record) {
      const auto& times = *static_cast<const Record*>(record);
      return GPSTIME{times.tow, static_cast<std::uint16_t>(times.week), 0};
    };
  }
  return row;
}

// Of these no field behind the sub-type has a known place.
template <class Record>
void DecodeNothing(const Frame& /*frame*/, Record& /*record*/) {}

// Message, sub-type, MsgId, second filter value, required frame length, time.
constexpr SubTypeRow SubTypeRows[] = {
    With<Sub17Record, DecodeSub17>({910, 17, MsgIdSub17, 0, 0, StampRecord}),
    With<Sub33Record, DecodeSub33>({910, 33, MsgIdSub33, 0, 13, StampRecord}),
    With<Sub34Record, DecodeSub34>({910, 34, MsgIdSub34, 0, 0, SetOrClearClock}),
    With<Sub21Record, DecodeSub21>({999, 21, MsgIdSub21, 0, 63, SetOrClearClock}),
    With<IntegerSetRecord, DecodeIntegerSet>({4074, 255, MsgIdIntegerSet, 0, 0, SetClock}),
    With<SignalObservationsRecord, DecodeSignalObservations>(
        {4074, 254, MsgIdSignalObservations, 0, 0, SetClock}),
    With<SystemCountsRecord, DecodeNothing>({4074, 253, MsgIdSystemCounts, 0, 0, None}),
    With<ClockOrbitRecord, DecodeNothing>({4074, 251, MsgIdClockOrbit, 0, 0, None}),
    With<Sub249Record, DecodeNothing>({4074, 249, MsgIdSub249, 0, 0, None}),
    With<TimeStatusRecord, DecodeTimeStatus>({4074, 243, MsgIdTimeStatus, 0, 0, SetClock}),
    With<GyoAccRecord, DecodeGyoAcc>({4074, 11, MsgIdRtcmGyoAcc, MsgIdGyoAcc, 0, SetClock}),
    With<RtcmSnrStatRecord, DecodeSnrStat>({4074, 12, MsgIdRtcmSnrStat, MsgIdSnrStat, 0, None}),
    With<NavAttRecord, DecodeNavAtt>({4074, 13, MsgIdRtcmNavAtt, MsgIdNavAtt, 0, SetClock}),
    With<ImuRecord, DecodeImuRaw>({4074, 14, MsgIdRtcmImuRaw, MsgIdImuRaw, 0, SetClock}),
    With<InsPvaRecord, DecodeInsPva>({4074, 15, MsgIdRtcmInsPva, MsgIdInsPva, 0, SetClock}),
};

// Width of the sub-type, which follows the message number.
struct Family {
  std::uint32_t number;
  std::uint32_t subTypeBits;
};
constexpr Family Families[] = {{910, 8}, {999, 8}, {4074, 12}};

void SetClockFrom(GPSTIME gpsTime, DecoderClock& time) {
  time.source = NavframeTimeFromRtcm;
  if (IsUnknown(gpsTime.week)) {
    time.updateTOW(gpsTime.tow);
  } else {
    time.updateGPST(gpsTime);
  }
}

// A message without a time of week leaves the clock alone. That of 4074 sub-type 243 is 0 then.
void SetTrueClockFrom(const SubTypeRow& row, GPSTIME gpsTime, DecoderClock& time) {
  if (IsUnknown(gpsTime.tow) || (row.noTowIsZero && gpsTime.tow == 0)) return;
  if (IsUnknown(gpsTime.week)) return true_clock::SetTow(gpsTime.tow, NavframeTimeFromRtcm, time);
  true_clock::SetGpsTime(gpsTime, NavframeTimeFromRtcm, time);
}

void HandleTime(const SubTypeRow& row, void* record, const Services& services) {
  DecoderClock& time = services.time;
  switch (row.time) {
    case None:
      return;
    case StampRecord: {
      const std::uint32_t tow = time.getTOW();
      std::memcpy(record, &tow, sizeof tow);
      return;
    }
    case SetClock:
    case SetOrClearClock:
      break;
  }
  const GPSTIME gpsTime = row.timeOf(record);
  if (services.dialect.clockNeedsTow) return SetTrueClockFrom(row, gpsTime, time);
  const bool clears = row.time == SetOrClearClock && IsUnknown(gpsTime.tow);
  if (clears) return time.clearTime(false);
  SetClockFrom(gpsTime, time);
}

void DecodeSubType(const SubTypeRow& row, const Frame& frame, Services& services) {
  // The kind counts as decoded even while the filter blocks its records; a blocked message is not
  // read and moves no clock.
  services.sink.NoteDecoded(row.msgId);
  if (!services.sink.PassesAny(row.msgId, row.twin)) return;
  void* const record = services.sink.Allocate(row.size);
  std::memcpy(record, row.unknown, row.size);
  row.decode(frame, record);
  HandleTime(row, record, services);
  services.sink.PushMessage(row.msgId, record, row.size);
}

std::optional<std::uint32_t> FindSubType(std::uint32_t number, const Frame& frame) {
  for (const Family& family : Families) {
    if (family.number != number || !frame.Has(FirstFieldBit, family.subTypeBits)) continue;
    return static_cast<std::uint32_t>(UnsignedBits(frame.bytes, FirstFieldBit, family.subTypeBits));
  }
  return std::nullopt;
}

}  // namespace

DecodeResult DecodeProprietary(std::uint32_t number, const Frame& frame, Services& services) {
  const auto subType = FindSubType(number, frame);
  if (!subType) return {NavframeNoKind};
  for (const SubTypeRow& row : SubTypeRows) {
    if (row.number != number || row.subType != *subType) continue;
    if (row.frameLength != 0 && row.frameLength != frame.length) return {NavframeBadContent};
    DecodeSubType(row, frame, services);
    return {};
  }
  return {NavframeNoKind};
}

std::uint32_t SubTypeOf(std::uint32_t number, const Frame& frame) {
  return FindSubType(number, frame).value_or(0);
}

}  // namespace navframe::rtcm
