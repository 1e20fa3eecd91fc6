#include "nmea/nmea_decoder.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "navframe/records.h"
#include "nmea/further_sentences.h"
#include "nmea/satellite_sentences.h"
#include "time/true_clock.h"

namespace navframe::nmea {
namespace {

// A record of any kind while it is built.
struct alignas(8) RecordBuffer {
  std::byte bytes[LargestRecord];

  template <class Member>
  Member& At(std::size_t offset) {
    return *reinterpret_cast<Member*>(bytes + offset);
  }
  char* TextAt(TextMember text) { return reinterpret_cast<char*>(bytes + text.offset); }
};

void Stamp(const SentenceRow& row, const TimeManager& time, RecordBuffer& record) {
  record.At<GPSTIME>(row.gpsTimeOffset) = time.gpsTime;
  if (row.TakesTimeText()) {
    CopyText(record.TextAt(row.text), row.text.width, time.timeText);
  }
}

}  // namespace

inline const SentenceRow* NmeaDecoder::RowOf(const Fields& fields) const {
  const SentenceRow* const row = Classify(fields.Text());
  if (!dialect_.standardRecords) return row;
  if (row == nullptr) return FindFurther(fields[0]);
  return row->wide != nullptr && row->wide->takes(fields) ? row->wide : row;
}

DecodeResult NmeaDecoder::Decode(Fields fields, TagFlag tag) {
  const SentenceRow* const row = RowOf(fields);
  NmeaContext& context = contexts_[static_cast<std::size_t>(tag)];
  context.previousKind = context.kind;
  context.kind = row == nullptr ? 0 : row->Kind(tag);

  // A run of GSV ends the cycle; one behind tag blocks, of another kind, never does.
  if (context.kind != MsgIdGsv && context.previousKind == MsgIdGsv) {
    context.satellites.SetCycleComplete();
  }
  sink_.NoteDecoded(context.kind);
  if (context.satellites.CycleComplete()) EmitSatellitesInView(context);

  if (row == nullptr) return {NavframeNoKind};
  const bool passes = row->Passes(sink_);
  if (row->filterTest == FilterTest::BeforeBuilding && !passes) return {};
  if (row->takes != nullptr && !row->takes(fields) && !(row->takesByTime && dialect_.wholeTimes)) {
    return {NavframeBadContent};
  }
  FieldReader reader(fields, dialect_);
  if (row->kind == MsgIdGsv) {
    if (fields[2] == "1") context.gsvAnnounced += ToIntOrMinimum(fields[1]);
    context.gsvCame += 1;
    AccumulateGsv(context, reader, time_);
    return reader.Result();
  }
  if (row->parse == nullptr) return {NavframeNoKind};

  RecordBuffer record;
  row->parse(context, reader, record.bytes);
  if (row->hasTag) record.At<TagFlag>(0) = tag;
  if (reader.HasFault() && !dialect_.keepsSentences) return reader.Result();
  if (row->clock != ClockRule::None) {
    const SentenceTime sentenceTime = {fields[1], record.At<UTCTIME>(row->utcOffset),
                                       TextOf(record.TextAt(row->text), row->text.width)};
    if (time_.isTrue) {
      true_clock::SetUtc(sentenceTime.utc, 0, sentenceTime.text, NavframeTimeFromNmea, time_);
    } else {
      KeepTime(row->clock, sentenceTime, context, counters_, time_);
    }
  }
  Stamp(*row, time_, record);
  if (!passes && row->filterTest != FilterTest::Never) return {};
  void* const payload = sink_.Allocate(row->size);
  row->copy(payload, record.bytes);
  sink_.PushMessage(context.kind, payload, row->size);
  return reader.Result();
}

bool NmeaDecoder::CycleIsWhole() const {
  const NmeaContext& context = contexts_[static_cast<std::size_t>(TagFlag::Plain)];
  return context.kind == MsgIdGsv && context.gsvCame != 0 &&
         context.gsvCame == context.gsvAnnounced;
}

void NmeaDecoder::EndCycle() {
  NmeaContext& context = contexts_[static_cast<std::size_t>(TagFlag::Plain)];
  if (context.kind != MsgIdGsv) return;
  context.previousKind = context.kind;
  context.kind = 0;
  context.satellites.SetCycleComplete();
  EmitSatellitesInView(context);
}

void NmeaDecoder::EmitWideView(NmeaContext& context) {
  auto* const record = static_cast<WideGsvRecord*>(sink_.Allocate(sizeof(WideGsvRecord)));
  context.wide.Fill(context.satellites, *record);
  sink_.PushMessage(MsgIdWideGsv, record, sizeof(WideGsvRecord));
  context.wide.Reset();
}

void NmeaDecoder::NoteSeen(NmeaContext& context) {
  context.seen.Clear();
  const auto note = [&context](const auto& satellite) {
    if (satellite.signalCount != 0) context.seen.Add(satellite.systemId, satellite.number);
  };
  if (context.wide.InUse()) {
    std::ranges::for_each(context.wide.Satellites(), note);
  } else {
    std::ranges::for_each(context.satellites.Numbered(), note);
  }
}

void NmeaDecoder::EmitSatellitesInView(NmeaContext& context) {
  if (dialect_.gsaSystemByView) NoteSeen(context);
  if (dialect_.wholeGsv && !context.satellites.HasRoom() && !context.wide.InUse()) {
    context.wide.TakeOver(context.satellites);
  }
  if (context.wide.InUse()) {
    EmitWideView(context);
  } else if (sink_.PassesAny(MsgIdGsv, MsgIdTaggedGsv)) {
    auto* const record = static_cast<GsvRecord*>(sink_.Allocate(sizeof(GsvRecord)));
    context.satellites.Fill(*record);
    sink_.PushMessage(context.previousKind, record, sizeof(GsvRecord));
  }
  context.satellites.Reset();
  context.gsvAnnounced = 0;
  context.gsvCame = 0;
}

}  // namespace navframe::nmea
