// Text forms of the standard NMEA records.
#pragma once

#include "navframe/records.h"
#include "render/text_writer.h"

namespace navframe {

void FormatGga(const GgaRecord& record, TextWriter& writer);
void FormatRmc(const RmcRecord& record, TextWriter& writer);
void FormatGsa(const GsaRecord& record, TextWriter& writer);
void FormatGsv(const GsvRecord& record, TextWriter& writer);
void FormatGll(const GllRecord& record, TextWriter& writer);
void FormatGst(const GstRecord& record, TextWriter& writer);
void FormatGbs(const GbsRecord& record, TextWriter& writer);
void FormatVtg(const VtgRecord& record, TextWriter& writer);
void FormatZda(const ZdaRecord& record, TextWriter& writer);

}  // namespace navframe
