// A host that changes its mind between chunks, through the exports alone. The library has one
// decoder, whose clock and satellites in view outlive an input; its ring, queue and configuration
// do not.
#include "fuzz.h"

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

// Pushes an input to the library. A sentence with a field that cannot be converted is taken out of
// the ring, as a host can do it that knows what it pushed.
class Host {
 public:
  void Push(std::span<const std::uint8_t> chunk) {
    fuzz::Bytes rest(chunk.begin(), chunk.end());  // a copy of exactly this size
    while (!rest.empty()) {
      pushed_.insert(pushed_.end(), rest.begin(), rest.end());
      if (Put(rest.data(), rest.size())) return;
      rest = TakeOut();
    }
  }
  std::size_t TakenOut() const { return takenOut_; }

 private:
  static bool Put(const std::uint8_t* data, std::size_t length) {
    try {
      GNSSPutData(data, static_cast<std::uint32_t>(length));
      return true;
    } catch (const std::invalid_argument&) {
    } catch (const std::out_of_range&) {
    }
    return false;
  }

  // Empties the ring and returns what stood there behind the "$". A chunk as large as the free
  // space empties it and a larger one is dropped, so that the last "$" whose chunk is taken is the
  // one at the head.
  fuzz::Bytes TakeOut() {
    static const std::uint8_t filler[NAVFRAME_RING_CAPACITY] = {};
    for (std::size_t at = pushed_.size(); at-- > 0;) {
      if (pushed_[at] != '$') continue;
      if (!Put(filler, NAVFRAME_RING_CAPACITY - (pushed_.size() - at))) continue;
      // The framer of sentences still owns the ring.
      constexpr std::uint8_t NoSentence[] = {'*', ' ', ' '};
      fuzz::Require(Put(NoSentence, sizeof NoSentence), "no sentence stops the library");
      ++takenOut_;
      fuzz::Bytes rest(pushed_.begin() + static_cast<std::ptrdiff_t>(at) + 1, pushed_.end());
      pushed_.clear();
      return rest;
    }
    fuzz::Require(false, "what stops the library is a sentence");
    return {};
  }

  fuzz::Bytes pushed_;  // since a sentence was taken out
  std::size_t takenOut_ = 0;
};

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
  if (steering.Byte() % 4 != 1) fuzz::Seal(stream, fuzz::ExportsProtocols);
  const std::unique_ptr<char[]> text(new char[TextRoom]);
  Host host;

  for (fuzz::Input chunks(stream); !chunks.Empty();) {
    const std::size_t step = steering.Byte();
    const auto chunk = chunks.Next(step == 0 ? stream.size() : step * 8);
    host.Push(chunk);
    Configure(steering);
    const std::uint8_t pop = steering.Byte();
    if (pop % 4 != 1) PopAll(pop % 4 == 2 ? pop : 0, pop, text.get());
  }

  // The next input finds the library as this one did.
  GNSSSetMsgTypes(0);
  GNSSSetBoardType(0);
  host.Push(fuzz::Flush());
  PopAll(0, 0, text.get());
  std::uint32_t ids[64];
  fuzz::Require(GNSSGetMsgs(ids) <= std::size(ids), "there are at most 64 kinds");
  fuzz::Require(host.TakenOut() <= stream.size() / 4, "a sentence is taken out once");
  GNSSSetMsgTypes(0xFFFFFFFF);
  GNSSSetOutMsgID(0);
  return 0;
}
