// navframe track: where the receiver was.
#pragma once

#include <memory>
#include <string>

#include "exit_status.h"
#include "outputs/outputs.h"

namespace navframe::tool {

class TrackForm;

// Forms by the names that --format takes.
struct TrackFormRow {
  const char* name;
  std::unique_ptr<TrackForm> (*make)(const std::string& name, Output& output);
};

std::unique_ptr<TrackForm> MakeGpx(const std::string& name, Output& output);
std::unique_ptr<TrackForm> MakeGeoJson(const std::string& name, Output& output);
std::unique_ptr<TrackForm> MakeTrackCsv(const std::string& name, Output& output);

inline constexpr TrackFormRow TrackForms[] = {
    {"gpx", MakeGpx}, {"geojson", MakeGeoJson}, {"csv", MakeTrackCsv}};

struct TrackOptions {
  std::string source = "-";
  const TrackFormRow* form = &TrackForms[0];
  std::string target = "-";
  double gap = 0;    // s, 0 for the usual rule
  double every = 0;  // s, 0 for all
};

ExitStatus WriteTrack(const TrackOptions& options);

}  // namespace navframe::tool
