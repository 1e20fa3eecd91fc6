// Lines for people: time, kind, then "name value unit" of each member that is known, and a line for
// each entry of a list.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>
#include <unordered_map>

#include "printable.h"
#include "records/item_text.h"
#include "records/record_shape.h"
#include "records/satellite_names.h"
#include "records/value_text.h"
#include "sinks/sink.h"
#include "sinks/time_members.h"

namespace navframe::tool {
namespace {

// A word that is copied whole, whatever its length.
template <std::size_t Most>
struct Word {
  std::array<char, Most> text{};
  std::size_t length = 0;

  void Set(std::string_view word) { length = word.copy(text.data(), Most); }
  char* Put(char* to) const {
    std::memcpy(to, text.data(), Most);
    return to + length;
  }
};

// A column as people read it.
struct Shown {
  const Column* column;
  std::string name;  // ", name"
  std::string unit;  // " unit"
  RepeatsTime repeats = nullptr;
  bool isFlag = false;
  bool isNamed = false;  // values have names
  bool isLabel = false;  // stands in front of the others
  bool isPlain = false;  // one number, or the name of one
  std::size_t room = 0;  // that it takes at most, where it is plain
  Word<40> plainName;    // "name "
  Word<16> plainUnit;
};

// A level as people read it: "G05 1C" in front tells the satellite and the signal.
struct Lines {
  Level level;
  std::vector<Shown> columns;
  SatelliteMembers satellite;
  bool hasLabel = false;
  bool hasCode = false;  // in the label
  std::unique_ptr<Lines> entries;
  std::string list;  // " name" of entries without a label

  Lines(Level shape, const NavframeKind& kind, bool isOutermost, bool isWhole);
};

std::size_t LongestName(const NavframeMember& member) {
  std::size_t length = 0;
  for (std::uint32_t i = 0; i < member.valueCount; ++i) {
    length = std::max(length, std::strlen(member.values[i].name));
  }
  return length;
}

char* Put(std::string_view text, char* to) { return to + text.copy(to, text.size()); }

// The number of a member or its name; null when it is not known.
char* PutNamed(const Shown& shown, const void* data, char* to) {
  const NavframeMember& member = *shown.column->member;
  if (shown.isNamed || shown.isFlag) {
    std::int64_t number = 0;
    if (navframe_integer(&member, data, 0, &number) != NavframeKnown) return nullptr;
    if (shown.isFlag && (number == 0 || number == 1)) return Put(number == 0 ? "no" : "yes", to);
    const char* const name = shown.isNamed ? navframe_value_name(&member, number) : nullptr;
    if (name != nullptr) return Put(name, to);
  }
  return PutNumber(member, data, 0, to);
}

Lines::Lines(Level shape, const NavframeKind& kind, bool isOutermost, bool isWhole)
    : level(std::move(shape)),
      satellite(isOutermost ? SatelliteMembers(kind) : SatelliteMembers(kind, *level.record)) {
  const auto has = [&](const NavframeMember* member) {
    return member != nullptr &&
           std::ranges::find(level.columns, member, &Column::member) != level.columns.end();
  };
  hasLabel = has(satellite.Number()) && satellite.Number()->length == 0;
  hasCode = has(satellite.Code());
  for (const Column& column : level.columns) {
    const NavframeMember* const member = column.member;
    if (std::string_view(member->name) == "tag" && isWhole) continue;  // means nothing in streams
    Shown shown{&column, ", " + column.name, "", nullptr, false, false, false, false, 0, {}, {}};
    if (*member->unit != '\0') shown.unit = std::string(" ") + member->unit;
    if (isOutermost && isWhole) shown.repeats = RepeatsTimeOf(column);
    shown.isFlag = (member->flags & NavframeYesNo) != 0;
    shown.isNamed = member->valueCount != 0;
    shown.isLabel = hasLabel && column.offset == 0 &&
                    (member == satellite.System() || member == satellite.Number() ||
                     (member == satellite.Code() && member != nullptr));
    shown.plainName.Set(column.name + " ");
    shown.plainUnit.Set(shown.unit);
    shown.isPlain = member->length == 0 && member->type <= NavframeF64 &&
                    shown.plainName.length == column.name.size() + 1 &&
                    shown.plainUnit.length == shown.unit.size();
    shown.room = sizeof(Shown) + LongestNumber + LongestName(*member);
    columns.push_back(std::move(shown));
  }
  if (level.list == nullptr) return;
  list = std::string(" ") + level.list->name;
  entries = std::make_unique<Lines>(std::move(*level.entries), kind, false, isWhole);
}

class Text : public Sink {
 public:
  Text(const SinkOptions& options, Outputs& outputs)
      : options_(options), output_(outputs.Open("", "")) {}

  void Take(const Wanted& wanted) override {
    Begin(wanted);
    if (wanted.item.type == NavframeItemRecord) {
      begin_.append(wanted.item.kind->name);
      Record(LinesFor(*wanted.item.kind), wanted);
    } else {
      Part(wanted.item);
    }
    output_.WriteWhenLarge();
  }

 private:
  // The front of the lines of an item.
  void Begin(const Wanted& wanted) {
    begin_.clear();
    if (options_.withSource) {
      AppendPrintable(wanted.source, begin_);
      begin_.append(": ");
    }
    if (!AppendTime(wanted.item.time, begin_)) Tow(wanted);
    begin_ += ' ';
  }

  // Without a date the time of week alone, the stream's or else the record's own, as
  // "-:561618.000";
  // "-" when that is not known either.
  void Tow(const Wanted& wanted) {
    begin_ += '-';
    double tow = wanted.item.time.tow;
    if (wanted.item.time.tow == UnknownTow) {
      const NavframeMember* const member =
          wanted.record == nullptr ? nullptr : navframe_member(wanted.item.kind->record, "tow");
      if (member == nullptr || navframe_number(member, wanted.record, 0, &tow) != NavframeKnown) {
        return;
      }
      if (std::string_view(member->unit) == "s") tow *= 1000;
    }
    std::array<char, 32> digits;
    const auto end =
        std::to_chars(digits.data(), digits.end(), tow / 1000, std::chars_format::fixed, 3).ptr;
    begin_ += ':';
    begin_.append(digits.data(), end);
  }

  void Record(const Lines& lines, const Wanted& wanted) {
    std::string& out = output_.Buffer();
    const void* const data = wanted.record;
    const NavframeTime* const time =
        wanted.item.time.utc.year == UnknownYear || wanted.item.time.tow == UnknownTow
            ? nullptr
            : &wanted.item.time;
    if (!lines.columns.empty() || lines.entries == nullptr) {
      out.append(begin_);
      Columns(lines, data, data, time, "");
      out += '\n';
    }
    const std::uint32_t count = lines.level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      out.append(begin_);
      Columns(*lines.entries, lines.level.Entry(data, i), data, nullptr, lines.list);
      out += '\n';
    }
  }

  // A line, and the entries of its own list behind it unless they have lines of their own.
  void Columns(const Lines& lines, const void* data, const void* record, const NavframeTime* time,
               std::string_view list) {
    std::string& out = output_.Buffer();
    const bool hasLabel = lines.hasLabel && Label(lines, data, record);
    if (!hasLabel) out.append(list);
    bool isFirst = true;
    for (const Shown& shown : lines.columns) {
      if (hasLabel && shown.isLabel) continue;
      const Column& column = *shown.column;
      if (time != nullptr && shown.repeats != nullptr &&
          shown.repeats(*column.member, column.At(data), *time)) {
        continue;
      }
      if (shown.isPlain) {
        isFirst &= !Plain(shown, column.At(data), isFirst);
        continue;
      }
      Write();
      const std::size_t before = out.size();
      out.append(shown.name, isFirst ? 1 : 0);
      if (Values(shown, data)) {
        out.append(shown.unit);
        isFirst = false;
      } else {
        out.resize(before);
      }
    }
    Write();
    if (lines.entries == nullptr || data == record) return;
    const std::uint32_t count = lines.level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      const std::size_t before = out.size();
      out += ';';
      Columns(*lines.entries, lines.level.Entry(data, i), record, nullptr, "");
      if (out.size() == before + 1) out.resize(before);
    }
  }

  // False when the satellite is not known; its numbers are shown then.
  bool Label(const Lines& lines, const void* data, const void* record) {
    const SatelliteName name = lines.satellite.Read(data, record);
    if (name.system == '\0' || name.system == '*' || name.number == 0) return false;
    std::string& out = output_.Buffer();
    out += ' ';
    name.Append(out);
    if (!lines.hasCode) return true;
    out += ' ';
    const std::size_t before = out.size();
    for (const Shown& shown : lines.columns) {
      if (shown.column->member == lines.satellite.Code()) shown.column->Append(data, 0, out);
    }
    if (out.size() == before) out += '-';
    return true;
  }

  // False when it is not known. Put behind what waits for Write.
  bool Plain(const Shown& shown, const void* data, bool isFirst) {
    if (waiting_ + shown.room > room_.size()) Write();
    char* const from = room_.data() + waiting_;
    char* to = from;
    if (!isFirst) *to++ = ',';
    *to++ = ' ';
    to = PutNamed(shown, data, shown.plainName.Put(to));
    if (to == nullptr) return false;
    to = shown.plainUnit.Put(to);
    waiting_ += static_cast<std::size_t>(to - from);
    return true;
  }
  void Write() {
    output_.Buffer().append(room_.data(), waiting_);
    waiting_ = 0;
  }

  // The values of an array stand behind one name, unknown ones among them as "-". False when none
  // is known.
  bool Values(const Shown& shown, const void* data) {
    const std::uint32_t count = shown.column->isBinary ? 1 : shown.column->Count(data);
    bool isKnown = false;
    for (std::uint32_t i = 0; i < count; ++i) {
      output_.Buffer() += ' ';
      if (shown.column->Append(data, i, output_.Buffer())) {
        isKnown = true;
      } else {
        output_.Buffer() += '-';
      }
    }
    return isKnown;
  }

  void Part(const NavframeItem& item) {
    std::string& out = output_.Buffer();
    out.append(begin_).append(PartOf(item)).append(" ").append(MessageOf(item));
    const char* const name = navframe_message_name(&item);
    if (*name != '\0') out.append(" ").append(name);
    out.append(", byte ").append(std::to_string(item.offset));
    out.append(", ").append(std::to_string(item.length)).append(" B");
    const char* const reason = navframe_reason_text(item.reason);
    if (*reason != '\0') out.append(": ").append(reason);
    if (item.badField != 0) out.append(" ").append(std::to_string(item.badField));
    out += '\n';
  }

  const Lines& LinesFor(const NavframeKind& kind) {
    if (lastKind_ == &kind) return *last_;
    std::unique_ptr<Lines>& lines = lines_[&kind];
    if (lines == nullptr) {
      lines = std::make_unique<Lines>(ShapeOf(*kind.record, options_.fields), kind, true,
                                      options_.fields.empty());
    }
    lastKind_ = &kind;
    last_ = lines.get();
    return *last_;
  }

  static constexpr std::uint32_t UnknownTow = 0xFFFFFFFF;
  static constexpr std::uint16_t UnknownYear = 0xFFFF;
  const SinkOptions& options_;
  Output& output_;
  std::unordered_map<const NavframeKind*, std::unique_ptr<Lines>> lines_;
  const NavframeKind* lastKind_ = nullptr;
  const Lines* last_ = nullptr;
  std::string begin_;
  std::array<char, 4096> room_;  // plain members of a line, which are put one behind the other
  std::size_t waiting_ = 0;      // bytes of them
};

// What the exports make of a record; nothing of kinds without a text.
class LegacyText : public Sink {
 public:
  explicit LegacyText(Outputs& outputs) : output_(outputs.Open("", "")) {}

  void Take(const Wanted& wanted) override {
    if (wanted.item.type != NavframeItemRecord) return;
    const GnssMessage message{wanted.item.kind->id, wanted.item.kind->source,
                              const_cast<void*>(wanted.record)};
    if (structDataToStr(&message, room_.data(), 0) != 0 || room_[0] == '\0') return;
    std::string& out = output_.Buffer();
    for (const char* c = room_.data(); *c != '\0'; ++c) {
      if (*c == '\n') {
        out += '\n';
      } else {
        AppendPrintable({c, 1}, out);
      }
    }
    if (!out.ends_with('\n')) out += '\n';
    output_.WriteWhenLarge();
  }

 private:
  static constexpr std::size_t Room = 1 << 16;
  Output& output_;
  std::string room_ = std::string(Room, '\0');
};

}  // namespace

std::unique_ptr<Sink> MakeText(const SinkOptions& options, Outputs& outputs) {
  if (options.legacy) return std::make_unique<LegacyText>(outputs);
  return std::make_unique<Text>(options, outputs);
}

}  // namespace navframe::tool
