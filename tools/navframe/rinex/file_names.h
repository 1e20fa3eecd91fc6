// What files are called.
#pragma once

#include <string>

#include "rinex/gps_time.h"

namespace navframe::tool {

// How the user wants files to be called.
struct FileNaming {
  std::string target;   // a name without its end; with a station a folder
  std::string station;  // "ABCD00CHE"; empty for none
  Ticks split = 0;      // period of a file, 0 for one file
  bool gzip = false;
};

// What a name tells of a file.
struct FileContent {
  bool isNavigation = false;
  bool isMixed = true;  // of several systems; else `system`
  char system = 'M';
  bool isStream = false;  // RTCM 3, not the data of a receiver's own
  Ticks first = 0;
  Ticks last = 0;
  Ticks interval = 0;  // 0 for not known
};

// The long name by the rule of RINEX 3 and 4, "ABCD00CHE_R_20262110000_01H_01S_MO.rnx", in the
// folder; else the target with ".obs" or ".nav" at its end, and with the start of its period where
// there are several files.
std::string NameOf(const FileNaming& naming, const FileContent& content);

// Whether it is a name of a station for long names: four letters or digits, two digits for monument
// and receiver, three letters of the country.
bool IsStationName(const std::string& text);

}  // namespace navframe::tool
