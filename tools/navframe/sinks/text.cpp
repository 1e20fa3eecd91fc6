// Lines for people: time, kind, then "name value unit" of each member that is known, and a line for
// each entry of a list.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "printable.h"
#include "records/item_text.h"
#include "records/record_shape.h"
#include "records/satellite_names.h"
#include "sinks/sink.h"
#include "sinks/time_members.h"

namespace navframe::tool {
namespace {

// A word that is copied whole, whatever its length.
template <std::size_t Most>
struct Word {
  std::array<char, Most> text{};
  std::size_t length = 0;

  bool Set(std::string_view word) {
    length = word.copy(text.data(), Most);
    return length == word.size();
  }
  char* Put(char* to) const {
    std::memcpy(to, text.data(), Most);
    return to + length;
  }
};

char* Put(std::string_view text, char* to) { return to + text.copy(to, text.size()); }

// What stands for a number: "no" and "yes", or the names that the catalogue has for it.
class ValueWords {
 public:
  explicit ValueWords(const NavframeMember& member);

  bool AreAny() const { return areAny_; }
  // Nothing is written of a number without a word.
  char* Put(std::int64_t number, char* to) const {
    if (static_cast<std::uint64_t>(number) < count_) {
      const ValueWord& word = words_[static_cast<std::size_t>(number)];
      if (word.length != 0) return word.Put(to);
    }
    if (member_->valueCount == 0) return to;
    const char* const name = navframe_value_name(member_, number);
    return name == nullptr ? to : tool::Put(name, to);
  }
  std::size_t Room() const { return room_; }

 private:
  using ValueWord = Word<32>;

  const NavframeMember* member_;
  std::vector<ValueWord> words_;  // of numbers from 0 on; empty ones are looked up
  std::uint64_t count_ = 0;       // of those
  bool areAny_;
  std::size_t room_ = sizeof(ValueWord);
};

ValueWords::ValueWords(const NavframeMember& member) : member_(&member) {
  constexpr std::int64_t Most = 64;
  const auto set = [this](std::int64_t number, std::string_view name) {
    room_ = std::max(room_, name.size());
    if (number < 0 || number >= Most) return;
    const auto place = static_cast<std::size_t>(number);
    if (words_.size() <= place) words_.resize(place + 1);
    if (!words_[place].Set(name)) words_[place] = {};
  };
  for (std::uint32_t i = member.valueCount; i-- > 0;) {  // the first one of a number counts
    set(member.values[i].value, member.values[i].name);
  }
  if ((member.flags & NavframeYesNo) != 0) {
    set(0, "no");
    set(1, "yes");
  }
  count_ = words_.size();
  areAny_ = count_ != 0 || member.valueCount != 0;
}

// A column as people read it.
struct Shown {
  Shown(const Column& whole, bool withTime);

  // Behind a comma. Nothing is written when no value is known, but `to` may be touched.
  char* Put(const void* data, char* to) const {
    if (!isQuick) return PutSlowly(data, to);
    char* const from = quickName.Put(to);
    char* const end = PutNumber(data, from);
    return end == from ? to : quickUnit.Put(end);
  }

  const Column* column;
  RepeatsTime repeats = nullptr;
  bool isLabel = false;  // stands in front of the others
  std::size_t room;      // that it takes at most

 private:
  char* PutNumber(const void* data, char* to) const {
    if (words.AreAny()) {
      std::int64_t number = 0;
      if (!value.ReadInteger(data, 0, number)) return to;
      char* const end = words.Put(number, to);
      if (end != to) return end;
    }
    return value.Put(data, 0, to);
  }
  char* PutSlowly(const void* data, char* to) const;

  bool isQuick;        // one number, behind a short name
  Word<40> quickName;  // ", name "
  Word<16> quickUnit;  // " unit"
  ValueText value;     // the column's, beside the rest
  ValueWords words;
  std::string name;
  std::string unit;
};

Shown::Shown(const Column& whole, bool withTime)
    : column(&whole),
      isQuick(whole.isSingleNumber),
      value(whole.value),
      words(*whole.member),
      name(", " + whole.name),
      unit(*whole.member->unit == '\0' ? "" : std::string(" ") + whole.member->unit) {
  if (withTime) repeats = RepeatsTimeOf(whole);
  isQuick &= quickName.Set(name + " ");
  isQuick &= quickUnit.Set(unit);
  constexpr std::size_t SpaceOrUnknown = 2;
  room = std::max(sizeof quickName, name.size()) + std::max(sizeof quickUnit, unit.size()) +
         words.Room() + whole.Width() * (whole.Room() + SpaceOrUnknown);
}

// The values of an array stand behind one name, unknown ones among them as "-".
char* Shown::PutSlowly(const void* data, char* to) const {
  char* end = tool::Put(name, to);
  if (column->isSingleNumber) {
    *end++ = ' ';
    char* const from = end;
    end = PutNumber(data, from);
    return end == from ? to : tool::Put(unit, end);
  }
  const std::uint32_t count = column->ValueCount(data);
  bool isKnown = false;
  for (std::uint32_t i = 0; i < count; ++i) {
    *end++ = ' ';
    char* const from = end;
    end = column->Put(data, i, from);
    if (end == from) {
      *end++ = '-';
    } else {
      isKnown = true;
    }
  }
  return isKnown ? tool::Put(unit, end) : to;
}

// A level as people read it: "G05 1C" in front tells the satellite and the signal.
struct Lines {
  Level level;
  std::vector<Shown> columns;
  SatelliteMembers satellite;
  bool hasLabel = false;
  const Column* code = nullptr;  // in the label
  std::unique_ptr<Lines> entries;
  std::string list;      // " name" of entries without a label
  std::size_t room = 0;  // that a line takes at most, without the entries of its own list

  Lines(Level shape, const NavframeKind& kind, bool isOutermost, bool isWhole);
};

Lines::Lines(Level shape, const NavframeKind& kind, bool isOutermost, bool isWhole)
    : level(std::move(shape)),
      satellite(isOutermost ? SatelliteMembers(kind) : SatelliteMembers(kind, *level.record)) {
  const auto find = [&](const NavframeMember* member) {
    const auto column = std::ranges::find(level.columns, member, &Column::member);
    return member == nullptr || column == level.columns.end() ? nullptr : &*column;
  };
  hasLabel = find(satellite.Number()) != nullptr && satellite.Number()->length == 0;
  code = find(satellite.Code());
  room = 2 * LongestSatelliteName + (code == nullptr ? 0 : code->Room());
  for (const Column& column : level.columns) {
    const NavframeMember* const member = column.member;
    if (std::string_view(member->name) == "tag" && isWhole) continue;  // means nothing in streams
    Shown& shown = columns.emplace_back(column, isOutermost && isWhole);
    shown.isLabel = hasLabel && column.offset == 0 &&
                    (member == satellite.System() || member == satellite.Number() ||
                     member == satellite.Code());
    room += shown.room;
  }
  if (level.list == nullptr) return;
  list = std::string(" ") + level.list->name;
  entries = std::make_unique<Lines>(std::move(*level.entries), kind, false, isWhole);
}

// The line that is put together. It moves when it has to grow.
class Line {
 public:
  char* Begin() { return line_.data(); }
  // Makes room for `length` bytes behind `to`, which is a place of the line.
  char* Room(char* to, std::size_t length) {
    const auto used = static_cast<std::size_t>(to - line_.data());
    if (line_.size() - used >= length) return to;
    line_.resize(2 * line_.size() + length);
    return line_.data() + used;
  }

 private:
  std::vector<char> line_ = std::vector<char>(4096);
};

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
  // "-:561618.000"; "-" when that is not known either.
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
    const void* const data = wanted.record;
    const NavframeTime* const time =
        wanted.item.time.utc.year == UnknownYear || wanted.item.time.tow == UnknownTow
            ? nullptr
            : &wanted.item.time;
    Put(begin_, line_.Room(line_.Begin(), begin_.size()));
    if (!lines.columns.empty() || lines.entries == nullptr) {
      End(Columns(lines, data, data, time, "", line_.Begin() + begin_.size()));
    }
    const std::uint32_t count = lines.level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      End(Columns(*lines.entries, lines.level.Entry(data, i), data, nullptr, lines.list,
                  line_.Begin() + begin_.size()));
    }
  }

  void End(char* to) {
    to = line_.Room(to, 1);
    *to++ = '\n';
    output_.Buffer().append(line_.Begin(), to);
  }

  // A line, and the entries of its own list behind it unless they have lines of their own.
  char* Columns(const Lines& lines, const void* data, const void* record, const NavframeTime* time,
                std::string_view list, char* to) {
    to = line_.Room(to, lines.room + list.size());
    char* const label = lines.hasLabel ? Label(lines, data, record, to) : to;
    const bool hasLabel = label != to;
    to = hasLabel ? label : Put(list, to);
    // The comma of the first one takes the place of what is in front, which comes back.
    char* const front = to - 1;
    const char last = *front;
    char* end = front;
    for (const Shown& shown : lines.columns) {
      if (hasLabel && shown.isLabel) continue;
      const Column& column = *shown.column;
      if (time != nullptr && shown.repeats != nullptr &&
          shown.repeats(*column.member, column.At(data), *time)) {
        continue;
      }
      end = shown.Put(data, end);
    }
    *front = last;
    if (end != front) to = end;
    return lines.entries == nullptr || data == record ? to : Entries(lines, data, record, to);
  }

  char* Entries(const Lines& lines, const void* data, const void* record, char* to) {
    const std::uint32_t count = lines.level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      to = line_.Room(to, 1);
      const auto before = to - line_.Begin();
      *to++ = ';';
      to = Columns(*lines.entries, lines.level.Entry(data, i), record, nullptr, "", to);
      if (to - line_.Begin() == before + 1) --to;
    }
    return to;
  }

  // Nothing when the satellite is not known; its numbers are shown then.
  static char* Label(const Lines& lines, const void* data, const void* record, char* to) {
    const SatelliteName name = lines.satellite.Read(data, record);
    if (name.system == '\0' || name.system == '*' || name.number == 0) return to;
    *to++ = ' ';
    to = name.Put(to);
    if (lines.code == nullptr) return to;
    *to++ = ' ';
    char* const end = lines.code->Put(data, 0, to);
    return end == to ? Put("-", to) : end;
  }

  void Part(const NavframeItem& item) {
    std::string& out = output_.Buffer();
    out.append(begin_).append(PartOf(item));
    for (const std::string& name : {MessageOf(item), std::string(navframe_message_name(&item))}) {
      if (!name.empty()) out.append(" ").append(name);
    }
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
  Line line_;  // begins with begin_
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
