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

// A word that is copied whole, whatever its length, and its length with it.
template <std::size_t Most>
struct Word {
  std::array<char, Most> text{};
  std::uint8_t length = 0;

  bool Set(std::string_view word) {
    length = static_cast<std::uint8_t>(word.copy(text.data(), Most));
    return length == word.size();
  }
  char* Put(char* to) const {
    std::memcpy(to, this, sizeof *this);
    return to + length;
  }
};

char* Put(std::string_view text, char* to) { return to + text.copy(to, text.size()); }

// What stands for a number: the name that the catalogue has for it, or "no" and "yes"; nothing for
// most.
std::string_view WordFor(const NavframeMember& member, std::int64_t number) {
  const bool isYesNo = (member.flags & NavframeYesNo) != 0 && (number == 0 || number == 1);
  if (isYesNo) return number == 0 ? "no" : "yes";
  const char* const name = navframe_value_name(&member, number);
  return name == nullptr ? "" : name;
}

// A column as people read it.
struct Shown {
  Shown(const Column& whole, bool withTime);

  // Behind a comma. Nothing is written when no value is known, but `to` may be touched.
  char* Put(const void* data, char* to) const { return put(*this, data, to); }

  // Whether it is what the front of the line says already.
  bool Repeats(const void* data, const NavframeTime& time) const {
    return repeats(*column->member, column->At(data), time);
  }

  const Column* column;
  RepeatsTime repeats = nullptr;
  std::size_t room;  // that it takes at most

 private:
  using Putting = char* (*)(const Shown& shown, const void* data, char* to);

  // A number, behind a short name.
  template <class Number>
  static char* PutQuickly(const Shown& shown, const void* data, char* to) {
    const std::uint8_t* const at = shown.value.At(data, 0);
    Number number;
    if (!shown.value.Read(at, number)) return to;
    to = shown.value.PutKnown(number, at, shown.quickName.Put(to));
    return shown.quickUnit.Put(to);
  }
  // A byte, when it is a usual one that has a word.
  static char* PutPhrase(const Shown& shown, const void* data, char* to) {
    const std::uint8_t* const at = shown.value.At(data, 0);
    if (*at < shown.phraseCount) {
      const Phrase& phrase = shown.phrases[*at];
      if (phrase.length != 0) return phrase.Put(to);
    }
    std::uint8_t byte;
    return shown.value.Read(at, byte) ? PutSlowly(shown, data, to) : to;
  }
  static char* PutSlowly(const Shown& shown, const void* data, char* to);
  char* PutWord(const void* data, char* to) const;
  Putting HowToPut();
  std::size_t NoteWords();

  static constexpr std::int64_t MostPhrases = 64;

  using Phrase = Word<47>;

  Putting put;
  Word<31> quickName;           // ", name "
  Word<15> quickUnit;           // " unit"
  ValueText value;              // the column's, beside the rest
  std::vector<Phrase> phrases;  // ", name word unit" of bytes from 0 on; empty ones are looked up
  std::size_t phraseCount = 0;
  bool hasWords;
  std::string name;
  std::string unit;
};

Shown::Shown(const Column& whole, bool withTime)
    : column(&whole),
      value(whole.value),
      hasWords(whole.member->valueCount != 0 || (whole.member->flags & NavframeYesNo) != 0),
      name(", " + whole.name),
      unit(*whole.member->unit == '\0' ? "" : std::string(" ") + whole.member->unit) {
  if (withTime) repeats = RepeatsTimeOf(whole);
  put = HowToPut();
  constexpr std::size_t SpaceOrUnknown = 2;
  room = std::max(sizeof quickName, name.size()) + std::max(sizeof quickUnit, unit.size()) +
         NoteWords() + whole.Width() * (whole.Room() + SpaceOrUnknown);
}

// Returns the length of the longest one.
std::size_t Shown::NoteWords() {
  const NavframeMember& member = *column->member;
  std::size_t longest = sizeof(Phrase);
  const auto note = [&](std::int64_t number) {
    const std::string_view word = WordFor(member, number);
    longest = std::max(longest, word.size());
    const bool isUnknown = member.unknownRule == NavframeUnknownValue && number == member.unknown;
    if (number < 0 || number >= MostPhrases || word.empty() || isUnknown) return;
    const auto place = static_cast<std::size_t>(number);
    phraseCount = std::max(phraseCount, place + 1);
    phrases.resize(phraseCount);
    if (!phrases[place].Set(name + " " + std::string(word) + unit)) phrases[place] = {};
  };
  for (std::uint32_t i = 0; i < member.valueCount; ++i) note(member.values[i].value);
  if ((member.flags & NavframeYesNo) != 0) {
    note(0);
    note(1);
  }
  return longest;
}

Shown::Putting Shown::HowToPut() {
  if (!column->isSingleNumber) return PutSlowly;
  if (hasWords) return value.Type() == NavframeU8 ? PutPhrase : PutSlowly;
  if (!quickName.Set(name + " ") || !quickUnit.Set(unit)) return PutSlowly;
  return WithNumberOf(value.Type(),
                      [](auto zero) -> Putting { return PutQuickly<decltype(zero)>; });
}

// The number that a word may stand for, as that or else in digits.
char* Shown::PutWord(const void* data, char* to) const {
  std::int64_t number = 0;
  if (!value.ReadInteger(data, 0, number)) return to;
  const std::string_view word = WordFor(*column->member, number);
  return word.empty() ? value.Put(data, 0, to) : tool::Put(word, to);
}

// The values of an array stand behind one name, unknown ones among them as "-".
char* Shown::PutSlowly(const Shown& shown, const void* data, char* to) {
  const Column& column = *shown.column;
  char* end = tool::Put(shown.name, to);
  if (column.isSingleNumber) {
    *end++ = ' ';
    char* const from = end;
    end = shown.hasWords ? shown.PutWord(data, from) : shown.value.Put(data, 0, from);
    return end == from ? to : tool::Put(shown.unit, end);
  }
  const std::uint32_t count = column.ValueCount(data);
  bool isKnown = false;
  for (std::uint32_t i = 0; i < count; ++i) {
    *end++ = ' ';
    char* const from = end;
    end = column.Put(data, i, from);
    if (end == from) {
      *end++ = '-';
    } else {
      isKnown = true;
    }
  }
  return isKnown ? tool::Put(shown.unit, end) : to;
}

// A level as people read it: "G05 1C" in front tells the satellite and the signal.
struct Lines {
  Level level;
  std::vector<Shown> columns;
  std::vector<Shown> besideLabel;  // those that it does not tell
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
    const Shown& shown = columns.emplace_back(column, isOutermost && isWhole);
    room += shown.room;
    const bool isInLabel =
        column.offset == 0 && (member == satellite.System() || member == satellite.Number() ||
                               member == satellite.Code());
    if (hasLabel && !isInLabel) besideLabel.push_back(shown);
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
    for (const Shown& shown : hasLabel ? lines.besideLabel : lines.columns) {
      if (time != nullptr && shown.repeats != nullptr && shown.Repeats(data, *time)) continue;
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
