#include "commands/info_members.h"

#include <cmath>
#include <limits>
#include <optional>

#include "analysis/signal_names.h"
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
  Page(const Contents& contents, Members& out)
      : out_(out), contents_(contents), calendar_{contents.known, contents.leapSeconds} {}

  void Tell() {
    out_.Count("size_bytes", contents_.bytes);
    out_.Flag("recognised", contents_.IsRecognised());
    out_.Object("time", [this] { Time(); });
    out_.Array("protocols", contents_.protocols, [this](const auto& one) { Protocol(one); });
    out_.Array("messages", contents_.messages, [this](const auto& one) { Message(one); });
    out_.Count("unlisted_frames", contents_.unlistedFrames);
    out_.Array("kinds", contents_.kinds, [this](const auto& one) { Kind(one); });
    Announced();
    out_.Object("satellites", [this] { Satellites(); });
    out_.Object("position", [this] { Position(); });
    out_.Object("outside_frames", [this] { Outside(); });
    out_.Array("rejected", contents_.rejections, [this](const auto& one) {
      out_.Object(nullptr, [&] {
        out_.Text("protocol", navframe_protocol_name(one.protocol));
        out_.Text("reason", navframe_reason_text(one.reason));
        out_.Count("count", one.count);
      });
    });
  }

 private:
  // A time as UTC, and as seconds behind the first one.
  void Moment(const char* utc, const char* seconds, const std::optional<std::int64_t>& time) {
    out_.TextIfAny(utc, time ? calendar_.Utc(*time) : "");
    std::optional<std::int64_t> since;
    if (time && contents_.first) since = *time - *contents_.first;
    out_.Seconds(seconds, since);
  }

  void GpsTime(const char* week, const char* tow, const std::optional<std::int64_t>& time) {
    const bool hasTow = time && contents_.known >= analysis::TimeKnown::TimeOfWeek;
    out_.IfKnown(
        week, calendar_.HasDate() && time ? std::optional(*time / analysis::WeekMs) : std::nullopt);
    out_.Seconds(tow, hasTow ? std::optional(*time % analysis::WeekMs) : std::nullopt);
  }

  void Time() {
    constexpr const char* Known[] = {"nothing", "time of day", "time of week", "date"};
    out_.Text("known", Known[static_cast<std::size_t>(contents_.known)]);
    out_.TextIfAny("first_utc", contents_.first ? calendar_.Utc(*contents_.first) : "");
    out_.TextIfAny("last_utc", contents_.last ? calendar_.Utc(*contents_.last) : "");
    GpsTime("first_gps_week", "first_gps_tow_s", contents_.first);
    GpsTime("last_gps_week", "last_gps_tow_s", contents_.last);
    std::optional<std::int64_t> span;
    if (contents_.first && contents_.last) span = *contents_.last - *contents_.first;
    out_.Seconds("duration_s", span);
    out_.IfKnown("leap_seconds_s",
                 calendar_.HasDate() ? std::optional(contents_.leapSeconds) : std::nullopt);
    out_.Count("jumps", contents_.jumps);
  }

  void Protocol(const analysis::ProtocolShare& share) {
    out_.Object(nullptr, [&] {
      out_.Text("protocol", navframe_protocol_name(share.protocol));
      out_.Count("frames", share.frames);
      out_.Count("bytes", share.bytes);
      const double all = contents_.bytes == 0 ? 1 : static_cast<double>(contents_.bytes);
      out_.Number("share", Rounded(static_cast<double>(share.bytes) / all, 1e6));
    });
  }

  void Rates(const Rhythm& rhythm) {
    const std::optional<double> hertz = rhythm.Hertz();
    out_.Count("count", rhythm.count);
    out_.Number("rate_hz", hertz ? Rounded(*hertz, TenThousandth) : NotKnown);
    Moment("first_utc", "first_s", rhythm.first);
    Moment("last_utc", "last_s", rhythm.last);
    out_.Number("usual_interval_s",
                rhythm.usual ? Rounded(*rhythm.usual / 1e3, TenThousandth) : NotKnown);
    out_.Seconds("longest_gap_s", rhythm.gap);
    Moment("longest_gap_from_utc", "longest_gap_from_s", rhythm.gapFrom);
    out_.Count("jumps", rhythm.jumps);
  }

  void Message(const analysis::Message& message) {
    out_.Object(nullptr, [&] {
      out_.Text("protocol", navframe_protocol_name(message.protocol));
      out_.Text("message", message.message);
      out_.TextIfAny("name", message.name);
      out_.Array("kinds", message.kinds, [&](const auto* kind) { out_.Text(nullptr, kind->name); });
      out_.Count("bytes", message.bytes);
      out_.Count("undecoded", message.undecoded);
      out_.Count("bad_content", message.badContent);
      out_.Count("bad_field", message.badField);
      Rates(message.rhythm);
    });
  }

  void Kind(const analysis::KindCount& count) {
    out_.Object(nullptr, [&] {
      out_.Text("kind", count.kind->name);
      out_.Text("description", count.kind->description);
      Rates(count.rhythm);
    });
  }

  void Place(const analysis::Ecef& position) {
    const analysis::Geodetic place = analysis::ToGeodetic(position);
    out_.Number("latitude_deg", Rounded(place.latitude, Billionth));
    out_.Number("longitude_deg", Rounded(place.longitude, Billionth));
    out_.Number("height_ellipsoid_m", Rounded(place.height, TenThousandth));
    out_.Number("x_m", Rounded(position.x, TenThousandth));
    out_.Number("y_m", Rounded(position.y, TenThousandth));
    out_.Number("z_m", Rounded(position.z, TenThousandth));
  }

  void Announced() {
    out_.Array("stations", contents_.announced.points, [this](const auto& one) {
      out_.Object(nullptr, [&] {
        out_.Count("station_id", one.stationId);
        out_.Count("message", one.message);
        out_.Count("count", one.count);
        Place(one.position);
        out_.Number("antenna_height_m", one.antennaHeight);
        out_.Flag("virtual", one.isComputed);
      });
    });
    out_.Array("station_equipment", contents_.announced.equipment, [this](const auto& one) {
      out_.Object(nullptr, [&] {
        out_.Count("station_id", one.stationId);
        out_.Count("message", one.message);
        out_.Count("count", one.count);
        out_.TextIfAny("antenna", one.antenna);
        out_.TextIfAny("antenna_serial", one.antennaSerial);
        out_.TextIfAny("receiver", one.receiver);
        out_.TextIfAny("firmware", one.firmware);
        out_.TextIfAny("receiver_serial", one.receiverSerial);
      });
    });
    out_.Array("receivers", contents_.announced.versions, [this](const auto& one) {
      out_.Object(nullptr, [&] {
        out_.Text("software", one.software);
        out_.Text("hardware", one.hardware);
        out_.Array("extensions", one.extensions,
                   [&](const auto& text) { out_.Text(nullptr, text); });
        out_.Count("count", one.count);
      });
    });
    out_.Array("texts", contents_.announced.texts, [this](const auto& one) {
      out_.Object(nullptr, [&] {
        out_.Text("from", one.from);
        out_.Text("text", one.text);
        out_.Count("count", one.count);
      });
    });
    out_.Count("unlisted_announcements", contents_.announced.leftOut);
  }

  void Strengths(const char* list, const char* name,
                 const std::vector<analysis::NamedStrength>& strengths) {
    out_.Array(list, strengths, [&](const analysis::NamedStrength& one) {
      out_.Object(nullptr, [&] {
        out_.Text("system", analysis::SystemName(one.system));
        if (name != nullptr) out_.Text(name, one.name);
        out_.Count("count", one.strength.count);
        out_.Number("mean_cn0_dbhz", Rounded(one.strength.Mean(), Thousandth));
      });
    });
  }

  void Satellites() {
    out_.TextIfAny("from", analysis::NameOf(contents_.seen.in));
    Strengths("systems", nullptr, contents_.seen.systems);
    Strengths("satellites", "satellite", contents_.seen.satellites);
    Strengths("signals", "signal", contents_.seen.signals);
  }

  void Position() {
    const analysis::PositionFound& found = contents_.position;
    std::uint64_t epochs = 0;
    for (const std::uint64_t count : found.qualities) epochs += count;
    out_.TextIfAny("source", analysis::NameOf(found.source));
    out_.Count("epochs", epochs);
    out_.Count("fixes", found.cloud.Count());
    out_.Object("mean", [&] {
      if (found.cloud.Count() != 0) Place(found.cloud.Mean());
    });
    out_.Object("standard_deviation", [&] {
      if (found.cloud.Count() == 0) return;
      const analysis::Cloud::Spread spread = found.cloud.Deviations();
      out_.Number("east_m", Rounded(spread.east, TenThousandth));
      out_.Number("north_m", Rounded(spread.north, TenThousandth));
      out_.Number("up_m", found.hasHeight ? Rounded(spread.up, TenThousandth) : NotKnown);
    });
    out_.Object("quality_shares", [&] {
      for (std::size_t i = 0; i < analysis::FixQualities; ++i) {
        if (found.qualities[i] == 0) continue;
        out_.Number(
            analysis::NameOf(static_cast<analysis::FixQuality>(i)),
            Rounded(static_cast<double>(found.qualities[i]) / static_cast<double>(epochs), 1e6));
      }
    });
  }

  void Outside() {
    out_.Count("bytes", contents_.outside.bytes);
    out_.Count("places", contents_.outside.places);
    out_.IfKnown("first_offset_bytes", contents_.outside.firstOffset);
    out_.Count("longest_bytes", contents_.outside.longest);
    out_.IfKnown("longest_offset_bytes", contents_.outside.longestOffset);
  }

  Members& out_;
  const Contents& contents_;
  const Calendar calendar_;
};

}  // namespace

void TellRecordings(const std::vector<NamedContents>& files, const Contents& total, Members& out) {
  out.Object(nullptr, [&] {
    out.Array("files", files, [&](const NamedContents& file) {
      out.Object(nullptr, [&] {
        out.TextIfAny("source", file.first);
        Page(file.second, out).Tell();
      });
    });
    if (files.size() > 1) out.Object("total", [&] { Page(total, out).Tell(); });
  });
}

}  // namespace navframe::tool
