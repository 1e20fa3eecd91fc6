#include "rinex/observation_header.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include "rinex/header_lines.h"

namespace navframe::tool {
namespace {

constexpr std::uint32_t MostCounted = 999'999;  // six places

[[gnu::format(printf, 1, 2)]] std::string Text(const char* format, ...) {
  std::array<char, 128> text{};
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text.data(), text.size(), format, arguments);
  va_end(arguments);
  return text.data();
}

// Texts in columns of this width.
std::string InColumns(std::initializer_list<std::string_view> texts, std::size_t width) {
  std::string line;
  for (const std::string_view text : texts) {
    line.append(text.substr(0, width));
    line.append(width - std::min(text.size(), width), ' ');
  }
  return line;
}

// The user's text at this place of several, else that of the stream.
std::string_view Or(const std::vector<std::string>& texts, std::size_t place,
                    const std::string& otherwise) {
  return place < texts.size() ? texts[place] : otherwise;
}

// Items of the same width behind a head, as many as have room in a line.
class ItemLines {
 public:
  ItemLines(std::string& out, std::string head, std::string_view label, std::size_t most)
      : out_(out), line_(std::move(head)), headLength_(line_.size()), label_(label), most_(most) {}
  void Add(std::string_view item) {
    if (count_ == most_) {
      PutLine(out_, line_, label_);
      line_.assign(headLength_, ' ');
      count_ = 0;
    }
    line_.append(item);
    ++count_;
  }
  void End() { PutLine(out_, line_, label_); }

 private:
  std::string& out_;
  std::string line_;
  std::size_t headLength_;
  std::string_view label_;
  std::size_t most_;
  std::size_t count_ = 0;
};

class Lines {
 public:
  Lines(const ObservationHeader& header, std::string& out)
      : header_(header),
        summary_(header.summary),
        equipment_(header.notes.Of(header.station)),
        out_(out) {}

  void Put() {
    First();
    Marker();
    EquipmentLines();
    Place();
    Types();
    Times();
    PhaseShifts();
    GlonassLines();
    if (const auto leap = header_.notes.LeapSeconds()) {
      PutLine(out_, Text("%6d", *leap), "LEAP SECONDS");
    }
    Counts();
    PutLine(out_, "", "END OF HEADER");
  }

 private:
  bool HasSystem(std::size_t system) const { return !header_.columns[system].empty(); }

  void First() {
    char only = 'M';
    std::size_t systems = 0;
    for (std::size_t system = 1; system < SystemCount; ++system) {
      if (HasSystem(system) && systems++ == 0) only = SystemLetters[system];
    }
    PutFirstLines(out_, {header_.version == 4 ? "4.02" : "3.05", 'O', systems == 1 ? only : 'M',
                         header_.texts.runBy, DateOfFile(summary_.First())});
    if (!header_.dateFrom.empty()) {
      PutComment(out_, "weeks: " + std::string(header_.dateFrom));
    }
  }

  void Marker() {
    const StationTexts& texts = header_.texts;
    std::string marker = texts.marker;
    if (marker.empty()) marker = header_.marker;
    if (marker.empty() && header_.station && *header_.station != UbxReceiver) {
      marker = Text("%04d", *header_.station);
    }
    PutLine(out_, marker.empty() ? "UNKNOWN" : marker, "MARKER NAME");
    if (!texts.markerNumber.empty()) PutLine(out_, texts.markerNumber, "MARKER NUMBER");
    if (!texts.markerType.empty()) PutLine(out_, texts.markerType, "MARKER TYPE");
    PutLine(out_, InColumns({texts.observer}, 20) + InColumns({texts.agency}, 40),
            "OBSERVER / AGENCY");
  }

  void EquipmentLines() {
    const auto& receiver = header_.texts.receiver;
    const auto& antenna = header_.texts.antenna;
    PutLine(out_,
            InColumns({Or(receiver, 1, equipment_.receiverSerial),
                       Or(receiver, 0, equipment_.receiver), Or(receiver, 2, equipment_.firmware)},
                      20),
            "REC # / TYPE / VERS");
    PutLine(out_,
            InColumns(
                {Or(antenna, 1, equipment_.antennaSerial), Or(antenna, 0, equipment_.antenna)}, 20),
            "ANT # / TYPE");
  }

  void Place() {
    Vector position = {0, 0, 0};
    std::string from = "position: not known";
    if (header_.texts.position) {
      position = *header_.texts.position;
      from = "position: given by the user";
    } else if (equipment_.position && header_.station != UbxReceiver) {
      position = *equipment_.position;
      from = "position: message " + std::to_string(equipment_.positionMessage);
    } else if (header_.notes.Fix()) {
      position = *header_.notes.Fix();
      from = "position: the first of " + header_.notes.FixMessage();
    }
    PutComment(out_, from);
    PutLine(out_, Text("%14.4f%14.4f%14.4f", position[0], position[1], position[2]),
            "APPROX POSITION XYZ");
    const double height = header_.texts.antennaHeight.value_or(equipment_.antennaHeight);
    PutLine(out_, Text("%14.4f%14.4f%14.4f", height, 0.0, 0.0), "ANTENNA: DELTA H/E/N");
  }

  std::string NameOf(std::size_t system, const TypeColumn& column) const {
    std::string name(1, ValueLetters[static_cast<std::size_t>(column.value)]);
    return name.append(header_.names.Name(system, column.signal));
  }

  void Types() {
    constexpr std::size_t InLine = 13;
    for (std::size_t system = 1; system < SystemCount; ++system) {
      if (!HasSystem(system)) continue;
      const auto& columns = header_.columns[system];
      ItemLines lines(out_, Text("%c  %3zu", SystemLetters[system], columns.size()),
                      "SYS / # / OBS TYPES", InLine);
      for (const TypeColumn& column : columns) lines.Add(" " + NameOf(system, column));
      lines.End();
    }
    PutLine(out_, "DBHZ", "SIGNAL STRENGTH UNIT");
  }

  void Time(Ticks time, std::string_view label) {
    const CalendarTime calendar = CalendarOf(time);
    const auto seconds = static_cast<int>(calendar.ofMinute / TicksPerSecond);
    const auto rest = static_cast<int>(calendar.ofMinute % TicksPerSecond);
    PutLine(out_,
            Text("%6d%6u%6u%6d%6d%5d.%07d     GPS", calendar.year, calendar.month, calendar.day,
                 calendar.hour, calendar.minute, seconds, rest),
            label);
  }

  void Times() {
    if (const Ticks interval = summary_.Interval(); interval != 0) {
      PutLine(out_, Text("%10.3f", SecondsOf(interval)), "INTERVAL");
    }
    Time(summary_.First(), "TIME OF FIRST OBS");
    Time(summary_.Last(), "TIME OF LAST OBS");
    if (summary_.HasClockOffsets()) PutLine(out_, "     0", "RCV CLOCK OFFS APPL");
  }

  // Version 4 wants neither these lines nor those of the biases of GLONASS. Phases of MSM are
  // aligned by their standard and written as they are; of others it is not known what was done to
  // them, which a line without a code says.
  void PhaseShifts() {
    if (header_.version == 4) return;
    for (std::size_t system = 1; system < SystemCount; ++system) {
      if (!HasSystem(system)) continue;
      bool isTold = false;
      for (const TypeColumn& column : header_.columns[system]) {
        if (column.value != Value::Phase || !header_.phasesAreAligned) continue;
        PutLine(out_,
                Text("%c %s %8.5f", SystemLetters[system], NameOf(system, column).c_str(), 0.0),
                "SYS / PHASE SHIFT");
        isTold = true;
      }
      if (!isTold) PutLine(out_, SystemLetters.substr(system, 1), "SYS / PHASE SHIFT");
    }
  }

  void GlonassLines() {
    if (!HasSystem(Glonass)) return;
    std::vector<std::string> slots;
    for (std::size_t satellite = 1; satellite < SatelliteRoom; ++satellite) {
      const auto channel = header_.notes.ChannelOf(satellite);
      if (!channel || !summary_.Has(Glonass, satellite, header_.columns[Glonass])) continue;
      slots.push_back(Text("R%02zu %2d ", satellite, *channel));
    }
    constexpr std::size_t InLine = 8;
    ItemLines lines(out_, Text("%3zu ", slots.size()), "GLONASS SLOT / FRQ #", InLine);
    for (const std::string& slot : slots) lines.Add(slot);
    lines.End();
    if (header_.version == 4) return;
    std::string biases;
    constexpr std::array<const char*, 4> Codes = {"C1C", "C1P", "C2C", "C2P"};
    for (std::size_t i = 0; equipment_.glonassBiases && i < Codes.size(); ++i) {
      const double bias = (*equipment_.glonassBiases)[i];
      biases += std::isnan(bias) ? std::string(13, ' ') : Text(" %s %8.3f", Codes[i], bias);
    }
    PutLine(out_, biases, "GLONASS COD/PHS/BIS");
  }

  void Counts() {
    std::vector<std::pair<std::size_t, std::size_t>> satellites;
    for (std::size_t system = 1; system < SystemCount; ++system) {
      for (std::size_t satellite = 1; satellite < SatelliteRoom; ++satellite) {
        if (!summary_.Has(system, satellite, header_.columns[system])) continue;
        satellites.emplace_back(system, satellite);
      }
    }
    if (summary_.Epochs() > MostCounted) return;
    PutLine(out_, Text("%6zu", satellites.size()), "# OF SATELLITES");
    constexpr std::size_t InLine = 9;
    for (const auto& [system, satellite] : satellites) {
      ItemLines lines(out_, Text("   %c%02zu", SystemLetters[system], satellite), "PRN / # OF OBS",
                      InLine);
      for (const TypeColumn& column : header_.columns[system]) {
        lines.Add(
            Text("%6u", summary_.Count(KeyOf(system, satellite, column.signal), column.value)));
      }
      lines.End();
    }
  }

  const ObservationHeader& header_;
  const ObservationSummary& summary_;
  const Equipment equipment_;
  std::string& out_;
};

}  // namespace

void PutObservationHeader(const ObservationHeader& header, std::string& out) {
  Lines(header, out).Put();
}

std::chrono::sys_seconds DateOfFile(Ticks otherwise) {
  const char* const text = std::getenv("SOURCE_DATE_EPOCH");
  const std::string_view given = text == nullptr ? std::string_view() : text;
  std::int64_t seconds = 0;
  const auto [end, error] = std::from_chars(given.data(), given.data() + given.size(), seconds);
  constexpr std::int64_t EndOfYear9999 = 253'402'300'800;
  const bool isUsable = !given.empty() && error == std::errc{} &&
                        end == given.data() + given.size() && seconds >= 0 &&
                        seconds < EndOfYear9999;
  return isUsable ? std::chrono::sys_seconds(std::chrono::seconds(seconds))
                  : SystemTimeOf(otherwise);
}

}  // namespace navframe::tool
