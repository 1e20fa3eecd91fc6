#include "nmea/field.h"

namespace navframe::nmea {
namespace {

// Two characters of a time text, which must reach behind `position`.
int TimePart(std::string_view field, std::size_t position) {
  if (position >= field.size()) ThrowInvalidPosition();
  return ToInt(field.substr(position, 2));
}

double Angle(std::string_view field, std::size_t degreeDigits, bool positive) {
  const int degrees = ToInt(field.substr(0, degreeDigits));
  const double minutes = ToDouble(Piece(field, degreeDigits));
  const double value = minutes / 60.0 + degrees;
  return positive ? value : -value;
}

}  // namespace

void ReadTimeOfDay(std::string_view field, UTCTIME& utc) {
  constexpr std::size_t FractionPosition = 7;
  constexpr std::size_t LengthWithHundredths = 9;
  if (field.empty()) return;
  utc.hour = static_cast<std::uint8_t>(TimePart(field, 0));
  utc.minute = static_cast<std::uint8_t>(TimePart(field, 2));
  utc.second = static_cast<std::uint8_t>(TimePart(field, 4));
  const int fraction = ToInt(Piece(field, FractionPosition));
  const unsigned unit = field.size() == LengthWithHundredths ? 10 : 1;
  utc.millisecond = static_cast<std::uint16_t>(static_cast<unsigned>(fraction) * unit);
  utc.flag = 1;
}

void ReadDate(std::string_view field, UTCTIME& utc) {
  if (field.empty()) return;
  utc.day = static_cast<std::uint8_t>(ToInt(Piece(field, 0, 2)));
  utc.month = static_cast<std::uint8_t>(ToInt(Piece(field, 2, 2)));
  utc.year = static_cast<std::uint16_t>(ToInt(Piece(field, 4, 2)) + 2000);
}

void ReadLatitude(std::string_view field, std::string_view hemisphere, double& degrees) {
  if (!field.empty()) degrees = Angle(field, 2, hemisphere == "N");
}

void ReadLongitude(std::string_view field, std::string_view hemisphere, double& degrees) {
  if (!field.empty()) degrees = Angle(field, 3, hemisphere == "E");
}

}  // namespace navframe::nmea
