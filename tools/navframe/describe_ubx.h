// Readable lines of UBX, 0x55 0xAA and diagnostic records.
//
// Each function appends one line, those of lists a line for each entry too; lines are separated by
// '\n', without one at the end. An unknown value is shown as "-".
#pragma once

#include <string>

#include "navframe/records.h"

namespace navframe::tool {

void DescribeUbxProtectionLevels(const UbxProtectionLevelsRecord& record, std::string& out);
void DescribeUbxNavigation(const UbxNavigationRecord& record, std::string& out);
void DescribeUbxSatellites(const UbxSatellitesRecord& record, std::string& out);
void DescribeUbxRawMeasurements(const UbxRawMeasurementsRecord& record, std::string& out);
void DescribeUbxAttitude(const UbxAttitudeRecord& record, std::string& out);
void DescribeBinary55Aa(const Binary55AaRecord& record, std::string& out);
void DescribeDiagnostic(const DiagnosticRecord& record, std::string& out);

}  // namespace navframe::tool
