// Readable lines for the records of ASCII logs.
#pragma once

#include <string>

#include "navframe/navframe.h"
#include "navframe/records.h"

namespace navframe::tool {

// Appends lines without a line feed behind the last one.
void DescribeLogHeader(const AsciiLogHeader& header, std::string& out);
void DescribePositionLog(const PositionLogRecord& record, std::string& out);
void DescribeNavigationSolutionLog(const NavigationSolutionLogRecord& record, std::string& out);
void DescribeVelocityLog(const VelocityLogRecord& record, std::string& out);
void DescribeDopLog(const DopLogRecord& record, std::string& out);
void DescribeTimeLog(const TimeLogRecord& record, std::string& out);
void DescribeCartesianLog(const CartesianLogRecord& record, std::string& out);
void DescribeHeadingLog(const HeadingLogRecord& record, std::string& out);
void DescribeInertialLog(const InertialLogRecord& record, std::string& out);
void DescribeRangeLog(const RangeLogRecord& record, std::string& out);
void DescribeVisibilityLog(const VisibilityLogRecord& record, std::string& out);
void DescribeSystemVisibilityLog(const SystemVisibilityLogRecord& record, std::string& out);
void DescribeSatelliteListLog(const SatelliteListLogRecord& record, std::string& out);
void DescribeAgriculturalLog(const AgriculturalLogRecord& record, std::string& out);
void DescribeGpsEphemerisLog(const GpsEphemerisLogRecord& record, std::string& out);
void DescribeGlonassEphemerisLog(const GlonassEphemerisLogRecord& record, std::string& out);
void DescribeGalileoEphemerisLog(const GalileoEphemerisLogRecord& record, std::string& out);
void DescribeBdsEphemerisLog(const BdsEphemerisLogRecord& record, std::string& out);
void DescribeIonosphereLog(const IonosphereLogRecord& record, std::string& out);
void DescribeGalileoIonosphereLog(const GalileoIonosphereLogRecord& record, std::string& out);
void DescribeUtcLog(const UtcLogRecord& record, std::string& out);

// Any record whose source is SourceAsciiLog. Logs without known fields, and the fixed payloads of
// 507 and 57026, give their number alone.
void DescribeAsciiLog(const GnssMessage& message, std::string& out);

}  // namespace navframe::tool
