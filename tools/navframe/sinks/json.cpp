// JSON Lines: one object a record.
#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <unordered_map>

#include "json_text.h"
#include "records/item_text.h"
#include "records/record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

void AppendNumber(std::uint64_t number, std::string& out) {
  std::array<char, 24> digits;
  out.append(digits.data(), std::to_chars(digits.data(), digits.end(), number).ptr);
}

class Json : public Sink {
 public:
  Json(const SinkOptions& options, Outputs& outputs)
      : options_(options), output_(outputs.Open("", "")) {}

  void Take(const Wanted& wanted) override {
    const bool isRecord = wanted.item.type == NavframeItemRecord;
    Begin(wanted);
    const std::size_t before = Out().size();
    if (isRecord) {
      Record(wanted);
    } else {
      Part(wanted.item);
    }
    EscapeLongControls(Out(), before);
    Out().append("}\n");
    output_.WriteWhenLarge();
  }

 private:
  std::string& Out() { return output_.Buffer(); }

  void Begin(const Wanted& wanted) {
    std::string& out = Out();
    out.append("{\"time\":\"");
    const std::size_t before = out.size();
    if (AppendTime(wanted.item.time, out)) {
      out += '"';
    } else {
      out.replace(before - 1, 1, "null");
    }
    if (options_.withSource) {
      out.append(",\"source\":");
      AppendJsonString(wanted.source, out);
    }
    out.append(",\"offset\":");
    AppendNumber(wanted.item.offset, out);
  }

  void Record(const Wanted& wanted) {
    std::string& out = Out();
    const NavframeKind& kind = *wanted.item.kind;
    out.append(",\"kind\":\"").append(kind.name).append("\",\"record\":");
    if (!options_.fields.empty()) return Chosen(ShapeFor(kind), wanted.record);
    for (;;) {
      const std::size_t length = navframe_json(&kind, wanted.record, room_.data(), room_.size());
      if (length < room_.size()) {
        out.append(room_.data(), length);
        return;
      }
      room_.resize(length + 1);
    }
  }

  // The chosen members alone, in objects of their own where they stand in records inside.
  void Chosen(const Level& level, const void* data) {
    std::string& out = Out();
    out += '{';
    const char* separator = "";
    std::string open;  // the record inside that the last column stands in, with a point
    for (const Column& column : level.columns) {
      const std::size_t point = column.name.find('.');
      const std::string inside = point == std::string::npos ? "" : column.name.substr(0, point + 1);
      if (inside != open && !open.empty()) out += '}';
      out.append(separator);
      if (inside != open && !inside.empty())
        out.append("\"").append(inside, 0, point).append("\":{");
      open = inside;
      separator = ",";
      out.append("\"").append(column.name, inside.size()).append("\":");
      Values(column, data);
    }
    if (!open.empty()) out += '}';
    if (level.list != nullptr) {
      out.append(separator).append("\"").append(level.list->name).append("\":[");
      const std::uint32_t count = level.EntryCount(data);
      for (std::uint32_t i = 0; i < count; ++i) {
        if (i != 0) out += ',';
        Chosen(*level.entries, level.Entry(data, i));
      }
      out += ']';
    }
    out += '}';
  }

  void Values(const Column& column, const void* data) {
    if (column.member->length == 0) return Value(column, data, 0);
    const std::uint32_t count = column.Count(data);
    Out() += '[';
    for (std::uint32_t i = 0; i < count; ++i) {
      if (i != 0) Out() += ',';
      Value(column, data, i);
    }
    Out() += ']';
  }

  void Value(const Column& column, const void* data, std::uint32_t index) {
    const NavframeMember& member = *column.member;
    const std::size_t length =
        navframe_text(&member, column.At(data), index, room_.data(), room_.size());
    const std::string_view text(room_.data(), std::min(length, room_.size() - 1));
    const bool isText = member.type == NavframeText || member.type == NavframeRecordText;
    if (isText && (!text.empty() || member.unknownRule != NavframeUnknownEmpty)) {
      AppendJsonString(text, Out());
    } else if (text.empty() || text.find_first_of("if") != std::string_view::npos) {
      Out().append("null");  // infinite numbers too
    } else {
      Out().append(text);
    }
  }

  void Part(const NavframeItem& item) {
    std::string& out = Out();
    out.append(",\"part\":\"").append(PartOf(item)).append("\",\"length\":");
    AppendNumber(item.length, out);
    out.append(",\"message\":");
    AppendJsonString(MessageOf(item), out);
    out.append(",\"name\":");
    AppendJsonString(navframe_message_name(&item), out);
    out.append(",\"reason\":");
    AppendJsonString(navframe_reason_text(item.reason), out);
    if (item.badField != 0) {
      out.append(",\"field\":");
      AppendNumber(item.badField, out);
    }
  }

  const Level& ShapeFor(const NavframeKind& kind) {
    const auto [place, isNew] = shapes_.try_emplace(&kind);
    if (isNew) place->second = ShapeOf(*kind.record, options_.fields);
    return place->second;
  }

  const SinkOptions& options_;
  Output& output_;
  std::unordered_map<const NavframeKind*, Level> shapes_;
  std::string room_ = std::string(1 << 14, '\0');
};

}  // namespace

std::unique_ptr<Sink> MakeJson(const SinkOptions& options, Outputs& outputs) {
  return std::make_unique<Json>(options, outputs);
}

}  // namespace navframe::tool
