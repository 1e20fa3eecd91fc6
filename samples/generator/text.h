// Text pieces of sentences.
#pragma once

#include <string>

#include "generator/drive.h"

namespace navframe::sample {

// At most 255 characters.
__attribute__((format(printf, 1, 2))) std::string Format(const char* format, ...);

// The time of an epoch, hhmmss.00
std::string TimeField(const Epoch& epoch);

}  // namespace navframe::sample
