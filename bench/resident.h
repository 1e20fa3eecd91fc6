// The memory of this process.
#pragma once

#include <unistd.h>

#include <cstdio>

namespace navframe::bench {

inline long ResidentKiB() {
#if defined(__SANITIZE_ADDRESS__)
  return 0;  // the sanitizer holds freed blocks back
#endif
  long pages = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file == nullptr || std::fscanf(file, "%*s %ld", &pages) != 1) pages = 0;
  if (file != nullptr) std::fclose(file);
  return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

}  // namespace navframe::bench
