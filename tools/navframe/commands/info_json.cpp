#include "commands/info_json.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "commands/json_writer.h"
#include "commands/moments.h"

namespace navframe::tool {
namespace {

using analysis::Contents;
using analysis::Rhythm;

constexpr double NotKnown = std::numeric_limits<double>::quiet_NaN();

// Digits that mean something: of rates, shares and C/N0, of metres, of degrees.
double Rounded(double value, double per) { return std::round(value * per) / per; }
constexpr double Thousandth = 1e3;
constexpr double TenThousandth = 1e4;
constexpr double Billionth = 1e9;

class Page {
 public:
  Page(JsonWriter& json, const Contents& contents)
      : json_(json), contents_(contents), calendar_{contents.known, contents.leapSeconds} {}

  void Members() {
    json_.Count("size_bytes", contents_.bytes);
    json_.Flag("recognised", contents_.IsRecognised());
    json_.Object("time", [this] { Time(); });
    json_.Array("protocols", contents_.protocols, [this](const auto& one) { Protocol(one); });
    json_.Array("messages", contents_.messages, [this](const auto& one) { Message(one); });
    json_.Count("unlisted_frames", contents_.unlistedFrames);
    json_.Array("kinds", contents_.kinds, [this](const auto& one) { Kind(one); });
    Announced();
    json_.Object("satellites", [this] { Satellites(); });
    json_.Object("position", [this] { Position(); });
    json_.Object("outside_frames", [this] { Outside(); });
    json_.Array("rejected", contents_.rejections, [this](const auto& one) {
      json_.Object(nullptr, [&] {
        json_.Text("protocol", navframe_protocol_name(one.protocol));
        json_.Text("reason", navframe_reason_text(one.reason));
        json_.Count("count", one.count);
      });
    });
  }

 private:
  // A time as UTC, and as seconds behind the first one.
  void Moment(const char* utc, const char* seconds, const std::optional<std::int64_t>& time) {
    json_.TextIfAny(utc, time ? calendar_.Utc(*time) : "");
    std::optional<std::int64_t> since;
    if (time && contents_.first) since = *time - *contents_.first;
    json_.Seconds(seconds, since);
  }

  void GpsTime(const char* week, const char* tow, const std::optional<std::int64_t>& time) {
    const bool hasTow = time && contents_.known >= analysis::TimeKnown::TimeOfWeek;
    json_.IfKnown(
        week, calendar_.HasDate() && time ? std::optional(*time / analysis::WeekMs) : std::nullopt);
    json_.Seconds(tow, hasTow ? std::optional(*time % analysis::WeekMs) : std::nullopt);
  }

  void Time() {
    constexpr const char* Known[] = {"nothing", "time of day", "time of week", "date"};
    json_.Text("known", Known[static_cast<std::size_t>(contents_.known)]);
    json_.TextIfAny("first_utc", contents_.first ? calendar_.Utc(*contents_.first) : "");
    json_.TextIfAny("last_utc", contents_.last ? calendar_.Utc(*contents_.last) : "");
    GpsTime("first_gps_week", "first_gps_tow_s", contents_.first);
    GpsTime("last_gps_week", "last_gps_tow_s", contents_.last);
    std::optional<std::int64_t> span;
    if (contents_.first && contents_.last) span = *contents_.last - *contents_.first;
    json_.Seconds("duration_s", span);
    json_.IfKnown("leap_seconds_s",
                  calendar_.HasDate() ? std::optional(contents_.leapSeconds) : std::nullopt);
    json_.Count("jumps", contents_.jumps);
  }

  void Protocol(const analysis::ProtocolShare& share) {
    json_.Object(nullptr, [&] {
      json_.Text("protocol", navframe_protocol_name(share.protocol));
      json_.Count("frames", share.frames);
      json_.Count("bytes", share.bytes);
      const double all = contents_.bytes == 0 ? 1 : static_cast<double>(contents_.bytes);
      json_.Number("share", Rounded(static_cast<double>(share.bytes) / all, 1e6));
    });
  }

  void Rates(const Rhythm& rhythm) {
    const std::optional<double> hertz = rhythm.Hertz();
    json_.Count("count", rhythm.count);
    json_.Number("rate_hz", hertz ? Rounded(*hertz, TenThousandth) : NotKnown);
    Moment("first_utc", "first_s", rhythm.first);
    Moment("last_utc", "last_s", rhythm.last);
    json_.Number("usual_interval_s",
                 rhythm.usual ? Rounded(*rhythm.usual / 1e3, TenThousandth) : NotKnown);
    json_.Seconds("longest_gap_s", rhythm.gap);
    Moment("longest_gap_from_utc", "longest_gap_from_s", rhythm.gapFrom);
    json_.Count("jumps", rhythm.jumps);
  }

  void Message(const analysis::Message& message) {
    json_.Object(nullptr, [&] {
      json_.Text("protocol", navframe_protocol_name(message.protocol));
      json_.Text("message", message.message);
      json_.TextIfAny("name", message.name);
      json_.Array("kinds", message.kinds,
                  [&](const auto* kind) { json_.Text(nullptr, kind->name); });
      json_.Count("bytes", message.bytes);
      json_.Count("undecoded", message.undecoded);
      json_.Count("bad_content", message.badContent);
      json_.Count("bad_field", message.badField);
      Rates(message.rhythm);
    });
  }

  void Kind(const analysis::KindCount& count) {
    json_.Object(nullptr, [&] {
      json_.Text("kind", count.kind->name);
      json_.Text("description", count.kind->description);
      Rates(count.rhythm);
    });
  }

  void Place(const analysis::Ecef& position) {
    const analysis::Geodetic place = analysis::ToGeodetic(position);
    json_.Number("latitude_deg", Rounded(place.latitude, Billionth));
    json_.Number("longitude_deg", Rounded(place.longitude, Billionth));
    json_.Number("height_ellipsoid_m", Rounded(place.height, TenThousandth));
    json_.Number("x_m", Rounded(position.x, TenThousandth));
    json_.Number("y_m", Rounded(position.y, TenThousandth));
    json_.Number("z_m", Rounded(position.z, TenThousandth));
  }

  void Announced() {
    json_.Array("stations", contents_.announced.points, [this](const auto& one) {
      json_.Object(nullptr, [&] {
        json_.Count("station_id", one.stationId);
        json_.Count("message", one.message);
        json_.Count("count", one.count);
        Place(one.position);
        json_.Number("antenna_height_m", one.antennaHeight);
        json_.Flag("virtual", one.isComputed);
      });
    });
    json_.Array("station_equipment", contents_.announced.equipment, [this](const auto& one) {
      json_.Object(nullptr, [&] {
        json_.Count("station_id", one.stationId);
        json_.Count("message", one.message);
        json_.Count("count", one.count);
        json_.TextIfAny("antenna", one.antenna);
        json_.TextIfAny("antenna_serial", one.antennaSerial);
        json_.TextIfAny("receiver", one.receiver);
        json_.TextIfAny("firmware", one.firmware);
        json_.TextIfAny("receiver_serial", one.receiverSerial);
      });
    });
    json_.Array("receivers", contents_.announced.versions, [this](const auto& one) {
      json_.Object(nullptr, [&] {
        json_.Text("software", one.software);
        json_.Text("hardware", one.hardware);
        json_.Array("extensions", one.extensions,
                    [&](const auto& text) { json_.Text(nullptr, text); });
        json_.Count("count", one.count);
      });
    });
    json_.Array("texts", contents_.announced.texts, [this](const auto& one) {
      json_.Object(nullptr, [&] {
        json_.Text("from", one.from);
        json_.Text("text", one.text);
        json_.Count("count", one.count);
      });
    });
    json_.Count("unlisted_announcements", contents_.announced.leftOut);
  }

  void Strengths(const char* list, const char* name,
                 const std::vector<analysis::NamedStrength>& strengths) {
    json_.Array(list, strengths, [&](const analysis::NamedStrength& one) {
      json_.Object(nullptr, [&] {
        json_.Text("system", analysis::SystemName(one.system));
        if (name != nullptr) json_.Text(name, one.name);
        json_.Count("count", one.strength.count);
        json_.Number("mean_cn0_dbhz", Rounded(one.strength.Mean(), Thousandth));
      });
    });
  }

  void Satellites() {
    json_.TextIfAny("from", analysis::NameOf(contents_.seen.in));
    Strengths("systems", nullptr, contents_.seen.systems);
    Strengths("satellites", "satellite", contents_.seen.satellites);
    Strengths("signals", "signal", contents_.seen.signals);
  }

  void Position() {
    const analysis::PositionFound& found = contents_.position;
    std::uint64_t epochs = 0;
    for (const std::uint64_t count : found.qualities) epochs += count;
    json_.TextIfAny("source", analysis::NameOf(found.source));
    json_.Count("epochs", epochs);
    json_.Count("fixes", found.cloud.Count());
    json_.Object("mean", [&] {
      if (found.cloud.Count() != 0) Place(found.cloud.Mean());
    });
    json_.Object("standard_deviation", [&] {
      if (found.cloud.Count() == 0) return;
      const analysis::Cloud::Spread spread = found.cloud.Deviations();
      json_.Number("east_m", Rounded(spread.east, TenThousandth));
      json_.Number("north_m", Rounded(spread.north, TenThousandth));
      json_.Number("up_m", found.hasHeight ? Rounded(spread.up, TenThousandth) : NotKnown);
    });
    json_.Object("quality_shares", [&] {
      for (std::size_t i = 0; i < analysis::FixQualities; ++i) {
        if (found.qualities[i] == 0) continue;
        json_.Number(
            analysis::NameOf(static_cast<analysis::FixQuality>(i)),
            Rounded(static_cast<double>(found.qualities[i]) / static_cast<double>(epochs), 1e6));
      }
    });
  }

  void Outside() {
    json_.Count("bytes", contents_.outside.bytes);
    json_.Count("places", contents_.outside.places);
    json_.IfKnown("first_offset_bytes", contents_.outside.firstOffset);
    json_.Count("longest_bytes", contents_.outside.longest);
    json_.IfKnown("longest_offset_bytes", contents_.outside.longestOffset);
  }

  JsonWriter& json_;
  const Contents& contents_;
  const Calendar calendar_;
};

}  // namespace

std::string InfoJson(const std::vector<NamedContents>& files, const Contents& total) {
  JsonWriter json;
  json.Object(nullptr, [&] {
    json.Array("files", files, [&](const NamedContents& file) {
      json.Object(nullptr, [&] {
        json.Text("source", file.first);
        Page(json, file.second).Members();
      });
    });
    if (files.size() > 1) json.Object("total", [&] { Page(json, total).Members(); });
  });
  return json.Done() + "\n";
}

}  // namespace navframe::tool
