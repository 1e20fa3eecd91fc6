// The fields of the proprietary messages 910, 999 and 4074.
#pragma once

#include "navframe/records.h"
#include "rtcm/bits.h"

namespace navframe::rtcm {

// Each fills a preset record; what a message does not reach keeps its preset. Times are read into
// the record; setting the clock from them is the dispatch's affair.
void DecodeSub17(const Frame& frame, Sub17Record& record);  // 910
void DecodeSub33(const Frame& frame, Sub33Record& record);
void DecodeSub34(const Frame& frame, Sub34Record& record);
void DecodeSub21(const Frame& frame, Sub21Record& record);  // 999

void DecodeGyoAcc(const Frame& frame, GyoAccRecord& record);  // 4074
void DecodeSnrStat(const Frame& frame, RtcmSnrStatRecord& record);
void DecodeNavAtt(const Frame& frame, NavAttRecord& record);
void DecodeImuRaw(const Frame& frame, ImuRecord& record);
void DecodeInsPva(const Frame& frame, InsPvaRecord& record);
void DecodeTimeStatus(const Frame& frame, TimeStatusRecord& record);
void DecodeSignalObservations(const Frame& frame, SignalObservationsRecord& record);
void DecodeIntegerSet(const Frame& frame, IntegerSetRecord& record);

}  // namespace navframe::rtcm
