#include "generator/text.h"

#include <cstdarg>
#include <cstdio>

namespace navframe::sample {

std::string Format(const char* format, ...) {
  char text[256];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

std::string TimeField(const Epoch& epoch) {
  return Format("%02d%02d%02d.00", epoch.hour, epoch.minute, epoch.second);
}

}  // namespace navframe::sample
