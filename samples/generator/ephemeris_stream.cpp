#include "generator/ephemeris_stream.h"

#include <bit>
#include <utility>

#include "generator/rtcm_stream.h"
#include "generator/ubx_stream.h"

namespace navframe::sample {
namespace {

using Words = std::vector<std::uint32_t>;

BitWriter& PutNoise(BitWriter& bits, int count, Noise& noise) {
  for (; count > 0; count -= 16) bits.Put(noise.Below(1U << 16), count < 16 ? count : 16);
  return bits;
}

// The bits of a message in words of 32, the last one filled up.
Words WordsOf(const BitWriter& bits) {
  Words words;
  for (std::size_t i = 0; i < bits.Written().size(); ++i) {
    if (i % 4 == 0) words.push_back(0);
    words.back() |= std::uint32_t{bits.Written()[i]} << (24 - 8 * (i % 4));
  }
  return words;
}

struct Sender {
  int system;  // as UBX numbers them
  int satellite;
  int signal;
};

Bytes Part(const Sender& sender, const Words& words) {
  LittleEndian p;
  for (const int number : {sender.system, sender.satellite, sender.signal, 7}) {
    p.U8(static_cast<unsigned>(number));
  }
  p.U8(words.size()).U8(0).U8(2).U8(0);
  for (const std::uint32_t word : words) p.U32(word);
  return UbxFrame(0x02, 0x13, p.Written());
}

// Bits of LNAV words, from the first one on, that their parities sum up: "1" for yes.
constexpr const char* LnavParities[] = {"111011000111110011010010", "011101100011111001101001",
                                        "101110110001111100110100", "010111011000111110011010",
                                        "101011101100011111001101", "001011011110101000100111"};
// Which of them have the bit before the last of the word in front; the others have the last one,
// which receivers make 0.
constexpr bool HasBeforeLast[] = {true, false, true, false, false, true};

Words Lnav(unsigned subframe, unsigned count, unsigned issue, Noise& noise) {
  Words words;
  bool beforeLast = false;
  for (int i = 0; i < 10; ++i) {
    std::uint32_t data = noise.Below(1U << 24);
    const bool hasIssue =
        (subframe == 1 && i == 7) || (subframe == 2 && i == 2) || (subframe == 3 && i == 9);
    if (i == 0) data = 0x8B0000;
    if (i == 1) data = count << 7 | subframe << 2;
    if (hasIssue) data = (data & 0xFFFF) | issue << 16;
    std::uint32_t parity = 0;
    for (int n = 0; n < 6; ++n) {
      bool sum = HasBeforeLast[n] && beforeLast;
      for (int bit = 0; bit < 24; ++bit) {
        sum ^= LnavParities[n][bit] == '1' && (data >> (23 - bit) & 1U) != 0;
      }
      parity = parity << 1 | (sum ? 1U : 0U);
    }
    beforeLast = ((parity >> 1 ^ parity) & 1U) != 0;
    words.push_back(data << 6 | parity);
  }
  return words;
}

// 77 bits from the 85th down, then the Hamming code.
Words GlonassString(unsigned string, unsigned frame, Noise& noise) {
  BitWriter bits;
  PutNoise(bits.Put(0, 1).Put(string, 4), 72, noise);
  unsigned sum = 0;
  unsigned ones = 0;
  unsigned number = 3;
  for (int place = 76; place >= 0; --place) {
    while (std::has_single_bit(number)) ++number;
    const auto at = static_cast<std::size_t>(place);
    if ((bits.Written()[at / 8] >> (7 - at % 8) & 1U) != 0) {
      sum ^= number;
      ++ones;
    }
    ++number;
  }
  ones += static_cast<unsigned>(std::popcount(sum));
  bits.Put(ones % 2, 1).Put(sum, 7);
  Words words = WordsOf(bits);
  words.push_back(frame);
  return words;
}

// The rest of a division by the polynomial of CRC-24Q.
std::uint32_t Crc(const BitWriter& bits, int from, int count, std::uint32_t crc = 0) {
  for (int i = from; i < from + count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const std::uint32_t bit = bits.Written()[at / 8] >> (7 - at % 8) & 1U;
    crc = ((crc << 1) ^ (((crc >> 23 & 1U) ^ bit) != 0 ? 0x864CFBU : 0U)) & 0xFFFFFF;
  }
  return crc;
}

Words Inav(unsigned word, int satellite, unsigned issue, Noise& noise) {
  BitWriter bits;
  bits.Put(0, 2).Put(word, 6).Put(issue, word < 5 ? 10 : 0);
  if (word == 4) bits.Put(static_cast<unsigned>(satellite), 6);
  PutNoise(bits, 112 - 6 - (word < 5 ? 10 : 0) - (word == 4 ? 6 : 0), noise).Put(0, 14);
  PutNoise(bits.Put(0b10, 2), 80, noise);
  bits.Put(Crc(bits, 128, 82, Crc(bits, 0, 114)), 24).Put(0, 22);
  return WordsOf(bits);
}

Words Fnav(unsigned page, int satellite, unsigned issue, Noise& noise) {
  BitWriter bits;
  bits.Put(page, 6);
  if (page == 1) bits.Put(static_cast<unsigned>(satellite), 6);
  PutNoise(bits.Put(issue, 10), 198 - (page == 1 ? 6 : 0), noise);
  bits.Put(Crc(bits, 0, 214), 24).Put(0, 18);
  return WordsOf(bits);
}

// Behind 11 bits four check bits: the rest of a division by x^4 + x + 1.
std::uint32_t Bch(std::uint32_t data) {
  std::uint32_t rest = data << 4;
  for (int bit = 14; bit >= 4; --bit) {
    if ((rest >> bit & 1U) != 0) rest ^= 0b10011U << (bit - 4);
  }
  return rest;
}

// A subframe of BeiDou; of D2 the page stands behind the second of the week.
Words BeiDouSubframe(unsigned subframe, unsigned second, unsigned page, Noise& noise) {
  const std::uint32_t first = 0x712U << 15 | subframe << 8 | second >> 12;
  Words words = {first << 4 | Bch(first & 0x7FF)};
  for (int i = 1; i < 10; ++i) {
    std::uint32_t data = noise.Below(1U << 22);
    if (i == 1) data = (second & 0xFFF) << 10 | (page << 6) | (data & 0x3F);
    words.push_back(data << 8 | Bch(data >> 11) << 4 | Bch(data & 0x7FF));
  }
  return words;
}

}  // namespace

Bytes RtcmEphemerides(int satellite, Noise& noise) {
  constexpr std::pair<unsigned, int> Messages[] = {{1019, 488}, {1020, 360}, {1042, 511},
                                                   {1044, 485}, {1045, 496}, {1046, 504}};
  constexpr unsigned OfQzss = 1044;
  Bytes bytes;
  for (const auto& [number, length] : Messages) {
    const int width = number == OfQzss ? 4 : 6;
    BitWriter bits;
    bits.Put(number, 12).Put(static_cast<unsigned>(satellite), width);
    Append(bytes, RtcmFrame(PutNoise(bits, length - 12 - width, noise).Written()));
  }
  return bytes;
}

Bytes UbxSubframes(int satellite, unsigned round) {
  constexpr unsigned Minutes = 2 * 60 * 24 * 7;  // halves of them in a week
  const unsigned second = round % Minutes * 30;
  const unsigned issue = round / 16 % 256;
  Noise noise(issue * 64 + static_cast<unsigned>(satellite));
  Bytes bytes;
  const auto send = [&](const Sender& sender, const Words& words) {
    Append(bytes, Part(sender, words));
  };
  for (unsigned i = 1; i <= 5; ++i) {
    send({0, satellite, 0}, Lnav(i, second / 6 + i, issue, noise));
    send({6, satellite, 0}, GlonassString(i, round, noise));
    send({2, satellite, 5}, Inav(i, satellite, issue, noise));
    if (i < 5) send({2, satellite, 3}, Fnav(i, satellite, issue, noise));
    send({3, satellite + 5, 0}, BeiDouSubframe(i, second + 6 * i, 0, noise));
  }
  // Satellites above the equator have the first numbers and the last.
  for (unsigned page = 1; page <= 10; ++page) {
    send({3, satellite < 6 ? satellite : satellite + 53, 0},
         BeiDouSubframe(1, second + 3 * page, page, noise));
  }
  return bytes;
}

Bytes RtcmEphemerisStream(int rounds) {
  Noise noise(1);
  Bytes bytes;
  for (int i = 0; i < 8 * rounds; ++i) Append(bytes, RtcmEphemerides(i % 8 + 1, noise));
  return bytes;
}

Bytes UbxSubframeStream(int rounds) {
  Bytes bytes;
  for (int i = 0; i < 8 * rounds; ++i) {
    Append(bytes, UbxSubframes(i % 8 + 1, static_cast<unsigned>(i / 8)));
  }
  return bytes;
}

}  // namespace navframe::sample
