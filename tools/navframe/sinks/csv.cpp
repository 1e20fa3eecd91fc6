// A table a kind: a line a record, or a line an entry of its list with the record's own columns in
// front.
#include <unordered_map>

#include "records/item_text.h"
#include "records/record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

// Puts what `out` has from `from` on into quotes where it would not stand alone.
void Quote(std::string& out, std::size_t from) {
  if (out.find_first_of(",\"\r\n", from) == std::string::npos) return;
  for (std::size_t at = from; (at = out.find('"', at)) != std::string::npos; at += 2) {
    out.insert(at, 1, '"');
  }
  out.insert(from, 1, '"');
  out += '"';
}

void AppendCell(std::string_view text, std::string& out) {
  const std::size_t before = out.size();
  out.append(text);
  Quote(out, before);
}

// Columns of the table that a column of the record takes.
std::uint32_t Width(const Column& column) {
  return column.member->length == 0 || column.isBinary ? 1 : column.member->length;
}

std::size_t Width(const Level& level) {
  std::size_t width = level.list == nullptr ? 0 : Width(*level.entries);
  for (const Column& column : level.columns) width += Width(column);
  return width;
}

class Table {
 public:
  Table(const NavframeKind& kind, const SinkOptions& options, Outputs& outputs)
      : shape_(ShapeOf(*kind.record, options.fields)),
        withSource_(options.withSource),
        output_(outputs.Open(kind.name, Heading())) {}

  void Take(const Wanted& wanted) {
    front_.clear();
    if (withSource_) {
      AppendCell(wanted.source, front_);
      front_ += ',';
    }
    AppendTime(wanted.item.time, front_);
    Lines(shape_, wanted.record);
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
      const std::uint32_t width = Width(column);
      for (std::uint32_t i = 0; i < width; ++i) {
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

  static bool IsText(const Column& column) {
    return column.member->type == NavframeText || column.member->type == NavframeRecordText;
  }

  static void Cells(const Level& level, const void* data, std::string& out) {
    for (const Column& column : level.columns) {
      const std::uint32_t width = Width(column);
      const std::uint32_t count = width == 1 ? 1 : column.Count(data);
      for (std::uint32_t i = 0; i < width; ++i) {
        out += ',';
        const std::size_t before = out.size();
        if (i < count) column.Append(data, i, out);
        if (IsText(column)) Quote(out, before);
      }
    }
  }

  // One line an innermost entry; one with empty columns of a list that is empty.
  void Lines(const Level& level, const void* data) {
    std::string& out = output_.Buffer();
    if (level.list == nullptr) {
      out.append(front_);
      Cells(level, data, out);
      out += '\n';
      return;
    }
    const std::size_t before = front_.size();
    Cells(level, data, front_);
    const std::uint32_t count = level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) Lines(*level.entries, level.Entry(data, i));
    if (count == 0) out.append(front_).append(Width(*level.entries), ',') += '\n';
    front_.resize(before);
  }

  const Level shape_;
  const bool withSource_;
  Output& output_;
  std::string front_;  // of the lines that are made
};

class Csv : public Sink {
 public:
  Csv(const SinkOptions& options, Outputs& outputs) : options_(options), outputs_(outputs) {}

  void Take(const Wanted& wanted) override {
    const NavframeKind* const kind = wanted.item.kind;
    if (wanted.item.type != NavframeItemRecord) return;
    tables_.try_emplace(kind, *kind, options_, outputs_).first->second.Take(wanted);
  }

 private:
  const SinkOptions& options_;
  Outputs& outputs_;
  std::unordered_map<const NavframeKind*, Table> tables_;
};

}  // namespace

std::unique_ptr<Sink> MakeCsv(const SinkOptions& options, Outputs& outputs) {
  return std::make_unique<Csv>(options, outputs);
}

}  // namespace navframe::tool
