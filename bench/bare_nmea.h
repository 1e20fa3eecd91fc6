// The loop by hand for NMEA: RMC, VTG, GGA, GSA, GSV, GLL, GST, GBS and ZDA.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "bare_loops.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace navframe::bench {

// A sentence whose checksum is right.
struct BareSentence {
  static constexpr std::size_t Longest = 252;

  const std::uint8_t* text;
  std::size_t length;  // up to the "*"
  std::size_t fields;
  std::array<std::uint8_t, 4 * 64 + 1> ends;  // where field i ends; as many as bytes are swept

  const std::uint8_t* At(std::size_t field) const {
    return text + (field == 0 ? 0 : ends[field - 1] + 1);
  }
  std::size_t LengthOf(std::size_t field) const {
    return field == 0 ? ends[0] : std::size_t{ends[field]} - ends[field - 1] - 1;
  }
};

// The bits of 64 bytes that stars, commas and "$" stand at, and what the bytes add to the checksum.
class BareBlock {
 public:
#if defined(__SSE2__)
  explicit BareBlock(const std::uint8_t* bytes) {
    for (std::size_t i = 0; i < 4; ++i) {
      parts_[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + 16 * i));
    }
  }
  std::uint64_t EqualTo(char byte) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      const __m128i hits = _mm_cmpeq_epi8(parts_[i], _mm_set1_epi8(byte));
      bits |= std::uint64_t{static_cast<std::uint32_t>(_mm_movemask_epi8(hits))} << (16 * i);
    }
    return bits;
  }
  std::uint8_t XorOfFirst(std::size_t count) const {
    __m128i sum = _mm_setzero_si128();
    for (std::size_t i = 0; i < 4; ++i) {
      const void* const mask = Ones.data() + 64 - count + 16 * i;
      sum = _mm_xor_si128(
          sum, _mm_and_si128(parts_[i], _mm_loadu_si128(static_cast<const __m128i*>(mask))));
    }
    auto folded = static_cast<std::uint64_t>(
        _mm_cvtsi128_si64(_mm_xor_si128(sum, _mm_unpackhi_epi64(sum, sum))));
    for (const int shift : {32, 16, 8}) folded ^= folded >> shift;
    return static_cast<std::uint8_t>(folded);
  }

 private:
  static constexpr auto Ones = [] {
    std::array<std::uint8_t, 128> bytes{};
    for (std::size_t i = 0; i < 64; ++i) bytes[i] = 0xFF;
    return bytes;
  }();
  __m128i parts_[4];
#else
  explicit BareBlock(const std::uint8_t* bytes) : bytes_(bytes) {}
  std::uint64_t EqualTo(char byte) const {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 64; ++i) {
      bits |= std::uint64_t{bytes_[i] == static_cast<std::uint8_t>(byte)} << i;
    }
    return bits;
  }
  std::uint8_t XorOfFirst(std::size_t count) const {
    std::uint8_t sum = 0;
    for (std::size_t i = 0; i < count; ++i) sum ^= bytes_[i];
    return sum;
  }

 private:
  const std::uint8_t* bytes_;
#endif
};

// Numbers of digits by one load; a text that is none makes `bad` true.
class BareNumbers {
 public:
  // Up to eight characters of digits, at most as many as there are.
  std::uint64_t Digits(const std::uint8_t* at, std::size_t count) {
    if (count == 0) return 0;
    std::uint64_t digits = LoadLe<std::uint64_t>(at);
    digits = (digits ^ 0x3030'3030'3030'3030U) << (64 - 8 * count);
    bad |= (((digits + 0x7676'7676'7676'7676U) | digits) & 0x8080'8080'8080'8080U) != 0;
    digits = digits * 10 + (digits >> 8);
    const std::uint64_t even = (digits & 0xFF'0000'00FF) * (100 + (1'000'000ULL << 32));
    const std::uint64_t odd = (digits >> 16 & 0xFF'0000'00FF) * (1 + (10'000ULL << 32));
    return (even + odd) >> 32;
  }
  std::uint32_t Integer(const std::uint8_t* at, std::size_t count) {
    if (count <= 2) {  // what most integers are
      const auto first = static_cast<unsigned>(at[0] - '0');
      const auto second = static_cast<unsigned>(at[1] - '0');
      bad |= first > 9 || (count == 2 && second > 9);
      return count == 2 ? 10 * first + second : first;
    }
    bad |= count > 8;
    return static_cast<std::uint32_t>(Digits(at, count <= 8 ? count : 0));
  }
  // A number with up to eight digits before its point and as many behind.
  struct Decimal {
    std::uint64_t digits;
    std::size_t decimals;
    bool negative;
  };
  Decimal Read(const std::uint8_t* at, std::size_t count) {
    const bool negative = *at == '-';
    at += negative ? 1 : 0;
    count -= negative ? 1 : 0;
    const std::uint64_t points = LoadLe<std::uint64_t>(at) ^ 0x2E2E'2E2E'2E2E'2E2EU;
    const std::uint64_t zero = (points - 0x0101'0101'0101'0101U) & ~points & 0x8080'8080'8080'8080U;
    std::size_t whole = static_cast<std::size_t>(std::countr_zero(zero)) / 8;
    if (whole >= count) whole = count;
    const std::size_t decimals = whole == count ? 0 : count - whole - 1;
    if (whole > 8 || decimals > 8 || whole + decimals == 0 || whole + decimals > 15) {
      bad = true;
      return {};
    }
    const std::uint64_t digits = Digits(at, whole) * IntegerPowers[decimals];
    return {digits + Digits(at + whole + 1, decimals), decimals, negative};
  }
  double Double(const std::uint8_t* at, std::size_t count) {
    const Decimal decimal = Read(at, count);
    const double value = static_cast<double>(decimal.digits) / Powers[decimal.decimals];
    return decimal.negative ? -value : value;
  }
  // Exact as long as the digits are ones that a float has.
  float Float(const std::uint8_t* at, std::size_t count) {
    const Decimal decimal = Read(at, count);
    bad |= decimal.digits > 1U << 24;
    const float value =
        static_cast<float>(decimal.digits) / static_cast<float>(Powers[decimal.decimals]);
    return decimal.negative ? -value : value;
  }

  bool bad = false;

 private:
  static constexpr std::array<double, 9> Powers = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};
  static constexpr std::array<std::uint64_t, 9> IntegerPowers = {
      1, 10, 100, 1000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000};
};

// The fields of a sentence; an empty one leaves its member alone.
class BareFields {
 public:
  explicit BareFields(const BareSentence& sentence) : sentence_(sentence) {}

  bool Bad() const { return numbers_.bad; }
  std::size_t Count() const { return sentence_.fields; }
  bool Empty(std::size_t i) const { return Length(i) == 0; }
  bool Is(std::size_t i, char letter) const { return Length(i) == 1 && First(i) == letter; }

  template <class Member>
  void Int(std::size_t i, Member& member) {
    if (i < Count() && !Empty(i)) {
      member = static_cast<Member>(numbers_.Integer(sentence_.At(i), Length(i)));
    }
  }
  void Float(std::size_t i, float& member) {
    if (!Empty(i)) member = numbers_.Float(sentence_.At(i), Length(i));
  }
  void DoubleAsFloat(std::size_t i, float& member) {
    if (!Empty(i)) member = static_cast<float>(numbers_.Double(sentence_.At(i), Length(i)));
  }
  template <std::size_t Width>
  void Text(std::size_t i, char (&member)[Width]) const {
    std::memset(member, 0, Width);
    std::memcpy(member, sentence_.At(i), std::min(Length(i), Width - 1));
  }
  // hhmmss.ss
  void TimeOfDay(std::size_t i, UTCTIME& utc) {
    if (Empty(i)) return;
    const std::uint8_t* const at = sentence_.At(i);
    const std::size_t length = Length(i);
    if (length < 8 || at[6] != '.') return Spoil();
    utc.hour = Two(at);
    utc.minute = Two(at + 2);
    utc.second = Two(at + 4);
    const std::uint32_t fraction = numbers_.Integer(at + 7, length - 7);
    utc.millisecond = static_cast<std::uint16_t>(length == 9 ? fraction * 10 : fraction);
    utc.flag = 1;
  }
  // ddmmyy
  void Date(std::size_t i, UTCTIME& utc) {
    if (Empty(i)) return;
    if (Length(i) != 6) return Spoil();
    const std::uint8_t* const at = sentence_.At(i);
    utc.day = Two(at);
    utc.month = Two(at + 2);
    utc.year = static_cast<std::uint16_t>(2000 + Two(at + 4));
  }
  // (d)ddmm.mmm with the hemisphere behind it.
  void Angle(std::size_t i, std::size_t degreeDigits, char positive, double& member) {
    if (Empty(i)) return;
    if (Length(i) <= degreeDigits) return Spoil();
    const std::uint8_t* const at = sentence_.At(i);
    const std::uint32_t whole = numbers_.Integer(at, degreeDigits);
    const double minutes = numbers_.Double(at + degreeDigits, Length(i) - degreeDigits);
    const double degrees = minutes / 60.0 + whole;
    member = Is(i + 1, positive) ? degrees : -degrees;
  }
  void Mode(std::size_t i, std::uint8_t& mode) const {
    constexpr std::string_view Letters = "NADPRFEMS";  // in the order of their numbers
    if (i >= Count() || Length(i) != 1) return;
    const std::size_t place = Letters.find(First(i));
    if (place != Letters.npos) mode = static_cast<std::uint8_t>(place);
  }

 private:
  std::size_t Length(std::size_t i) const { return sentence_.LengthOf(i); }
  char First(std::size_t i) const { return static_cast<char>(*sentence_.At(i)); }
  std::uint8_t Two(const std::uint8_t* at) {
    return static_cast<std::uint8_t>(numbers_.Integer(at, 2));
  }
  void Spoil() { numbers_.bad = true; }

  const BareSentence& sentence_;
  BareNumbers numbers_;
};

// The satellites of a cycle of GSV, in the record itself. What they are found by stands in a table
// for each system; numbers above its end are not kept.
class BareSatellites {
 public:
  BareSatellites() { Reset(); }

  SatelliteInView* Of(std::uint32_t system, std::uint32_t number) {
    if (system >= Systems || number >= Numbers) return nullptr;
    std::uint8_t& place = places_[system][number];
    if (place != 0) return &record.satellites[place - 1];
    if (record.satelliteCount == std::size(record.satellites)) return nullptr;
    SatelliteInView& satellite = record.satellites[record.satelliteCount];
    MakeUnknown(satellite);
    satellite.number = static_cast<std::uint8_t>(number);
    satellite.systemId = static_cast<std::uint8_t>(system);
    satellite.used = 0;
    satellite.signalCount = 0;
    place = ++record.satelliteCount;
    return &satellite;
  }
  void Reset() {
    std::memset(places_, 0, sizeof places_);
    record.tag = 0;
    record.cycleComplete = 1;
    record.satelliteCount = 0;
  }

  GsvRecord record;

 private:
  static constexpr std::size_t Systems = 7;
  static constexpr std::size_t Numbers = 255;
  std::uint8_t places_[Systems][Numbers];
};

class BareNmea {
 public:
  template <class Take>
  void Decode(std::span<const std::uint8_t> bytes, Take&& take) {
    const std::uint8_t* at = bytes.data();
    const std::uint8_t* const end = at + bytes.size();
    BareSentence sentence;
    for (;;) {
      at = NextSync(at, end, '$');
      if (end - at < 9) break;
      if (!Frame(at, sentence) || at + sentence.length + 3 > end) {
        ++at;
        continue;
      }
      DecodeSentence(sentence, take);
      at += sentence.length + 5;
    }
    FinishCycle(take);
  }

 private:
  static int HexDigit(std::uint8_t c) {
    if (c >= '0' && c <= '9') return c - '0';
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
  }

  // Finds the "*" and the commas in one sweep and compares the checksum.
  static bool Frame(const std::uint8_t* text, BareSentence& sentence) {
    std::uint8_t sum = '$';
    std::size_t commas = 0;
    for (std::size_t base = 0; base <= BareSentence::Longest; base += 64) {
      const BareBlock block(text + base);
      std::uint64_t stop = block.EqualTo('*') | block.EqualTo('$');
      if (base == 0) stop &= ~std::uint64_t{1};
      const std::uint64_t before = stop == 0 ? ~std::uint64_t{0} : (stop & (0 - stop)) - 1;
      for (std::uint64_t bits = block.EqualTo(',') & before; bits != 0; bits &= bits - 1) {
        sentence.ends[commas++] =
            static_cast<std::uint8_t>(base + static_cast<std::size_t>(std::countr_zero(bits)));
      }
      const std::size_t count = static_cast<std::size_t>(std::popcount(before));
      sum ^= block.XorOfFirst(count);
      if (stop == 0) continue;
      const std::size_t star = base + count;
      if (star > BareSentence::Longest || text[star] != '*') return false;
      if (HexDigit(text[star + 1]) * 16 + HexDigit(text[star + 2]) != sum) return false;
      sentence.ends[commas] = static_cast<std::uint8_t>(star);
      sentence.text = text;
      sentence.length = star;
      sentence.fields = commas + 1;
      return true;
    }
    return false;
  }

  static constexpr std::uint32_t Formatter(const char (&letters)[4]) {
    return static_cast<std::uint32_t>(letters[0]) | static_cast<std::uint32_t>(letters[1]) << 8 |
           static_cast<std::uint32_t>(letters[2]) << 16;
  }

  template <class Take>
  void DecodeSentence(const BareSentence& sentence, Take& take) {
    BareFields fields(sentence);
    const std::uint32_t formatter = LoadLe<std::uint32_t>(sentence.text + 3) & 0xFF'FFFF;
    if (formatter == Formatter("GSV")) {
      inCycle_ = true;
      return AddToCycle(sentence, fields);
    }
    if (inCycle_) FinishCycle(take);
    switch (formatter) {
      case Formatter("GSA"):
        return DecodeGsa(fields, sentence, take);
      case Formatter("RMC"):
        return With<RmcRecord>(MsgIdRmc, fields, take, DecodeRmc);
      case Formatter("GGA"):
        return With<GgaRecord>(MsgIdGga, fields, take, DecodeGga);
      case Formatter("VTG"):
        return With<VtgRecord>(MsgIdVtg, fields, take, DecodeVtg);
      case Formatter("GLL"):
        return With<GllRecord>(MsgIdGll, fields, take, DecodeGll);
      case Formatter("GST"):
        return With<GstRecord>(MsgIdGst, fields, take, DecodeGst);
      case Formatter("GBS"):
        return With<GbsRecord>(MsgIdGbs, fields, take, DecodeGbs);
      case Formatter("ZDA"):
        return With<ZdaRecord>(MsgIdZda, fields, take, DecodeZda);
      default:
        return;
    }
  }

  template <class Record, class Take, class Fill>
  static void With(std::uint32_t kind, BareFields& fields, Take& take, Fill&& fill) {
    Record record;
    MakeUnknown(record);
    record.tag = 0;
    fill(fields, record);
    if (!fields.Bad()) take(kind, &record);
  }

  static void DecodeRmc(BareFields& fields, RmcRecord& record) {
    fields.TimeOfDay(1, record.utc);
    fields.Text(1, record.timeText);
    record.status = fields.Is(2, 'A') ? 1 : 0;
    fields.Angle(3, 2, 'N', record.latitude);
    fields.Angle(5, 3, 'E', record.longitude);
    fields.Float(7, record.speedKnots);
    fields.Float(8, record.course);
    fields.Date(9, record.utc);
    fields.Text(9, record.dateText);
    fields.Mode(12, record.mode);
  }
  static void DecodeGga(BareFields& fields, GgaRecord& record) {
    fields.TimeOfDay(1, record.utc);
    fields.Text(1, record.timeText);
    fields.Angle(2, 2, 'N', record.latitude);
    fields.Angle(4, 3, 'E', record.longitude);
    fields.Int(6, record.fixQuality);
    fields.Int(7, record.satellites);
    fields.Float(8, record.hdop);
    fields.Float(9, record.altitude);
    fields.Float(11, record.geoidSeparation);
    fields.Float(13, record.correctionAge);
    fields.Int(14, record.stationId);
  }
  static void DecodeVtg(BareFields& fields, VtgRecord& record) {
    fields.DoubleAsFloat(1, record.courseTrue);
    fields.DoubleAsFloat(3, record.courseMagnetic);
    fields.DoubleAsFloat(5, record.speedKnots);
    fields.DoubleAsFloat(7, record.speedKmh);
    fields.Mode(9, record.mode);
  }
  static void DecodeGll(BareFields& fields, GllRecord& record) {
    fields.Angle(1, 2, 'N', record.latitude);
    fields.Angle(3, 3, 'E', record.longitude);
    fields.TimeOfDay(5, record.utc);
    record.status = fields.Is(6, 'A') ? 1 : 0;
    fields.Mode(7, record.mode);
  }
  static void DecodeGst(BareFields& fields, GstRecord& record) {
    fields.TimeOfDay(1, record.utc);
    fields.Text(1, record.timeText);
    fields.Float(2, record.rangeRms);
    fields.Float(3, record.ellipseSemiMajor);
    fields.Float(4, record.ellipseSemiMinor);
    fields.Float(5, record.ellipseOrientation);
    fields.Float(6, record.latitudeDeviation);
    fields.Float(7, record.longitudeDeviation);
    fields.Float(8, record.altitudeDeviation);
  }
  static void DecodeGbs(BareFields& fields, GbsRecord& record) {
    fields.TimeOfDay(1, record.utc);
    fields.Text(1, record.timeText);
    fields.DoubleAsFloat(2, record.latitudeError);
    fields.DoubleAsFloat(3, record.longitudeError);
    fields.DoubleAsFloat(4, record.altitudeError);
    fields.Int(5, record.failedSatellite);
    fields.DoubleAsFloat(7, record.bias);
    fields.DoubleAsFloat(8, record.biasDeviation);
    fields.Int(9, record.systemId);
    fields.Int(10, record.signalId);
  }
  static void DecodeZda(BareFields& fields, ZdaRecord& record) {
    fields.TimeOfDay(1, record.utc);
    fields.Text(1, record.timeText);
    fields.Int(2, record.utc.day);
    fields.Int(3, record.utc.month);
    fields.Int(4, record.utc.year);
    fields.Int(5, record.zoneHours);
    fields.Int(6, record.zoneMinutes);
  }

  static constexpr std::uint16_t Talker(const char (&letters)[3]) {
    return static_cast<std::uint16_t>(letters[0] | letters[1] << 8);
  }
  static std::uint32_t SystemOf(const BareSentence& sentence) {
    switch (LoadLe<std::uint16_t>(sentence.text + 1)) {
      case Talker("GP"):
        return 1;
      case Talker("GL"):
        return 2;
      case Talker("GA"):
        return 3;
      case Talker("GB"):
      case Talker("BD"):
        return 4;
      case Talker("GQ"):
        return 5;
      case Talker("GI"):
        return 6;
      default:
        return 0;
    }
  }

  template <class Take>
  void DecodeGsa(BareFields& fields, const BareSentence& sentence, Take& take) {
    constexpr std::size_t Numbers = 12;
    GsaRecord record;
    MakeUnknown(record);
    record.tag = 0;
    if (fields.Count() < 18) return;
    if (fields.Is(1, 'A')) record.selectionMode = 1;
    fields.Int(2, record.fixType);
    record.systemId = SystemOf(sentence);
    fields.Int(18, record.systemId);
    record.usedCount = 0;
    for (std::size_t i = 3; i < 3 + Numbers; ++i) {
      if (!fields.Empty(i)) fields.Int(i, record.usedSatellites[record.usedCount++]);
    }
    fields.DoubleAsFloat(15, record.pdop);
    fields.DoubleAsFloat(16, record.hdop);
    fields.DoubleAsFloat(17, record.vdop);
    if (fields.Bad()) return;
    for (std::size_t i = 0; i < record.usedCount; ++i) {
      SatelliteInView* const satellite = satellites_.Of(record.systemId, record.usedSatellites[i]);
      if (satellite != nullptr) satellite->used = 1;
    }
    take(std::uint32_t{MsgIdGsa}, &record);
  }

  void AddToCycle(const BareSentence& sentence, BareFields& fields) {
    const std::size_t count = fields.Count();
    const std::uint32_t system = SystemOf(sentence);
    std::uint8_t signalId = 0;
    if (count % 4 == 1) fields.Int(count - 1, signalId);
    for (std::size_t i = 4; i + 4 <= count - (count % 4 == 1 ? 1 : 0); i += 4) {
      std::uint32_t number = 0;
      fields.Int(i, number);
      SatelliteInView* const satellite = satellites_.Of(system, number);
      if (satellite == nullptr) continue;
      fields.Int(i + 1, satellite->elevation);
      fields.Int(i + 2, satellite->azimuth);
      if (satellite->signalCount == std::size(satellite->signals)) continue;
      SatelliteSignal& signal = satellite->signals[satellite->signalCount++];
      signal.signalId = signalId;
      signal.cn0 = 0xFF;
      fields.Int(i + 3, signal.cn0);
    }
  }
  template <class Take>
  void FinishCycle(Take& take) {
    if (!inCycle_) return;
    inCycle_ = false;
    take(std::uint32_t{MsgIdGsv}, &satellites_.record);
    satellites_.Reset();
  }

  BareSatellites satellites_;
  bool inCycle_ = false;
};

}  // namespace navframe::bench
