#include "generator/nmea_stream.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "generator/text.h"

namespace navframe::sample {
namespace {

struct Talker {
  System system;
  const char* letters;
  int signals[2];            // NMEA signal ids
  std::size_t mostOfSecond;  // satellites that send the second signal
};
constexpr Talker Talkers[] = {
    {Gps, "GP", {1, 8}, 12},
    {Glonass, "GL", {1, 3}, 99},
    {Galileo, "GA", {7, 2}, 99},
    {BeiDou, "GB", {1, 5}, 99},
};

std::string Position(const Epoch& epoch) {
  const double latitude = std::abs(epoch.latitude);
  const double longitude = std::abs(epoch.longitude);
  const int latitudeDegrees = static_cast<int>(latitude);
  const int longitudeDegrees = static_cast<int>(longitude);
  return Format("%02d%09.6f,%c,%03d%09.6f,%c", latitudeDegrees, (latitude - latitudeDegrees) * 60,
                epoch.latitude < 0 ? 'S' : 'N', longitudeDegrees,
                (longitude - longitudeDegrees) * 60, epoch.longitude < 0 ? 'W' : 'E');
}

std::vector<Satellite> Of(const Epoch& epoch, System system) {
  std::vector<Satellite> satellites;
  std::copy_if(epoch.satellites.begin(), epoch.satellites.end(), std::back_inserter(satellites),
               [&](const Satellite& satellite) { return satellite.system == system; });
  return satellites;
}

std::string Gsa(const Epoch& epoch, const Talker& talker) {
  std::string body = "GNGSA,A,3,";
  int places = 12;
  for (const Satellite& satellite : Of(epoch, talker.system)) {
    if (!satellite.used || places == 0) continue;
    body += Format("%02d,", satellite.number);
    --places;
  }
  body.append(static_cast<std::size_t>(places), ',');
  return Sentence(body + Format("1.05,0.64,0.83,%d", talker.system));
}

std::string Gsv(const Epoch& epoch, const Talker& talker, int signal) {
  auto satellites = Of(epoch, talker.system);
  if (signal == 1 && satellites.size() > talker.mostOfSecond) {
    satellites.resize(talker.mostOfSecond);
  }
  const std::size_t sentences = (satellites.size() + 3) / 4;
  std::string text;
  for (std::size_t i = 0; i < sentences; ++i) {
    std::string body =
        Format("%sGSV,%zu,%zu,%02zu", talker.letters, sentences, i + 1, satellites.size());
    for (std::size_t j = 4 * i; j < std::min(4 * i + 4, satellites.size()); ++j) {
      const Satellite& satellite = satellites[j];
      const int strength =
          static_cast<int>(24 + satellite.elevation / 4 - 3 * signal + epoch.second % 3);
      body +=
          Format(",%02d,%02.0f,%03.0f,", satellite.number, satellite.elevation, satellite.azimuth);
      if (satellite.elevation > 8) body += Format("%02d", strength);
    }
    text += Sentence(body + Format(",%d", talker.signals[signal]));
  }
  return text;
}

}  // namespace

std::string Sentence(std::string_view body) {
  unsigned checksum = 0;
  for (const char c : body) checksum ^= static_cast<unsigned char>(c);
  return "$" + std::string(body) + Format("*%02X\r\n", checksum & 0xFFU);
}

std::string NmeaEpoch(const Epoch& epoch) {
  constexpr double KnotsPerMetrePerSecond = 3600.0 / 1852;
  const std::string time = TimeField(epoch);
  const std::string position = Position(epoch);
  const double knots = epoch.speed * KnotsPerMetrePerSecond;
  const auto used =
      static_cast<int>(std::count_if(epoch.satellites.begin(), epoch.satellites.end(),
                                     [](const Satellite& satellite) { return satellite.used; }));
  std::string text;
  text += Sentence("GNRMC," + time + ",A," + position +
                   Format(",%.3f,%.2f,%02d0326,,,D,V", knots, epoch.course, epoch.day));
  text +=
      Sentence(Format("GNVTG,%.2f,T,,M,%.3f,N,%.3f,K,D", epoch.course, knots, epoch.speed * 3.6));
  text += Sentence(
      "GNGGA," + time + "," + position +
      Format(",2,%02d,0.64,%.1f,M,%.1f,M,1.0,0120", used, epoch.altitude, GeoidSeparation));
  for (const Talker& talker : Talkers) text += Gsa(epoch, talker);
  for (const Talker& talker : Talkers) text += Gsv(epoch, talker, 0) + Gsv(epoch, talker, 1);
  text += Sentence("GNGLL," + position + "," + time + ",A,D");
  text += Sentence("GNGST," + time + Format(",%d,0.61,0.42,31.5,0.48,0.46,1.1", 12 + used % 7));
  text += Sentence("GNGBS," + time + ",0.5,0.5,1.1,,,,,,");
  text += Sentence("GNZDA," + time + Format(",%02d,03,2026,00,00", epoch.day));
  return text;
}

std::string NmeaStream(int epochs) {
  Drive drive;
  std::string text;
  for (int i = 0; i < epochs; ++i) text += NmeaEpoch(drive.Next());
  return text;
}

}  // namespace navframe::sample
