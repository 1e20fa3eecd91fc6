// The drive as one stream of every protocol, with garbage between.
#pragma once

#include "generator/drive.h"
#include "generator/writers.h"

namespace navframe::sample {

// The first four seconds of the drive under a thin sky: of every kind of record that a stream can
// yield at least one.
Bytes MixedStream();

}  // namespace navframe::sample
