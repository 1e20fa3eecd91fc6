// How fast streams become records, each beside its floors; ends with the table of ratios.
#include <malloc.h>

#include <cstdio>
#include <map>

#include "floors.h"
#include "report.h"
#include "streams.h"

namespace navframe::bench {
namespace {

constexpr std::size_t Chunks[] = {512, 4096, 65536, 1 << 20};

void Decode(benchmark::State& state, const Bytes& bytes, std::size_t chunk) {
  std::uint64_t records = 0;
  for (auto _ : state) records = DecodeAll(bytes, chunk);
  Report(state, bytes.size(), records);
}

// The sizes of the records of a stream, as blocks of the allocator give them.
RecordSizes SizesOf(const Bytes& bytes) {
  RecordSizes sizes;
  for (std::size_t at = 0; at < bytes.size(); at += DefaultChunk) {
    const std::size_t length = std::min(DefaultChunk, bytes.size() - at);
    GNSSPutData(bytes.data() + at, static_cast<std::uint32_t>(length));
    sizes.ofChunks.emplace_back();
    for (GnssMessage message; GNSSGetMsg(&message, 0) == 0; GNSSFreeMem(&message)) {
      const std::size_t size = malloc_usable_size(message.data);
      sizes.ofChunks.back().push_back(static_cast<std::uint32_t>(size));
      ++sizes.records;
    }
  }
  return sizes;
}

void RegisterStream(const NamedStream& stream) {
  const Bytes& bytes = stream.bytes;
  for (const std::size_t chunk : Chunks) {
    benchmark::RegisterBenchmark(
        ("decode/" + stream.name + "/" + std::to_string(chunk)).c_str(),
        [&bytes, chunk](benchmark::State& state) { Decode(state, bytes, chunk); });
  }
  benchmark::RegisterBenchmark(("copy/" + stream.name).c_str(), [&bytes](benchmark::State& state) {
    for (auto _ : state) CopyFloor(bytes, DefaultChunk);
    Report(state, bytes.size(), 0);
  });
}

void RegisterFloors(const NamedStream& stream) {
  const Bytes& bytes = stream.bytes;
  benchmark::RegisterBenchmark(("check/" + stream.name).c_str(),
                               [&bytes, frames = FramesOf(bytes)](benchmark::State& state) {
                                 for (auto _ : state)
                                   benchmark::DoNotOptimize(ChecksumFloor(bytes, frames));
                                 Report(state, bytes.size(), 0);
                               });
  benchmark::RegisterBenchmark(("alloc/" + stream.name).c_str(),
                               [&bytes, sizes = SizesOf(bytes)](benchmark::State& state) {
                                 for (auto _ : state) AllocationFloor(sizes);
                                 Report(state, bytes.size(), sizes.records);
                               });
}

// Prints every run, and at the end the best of each benchmark as tables.
class TableReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double ns = run.GetAdjustedCPUTime();
      auto [found, isNew] = best_.emplace(run.run_name.function_name, ns);
      if (!isNew) found->second = std::min(found->second, ns);
    }
  }

  void PrintTables() const {
    std::printf(
        "\n| stream | MB/s at 512 | 4096 | 65536 | 1 MiB | ns a frame | records/s "
        "| copy | check | alloc | bound | of bound |\n"
        "| --- | --: | --: | --: | --: | --: | --: | --: | --: | --: | --: | --: |\n");
    for (const NamedStream& stream : Traffic()) {
      if (WasMeasured(stream)) PrintTraffic(stream);
    }
    std::printf(
        "\n| noise | MB/s at 512 | 4096 | 65536 | 1 MiB | copy |\n"
        "| --- | --: | --: | --: | --: | --: |\n");
    for (const NamedStream& stream : Noises()) {
      if (!WasMeasured(stream)) continue;
      PrintSpeeds(stream);
      std::printf(" %.0f |\n", Speed("copy/" + stream.name, stream));
    }
  }

 private:
  double Ns(const std::string& name) const {
    const auto found = best_.find(name);
    return found == best_.end() ? 0 : found->second;
  }
  bool WasMeasured(const NamedStream& stream) const {
    return Ns("decode/" + stream.name + "/4096") != 0 && Ns("copy/" + stream.name) != 0;
  }
  double Speed(const std::string& name, const NamedStream& stream) const {
    return static_cast<double>(stream.bytes.size()) * 1e3 / Ns(name);
  }

  void PrintSpeeds(const NamedStream& stream) const {
    std::printf("| %s |", stream.name.c_str());
    for (const std::size_t chunk : Chunks) {
      std::printf(" %.0f |", Speed("decode/" + stream.name + "/" + std::to_string(chunk), stream));
    }
  }

  void PrintTraffic(const NamedStream& stream) const {
    const std::string& name = stream.name;
    const double decode = Ns("decode/" + name + "/4096");
    const double bound = Ns("copy/" + name) + Ns("check/" + name) + Ns("alloc/" + name);
    const auto frames = static_cast<double>(FramesOf(stream.bytes).size());
    const auto records = static_cast<double>(SizesOf(stream.bytes).records);
    PrintSpeeds(stream);
    std::printf(" %.0f | %.2fM | %.0f | %.0f | %.0f | %.0f | %.2f |\n", decode / frames,
                records * 1e3 / decode, Speed("copy/" + name, stream),
                Speed("check/" + name, stream), Speed("alloc/" + name, stream),
                static_cast<double>(stream.bytes.size()) * 1e3 / bound, bound / decode);
  }

  std::map<std::string, double> best_;
};

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  for (const NamedStream& stream : Traffic()) {
    RegisterStream(stream);
    RegisterFloors(stream);
  }
  for (const NamedStream& stream : Noises()) RegisterStream(stream);
  benchmark::Initialize(&argc, argv);
  TableReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.PrintTables();
}
