// Records before they are decoded: every member has the value that its row says.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <new>

#include "base/unknown.h"
#include "catalogue/layouts.h"

namespace navframe::catalogue {

constexpr void PutLe(std::uint64_t value, std::uint32_t size, std::uint8_t* at) {
  for (std::uint32_t i = 0; i < size; ++i) {
    const std::uint32_t byte = std::endian::native == std::endian::little ? i : size - 1 - i;
    at[i] = static_cast<std::uint8_t>(value >> (8 * byte));
  }
}

constexpr std::uint64_t PresetBits(const MemberRow& member) {
  const std::int64_t value = member.hasPreset ? member.preset : member.unknown;
  if (member.unknownRule == NavframeUnknownNan && !member.hasPreset) {
    return member.type == NavframeF64 ? std::bit_cast<std::uint64_t>(Unknown<double>())
                                      : std::bit_cast<std::uint32_t>(Unknown<float>());
  }
  if (member.type == NavframeF64) {
    return std::bit_cast<std::uint64_t>(static_cast<double>(value));
  }
  if (member.type == NavframeF32) {
    return std::bit_cast<std::uint32_t>(static_cast<float>(value));
  }
  return static_cast<std::uint64_t>(value);
}

// `bytes` are 0 before; texts, reserved members and padding stay so.
constexpr void PutUnknown(const MemberRow& row, std::uint8_t* bytes) {
  const std::uint32_t length = row.length == 0 ? 1 : row.length;
  for (std::uint32_t i = 0; i < length; ++i) {
    std::uint8_t* const at = bytes + row.offset + std::size_t{i} * row.size;
    if (row.type == NavframeNested) {
      for (const NavframeMember* const member : MembersOf(*row.record)) {
        PutUnknown(static_cast<const MemberRow&>(*member), at);
      }
    } else if (row.type < NavframeText) {
      PutLe(PresetBits(row), row.size, at);
    }
  }
}

template <class Record>
inline constexpr auto UnknownBytes = [] {
  std::array<std::uint8_t, sizeof(Record)> bytes{};
  for (const MemberRow& row : RowsOf<Record>::Rows) PutUnknown(row, bytes.data());
  return bytes;
}();

// Writes every byte of the record, those between its members too.
template <class Record>
void MakeUnknown(Record& record) {
  std::memcpy(static_cast<void*>(&record), UnknownBytes<Record>.data(), sizeof(Record));
  if constexpr (requires { record.text.c_str(); }) new (&record.text) RecordText();
}

// Writes the unknown values of a record from `offset` on, as far as other ones stand there: up to
// `written`, which becomes `offset`.
template <class Record>
void MakeUnknownFrom(std::size_t offset, std::uint32_t& written, Record& record) {
  if (offset < written) {
    std::memcpy(reinterpret_cast<std::uint8_t*>(&record) + offset,
                UnknownBytes<Record>.data() + offset, written - offset);
  }
  written = static_cast<std::uint32_t>(offset);
}

}  // namespace navframe::catalogue
