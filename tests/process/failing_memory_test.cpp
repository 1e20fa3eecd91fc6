// Streams while memory runs out: an answer, no exception, and the same items as with enough of it,
// whatever the memory held before.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "generator/ephemeris_stream.h"
#include "generator/mixed_stream.h"
#include "navframe/records.h"
#include "navframe/stream.h"

namespace {

// Of the calls of the library alone.
thread_local bool counts = false;
thread_local std::size_t allocations = 0;
thread_local std::size_t failing = 0;  // the number of the one that fails; 0 for none

void* Allocate(std::size_t size) {
  if (counts && ++allocations == failing) throw std::bad_alloc();
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  if (counts) std::memset(block, static_cast<int>(1 + failing), size);
  return block;
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
// Not inlined: GCC 12 then takes the blocks that free() gets for ones of its own operator new.
[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete[](void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete[](void* block, std::size_t) noexcept { std::free(block); }

namespace navframe {
namespace {

using sample::Bytes;

template <class Call>
auto Counted(Call&& call) {
  counts = true;
  const auto answer = call();
  counts = false;
  return answer;
}

void AppendTimes(Bytes& bytes, int times, const Bytes& piece) {
  for (int i = 0; i < times; ++i) sample::Append(bytes, piece);
}

// Every kind, then false heads that overlap, by themselves and in frames that hold by chance, and
// behind one that waits: all that memory is wanted for.
Bytes Input() {
  Bytes bytes = sample::MixedStream();
  sample::Append(bytes, sample::RtcmEphemerisStream(1));
  sample::Append(bytes, sample::UbxSubframeStream(1));
  for (const char c : std::string_view("$GPGSV,1,1,01,301,10,100,40*7E\r\n")) {
    bytes.push_back(static_cast<std::uint8_t>(c));
  }
  const Bytes heads = {0xD3, 0x00, 0xB5, 0x62, 0x02, 0x15, 0x10, 0x00};
  AppendTimes(bytes, 60, heads);
  sample::Append(bytes, {0x55, 0xAA, 0xA4, 0x01, 0x00, 0x00});
  Bytes payload;
  AppendTimes(payload, 30, heads);
  payload.resize(420);
  std::uint8_t sum = 0xA4 + 0x01;
  for (const std::uint8_t byte : payload) sum = static_cast<std::uint8_t>(sum + byte);
  payload.push_back(sum);
  sample::Append(bytes, payload);
  sample::Append(bytes, {0xB5, 0x62, 0x01, 0x07, 0x00, 0x08});
  AppendTimes(bytes, 60, heads);
  return bytes;
}

// A host that asks again when memory ran out.
class Host {
 public:
  ~Host() { navframe_close(stream_); }

  void Open() {
    NavframeOptions options;
    options.size = sizeof options;
    navframe_default_options(&options);
    options.items = NavframeAllItems;
    const auto open = [&] { return navframe_open(&options, &stream_); };
    NavframeStatus status = Counted(open);
    if (status == NavframeOutOfMemory) {
      ++failedOpens;
      EXPECT_EQ(stream_, nullptr);
      status = Counted(open);
    }
    ASSERT_EQ(status, NavframeOk);
  }

  void Run(const Bytes& bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t length = std::min<std::size_t>(bytes.size() - at, 4096);
      at += Counted([&] { return navframe_put(stream_, &bytes[at], length); });
      TakeItems();
    }
    EXPECT_EQ(Counted([&] { return navframe_idle(stream_); }), NavframeOk);
    TakeItems();
    EXPECT_EQ(Counted([&] { return navframe_flush(stream_); }), NavframeOk);
    TakeItems();
  }
  void Reset() {
    EXPECT_EQ(Counted([&] { return navframe_reset(stream_); }), NavframeOk);
  }

  std::string log;
  int failedOpens = 0;
  int failedItems = 0;

 private:
  void TakeItems() {
    NavframeItem item;
    item.size = sizeof item;
    char json[1 << 16] = "";
    for (;;) {
      const NavframeStatus status = Counted([&] { return navframe_next(stream_, &item); });
      if (status == NavframeNeedsBytes) return;
      if (status == NavframeOutOfMemory) {
        ++failedItems;
        continue;
      }
      ASSERT_EQ(status, NavframeItemReady);
      if (item.kind != nullptr) navframe_json(item.kind, item.record, json, sizeof json);
      for (const std::uint64_t number : {std::uint64_t{item.type}, item.offset,
                                         std::uint64_t{item.reason}, std::uint64_t{item.length}}) {
        log.append(std::to_string(number)).append(" ");
      }
      log.append(item.kind != nullptr ? json : "");
      if (item.kind != nullptr) AppendBytes(*item.kind, item.record);
      log.append("\n");
    }
  }

  // Padding, too, is the library's. The text member of two kinds begins with a pointer into itself.
  void AppendBytes(const NavframeKind& kind, const void* record) {
    const std::size_t begin = log.size();
    log.append(static_cast<const char*>(record), kind.size);
    static_assert(offsetof(NavPosRecord, text) == offsetof(NavVelRecord, text));
    if (kind.id == MsgIdNavPos || kind.id == MsgIdNavVel) {
      log.replace(begin + offsetof(NavPosRecord, text), sizeof(void*), sizeof(void*), '\0');
    }
  }

  NavframeStream* stream_ = nullptr;
};

TEST(FailingMemory, IsAnAnswerAndLosesNothing) {
  const Bytes bytes = Input();
  std::string wanted;
  std::size_t needed = 0;
  int failedOpens = 0;
  int failedItems = 0;
  for (std::size_t n = 0; n <= needed; ++n) {
    allocations = 0;
    failing = n;
    Host host;
    host.Open();
    host.Run(bytes);
    failing = 0;
    if (n == 0) {
      wanted = host.log;
      needed = allocations;
    }
    ASSERT_TRUE(host.log == wanted) << n;
    EXPECT_EQ(host.failedOpens + host.failedItems, n == 0 ? 0 : 1) << n;
    failedOpens += host.failedOpens;
    failedItems += host.failedItems;
  }
  EXPECT_GT(wanted.size(), 10'000U);
  EXPECT_GT(failedOpens, 5);
  EXPECT_EQ(failedItems, 14)
      << "the checksums of false heads, of two protocols in three places, what observations of two "
         "protocols remember, and parts of six messages of satellites";
}

TEST(FailingMemory, IsOfNoConcernOnceAStreamRuns) {
  const Bytes bytes = Input();
  Host host;
  host.Open();
  host.Run(bytes);
  const std::string first = host.log;
  allocations = 0;
  host.Run(bytes);
  host.Reset();
  EXPECT_EQ(allocations, 0U);
  EXPECT_GT(host.log.size(), first.size() * 3 / 2);
}

}  // namespace
}  // namespace navframe
