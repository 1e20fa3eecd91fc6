#include "stream/slot_sink.h"

#include "catalogue/kinds.h"

namespace navframe {

namespace {

// A stream has one of these. Taking turns with other lists, it would write its end each time.
constexpr bool SharesRoom(std::uint32_t id) {
  return id == MsgIdBinary55Aa || id == MsgIdObservations || id == MsgIdUbxRawMeasurements;
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
  const std::size_t words = (largest + 7) / 8;
  const std::size_t listWords = (largestList + 7) / 8;
  memory_.reset(new std::uint64_t[words + listWords + words]);  // not cleared: see Room
  shared_.memory = memory_.get();
  lists_.memory = shared_.memory + words;
  second_ = lists_.memory + listWords;
}

RecurringRoom SlotSink::AllocateRecurring(std::uint32_t id, std::uint32_t size) {
  Room& room = SharesRoom(id) ? shared_ : lists_;
  room.written = room.kind == id ? std::min(room.written, size) : size;
  room.kind = id;
  return {room.memory, &room.written};
}

void SlotSink::PushMessage(std::uint32_t id, void* payload, std::uint32_t /*size*/,
                           std::uint32_t source) {
  if (count_ < records_.size()) records_[count_++] = {id, source, payload};
}

}  // namespace navframe
