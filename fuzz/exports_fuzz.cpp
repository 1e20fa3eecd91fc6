// A host that changes its mind between chunks, through the exports alone. The library has one
// decoder, whose clock and satellites in view outlive an input; its ring, queue and configuration
// do not.
#include "fuzz.h"
#include "navframe/feeder.hpp"

using namespace navframe;

namespace {

constexpr std::size_t TextRoom = 1 << 17;

void PopAll(std::uint32_t wantedId, std::int64_t flag, char* text) {
  GnssMessage record;
  for (;;) {
    record.data = nullptr;
    if (GNSSGetMsg(&record, wantedId) != 0) {
      fuzz::Require(record.data == nullptr, "what is not handed out has no payload");
      if (wantedId == 0) return;
      wantedId = 0;  // one was discarded, or none waits
      continue;
    }
    fuzz::Require(record.data != nullptr, "a record has a payload");
    if (structDataToStr(&record, text, flag) == 0) {
      fuzz::Require(std::strlen(text) < TextRoom, "the text fits");
    }
    GNSSFreeMem(&record);
    fuzz::Require(record.data == nullptr, "a freed record has no payload");
  }
}

void Configure(fuzz::Input& steering) {
  const std::uint8_t choice = steering.Byte();
  const int what = choice % 8;
  if (what == 1) return GNSSSetMsgTypes(steering.Byte());
  if (what == 2) return GNSSSetBoardType(choice < 128 ? 7 : choice);
  if (what == 3) return GNSSSetOutMsgID(steering.Byte());
  if (what == 5) return GNSSSetOutMsgID(0);
  if (what != 4) return GNSSInit();
  GNSSSetMsgTypes(0xFFFFFFFF);
  GNSSSetBoardType(0);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  fuzz::Input steering(input.Next(fuzz::SteeringLength));
  const auto taken = input.Next(fuzz::LongestStream);
  fuzz::Bytes stream(taken.begin(), taken.end());
  if (steering.Byte() % 4 != 1) fuzz::Seal(stream, 0xFFFFFFFF);
  const std::unique_ptr<char[]> text(new char[TextRoom]);
  std::uint64_t rejected = 0;
  Feeder feeder([&](const Feeder::Rejected& sentence) {
    ++rejected;
    fuzz::Require(sentence.sentence.starts_with('$'), "what is taken out is a sentence");
  });

  for (fuzz::Input chunks(stream); !chunks.Empty();) {
    const std::size_t step = steering.Byte();
    const auto chunk = chunks.Next(step == 0 ? stream.size() : step * 8);
    const fuzz::Bytes copy(chunk.begin(), chunk.end());
    feeder.Push(copy.data(), copy.size());
    Configure(steering);
    const std::uint8_t host = steering.Byte();
    if (host % 4 != 1) PopAll(host % 4 == 2 ? host : 0, host, text.get());
  }

  // The next input finds the library as this one did.
  GNSSSetMsgTypes(0);
  GNSSSetBoardType(0);
  const fuzz::Bytes flush = fuzz::Flush();
  feeder.Push(flush.data(), flush.size());
  PopAll(0, 0, text.get());
  std::uint32_t ids[64];
  fuzz::Require(GNSSGetMsgs(ids) <= std::size(ids), "there are at most 64 kinds");
  fuzz::Require(rejected <= stream.size() / 4, "a sentence is rejected once");
  GNSSSetMsgTypes(0xFFFFFFFF);
  GNSSSetOutMsgID(0);
  return 0;
}
