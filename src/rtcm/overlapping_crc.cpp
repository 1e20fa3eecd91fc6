#include "rtcm/overlapping_crc.h"

#include "rtcm/crc24q.h"

namespace navframe::rtcm {

std::uint32_t OverlappingCrc::Of(const InputRing& ring, const std::uint8_t* bytes,
                                 std::uint32_t length) {
  const std::uint32_t head = ring.ReadIndex();
  const bool overlaps = generation_ == ring.Generation() && head - head_ < until_ - head_;
  head_ = head;
  generation_ = ring.Generation();
  if (!overlaps) {
    hasPrefixes_ = false;
    until_ = head + length;
    return Crc24q(bytes, length);
  }
  if (!hasPrefixes_) {
    hasPrefixes_ = true;
    until_ = head;
    PrefixUpTo(head) = 0;
  }
  std::uint32_t prefix = PrefixUpTo(until_);
  for (; until_ - head < length; ++until_) {
    prefix = Crc24qWith(prefix, bytes[until_ - head]);
    PrefixUpTo(until_ + 1) = prefix;
  }
  return PrefixUpTo(head + length) ^ Crc24qWithZeros(PrefixUpTo(head), length);
}

}  // namespace navframe::rtcm
