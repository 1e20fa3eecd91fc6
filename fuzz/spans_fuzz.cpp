// Spans cover every byte once, in order, whatever the bytes, the chunks and the host do, and what
// comes out depends on the bytes alone: not on the chunks, on what else is asked for, nor on other
// streams. The host holds each item against what it put.
#include "navframe/catalogue.h"
#include "stream_host.h"

using namespace navframe;

namespace {

using fuzz::StreamHost;
using fuzz::Taken;

constexpr std::size_t BufferSize = 1 << 16;

NavframeOptions ChosenOptions(fuzz::Input& steering) {
  const std::uint8_t choice = steering.Byte();
  NavframeOptions options = fuzz::OptionsOf(choice % 4 == 1 ? NavframeLegacy : NavframeStandard);
  const std::uint32_t protocols = steering.Byte() & NavframeAllProtocols;
  if (choice >= 192 && protocols != 0) options.protocols = protocols;
  if (choice % 8 >= 4) options.startWeek = 2300;
  return options;
}

// Up to four kinds, of records that there are for the most part.
std::vector<const NavframeKind*> ChosenKinds(const std::vector<Taken>& items,
                                             fuzz::Input& steering) {
  std::vector<const NavframeKind*> kinds(steering.Byte() % 5);
  for (const NavframeKind*& kind : kinds) {
    const std::uint32_t choice = steering.Take<std::uint16_t>();
    if (!items.empty()) kind = items[choice % items.size()].item.kind;
    if (kind == nullptr) kind = navframe_kind_at(choice % navframe_kind_count());
  }
  return kinds;
}

template <class NextLength>
std::vector<Taken> Run(const NavframeOptions& options, const fuzz::Bytes& quiet,
                       const fuzz::Bytes& stream, NextLength&& nextLength) {
  StreamHost host(options);
  host.PutOnly(quiet);
  host.Put(stream, nextLength);
  host.Flush();
  return host.Items();
}

// Those of all items that the options ask for.
std::vector<Taken> Chosen(std::vector<Taken> items, const NavframeOptions& options) {
  const auto* const end = options.kinds + options.kindCount;
  std::erase_if(items, [&](const Taken& taken) {
    const NavframeItem& item = taken.item;
    const bool undecoded = fuzz::IsUndecoded(item, options);
    const std::uint32_t bits = item.type | (undecoded ? NavframeItemUndecoded : 0);
    if ((options.items & bits) == 0) return true;
    return item.type == NavframeItemRecord && options.kindCount != 0 &&
           std::find(options.kinds, end, item.kind) == end;
  });
  return items;
}

// A host that does one thing after the other.
class Script {
 public:
  Script(const NavframeOptions& options, std::span<const std::uint8_t> steering,
         const fuzz::Bytes& stream)
      : host_(options), steering_(steering), rest_(stream) {}

  bool Step() {
    if (rest_.Empty()) return false;
    const std::uint8_t choice = NextByte();
    const auto chunk = rest_.Next(std::size_t{NextByte()} + 1);
    if (choice % 8 == 1) host_.Idle();
    if (choice % 8 != 2) host_.Put(chunk);
    if (choice % 8 == 2) host_.PutOnly(chunk);
    if (choice % 8 == 3) host_.Flush();
    if (choice % 8 == 4) host_.Idle();
    if (choice == 5) host_.Reset();
    if (choice % 8 != 6) host_.TakeItems();
    if (choice % 8 == 7) host_.TakeItem();
    return true;
  }
  const std::vector<Taken>& End() {
    host_.TakeItems();
    host_.Flush();
    return host_.Items();
  }

 private:
  std::uint8_t NextByte() {
    return steering_.empty() ? std::uint8_t{255} : steering_[at_++ % steering_.size()];
  }

  StreamHost host_;
  std::span<const std::uint8_t> steering_;
  std::size_t at_ = 1;
  fuzz::Input rest_;
};

void RequireSeparate(const NavframeOptions& options, std::span<const std::uint8_t> steering,
                     const fuzz::Bytes& stream) {
  NavframeOptions others = options;
  others.dialect = options.dialect == NavframeLegacy ? NavframeStandard : NavframeLegacy;
  const fuzz::Bytes otherStream(stream.rbegin(), stream.rend());
  Script alone(options, steering, stream);
  while (alone.Step()) {
  }
  Script one(options, steering, stream);
  Script other(others, steering, otherStream);
  for (bool more = true; more;) {
    more = one.Step();
    more = other.Step() || more;
  }
  other.End();
  fuzz::Require(alone.End() == one.End(), "streams leave each other alone");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  const auto steeringBytes = input.Next(fuzz::SteeringLength);
  fuzz::Input steering(steeringBytes);
  const auto taken = input.Next(fuzz::LongestStream);
  const NavframeOptions all = ChosenOptions(steering);
  fuzz::Bytes stream(taken.begin(), taken.end());
  const std::uint8_t choice = steering.Byte();
  if (choice % 4 != 1) fuzz::Seal(stream, all.protocols);
  // In front of it, so that the stream goes over the end of the buffer.
  const fuzz::Bytes quiet(choice < 128 ? 0 : BufferSize - choice % 128 * 8);

  const auto whole = Run(all, quiet, stream, [&] { return stream.size(); });
  std::size_t at = 0;
  const auto chunks = [&]() -> std::size_t {
    if (choice % 16 == 2) return 1;
    const unsigned byte = steeringBytes.empty() ? 0U : steeringBytes[++at % steeringBytes.size()];
    return byte < 128 ? byte % 64 + 1 : byte * 4;
  };
  fuzz::Require(whole == Run(all, quiet, stream, chunks), "any chunks are the same");
  NavframeOptions some = all;
  some.items = steering.Byte() % 31 + 1;
  const std::vector<const NavframeKind*> kinds = ChosenKinds(whole, steering);
  some.kinds = kinds.data();
  some.kindCount = static_cast<std::uint32_t>(kinds.size());
  fuzz::Require(Chosen(whole, some) == Run(some, quiet, stream, chunks),
                "what is not asked for changes nothing");
  RequireSeparate(all, steeringBytes, stream);
  return 0;
}
