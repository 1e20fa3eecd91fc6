// Headers of observation files.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rinex/observation_summary.h"
#include "rinex/observed.h"
#include "rinex/station_notes.h"

namespace navframe::tool {

// What the user says of the station; it goes before what the stream says. Empty for nothing.
struct StationTexts {
  std::string marker;
  std::string markerNumber;
  std::string markerType;
  std::string observer;
  std::string agency;
  std::string runBy;
  std::vector<std::string> receiver;  // type, number, version
  std::vector<std::string> antenna;   // type, number
  std::optional<Vector> position;     // ECEF, m
  std::optional<double> antennaHeight;
};

struct ObservationHeader {
  int version = 3;  // of RINEX: 3 is 3.05, 4 is 4.02
  const StationTexts& texts;
  const StationNotes& notes;
  std::optional<StationNumber> station;
  std::string_view marker;        // unless the texts tell one
  std::string_view dateFrom;      // where the weeks come from, for a comment
  bool phasesAreAligned = false;  // as MSM has them
  const SignalNames& names;
  const SystemColumns& columns;
  const ObservationSummary& summary;
};

void PutObservationHeader(const ObservationHeader& header, std::string& out);

// When a file says that it was made: the time that SOURCE_DATE_EPOCH tells, else `otherwise`.
std::chrono::sys_seconds DateOfFile(Ticks otherwise);

}  // namespace navframe::tool
