#include <array>
#include <functional>
#include <numeric>

#include "asciilog/crc32.h"
#include "base/crc24q.h"
#include "frame55aa/byte_sum.h"
#include "fuzz.h"
#include "navframe/stream.h"
#include "ubx/fletcher.h"

namespace navframe::fuzz {
namespace {

using Frame = std::span<std::uint8_t>;

void PutLittle(std::span<std::uint8_t> at, std::size_t value) {
  for (std::uint8_t& byte : at) {
    byte = static_cast<std::uint8_t>(value & 0xFF);
    value >>= 8;
  }
}

// Each takes what is left of the stream, whose first byte selects the protocol, and returns the
// length of the frame that it made; 1 without room for one.

// The text of `format`, for the check of what stands between the first byte and the star, behind
// the star.
template <class Check>
std::size_t SealText(Frame rest, const char* format, std::size_t digits, Check check) {
  const auto star = std::find(rest.begin(), rest.end(), '*');
  const auto length = static_cast<std::size_t>(star - rest.begin());
  if (length + 1 + digits > rest.size()) return 1;
  char trailer[16];
  std::snprintf(trailer, sizeof(trailer), format, check(rest.subspan(1, length - 1)));
  std::memcpy(rest.data() + length + 1, trailer, digits);
  return length + 1 + digits;
}

unsigned Xor(Frame text) {
  return std::accumulate(text.begin(), text.end(), 0U, std::bit_xor<unsigned>());
}

std::size_t SealSentence(Frame rest) { return SealText(rest, "%02X", 2, Xor); }
std::size_t SealLine(Frame rest) { return SealText(rest, "%08x\r\n", 10, asciilog::Crc32); }

std::size_t SealTagBlock(Frame rest) {
  constexpr std::size_t Shortest = 6;
  constexpr std::size_t Longest = 256;
  const auto end = std::find(rest.begin() + 1, rest.end(), '\\');
  const auto length = static_cast<std::size_t>(end - rest.begin()) + 1;
  if (length < Shortest || length > Longest || length > rest.size()) return 1;
  rest[length - 4] = '*';
  SealText(rest.first(length), "%02X", 2, Xor);
  return length;
}

std::size_t SealRtcm(Frame rest) {
  if (rest.size() < 6) return 1;
  const std::size_t announced = (rest[1] & 3U) << 8 | rest[2];
  const std::size_t length = std::min(announced, rest.size() - 6);
  rest[1] = static_cast<std::uint8_t>(length >> 8);
  rest[2] = static_cast<std::uint8_t>(length & 0xFF);
  const std::uint32_t crc = Crc24q::Of(rest.data(), length + 3);
  for (unsigned i = 0; i < 3; ++i) {
    rest[length + 3 + i] = static_cast<std::uint8_t>(crc >> (16 - 8 * i) & 0xFF);
  }
  return length + 6;
}

std::size_t SealUbx(Frame rest) {
  if (rest.size() < 8) return 1;
  const std::size_t announced = rest[4] | std::size_t{rest[5]} << 8;
  const std::size_t length = std::min<std::size_t>({announced, rest.size() - 8, 4048});
  rest[1] = 0x62;
  PutLittle(rest.subspan(4, 2), length);
  const ubx::FletcherSum sum = ubx::Fletcher::Of(rest.data() + 2, length + 4);
  rest[length + 6] = sum.a;
  rest[length + 7] = sum.b;
  return length + 8;
}

std::size_t Seal55Aa(Frame rest) {
  constexpr std::array<std::size_t, 8> Lengths = {8, 164, 204, 224, 264, 420, 460, 480};
  if (rest.size() < 6) return 1;
  const std::size_t announced = rest[2] | std::size_t{rest[3]} << 8;
  const bool known = std::find(Lengths.begin(), Lengths.end(), announced) != Lengths.end();
  const std::size_t length = known ? announced : Lengths[announced % Lengths.size()];
  if (length + 7 > rest.size()) return 1;
  rest[1] = 0xAA;
  PutLittle(rest.subspan(2, 4), length);
  rest[length + 6] = frame55aa::ByteSum(rest.data() + 2, length + 4);
  return length + 7;
}

struct Protocol {
  std::uint8_t sync;
  std::uint32_t mask;
  std::size_t (*seal)(Frame rest);
};
constexpr Protocol Protocols[] = {
    {'$', NavframeNmea, SealSentence}, {'\\', NavframeNmeaTagBlock, SealTagBlock},
    {0xD3, NavframeRtcm3, SealRtcm},   {0xB5, NavframeUbx, SealUbx},
    {0x55, Navframe55Aa, Seal55Aa},    {'#', NavframeAsciiLog, SealLine}};

// Of the form with a header of its own length; the other has its length elsewhere, and both are
// valid when they agree.
std::size_t SealBinaryLog(Frame rest) {
  if (rest.size() < 32) return 1;
  const bool fixed = rest[1] % 2 == 0;
  const std::size_t header = fixed ? 24 : std::min<std::size_t>(rest[3], 28);
  const std::size_t at = fixed ? 6 : 8;
  const std::size_t announced = rest[at] | std::size_t{rest[at + 1]} << 8;
  const std::size_t length = std::min(announced, rest.size() - 32);
  rest[3] = static_cast<std::uint8_t>(header);
  PutLittle(rest.subspan(at, 2), length);
  PutLittle(rest.subspan(header + length, 4), asciilog::Crc32(rest.first(header + length)));
  return header + length + 4;
}

}  // namespace

void Seal(std::span<std::uint8_t> stream, std::uint32_t mask) {
  for (std::size_t at = 0; at < stream.size();) {
    std::size_t length = 1;
    for (const Protocol& protocol : Protocols) {
      if (protocol.sync == stream[at] && (mask & protocol.mask) != 0) {
        length = protocol.seal(stream.subspan(at));
      }
    }
    at += length;
  }
}

void SealLogs(std::span<std::uint8_t> stream, bool binary) {
  for (std::size_t at = 0; at < stream.size();) {
    const bool sync = stream[at] == (binary ? 0xAA : '#');
    const auto rest = stream.subspan(at);
    at += !sync ? 1 : binary ? SealBinaryLog(rest) : SealLine(rest);
  }
}

}  // namespace navframe::fuzz
