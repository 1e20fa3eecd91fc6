// The C functions of streams: what hosts pass, rightly and wrongly, and structs of other versions.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>

#include "support/binary_frames.h"
#include "support/items.h"

namespace navframe::test {
namespace {

struct Closer {
  void operator()(NavframeStream* stream) const { navframe_close(stream); }
};
using Handle = std::unique_ptr<NavframeStream, Closer>;

Handle Opened(const NavframeOptions* options) {
  NavframeStream* stream = nullptr;
  EXPECT_EQ(navframe_open(options, &stream), NavframeOk);
  return Handle(stream);
}

NavframeStatus StatusOfOpening(const NavframeOptions& options) {
  NavframeStream* stream = reinterpret_cast<NavframeStream*>(&stream);
  const NavframeStatus status = navframe_open(&options, &stream);
  EXPECT_EQ(status == NavframeOk, stream != nullptr);
  navframe_close(stream);
  return status;
}

// A struct of a host that was compiled with another version, in memory that shows who writes.
template <class Struct>
class OfSize {
 public:
  explicit OfSize(std::size_t size) : size_(size) {
    bytes_.fill(0xA5);
    std::memcpy(bytes_.data(), &size, sizeof size);
  }
  Struct& operator*() { return *reinterpret_cast<Struct*>(bytes_.data()); }
  // Its size is still the host's, and nothing behind it was written.
  bool KeptItsBounds() const {
    const auto behind = static_cast<std::ptrdiff_t>(std::min(size_, sizeof(Struct)));
    return std::memcmp(bytes_.data(), &size_, sizeof size_) == 0 &&
           std::all_of(bytes_.begin() + behind, bytes_.end(),
                       [](std::uint8_t byte) { return byte == 0xA5; });
  }

 private:
  std::size_t size_;
  alignas(8) std::array<std::uint8_t, sizeof(Struct) + 64> bytes_;
};

const Bytes Vtg = ToBytes(Sentence("GPVTG,54.7,T,34.4,M,5.5,N,10.2,K"));

TEST(StreamArguments, StructsOfOlderAndNewerHosts) {
  for (const std::size_t size :
       {offsetof(NavframeOptions, bufferSize), sizeof(NavframeOptions) + 48}) {
    OfSize<NavframeOptions> options(size);
    EXPECT_EQ(navframe_default_options(&*options), NavframeOk);
    EXPECT_EQ((*options).protocols, NavframeAllProtocols);
    EXPECT_TRUE(options.KeptItsBounds());
    // What an older host does not have is as usual, whatever stands behind its struct.
    EXPECT_EQ(StatusOfOpening(*options), NavframeOk);
  }
  const Handle stream = Opened(nullptr);
  for (const std::size_t size : {offsetof(NavframeItem, kind), sizeof(NavframeItem) + 48}) {
    navframe_put(stream.get(), Vtg.data(), Vtg.size());
    OfSize<NavframeItem> item(size);
    ASSERT_EQ(navframe_next(stream.get(), &*item), NavframeItemReady);
    EXPECT_EQ((*item).length, Vtg.size());
    EXPECT_STREQ((*item).address, "GPVTG");
    EXPECT_TRUE(size < sizeof(NavframeItem) || (*item).kind == navframe_kind_named("VTG"));
    EXPECT_EQ(navframe_next(stream.get(), &*item), NavframeNeedsBytes);
    EXPECT_TRUE(item.KeptItsBounds());
  }
  for (const std::size_t size :
       {offsetof(NavframeStatistics, tagBlock), sizeof(NavframeStatistics) + 48}) {
    OfSize<NavframeStatistics> statistics(size);
    EXPECT_EQ(navframe_statistics(stream.get(), &*statistics), NavframeOk);
    EXPECT_EQ((*statistics).nmea.frameBytes, 2 * Vtg.size());
    EXPECT_TRUE(statistics.KeptItsBounds());
  }
}

TEST(StreamArguments, OptionsAreJudged) {
  NavframeOptions cleared{};
  cleared.size = sizeof cleared;
  EXPECT_EQ(StatusOfOpening(cleared), NavframeOk);
  const Handle stream = Opened(&cleared);
  EXPECT_EQ(navframe_put(stream.get(), Bytes(100'000).data(), 100'000), 65536U);

  const NavframeKind copy = *navframe_kind_named("GGA");
  const NavframeKind* const kinds[] = {navframe_kind_named("RMC"), &copy, nullptr};
  const auto with = [](auto member, auto value) {
    StreamOptions options;
    options.*member = value;
    return StatusOfOpening(options);
  };
  using O = NavframeOptions;
  EXPECT_EQ(with(&O::size, std::size_t{7}), NavframeBadArgument);
  EXPECT_EQ(with(&O::dialect, 2U), NavframeBadArgument);
  EXPECT_EQ(with(&O::protocols, 0x10U), NavframeBadArgument);
  EXPECT_EQ(with(&O::items, 0x20U), NavframeBadArgument);
  EXPECT_EQ(with(&O::bufferSize, 65535U), NavframeBadArgument);
  EXPECT_EQ(with(&O::bufferSize, (16U << 20) + 1), NavframeBadArgument);
  EXPECT_EQ(with(&O::bufferSize, 16U << 20), NavframeOk);
  EXPECT_EQ(with(&O::startWeek, 65535U), NavframeBadArgument);
  EXPECT_EQ(with(&O::kindCount, 1U), NavframeBadArgument);
  StreamOptions options;
  options.kinds = kinds;
  for (const std::uint32_t count : {1U, 2U, 3U}) {
    options.kindCount = count;
    EXPECT_EQ(StatusOfOpening(options), count == 1 ? NavframeOk : NavframeUnknownKind) << count;
    options.kinds += count == 2 ? 1 : 0;
  }
}

TEST(StreamArguments, WithoutAStreamOrAStruct) {
  const Handle stream = Opened(nullptr);
  NavframeItem item{};
  NavframeStatistics statistics{};
  EXPECT_EQ(navframe_default_options(nullptr), NavframeBadArgument);
  EXPECT_EQ(navframe_open(nullptr, nullptr), NavframeBadArgument);
  EXPECT_EQ(navframe_put(nullptr, Vtg.data(), 1) + navframe_put(stream.get(), nullptr, 1), 0U);
  EXPECT_EQ(navframe_next(stream.get(), nullptr), NavframeBadArgument);
  EXPECT_EQ(navframe_next(stream.get(), &item), NavframeBadArgument) << "its size is 0";
  EXPECT_EQ(navframe_statistics(stream.get(), &statistics), NavframeBadArgument);
  item.size = sizeof item;
  EXPECT_EQ(navframe_next(nullptr, &item), NavframeBadArgument);
  for (const auto function : {navframe_flush, navframe_idle, navframe_reset}) {
    EXPECT_EQ(function(nullptr), NavframeBadArgument);
  }
  EXPECT_EQ(navframe_user(nullptr), nullptr);
  EXPECT_EQ(navframe_copy_record(nullptr, nullptr, 0), 0U);
  navframe_close(nullptr);
}

TEST(StreamArguments, RecordsAreCopiedWhole) {
  StreamOptions options;
  options.items = NavframeItemFrame | NavframeItemRecord;
  options.user = &options;
  const Handle stream = Opened(&options);
  EXPECT_EQ(navframe_user(stream.get()), &options);
  navframe_put(stream.get(), Vtg.data(), Vtg.size());
  NavframeItem item{};
  item.size = sizeof item;
  ASSERT_EQ(navframe_next(stream.get(), &item), NavframeItemReady);
  EXPECT_EQ(navframe_copy_record(&item, nullptr, 0), 0U) << "a frame";
  ASSERT_EQ(navframe_next(stream.get(), &item), NavframeItemReady);
  VtgRecord record{};
  EXPECT_EQ(navframe_copy_record(&item, &record, sizeof record - 1), sizeof record);
  EXPECT_EQ(record.courseTrue, 0);
  EXPECT_EQ(navframe_copy_record(&item, &record, sizeof record), sizeof record);
  EXPECT_FLOAT_EQ(record.courseTrue, 54.7F);
  item.size = offsetof(NavframeItem, record);
  EXPECT_EQ(navframe_copy_record(&item, &record, sizeof record), 0U) << "an older host's item";
}

TEST(StreamArguments, EveryNumberHasItsOwnText) {
  std::set<std::string> texts;
  for (const int status : {0, 1, -1, -2, -3, 77}) {
    texts.insert(navframe_status_text(status));
  }
  for (std::uint32_t reason = 0; reason <= NavframeBadField + 1; ++reason) {
    texts.insert(navframe_reason_text(reason));
  }
  for (std::uint32_t bit = 1; bit <= NavframeAsciiLog; bit *= 2) {
    if ((bit & NavframeAllProtocols) != 0) texts.insert(navframe_protocol_name(bit));
  }
  EXPECT_EQ(texts.size(), 6U + 10U + 6U);
  EXPECT_STREQ(navframe_reason_text(NavframeNoReason), "");
  EXPECT_STREQ(navframe_protocol_name(0x10), "");
}

}  // namespace
}  // namespace navframe::test
