#include "commands/report_json.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "analysis/signal_names.h"
#include "commands/doctor_page.h"
#include "commands/json_writer.h"

namespace navframe::tool {
namespace {

using analysis::Charts;
using analysis::Extent;
using analysis::First;

constexpr double NotKnown = std::numeric_limits<double>::quiet_NaN();
constexpr double Tenth = 10;
constexpr double TenMillionth = 1e8;  // of a degree: a millimetre

double Rounded(double value, double per) { return std::round(value * per) / per; }

class Page {
 public:
  Page(DenseJsonWriter& json, const Charts& charts, const analysis::Contents& contents,
       const analysis::Diagnosis& diagnosis)
      : json_(json), charts_(charts), contents_(contents), diagnosis_(diagnosis) {
    const std::vector<First>& begins = charts.axis.begins;
    for (std::size_t i = 0; i < begins.size(); ++i) {
      if (begins[i].value != First::None) bins_.push_back(i);
    }
  }

  void Members() {
    json_.Object("axis", [this] { Axis(); });
    json_.Object("strengths", [this] {
      json_.TextIfAny("from", analysis::NameOf(charts_.strengthsIn));
      json_.Array("signals", charts_.strengths, [this](const auto& row) { Strength(row); });
    });
    json_.Object("satellites", [this] {
      Extents("used", charts_.used);
      json_.Array("systems", charts_.satellites, [this](const auto& row) { Satellites(row); });
    });
    json_.Array("messages", charts_.messages, [this](const auto& row) { Presence(row); });
    Outside();
    json_.Array("damage", diagnosis_.findings, [this](const auto& finding) { Damage(finding); });
    json_.Object("track", [this] { Track(); });
    json_.Object("sky", [this] {
      json_.TextIfAny("from", analysis::NameOf(charts_.skyIn));
      json_.Array("satellites", charts_.sky, [this](const auto& way) { SkyWay(way); });
    });
  }

 private:
  // What 0 stands for: milliseconds of Unix time or of the day.
  void Axis() {
    const analysis::ChartAxis& axis = charts_.axis;
    constexpr std::int64_t GpsEpoch = 315'964'800'000;
    const bool isWhole = axis.isTime && axis.jumps == 0;
    const char* kind = axis.isTime ? "elapsed" : "bytes";
    std::int64_t origin = 0;
    if (isWhole && contents_.known == analysis::TimeKnown::Date) {
      kind = "utc";
      origin = axis.first - contents_.leapSeconds * analysis::SecondMs + GpsEpoch;
    } else if (isWhole && contents_.known == analysis::TimeKnown::TimeOfDay) {
      kind = "day";
      origin = axis.first;
    }
    json_.Text("kind", kind);
    json_.IfKnown("origin", std::optional(origin));
    json_.Count("jumps", axis.jumps);
    json_.IfKnown("width", std::optional(axis.width));
    json_.Array("x", bins_, [&](std::size_t bin) { Integer(axis.begins[bin].value); });
  }

  void Integer(std::int64_t value) { json_.IfKnown(nullptr, std::optional(value)); }

  template <class Value>
  void Values(const char* name, const std::vector<Extent>& extents, Value value) {
    json_.Array(name, bins_, [&](std::size_t bin) {
      const bool isAny = bin < extents.size() && extents[bin].count != 0;
      json_.Number(nullptr, isAny ? Rounded(value(extents[bin]), Tenth) : NotKnown);
    });
  }

  // Where all are the same one is enough.
  void Extents(const char* name, const std::vector<Extent>& extents) {
    const bool isLine = std::ranges::all_of(
        extents, [](const Extent& one) { return one.count == 0 || one.least == one.most; });
    json_.Object(name, [&] {
      if (std::ranges::none_of(extents, [](const Extent& one) { return one.count != 0; })) return;
      Values("least", extents, [](const Extent& one) { return static_cast<double>(one.least); });
      if (isLine) return;
      Values("mean", extents, [](const Extent& one) { return one.Mean(); });
      Values("most", extents, [](const Extent& one) { return static_cast<double>(one.most); });
    });
  }

  void System(std::size_t system) {
    json_.Text("system", analysis::SystemName(analysis::LetterOf(system)));
  }

  void Strength(const analysis::StrengthRow& row) {
    json_.Object(nullptr, [&] {
      System(row.system);
      json_.TextIfAny("signal", row.signal);
      Extents("cn0", row.bins);
    });
  }

  void Satellites(const analysis::SatelliteRow& row) {
    json_.Object(nullptr, [&] {
      System(row.system);
      json_.Flag("used", row.isUsed);
      Extents("count", row.bins);
    });
  }

  // Stretches of time in which a message came as often as it usually does.
  void Presence(const analysis::PresenceRow& row) {
    std::vector<std::int64_t> ends;
    const std::int64_t pause = UsualPause(row);
    const std::vector<First>& begins = charts_.axis.begins;
    for (const std::size_t bin : bins_) {
      if (bin >= row.bins.size() || row.bins[bin].value == 0) continue;
      const std::int64_t x = begins[bin].value;
      if (ends.empty() || x - ends.back() > pause) ends.insert(ends.end(), 2, x);
      ends.back() = x;
    }
    json_.Object(nullptr, [&] {
      json_.Text("protocol", navframe_protocol_name(row.protocol));
      json_.Text("message", row.message);
      json_.Array("runs", ends, [this](std::int64_t end) { Integer(end); });
    });
  }

  std::int64_t UsualPause(const analysis::PresenceRow& row) const {
    constexpr std::int64_t Least = 2;  // stretches: a message is anywhere in them
    const std::int64_t width = Least * charts_.axis.width;
    const auto message = std::ranges::find_if(contents_.messages, [&](const auto& one) {
      return one.protocol == row.protocol && one.message == row.message;
    });
    if (message == contents_.messages.end() || !message->rhythm.usual) return width;
    return width + std::llround(analysis::GapFactor * *message->rhythm.usual);
  }

  void Outside() {
    std::vector<std::size_t> some;
    for (const std::size_t bin : bins_) {
      if (bin < charts_.outside.size() && charts_.outside[bin].value != 0) some.push_back(bin);
    }
    json_.Object("outside", [&] {
      json_.Array("x", some, [&](std::size_t bin) { Integer(charts_.axis.begins[bin].value); });
      json_.Array("bytes", some,
                  [&](std::size_t bin) { json_.Count(nullptr, charts_.outside[bin].value); });
    });
  }

  void Damage(const analysis::Finding& finding) {
    json_.Object(nullptr, [&] {
      json_.Text("cause", NameOf(finding.cause));
      json_.Text("sentence", SentenceOf(finding));
      json_.Array("evidence", finding.first, [&](const analysis::Place& place) {
        json_.Text(nullptr, EvidenceOf(finding.cause, place));
      });
      json_.Array("places", finding.first, [&](const analysis::Place& place) {
        const std::int64_t end = charts_.axis.PlaceOf(place.offset);
        const bool isGap = finding.cause == analysis::Cause::Gap && charts_.axis.isTime;
        Integer(isGap ? std::max<std::int64_t>(end - place.step, 0) : end);
        const std::uint64_t last = place.offset + std::max<std::uint64_t>(place.length, 1) - 1;
        Integer(isGap ? end : charts_.axis.PlaceOf(last));
      });
    });
  }

  void Track() {
    const std::vector<analysis::DrawnPoint>& points = charts_.track;
    json_.Count("points", charts_.trackPoints);
    json_.Array("latitude", points, [this](const auto& point) {
      json_.Number(nullptr, Rounded(point.latitude, TenMillionth));
    });
    json_.Array("longitude", points, [this](const auto& point) {
      json_.Number(nullptr, Rounded(point.longitude, TenMillionth));
    });
    json_.Array("quality", points, [this](const auto& point) {
      json_.Count(nullptr, static_cast<std::uint64_t>(point.quality));
    });
    std::vector<std::size_t> begins;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (points[i].isFirst) begins.push_back(i);
    }
    json_.Array("begins", begins, [this](std::size_t at) { json_.Count(nullptr, at); });
    std::vector<analysis::FixQuality> qualities;
    for (std::size_t i = 0; i < analysis::FixQualities; ++i) {
      qualities.push_back(static_cast<analysis::FixQuality>(i));
    }
    json_.Array("qualities", qualities,
                [this](auto quality) { json_.Text(nullptr, NameOf(quality)); });
  }

  void SkyWay(const analysis::SkyWay& way) {
    json_.Object(nullptr, [&] {
      System(way.satellite.system);
      json_.Text("satellite", SatelliteName(way.satellite));
      json_.Number("mean_cn0_dbhz", Rounded(way.strength.Mean(), Tenth));
      json_.Array("azimuth", way.points,
                  [this](const auto& point) { json_.Number(nullptr, point.azimuth); });
      json_.Array("elevation", way.points,
                  [this](const auto& point) { json_.Number(nullptr, point.elevation); });
      std::vector<std::size_t> begins;
      for (std::size_t i = 0; i < way.points.size(); ++i) {
        if (way.points[i].isFirst) begins.push_back(i);
      }
      json_.Array("begins", begins, [this](std::size_t at) { json_.Count(nullptr, at); });
    });
  }

  DenseJsonWriter& json_;
  const Charts& charts_;
  const analysis::Contents& contents_;
  const analysis::Diagnosis& diagnosis_;
  std::vector<std::size_t> bins_;  // those that have something
};

}  // namespace

std::string ChartsJson(const Charts& charts, const analysis::Contents& contents,
                       const analysis::Diagnosis& diagnosis) {
  DenseJsonWriter json;
  json.Object(nullptr, [&] { Page(json, charts, contents, diagnosis).Members(); });
  return json.Done();
}

}  // namespace navframe::tool
