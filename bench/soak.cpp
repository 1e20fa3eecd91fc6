// Hours of damaged traffic in minutes, and whether the library keeps its promises all the while:
// memory stays flat, the records of all valid frames arrive byte for byte, a byte costs at the end
// what it cost at the beginning. soak [MEGABYTES [SEED]] prints a table and fails with 1.
#include <malloc.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "api/decoder.h"
#include "damage.h"
#include "generator/nmea_stream.h"
#include "navframe/feeder.hpp"
#include "plain_framer.h"

namespace navframe::bench {
namespace {

constexpr int EpochsPerSegment = 20;
constexpr int EpochsPerStall = 160;  // fills the queue twice over
// Behind each segment, so that whatever waits for more bytes is decided. Longer than any frame.
constexpr std::size_t PaddingLength = 8192;
constexpr std::uint32_t LargestChunk = 6000;
// Every so many segments the host pops nothing, or keeps one kind of record alone.
constexpr int StallEvery = 8;
constexpr int FilterEvery = 3;
constexpr std::uint32_t FilterIds[] = {0, 1, 4, 61, 90, 102, 104};

constexpr long MostGrowthKiB = 1024;
constexpr double MostSlowdown = 2.0;

double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

long ResidentKiB() {
#if defined(__SANITIZE_ADDRESS__)
  return 0;  // the sanitizer holds freed blocks back
#endif
  long pages = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file == nullptr || std::fscanf(file, "%*s %ld", &pages) != 1) pages = 0;
  if (file != nullptr) std::fclose(file);
  return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

bool Stalls(int segment) { return segment % StallEvery == 1; }
bool Filters(int segment) { return segment % FilterEvery == 0; }

struct Expected {
  std::uint32_t id;
  Bytes payload;
};

// A decoder that meets nothing but valid frames, one whole frame at a time.
class Reference {
 public:
  std::vector<Expected> Records(const Bytes& stream, std::uint32_t filter) {
    decoder_->sink.SetFilter(filter);
    std::vector<Expected> records;
    for (const FrameOfStream& frame : ValidFrames(stream)) {
      Push(stream.data() + frame.offset, static_cast<std::uint32_t>(frame.length));
      while (auto oldest = decoder_->sink.PopOldest()) {
        const auto* const payload = static_cast<const std::uint8_t*>(oldest->message.data);
        records.push_back({oldest->message.id, Bytes(payload, payload + oldest->payloadSize)});
        decoder_->sink.Release(oldest->message);
      }
    }
    return records;
  }

 private:
  // A damaged field whose checksum holds by chance may not be convertible.
  void Push(const std::uint8_t* frame, std::uint32_t length) {
    try {
      decoder_->PutData(frame, length);
    } catch (const std::logic_error&) {
      decoder_->input.ring.Clear();
      decoder_->input.state = ParserState::Scanning;
    }
  }

  std::unique_ptr<Decoder> decoder_ = std::make_unique<Decoder>();
};

struct Totals {
  std::size_t frames = 0;     // that stand whole in the damaged stream
  std::size_t hits = 0;       // pieces of damage
  std::size_t swallowed = 0;  // whole frames inside a longer one whose checksum holds by chance
  std::size_t chance = 0;     // damaged frames that are valid by chance
  std::size_t records = 0;    // delivered, as expected
  std::size_t dropped = 0;    // by a full queue
  std::size_t diagnostics = 0;
  std::size_t rejected = 0;  // sentences taken out by the feeder
  std::size_t wrong = 0;     // missing, surplus or different records
};

// Popped records, of which the diagnostic ones are taken out.
void Compare(std::vector<Expected>& expected, const std::vector<GnssMessage>& popped, bool stalled,
             Totals& totals) {
  std::vector<const GnssMessage*> decoded;
  for (const GnssMessage& message : popped) {
    if (message.id != MsgIdDiagnostic) decoded.push_back(&message);
  }
  totals.diagnostics += popped.size() - decoded.size();
  // A full queue keeps the newest.
  if (stalled && popped.size() == MaxQueuedMessages && decoded.size() < expected.size()) {
    const std::size_t dropped = expected.size() - decoded.size();
    totals.dropped += dropped;
    expected.erase(expected.begin(), expected.begin() + static_cast<std::ptrdiff_t>(dropped));
  }
  const std::size_t both = std::min(decoded.size(), expected.size());
  std::size_t wrong = std::max(decoded.size(), expected.size()) - both;
  for (std::size_t i = 0; i < both; ++i) {
    const bool same =
        decoded[i]->id == expected[i].id &&
        std::memcmp(decoded[i]->data, expected[i].payload.data(), expected[i].payload.size()) == 0;
    wrong += same ? 0 : 1;
  }
  totals.records += both;
  totals.wrong += wrong;
}

// Counts the whole frames that a decoder may miss, and the damaged ones that it must take.
void CountChances(const DamagedTraffic& traffic, Totals& totals) {
  const auto valid = ValidFrames(traffic.bytes);
  std::size_t taken = 0;
  auto next = valid.begin();
  for (const FrameOfStream& frame : traffic.intact) {
    while (next != valid.end() && next->offset < frame.offset) ++next;
    if (next != valid.end() && next->offset == frame.offset) ++taken;
  }
  totals.frames += traffic.intact.size();
  totals.hits += traffic.hits;
  totals.swallowed += traffic.intact.size() - taken;
  totals.chance += valid.size() - taken;
}

class Soak {
 public:
  explicit Soak(std::uint64_t seed) : noise_(seed) {}

  // Nanoseconds per byte that the library and the popping host took.
  double Run(int segment) {
    const bool stalled = Stalls(segment);
    DamagedTraffic traffic =
        MakeDamagedTraffic(drive_, stalled ? EpochsPerStall : EpochsPerSegment, noise_);
    CountChances(traffic, totals_);
    if (segment == 0) PutMalformedSentence(traffic.bytes);
    traffic.bytes.insert(traffic.bytes.end(), PaddingLength, 0);
    const std::uint32_t filter =
        Filters(segment) ? FilterIds[noise_.Below(std::size(FilterIds))] : 0;
    auto expected = reference_.Records(traffic.bytes, filter);
    GNSSSetOutMsgID(filter);
    popped_.clear();

    const double start = CpuSeconds();
    Push(traffic.bytes, !stalled);
    Pop();
    double seconds = CpuSeconds() - start;
    Compare(expected, popped_, stalled, totals_);
    const double freeing = CpuSeconds();
    for (GnssMessage& message : popped_) GNSSFreeMem(&message);
    seconds += CpuSeconds() - freeing;
    bytes_ += traffic.bytes.size();
    return seconds * 1e9 / static_cast<double>(traffic.bytes.size());
  }

  const Totals& Counted() const { return totals_; }
  std::size_t BytesPushed() const { return bytes_; }

 private:
  void Push(const Bytes& bytes, bool pops) {
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t length =
          std::min<std::size_t>(1 + noise_.Below(LargestChunk), bytes.size() - at);
      feeder_.Push(bytes.data() + at, length);
      if (pops) Pop();
      at += length;
    }
  }
  // Taken out by the feeder, whose memory for that is then part of the warm-up.
  static void PutMalformedSentence(Bytes& bytes) {
    const Bytes sentence = ToBytes(sample::Sentence("GPGGA,120000,4722.5,N,00832.8,E,x,,,,,,,,"));
    bytes.insert(bytes.begin(), sentence.begin(), sentence.end());
  }
  void Pop() {
    for (GnssMessage message; GNSSGetMsg(&message, 0) == 0;) popped_.push_back(message);
  }

  sample::Drive drive_;
  sample::Noise noise_;
  Reference reference_;
  Totals totals_;
  Feeder feeder_{[this](const Feeder::Rejected&) { ++totals_.rejected; }};
  std::vector<GnssMessage> popped_;
  std::size_t bytes_ = 0;
};

// What a tenth of the run came to.
struct Tenth {
  // The best of the segments that were popped and not filtered: whatever else the machine does
  // can only add to that.
  double nsPerByte;
  long residentKiB;  // the most
};

Tenth RunTenth(Soak& soak, std::size_t untilBytes, int& segment) {
  constexpr double None = 1e9;
  Tenth tenth{None, 0};
  for (; soak.BytesPushed() < untilBytes || tenth.nsPerByte == None; ++segment) {
    const double cost = soak.Run(segment);
    if (!Stalls(segment) && !Filters(segment)) tenth.nsPerByte = std::min(tenth.nsPerByte, cost);
    malloc_trim(0);
    tenth.residentKiB = std::max(tenth.residentKiB, ResidentKiB());
  }
  return tenth;
}

bool Keeps(bool promise, const char* what) {
  std::printf("%s: %s\n", promise ? "kept" : "BROKEN", what);
  return promise;
}

bool Judge(const Totals& totals, const std::vector<Tenth>& tenths) {
  long most = 0;
  for (const Tenth& tenth : tenths) most = std::max(most, tenth.residentKiB);
  const long growth = most - tenths.front().residentKiB;
  const double slowdown = tenths.back().nsPerByte / tenths.front().nsPerByte;
  std::printf("whole frames %zu, pieces of damage %zu\n", totals.frames, totals.hits);
  std::printf("valid by chance %zu, frames swallowed by them %zu, sentences taken out %zu\n",
              totals.chance, totals.swallowed, totals.rejected);
  std::printf("records %zu, diagnostic records %zu, dropped by the full queue %zu, wrong %zu\n",
              totals.records, totals.diagnostics, totals.dropped, totals.wrong);
  std::printf("growth after the first tenth %ld KiB, last tenth at %.2f of the first's cost\n",
              growth, slowdown);
  const bool records = Keeps(totals.wrong == 0 && totals.records != 0, "every record as expected");
  const bool swallowed = Keeps(totals.swallowed <= totals.chance, "no frame lost without cause");
  const bool memory = Keeps(growth <= MostGrowthKiB, "memory within 1 MiB");
  const bool time = Keeps(slowdown <= MostSlowdown, "cost per byte constant");
  return records && swallowed && memory && time;
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  const std::size_t megabytes = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1000;
  const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  if (megabytes == 0) {
    std::fprintf(stderr, "usage: soak [MEGABYTES [SEED]]\n");
    return 2;
  }
  const auto soak = std::make_unique<Soak>(seed);
  int segment = 0;
  std::vector<Tenth> tenths;
  std::printf("| MB | ns a byte | resident KiB |\n| --: | --: | --: |\n");
  for (std::size_t tenth = 1; tenth <= 10; ++tenth) {
    tenths.push_back(RunTenth(*soak, megabytes * 100'000 * tenth, segment));
    std::printf("| %.1f | %.2f | %ld |\n", static_cast<double>(soak->BytesPushed()) * 1e-6,
                tenths.back().nsPerByte, tenths.back().residentKiB);
    std::fflush(stdout);
  }
  return Judge(soak->Counted(), tenths) ? 0 : 1;
}
