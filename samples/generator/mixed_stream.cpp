#include "generator/mixed_stream.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "generator/nmea_stream.h"
#include "generator/rtcm_stream.h"
#include "generator/text.h"
#include "generator/ubx_stream.h"

namespace navframe::sample {
namespace {

// The drive's epoch with the first few satellites of each system.
Epoch Thinned(Epoch epoch) {
  constexpr int Most = 4;
  std::array<int, 8> seen{};
  std::erase_if(epoch.satellites, [&](const Satellite& satellite) {
    return ++seen[static_cast<std::size_t>(satellite.system)] > Most;
  });
  return epoch;
}

void Append(Bytes& to, std::string_view text) { to.insert(to.end(), text.begin(), text.end()); }

Bytes WithWrongChecksum(Bytes frame) {
  frame.back() ^= 0xFF;
  return frame;
}

// One of each sentence that NmeaEpoch has not; the place for a new one.
std::string FurtherSentences(const Epoch& epoch) {
  const std::string time = TimeField(epoch);
  const std::string date = Format("%02d0326", epoch.day);
  const std::string sensors = Format("0.0120%d,-0.034000,0.001000,0.050000,0.060000,9.81000%d",
                                     epoch.second % 10, epoch.second % 10);
  const std::string solution = "0,16,61,3,FIXED";
  std::string text;
  text += Sentence("PNAVMSG,1,2,0A,1B,2C,3D,4E,5F,60,71,82,93,A4,B5,C6,D7,E8");
  text += Sentence("CWOUT,1,1575,-60,1602,-61,1561,-62,1207,-63");
  text += Sentence("GYOACC," + time + "," + sensors);
  text += Sentence("GYOACC-V," + time + "," + sensors);
  text += Sentence("SNRSTAT,12,1,-3,2,5");
  text += Sentence("IMURAW," + time + ",GYRO,ACC," + sensors);
  text += Sentence("IMUVEH," + time + ",GYRO,ACC," + sensors);
  text += Sentence("NAVATT," + time + Format(",1.25,-0.5,%.3f,0.05,0.05,0.12", epoch.course));
  text += Sentence("INSPVA," + date + "," + time +
                   Format(",%.8f,%.8f,%.2f,", epoch.latitude, epoch.longitude, epoch.altitude) +
                   Format("5.942,%.3f,-0.012,1.25,-0.5,%.3f", epoch.speed, epoch.course));
  text +=
      Sentence("NAVPOS," + solution + ",1,12,4278751.002,643182.115,4670015.340,0.010,0.012,0.015");
  text += Sentence("NAVVEL," + solution + Format(",26,12,5.942,%.3f,-0.012,0.050", epoch.speed));
  text += Sentence("NAVTIME,0,1,0.000000001,0,1,-0.25,0,0,18,1,1,0.125");
  text += Sentence("NAVACC," + time + ",A,12,34,56");
  return text;
}

// Those of which streams alone make records, and what the exports' records have no room for.
std::string StandardSentences(const Epoch& epoch) {
  const std::string time = TimeField(epoch);
  const std::string position = "4722.5840,N,00832.8560,E";
  std::string text;
  text += Sentence("GPRMC," + time + ",A," + position + Format(",11.5,84.2,%02d0326", epoch.day));
  text += Sentence("GNGNS," + time + "," + position + ",RRANNN,17,0.7,431.2034,48.0412,1.5,0120,S");
  text += Sentence("GPTHS,84.21,A");
  text += Sentence("HEHDT,84.21,T");
  text += Sentence("TIROT,-35.6,A");
  text += Sentence("GNTXT,01,01,02,ANTSTATUS=OK^2C 21^B0C");
  text += Sentence("GPDTM,999,CH,0.08,S,0.07,E,-47.7,W84");
  text += Sentence("GNGRS," + time + ",1,0.5,-0.25,1.75,,,,,,,,,,1,8");
  text += Sentence("GNGFA," + time + ",3.2,4.8,0.61,0.42,31.5,1.1,5.0,SVV");
  text += Sentence("GNGBS," + time + ",0.5,0.5,1.1,03,0.0125,-2.5,0.75,4,5");
  text += Sentence("GNGSA,A,3,301,303,,,,,,,,,,,1.05,0.64,0.83,3");
  text += Sentence("GAGSV,1,1,02,301,63,111,44.25,303,12,301,37.5,7");
  text += Sentence("GPZDA," + time + Format(",%02d,03,2026,-05,-30", epoch.day));
  return text;
}

}  // namespace

Bytes MixedStream() {
  Drive drive;
  Bytes bytes;
  for (const Msm msm : {Msm::Msm7, Msm::Msm4, Msm::Msm5, Msm::Msm6}) {
    const Epoch whole = drive.Next();
    const Epoch epoch = Thinned(whole);
    Append(bytes, "\\s:rcv1\\" + NmeaEpoch(epoch));
    Append(bytes, UbxNavigation(epoch));
    Append(bytes, "\xB5 \x55\x01 \xD3\x01 garbage, $GNGGA,1200");
    Append(bytes, RtcmEpoch(epoch, msm));
    if (msm == Msm::Msm4) {
      Append(bytes, UbxSatellites(whole));
      Append(bytes, UbxRawMeasurements(whole));
      Append(bytes, UbxFurther(epoch));
      Append(bytes, WithWrongChecksum(UbxAttitude(epoch)));
    }
    if (msm == Msm::Msm5) Append(bytes, FurtherSentences(epoch) + StandardSentences(epoch));
    if (msm == Msm::Msm6) Append(bytes, RtcmFurther(epoch));
    Append(bytes, Binary55Aa(epoch));
  }
  return bytes;
}

}  // namespace navframe::sample
