#include "render/render.h"

#include <array>

#include "catalogue/kinds.h"
#include "render/nmea_text.h"
#include "render/proprietary_text.h"
#include "render/rtcm_text.h"
#include "render/text_writer.h"

namespace navframe {
namespace {

using catalogue::TextForm;
using Formatter = void (*)(const void* payload, bool leadingFields, TextWriter& writer);

struct FormatterRow {
  TextForm form;
  Formatter formatter;
};

// Adapts a formatter of one record type.
template <class Record, void (*Format)(const Record&, TextWriter&)>
constexpr FormatterRow Row(TextForm form) {
  return {form, [](const void* payload, bool /*leadingFields*/, TextWriter& writer) {
            Format(*static_cast<const Record*>(payload), writer);
          }};
}

template <class Record, void (*Format)(const Record&, bool, TextWriter&)>
constexpr FormatterRow RowWithFlag(TextForm form) {
  return {form, [](const void* payload, bool leadingFields, TextWriter& writer) {
            Format(*static_cast<const Record*>(payload), leadingFields, writer);
          }};
}

constexpr FormatterRow Rows[] = {
    Row<GgaRecord, FormatGga>(TextForm::Gga),
    Row<RmcRecord, FormatRmc>(TextForm::Rmc),
    Row<GsaRecord, FormatGsa>(TextForm::Gsa),
    Row<GsvRecord, FormatGsv>(TextForm::Gsv),
    Row<GllRecord, FormatGll>(TextForm::Gll),
    Row<GstRecord, FormatGst>(TextForm::Gst),
    Row<GbsRecord, FormatGbs>(TextForm::Gbs),
    Row<VtgRecord, FormatVtg>(TextForm::Vtg),
    Row<ZdaRecord, FormatZda>(TextForm::Zda),
    Row<NavPosRecord, FormatNavPos>(TextForm::NavPos),
    Row<NavVelRecord, FormatNavVel>(TextForm::NavVel),
    Row<NavTimeRecord, FormatNavTime>(TextForm::NavTime),
    Row<NavAccRecord, FormatNavAcc>(TextForm::NavAcc),
    Row<PNavMsgRecord, FormatPNavMsg>(TextForm::PNavMsg),
    Row<CwOutRecord, FormatCwOut>(TextForm::CwOut),
    Row<GyoAccRecord, FormatGyoAcc>(TextForm::GyoAcc),
    Row<SnrStatRecord, FormatSnrStat>(TextForm::SnrStat),
    Row<ImuRecord, FormatImu>(TextForm::Imu),
    Row<NavAttRecord, FormatNavAtt>(TextForm::NavAtt),
    Row<InsPvaRecord, FormatInsPva>(TextForm::InsPva),
    Row<RtcmSnrStatRecord, FormatRtcmSnrStat>(TextForm::RtcmSnrStat),
    RowWithFlag<ClockOrbitRecord, FormatClockOrbit>(TextForm::ClockOrbit),
    Row<SystemCountsRecord, FormatSystemCounts>(TextForm::SystemCounts),
    RowWithFlag<SignalObservationsRecord, FormatSignalObservations>(TextForm::SignalObservations),
    Row<IntegerSetRecord, FormatIntegerSet>(TextForm::IntegerSet),
};

constexpr auto Formatters = [] {
  std::array<Formatter, catalogue::TextForms> formatters{};
  for (const FormatterRow& row : Rows) {
    formatters[static_cast<std::size_t>(row.form)] = row.formatter;
  }
  return formatters;
}();

}  // namespace

bool RenderRecord(const GnssMessage& record, char* out, bool leadingFields) {
  out[0] = '\0';
  // The id alone tells: records of ASCII logs are not meant for this.
  const catalogue::KindRow* const row = catalogue::FindKind(record.id, SourceStream);
  const Formatter formatter =
      row == nullptr ? nullptr : Formatters[static_cast<std::size_t>(row->text)];
  if (formatter == nullptr || record.data == nullptr) return false;
  TextWriter writer(out);
  formatter(record.data, leadingFields, writer);
  writer.Terminate();
  return true;
}

}  // namespace navframe
