// Sentences of which streams of the Standard dialect alone make records.
#pragma once

#include <string_view>

#include "nmea/sentence_table.h"

namespace navframe::nmea {

// The row of a sentence by its address field with the "$"; null when it is none of these, as those
// are of which the exports know the formatter, and proprietary ones.
const SentenceRow* FindFurther(std::string_view address);

// Of TXT, whose formatter the exports know.
extern const SentenceRow TextRow;

}  // namespace navframe::nmea
