// GeoJSON as RFC 7946 has it.
#include <array>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>

#include "commands/moments.h"
#include "commands/track.h"
#include "commands/track_form.h"
#include "json_text.h"
#include "outputs/temporary_file.h"

namespace navframe::tool {
namespace {

using analysis::FixSource;

// A point as it waits in a temporary file: what is told of the points of a line stands behind all
// of their coordinates.
struct Waiting {
  double latitude;
  double longitude;
  double height;
  double heightSea;
  double horizontalAccuracy;
  double verticalAccuracy;
  double satellites;
  std::array<char, 29> time;
  FixSource source;
  analysis::FixQuality quality;
  bool isFirst;
};
static_assert(sizeof(Waiting) == 7 * sizeof(double) + 32);  // nothing lies between

// Text of the members of a point, appended; null of what is not known.
void AppendNumber(double value, int digits, std::string& out) {
  out.append(std::isfinite(value) ? Fixed(value, digits) : "null");
}
void AppendCoordinates(const Waiting& point, std::string& out) {
  out.append("[").append(Fixed(point.longitude, 9)).append(",").append(Fixed(point.latitude, 9));
  if (std::isfinite(point.height)) out.append(",").append(Fixed(point.height, 4));
  out += ']';
}
struct Property {
  const char* name;
  void (*append)(const Waiting& point, std::string& out);
};
constexpr Property Properties[] = {
    {"times",
     [](const Waiting& point, std::string& out) {
       if (point.time[0] == '\0') {
         out.append("null");
       } else {
         AppendJsonString(point.time.data(), out);
       }
     }},
    {"quality",
     [](const Waiting& point, std::string& out) { AppendJsonString(NameOf(point.quality), out); }},
    {"satellites",
     [](const Waiting& point, std::string& out) { AppendNumber(point.satellites, 0, out); }},
    {"height_sea_m",
     [](const Waiting& point, std::string& out) { AppendNumber(point.heightSea, 4, out); }},
    {"horizontal_accuracy_m",
     [](const Waiting& point, std::string& out) {
       AppendNumber(point.horizontalAccuracy, 4, out);
     }},
    {"vertical_accuracy_m",
     [](const Waiting& point, std::string& out) { AppendNumber(point.verticalAccuracy, 4, out); }},
};

class PointFile {
 public:
  void Add(const Waiting& point) {
    if (file_ == nullptr) file_ = OpenTemporary();
    if (std::fwrite(&point, sizeof point, 1, file_.get()) != 1) Fail();
    ++count_;
  }
  bool IsEmpty() const { return count_ == 0; }

  template <class Use>
  void ForEach(Use use) const {
    if (std::fseek(file_.get(), 0, SEEK_SET) != 0) Fail();
    for (std::uint64_t i = 0; i < count_; ++i) {
      Waiting point;
      if (std::fread(&point, sizeof point, 1, file_.get()) != 1) Fail();
      use(point);
    }
  }

  void Clear() {
    if (file_ != nullptr && std::fseek(file_.get(), 0, SEEK_SET) != 0) Fail();
    count_ = 0;
  }

 private:
  [[noreturn]] static void Fail() { throw CannotKeep(errno); }

  std::unique_ptr<std::FILE, FileCloser> file_;
  std::uint64_t count_ = 0;
};

class GeoJson : public TrackForm {
 public:
  GeoJson(const std::string& name, Output& output) : output_(output) {
    AppendJsonString(name, name_);
    EscapeLongControls(name_, 0);
  }

  void Take(const TrackPoint& point, bool isFirst) override {
    constexpr double HalfAround = 180;
    const analysis::Fix& fix = point.fix;
    Waiting next{fix.latitude,
                 fix.longitude,
                 fix.height,
                 fix.heightSea,
                 fix.horizontalAccuracy,
                 fix.verticalAccuracy,
                 fix.satellites,
                 {},
                 fix.source,
                 fix.quality,
                 isFirst};
    std::memcpy(next.time.data(), point.time.data(),
                std::min(point.time.size(), next.time.size() - 1));
    // A line does not cross the date line, it ends there.
    next.isFirst |= hasLast_ && std::fabs(last_.longitude - next.longitude) > HalfAround;
    if (hasLast_) Put(next.isFirst);
    if (hasLast_ && next.source != last_.source) Lines();
    last_ = next;
    hasLast_ = true;
  }

  void End() override {
    Put(true);
    Lines();
    output_.Buffer().append("\n]}\n");
  }

 private:
  // The last point, now that it is known whether its line ends with it. One that is a line of its
  // own is none.
  void Put(bool ends) {
    if (!last_.isFirst || !ends) return lines_.Add(last_);
    Begin("Point");
    std::string& out = output_.Buffer();
    AppendCoordinates(last_, out);
    Describe(last_.source);
    for (const Property& property : Properties) {
      out.append(",\"").append(property.name).append("\":");
      property.append(last_, out);
    }
    out.append("}}");
    output_.WriteWhenLarge();
  }

  // The lines of a source.
  void Lines() {
    if (lines_.IsEmpty()) return;
    FixSource source = FixSource::Nothing;
    lines_.ForEach([&](const Waiting& point) { source = point.source; });
    Begin("MultiLineString");
    Lists(AppendCoordinates);
    Describe(source);
    for (const Property& property : Properties) {
      output_.Buffer().append(",\"").append(property.name).append("\":");
      Lists(property.append);
    }
    output_.Buffer().append("}}");
    lines_.Clear();
  }

  // An array for each line.
  void Lists(void (*append)(const Waiting& point, std::string& out)) {
    std::string& out = output_.Buffer();
    const char* separator = "[[";
    lines_.ForEach([&](const Waiting& point) {
      if (point.isFirst && separator[1] == '\0') separator = "],\n[";
      out.append(separator);
      separator = ",";
      append(point, out);
      output_.WriteWhenLarge();
    });
    out.append("]]");
  }

  void Begin(const char* geometry) {
    std::string& out = output_.Buffer();
    out.append(isEmpty_ ? "{\"type\":\"FeatureCollection\",\"features\":[\n" : ",\n");
    isEmpty_ = false;
    out.append("{\"type\":\"Feature\",\"geometry\":{\"type\":\"").append(geometry);
    out.append("\",\"coordinates\":");
  }
  void Describe(FixSource source) {
    output_.Buffer().append("},\n\"properties\":{\"name\":").append(name_);
    output_.Buffer().append(",\"source\":\"").append(NameOf(source)).append("\"");
  }

  Output& output_;
  std::string name_;
  PointFile lines_;
  Waiting last_{};
  bool hasLast_ = false;
  bool isEmpty_ = true;
};

}  // namespace

std::unique_ptr<TrackForm> MakeGeoJson(const std::string& name, Output& output) {
  return std::make_unique<GeoJson>(name, output);
}

}  // namespace navframe::tool
