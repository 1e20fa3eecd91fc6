#include "stream/stream.h"

#include <algorithm>
#include <array>

#include "base/read_le.h"
#include "base/text.h"
#include "catalogue/kinds.h"
#include "rtcm/bits.h"

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

Rows StrongerThan(Rank rank, const NavframeOptions& options) {
  Rows rows = RowsOf(options);
  std::erase_if(rows, [rank](const ProtocolRow* row) { return row->rank <= rank; });
  return rows;
}

const Dialect& DialectOf(const NavframeOptions& options) {
  return options.dialect == NavframeLegacy ? LegacyDialect : StandardDialect;
}

// The line end behind a sentence belongs to its frame. Nothing while it may still come.
std::optional<std::uint32_t> LineEndAt(const Head& head, std::uint32_t length, bool ended) {
  const std::uint32_t behind = head.available - length;
  const std::uint8_t* const end = head.bytes + length;
  if (behind > 0 && end[0] == '\n') return 1;
  if (behind > 1 && end[0] == '\r' && end[1] == '\n') return 2;
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

std::string_view AddressOf(const std::uint8_t* frame, std::uint32_t length) {
  std::uint32_t end = 1;
  while (end < length && frame[end] != ',' && frame[end] != '*') ++end;
  return {reinterpret_cast<const char*>(frame) + 1, end - 1};
}

}  // namespace

Stream::Stream(const NavframeOptions& options)
    : options_(options),
      wanted_(options.kinds, options.kinds + options.kindCount),
      buffer_(options.bufferSize),
      protocols_(RowsOf(options)),
      stronger_{SearchedProtocols(StrongerThan(Rank::EightBits, options)),
                SearchedProtocols(StrongerThan(Rank::Fletcher, options))} {
  std::ranges::sort(wanted_);
  Reset();
}

void Stream::Reset() {
  buffer_.Clear();
  sink_.Clear();
  decoders_.emplace(sink_, DialectOf(options_));
  inside_.emplace(DialectOf(options_));
  behind_.emplace(DialectOf(options_));
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

std::size_t Stream::Put(const std::uint8_t* data, std::size_t length) {
  // What a flush ends is decoded before anything behind it comes.
  const std::size_t taken = flushing_ ? 0 : buffer_.Append(data, length);
  statistics_.bytes += taken;
  return taken;
}

bool Stream::Next(NavframeItem& item) {
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
bool Stream::EndIdle() {
  if (!idle_) return false;
  idle_ = false;
  if (!decoders_->nmea.CycleIsWhole()) return false;
  EndCycle();
  return true;
}

void Stream::EndCycle() {
  decoders_->nmea.EndCycle();
  span_.row = nullptr;
  span_.bytes = buffer_.Bytes();
  span_.position = position_;
  span_.length = 0;
  tagged_ = false;
}

// Covers the next bytes with a span. False when more bytes are needed to tell.
bool Stream::Advance() {
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

bool Stream::HandleHead(const Head& head) {
  const ProtocolRow& row = *protocols_.RowOf(head.bytes[0]);
  const Dialect& dialect = decoders_->dialect;
  const Framing framing = row.frame(decoders_->framing, dialect, head);
  switch (framing.verdict) {
    case Verdict::NeedMore:
      return HandleWaiting(head, row, framing.length);
    case Verdict::Rejected:
      return Reject(row, framing.reason, framing.length);
    case Verdict::Frame:
      break;
  }
  // A check of few bits may hold by chance: a frame with a stronger one is believed rather.
  if (dialect.strongerFramesWin && row.rank != Rank::Crc) {
    switch (inside_->Look(head, framing.length, stronger_[static_cast<std::size_t>(row.rank)])) {
      case LookAhead::Answer::Frame:
        return Reject(row, NavframeStrongerFrame, framing.length);
      case LookAhead::Answer::Open:
        if (!flushing_ && !idle_) return false;
        break;
      case LookAhead::Answer::None:
        break;
    }
  }
  return TakeFrame(head, row, framing.length);
}

// A head that needs more bytes: it waits, unless the input ended, or the line is quiet and a whole
// frame stands behind it.
bool Stream::HandleWaiting(const Head& head, const ProtocolRow& row, std::uint32_t claimed) {
  if (idle_ && head.position >= givenUpUntil_) {
    const std::uint32_t frame = behind_->FindFrame(head, protocols_);
    if (frame != 0) givenUpUntil_ = head.position + frame;
  }
  const bool givenUp = flushing_ || head.position < givenUpUntil_;
  return givenUp && Reject(row, NavframeCutOff, claimed);
}

void Stream::KeepTagBlock(const Head& head, const ProtocolRow& row, std::uint32_t length) {
  tagged_ = row.protocol == NavframeNmea && head.position == tagBlockEnd_;
  if (row.protocol != NavframeNmeaTagBlock) return;
  // Without its backslashes.
  const auto* const text = reinterpret_cast<const char*>(head.bytes) + 1;
  CopyText(tagBlock_.data(), tagBlock_.size(), {text, length - 2});
  tagBlockEnd_ = head.position + length;
}

bool Stream::TakeFrame(const Head& head, const ProtocolRow& row, std::uint32_t length) {
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
  counts.undecoded += span_.result.reason == NavframeNoKind ? 1 : 0;
  counts.records += sink_.Count();
  Cover(NavframeItemFrame, &row, spanned);
  return true;
}

bool Stream::Reject(const ProtocolRow& row, NavframeReason reason, std::uint32_t claimed) {
  tagged_ = false;
  if (!decoders_->dialect.silentCheckErrors && row.protocol == NavframeUbx &&
      reason == NavframeBadChecksum) {
    decoders_->ubx.ReportCheckError();
  }
  span_.result = {reason};
  span_.claimedLength = claimed;
  (statistics_.*row.counts).rejected += 1;
  Cover(NavframeItemRejected, &row, 1);
  return true;
}

bool Stream::FinishFlush() {
  if (!flushing_) return false;
  flushing_ = false;
  EndCycle();
  return true;
}

void Stream::Cover(NavframeItemType type, const ProtocolRow* row, std::uint32_t length) {
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

bool Stream::IsAskedFor(const Span& span) const {
  if ((options_.items & span.type) != 0) return true;
  const bool undecoded = span.type == NavframeItemFrame && sink_.Count() == 0 &&
                         span.result.reason != NavframeNoReason;
  return undecoded && (options_.items & NavframeItemUndecoded) != 0;
}

bool Stream::HandOutRecord(NavframeItem& item) {
  const SlotRecord& record = sink_[nextRecord_++];
  if ((options_.items & NavframeItemRecord) == 0) return false;
  const catalogue::KindRow* const row = catalogue::FindKind(record.id, record.source);
  if (row == nullptr) return false;
  if (!wanted_.empty() && !std::ranges::binary_search(wanted_, &row->kind)) return false;
  Describe(item);
  item.type = NavframeItemRecord;
  item.kind = &row->kind;
  item.record = record.payload;
  return true;
}

// The span, as an item.
void Stream::Describe(NavframeItem& item) const {
  item.type = span_.type;
  item.protocol = span_.row == nullptr ? NavframeNoProtocol : span_.row->protocol;
  item.offset = span_.position;
  item.length = span_.length;
  item.claimedLength = span_.type == NavframeItemRejected ? span_.claimedLength : 0;
  item.bytes = span_.bytes;
  item.reason = span_.type == NavframeItemSkipped ? NavframeNoReason : span_.result.reason;
  item.message = 0;
  item.subType = 0;
  item.address[0] = '\0';
  item.badField = span_.result.badField;
  item.recordCount = sink_.Count();
  if (span_.type == NavframeItemFrame && span_.length != 0) {
    item.message = MessageOf(*span_.row, span_.bytes, span_.length);
    if (span_.row->protocol == NavframeNmea || span_.row->protocol == NavframeAsciiLog) {
      CopyText(item.address, AddressOf(span_.bytes, span_.length));
    }
  }
  const TimeManager& time = decoders_->time;
  item.time = {.tow = time.gpsTime.tow,
               .week = time.gpsTime.week,
               .source = NavframeNoTime,
               .utc = time.utcTime,
               .leapSeconds = time.leapSeconds};
  item.kind = nullptr;
  item.record = nullptr;
  item.tagBlock = tagged_ ? tagBlock_.data() : nullptr;
}

void Stream::Read(NavframeStatistics& statistics) const {
  const std::size_t size = statistics.size;
  statistics = statistics_;
  statistics.size = size;
  statistics.waitingBytes = buffer_.Size();
}

}  // namespace navframe
