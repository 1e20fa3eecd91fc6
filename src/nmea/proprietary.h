// Parsers of the proprietary sentences.
#pragma once

#include "navframe/records.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"

namespace navframe::nmea {

// An INSPVA whose time field has its point where a time with decimals has it.
bool IsInsPva(const Fields& fields);

// These two need a sentence of exactly their number of fields; with any other the record keeps its
// unknown values. PNAVMSG does not allow for an empty field.
void ParsePNavMsg(NmeaContext& context, const Fields& fields, PNavMsgRecord& record);
void ParseCwOut(NmeaContext& context, const Fields& fields, CwOutRecord& record);

void ParseNavAcc(NmeaContext& context, const Fields& fields, NavAccRecord& record);

// The fields of these feed the members of the record in the record's order.
void ParseNavPos(NmeaContext& context, const Fields& fields, NavPosRecord& record);
void ParseNavVel(NmeaContext& context, const Fields& fields, NavVelRecord& record);
void ParseNavTime(NmeaContext& context, const Fields& fields, NavTimeRecord& record);
void ParseSnrStat(NmeaContext& context, const Fields& fields, SnrStatRecord& record);
// Behind the time.
void ParseGyoAcc(NmeaContext& context, const Fields& fields, GyoAccRecord& record);
void ParseImuRaw(NmeaContext& context, const Fields& fields, ImuRecord& record);
void ParseImuVeh(NmeaContext& context, const Fields& fields, ImuRecord& record);
void ParseNavAtt(NmeaContext& context, const Fields& fields, NavAttRecord& record);
// Behind date and time.
void ParseInsPva(NmeaContext& context, const Fields& fields, InsPvaRecord& record);

}  // namespace navframe::nmea
