#include "render/render.h"

#include <array>

#include "render/nmea_text.h"
#include "render/proprietary_text.h"
#include "render/rtcm_text.h"
#include "render/text_writer.h"

namespace navframe {
namespace {

using Formatter = void (*)(const void* payload, bool leadingFields, TextWriter& writer);

struct FormatterRow {
  std::uint32_t id;
  Formatter formatter;
};

// Adapts a formatter of one record type.
template <class Record, void (*Format)(const Record&, TextWriter&)>
constexpr FormatterRow Row(std::uint32_t id) {
  return {id, [](const void* payload, bool /*leadingFields*/, TextWriter& writer) {
            Format(*static_cast<const Record*>(payload), writer);
          }};
}

template <class Record, void (*Format)(const Record&, bool, TextWriter&)>
constexpr FormatterRow RowWithFlag(std::uint32_t id) {
  return {id, [](const void* payload, bool leadingFields, TextWriter& writer) {
            Format(*static_cast<const Record*>(payload), leadingFields, writer);
          }};
}

// clang-format off
constexpr FormatterRow Rows[] = {
    Row<GgaRecord, FormatGga>(1),          Row<GgaRecord, FormatGga>(21),
    Row<RmcRecord, FormatRmc>(2),          Row<RmcRecord, FormatRmc>(22),
    Row<GsaRecord, FormatGsa>(3),          Row<GsaRecord, FormatGsa>(23),
    Row<GsvRecord, FormatGsv>(4),          Row<GsvRecord, FormatGsv>(24),
    Row<GllRecord, FormatGll>(5),          Row<GllRecord, FormatGll>(25),
    Row<GstRecord, FormatGst>(6),          Row<GstRecord, FormatGst>(26),
    Row<GbsRecord, FormatGbs>(7),          Row<GbsRecord, FormatGbs>(27),
    Row<VtgRecord, FormatVtg>(8),          Row<VtgRecord, FormatVtg>(28),
    Row<ZdaRecord, FormatZda>(9),          Row<ZdaRecord, FormatZda>(29),
    Row<NavPosRecord, FormatNavPos>(30),   Row<NavVelRecord, FormatNavVel>(31),
    Row<NavTimeRecord, FormatNavTime>(32), Row<NavAccRecord, FormatNavAcc>(33),
    Row<PNavMsgRecord, FormatPNavMsg>(35), Row<CwOutRecord, FormatCwOut>(36),
    Row<GyoAccRecord, FormatGyoAcc>(41),   Row<GyoAccRecord, FormatGyoAcc>(50),
    Row<GyoAccRecord, FormatGyoAcc>(71),
    Row<SnrStatRecord, FormatSnrStat>(42),
    Row<ImuRecord, FormatImu>(43),         Row<ImuRecord, FormatImu>(74),
    Row<NavAttRecord, FormatNavAtt>(44),   Row<NavAttRecord, FormatNavAtt>(73),
    Row<InsPvaRecord, FormatInsPva>(45),   Row<InsPvaRecord, FormatInsPva>(75),
    Row<ImuRecord, FormatImu>(46),         Row<ImuRecord, FormatImu>(76),
    Row<RtcmSnrStatRecord, FormatRtcmSnrStat>(72),
    RowWithFlag<ClockOrbitRecord, FormatClockOrbit>(79),
    Row<SystemCountsRecord, FormatSystemCounts>(80),
    RowWithFlag<SignalObservationsRecord, FormatSignalObservations>(81),
    Row<IntegerSetRecord, FormatIntegerSet>(82),
};
// clang-format on

constexpr std::uint32_t LastRendered = 82;

constexpr auto Formatters = [] {
  std::array<Formatter, LastRendered + 1> formatters{};
  for (const FormatterRow& row : Rows) formatters[row.id] = row.formatter;
  return formatters;
}();

}  // namespace

bool RenderRecord(const GnssMessage& record, char* out, bool leadingFields) {
  out[0] = '\0';
  if (record.id > LastRendered || Formatters[record.id] == nullptr || record.data == nullptr) {
    return false;
  }
  TextWriter writer(out);
  Formatters[record.id](record.data, leadingFields, writer);
  writer.Terminate();
  return true;
}

}  // namespace navframe
