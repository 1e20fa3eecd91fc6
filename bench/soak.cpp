// Hours of damaged traffic in minutes, and whether a stream keeps its promises all the while:
// memory stays flat, the records of all whole frames arrive byte for byte, a byte costs at the end
// what it cost at the beginning. soak [MEGABYTES [SEED]] prints a table and fails with 1.
#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

#include "damage.h"
#include "plain_framer.h"
#include "resident.h"

namespace navframe::bench {
namespace {

constexpr int EpochsPerSegment = 20;
// Behind each segment, so that whatever waits for more bytes is decided. Longer than any frame.
constexpr std::size_t PaddingLength = 8192;
constexpr std::uint32_t LargestChunk = 6000;

constexpr long MostGrowthKiB = 1024;
constexpr double MostSlowdown = 2.0;

double CpuSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

struct DecodedRecord {
  const NavframeKind* kind;
  Bytes payload;

  bool operator==(const DecodedRecord&) const = default;
};

DecodedRecord CopyOf(const NavframeItem& item) {
  const auto* const payload = static_cast<const std::uint8_t*>(item.record);
  return {item.kind, Bytes(payload, payload + item.kind->size)};
}

struct Totals {
  std::size_t frames = 0;     // that stand whole in the damaged stream
  std::size_t hits = 0;       // pieces of damage
  std::size_t swallowed = 0;  // whole frames inside a longer one whose checksum holds by chance
  std::size_t chance = 0;     // damaged frames that are valid by chance
  std::size_t records = 0;    // as expected
  std::size_t wrong = 0;      // missing, surplus or different records
};

// Counts the whole frames that a decoder may miss, and the damaged ones that it must take.
void CountChances(const DamagedTraffic& traffic, const std::vector<FrameOfStream>& valid,
                  Totals& totals) {
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

  // Nanoseconds per byte that the stream and the copying host took.
  double Run() {
    DamagedTraffic traffic = MakeDamagedTraffic(drive_, EpochsPerSegment, noise_);
    traffic.bytes.insert(traffic.bytes.end(), PaddingLength, 0);
    const auto valid = ValidFrames(traffic.bytes, Ranks::StrongerWins);
    CountChances(traffic, valid, totals_);
    const auto expected = ExpectedOf(traffic.bytes, valid);
    const double start = CpuSeconds();
    const auto decoded = DecodedOf(traffic.bytes);
    const double seconds = CpuSeconds() - start;
    Compare(expected, decoded);
    bytes_ += traffic.bytes.size();
    return seconds * 1e9 / static_cast<double>(traffic.bytes.size());
  }

  const Totals& Counted() const { return totals_; }
  std::size_t BytesPushed() const { return bytes_; }

 private:
  std::vector<DecodedRecord> DecodedOf(const Bytes& bytes) {
    std::vector<DecodedRecord> records;
    for (std::size_t at = 0; at < bytes.size();) {
      const std::size_t length =
          std::min<std::size_t>(1 + noise_.Below(LargestChunk), bytes.size() - at);
      PutChunk(stream_.get(), std::span(bytes).subspan(at, length),
               [&records](const NavframeItem& item) { records.push_back(CopyOf(item)); });
      at += length;
    }
    return records;
  }

  // From a stream that meets nothing but valid frames, with a gap behind each.
  std::vector<DecodedRecord> ExpectedOf(const Bytes& bytes,
                                        const std::vector<FrameOfStream>& frames) {
    std::vector<DecodedRecord> records;
    const auto keep = [&records](const NavframeItem& item) { records.push_back(CopyOf(item)); };
    for (const FrameOfStream& frame : frames) {
      PutChunk(reference_.get(), std::span(bytes).subspan(frame.offset, frame.length), keep);
      PutChunk(reference_.get(), Gap, keep);
    }
    PutChunk(reference_.get(), Bytes(PaddingLength), keep);
    return records;
  }

  void Compare(const std::vector<DecodedRecord>& expected,
               const std::vector<DecodedRecord>& decoded) {
    const std::size_t both = std::min(decoded.size(), expected.size());
    totals_.wrong += std::max(decoded.size(), expected.size()) - both;
    for (std::size_t i = 0; i < both; ++i) {
      const bool same = decoded[i] == expected[i];
      totals_.records += same ? 1 : 0;
      totals_.wrong += same ? 0 : 1;
    }
  }

  static constexpr std::uint8_t Gap[] = {0, 0};

  sample::Drive drive_;
  sample::Noise noise_;
  StreamHandle stream_ = OpenStream();
  StreamHandle reference_ = OpenStream();
  Totals totals_;
  std::size_t bytes_ = 0;
};

// What a tenth of the run came to.
struct Tenth {
  double nsPerByte;  // the best segment's: whatever else the machine does can only add to that
  long residentKiB;  // the most
};

Tenth RunTenth(Soak& soak, std::size_t untilBytes) {
  Tenth tenth{soak.Run(), 0};
  for (;;) {
    malloc_trim(0);
    tenth.residentKiB = std::max(tenth.residentKiB, ResidentKiB());
    if (soak.BytesPushed() >= untilBytes) return tenth;
    tenth.nsPerByte = std::min(tenth.nsPerByte, soak.Run());
  }
}

bool Keeps(bool promise, const char* what) {
  std::printf("%s: %s\n", promise ? "kept" : "BROKEN", what);
  return promise;
}

double BestCost(std::span<const Tenth> tenths) {
  return std::ranges::min(tenths, {}, &Tenth::nsPerByte).nsPerByte;
}

bool Judge(const Totals& totals, const std::vector<Tenth>& tenths) {
  long most = 0;
  for (const Tenth& tenth : tenths) most = std::max(most, tenth.residentKiB);
  const long growth = most - tenths.front().residentKiB;
  // The best of three: other jobs of the machine may have all of a tenth.
  const std::span<const Tenth> all(tenths);
  const double slowdown = BestCost(all.last(3)) / BestCost(all.first(3));
  std::printf("whole frames %zu, pieces of damage %zu\n", totals.frames, totals.hits);
  std::printf("valid by chance %zu, frames swallowed by them %zu\n", totals.chance,
              totals.swallowed);
  std::printf("records %zu, wrong %zu\n", totals.records, totals.wrong);
  std::printf(
      "growth after the first tenth %ld KiB, last three tenths at %.2f of the first's cost\n",
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
  std::vector<Tenth> tenths;
  std::printf("| MB | ns a byte | resident KiB |\n| --: | --: | --: |\n");
  for (std::size_t tenth = 1; tenth <= 10; ++tenth) {
    tenths.push_back(RunTenth(*soak, megabytes * 100'000 * tenth));
    std::printf("| %.1f | %.2f | %ld |\n", static_cast<double>(soak->BytesPushed()) * 1e-6,
                tenths.back().nsPerByte, tenths.back().residentKiB);
    std::fflush(stdout);
  }
  return Judge(soak->Counted(), tenths) ? 0 : 1;
}
