// Each framer with its decoder, behind valid lengths and checksums: a fresh decoder that looks for
// one protocol, or for all.
#include "fuzz.h"
#include "render/render.h"

using namespace navframe;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::uint32_t Masks[] = {ProtocolNmea,  ProtocolNmea | ProtocolNmeaTagBlock,
                                     ProtocolRtcm3, ProtocolUbx,
                                     Protocol55Aa,  0xFFFFFFFF};
  fuzz::Input input({data, size});
  fuzz::Input steering(input.Next(fuzz::SteeringLength));
  const std::uint8_t choice = steering.Byte();
  const std::uint32_t mask = choice == 0 ? 0xFFFFFFFF : Masks[choice % std::size(Masks)];
  const std::uint32_t filter = steering.Byte();
  const auto taken = input.Next(fuzz::LongestStream);
  fuzz::Bytes stream(taken.begin(), taken.end());
  fuzz::Seal(stream, mask & fuzz::ExportsProtocols);

  const auto decoder = std::make_unique<Decoder>();
  decoder->SetMsgTypes(mask);
  decoder->sink.SetFilter(filter);
  fuzz::Push(*decoder, stream);
  fuzz::RequireAccounts(decoder->input, stream.size());

  const std::unique_ptr<char[]> text(new char[1 << 17]);
  while (auto oldest = decoder->sink.PopOldest()) {
    GnssMessage& message = oldest->message;
    fuzz::ReadAll(message.data, oldest->payloadSize);
    const bool rendered = RenderRecord(message, text.get(), (choice & 0x80) != 0);
    fuzz::ReadAll(text.get(), static_cast<std::uint32_t>(std::strlen(text.get())));
    fuzz::Require(rendered || text[0] == '\0', "what is not rendered leaves the empty text");
    decoder->sink.Release(message);
  }
  return 0;
}
