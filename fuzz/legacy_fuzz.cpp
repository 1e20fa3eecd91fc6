// A stream in the exports' dialect gives what the exports give, whatever the chunks: the same
// records, and an item where a sentence stops them.
#include "stream_host.h"

using namespace navframe;

namespace {

struct Outcome {
  std::vector<test::Record> records;
  std::vector<std::uint64_t> stoppedAt;  // offsets of the sentences
  std::uint64_t frames = 0;
  std::tuple<std::uint32_t, std::uint16_t, std::int32_t> clock;

  bool operator==(const Outcome& other) const {
    return test::SameRecords(records, other.records) && stoppedAt == other.stoppedAt &&
           frames == other.frames && clock == other.clock;
  }
};

// Sizes of chunks, small ones for the most part; what is behind `length` bytes comes as one.
class Chunks {
 public:
  Chunks(std::span<const std::uint8_t> steering, std::size_t length)
      : steering_(steering), left_(length) {}
  std::size_t operator()() {
    if (left_ == 0) return SIZE_MAX;
    const unsigned byte = steering_.empty() ? 0U : steering_[at_++ % steering_.size()];
    const std::size_t size = byte < 128 ? byte % 16 + 1 : byte * 4;
    left_ -= std::min(left_, size);
    return size;
  }

 private:
  std::span<const std::uint8_t> steering_;
  std::size_t left_;
  std::size_t at_ = 0;
};

// The host takes a sentence that stops the exports out of the ring, and goes on behind it.
void Push(Decoder& decoder, std::span<const std::uint8_t> chunk, const fuzz::Bytes& stream,
          Outcome& outcome) {
  for (;;) {
    try {
      decoder.PutData(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
      return;
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    const std::uint64_t at = decoder.input.ring.Position();
    outcome.stoppedAt.push_back(at);
    const auto begin = stream.begin() + static_cast<std::ptrdiff_t>(at);
    const auto length = std::find(begin, stream.end(), '*') - begin + 3;
    AcceptFrame(decoder.input, static_cast<std::uint32_t>(length));
    chunk = {};
  }
}

Outcome OfExports(const fuzz::Bytes& stream, std::uint32_t mask, Chunks chunks) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(mask);
  Outcome outcome;
  for (fuzz::Input input(stream); !input.Empty();) {
    Push(*decoder, input.Next(chunks()), stream, outcome);
    std::ranges::move(test::PopAll(*decoder), std::back_inserter(outcome.records));
  }
  const FramingStatistics& counts = decoder->input.statistics;
  outcome.frames = std::uint64_t{counts.acceptedFrames} + counts.frames55Aa;
  const TimeManager& time = decoder->decoders.time;
  if (outcome.frames != 0) outcome.clock = {time.gpsTime.tow, time.gpsTime.week, time.leapSeconds};
  return outcome;
}

Outcome OfStream(const fuzz::Bytes& stream, std::uint32_t mask, Chunks chunks) {
  NavframeOptions options = fuzz::OptionsOf(NavframeLegacy);
  options.protocols = mask & NavframeAllProtocols;
  fuzz::StreamHost host(options);
  host.Put(stream, chunks);
  host.TakeItems();
  Outcome outcome;
  for (const fuzz::Taken& taken : host.Items()) {
    const NavframeItem& item = taken.item;
    std::ranges::copy(taken.record, std::back_inserter(outcome.records));
    outcome.frames += item.type == NavframeItemFrame ? 1 : 0;
    if (item.type == NavframeItemFrame && item.reason == NavframeBadField) {
      outcome.stoppedAt.push_back(item.offset);
    }
    if (outcome.frames != 0) outcome.clock = {item.time.tow, item.time.week, item.time.leapSeconds};
  }
  return outcome;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::uint32_t Masks[] = {0x3F,
                                     fuzz::ExportsProtocols,
                                     NavframeNmea | NavframeNmeaTagBlock,
                                     NavframeRtcm3 | NavframeNmea,
                                     NavframeUbx,
                                     Navframe55Aa | NavframeUbx};
  fuzz::Input input({data, size});
  const auto steering = input.Next(fuzz::SteeringLength);
  const auto taken = input.Next(fuzz::LongestStream);
  const std::uint8_t choice = steering.empty() ? 0 : steering[0];
  const std::uint32_t mask = Masks[choice / 4 % std::size(Masks)];
  fuzz::Bytes stream(taken.begin(), taken.end());
  if (choice % 4 != 1) fuzz::Seal(stream, mask & fuzz::ExportsProtocols);
  const fuzz::Bytes flush = fuzz::Flush();
  stream.insert(stream.end(), flush.begin(), flush.end());

  const Chunks forth(steering, taken.size());
  const Chunks back(steering.subspan(steering.size() / 2), taken.size());
  fuzz::Require(OfExports(stream, mask, forth) == OfStream(stream, mask, back),
                "the exports and a stream give the same");
  return 0;
}
