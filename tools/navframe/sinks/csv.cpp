// A table a kind: a line a record, or a line an entry of its list with the record's own columns in
// front. In a folder, a file a kind; or of one kind alone.
#include <filesystem>
#include <map>

#include "fault.h"
#include "item_text.h"
#include "record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

// A value, in quotes where it would not stand alone.
void AppendCell(std::string_view text, std::string& out) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    out.append(text);
    return;
  }
  out += '"';
  for (const char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

class Table {
 public:
  Table(const NavframeKind& kind, const SinkOptions& options, const std::string& target)
      : shape_(ShapeOf(*kind.record, options.fields)),
        withSource_(options.withSource),
        file_(target) {
    std::string& out = file_.Buffer();
    if (withSource_) out.append("source,");
    out.append("time");
    Heading(shape_, "", out);
    out += '\n';
  }

  void Take(const Wanted& wanted) {
    front_.clear();
    if (withSource_) {
      AppendCell(wanted.source, front_);
      front_ += ',';
    }
    AppendTime(wanted.item.time, front_);
    Lines(shape_, wanted.record);
    file_.WriteWhenLarge();
  }

  OutputFile& File() { return file_; }

 private:
  static void Heading(const Level& level, const std::string& prefix, std::string& out) {
    for (const Column& column : level.columns) {
      std::string name = prefix + column.name;
      if (*column.member->unit != '\0') name.append(" [").append(column.member->unit).append("]");
      out += ',';
      AppendCell(name, out);
    }
    if (level.list != nullptr) {
      Heading(*level.entries, prefix + level.list->name + ".", out);
    }
  }

  // One line an innermost entry; one with empty columns of a list that is empty.
  void Lines(const Level& level, const void* data) {
    const std::size_t before = front_.size();
    for (const Column& column : level.columns) {
      front_ += ',';
      value_.clear();
      column.Append(data, value_);
      AppendCell(value_, front_);
    }
    const std::uint32_t count = level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) Lines(*level.entries, level.Entry(data, i));
    if (count == 0) {
      file_.Buffer().append(front_);
      for (const Level* empty = level.entries.get(); level.list != nullptr && empty != nullptr;
           empty = empty->entries.get()) {
        file_.Buffer().append(empty->columns.size(), ',');
      }
      file_.Buffer() += '\n';
    }
    front_.resize(before);
  }

  const Level shape_;
  const bool withSource_;
  OutputFile file_;
  std::string front_;  // of the line that is made
  std::string value_;
};

class Csv : public Sink {
 public:
  explicit Csv(const SinkOptions& options) : options_(options) {
    if (ToOutput()) return;
    std::error_code error;
    std::filesystem::create_directories(options_.target, error);
    if (error) throw CannotWrite(options_.target, error.value());
  }

  void Take(const Wanted& wanted) override {
    if (wanted.item.type != NavframeItemRecord) return;
    TableOf(*wanted.item.kind).Take(wanted);
  }
  void Flush() override {
    for (auto& [kind, table] : tables_) table.File().Write();
  }
  void End() override {
    for (auto& [kind, table] : tables_) table.File().Close();
  }

 private:
  bool ToOutput() const { return options_.target == "-"; }

  Table& TableOf(const NavframeKind& kind) {
    const auto known = tables_.find(&kind);
    if (known != tables_.end()) return known->second;
    if (ToOutput() && !tables_.empty()) {
      throw WriteFault(std::string("csv: standard output has room for one kind; ") + kind.name +
                       " is another than " + tables_.begin()->first->name +
                       " (choose one by --kinds, or a folder by --output)");
    }
    const std::string target =
        ToOutput() ? options_.target : options_.target + "/" + kind.name + ".csv";
    return tables_.try_emplace(&kind, kind, options_, target).first->second;
  }

  const SinkOptions options_;
  std::map<const NavframeKind*, Table> tables_;
};

}  // namespace

std::unique_ptr<Sink> MakeCsv(const SinkOptions& options) { return std::make_unique<Csv>(options); }

}  // namespace navframe::tool
