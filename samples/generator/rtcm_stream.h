// The drive as a reference station's RTCM 3 output.
#pragma once

#include "generator/drive.h"
#include "generator/writers.h"

namespace navframe::sample {

// A whole frame around a payload of at most 1023 bytes, with its CRC.
Bytes RtcmFrame(const Bytes& payload);

// Station coordinates (1005) and system parameters (1013).
Bytes RtcmStation();
Bytes RtcmSystemParameters(const Epoch& epoch);

// One MSM of one system; `last` when no other message of the epoch follows.
enum class Msm { Msm4 = 4, Msm5 = 5, Msm6 = 6, Msm7 = 7 };
Bytes RtcmObservations(const Epoch& epoch, System system, Msm msm, bool last);

// One frame of each message that RtcmEpoch has not, with the epoch's time where the message has
// one: the sub-types of 910, 999 and 4074, 1004 and 1012. The place for a new one.
Bytes RtcmFurther(const Epoch& epoch);

// One epoch: GPS, GLONASS, Galileo, QZSS and BeiDou, every tenth with 1005 and 1013. (GLONASS as
// MSM7 whatever the kind: the exports do not decode the others.)
Bytes RtcmEpoch(const Epoch& epoch, Msm msm);

// The first `epochs` seconds of the drive.
Bytes RtcmStream(int epochs, Msm msm);

}  // namespace navframe::sample
