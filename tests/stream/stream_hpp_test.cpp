// The C++ class of streams, as hosts see it.
#include <gtest/gtest.h>

#include <algorithm>
#include <ranges>

#include "navframe/stream.hpp"
#include "support/binary_frames.h"

namespace navframe::test {
namespace {

static_assert(!std::is_copy_constructible_v<Stream> &&
              std::is_nothrow_move_constructible_v<Stream>);
static_assert(std::ranges::input_range<Stream::Items>);
static_assert(RecordType<GgaRecord> && !RecordType<GPSTIME> && !RecordType<int>);

const Bytes Vtg = ToBytes(Sentence("GPVTG,54.7,T,34.4,M,5.5,N,10.2,K"));
const Bytes Acceleration = ToBytes(Sentence("GYOACC-V,1.5,1,2,3,4,5,6"));

TEST(StreamHpp, FeedsPiecesLargerThanItsBuffer) {
  Stream stream;
  Bytes bytes;
  for (int i = 0; i < 5000; ++i) bytes.insert(bytes.end(), Vtg.begin(), Vtg.end());
  stream.put(First(Vtg, 10));
  stream.flush();  // whose items come first
  std::size_t seen = 0;
  const auto use = [&](const Item& item) {
    EXPECT_EQ(item.offset(), 10 + seen++ * Vtg.size());
    EXPECT_TRUE(std::ranges::equal(item.bytes(), Vtg));
  };
  EXPECT_EQ(stream.feed(bytes, use), bytes.size());
  EXPECT_EQ(seen, 5000U);
  EXPECT_EQ(stream.statistics().nmea.frames, 5000U);
  EXPECT_EQ(stream.feed({}, use), 0U);
}

TEST(StreamHpp, RecordsAreReadByTheirStructAlone) {
  Stream stream;
  stream.put(Vtg + Acceleration);
  std::vector<std::string> lines;
  for (const Item& item : stream.items()) {
    EXPECT_EQ(item.as<GgaRecord>(), nullptr);
    if (const auto* vtg = item.as<VtgRecord>()) {
      EXPECT_EQ(vtg->speedKmh, 10.2F);
      EXPECT_NE(item.json().find("\"speedKmh\":10.2,"), std::string::npos);
    }
    // A struct of several kinds.
    const auto* record = item.as<GyoAccRecord>();
    lines.push_back(item.kind()->name + std::string(record == nullptr ? " other" : " gyo"));
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"VTG other", "GYOACC-V gyo"}));
  EXPECT_EQ(stream.status(), NavframeNeedsBytes);
  EXPECT_EQ(Item().as<VtgRecord>(), nullptr);
  EXPECT_EQ(Item().json(), "");
}

TEST(StreamHpp, AStructOfAnOlderLibraryIsNotReadAsALargerOne) {
  // As a library would hand it out whose VtgRecord ends earlier.
  NavframeKind shorter = *navframe_kind_named("VTG");
  shorter.size -= 1;
  Stream stream;
  stream.put(Vtg);
  Item item;
  ASSERT_EQ(stream.next(item), NavframeItemReady);
  ASSERT_NE(item.as<VtgRecord>(), nullptr);
  const_cast<NavframeItem&>(item.raw()).kind = &shorter;
  EXPECT_EQ(item.as<VtgRecord>(), nullptr);
}

TEST(StreamHpp, HandsOutTheKindsOfStructs) {
  const auto kinds = kindsOf<VtgRecord, GyoAccRecord>();
  for (const NavframeKind* kind : kinds) ASSERT_NE(kind, nullptr);
  EXPECT_EQ(kinds.size(), 5U) << "VTG, its tagged twin; GYOACC, GYOACC-V, RTCM-GYOACC";
  EXPECT_EQ(kinds.back()->record->name, std::string("GyoAccRecord"));
  StreamOptions options;
  options.kinds = kinds.data() + 2;
  options.kindCount = 3;
  Stream stream(options);
  stream.put(Vtg + Acceleration);
  EXPECT_EQ(std::ranges::distance(stream.items()), 1);
}

TEST(StreamHpp, MovesAndThrowsFromItsConstructorAlone) {
  StreamOptions options;
  options.bufferSize = 1;
  EXPECT_THROW(Stream{options}, std::invalid_argument);
  options = StreamOptions();
  options.user = &options;
  Stream first(options);
  first.put(First(Vtg, 20));
  Stream second = std::move(first);
  first = Stream();
  std::swap(first, second);
  EXPECT_EQ(first.user(), &options);
  first.put(std::span(Vtg).subspan(20));
  EXPECT_EQ(std::ranges::distance(first.items()), 1);
  const Stream taken = std::move(first);
  Item item;
  EXPECT_EQ(first.put(Vtg), 0U);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(first.feed(Vtg, [](auto&) {}), 0U);
  EXPECT_EQ(first.next(item), NavframeBadArgument);
  EXPECT_EQ(first.statistics().bytes, 0U);
}

}  // namespace
}  // namespace navframe::test
