#include "batch.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <type_traits>

namespace navframe::python {
namespace {

constexpr std::size_t Word = sizeof(std::uint64_t);
constexpr std::size_t KeptWords = (std::size_t{1} << 22) / Word;

constexpr std::size_t WordsOf(std::size_t bytes) { return (bytes + Word - 1) / Word; }

static_assert(std::is_trivially_copyable_v<Waiting> && alignof(Waiting) <= Word);

}  // namespace

Stream OpenStream(const Options& options) {
  StreamOptions ours;
  if (options.protocols != 0) ours.protocols = options.protocols;
  ours.startWeek = options.startWeek;
  if (options.legacy) {
    ours.dialect = NavframeLegacy;
    ours.protocols &= ~std::uint32_t{NavframeAsciiLog};  // which that dialect does not have
    ours.startWeek = 0;
  }
  ours.items = NavframeItemRecord;
  if (options.withParts) {
    ours.items |= NavframeItemUndecoded | NavframeItemRejected | NavframeItemSkipped;
  }
  ours.kinds = options.kinds.data();
  ours.kindCount = static_cast<std::uint32_t>(options.kinds.size());
  return Stream(ours);
}

std::uint32_t LengthInUse(const NavframeKind& kind, const void* record) {
  const NavframeRecord& layout = *kind.record;
  std::uint32_t index = layout.memberCount - 1;
  while (layout.members[index]->type == NavframePadding) --index;
  const NavframeMember& last = *layout.members[index];
  if (last.countedBy < 0) return layout.size;
  return last.offset + navframe_length(&layout, &last, record) * last.size;
}

void Decoder::Take(std::span<const std::uint8_t> bytes) {
  do {
    bytes = bytes.subspan(stream_.put(bytes));
    Drain();
  } while (!bytes.empty());
}

void Decoder::Idle() {
  stream_.idle();
  Drain();
}

void Decoder::Flush() {
  stream_.flush();
  Drain();
}

void Decoder::Reset() {
  stream_.reset();
  next_ = end_ = 0;
}

void Decoder::Drain() {
  NavframeItem item{};
  item.size = sizeof item;
  NavframeStatus status = NavframeNeedsBytes;
  while ((status = navframe_next(stream_.handle(), &item)) == NavframeItemReady) Add(item);
  if (status < 0) throw std::bad_alloc();
}

// Room behind the items that wait.
std::uint8_t* Decoder::Room(std::size_t length) {
  const std::size_t words = WordsOf(length);
  if (room_.size() - end_ < words) room_.resize(std::max(2 * room_.size(), end_ + words));
  auto* const place = reinterpret_cast<std::uint8_t*>(&room_[end_]);
  end_ += words;
  return place;
}

void Decoder::Add(const NavframeItem& item) {
  const bool isRecord = item.type == NavframeItemRecord;
  Waiting waiting = {item, isRecord ? "" : navframe_message_name(&item), item.length, 0,
                     item.tagBlock != nullptr};
  if (isRecord) waiting.dataLength = LengthInUse(*item.kind, item.record);
  if (waiting.hasTag) waiting.tagLength = static_cast<std::uint32_t>(std::strlen(item.tagBlock));
  std::uint8_t* to = Room(sizeof waiting + waiting.dataLength + waiting.tagLength);
  std::memcpy(to, &waiting, sizeof waiting);
  to += sizeof waiting;
  const void* const data = isRecord ? item.record : item.bytes;
  if (waiting.dataLength != 0) std::memcpy(to, data, waiting.dataLength);
  if (waiting.hasTag) std::memcpy(to + waiting.dataLength, item.tagBlock, waiting.tagLength);
}

const Waiting* Decoder::Next() {
  if (IsEmpty()) {
    next_ = end_ = 0;
    if (room_.size() > KeptWords) std::vector<std::uint64_t>().swap(room_);
    return nullptr;
  }
  const auto* const waiting = reinterpret_cast<const Waiting*>(&room_[next_]);
  next_ += WordsOf(sizeof *waiting + waiting->dataLength + waiting->tagLength);
  return waiting;
}

}  // namespace navframe::python
