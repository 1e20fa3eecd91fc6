// The four forms of ASCII logs, which the stream does not reach, in a decoder of their own.
#include "asciilog/log_framer.h"
#include "asciilog/log_table.h"
#include "fuzz.h"

using namespace navframe;

namespace {

void PopAll(QueueSink& sink) {
  while (auto oldest = sink.PopOldest()) {
    fuzz::ReadAll(oldest->message.data, oldest->payloadSize);
    sink.Release(oldest->message);
  }
}

// Whatever the name in the line leads to.
void DecodeAs(std::size_t row, std::span<const std::uint8_t> bytes) {
  const auto end = std::find(bytes.begin(), bytes.end(), '\r');
  const std::string line(bytes.begin(), end);
  const auto rows = asciilog::LogRows();
  const auto decoder = std::make_unique<Decoder>();
  decoder->decoders.asciiLog.DecodeLine(line, rows[row % rows.size()].identifier);
  PopAll(decoder->sink);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::pair<ParserState, asciilog::LogVariant> Variants[] = {
      {ParserState::AsciiLogLine, asciilog::LogVariant::TextLine},
      {ParserState::AsciiLogBinary, asciilog::LogVariant::Binary},
      {ParserState::AsciiLogBinaryFixed, asciilog::LogVariant::BinaryFixed},
      {ParserState::AsciiLogDollarLine, asciilog::LogVariant::DollarLine}};
  fuzz::Input input({data, size});
  fuzz::Input steering(input.Next(fuzz::SteeringLength));
  const std::size_t choice = steering.Byte() % (std::size(Variants) + 1);
  const bool byIdentifier = choice == std::size(Variants);
  const auto [state, variant] = Variants[byIdentifier ? 0 : choice];
  const bool sealed = steering.Byte() % 8 != 1;
  const auto rest = input.Rest();
  fuzz::Bytes stream(rest.begin(), rest.end());
  const bool binary =
      variant == asciilog::LogVariant::Binary || variant == asciilog::LogVariant::BinaryFixed;
  if (sealed) fuzz::SealLogs(stream, binary);

  if (byIdentifier) {
    DecodeAs(steering.Byte(), stream);
    return 0;
  }
  const auto decoder = std::make_unique<Decoder>();
  RingInput& framing = decoder->input;
  for (fuzz::Input chunks(stream); !chunks.Empty();) {
    const std::size_t step = steering.Byte();
    const auto chunk = chunks.Next(step == 0 ? stream.size() : step * 16);
    framing.ring.Append(chunk.data(), static_cast<std::uint32_t>(chunk.size()));
    for (std::uint32_t before = 0; framing.ring.Available() != before;) {
      before = framing.ring.Available();
      if (before == 0) break;
      framing.state = state;  // the framer goes on at every byte, whatever the scan would say
      static_cast<void>(asciilog::FrameLog(framing, decoder->decoders.asciiLog, variant));
      fuzz::Require(framing.ring.Available() <= before, "framers only consume");
      PopAll(decoder->sink);
    }
  }
  fuzz::RequireAccounts(framing, stream.size());
  return 0;
}
