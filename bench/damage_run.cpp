// What streams make of damaged traffic, fault by fault: every frame with a strong check that stands
// whole must come out where it stands, in chunks of any size, and every byte in one span. Frames
// with an 8-bit check may only get lost to damaged ones that hold by chance.
// damage_run [FRAMES [SEEDS]] prints a table and fails with 1. The frames are those of the captures
// in the folder NAVFRAME_CAPTURES, if there are any, and the generator's.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "damage.h"
#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "plain_framer.h"

namespace navframe::bench {
namespace {

// A damaged frame with an 8-bit check holds by chance once in so many times.
constexpr std::size_t ChancesOfWeak = 256;

Bytes FileBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void AddFrames(const Bytes& bytes, std::vector<Bytes>& frames) {
  for (const FrameOfStream& frame : ValidFrames(bytes)) {
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(frame.offset);
    frames.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(frame.length));
  }
}

std::vector<Bytes> WholeFrames() {
  std::vector<Bytes> frames;
  const char* const captures = std::getenv("NAVFRAME_CAPTURES");
  if (captures != nullptr) {
    // In one order everywhere: the same frames give the same traffic.
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(captures)) {
      if (entry.path().extension() != ".md") paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    for (const auto& path : paths) AddFrames(FileBytes(path), frames);
  } else {
    AddFrames(ToBytes(sample::NmeaStream(40)), frames);
    AddFrames(sample::RtcmStream(60, sample::Msm::Msm4), frames);
    AddFrames(sample::UbxStream(60), frames);
  }
  AddFrames(sample::Stream55Aa(static_cast<int>(frames.size() / 4)), frames);
  return frames;
}

struct Source {
  Bytes bytes;
  std::vector<FrameOfStream> frames;
};

// `count` of the frames in any order, sentences with their line ends.
Source Shuffled(const std::vector<Bytes>& whole, std::size_t count, sample::Noise& noise) {
  Source source;
  std::vector<std::size_t> order;
  for (std::size_t i = 0; i < count; ++i) {
    if (i % whole.size() == 0) order.clear();
    if (order.empty()) {
      for (std::size_t n = 0; n < whole.size(); ++n) order.push_back(n);
      for (std::size_t n = order.size(); n > 1; --n) {
        std::swap(order[n - 1], order[noise.Below(static_cast<std::uint32_t>(n))]);
      }
    }
    const Bytes& frame = whole[order[i % whole.size()]];
    source.frames.push_back({source.bytes.size(), frame.size()});
    source.bytes.insert(source.bytes.end(), frame.begin(), frame.end());
    if (frame[0] == '$') source.bytes.insert(source.bytes.end(), {'\r', '\n'});
  }
  return source;
}

// What a stream made of it.
struct Delivered {
  std::vector<FrameOfStream> frames;  // without line ends
  bool wholeSpans = true;             // every byte in one of them
};

Delivered Deliver(const Bytes& bytes, std::size_t chunk) {
  NavframeOptions options = UsualOptions();
  options.items = NavframeItemFrame | NavframeItemRejected | NavframeItemSkipped;
  const StreamHandle stream = OpenStream(options);
  Delivered delivered;
  std::size_t covered = 0;
  const auto use = [&](const NavframeItem& item) {
    delivered.wholeSpans = delivered.wholeSpans && item.offset == covered && item.length != 0;
    if (item.type == NavframeItemFrame) {
      std::size_t length = item.length;
      while (length != 0 && item.protocol == NavframeNmea && item.bytes[length - 1] < ' ') --length;
      delivered.frames.push_back({covered, length});
    }
    covered += item.length;
  };
  PutAll(stream.get(), bytes, chunk, use);
  navframe_flush(stream.get());
  TakeItems(stream.get(), use);
  delivered.wholeSpans = delivered.wholeSpans && covered == bytes.size();
  return delivered;
}

struct Losses {
  std::size_t strong = 0;
  std::size_t weak = 0;         // to frames that hold by chance
  std::size_t unexplained = 0;  // weak frames that nothing overlaps
  std::size_t chance = 0;       // frames that hold by chance
  bool wholeSpans = true;
};

bool Same(const FrameOfStream& a, const FrameOfStream& b) {
  return a.offset == b.offset && a.length == b.length;
}

Losses Compare(const DamagedTraffic& traffic, const Delivered& delivered) {
  Losses losses;
  losses.wholeSpans = delivered.wholeSpans;
  auto next = delivered.frames.begin();
  std::size_t end = 0;  // of the frames in front of `next`
  std::size_t found = 0;
  for (const FrameOfStream& frame : traffic.intact) {
    while (next != delivered.frames.end() && next->offset < frame.offset) {
      end = next->offset + next->length;
      ++next;
    }
    if (next != delivered.frames.end() && Same(*next, frame)) {
      ++found;
      continue;
    }
    const bool overlapped = end > frame.offset || (next != delivered.frames.end() &&
                                                   next->offset < frame.offset + frame.length);
    std::size_t& kind = !IsWeak(traffic.bytes.data() + frame.offset) ? losses.strong
                        : overlapped                                 ? losses.weak
                                                                     : losses.unexplained;
    ++kind;
  }
  losses.chance = delivered.frames.size() - found;
  return losses;
}

struct Totals {
  std::size_t weak = 0;
  std::size_t weakHits = 0;
  bool kept = true;
};

// A fault in all chunk sizes and with all seeds.
void Run(const std::vector<Bytes>& whole, std::size_t count, std::uint64_t seeds, Fault fault,
         Totals& totals) {
  std::size_t intact = 0, hits = 0, weakHits = 0;
  Losses total;
  for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
    sample::Noise noise(seed);
    const Source source = Shuffled(whole, count, noise);
    const DamagedTraffic traffic = MakeDamagedTraffic(source.bytes, source.frames, fault, noise);
    intact += traffic.intact.size();
    hits += traffic.hits;
    weakHits += traffic.weakHits;
    Losses first;
    for (const std::size_t chunk : {std::size_t{4096}, std::size_t{1}, std::size_t{7},
                                    std::size_t{64}, std::size_t{65536}, traffic.bytes.size()}) {
      const Losses losses = Compare(traffic, Deliver(traffic.bytes, chunk));
      if (chunk == 4096) first = losses;
      total.strong += losses.strong;
      total.unexplained += losses.unexplained;
      total.wholeSpans = total.wholeSpans && losses.wholeSpans && losses.weak == first.weak &&
                         losses.chance == first.chance;
    }
    total.weak += first.weak;
    total.chance += first.chance;
  }
  std::printf("| %s | %zu | %zu | %zu | %zu | %zu | %zu | %s |\n", NameOf(fault), intact, hits,
              weakHits, total.strong + total.unexplained, total.chance, total.weak,
              total.wholeSpans ? "yes" : "NO");
  std::fflush(stdout);
  totals.weak += total.weak;
  totals.weakHits += weakHits;
  totals.kept = totals.kept && total.strong == 0 && total.unexplained == 0 && total.wholeSpans &&
                intact != 0 && hits != 0;
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  const std::size_t frames = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 20'000;
  const std::uint64_t seeds = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 7;
  const std::vector<Bytes> whole = WholeFrames();
  std::printf(
      "%zu different frames\n\n"
      "| fault | whole frames | hits | weak ones | lost without cause | valid by chance "
      "| weak frames lost to them | all bytes in spans, alike in all chunks |\n"
      "| --- | --: | --: | --: | --: | --: | --: | --- |\n",
      whole.size());
  Totals totals;
  for (const Fault fault : Faults) Run(whole, frames, seeds, fault, totals);
  // Few hits say nothing of a rate.
  const std::size_t mostLost = std::max<std::size_t>(3, totals.weakHits / ChancesOfWeak);
  std::printf("weak frames lost %zu, at most %zu of %zu weak hits may be\n", totals.weak, mostLost,
              totals.weakHits);
  return totals.kept && totals.weak <= mostLost ? 0 : 1;
}
