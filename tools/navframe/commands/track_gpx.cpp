// GPX 1.1.
#include <cmath>
#include <string_view>

#include "commands/moments.h"
#include "commands/track.h"
#include "commands/track_form.h"
#include "markup.h"

namespace navframe::tool {
namespace {

using analysis::Fix;
using analysis::FixQuality;
using analysis::FixSource;

// What the schema has for it; empty for others.
const char* FixOf(const Fix& fix) {
  switch (fix.quality) {
    case FixQuality::Autonomous:
      return std::isnan(fix.heightSea) && std::isnan(fix.height) ? "2d" : "3d";
    case FixQuality::Differential:
    case FixQuality::RtkFixed:
    case FixQuality::RtkFloat:
      return "dgps";
    case FixQuality::Precise:
      return "pps";
    default:
      return "";
  }
}

class Gpx : public TrackForm {
 public:
  Gpx(const std::string& name, Output& output) : name_(EscapedMarkup(name)), output_(output) {}

  void Take(const TrackPoint& point, bool isFirst) override {
    const Fix& fix = point.fix;
    if (isFirst) Begin(fix.source);
    std::string& out = output_.Buffer();
    out.append("<trkpt lat=\"").append(Fixed(fix.latitude, 9)).append("\" lon=\"");
    // The schema ends in front of 180 degrees.
    const std::string longitude = Fixed(fix.longitude, 9);
    out.append(longitude == "180.000000000" ? "-" : "").append(longitude).append("\">");
    Number("ele", fix.heightSea, 4);
    if (point.hasDate) Element("time", point.time);
    Number("geoidheight", fix.height - fix.heightSea, 4);
    Element("fix", FixOf(fix));
    Number("sat", fix.satellites, 0);
    Number("hdop", fix.hdop, 2);
    out.append("<extensions>");
    Element("navframe:quality", NameOf(fix.quality));
    Number("navframe:height_ellipsoid_m", fix.height, 4);
    Number("navframe:horizontal_accuracy_m", fix.horizontalAccuracy, 4);
    Number("navframe:vertical_accuracy_m", fix.verticalAccuracy, 4);
    out.append("</extensions></trkpt>\n");
  }

  void End() override { output_.Buffer().append("</trkseg></trk>\n</gpx>\n"); }

 private:
  // A piece: a segment, and a track of its own where the source is another.
  void Begin(FixSource source) {
    std::string& out = output_.Buffer();
    const bool isNew = source != source_;
    if (source_ == FixSource::Nothing) {
      out.append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
      out.append("<gpx version=\"1.1\" creator=\"navframe " NAVFRAME_VERSION "\" ");
      out.append("xmlns=\"http://www.topografix.com/GPX/1/1\" ");
      out.append("xmlns:navframe=\"urn:navframe:track:1\">\n");
    } else {
      out.append(isNew ? "</trkseg></trk>\n" : "</trkseg>\n");
    }
    source_ = source;
    if (isNew) {
      out.append("<trk><name>").append(name_).append("</name><src>");
      out.append(NameOf(source)).append("</src>\n");
    }
    out.append("<trkseg>\n");
  }

  void Element(const char* name, std::string_view text) {
    if (text.empty()) return;
    std::string& out = output_.Buffer();
    out.append("<").append(name).append(">").append(text);
    out.append("</").append(name).append(">");
  }
  void Number(const char* name, double value, int digits) {
    if (std::isfinite(value)) Element(name, Fixed(value, digits));
  }

  const std::string name_;
  Output& output_;
  FixSource source_ = FixSource::Nothing;
};

}  // namespace

std::unique_ptr<TrackForm> MakeGpx(const std::string& name, Output& output) {
  return std::make_unique<Gpx>(name, output);
}

}  // namespace navframe::tool
