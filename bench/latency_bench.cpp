// How long a push of one epoch's bytes takes, as a receiver sends them once a second, until every
// record of them was handed out: in processor time of the thread.
//   latency_bench [EPOCHS [BOUND]] prints a table in microseconds. The same epochs are pushed
//   several
// times; what an epoch takes is the least of these, as what else the machine does concerns no epoch
// each time. With a bound it fails when the 99.9th percentile of a row is above it.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>

#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "host.h"
#include "samples.h"

namespace navframe::bench {
namespace {

using namespace sample;

struct Receiver {
  const char* name;
  Bytes (*send)(const Epoch& epoch);
};
constexpr Receiver Receivers[] = {
    {"nmea", [](const Epoch& epoch) { return ToBytes(NmeaEpoch(epoch)); }},
    {"rtcm-msm7", [](const Epoch& epoch) { return RtcmEpoch(epoch, Msm::Msm7); }},
    {"ubx",
     [](const Epoch& epoch) {
       Bytes bytes = UbxNavigation(epoch);
       Append(bytes, UbxSatellites(epoch));
       Append(bytes, UbxRawMeasurements(epoch));
       return bytes;
     }},
    {"mixed",
     [](const Epoch& epoch) {
       Bytes bytes = ToBytes(NmeaEpoch(epoch));
       Append(bytes, RtcmEpoch(epoch, Msm::Msm7));
       Append(bytes, UbxNavigation(epoch));
       Append(bytes, UbxSatellites(epoch));
       Append(bytes, UbxRawMeasurements(epoch));
       return bytes;
     }},
};

// As other programs do while a receiver is silent: little is left in the caches of a core.
void UseCaches() {
  static Bytes memory(4 << 20);
  for (std::size_t at = 0; at < memory.size(); at += 64) ++memory[at];
}

using Push = std::function<void(const Bytes& epoch)>;

void PushAll(const std::vector<Bytes>& epochs, bool cold, const Push& push,
             std::vector<double>& times) {
  for (std::size_t i = 0; i < epochs.size(); ++i) {
    if (cold) UseCaches();
    times[i] = std::min(times[i], Seconds([&] { push(epochs[i]); }) * 1e6);
  }
}

double AtShare(const std::vector<double>& sorted, double share) {
  const auto place = static_cast<std::size_t>(share * static_cast<double>(sorted.size()));
  return sorted[std::min(place, sorted.size() - 1)];
}

// The 99.9th percentile.
double PrintRow(const Receiver& receiver, const char* way, const std::vector<Bytes>& epochs,
                bool cold, const Push& push) {
  constexpr int Passes = 5;
  std::vector<double> times(epochs.size(), std::numeric_limits<double>::max());
  for (int pass = 0; pass < Passes; ++pass) PushAll(epochs, cold, push, times);
  std::ranges::sort(times);
  std::printf("| %s | %s | %s | %.1f | %.1f | %.1f | %.1f |\n", receiver.name, way,
              cold ? "other work" : "epochs", AtShare(times, 0.5), AtShare(times, 0.99),
              AtShare(times, 0.999), times.back());
  std::fflush(stdout);
  return AtShare(times, 0.999);
}

}  // namespace
}  // namespace navframe::bench

int main(int argc, char** argv) {
  using namespace navframe::bench;
  const int epochs = argc > 1 ? std::atoi(argv[1]) : 2000;
  const double bound = argc > 2 ? std::atof(argv[2]) : 0;
  if (epochs <= 0) {
    std::fprintf(stderr, "usage: latency_bench [EPOCHS [BOUND]]\n");
    return 2;
  }
  std::printf(
      "| stream | through | caches hold | median | 99 %% | 99.9 %% | longest |\n"
      "| --- | --- | --- | --: | --: | --: | --: |\n");
  double latest = 0;
  for (const Receiver& receiver : Receivers) {
    std::vector<Bytes> sent;
    navframe::sample::Drive drive;
    for (int i = 0; i < epochs; ++i) sent.push_back(receiver.send(drive.Next()));
    const StreamHandle stream = OpenStream();
    const Push exports = [](const Bytes& epoch) { DecodeAll(epoch, epoch.size()); };
    const Push streams = [&](const Bytes& epoch) { DecodeAll(stream.get(), epoch, epoch.size()); };
    for (const bool cold : {false, true}) {
      latest = std::max(latest, PrintRow(receiver, "exports", sent, cold, exports));
      latest = std::max(latest, PrintRow(receiver, "streams", sent, cold, streams));
    }
  }
  return bound == 0 || latest < bound ? 0 : 1;
}
