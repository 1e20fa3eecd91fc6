#include "stream/slot_sink.h"

#include <algorithm>

#include "catalogue/kinds.h"

namespace navframe {

namespace {

// Not cleared: pages are touched as large records come.
std::unique_ptr<std::uint64_t[]> Room(std::uint32_t size) {
  return std::unique_ptr<std::uint64_t[]>(new std::uint64_t[(size + 7) / 8]);
}

}  // namespace

SlotSink::SlotSink() {
  std::uint32_t largest = 0;
  for (const auto& [kind, text] : catalogue::KindRows()) largest = std::max(largest, kind.size);
  for (auto& memory : memory_) memory = Room(largest);
  std::uint32_t end = 0;
  for (std::size_t i = 0; i < ownRooms_.size(); ++i) {
    const std::uint32_t size = catalogue::FindKind(RecurringKinds[i], SourceStream)->kind.size;
    ownRooms_[i] = {end, size};
    end += (size + 7) / 8 * 8;
  }
  ownMemory_ = Room(end);
}

RecurringRoom SlotSink::AllocateRecurring(std::uint32_t id, std::uint32_t /*size*/) {
  const auto index = std::ranges::find(RecurringKinds, id) - std::begin(RecurringKinds);
  OwnRoom& room = ownRooms_[static_cast<std::size_t>(index)];
  return {ownMemory_.get() + room.offset / 8, &room.written};
}

void SlotSink::PushMessage(std::uint32_t id, void* payload, std::uint32_t /*size*/,
                           std::uint32_t source) {
  if (count_ < Slots) records_[count_++] = {id, source, payload};
}

}  // namespace navframe
