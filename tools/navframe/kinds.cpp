#include "kinds.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "describe_rtcm.h"
#include "describe_ubx.h"
#include "navframe/records.h"
#include "printable.h"

namespace navframe::tool {
namespace {

// A readable form of records that the library does not render.
using Describe = void (*)(const void* payload, std::string& out);

struct KindRow {
  std::uint32_t id;
  std::string_view name;
  Describe describe = nullptr;  // null: rendered by the library
  bool isList = false;          // rendered as several lines, which hold no text of the input
};

template <class Record, void (*DescribeRecord)(const Record&, std::string&)>
constexpr KindRow Described(std::uint32_t id, std::string_view name) {
  return {id, name, [](const void* payload, std::string& out) {
            DescribeRecord(*static_cast<const Record*>(payload), out);
          }};
}

constexpr KindRow Kinds[] = {
    {MsgIdGga, "GGA"},
    {MsgIdRmc, "RMC"},
    {MsgIdGsa, "GSA"},
    {MsgIdGsv, "GSV", nullptr, true},
    {MsgIdGll, "GLL"},
    {MsgIdGst, "GST"},
    {MsgIdGbs, "GBS"},
    {MsgIdVtg, "VTG"},
    {MsgIdZda, "ZDA"},
    {MsgIdNavPos, "NAVPOS"},
    {MsgIdNavVel, "NAVVEL"},
    {MsgIdNavTime, "NAVTIME"},
    {MsgIdNavAcc, "NAVACC"},
    {MsgIdPNavMsg, "PNAVMSG"},
    {MsgIdCwOut, "CWOUT"},
    {MsgIdGyoAcc, "GYOACC"},
    {MsgIdSnrStat, "SNRSTAT"},
    {MsgIdImuRaw, "IMURAW"},
    {MsgIdNavAtt, "NAVATT"},
    {MsgIdInsPva, "INSPVA"},
    {MsgIdImuVeh, "IMUVEH"},
    {MsgIdGyoAccV, "GYOACC-V"},
    Described<StationPositionRecord, DescribeStationPosition>(MsgIdStationPosition, "STATION"),
    Described<SystemParametersRecord, DescribeSystemParameters>(MsgIdSystemParameters, "SYSPARAM"),
    Described<MsmRecord, DescribeMsm>(MsgIdMsmGps, "MSM-GPS"),
    Described<MsmRecord, DescribeMsm>(MsgIdMsmGlonass, "MSM-GLO"),
    Described<MsmRecord, DescribeMsm>(MsgIdMsmGalileo, "MSM-GAL"),
    Described<MsmRecord, DescribeMsm>(MsgIdMsmBeiDou, "MSM-BDS"),
    Described<MsmRecord, DescribeMsm>(MsgIdMsmQzss, "MSM-QZS"),
    {MsgIdRtcmGyoAcc, "RTCM-GYOACC"},
    {MsgIdRtcmSnrStat, "RTCM-SNRSTAT"},
    {MsgIdRtcmNavAtt, "RTCM-NAVATT"},
    {MsgIdRtcmImuRaw, "RTCM-IMURAW"},
    {MsgIdRtcmInsPva, "RTCM-INSPVA"},
    Described<TimeStatusRecord, DescribeTimeStatus>(MsgIdTimeStatus, "RTCM-TIMESTATUS"),
    Described<Sub249Record, DescribeSub249>(MsgIdSub249, "RTCM-SUB249"),
    {MsgIdClockOrbit, "RTCM-CLOCKORBIT"},
    {MsgIdSystemCounts, "RTCM-COUNTS", nullptr, true},
    {MsgIdSignalObservations, "RTCM-SIGNALS", nullptr, true},
    {MsgIdIntegerSet, "RTCM-INTEGERS"},
    Described<Sub17Record, DescribeSub17>(MsgIdSub17, "RTCM-SUB17"),
    Described<Sub33Record, DescribeSub33>(MsgIdSub33, "RTCM-SUB33"),
    Described<Sub34Record, DescribeSub34>(MsgIdSub34, "RTCM-SUB34"),
    Described<Sub21Record, DescribeSub21>(MsgIdSub21, "RTCM-SUB21"),
    Described<Binary55AaRecord, DescribeBinary55Aa>(MsgIdBinary55Aa, "55AA"),
    Described<UbxProtectionLevelsRecord, DescribeUbxProtectionLevels>(MsgIdUbxProtectionLevels,
                                                                      "UBX-PL"),
    Described<UbxNavigationRecord, DescribeUbxNavigation>(MsgIdUbxNavigation, "UBX-PVT"),
    Described<UbxSatellitesRecord, DescribeUbxSatellites>(MsgIdUbxSatellites, "UBX-SAT"),
    Described<UbxRawMeasurementsRecord, DescribeUbxRawMeasurements>(MsgIdUbxRawMeasurements,
                                                                    "UBX-RAW"),
    Described<UbxAttitudeRecord, DescribeUbxAttitude>(MsgIdUbxAttitude, "UBX-ATT"),
    Described<DiagnosticRecord, DescribeDiagnostic>(MsgIdDiagnostic, "DIAGNOSTIC"),
};

const KindRow* FindKind(std::uint32_t id) {
  const auto* const found =
      std::find_if(std::begin(Kinds), std::end(Kinds), [id](auto& row) { return row.id == id; });
  return found == std::end(Kinds) ? nullptr : found;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::toupper(x) == std::toupper(y);
  });
}

void AppendPrefixed(std::string_view name, std::string_view lines, std::string& out) {
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    out.append(name).append(",").append(lines.substr(0, end)).append("\n");
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
}

}  // namespace

std::string KindName(std::uint32_t id) {
  const KindRow* const kind = FindKind(id);
  return kind == nullptr ? "MSG" + std::to_string(id) : std::string(kind->name);
}

std::optional<std::uint32_t> KindId(std::string_view text) {
  for (const KindRow& row : Kinds) {
    if (EqualIgnoringCase(text, row.name)) return row.id;
  }
  std::uint32_t id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return id;
}

void RecordPrinter::Append(const GnssMessage& message, std::string& out) {
  const KindRow* const kind = FindKind(message.id);
  const std::string_view name = kind == nullptr ? std::string_view("MSG") : kind->name;
  if (kind != nullptr && kind->describe != nullptr) {
    std::string lines;
    kind->describe(message.data, lines);
    AppendPrefixed(name, lines, out);
  } else if (structDataToStr(&message, rendered_.data(), 1) == 0) {
    const std::string_view text = rendered_.data();
    std::string line;
    if (kind == nullptr || !kind->isList) AppendPrintable(text, line);
    AppendPrefixed(name, line.empty() ? text : line, out);
  } else {
    AppendPrefixed(name, std::to_string(message.id), out);
  }
}

}  // namespace navframe::tool
