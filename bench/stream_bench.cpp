// What streams cost beside the exports: the same bytes through both in turns, and many streams in
// several threads. stream_bench [ROUNDS] prints two tables: medians and ranges of the ratios of
// that many rounds, and the best of as many for threads.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <thread>

#include "samples.h"
#include "streams.h"

namespace navframe::bench {
namespace {

constexpr std::size_t Chunks[] = {DefaultChunk, 65536, 1 << 20};

constexpr double None = std::numeric_limits<double>::max();

// Turns of a round: each has the machine as the others have it.
constexpr int Turns = 6;

void CompareWithExports(const NamedStream& traffic, int rounds) {
  const Bytes& bytes = traffic.bytes;
  const StreamHandle stream = OpenStream();
  Samples exports;
  Samples ofChunks[std::size(Chunks)];
  for (int round = 0; round < rounds; ++round) {
    double ofExports = 0;
    double ofStreams[std::size(Chunks)] = {};
    for (int turn = 0; turn < Turns; ++turn) {
      ofExports += Seconds([&] { DecodeAll(bytes, DefaultChunk); });
      for (std::size_t i = 0; i < std::size(Chunks); ++i) {
        ofStreams[i] += Seconds([&] { DecodeAll(stream.get(), bytes, Chunks[i]); });
      }
    }
    exports.Add(ofExports);
    for (std::size_t i = 0; i < std::size(Chunks); ++i) ofChunks[i].Add(ofStreams[i]);
  }
  const double megabytes = static_cast<double>(bytes.size()) * 1e-6 * Turns;
  std::printf(
      "| %s | %.0f | %.0f | %s | %s | %s |\n", traffic.name.c_str(), megabytes / exports.Best(),
      megabytes / ofChunks[0].Best(), SpeedRatio(ofChunks[0], exports).c_str(),
      SpeedRatio(ofChunks[1], ofChunks[0]).c_str(), SpeedRatio(ofChunks[2], ofChunks[0]).c_str());
  std::fflush(stdout);
}

constexpr std::size_t Streams = 16;

// What the threads took together, and by the clock on the wall.
struct Cost {
  double cpu = None;
  double wall = None;
};

// Every thread has its share of the streams and puts a chunk to each in turn.
Cost DecodeInThreads(const Bytes& bytes, std::size_t count) {
  std::vector<double> cpu(count);
  const auto work = [&](std::size_t thread) {
    std::vector<StreamHandle> streams;
    for (std::size_t i = thread; i < Streams; i += count) streams.push_back(OpenStream());
    const double start = ThreadSeconds();
    for (std::size_t at = 0; at < bytes.size(); at += DefaultChunk) {
      const auto chunk = std::span(bytes).subspan(at, std::min(DefaultChunk, bytes.size() - at));
      for (const StreamHandle& stream : streams) DecodeAll(stream.get(), chunk, DefaultChunk);
    }
    cpu[thread] = ThreadSeconds() - start;
  };
  const auto start = std::chrono::steady_clock::now();
  {
    std::vector<std::jthread> threads;
    for (std::size_t thread = 0; thread < count; ++thread) threads.emplace_back(work, thread);
  }
  Cost cost{0, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count()};
  for (const double seconds : cpu) cost.cpu += seconds;
  return cost;
}

void ScaleOverThreads(const Bytes& bytes, int rounds) {
  constexpr std::size_t Counts[] = {1, 2, 4};
  Cost best[std::size(Counts)];
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < std::size(Counts); ++i) {
      const Cost cost = DecodeInThreads(bytes, Counts[i]);
      best[i].cpu = std::min(best[i].cpu, cost.cpu);
      best[i].wall = std::min(best[i].wall, cost.wall);
    }
  }
  const auto size = static_cast<double>(bytes.size() * Streams);
  std::printf(
      "\n| threads | MB/s together | times one thread | processor time to one thread |\n"
      "| --: | --: | --: | --: |\n");
  for (std::size_t i = 0; i < std::size(Counts); ++i) {
    std::printf("| %zu | %.0f | %.2f | %.2f |\n", Counts[i], size * 1e-6 / best[i].wall,
                best[0].wall / best[i].wall, best[i].cpu / best[0].cpu);
  }
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 11;
  if (rounds <= 0) {
    std::fprintf(stderr, "usage: stream_bench [ROUNDS]\n");
    return 2;
  }
  std::printf(
      "| stream | exports MB/s | streams MB/s | to exports | 64 KiB to 4 KiB | 1 MiB |\n"
      "| --- | --: | --: | --: | --: | --: |\n");
  for (const NamedStream& stream : Traffic()) CompareWithExports(stream, rounds);
  for (const NamedStream& stream : MakeEphemerides(1)) CompareWithExports(stream, rounds);
  for (const NamedStream& stream : Noises()) CompareWithExports(stream, rounds);
  ScaleOverThreads(Traffic().back().bytes, rounds);
}
