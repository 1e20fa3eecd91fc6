// A table: a line for each point.
#include <cmath>

#include "analysis/timeline.h"
#include "commands/moments.h"
#include "commands/track.h"
#include "commands/track_form.h"

namespace navframe::tool {
namespace {

class TrackCsv : public TrackForm {
 public:
  explicit TrackCsv(Output& output) : output_(output) {}

  void Take(const TrackPoint& point, bool isFirst) override {
    std::string& out = output_.Buffer();
    if (piece_ == 0) {
      out.append(
          "time,gpsWeek,gpsTow [s],latitude [deg],longitude [deg],heightEllipsoid [m],"
          "heightSea [m],quality,satellites,hdop,horizontalAccuracy [m],"
          "verticalAccuracy [m],source,piece\n");
    }
    if (isFirst) ++piece_;
    const analysis::Fix& fix = point.fix;
    const bool hasGps = point.gpsTime != analysis::NoTime;
    out.append(point.time).append(",");
    if (hasGps) out.append(std::to_string(point.gpsTime / analysis::WeekMs));
    out += ',';
    if (hasGps) {
      out.append(Fixed(static_cast<double>(point.gpsTime % analysis::WeekMs) / 1e3, 3));
    }
    out += ',';
    Number(fix.latitude, 9);
    Number(fix.longitude, 9);
    Number(fix.height, 4);
    Number(fix.heightSea, 4);
    out.append(NameOf(fix.quality)).append(",");
    Number(fix.satellites, 0);
    Number(fix.hdop, 2);
    Number(fix.horizontalAccuracy, 4);
    Number(fix.verticalAccuracy, 4);
    out.append(NameOf(fix.source)).append(",").append(std::to_string(piece_)).append("\n");
  }

  void End() override {}

 private:
  void Number(double value, int digits) {
    if (std::isfinite(value)) output_.Buffer().append(Fixed(value, digits));
    output_.Buffer() += ',';
  }

  Output& output_;
  std::uint64_t piece_ = 0;
};

}  // namespace

std::unique_ptr<TrackForm> MakeTrackCsv(const std::string&, Output& output) {
  return std::make_unique<TrackCsv>(output);
}

}  // namespace navframe::tool
