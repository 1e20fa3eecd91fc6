// The sink of a stream: room for the records of one frame.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include "output/record_sink.h"

namespace navframe {

struct SlotRecord {
  std::uint32_t id;
  std::uint32_t source;
  const void* payload;
};

// A frame gives two records at most: its own, and the satellites in view that it ends or the
// ephemeris that it completes; one of RecurringKinds is the first. Their memory is there from the
// start, so that no decoder stops half-way for the want of it.
class SlotSink final : public RecordSink {
 public:
  SlotSink();

  void* Allocate(std::uint32_t size) override {
    if (count_ != 0) return second_;
    shared_.written = std::max(shared_.written, size);
    return shared_.memory;
  }
  RecurringRoom AllocateRecurring(std::uint32_t id, std::uint32_t size) override;
  void PushMessage(std::uint32_t id, void* payload, std::uint32_t size,
                   std::uint32_t source = SourceStream) override;
  void Abandon(void*, std::uint32_t) override {}
  void DeclareFixed(const void*) override {}

  void Clear() { count_ = 0; }
  std::uint32_t Count() const { return count_; }
  const SlotRecord& operator[](std::uint32_t index) const { return records_[index]; }

 private:
  // The end of a record stays where it is under shorter ones. So kinds share memory, and a page of
  // it is written as large records come.
  struct Room {
    std::uint64_t* memory = nullptr;
    std::uint32_t kind = 0;     // the last one of RecurringKinds
    std::uint32_t written = 0;  // bytes in front of what is left of it
  };

  std::unique_ptr<std::uint64_t[]> memory_;  // of all rooms
  Room shared_;  // of first records, and of the kinds that recur in great numbers
  Room lists_;   // of all others of RecurringKinds
  std::uint64_t* second_;
  std::array<SlotRecord, 2> records_;
  std::uint32_t count_ = 0;
};

}  // namespace navframe
