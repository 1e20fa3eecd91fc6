#include "framing/input_ring.h"

namespace navframe {

// Default-initialised on purpose: clearing 16 MiB would touch every page of them.
InputRing::InputRing()
    : buffer_(new std::uint8_t[Capacity + Slack]),
      wrapped_(new std::uint8_t[LongestWrappedView + Slack]) {}

void InputRing::Append(const std::uint8_t* data, std::uint32_t length) {
  if (length == 0 || length > Free()) return;
  write_ += length;
  // Exactly full reads as empty: no byte of the ring will be seen again, so none is copied. Behind
  // the end of the 32-bit indices places would repeat, so that none is remembered across it.
  const bool full = Available() == 0;
  if (full || write_ < length) ++generation_;
  if (full) return;
  const std::uint32_t position = (write_ - length) & Mask;
  const std::uint32_t first = std::min(length, Capacity - position);
  std::memcpy(buffer_.get() + position, data, first);
  if (length > first) std::memcpy(buffer_.get(), data + first, length - first);
}

const std::uint8_t* InputRing::CopyWrapped(std::uint32_t length) {
  const std::uint32_t position = read_ & Mask;
  const std::uint32_t first = Capacity - position;
  std::memcpy(wrapped_.get(), buffer_.get() + position, first);
  std::memcpy(wrapped_.get() + first, buffer_.get(), length - first);
  return wrapped_.get();
}

}  // namespace navframe
