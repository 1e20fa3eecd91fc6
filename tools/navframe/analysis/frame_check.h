// Frames in bytes that a stream gave up, and what would make them whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace navframe::analysis {

using Bytes = std::span<const std::uint8_t>;

// The length of the UBX or RTCM 3 frame that the bytes begin; 0 when they begin none, or are too
// few.
std::size_t BinaryLength(Bytes bytes);
// Whether the check of that frame holds, all of which the bytes are.
bool ChecksumHolds(Bytes frame);

// What the message of a frame is called, as far as its head is there.
std::string MessageOf(Bytes bytes);

// A frame each LF of which became CR LF: whole without these CRs.
struct Translated {
  std::size_t length = 0;  // bytes that it takes now
  std::size_t added = 0;   // CRs among them
};
// The one that the bytes begin. `scratch` has the frame then, as it was sent.
std::optional<Translated> TryWithoutCr(Bytes bytes, std::vector<std::uint8_t>& scratch);

// Whether a frame is whole when a CR is put in front of one of its LFs, of the first few of them.
inline constexpr std::size_t MostTries = 64;
bool HoldsWithCr(Bytes cut, std::vector<std::uint8_t>& scratch);

}  // namespace navframe::analysis
