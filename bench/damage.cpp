#include "damage.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

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

  // Bytes from nowhere.
  void AppendForeign(std::string_view bytes) {
    for (const char byte : bytes) Put(static_cast<std::uint8_t>(byte), NoOrigin);
  }
  void AppendNoise(std::size_t count, Noise& noise) {
    for (; count != 0; --count) Put(static_cast<std::uint8_t>(noise.Below(256)), NoOrigin);
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

// A head of any protocol that announces anything.
std::string FalseHead(Noise& noise) {
  const auto byte = [&noise](std::uint32_t limit) { return static_cast<char>(noise.Below(limit)); };
  switch (noise.Below(8)) {
    case 0:
      return {'\xD3', byte(4), byte(256)};
    case 1:
      return {'\xB5', '\x62', byte(256), byte(256), byte(256), byte(16)};
    case 2:  // raw measurements, which may be twice as long
      return {'\xB5', '\x62', '\x02', '\x15', byte(256), byte(32)};
    case 3:
      return {'U', '\xAA', "\x08\xA4\xCC\xE0"[noise.Below(4)], byte(2), '\0', '\0'};
    case 4:
      return "$GPGGA,120000.00,4722";
    case 5:
      return "\\s:rover,c:12345";
    case 6:
      return "#BESTPOSA,COM1,0,";
    default:
      return "$G";
  }
}

bool IsWeakHead(char first) { return first == '$' || first == 'U' || first == '\\'; }

// The frame at the end of the stream and what is in front of it.
class FaultMaker {
 public:
  FaultMaker(const Bytes& source, Fault fault, Noise& noise)
      : source_(source), fault_(fault), noise_(noise) {}

  void Append(std::size_t begin, const FrameOfStream& frame) {
    const std::size_t end = frame.offset + frame.length;
    const bool weak = IsWeak(source_.data() + frame.offset);
    if (fault_ == Fault::LostBytes) return AppendWithLosses(begin, end, weak);
    if (noise_.Below(fault_ == Fault::Cuts ? 50 : 20) != 0)
      return stream_.Append(source_, begin, end);
    if (fault_ == Fault::Cuts) {
      const auto kept = 1 + noise_.Below(static_cast<std::uint32_t>(frame.length) - 1);
      stream_.Append(source_, begin, frame.offset + kept);
      return Count(weak);
    }
    stream_.Append(source_, begin, frame.offset);
    if (fault_ == Fault::Noise) {
      stream_.AppendNoise(200, noise_);
      Count(false);
    } else {
      const std::string head = FalseHead(noise_);
      stream_.AppendForeign(head);
      Count(IsWeakHead(head[0]));
    }
    stream_.Append(source_, frame.offset, end);
  }

  DamagedTraffic Finish(const std::vector<FrameOfStream>& frames) {
    made_.bytes = stream_.Written();
    made_.intact = stream_.Find(frames);
    return std::move(made_);
  }

 private:
  void AppendWithLosses(std::size_t begin, std::size_t end, bool weak) {
    for (std::size_t at = begin; at < end; ++at) {
      if (noise_.Below(10'000) == 0) {
        Count(weak);
      } else {
        stream_.Append(source_, at, at + 1);
      }
    }
  }
  void Count(bool weak) {
    made_.hits += 1;
    made_.weakHits += weak ? 1 : 0;
  }

  const Bytes& source_;
  Fault fault_;
  Noise& noise_;
  TracedStream stream_;
  DamagedTraffic made_;
};

}  // namespace

bool IsWeak(const std::uint8_t* frame) { return frame[0] == '$' || frame[0] == 'U'; }

const char* NameOf(Fault fault) {
  switch (fault) {
    case Fault::FalseHeads:
      return "false heads";
    case Fault::LostBytes:
      return "lost bytes";
    case Fault::Noise:
      return "noise";
    case Fault::Cuts:
      return "cuts";
  }
  return "";
}

DamagedTraffic MakeDamagedTraffic(const Bytes& source, const std::vector<FrameOfStream>& frames,
                                  Fault fault, sample::Noise& noise) {
  FaultMaker maker(source, fault, noise);
  std::size_t written = 0;
  for (const FrameOfStream& frame : frames) {
    maker.Append(written, frame);
    written = frame.offset + frame.length;
  }
  return maker.Finish(frames);
}

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
