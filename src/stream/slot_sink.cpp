#include "stream/slot_sink.h"

#include "catalogue/kinds.h"

namespace navframe {

namespace {

// Not cleared: pages are touched as large records come.
std::unique_ptr<std::uint64_t[]> MemoryOf(std::uint32_t size) {
  return std::unique_ptr<std::uint64_t[]>(new std::uint64_t[(size + 7) / 8]);
}

// Streams have one of these. Taking turns with other lists, they would write their ends each time.
constexpr std::uint32_t OfSharedRoom[] = {MsgIdObservations, MsgIdUbxRawMeasurements,
                                          MsgIdBinary55Aa};
bool SharesRoom(std::uint32_t id) {
  return std::ranges::find(OfSharedRoom, id) != std::end(OfSharedRoom);
}

}  // namespace

SlotSink::SlotSink() {
  std::uint32_t largest = 0;
  for (const auto& [kind, text] : catalogue::KindRows()) largest = std::max(largest, kind.size);
  std::uint32_t largestList = 0;
  for (const std::uint32_t id : RecurringKinds) {
    if (SharesRoom(id)) continue;
    largestList = std::max(largestList, catalogue::FindKind(id, SourceStream)->kind.size);
  }
  shared_.memory = MemoryOf(largest);
  lists_.memory = MemoryOf(largestList);
  second_ = MemoryOf(largest);
}

RecurringRoom SlotSink::AllocateRecurring(std::uint32_t id, std::uint32_t size) {
  Room& room = SharesRoom(id) ? shared_ : lists_;
  room.written = room.kind == id ? std::min(room.written, size) : size;
  room.kind = id;
  return {room.memory.get(), &room.written};
}

void SlotSink::PushMessage(std::uint32_t id, void* payload, std::uint32_t /*size*/,
                           std::uint32_t source) {
  if (count_ < records_.size()) records_[count_++] = {id, source, payload};
}

}  // namespace navframe
