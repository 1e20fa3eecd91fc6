// Records of RTCM 3 messages in words.
#pragma once

#include <string>

#include "navframe/records.h"

namespace navframe::tool {

// Each appends one line, or several separated by '\n', without a '\n' at the end.
void DescribeStationPosition(const StationPositionRecord& record, std::string& out);    // 53
void DescribeSystemParameters(const SystemParametersRecord& record, std::string& out);  // 54
void DescribeMsm(const MsmRecord& record, std::string& out);                            // 61 to 65

void DescribeRtcmGyoAcc(const GyoAccRecord& record, std::string& out);        // 71
void DescribeRtcmSnrStat(const RtcmSnrStatRecord& record, std::string& out);  // 72
void DescribeRtcmNavAtt(const NavAttRecord& record, std::string& out);        // 73
void DescribeRtcmImuRaw(const ImuRecord& record, std::string& out);           // 74
void DescribeRtcmInsPva(const InsPvaRecord& record, std::string& out);        // 75

void DescribeTimeStatus(const TimeStatusRecord& record, std::string& out);                  // 77
void DescribeSub249(const Sub249Record& record, std::string& out);                          // 78
void DescribeClockOrbit(const ClockOrbitRecord& record, std::string& out);                  // 79
void DescribeSystemCounts(const SystemCountsRecord& record, std::string& out);              // 80
void DescribeSignalObservations(const SignalObservationsRecord& record, std::string& out);  // 81
void DescribeIntegerSet(const IntegerSetRecord& record, std::string& out);                  // 82
void DescribeSub17(const Sub17Record& record, std::string& out);                            // 83
void DescribeSub33(const Sub33Record& record, std::string& out);                            // 85
void DescribeSub34(const Sub34Record& record, std::string& out);                            // 86
void DescribeSub21(const Sub21Record& record, std::string& out);                            // 106

}  // namespace navframe::tool
