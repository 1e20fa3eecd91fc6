#include "analysis/frame_check.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "navframe/stream.h"

namespace navframe::analysis {
namespace {

constexpr std::uint8_t Cr = '\r';
constexpr std::uint8_t Lf = '\n';
constexpr std::size_t UbxHead = 6;
constexpr std::size_t UbxAround = 8;   // head and checksum
constexpr std::size_t RtcmAround = 6;  // the same

bool IsUbx(Bytes bytes) { return bytes.size() >= 2 && bytes[0] == 0xB5 && bytes[1] == 0x62; }
bool IsRtcm(Bytes bytes) { return bytes.size() >= 2 && bytes[0] == 0xD3 && bytes[1] < 4; }

bool FletcherHolds(Bytes frame) {
  std::uint8_t a = 0;
  std::uint8_t b = 0;
  for (const std::uint8_t byte : frame.subspan(2, frame.size() - 4)) {
    a = static_cast<std::uint8_t>(a + byte);
    b = static_cast<std::uint8_t>(b + a);
  }
  return frame[frame.size() - 2] == a && frame[frame.size() - 1] == b;
}

constexpr std::array<std::uint32_t, 256> CrcTable = [] {
  constexpr std::uint32_t Polynomial = 0x1864CFB;
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < table.size(); ++i) {
    std::uint32_t crc = i << 16;
    for (int bit = 0; bit < 8; ++bit) {
      crc <<= 1;
      if ((crc & 0x1000000) != 0) crc ^= Polynomial;
    }
    table[i] = crc;
  }
  return table;
}();

// Over a frame with its CRC it is 0.
bool CrcHolds(Bytes frame) {
  std::uint32_t crc = 0;
  for (const std::uint8_t byte : frame) crc = (crc << 8 & 0xFFFFFF) ^ CrcTable[crc >> 16 ^ byte];
  return crc == 0;
}

}  // namespace

std::size_t BinaryLength(Bytes bytes) {
  if (bytes.size() < UbxHead) return 0;
  if (IsUbx(bytes)) return UbxAround + (bytes[4] | std::size_t{bytes[5]} << 8);
  if (IsRtcm(bytes)) return RtcmAround + (std::size_t{bytes[1]} << 8 | bytes[2]);
  return 0;
}

bool ChecksumHolds(Bytes frame) {
  if (frame.size() < RtcmAround || frame.size() != BinaryLength(frame)) return false;
  return IsUbx(frame) ? FletcherHolds(frame) : CrcHolds(frame);
}

std::string MessageOf(Bytes bytes) {
  std::array<char, 24> text{};
  if (IsUbx(bytes) && bytes.size() >= 4) {
    std::snprintf(text.data(), text.size(), "%02X-%02X", bytes[2], bytes[3]);
  } else if (IsRtcm(bytes) && bytes.size() >= 5) {
    std::snprintf(text.data(), text.size(), "%u", bytes[3] << 4 | bytes[4] >> 4);
  } else if (!bytes.empty() && (bytes[0] == '$' || bytes[0] == '!' || bytes[0] == '#')) {
    for (std::size_t i = 1; i < std::min<std::size_t>(bytes.size(), 16); ++i) {
      const bool isAddress = (bytes[i] >= 'A' && bytes[i] <= 'Z') ||
                             (bytes[i] >= 'a' && bytes[i] <= 'z') ||
                             (bytes[i] >= '0' && bytes[i] <= '9');
      if (!isAddress) break;
      text[i - 1] = static_cast<char>(bytes[i]);
    }
  }
  return text.data();
}

std::optional<Translated> TryWithoutCr(Bytes bytes, std::vector<std::uint8_t>& scratch) {
  Translated found;
  scratch.clear();
  std::size_t wanted = UbxHead;
  std::size_t at = 0;
  while (scratch.size() < wanted) {
    if (at == bytes.size()) return std::nullopt;
    const bool isAdded = bytes[at] == Cr && at + 1 < bytes.size() && bytes[at + 1] == Lf;
    if (isAdded) {
      ++found.added;
    } else {
      scratch.push_back(bytes[at]);
    }
    ++at;
    if (scratch.size() == 2 && !IsUbx(scratch) && !IsRtcm(scratch)) return std::nullopt;
    if (scratch.size() == UbxHead && wanted == UbxHead) wanted = BinaryLength(scratch);
  }
  found.length = at;
  const bool holds = found.added != 0 && scratch.size() == wanted && ChecksumHolds(scratch);
  return holds ? std::optional(found) : std::nullopt;
}

bool HoldsWithCr(Bytes cut, std::vector<std::uint8_t>& scratch) {
  std::size_t tries = 0;
  for (std::size_t at = UbxHead; at < cut.size() && tries < MostTries; ++at) {
    if (cut[at] != Lf || cut[at - 1] == Cr) continue;
    ++tries;
    scratch.assign(cut.begin(), cut.end());
    scratch.insert(scratch.begin() + static_cast<std::ptrdiff_t>(at), Cr);
    if (ChecksumHolds(scratch)) return true;
  }
  return false;
}

}  // namespace navframe::analysis
