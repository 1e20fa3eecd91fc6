#include "stream_host.h"

#include "navframe/catalogue.h"

namespace navframe::fuzz {
namespace {

constexpr std::uint32_t LongestSkipped = 65536;

auto Key(const NavframeItem& item) {
  const NavframeTime& time = item.time;
  const UTCTIME& utc = time.utc;
  return std::tuple(item.type, item.protocol, item.offset, item.length, item.claimedLength,
                    item.reason, item.message, item.subType, item.badField, item.recordCount,
                    item.kind, time.tow, time.week, time.source, time.leapSeconds, utc.year,
                    utc.month, utc.day, utc.hour, utc.minute, utc.second, utc.millisecond);
}

std::uint64_t Covered(const NavframeProtocolStatistics& protocol) {
  return protocol.frameBytes + protocol.rejected;
}

}  // namespace

bool Taken::operator==(const Taken& other) const {
  return Key(item) == Key(other.item) && address == other.address && tagBlock == other.tagBlock &&
         test::SameRecords(record, other.record);
}

NavframeOptions OptionsOf(NavframeDialect dialect) {
  NavframeOptions options;
  options.size = sizeof options;
  Require(navframe_default_options(&options) == NavframeOk, "there are usual options");
  options.dialect = dialect;
  options.items = NavframeAllItems;
  return options;
}

bool IsUndecoded(const NavframeItem& item, const NavframeOptions& options) {
  const bool keepsOthers = options.dialect == NavframeStandard;
  return item.type == NavframeItemFrame &&
         (item.reason == NavframeNoKind || item.reason == NavframeBadContent ||
          (item.reason == NavframeBadField && !keepsOthers));
}

StreamHost::StreamHost(const NavframeOptions& options) : options_(options) {
  Require(navframe_open(&options, &stream_) == NavframeOk, "sound options open a stream");
}

std::size_t StreamHost::Append(std::span<const std::uint8_t> bytes) {
  // A copy of exactly this size, which is gone when items are asked for.
  const Bytes copy(bytes.begin(), bytes.end());
  const std::size_t taken = navframe_put(stream_, copy.data(), copy.size());
  Require(taken <= copy.size(), "no more is taken than there was");
  put_.insert(put_.end(), copy.begin(), copy.begin() + static_cast<std::ptrdiff_t>(taken));
  return taken;
}

void StreamHost::PutOnly(std::span<const std::uint8_t> bytes) { Append(bytes); }

void StreamHost::Put(std::span<const std::uint8_t> chunk) {
  for (bool first = true; !chunk.empty(); first = false) {
    const std::size_t taken = Append(chunk);
    Require(first || taken != 0, "there is room once the items are taken");
    chunk = chunk.subspan(taken);
    TakeItems();
  }
}

bool StreamHost::TakeItem() {
  NavframeItem item;
  std::memset(&item, 0xEE, sizeof item);  // all members are written
  item.size = sizeof item;
  const NavframeStatus status = navframe_next(stream_, &item);
  if (status == NavframeNeedsBytes) return false;
  Require(status == NavframeItemReady, "nothing fails");
  Check(item);
  Taken taken{item, item.address, item.tagBlock == nullptr ? "" : item.tagBlock, {}};
  if (item.record != nullptr) {
    const std::shared_ptr<void> copy(std::malloc(item.kind->size), std::free);
    Require(navframe_copy_record(&item, copy.get(), item.kind->size) == item.kind->size,
            "a record is copied whole");
    taken.record.push_back({item.kind->id, copy, item.kind->size, item.kind->source});
  }
  items_.push_back(std::move(taken));
  return true;
}

void StreamHost::TakeItems() {
  while (TakeItem()) {
  }
  CheckStatistics();
}

void StreamHost::Flush() {
  Require(navframe_flush(stream_) == NavframeOk, "a flush is");
  const std::uint8_t byte = 0;
  Require(navframe_put(stream_, &byte, 1) == 0, "nothing is taken before a flush is done");
  TakeItems();
  if (AreAsked(NavframeAllItems)) Require(covered_ == put_.size(), "a flush leaves nothing");
  inputBegins_ = true;
}

void StreamHost::Idle() { Require(navframe_idle(stream_) == NavframeOk, "a line is quiet"); }

void StreamHost::Reset() {
  Require(navframe_reset(stream_) == NavframeOk, "a stream begins anew");
  put_.clear();
  covered_ = 0;
  inputBegins_ = true;
  records_ = 0;
  span_ = {};
  counted_ = {};
  CheckStatistics();
}

void StreamHost::Check(const NavframeItem& item) {
  Require(item.size == sizeof item, "the size stays");
  Require(item.offset <= put_.size() && item.length <= put_.size() - item.offset,
          "an item is of bytes that were put");
  Require(item.length == 0 || std::memcmp(item.bytes, put_.data() + item.offset, item.length) == 0,
          "its bytes are those");
  Require((item.protocol & ~options_.protocols) == 0, "only what is looked for is found");
  Require(std::memchr(item.address, 0, sizeof item.address) != nullptr, "an address has an end");
  Require(item.reason == 0 || *navframe_reason_text(item.reason) != '\0', "a reason has a text");
  Require(item.type == NavframeItemRecord || item.record == nullptr, "only records have one");
  if (item.type == NavframeItemRecord) {
    CheckRecord(item);
  } else {
    CheckSpan(item);
  }
}

void StreamHost::CheckSpan(const NavframeItem& item) {
  Require(item.kind == nullptr && item.length != 0, "a span is of bytes");
  Require(item.offset >= covered_, "spans do not overlap");
  Require((item.protocol == 0) == (item.type == NavframeItemSkipped),
          "all but skipped bytes are of a protocol");
  if (AreAsked(NavframeAllItems)) {
    Require(item.offset == covered_, "spans leave no gap");
    Require(records_ == 0, "records come behind their span");
    const bool goesOn = item.type == NavframeItemSkipped && span_.type == item.type;
    Require(!goesOn || inputBegins_ || span_.length == LongestSkipped, "runs are joined");
    CheckTagBlock(item);
    inputBegins_ = false;
  }
  covered_ = item.offset + item.length;
  records_ = options_.kindCount == 0 ? item.recordCount : 0;
  span_ = item;
  NavframeProtocolStatistics& counts = CountsOf(item.protocol);
  if (item.type == NavframeItemSkipped) {
    Require(item.length <= LongestSkipped, "runs are split");
    counted_.skippedBytes += item.length;
  } else if (item.type == NavframeItemRejected) {
    Require(item.length == 1 && item.reason != 0, "one byte is rejected, for a reason");
    counts.rejected += 1;
  } else {
    Require(item.type == NavframeItemFrame, "there are no other spans");
    counts.frames += 1;
    counts.frameBytes += item.length;
    counts.undecoded += IsUndecoded(item, options_) ? 1 : 0;
  }
}

// A sentence comes with the text of the tag block in front of it, of the same input.
void StreamHost::CheckTagBlock(const NavframeItem& item) {
  const bool isTagged = item.type == NavframeItemFrame && item.protocol == NavframeNmea &&
                        span_.type == NavframeItemFrame && span_.protocol == NavframeNmeaTagBlock &&
                        !inputBegins_;
  Require(isTagged == (item.tagBlock != nullptr), "what is behind a tag block has its text");
  if (!isTagged) return;
  const auto begin = put_.begin() + static_cast<std::ptrdiff_t>(span_.offset);
  Require(std::string(begin + 1, begin + span_.length - 1) == item.tagBlock, "it is that text");
}

void StreamHost::CheckRecord(const NavframeItem& item) {
  Require(item.kind != nullptr && item.record != nullptr, "a record has a kind");
  ReadAll(item.record, item.kind->size);
  if (item.length == 0) {
    Require(item.protocol == NavframeNmea, "only satellites in view come without a sentence");
    counted_.nmea.records += 1;
    return;
  }
  CountsOf(item.protocol).records += 1;
  if (!AreAsked(NavframeAllItems)) return;
  Require(item.offset == span_.offset && item.length == span_.length, "it is of the last span");
  if (options_.kindCount != 0) return;
  Require(records_ != 0, "a span tells how many records it has");
  --records_;
}

// Every byte is counted once, whatever is asked for.
void StreamHost::CheckStatistics() {
  NavframeStatistics statistics;
  std::memset(&statistics, 0xEE, sizeof statistics);
  statistics.size = sizeof statistics;
  Require(navframe_statistics(stream_, &statistics) == NavframeOk, "there are statistics");
  Require(statistics.bytes == put_.size(), "what was put is counted");
  const std::uint64_t covered = Covered(statistics.nmea) + Covered(statistics.tagBlock) +
                                Covered(statistics.rtcm3) + Covered(statistics.ubx) +
                                Covered(statistics.binary55Aa) + Covered(statistics.asciiLog) +
                                statistics.skippedBytes;
  Require(covered + statistics.waitingBytes == statistics.bytes, "spans add up to the bytes put");
  if (!AreAsked(NavframeAllItems)) return;
  Require(covered == covered_ && statistics.skippedBytes == counted_.skippedBytes,
          "spans are counted");
  Require(records_ == 0, "all records of a span come");
  if (options_.kindCount != 0) return;
  constexpr std::size_t Protocols = sizeof statistics - offsetof(NavframeStatistics, nmea);
  Require(std::memcmp(&statistics.nmea, &counted_.nmea, Protocols) == 0, "protocols are counted");
}

NavframeProtocolStatistics& StreamHost::CountsOf(std::uint32_t protocol) {
  switch (protocol) {
    case NavframeRtcm3:
      return counted_.rtcm3;
    case NavframeUbx:
      return counted_.ubx;
    case Navframe55Aa:
      return counted_.binary55Aa;
    case NavframeAsciiLog:
      return counted_.asciiLog;
    case NavframeNmeaTagBlock:
      return counted_.tagBlock;
    default:
      return counted_.nmea;
  }
}

}  // namespace navframe::fuzz
