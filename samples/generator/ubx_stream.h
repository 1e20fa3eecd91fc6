// The drive as a receiver's binary output: UBX and 0x55 0xAA frames.
#pragma once

#include "generator/drive.h"
#include "generator/writers.h"

namespace navframe::sample {

// A whole frame around a payload, with its checksum.
Bytes UbxFrame(std::uint8_t messageClass, std::uint8_t id, const Bytes& payload);
Bytes Frame55Aa(const Bytes& payload);

// Position, velocity and time (0x01 0x07); satellites (0x01 0x35), 47 of them.
Bytes UbxNavigation(const Epoch& epoch);
Bytes UbxSatellites(const Epoch& epoch);
// Raw measurements (0x02 0x15), two or three of each satellite, 71 to 88 in all.
Bytes UbxRawMeasurements(const Epoch& epoch);
// Attitude (0x01 0x05), protection levels (0x01 0x62).
Bytes UbxAttitude(const Epoch& epoch);
Bytes UbxProtectionLevels(const Epoch& epoch);
// Signals (0x01 0x43), two of each satellite; GPS time (0x01 0x20).
Bytes UbxSignals(const Epoch& epoch);
Bytes UbxGpsTime(const Epoch& epoch);
// One frame of each message that the streams below need not have. The place for a new one.
Bytes UbxFurther(const Epoch& epoch);
// A frame of one of the four lengths that are decoded.
Bytes Binary55Aa(const Epoch& epoch);

// The first `epochs` seconds of the drive.
Bytes UbxNavigationStream(int epochs);  // navigation, satellites, attitude
Bytes UbxRawStream(int epochs);         // raw measurements
Bytes UbxStream(int epochs);            // navigation, satellites, raw measurements
Bytes Stream55Aa(int epochs);

}  // namespace navframe::sample
