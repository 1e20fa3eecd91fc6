// The same stream whole, in chunks of any size and byte by byte gives the same records. (Not so
// with board type 7 and with ASCII logs, whose framer judges by what is there.)
#include <tuple>

#include "fuzz.h"
#include "support/streams.h"

using namespace navframe;

namespace {

struct Outcome {
  std::vector<test::Record> records;
  std::vector<std::uint32_t> decoded;
  std::tuple<std::string, std::uint32_t, std::uint16_t, std::int32_t> clock;
  std::pair<std::uint32_t, std::uint32_t> accepted;

  bool operator==(const Outcome& other) const {
    return test::SameRecords(records, other.records) && decoded == other.decoded &&
           clock == other.clock && accepted == other.accepted;
  }
};

template <class NextLength>
Outcome Run(const fuzz::Bytes& stream, NextLength&& nextLength) {
  const fuzz::Bytes flush = fuzz::Flush();
  const auto decoder = std::make_unique<Decoder>();
  Outcome outcome;
  const auto push = [&](std::span<const std::uint8_t> chunk) {
    fuzz::Push(*decoder, chunk);
    std::ranges::move(test::PopAll(*decoder), std::back_inserter(outcome.records));
  };
  for (fuzz::Input input(stream); !input.Empty();) push(input.Next(nextLength()));
  push(flush);
  // A sync byte found among fewer than 6 bytes has its framer entered by the next call only.
  push({});
  push({});
  fuzz::Require(decoder->input.ring.Available() == 0, "nothing is pending behind the flush");
  fuzz::RequireAccounts(decoder->input, stream.size() + flush.size());

  outcome.decoded.resize(256);
  outcome.decoded.resize(decoder->sink.DrainDecodedIds(outcome.decoded.data()));
  const TimeManager& time = decoder->decoders.time;
  outcome.clock = {time.timeText, time.gpsTime.tow, time.gpsTime.week, time.leapSeconds};
  const FramingStatistics& counts = decoder->input.statistics;
  outcome.accepted = {counts.acceptedFrames, counts.acceptedBytes};
  return outcome;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  const auto steering = input.Next(fuzz::SteeringLength);
  const auto taken = input.Next(fuzz::LongestStream);
  fuzz::Bytes stream(taken.begin(), taken.end());
  if (!steering.empty() && steering[0] % 4 != 1) fuzz::Seal(stream, fuzz::ExportsProtocols);
  const Outcome whole = Run(stream, [&] { return stream.size(); });
  fuzz::Require(whole == Run(stream, [] { return std::size_t{1}; }), "byte by byte is the same");
  std::size_t at = 0;
  const auto random = [&] {
    const unsigned byte = steering.empty() ? 0U : steering[++at % steering.size()];
    return byte < 128 ? std::size_t{byte % 16 + 1} : std::size_t{byte} * 4;
  };
  fuzz::Require(whole == Run(stream, random), "any chunks are the same");
  fuzz::Require(whole == Run(stream, [&] { return stream.size(); }), "fresh decoders are the same");
  return 0;
}
