#include "stream/stream_decoder.h"

#include <algorithm>
#include <array>

#include "base/read_le.h"
#include "base/text.h"
#include "catalogue/kinds.h"
#include "rtcm/bits.h"
#include "rtcm/subtype_table.h"
#include "time/true_clock.h"

namespace navframe {
namespace {

constexpr std::size_t LongestSkipped = 65536;

using Rows = std::vector<const ProtocolRow*>;

// What a stream looks for.
Rows RowsOf(const NavframeOptions& options) {
  Rows rows;
  for (const ProtocolRow& row : Protocols) {
    if ((options.protocols & row.protocol) != 0) rows.push_back(&row);
  }
  if (options.dialect == NavframeLegacy) return rows;
  for (const ProtocolRow& row : StreamProtocols) {
    if ((options.protocols & row.protocol) != 0) rows.push_back(&row);
  }
  return rows;
}

const Dialect& DialectOf(const NavframeOptions& options) {
  return options.dialect == NavframeLegacy ? LegacyDialect : StandardDialect;
}

// The line end behind a sentence belongs to its frame. Nothing while it may still come.
std::optional<std::uint32_t> LineEndAt(const Head& head, std::uint32_t length, bool ended) {
  const std::uint32_t behind = head.available - length;
  const std::uint8_t* const end = head.bytes + length;
  constexpr std::uint16_t CrLf = '\r' | '\n' << 8;
  if (behind > 1 && ReadLe<std::uint16_t>(end, 0) == CrLf) [[likely]]
    return 2;
  if (behind > 0 && end[0] == '\n') return 1;
  const bool mayCome = behind == 0 || (behind == 1 && end[0] == '\r');
  if (mayCome && !ended) return std::nullopt;
  return 0;
}

std::uint32_t MessageOf(const ProtocolRow& row, const std::uint8_t* frame, std::uint32_t length) {
  constexpr std::uint32_t ShortestRtcmWithNumber = 8;
  switch (row.protocol) {
    case NavframeRtcm3:
      return length < ShortestRtcmWithNumber
                 ? 0
                 : static_cast<std::uint32_t>(
                       rtcm::UnsignedBits(frame, rtcm::MessageNumberBit, rtcm::MessageNumberBits));
    case NavframeUbx:
      return frame[ubx::ClassOffset] * 256U + frame[ubx::IdOffset];
    case NavframeAsciiLog:
      return asciilog::LogOf(frame, length);
    case Navframe55Aa:
      return length - frame55aa::HeaderLength - frame55aa::ChecksumLength;
    default:
      return 0;
  }
}

// A frame that gave no record of its own, though perhaps the satellites in view that it ended.
bool IsUndecoded(const DecodeResult& result, const Dialect& dialect) {
  const NavframeReason reason = result.Reason();
  return reason == NavframeNoKind || reason == NavframeBadContent ||
         (reason == NavframeBadField && !dialect.keepsSentences);
}

// Of a log.
std::string_view AddressOf(std::string_view line) {
  return line.substr(1, line.find_first_of(",*", 1) - 1);
}

}  // namespace

StreamDecoder::StreamDecoder(const NavframeOptions& options)
    : options_(options),
      wanted_(options.kinds, options.kinds + options.kindCount),
      buffer_(options.bufferSize),
      protocols_(RowsOf(options)) {
  std::ranges::sort(wanted_);
  Reset();
}

void StreamDecoder::Reset() {
  buffer_.Clear();
  sink_.Clear();
  decoders_.emplace(sink_, DialectOf(options_));
  if (decoders_->time.isTrue) true_clock::Start(options_.startWeek, decoders_->time);
  for (const Rank rank : {Rank::EightBits, Rank::Fletcher}) {
    stronger_[static_cast<std::size_t>(rank)].emplace(rank, DialectOf(options_), protocols_);
  }
  behind_.emplace(DialectOf(options_), protocols_);
  position_ = 0;
  scanned_ = 0;
  flushing_ = false;
  idle_ = false;
  givenUpUntil_ = 0;
  tagBlockEnd_ = ~std::uint64_t{0};
  tagged_ = false;
  span_ = {};
  nextRecord_ = 0;
  statistics_ = {};
}

std::size_t StreamDecoder::Put(const std::uint8_t* data, std::size_t length) {
  // What a flush ends is decoded before anything behind it comes.
  const std::size_t taken = flushing_ ? 0 : buffer_.Append(data, length);
  statistics_.bytes += taken;
  return taken;
}

// Flattened: what it calls for each span are parts of one path.
[[gnu::flatten]] bool StreamDecoder::Next(NavframeItem& item) {
  for (;;) {
    if (span_.waits) {
      span_.waits = false;
      Describe(item);
      return true;
    }
    while (nextRecord_ < sink_.Count()) {
      if (HandOutRecord(item)) return true;
    }
    if (!Advance() && !EndIdle()) return false;
  }
}

// Nothing more comes of the bytes that are there: on a quiet line, satellites in view may.
bool StreamDecoder::EndIdle() {
  if (!idle_) return false;
  idle_ = false;
  if (!decoders_->nmea.CycleIsWhole()) return false;
  EndCycle();
  return true;
}

void StreamDecoder::EndCycle() {
  decoders_->nmea.EndCycle();
  span_ = {};
  span_.type = NavframeItemFrame;
  span_.row = &Protocols[0];
  static_assert(Protocols[0].protocol == NavframeNmea);
  span_.position = position_;
  span_.bytes = buffer_.Bytes();
  statistics_.nmea.records += sink_.Count();
  tagged_ = false;
}

// Covers the next bytes with a span. False when more bytes are needed to tell.
bool StreamDecoder::Advance() {
  sink_.Clear();
  nextRecord_ = 0;
  const std::size_t available = buffer_.Size();
  if (available == 0) return FinishFlush();
  const std::uint8_t* const bytes = buffer_.Bytes();
  if (scanned_ == 0 && protocols_.RowOf(bytes[0]) != nullptr) {
    return HandleHead({bytes, static_cast<std::uint32_t>(available), position_});
  }
  const std::size_t skipped = scanned_ + protocols_.Find(bytes + scanned_, available - scanned_);
  scanned_ = skipped;
  tagged_ = false;
  const bool asked = (options_.items & NavframeItemSkipped) != 0;
  const bool mayGrow = skipped == available && skipped < LongestSkipped && !flushing_;
  if (asked && mayGrow) return false;
  const std::size_t length = std::min(skipped, LongestSkipped);
  Cover(NavframeItemSkipped, nullptr, static_cast<std::uint32_t>(length));
  scanned_ = skipped - length;
  statistics_.skippedBytes += length;
  return true;
}

bool StreamDecoder::HandleHead(const Head& head) {
  const ProtocolRow& row = *protocols_.RowOf(head.bytes[0]);
  // Most false heads are told by two bytes: spares a call of which no processor foresees the
  // target.
  if (head.available >= SearchedProtocols::ShortestJudged &&
      !protocols_.MayStart(head.bytes[0], head.bytes[1])) {
    return Reject(row, NavframeBadHeader, 0);
  }
  const Dialect& dialect = decoders_->dialect;
  const Framing framing = row.frame(decoders_->framing, dialect, head);
  switch (framing.Outcome()) {
    case Verdict::NeedMore:
      return HandleWaiting(head, row, framing.Length());
    case Verdict::Rejected:
      return Reject(row, framing.Reason(), framing.Length());
    case Verdict::Frame:
      break;
  }
  // A check of few bits may hold by chance: a frame with a stronger one is believed rather.
  if (dialect.strongerFramesWin && row.rank != Rank::Crc) {
    StrongerFrames& stronger = *stronger_[static_cast<std::size_t>(row.rank)];
    switch (stronger.Look(head, framing.Length(), flushing_ || idle_)) {
      case StrongerFrames::Answer::Frame:
        return Reject(row, NavframeStrongerFrame, framing.Length());
      case StrongerFrames::Answer::Open:
        return false;
      case StrongerFrames::Answer::None:
        break;
    }
  }
  return TakeFrame(head, row, framing.Length());
}

// A head that needs more bytes: it waits, unless the input ended, or the line is quiet and a whole
// frame stands behind it.
bool StreamDecoder::HandleWaiting(const Head& head, const ProtocolRow& row, std::uint32_t claimed) {
  if (idle_ && head.position >= givenUpUntil_) {
    const std::uint32_t frame = behind_->Find(head);
    if (frame != 0) givenUpUntil_ = head.position + frame;
  }
  const bool givenUp = flushing_ || head.position < givenUpUntil_;
  return givenUp && Reject(row, NavframeCutOff, claimed);
}

void StreamDecoder::KeepTagBlock(const Head& head, const ProtocolRow& row, std::uint32_t length) {
  tagged_ = row.protocol == NavframeNmea && head.position == tagBlockEnd_;
  if (row.protocol != NavframeNmeaTagBlock) return;
  // Without its backslashes.
  const auto* const text = reinterpret_cast<const char*>(head.bytes) + 1;
  CopyText(tagBlock_.data(), tagBlock_.size(), {text, length - 2});
  tagBlockEnd_ = head.position + length;
}

bool StreamDecoder::TakeFrame(const Head& head, const ProtocolRow& row, std::uint32_t length) {
  std::uint32_t spanned = length;
  if (row.protocol == NavframeNmea || row.protocol == NavframeAsciiLog) {
    const auto lineEnd = LineEndAt(head, length, flushing_ || idle_);
    if (!lineEnd) return false;
    spanned += *lineEnd;
  }
  span_.result = row.decode(*decoders_, head.bytes, length);
  KeepTagBlock(head, row, length);
  NavframeProtocolStatistics& counts = statistics_.*row.counts;
  counts.frames += 1;
  counts.frameBytes += spanned;
  counts.undecoded += IsUndecoded(span_.result, decoders_->dialect) ? 1 : 0;
  counts.records += sink_.Count();
  Cover(NavframeItemFrame, &row, spanned);
  return true;
}

bool StreamDecoder::Reject(const ProtocolRow& row, NavframeReason reason, std::uint32_t claimed) {
  tagged_ = false;
  if (!decoders_->dialect.silentCheckErrors && row.protocol == NavframeUbx &&
      reason == NavframeBadChecksum) {
    decoders_->ubx.ReportCheckError();
  }
  span_.result = {reason};
  span_.claimedLength = claimed;
  NavframeProtocolStatistics& counts = statistics_.*row.counts;
  counts.rejected += 1;
  counts.records += sink_.Count();
  Cover(NavframeItemRejected, &row, 1);
  return true;
}

bool StreamDecoder::FinishFlush() {
  if (!flushing_) return false;
  flushing_ = false;
  tagBlockEnd_ = ~std::uint64_t{0};
  EndCycle();
  return true;
}

void StreamDecoder::Cover(NavframeItemType type, const ProtocolRow* row, std::uint32_t length) {
  span_.type = type;
  span_.row = row;
  span_.position = position_;
  span_.bytes = buffer_.Bytes();
  span_.length = length;
  span_.waits = IsAskedFor(span_);
  buffer_.Advance(length);
  position_ += length;
  scanned_ = 0;
}

bool StreamDecoder::IsAskedFor(const Span& span) const {
  if ((options_.items & span.type) != 0) return true;
  return (options_.items & NavframeItemUndecoded) != 0 && span.type == NavframeItemFrame &&
         IsUndecoded(span.result, decoders_->dialect);
}

bool StreamDecoder::HandOutRecord(NavframeItem& item) {
  const SlotRecord& record = sink_[nextRecord_++];
  if ((options_.items & NavframeItemRecord) == 0) return false;
  const catalogue::KindRow* const row = catalogue::FindKind(record.id, record.source);
  if (row == nullptr) return false;
  if (!wanted_.empty() && !std::ranges::binary_search(wanted_, &row->kind)) return false;
  Describe(item);
  item.type = NavframeItemRecord;
  // Why a frame gave no record of its own, the last one, concerns none that it gave; but of its own
  // one a field may be missing.
  const bool isOwn = nextRecord_ == sink_.Count() && !IsUndecoded(span_.result, decoders_->dialect);
  if (item.reason != NavframeBadField || !isOwn) {
    item.reason = NavframeNoReason;
    item.badField = 0;
  }
  item.kind = &row->kind;
  item.record = record.payload;
  return true;
}

// The span, as an item.
void StreamDecoder::Describe(NavframeItem& item) const {
  item.type = span_.type;
  item.protocol = span_.row == nullptr ? NavframeNoProtocol : span_.row->protocol;
  item.offset = span_.position;
  item.length = span_.length;
  item.claimedLength = span_.type == NavframeItemRejected ? span_.claimedLength : 0;
  item.bytes = span_.bytes;
  item.reason = span_.type == NavframeItemSkipped ? NavframeNoReason : span_.result.Reason();
  item.message = 0;
  item.subType = 0;
  item.address[0] = '\0';
  item.badField = span_.result.BadField();
  item.recordCount = sink_.Count();
  if (span_.type == NavframeItemFrame && span_.length != 0) {
    item.message = MessageOf(*span_.row, span_.bytes, span_.length);
    if (span_.row->protocol == NavframeRtcm3) {
      item.subType = rtcm::SubTypeOf(item.message, {span_.bytes, span_.length});
    }
    const auto* const text = reinterpret_cast<const char*>(span_.bytes);
    if (span_.row->protocol == NavframeNmea) {
      // The last sentence that was swept.
      CopyText(item.address, nmea::Fields(text, decoders_->framing.sweep)[0].substr(1));
    } else if (span_.row->protocol == NavframeAsciiLog) {
      CopyText(item.address, AddressOf({text, span_.length}));
    }
  }
  const DecoderClock& time = decoders_->time;
  item.time = {.tow = time.gpsTime.tow,
               .week = time.gpsTime.week,
               .source = static_cast<std::uint16_t>(time.source),
               .utc = time.utcTime,
               .leapSeconds = time.leapSeconds};
  item.kind = nullptr;
  item.record = nullptr;
  item.tagBlock = tagged_ ? tagBlock_.data() : nullptr;
}

void StreamDecoder::Read(NavframeStatistics& statistics) const {
  const std::size_t size = statistics.size;
  statistics = statistics_;
  statistics.size = size;
  statistics.waitingBytes = buffer_.Size();
}

}  // namespace navframe
