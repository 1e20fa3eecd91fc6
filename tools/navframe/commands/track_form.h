// Where the points of a track go: one class for each form.
#pragma once

#include <cstdint>
#include <string>

#include "analysis/fixes.h"

namespace navframe::tool {

struct TrackPoint {
  analysis::Fix fix;
  std::string time;  // UTC, "2026-03-14T12:00:00.000Z"; "12:00:00.000" without a date; or empty
  bool hasDate;
  std::int64_t gpsTime;  // ms of it; analysis::NoTime while the week is not known
};

class TrackForm {
 public:
  virtual ~TrackForm() = default;
  TrackForm(const TrackForm&) = delete;
  TrackForm& operator=(const TrackForm&) = delete;

  // `isFirst`: it begins a piece. The first point of all begins one.
  virtual void Take(const TrackPoint& point, bool isFirst) = 0;
  virtual void End() = 0;

 protected:
  TrackForm() = default;
};

}  // namespace navframe::tool
