#include "framing/input_ring.h"

namespace navframe {

// Default-initialised on purpose: clearing 16 MiB would touch every page of them.
InputRing::InputRing()
    : buffer_(new std::uint8_t[Capacity + Slack]),
      wrapped_(new std::uint8_t[LongestWrappedView + Slack]) {}

void InputRing::Append(const std::uint8_t* data, std::uint32_t length) {
  if (length == 0 || length > Free()) return;
  const std::uint32_t begin = Masked(write_);
  write_ += length;
  // Exactly full reads as empty: no byte of the ring will be seen again, so none is copied. The
  // next ones come to the same indices, but to later positions of the stream.
  if (Available() == 0) {
    origin_ += Capacity;
    return;
  }
  const std::uint32_t first = std::min(length, Capacity - begin);
  std::memcpy(buffer_.get() + begin, data, first);
  if (length > first) std::memcpy(buffer_.get(), data + first, length - first);
}

const std::uint8_t* InputRing::CopyWrapped(std::uint32_t length) {
  const std::uint32_t begin = Masked(read_);
  const std::uint32_t first = Capacity - begin;
  std::memcpy(wrapped_.get(), buffer_.get() + begin, first);
  std::memcpy(wrapped_.get() + first, buffer_.get(), length - first);
  return wrapped_.get();
}

}  // namespace navframe
