#include "stream/slot_sink.h"

namespace navframe {

void SlotSink::GiveRoom(std::uint32_t slot, std::uint32_t size) {
  memory_[slot].reset(new std::uint64_t[(size + 7) / 8]);
  capacity_[slot] = size;
}

void* SlotSink::Allocate(std::uint32_t size) {
  const std::uint32_t slot = count_ < Slots ? count_ : Slots - 1;
  if (size > capacity_[slot]) GiveRoom(slot, size);
  return memory_[slot].get();
}

void SlotSink::PushMessage(std::uint32_t id, void* payload, std::uint32_t /*size*/,
                           std::uint32_t source) {
  if (count_ < Slots) records_[count_++] = {id, source, payload};
}

}  // namespace navframe
