// The records that wait for the host.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <optional>

#include "navframe/navframe.h"

namespace navframe {

inline constexpr std::uint32_t MaxQueuedMessages = NAVFRAME_MAX_QUEUED_MESSAGES;

// A queued record, with the size of its payload block.
struct QueuedMessage {
  GnssMessage message;
  std::uint32_t payloadSize;
};

// First in, first out, of fixed capacity.
class OutputQueue {
 public:
  std::uint32_t Size() const { return size_; }
  bool Full() const { return size_ >= MaxQueuedMessages; }

  // The queue must not be full.
  void Push(const QueuedMessage& message) {
    places_[(head_ + size_) % places_.size()] = message;
    ++size_;
  }

  std::optional<QueuedMessage> Pop() {
    if (size_ == 0) return std::nullopt;
    const QueuedMessage oldest = places_[head_];
    // An emptied queue starts over at the front, whose places are in the cache.
    --size_;
    head_ = size_ == 0 ? 0 : (head_ + 1) % static_cast<std::uint32_t>(places_.size());
    return oldest;
  }

 private:
  std::array<QueuedMessage, std::bit_ceil(MaxQueuedMessages)> places_;
  std::uint32_t head_ = 0;
  std::uint32_t size_ = 0;
};

}  // namespace navframe
