#include "rtcm/msm_decoder.h"

#include <array>
#include <cstring>

#include "base/text.h"
#include "base/unknown.h"
#include "navframe/navframe.h"
#include "rtcm/msm_cells.h"
#include "rtcm/msm_layout.h"
#include "time/true_clock.h"

namespace navframe::rtcm {
namespace {

// What differs between the kinds of MSM.
struct MsmKind {
  std::uint32_t satelliteBits;
  std::uint32_t cellBits;
  void (*decode)(const MsmCells& cells, MsmObservation* observations);
};
template <const MsmLayout& Layout>
constexpr MsmKind KindOf = {Layout.SatelliteBits(), Layout.CellBits(), DecodeCells<Layout>};

// First message number, last one, system, MsgId. GLONASS has MSM7 alone; SBAS, NavIC and the kinds
// below MSM4 are missing on purpose.
struct MsmRow {
  std::uint32_t firstNumber;
  std::uint32_t lastNumber;
  MsmSystem system;
  std::uint32_t msgId;
};
constexpr MsmRow MsmRows[] = {
    {1074, 1077, MsmSystem::Gps, MsgIdMsmGps},
    {1087, 1087, MsmSystem::Glonass, MsgIdMsmGlonass},
    {1094, 1097, MsmSystem::Galileo, MsgIdMsmGalileo},
    {1114, 1117, MsmSystem::Qzss, MsgIdMsmQzss},
    {1124, 1127, MsmSystem::BeiDou, MsgIdMsmBeiDou},
};

// By the last digit of the message number.
constexpr std::array<MsmKind, 8> Kinds = {MsmKind{},    MsmKind{},    MsmKind{},    MsmKind{},
                                          KindOf<Msm4>, KindOf<Msm5>, KindOf<Msm6>, KindOf<Msm7>};

const MsmRow* RowOf(std::uint32_t number) {
  for (const MsmRow& row : MsmRows) {
    if (number >= row.firstNumber && number <= row.lastNumber) return &row;
  }
  return nullptr;
}

// Observations that are not in use: zero, but for the system.
constexpr MsmRecord UnusedRecord = [] {
  MsmRecord record{};
  for (MsmObservation& observation : record.observations) {
    observation.system = static_cast<std::uint8_t>(MsmSystem::Gps);
  }
  return record;
}();

// The record behind the observations in use. A copy writes whole lines of the cache; to fill entry
// by entry takes longer, for the record is seldom in there.
void ClearUnused(MsmRecord& record, std::uint32_t used) {
  std::memcpy(record.observations + used, UnusedRecord.observations + used,
              (std::size(record.observations) - used) * sizeof(MsmObservation));
}

}  // namespace

void EpochText::MoveTo(std::uint32_t epochTime, DecoderClock& clock) {
  if (epochTime == epochTime_ && clock.leapSeconds == leapSeconds_) {
    clock.setTOW(epochTime);
    clock.timeText = text_;
    return;
  }
  clock.updateTOW(epochTime);
  epochTime_ = epochTime;
  leapSeconds_ = clock.leapSeconds;
  text_ = clock.timeText;
}

void KeepTrueTime(const Frame& frame, MsmSystem system, MsmHeader& header, DecoderClock& clock) {
  constexpr std::uint32_t WeekMs = 604'800'000;
  if (system == MsmSystem::Glonass) {
    const GlonassTime time = ReadGlonassTime(frame);
    header.epochTime = true_clock::TowOfGlonass(time.day, time.ofDay, clock);
  } else if (ReadEpoch(frame) >= WeekMs) {  // which BeiDou's conversion takes for the next week's
    header.epochTime = Unknown<std::uint32_t>();
  }
  true_clock::SetTow(header.epochTime, NavframeTimeFromRtcm, clock);
}

DecodeResult MsmDecoder::Decode(std::uint32_t number, const Frame& frame, Services& services) {
  const MsmRow* const row = RowOf(number);
  if (row == nullptr) return {NavframeNoKind};
  auto header = ReadMsmHeader(frame, row->system);
  if (!header) return {NavframeBadContent};
  const MsmKind& kind = Kinds[number % 10];
  const std::uint32_t dataBits =
      header->satelliteCount * kind.satelliteBits + header->cellCount * kind.cellBits;
  if (!frame.Has(header->dataBit, dataBits)) return {NavframeBadContent};

  if (services.time.isTrue) KeepTrueTime(frame, row->system, *header, services.time);
  auto* const record = static_cast<MsmRecord*>(services.sink.Allocate(sizeof(MsmRecord)));
  std::memset(record, 0, offsetof(MsmRecord, observations));
  record->epochTime = header->epochTime;
  record->count = static_cast<std::uint8_t>(header->cellCount);
  record->system = static_cast<std::uint8_t>(row->system);
  record->epochComplete = header->epochComplete ? 1 : 0;
  // The interval in force is the one before this message's epoch counts.
  kind.decode({*header, frame.bytes, row->system, interval_.Milliseconds()}, record->observations);
  ClearUnused(*record, header->cellCount);
  interval_.Add(header->epochTime);

  services.sink.NoteDecoded(row->msgId);
  DecoderClock& time = services.time;
  if (time.isTrue) {
    CopyText(record->timeText, time.timeText);
  } else if (!IsUnknown(record->epochTime)) {
    epochText_.MoveTo(record->epochTime, time);
    time.source = NavframeTimeFromRtcm;
    CopyText(record->timeText, epochText_.View());
  }
  record->week = time.getWeek();
  // A blocked record has moved the clock all the same; it is given up without being freed.
  if (services.sink.Passes(row->msgId)) {
    services.sink.PushMessage(row->msgId, record, sizeof(MsmRecord));
  } else {
    services.sink.Abandon(record, sizeof(MsmRecord));
  }
  return {};
}

}  // namespace navframe::rtcm
