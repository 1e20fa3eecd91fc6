// Lines for people: time, kind, then "name value unit" of each member that is known.
#include <map>

#include "item_text.h"
#include "printable.h"
#include "record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

class Text : public Sink {
 public:
  explicit Text(const SinkOptions& options) : options_(options), file_(options.target) {}

  void Take(const Wanted& wanted) override {
    Begin(wanted);
    if (wanted.item.type == NavframeItemRecord) {
      const NavframeKind& kind = *wanted.item.kind;
      begin_.append(kind.name);
      Record(ShapeFor(kind), wanted.record);
    } else if (options_.withParts) {
      Part(wanted.item);
    }
    file_.WriteWhenLarge();
  }
  void Flush() override { file_.Write(); }
  void End() override { file_.Close(); }

 private:
  // The front of the lines of an item.
  void Begin(const Wanted& wanted) {
    begin_.clear();
    if (options_.withSource) begin_.append(wanted.source).append(": ");
    const std::size_t before = begin_.size();
    AppendTime(wanted.item.time, begin_);
    if (begin_.size() == before) begin_ += '-';
    begin_ += ' ';
  }

  void Record(const Level& level, const void* data) {
    std::string& out = file_.Buffer();
    if (!level.columns.empty()) {
      out.append(begin_);
      Columns(level, data, " ");
      out += '\n';
    }
    const std::uint32_t count = level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      out.append(begin_).append(" ").append(level.list->name);
      Entry(*level.entries, level.Entry(data, i));
      out += '\n';
    }
  }

  // An entry and those of its own list on one line.
  void Entry(const Level& level, const void* data) {
    Columns(level, data, " ");
    const std::uint32_t count = level.EntryCount(data);
    for (std::uint32_t i = 0; i < count; ++i) {
      file_.Buffer().append("; ").append(level.list->name);
      Entry(*level.entries, level.Entry(data, i));
    }
  }

  // The values of an array stand behind one name.
  void Columns(const Level& level, const void* data, const char* separator) {
    for (std::size_t i = 0; i < level.columns.size();) {
      const Column& first = level.columns[i];
      value_.clear();
      bool known = false;
      for (; i < level.columns.size() && level.columns[i].member == first.member &&
             level.columns[i].offset == first.offset;
           ++i) {
        known |= Value(level.columns[i], data);
      }
      if (!known) continue;
      file_.Buffer().append(separator);
      file_.Buffer().append(first.name, 0, first.name.size() - (first.member->length ? 2 : 0));
      file_.Buffer().append(value_);
      if (*first.member->unit != '\0') file_.Buffer().append(" ").append(first.member->unit);
      separator = ", ";
    }
  }

  // Appends it behind a space, with its name where it has one. False when it is not known.
  bool Value(const Column& column, const void* data) {
    text_.clear();
    column.Append(data, text_);
    if (text_.empty()) return false;
    value_ += ' ';
    AppendPrintable(text_, value_);
    const NavframeMember& member = *column.member;
    std::int64_t number = 0;
    if (member.valueCount != 0 &&
        navframe_integer(&member, static_cast<const char*>(data) + column.offset, column.index,
                         &number) == NavframeKnown) {
      const char* const name = navframe_value_name(&member, number);
      if (name != nullptr) value_.append(" (").append(name).append(")");
    }
    return true;
  }

  void Part(const NavframeItem& item) {
    std::string& out = file_.Buffer();
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

  const Level& ShapeFor(const NavframeKind& kind) {
    const auto [place, isNew] = shapes_.try_emplace(&kind);
    if (isNew) place->second = ShapeOf(*kind.record, options_.fields);
    return place->second;
  }

  const SinkOptions options_;
  OutputFile file_;
  std::map<const NavframeKind*, Level> shapes_;
  std::string begin_;
  std::string value_;
  std::string text_;
};

}  // namespace

std::unique_ptr<Sink> MakeText(const SinkOptions& options) {
  return std::make_unique<Text>(options);
}

}  // namespace navframe::tool
