// Streams in threads of their own, over bytes of their own: nothing is shared between them. Meant
// for the thread sanitizer too.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "generator/mixed_stream.h"
#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "navframe/stream.h"

namespace navframe {
namespace {

using sample::Bytes;

constexpr std::size_t Threads = 16;

Bytes Capture(const std::filesystem::path& file) {
  constexpr std::size_t Longest = 100'000;
  std::ifstream in(file, std::ios::binary);
  Bytes bytes(std::istreambuf_iterator<char>(in), {});
  bytes.resize(std::min(bytes.size(), Longest));
  return bytes;
}

// Different ones; captures, where there are any, behind the made ones.
std::vector<Bytes> Inputs() {
  const std::string nmea = sample::NmeaStream(3);
  std::vector<Bytes> inputs = {Bytes(nmea.begin(), nmea.end()),
                               sample::RtcmStream(3, sample::Msm::Msm4),
                               sample::RtcmStream(3, sample::Msm::Msm7),
                               sample::UbxStream(2),
                               sample::UbxRawStream(2),
                               sample::Stream55Aa(9)};
  while (inputs.size() < Threads) {
    Bytes shifted = sample::MixedStream();
    const auto by = static_cast<std::ptrdiff_t>(inputs.size() * shifted.size() / Threads);
    std::rotate(shifted.begin(), shifted.begin() + by, shifted.end());
    inputs.push_back(shifted);
  }
  if (const char* const folder = std::getenv("NAVFRAME_CAPTURES")) {
    std::size_t at = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
      sample::Append(inputs[at++ % Threads], Capture(file.path()));
    }
  }
  return inputs;
}

void Append(const NavframeItem& item, std::string& log) {
  char json[1 << 16];
  char text[64] = "";
  std::vector<std::uint8_t> record(navframe_copy_record(&item, nullptr, 0));
  navframe_copy_record(&item, record.data(), record.size());
  if (item.kind != nullptr) {
    navframe_json(item.kind, record.data(), json, sizeof json);
    navframe_text(item.kind->record->members[0], item.record, 0, text, sizeof text);
    log.append(item.kind->name).append(json).append(text);
  }
  log.append(std::to_string(item.offset)).append(navframe_reason_text(item.reason));
  log.append(navframe_protocol_name(item.protocol)).append(item.address).append("\n");
}

void TakeItems(NavframeStream* stream, std::string& log) {
  NavframeItem item;
  item.size = sizeof item;
  while (navframe_next(stream, &item) == NavframeItemReady) Append(item, log);
}

// What a stream says of these bytes, twice; all its functions are called.
std::string LogOf(const Bytes& bytes, std::size_t index) {
  std::string log;
  NavframeOptions options;
  options.size = sizeof options;
  navframe_default_options(&options);
  options.dialect = index % 4 == 3 ? NavframeLegacy : NavframeStandard;
  options.items = index % 2 == 0 ? NavframeAllItems : NavframeItemRecord;
  options.user = &log;
  NavframeStream* stream;
  EXPECT_EQ(navframe_open(&options, &stream), NavframeOk);
  EXPECT_EQ(navframe_user(stream), &log);
  for (int run = 0; run < 2; ++run) {
    for (std::size_t at = 0; at < bytes.size();) {
      at += navframe_put(stream, &bytes[at], std::min(bytes.size() - at, 500 + index * 97));
      TakeItems(stream, log);
      if (at % 3 == 0) navframe_idle(stream);
    }
    navframe_flush(stream);
    TakeItems(stream, log);
    NavframeStatistics statistics;
    statistics.size = sizeof statistics;
    navframe_statistics(stream, &statistics);
    EXPECT_EQ(statistics.bytes, bytes.size());
    log.append(std::to_string(statistics.skippedBytes)).append(navframe_status_text(run));
    navframe_reset(stream);
  }
  navframe_close(stream);
  return log;
}

TEST(Threads, StreamsShareNothing) {
  const std::vector<Bytes> inputs = Inputs();
  // First in threads: what is only made ready at its first use is then, too.
  std::vector<std::string> logs(Threads);
  std::latch start(Threads);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < Threads; ++i) {
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      logs[i] = LogOf(inputs[i], i);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i < Threads; ++i) {
    EXPECT_GT(logs[i].size(), 10'000U);
    EXPECT_TRUE(logs[i] == LogOf(inputs[i], i)) << i;
  }
}

}  // namespace
}  // namespace navframe
