#include "generator/rtcm_stream.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace navframe::sample {
namespace {

constexpr double MetresPerMs = 299'792.458;

struct SystemMessages {
  System system;
  unsigned msm1;               // message number of the system's MSM1, less 1
  std::array<int, 3> signals;  // MSM signal ids
};
constexpr SystemMessages Messages[] = {
    {Gps, 1070, {2, 16, 24}},  {Glonass, 1080, {2, 3, 8}}, {Galileo, 1090, {4, 16, 24}},
    {Qzss, 1110, {2, 16, 24}}, {BeiDou, 1120, {2, 8, 14}},
};

std::uint32_t Crc24q(const Bytes& bytes) {
  std::uint32_t crc = 0;
  for (const std::uint8_t byte : bytes) {
    crc ^= std::uint32_t{byte} << 16;
    for (int bit = 0; bit < 8; ++bit) crc = (crc << 1) ^ ((crc & 0x800000) != 0 ? 0x1864CFB : 0);
  }
  return crc & 0xFFFFFF;
}

std::uint64_t EpochField(const Epoch& epoch, System system) {
  constexpr std::uint32_t DayMs = 86'400'000;
  constexpr std::uint32_t WeekMs = 7 * DayMs;
  if (system == BeiDou) return (epoch.tow + WeekMs - 14'000) % WeekMs;
  if (system != Glonass) return epoch.tow;
  const std::uint32_t glonass = (epoch.tow + WeekMs - 18'000 + 10'800'000) % WeekMs;
  return std::uint64_t{glonass / DayMs} << 27 | glonass % DayMs;
}

// At most twelve, so that satellites times signals stay within 64 cells.
std::vector<Satellite> Seen(const Epoch& epoch, System system) {
  constexpr std::size_t Most = 12;
  std::vector<Satellite> seen;
  for (const Satellite& satellite : epoch.satellites) {
    if (satellite.system != system || seen.size() == Most) continue;
    seen.push_back(satellite);
    if (system == Glonass) seen.back().number -= 64;
  }
  for (int number = 1; system == Qzss && number <= 3; ++number) {
    seen.push_back({Qzss, number, 120, 60, 37.2e6 + 1000 * number + epoch.second, 1.5, true});
  }
  return seen;
}

// The range of a satellite in the pieces of an MSM.
struct RangePieces {
  explicit RangePieces(const Satellite& satellite) {
    const double ms = satellite.range / MetresPerMs;
    const auto parts = static_cast<std::uint64_t>(std::llround(ms * 1024));
    whole = parts / 1024;
    fraction = parts % 1024;
    rest = ms - static_cast<double>(parts) / 1024;
    rate = std::llround(satellite.rate);
  }
  std::uint64_t whole;     // ms
  std::uint64_t fraction;  // 1/1024 ms
  double rest;             // ms
  std::int64_t rate;       // metres per second
};

// Two of three cells are there; a satellite's first signal always is.
bool HasCell(std::size_t satellite, std::size_t signal) {
  return signal == 0 || (satellite + signal) % 5 != 0;
}

void PutHeader(const Epoch& epoch, const SystemMessages& messages, Msm msm, bool last,
               const std::vector<Satellite>& seen, BitWriter& bits) {
  bits.Put(messages.msm1 + static_cast<unsigned>(msm), 12).Put(120, 12);
  bits.Put(EpochField(epoch, messages.system), 30).Put(last ? 0 : 1, 1);
  bits.Put(0, 3 + 7 + 2 + 2 + 1 + 3);
  std::uint64_t satelliteMask = 0;
  std::uint64_t signalMask = 0;
  for (const Satellite& satellite : seen) {
    satelliteMask |= std::uint64_t{1} << (64 - satellite.number);
  }
  for (const int signal : messages.signals) signalMask |= std::uint64_t{1} << (32 - signal);
  bits.Put(satelliteMask, 64).Put(signalMask, 32);
  for (std::size_t i = 0; i < seen.size(); ++i) {
    for (std::size_t j = 0; j < messages.signals.size(); ++j) bits.Put(HasCell(i, j) ? 1 : 0, 1);
  }
}

// 1004 or 1012, observations of two carriers before there were MSM.
BitWriter RtkObservations(const Epoch& epoch, System system) {
  const bool glonass = system == Glonass;
  const double modulus = (glonass ? 2 : 1) * MetresPerMs;
  const auto seen = Seen(epoch, system);
  BitWriter bits;
  bits.Put(glonass ? 1012 : 1004, 12).Put(120, 12);
  bits.Put(EpochField(epoch, system) & (glonass ? 0x7FFFFFF : 0x3FFFFFFF), glonass ? 27 : 30);
  bits.Put(0, 1).Put(seen.size(), 5).Put(0, 4);
  for (const Satellite& satellite : seen) {
    const auto whole = static_cast<std::uint64_t>(satellite.range / modulus);
    const double rest = satellite.range - static_cast<double>(whole) * modulus;
    const auto strength = static_cast<std::uint64_t>(satellite.elevation / 4 + 26) * 4;
    bits.Put(static_cast<std::uint64_t>(satellite.number), 6).Put(0, 1);
    if (glonass) bits.Put(static_cast<std::uint64_t>(satellite.number) % 14, 5);
    bits.Put(static_cast<std::uint64_t>(std::llround(rest / 0.02)), glonass ? 25 : 24);
    bits.Signed(-1200, 20).Put(100, 7).Put(whole, glonass ? 7 : 8).Put(strength, 8);
    bits.Put(0, 2).Signed(150, 14).Signed(2400, 20).Put(99, 7).Put(strength - 12, 8);
  }
  return bits;
}

}  // namespace

Bytes RtcmFrame(const Bytes& payload) {
  Bytes frame = {0xD3, static_cast<std::uint8_t>(payload.size() >> 8),
                 static_cast<std::uint8_t>(payload.size())};
  Append(frame, payload);
  const std::uint32_t crc = Crc24q(frame);
  for (const int shift : {16, 8, 0}) frame.push_back(static_cast<std::uint8_t>(crc >> shift));
  return frame;
}

Bytes RtcmStation() {
  BitWriter bits;
  bits.Put(1005, 12).Put(120, 12).Put(14, 6).Put(0b1110, 4);
  bits.Signed(42'787'510'000, 38).Put(0, 2).Signed(6'431'820'000, 38).Put(0, 2);
  bits.Signed(46'700'150'000, 38);
  return RtcmFrame(bits.Written());
}

Bytes RtcmSystemParameters(const Epoch& epoch) {
  BitWriter bits;
  const auto seconds = static_cast<unsigned>(epoch.hour * 3600 + epoch.minute * 60 + epoch.second);
  bits.Put(1013, 12).Put(120, 12).Put(61'113, 16).Put(seconds, 17);
  bits.Put(std::size(Messages), 5).Put(18, 8);
  for (const SystemMessages& messages : Messages)
    bits.Put(messages.msm1 + 7, 12).Put(1, 1).Put(10, 16);
  return RtcmFrame(bits.Written());
}

Bytes RtcmObservations(const Epoch& epoch, System system, Msm msm, bool last) {
  const SystemMessages& messages = *std::find_if(std::begin(Messages), std::end(Messages),
                                                 [&](auto& row) { return row.system == system; });
  const auto seen = Seen(epoch, system);
  const bool fine = msm == Msm::Msm6 || msm == Msm::Msm7;
  const bool rates = msm == Msm::Msm5 || msm == Msm::Msm7;
  BitWriter bits;
  PutHeader(epoch, messages, msm, last, seen, bits);

  std::vector<RangePieces> pieces;
  for (const Satellite& satellite : seen) pieces.emplace_back(satellite);
  for (const RangePieces& piece : pieces) bits.Put(piece.whole, 8);
  if (rates) bits.Put(0, static_cast<int>(4 * seen.size()));
  for (const RangePieces& piece : pieces) bits.Put(piece.fraction, 10);
  if (rates) {
    for (const RangePieces& piece : pieces) bits.Signed(piece.rate, 14);
  }

  // A field of all cells before the next field.
  const auto cells = [&](auto put) {
    for (std::size_t i = 0; i < seen.size(); ++i) {
      for (std::size_t j = 0; j < messages.signals.size(); ++j) {
        if (HasCell(i, j)) put(i, static_cast<double>(j));
      }
    }
  };
  const double codeScale = fine ? 0x1p29 : 0x1p24;
  const double phaseScale = fine ? 0x1p31 : 0x1p29;
  cells([&](std::size_t i, double j) {
    bits.Signed(std::llround((pieces[i].rest + j * 1e-6) * codeScale), fine ? 20 : 15);
  });
  cells([&](std::size_t i, double j) {
    bits.Signed(std::llround((pieces[i].rest + j * 2e-6) * phaseScale), fine ? 24 : 22);
  });
  cells([&](std::size_t, double) { bits.Put(fine ? 520 : 13, fine ? 10 : 4); });
  cells([&](std::size_t, double) { bits.Put(0, 1); });
  cells([&](std::size_t i, double j) {
    const auto strength = static_cast<std::uint64_t>(26 + seen[i].elevation / 4 - j);
    bits.Put(fine ? strength * 16 : strength, fine ? 10 : 6);
  });
  if (rates)
    cells([&](std::size_t i, double j) { bits.Signed(std::llround(seen[i].rate * 7 - j), 15); });
  return RtcmFrame(bits.Written());
}

Bytes RtcmFurther(const Epoch& epoch) {
  Bytes bytes;
  const auto send = [&](const BitWriter& bits) { Append(bytes, RtcmFrame(bits.Written())); };
  const auto numbered = [](unsigned count, int width, BitWriter bits) {
    for (unsigned value = 1; value <= count; ++value) bits.Put(value, width);
    return bits;
  };
  const auto shortFamily = [](unsigned number, unsigned subType) {
    return BitWriter().Put(number, 12).Put(subType, 8);
  };
  const auto longFamily = [](unsigned subType) {
    return BitWriter().Put(4074, 12).Put(subType, 12);
  };
  const auto timed = [&](BitWriter bits) { return bits.Put(epoch.tow, 30).Put(epoch.week, 16); };
  const auto withUtc = [&](BitWriter bits) {
    bits.Put(2026, 16).Put(3, 8);
    for (const int part : {epoch.day, epoch.hour, epoch.minute, epoch.second}) {
      bits.Put(static_cast<unsigned>(part), 8);
    }
    return bits.Put(120, 16);  // milliseconds
  };

  send(numbered(27, 8, shortFamily(910, 17)));
  send(numbered(7, 4, shortFamily(910, 33)).Put(0, 8));  // filled up to the length it must have
  send(numbered(9, 8, timed(shortFamily(910, 34)).Put(4, 8).Put(2, 4)));
  send(numbered(48, 8, timed(shortFamily(999, 21))));
  send(timed(longFamily(11)));
  send(longFamily(12).Put(7, 8).Put(38, 8).Signed(-3, 8).Put(5, 8));
  send(withUtc(timed(longFamily(13))));
  send(withUtc(timed(longFamily(14))));
  send(withUtc(timed(longFamily(15))).Signed(std::llround(epoch.latitude * 0x1p32), 64));
  send(timed(longFamily(243)).Put(3, 8).Put(1, 4));
  for (const unsigned subType : {249U, 251U, 253U}) send(longFamily(subType));
  for (const unsigned subType : {254U, 255U}) send(timed(longFamily(subType)));
  for (const System system : {Gps, Glonass}) send(RtkObservations(epoch, system));
  return bytes;
}

Bytes RtcmEpoch(const Epoch& epoch, Msm msm) {
  Bytes bytes;
  for (const SystemMessages& messages : Messages) {
    const Msm kind = messages.system == Glonass ? Msm::Msm7 : msm;
    const bool last = &messages == std::end(Messages) - 1;
    Append(bytes, RtcmObservations(epoch, messages.system, kind, last));
  }
  if (epoch.second % 10 == 0) {
    Append(bytes, RtcmStation());
    Append(bytes, RtcmSystemParameters(epoch));
  }
  return bytes;
}

Bytes RtcmStream(int epochs, Msm msm) {
  Drive drive;
  Bytes bytes;
  for (int i = 0; i < epochs; ++i) Append(bytes, RtcmEpoch(drive.Next(), msm));
  return bytes;
}

}  // namespace navframe::sample
