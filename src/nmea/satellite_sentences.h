// Parsers of the sentences about satellites.
#pragma once

#include "navframe/records.h"
#include "navframe/records_nmea_standard.h"
#include "navframe/time_manager.h"
#include "nmea/field.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"

namespace navframe::nmea {

// A GSA with the number of fields of a known revision, without or with a system id.
bool IsGsa(const Fields& fields);
// A GSV of whole satellite blocks, without or with a signal id.
bool IsGsv(const Fields& fields);

// A GSA with a number that a GsaRecord has no room for.
bool IsWideGsa(const Fields& fields);

// Fills the record and marks the used satellites in the context's satellites in view.
void ParseGsa(NmeaContext& context, FieldReader& fields, GsaRecord& record);
void ParseWideGsa(NmeaContext& context, FieldReader& fields, WideGsaRecord& record);

// Adds the sentence's signals to the context's satellites in view.
void AccumulateGsv(NmeaContext& context, FieldReader& fields, const TimeManager& time);

}  // namespace navframe::nmea
