// A table a kind: a line a record, or a line an entry of its list with the record's own columns in
// front.
#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "records/item_text.h"
#include "records/record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

bool StandsAlone(std::string_view text) {
  return std::ranges::none_of(
      text, [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; });
}

void AppendCell(std::string_view text, std::string& out) {
  if (StandsAlone(text)) {
    out.append(text);
    return;
  }
  out += '"';
  for (const char c : text) out.append(c == '"' ? 2 : 1, c);
  out += '"';
}

bool IsText(const Column& column) {
  return column.member->type == NavframeText || column.member->type == NavframeRecordText;
}

std::size_t Width(const Level& level) {
  std::size_t width = level.list == nullptr ? 0 : Width(*level.entries);
  for (const Column& column : level.columns) width += column.Width();
  return width;
}

// What the cells of a line take at most.
std::size_t Room(const Level& level) {
  constexpr std::size_t CommaAndQuotes = 3;
  std::size_t room = level.list == nullptr ? 0 : Room(*level.entries);
  for (const Column& column : level.columns) {
    const std::size_t value = IsText(column) ? 2 * column.Room() : column.Room();
    room += column.Width() * (value + CommaAndQuotes);
  }
  return room;
}

// A line is put together behind what stands in front of it already: the record's own cells once for
// all entries of its list.
class Table {
 public:
  Table(const NavframeKind& kind, const SinkOptions& options, Outputs& outputs)
      : shape_(ShapeOf(*kind.record, options.fields)),
        withSource_(options.withSource),
        output_(outputs.Open(kind.name, Heading())),
        room_(Room(shape_) + 1) {}

  void Take(const Wanted& wanted) {
    front_.clear();
    if (withSource_) {
      AppendCell(wanted.source, front_);
      front_ += ',';
    }
    AppendTime(wanted.item.time, front_);
    if (line_.size() < front_.size() + room_) line_.resize(front_.size() + room_);
    Lines(shape_, wanted.record, line_.data() + front_.copy(line_.data(), front_.size()));
    output_.WriteWhenLarge();
  }

 private:
  std::string Heading() const {
    std::string out = withSource_ ? "source,time" : "time";
    Names(shape_, "", out);
    return out += '\n';
  }

  static void Names(const Level& level, const std::string& prefix, std::string& out) {
    for (const Column& column : level.columns) {
      for (std::uint32_t i = 0; i < column.Width(); ++i) {
        std::string name = prefix + column.name;
        if (column.member->length != 0 && !column.isBinary)
          name.append(".").append(std::to_string(i));
        if (*column.member->unit != '\0') {
          name.append(" [").append(column.member->unit).append("]");
        }
        out += ',';
        AppendCell(name, out);
      }
    }
    if (level.list != nullptr) Names(*level.entries, prefix + level.list->name + ".", out);
  }

  static char* Cells(const Level& level, const void* data, char* to) {
    for (const Column& column : level.columns) {
      *to++ = ',';
      if (column.isSingleNumber) {
        to = column.value.Put(data, 0, to);
      } else {
        to = Values(column, data, to);
      }
    }
    return to;
  }

  // The cells of an array, or one that may have to be quoted.
  static char* Values(const Column& column, const void* data, char* to) {
    const std::uint32_t width = column.Width();
    const std::uint32_t count = column.ValueCount(data);
    for (std::uint32_t i = 0; i < width; ++i) {
      if (i != 0) *to++ = ',';
      if (i >= count) continue;
      char* const end = column.Put(data, i, to);
      to = IsText(column) ? Quoted(to, end) : end;
    }
    return to;
  }

  static char* Quoted(char* from, char* end) {
    if (StandsAlone({from, end})) return end;
    std::string text;
    AppendCell({from, end}, text);
    return from + text.copy(from, text.size());
  }

  // One line an innermost entry; one with empty columns of a list that is empty. `to` is where they
  // go on.
  void Lines(const Level& level, const void* data, char* to) {
    to = Cells(level, data, to);
    if (level.list == nullptr) return End(to);
    const std::uint32_t count = level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) Lines(*level.entries, level.Entry(data, i), to);
    if (count == 0) End(std::fill_n(to, Width(*level.entries), ','));
  }
  void End(char* to) {
    *to++ = '\n';
    output_.Buffer().append(line_.data(), to);
  }

  const Level shape_;
  const bool withSource_;
  Output& output_;
  const std::size_t room_;  // that the cells of a line take at most, and its end
  std::vector<char> line_;
  std::string front_;
};

class Csv : public Sink {
 public:
  Csv(const SinkOptions& options, Outputs& outputs) : options_(options), outputs_(outputs) {}

  void Take(const Wanted& wanted) override {
    const NavframeKind* const kind = wanted.item.kind;
    if (wanted.item.type != NavframeItemRecord) return;
    if (kind != lastKind_) {
      last_ = &tables_.try_emplace(kind, *kind, options_, outputs_).first->second;
      lastKind_ = kind;
    }
    last_->Take(wanted);
  }

 private:
  const SinkOptions& options_;
  Outputs& outputs_;
  std::unordered_map<const NavframeKind*, Table> tables_;
  const NavframeKind* lastKind_ = nullptr;
  Table* last_ = nullptr;
};

}  // namespace

std::unique_ptr<Sink> MakeCsv(const SinkOptions& options, Outputs& outputs) {
  return std::make_unique<Csv>(options, outputs);
}

}  // namespace navframe::tool
