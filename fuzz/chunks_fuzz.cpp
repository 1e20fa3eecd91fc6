// The same stream whole, in chunks of any size and byte by byte gives the same records. (Not so
// with board type 7 and with ASCII logs, whose framer judges by what is there.)
#include "fuzz.h"

using namespace navframe;

namespace {

struct Outcome {
  std::vector<fuzz::Bytes> records;  // id and payload
  fuzz::Bytes state;                 // clock, decoded ids and counts

  bool operator==(const Outcome&) const = default;
};

template <class T>
void Append(fuzz::Bytes& to, const T& value) {
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&value);
  to.insert(to.end(), bytes, bytes + sizeof(T));
}

void PopInto(Outcome& outcome, Decoder& decoder) {
  while (auto oldest = decoder.sink.PopOldest()) {
    fuzz::Bytes record;
    Append(record, oldest->message.id);
    const auto* const payload = static_cast<const std::uint8_t*>(oldest->message.data);
    record.insert(record.end(), payload, payload + oldest->payloadSize);
    // A text inside a record points into the record.
    if (oldest->message.id == MsgIdNavPos || oldest->message.id == MsgIdNavVel) {
      const std::size_t pointer = sizeof(std::uint32_t) + offsetof(NavPosRecord, text);
      std::memset(record.data() + pointer, 0, sizeof(void*));
    }
    outcome.records.push_back(std::move(record));
    decoder.sink.Release(oldest->message);
  }
}

template <class NextLength>
Outcome Run(const fuzz::Bytes& stream, NextLength&& nextLength) {
  const fuzz::Bytes flush = fuzz::Flush();
  const auto decoder = std::make_unique<Decoder>();
  Outcome outcome;
  for (fuzz::Input input(stream); !input.Empty();) {
    fuzz::Push(*decoder, input.Next(nextLength()));
    PopInto(outcome, *decoder);
  }
  fuzz::Push(*decoder, flush);
  // A sync byte found among fewer than 6 bytes has its framer entered by the next call only.
  fuzz::Push(*decoder, {});
  fuzz::Push(*decoder, {});
  PopInto(outcome, *decoder);
  fuzz::Require(decoder->stream.ring.Available() == 0, "nothing is pending behind the flush");
  fuzz::RequireAccounts(decoder->stream, stream.size() + flush.size());

  std::uint32_t ids[256];
  const std::uint32_t count = decoder->sink.DrainDecodedIds(ids);
  std::sort(ids, ids + count);
  for (std::uint32_t i = 0; i < count; ++i) Append(outcome.state, ids[i]);
  const TimeManager& time = decoder->time;
  outcome.state.insert(outcome.state.end(), time.timeText.begin(), time.timeText.end());
  Append(outcome.state, time.gpsTime.tow);
  Append(outcome.state, time.gpsTime.week);
  Append(outcome.state, time.leapSeconds);
  Append(outcome.state, decoder->stream.statistics.acceptedFrames);
  Append(outcome.state, decoder->stream.statistics.acceptedBytes);
  return outcome;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  const auto steering = input.Next(fuzz::SteeringLength);
  const auto taken = input.Next(fuzz::LongestStream);
  fuzz::Bytes stream(taken.begin(), taken.end());
  if (!steering.empty() && steering[0] % 4 != 1) fuzz::Seal(stream, 0xFFFFFFFF);
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
