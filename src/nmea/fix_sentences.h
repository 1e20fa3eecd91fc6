// Parsers of the standard position, time and quality sentences.
//
// A parser fills a record of unknown values from a sentence's fields; an empty field leaves the
// value unknown, a field that cannot be converted throws.
#pragma once

#include "navframe/records.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"

namespace navframe::nmea {

void ParseGga(NmeaContext& context, const Fields& fields, GgaRecord& record);
void ParseRmc(NmeaContext& context, const Fields& fields, RmcRecord& record);
void ParseGll(NmeaContext& context, const Fields& fields, GllRecord& record);
void ParseGst(NmeaContext& context, const Fields& fields, GstRecord& record);
void ParseGbs(NmeaContext& context, const Fields& fields, GbsRecord& record);
void ParseVtg(NmeaContext& context, const Fields& fields, VtgRecord& record);
void ParseZda(NmeaContext& context, const Fields& fields, ZdaRecord& record);

}  // namespace navframe::nmea
