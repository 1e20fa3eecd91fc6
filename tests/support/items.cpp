#include "support/items.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

namespace navframe::test {
namespace {

constexpr const char* Reasons[] = {"",          " header",  " length",  " checksum", " cut",
                                   " stronger", " no kind", " content", " field"};

std::string Format(const char* format, std::uint32_t number) {
  char text[16];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

std::string NameOf(const Item& item) {
  if (!item.address().empty()) return " " + std::string(item.address());
  if (item.protocol() == NavframeUbx) return Format(" %04X", item.message());
  if (item.message() == 0) return "";
  const std::string number = " " + std::to_string(item.message());
  return item.subType() == 0 ? number : number + "-" + std::to_string(item.subType());
}

}  // namespace

std::string LineOf(const Item& item, bool withJson) {
  const std::string reason = std::string(Reasons[item.reason()]) +
                             (item.badField() == 0 ? "" : " " + std::to_string(item.badField()));
  const std::string tag = item.tagBlock().empty() ? "" : " \\" + std::string(item.tagBlock());
  const std::string protocol = navframe_protocol_name(item.protocol());
  const std::string length = std::to_string(item.bytes().size());
  switch (item.type()) {
    case NavframeItemRecord:
      return "  " + std::string(item.kind()->name) + reason + tag +
             (withJson ? " " + item.json() : "") + "\n";
    case NavframeItemFrame:
      return protocol + NameOf(item) + " " + length + " =" + std::to_string(item.recordCount()) +
             reason + tag + "\n";
    case NavframeItemRejected:
      return protocol + " rejected" + reason + " " + std::to_string(item.claimedLength()) + "\n";
    default:
      return "skipped " + length + "\n";
  }
}

std::string LinesOf(const NavframeOptions& options, const Bytes& bytes, std::size_t chunk) {
  Stream stream(options);
  std::string lines;
  const auto add = [&lines](const Item& item) { lines += LineOf(item, true); };
  for (std::size_t at = 0; at < bytes.size(); at += std::min(chunk, bytes.size() - at)) {
    stream.feed(std::span(bytes).subspan(at, std::min(chunk, bytes.size() - at)), add);
  }
  stream.finish(add);
  return lines;
}

namespace {

NavframeProtocolStatistics& Of(NavframeStatistics& statistics, std::uint32_t protocol) {
  switch (protocol) {
    case NavframeNmea:
      return statistics.nmea;
    case NavframeNmeaTagBlock:
      return statistics.tagBlock;
    case NavframeRtcm3:
      return statistics.rtcm3;
    case NavframeUbx:
      return statistics.ubx;
    case Navframe55Aa:
      return statistics.binary55Aa;
    default:
      return statistics.asciiLog;
  }
}

}  // namespace

WatchedStream::WatchedStream(StreamOptions options)
    : stream([&options] {
        options.items = NavframeAllItems;
        return options;
      }()) {}

WatchedStream::~WatchedStream() {
  EXPECT_EQ(frame_.recordsToCome, 0U);
  CheckStatistics();
}

std::string WatchedStream::Put(const Bytes& bytes, std::size_t chunk) {
  std::string lines;
  put_ = put_ + bytes;
  for (std::size_t at = 0; at < bytes.size();) {
    // An allocation of exactly the chunk's size, so that the address sanitizer sees a read past it.
    const Bytes piece(
        bytes.begin() + static_cast<std::ptrdiff_t>(at),
        bytes.begin() + static_cast<std::ptrdiff_t>(at + std::min(chunk, bytes.size() - at)));
    for (std::span<const std::uint8_t> rest = piece; !rest.empty();) {
      const std::size_t taken = stream.put(rest);
      rest = rest.subspan(taken);
      counted_.bytes += taken;
      const std::string came = Take();
      if (taken == 0 && came.empty()) throw std::logic_error("a stream that takes nothing");
      lines += came;
    }
    at += piece.size();
  }
  return lines;
}

std::string WatchedStream::Flush() {
  ending_ = true;
  stream.flush();
  std::string lines = Take();
  EXPECT_EQ(covered_, put_.size()) << "behind a flush no byte waits";
  CheckStatistics();
  skippedBefore_ = 0;
  return lines;
}

std::string WatchedStream::Idle() {
  ending_ = true;
  stream.idle();
  return Take();
}

std::string WatchedStream::PutFlush(const Bytes& bytes) {
  const std::string lines = Put(bytes);
  return lines + Flush();
}

std::string WatchedStream::PutIdle(const Bytes& bytes) {
  const std::string lines = Put(bytes);
  return lines + Idle();
}

std::string WatchedStream::Take() {
  std::string lines;
  for (const Item& item : stream.items()) {
    if (item.type() == NavframeItemRecord) {
      CheckRecord(item);
    } else {
      CheckSpan(item);
    }
    lines += LineOf(item, withJson);
  }
  ending_ = false;
  EXPECT_EQ(stream.status(), NavframeNeedsBytes);
  return lines;
}

void WatchedStream::CheckSpan(const Item& item) {
  const std::uint32_t length = item.raw().length;
  EXPECT_EQ(frame_.recordsToCome, 0U);
  ASSERT_EQ(item.offset(), covered_);
  ASSERT_TRUE(length != 0 && covered_ + length <= put_.size());
  ASSERT_TRUE(std::ranges::equal(
      item.bytes(), std::span(put_).subspan(static_cast<std::size_t>(covered_), length)));
  covered_ += length;
  const bool skipped = item.type() == NavframeItemSkipped;
  EXPECT_TRUE(!skipped || skippedBefore_ == 0 || skippedBefore_ == 65536) << "runs are joined";
  EXPECT_LE(skipped ? length : 0U, 65536U);
  skippedBefore_ = skipped ? length : 0;
  counted_.skippedBytes += skippedBefore_;
  frame_ = {item.offset(), length, item.recordCount()};
  NavframeProtocolStatistics& counts = Of(counted_, item.protocol());
  if (item.type() == NavframeItemFrame) {
    counts.frames += 1;
    counts.frameBytes += length;
  } else if (item.type() == NavframeItemRejected) {
    EXPECT_EQ(length, 1U);
    counts.rejected += 1;
  }
}

void WatchedStream::CheckRecord(const Item& item) {
  if (frame_.recordsToCome != 0) {
    frame_.recordsToCome -= 1;
    EXPECT_EQ(item.offset(), frame_.offset);
    EXPECT_EQ(item.raw().length, frame_.length);
  } else {
    EXPECT_TRUE(ending_) << "a record of no frame";
    EXPECT_EQ(item.offset(), covered_);
    EXPECT_EQ(item.raw().length, 0U);
  }
  Of(counted_, item.protocol()).records += 1;
}

void WatchedStream::CheckStatistics() {
  const NavframeStatistics statistics = stream.statistics();
  EXPECT_EQ(statistics.bytes, counted_.bytes);
  EXPECT_EQ(statistics.skippedBytes, counted_.skippedBytes);
  EXPECT_EQ(statistics.waitingBytes, counted_.bytes - covered_);
  NavframeStatistics read = statistics;
  for (std::uint32_t protocol = 1; protocol <= NavframeAsciiLog; protocol *= 2) {
    const NavframeProtocolStatistics& told = Of(read, protocol);
    const NavframeProtocolStatistics& seen = Of(counted_, protocol);
    EXPECT_EQ(told.frames, seen.frames) << protocol;
    EXPECT_EQ(told.frameBytes, seen.frameBytes) << protocol;
    EXPECT_EQ(told.rejected, seen.rejected) << protocol;
    EXPECT_EQ(told.records, seen.records) << protocol;
  }
}

std::string Watched(const Bytes& bytes, std::size_t chunk) {
  WatchedStream watched;
  std::string lines = watched.Put(bytes, chunk);
  return lines + watched.Flush();
}

}  // namespace navframe::test
