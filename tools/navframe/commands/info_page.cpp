#include "commands/info_page.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "analysis/signal_names.h"
#include "commands/moments.h"
#include "commands/text_table.h"
#include "printable.h"

namespace navframe::tool {
namespace {

using analysis::Contents;
using analysis::Rhythm;
using enum TextTable::Side;

std::string Printable(std::string_view text) {
  std::string out;
  AppendPrintable(text, out);
  return out;
}

std::string Percent(double part, double whole) {
  return whole == 0 ? "" : Fixed(100 * part / whole, 1) + " %";
}
std::string Percent(std::uint64_t part, std::uint64_t whole) {
  return Percent(static_cast<double>(part), static_cast<double>(whole));
}

std::string Bytes(std::uint64_t bytes) {
  constexpr double Million = 1e6;
  std::string text = std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
  if (bytes >= 1'000'000) text += " (" + Fixed(static_cast<double>(bytes) / Million, 1) + " MB)";
  return text;
}

std::string Degrees(double angle, char positive, char negative) {
  return Fixed(std::fabs(angle), 8) + "° " + (angle < 0 ? negative : positive);
}

std::string Place(const analysis::Ecef& position, bool hasHeight) {
  const analysis::Geodetic place = analysis::ToGeodetic(position);
  std::string text = Degrees(place.latitude, 'N', 'S') + ", " + Degrees(place.longitude, 'E', 'W');
  if (hasHeight) text += ", " + Fixed(place.height, 3) + " m above the ellipsoid";
  return text;
}

class Page {
 public:
  Page(const Contents& contents, std::string& out)
      : contents_(contents),
        calendar_{contents.known, contents.leapSeconds},
        hasOneDay_(HasOneDay()),
        out_(out) {}

  void Append(const std::string& heading) {
    out_.append(heading).append("\n");
    Line("size", Bytes(contents_.bytes) + (contents_.bytes == 0 ? ": empty" : ""));
    if (!contents_.IsRecognised()) {
      if (contents_.bytes != 0) Line("", "nothing was recognised");
      return;
    }
    Time();
    Protocols();
    Messages();
    Kinds();
    Announced();
    Satellites();
    Position();
    Damage();
  }

 private:
  bool HasOneDay() const {
    const auto day = [&](std::int64_t time) {
      return (time - contents_.leapSeconds * analysis::SecondMs) / analysis::DayMs;
    };
    return !calendar_.HasDate() ||
           (contents_.first && day(*contents_.first) == day(*contents_.last));
  }

  // A label, and what belongs to it; more lines of it have none.
  void Line(std::string_view label, std::string_view text) {
    constexpr std::size_t Width = 12;
    out_.append("  ").append(label).append(Width - std::min(Width - 1, label.size()), ' ');
    out_.append(text).append("\n");
  }

  std::string Moment(std::int64_t time) const {
    return hasOneDay_ ? calendar_.TimeOfDay(time) : calendar_.Shown(time);
  }

  void Time() {
    using analysis::TimeKnown;
    if (!contents_.first) return Line("time", "not told");
    const std::int64_t span = *contents_.last - *contents_.first;
    const bool isDate = calendar_.HasDate();
    constexpr const char* Scales[] = {"", " UTC, no date", " of the GPS week, which is not told",
                                      " UTC"};
    Line("time", calendar_.Shown(*contents_.first) + " to " + Moment(*contents_.last) +
                     Scales[static_cast<std::size_t>(contents_.known)] + ", " + Duration(span));
    if (isDate) {
      const std::int64_t week = *contents_.first / analysis::WeekMs;
      const std::int64_t lastWeek = *contents_.last / analysis::WeekMs;
      const auto tow = [](std::int64_t time) {
        return Fixed(static_cast<double>(time % analysis::WeekMs) / 1e3, 3) + " s";
      };
      Line("", "GPS week " + std::to_string(week) + ", " + tow(*contents_.first) + " to " +
                   (lastWeek == week ? "" : "week " + std::to_string(lastWeek) + ", ") +
                   tow(*contents_.last) + "; ahead of UTC by " +
                   std::to_string(contents_.leapSeconds) + " s");
    }
    if (contents_.jumps != 0) {
      Line("", "jumps " + std::to_string(contents_.jumps) +
                   (contents_.jumps == 1 ? " time" : " times") +
                   ": back, or ahead by more than a day");
    }
  }

  void Protocols() {
    TextTable table({{"protocol", Left}, {"frames", Right}, {"bytes", Right}, {"share", Right}});
    for (const auto& one : contents_.protocols) {
      table.Add({navframe_protocol_name(one.protocol), std::to_string(one.frames),
                 std::to_string(one.bytes), Percent(one.bytes, contents_.bytes)});
    }
    const std::uint64_t outside = contents_.outside.bytes;
    table.Add(
        {"outside of frames", "", std::to_string(outside), Percent(outside, contents_.bytes)});
    Put(table);
  }

  void Put(const TextTable& table) {
    out_ += '\n';
    table.AppendTo(out_);
  }

  static std::vector<TextTable::Column> WithRates(std::vector<TextTable::Column> columns) {
    columns.insert(columns.end(), {{"count", Right},
                                   {"Hz", Right},
                                   {"first", Left},
                                   {"last", Left},
                                   {"longest gap", Right},
                                   {"from", Left}});
    return columns;
  }
  void AddRates(const Rhythm& rhythm, std::vector<std::string>& cells) const {
    const std::optional<double> hertz = rhythm.Hertz();
    cells.push_back(std::to_string(rhythm.count));
    cells.push_back(hertz ? Fixed(*hertz, 3) : "");
    cells.push_back(rhythm.first ? Moment(*rhythm.first) : "");
    cells.push_back(rhythm.last ? Moment(*rhythm.last) : "");
    cells.push_back(rhythm.gap ? Duration(*rhythm.gap) : "");
    cells.push_back(rhythm.gapFrom ? Moment(*rhythm.gapFrom) : "");
  }

  static std::string RecordsOf(const analysis::Message& message) {
    std::string text;
    for (const NavframeKind* kind : message.kinds) {
      text.append(text.empty() ? "" : ", ").append(kind->name);
    }
    return text.empty() ? "none" : text;
  }

  void Messages() {
    TextTable table(WithRates({{"message", Left}, {"name", Left}, {"records", Left}}));
    for (const analysis::Message& message : contents_.messages) {
      const std::string protocol = navframe_protocol_name(message.protocol);
      std::vector<std::string> cells = {
          protocol + (message.message.empty() ? "" : " ") + Printable(message.message),
          message.name, RecordsOf(message)};
      AddRates(message.rhythm, cells);
      table.Add(std::move(cells));
    }
    Put(table);
    for (const analysis::Message& message : contents_.messages) {
      const auto note = [&](std::uint64_t count, NavframeReason reason) {
        if (count == 0) return;
        out_.append("  ").append(navframe_protocol_name(message.protocol)).append(" ");
        out_.append(Printable(message.message)).append(", ").append(std::to_string(count));
        out_.append(" of ").append(std::to_string(message.rhythm.count)).append(": ");
        out_.append(navframe_reason_text(reason)).append("\n");
      };
      note(message.badContent, NavframeBadContent);
      note(message.badField, NavframeBadField);
    }
    if (contents_.unlistedFrames != 0) {
      out_.append("  and ").append(std::to_string(contents_.unlistedFrames));
      out_.append(" frames of more messages than are listed\n");
    }
  }

  void Kinds() {
    if (contents_.kinds.empty()) return;
    TextTable table(WithRates({{"records", Left}}));
    for (const analysis::KindCount& one : contents_.kinds) {
      std::vector<std::string> cells = {one.kind->name};
      AddRates(one.rhythm, cells);
      table.Add(std::move(cells));
    }
    Put(table);
  }

  static std::string Times(std::uint64_t count) {
    return count == 1 ? "" : " (" + std::to_string(count) + " times)";
  }

  void Announced() {
    const analysis::Announced& announced = contents_.announced;
    const bool isAny = !announced.points.empty() || !announced.equipment.empty() ||
                       !announced.versions.empty() || !announced.texts.empty();
    if (isAny) out_ += '\n';
    for (const auto& one : announced.points) {
      std::string text = Place(one.position, true);
      if (!std::isnan(one.antennaHeight)) {
        text += ", " + Fixed(one.antennaHeight, 4) + " m above the marker";
      }
      if (one.isComputed) text += ", virtual";
      Line("station", std::to_string(one.stationId) + ": " + text + Times(one.count));
    }
    for (const auto& one : announced.equipment) {
      std::string text;
      const auto add = [&text](const char* what, const std::string& name,
                               const std::string& serial) {
        if (name.empty() && serial.empty()) return;
        text.append(text.empty() ? "" : ", ").append(what).append(" ").append(Printable(name));
        if (!serial.empty()) text.append(" no. ").append(Printable(serial));
      };
      add("antenna", one.antenna, one.antennaSerial);
      add("receiver", one.receiver, one.receiverSerial);
      add("firmware", one.firmware, "");
      if (text.empty()) text = "message " + std::to_string(one.message) + " without a text";
      Line("station", std::to_string(one.stationId) + ": " + text + Times(one.count));
    }
    for (const auto& one : announced.versions) {
      Line("receiver",
           Printable(one.software) + ", hardware " + Printable(one.hardware) + Times(one.count));
      for (const auto& text : one.extensions) Line("", "  " + Printable(text));
    }
    for (const auto& one : announced.texts) {
      Line("text", Printable(one.from) + ": " + Printable(one.text) + Times(one.count));
    }
    if (announced.leftOut != 0) {
      Line("", "and " + std::to_string(announced.leftOut) + " more announcements");
    }
  }

  static std::string Mean(const analysis::Strength& one) {
    return one.measured == 0 ? "" : Fixed(one.Mean(), 1);
  }

  void Satellites() {
    const analysis::Seen& seen = contents_.seen;
    if (seen.systems.empty()) return;
    const bool isObserved = seen.in == analysis::SeenIn::Observations;
    out_ += '\n';
    Line("satellites", isObserved ? "as observed"
                                  : std::string("of ") + analysis::NameOf(seen.in) +
                                        ", those that a signal came from");
    TextTable table({{"system", Left},
                     {"signal", Left},
                     {"satellites", Right},
                     {"count", Right},
                     {"mean dB-Hz", Right}});
    for (const auto& one : seen.systems) {
      const auto count =
          std::ranges::count(seen.satellites, one.system, &analysis::NamedStrength::system);
      table.Add({analysis::SystemName(one.system), "", std::to_string(count),
                 std::to_string(one.strength.count), Mean(one.strength)});
      for (const auto& signal : seen.signals) {
        if (signal.system != one.system) continue;
        table.Add(
            {"", signal.name, "", std::to_string(signal.strength.count), Mean(signal.strength)});
      }
    }
    table.AppendTo(out_);
    SatelliteGrid();
  }

  // Satellites side by side, down the columns.
  void SatelliteGrid() {
    const auto& satellites = contents_.seen.satellites;
    constexpr std::size_t Most = 4;
    const std::size_t columns = std::min(Most, satellites.size());
    const std::size_t rows = (satellites.size() + columns - 1) / columns;
    std::vector<TextTable::Column> heading;
    for (std::size_t i = 0; i < columns; ++i) {
      heading.insert(
          heading.end(),
          {{i == 0 ? "satellite" : "    satellite", Left}, {"count", Right}, {"dB-Hz", Right}});
    }
    TextTable table(heading);
    for (std::size_t row = 0; row < rows; ++row) {
      std::vector<std::string> cells;
      for (std::size_t at = row; at < satellites.size(); at += rows) {
        const auto& one = satellites[at];
        cells.push_back((at == row ? "" : "    ") + one.name);
        cells.push_back(std::to_string(one.strength.count));
        cells.push_back(Mean(one.strength));
      }
      table.Add(std::move(cells));
    }
    Put(table);
  }

  void Position() {
    const analysis::PositionFound& found = contents_.position;
    if (found.source == analysis::FixSource::Nothing) return;
    std::uint64_t epochs = 0;
    for (const std::uint64_t count : found.qualities) epochs += count;
    out_ += '\n';
    std::string shares;
    for (std::size_t i = 0; i < analysis::FixQualities; ++i) {
      if (found.qualities[i] == 0) continue;
      shares.append(shares.empty() ? "" : ", ").append(Percent(found.qualities[i], epochs));
      shares.append(" ").append(analysis::NameOf(static_cast<analysis::FixQuality>(i)));
    }
    Line("position", std::string("of ") + analysis::NameOf(found.source) + ", " +
                         std::to_string(found.cloud.Count()) +
                         (found.cloud.Count() == 1 ? " fix in " : " fixes in ") +
                         std::to_string(epochs) + (epochs == 1 ? " epoch: " : " epochs: ") +
                         shares);
    if (found.cloud.Count() == 0) return;
    const analysis::Cloud::Spread spread = found.cloud.Deviations();
    Line("mean", Place(found.cloud.Mean(), found.hasHeight));
    Line("deviation", Fixed(spread.east, 3) + " m east, " + Fixed(spread.north, 3) + " m north" +
                          (found.hasHeight ? ", " + Fixed(spread.up, 3) + " m up" : ""));
  }

  void Damage() {
    const analysis::Outside& outside = contents_.outside;
    if (outside.bytes == 0) return;
    out_ += '\n';
    std::string text = Bytes(outside.bytes) + " in " + std::to_string(outside.places) +
                       (outside.places == 1 ? " place" : " places");
    if (outside.firstOffset) text += ", the first at byte " + std::to_string(*outside.firstOffset);
    if (outside.places > 1) {
      text += "; the longest " + Bytes(outside.longest);
      if (outside.longestOffset) text += " at byte " + std::to_string(*outside.longestOffset);
    }
    Line("outside", text);
    Rejections();
  }

  // A row for each cause, a column for each protocol.
  void Rejections() {
    std::vector<std::uint32_t> protocols;
    std::vector<std::uint32_t> reasons;
    for (const auto& one : contents_.rejections) {
      if (std::ranges::find(protocols, one.protocol) == protocols.end()) {
        protocols.push_back(one.protocol);
      }
      if (std::ranges::find(reasons, one.reason) == reasons.end()) reasons.push_back(one.reason);
    }
    if (reasons.empty()) return;
    std::ranges::sort(reasons);
    std::vector<TextTable::Column> heading = {{"what seemed to begin a frame", Left}};
    for (const std::uint32_t protocol : protocols) {
      heading.push_back({navframe_protocol_name(protocol), Right});
    }
    TextTable table(heading);
    for (const std::uint32_t reason : reasons) {
      std::vector<std::string> cells = {navframe_reason_text(reason)};
      for (const std::uint32_t protocol : protocols) {
        const auto one = std::ranges::find_if(contents_.rejections, [&](const auto& candidate) {
          return candidate.protocol == protocol && candidate.reason == reason;
        });
        cells.push_back(one == contents_.rejections.end() ? "" : std::to_string(one->count));
      }
      table.Add(std::move(cells));
    }
    table.AppendTo(out_);
  }

  const Contents& contents_;
  const Calendar calendar_;
  const bool hasOneDay_;
  std::string& out_;
};

}  // namespace

void AppendInfoPage(const std::string& heading, const Contents& contents, std::string& out) {
  Page(contents, out).Append(Printable(heading));
}

}  // namespace navframe::tool
