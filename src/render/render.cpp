#include "render/render.h"

#include <array>

#include "render/nmea_text.h"
#include "render/text_writer.h"

namespace navframe {
namespace {

using Formatter = void (*)(const void* payload, bool leadingFields, TextWriter& writer);

// Adapts a formatter of one record type.
template <class Record, void (*Format)(const Record&, TextWriter&)>
void Formatted(const void* payload, bool /*leadingFields*/, TextWriter& writer) {
  Format(*static_cast<const Record*>(payload), writer);
}

struct FormatterRow {
  std::uint32_t id;
  Formatter formatter;
};
constexpr FormatterRow Rows[] = {
    {MsgIdGga, Formatted<GgaRecord, FormatGga>}, {MsgIdTaggedGga, Formatted<GgaRecord, FormatGga>},
    {MsgIdRmc, Formatted<RmcRecord, FormatRmc>}, {MsgIdTaggedRmc, Formatted<RmcRecord, FormatRmc>},
    {MsgIdGsa, Formatted<GsaRecord, FormatGsa>}, {MsgIdTaggedGsa, Formatted<GsaRecord, FormatGsa>},
    {MsgIdGsv, Formatted<GsvRecord, FormatGsv>}, {MsgIdTaggedGsv, Formatted<GsvRecord, FormatGsv>},
    {MsgIdGll, Formatted<GllRecord, FormatGll>}, {MsgIdTaggedGll, Formatted<GllRecord, FormatGll>},
    {MsgIdGst, Formatted<GstRecord, FormatGst>}, {MsgIdTaggedGst, Formatted<GstRecord, FormatGst>},
    {MsgIdGbs, Formatted<GbsRecord, FormatGbs>}, {MsgIdTaggedGbs, Formatted<GbsRecord, FormatGbs>},
    {MsgIdVtg, Formatted<VtgRecord, FormatVtg>}, {MsgIdTaggedVtg, Formatted<VtgRecord, FormatVtg>},
    {MsgIdZda, Formatted<ZdaRecord, FormatZda>}, {MsgIdTaggedZda, Formatted<ZdaRecord, FormatZda>},
};

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
