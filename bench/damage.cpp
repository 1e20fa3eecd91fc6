#include "damage.h"

#include <algorithm>
#include <array>

#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"
#include "plain_framer.h"

namespace navframe::bench {
namespace {

using namespace sample;

constexpr std::uint32_t FramesPerHit = 100;
constexpr std::uint32_t LongestChunk = 2000;
constexpr std::uint32_t LongestPatch = 40;

constexpr std::uint32_t NoOrigin = 0xFFFFFFFF;

// Bytes with the place in the undamaged traffic that each came from.
class TracedStream {
 public:
  void Append(const Bytes& source, std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i) Put(source[i], static_cast<std::uint32_t>(i));
  }
  // Damage to the last `length` bytes, which is not 0.
  void Flip(std::size_t length, Noise& noise) {
    const std::size_t at = Within(length, noise);
    bytes_[at] = static_cast<std::uint8_t>(bytes_[at] ^ 1U << noise.Below(8));
    origins_[at] = NoOrigin;
  }
  void Cut(std::size_t length, Noise& noise) {
    const std::size_t begin = Within(length, noise);
    const std::size_t count =
        1 + Below(std::min<std::size_t>(bytes_.size() - begin, LongestPatch), noise);
    Erase(begin, begin + count);
  }
  void Insert(std::size_t length, Noise& noise) {
    const auto at = static_cast<std::ptrdiff_t>(Within(length, noise));
    const std::size_t count = 1 + noise.Below(LongestPatch);
    origins_.insert(origins_.begin() + at, count, NoOrigin);
    bytes_.insert(bytes_.begin() + at, count, 0);
    for (std::size_t i = 0; i < count; ++i) {
      bytes_[static_cast<std::size_t>(at) + i] = static_cast<std::uint8_t>(noise.Below(256));
    }
  }
  void Repeat(Noise& noise) {
    const std::size_t begin = Within(LongestChunk, noise);
    const std::size_t end = begin + Below(bytes_.size() - begin, noise);
    for (std::size_t i = begin; i < end; ++i) Put(bytes_[i], origins_[i]);
  }
  void Lose(Noise& noise) {
    const std::size_t begin = Within(LongestChunk, noise);
    Erase(begin, begin + Below(bytes_.size() - begin, noise));
  }

  const Bytes& Written() const { return bytes_; }

  // The places where a frame stands whole.
  std::vector<FrameOfStream> Find(const std::vector<FrameOfStream>& frames) const {
    std::vector<FrameOfStream> found;
    for (std::size_t at = 0; at < origins_.size(); ++at) {
      const auto frame = std::ranges::lower_bound(frames, origins_[at], {}, &FrameOfStream::offset);
      if (frame == frames.end() || frame->offset != origins_[at]) continue;
      std::size_t length = 0;
      while (length < frame->length && at + length < origins_.size() &&
             origins_[at + length] == frame->offset + length) {
        ++length;
      }
      if (length == frame->length) found.push_back({at, length});
    }
    return found;
  }

 private:
  static std::size_t Below(std::size_t limit, Noise& noise) {
    return noise.Below(static_cast<std::uint32_t>(limit));
  }
  std::size_t Within(std::size_t length, Noise& noise) const {
    return bytes_.size() - 1 - Below(std::min(length, bytes_.size()), noise);
  }
  void Put(std::uint8_t byte, std::uint32_t origin) {
    bytes_.push_back(byte);
    origins_.push_back(origin);
  }
  void Erase(std::size_t begin, std::size_t end) {
    const auto erase = [=](auto& from) {
      from.erase(from.begin() + static_cast<std::ptrdiff_t>(begin),
                 from.begin() + static_cast<std::ptrdiff_t>(end));
    };
    erase(bytes_);
    erase(origins_);
  }

  Bytes bytes_;
  std::vector<std::uint32_t> origins_;
};

void Hit(TracedStream& stream, std::size_t frameLength, Noise& noise) {
  switch (noise.Below(5)) {
    case 0:
      return stream.Flip(frameLength, noise);
    case 1:
      return stream.Cut(frameLength, noise);
    case 2:
      return stream.Insert(frameLength, noise);
    case 3:
      return stream.Repeat(noise);
    default:
      return stream.Lose(noise);
  }
}

Bytes Undamaged(Drive& drive, int epochs) {
  Bytes bytes;
  for (int i = 0; i < epochs; ++i) {
    const Epoch epoch = drive.Next();
    Append(bytes, ToBytes(NmeaEpoch(epoch)));
    Append(bytes, RtcmEpoch(epoch, epoch.second % 2 == 0 ? Msm::Msm7 : Msm::Msm4));
    for (const auto message : {UbxNavigation, UbxSatellites, UbxRawMeasurements, UbxAttitude,
                               UbxProtectionLevels, Binary55Aa}) {
      Append(bytes, message(epoch));
    }
  }
  return bytes;
}

}  // namespace

DamagedTraffic MakeDamagedTraffic(Drive& drive, int epochs, Noise& noise) {
  const Bytes source = Undamaged(drive, epochs);
  const auto frames = ValidFrames(source);
  TracedStream stream;
  DamagedTraffic traffic;
  std::size_t written = 0;
  for (const FrameOfStream& frame : frames) {
    stream.Append(source, written, frame.offset + frame.length);
    written = frame.offset + frame.length;
    if (noise.Below(FramesPerHit) != 0) continue;
    Hit(stream, frame.length, noise);
    ++traffic.hits;
  }
  stream.Append(source, written, source.size());
  traffic.bytes = stream.Written();
  traffic.intact = stream.Find(frames);
  return traffic;
}

}  // namespace navframe::bench
