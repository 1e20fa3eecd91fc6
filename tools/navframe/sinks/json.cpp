// JSON Lines: one object a record.
#include <map>

#include "item_text.h"
#include "record_shape.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

void AppendString(std::string_view text, std::string& out) {
  constexpr char Digits[] = "0123456789abcdef";
  out += '"';
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += {'\\', c};
    } else if (byte < 0x20) {
      out.append("\\u00") += {Digits[byte >> 4], Digits[byte & 0xF]};
    } else {
      out += c;
    }
  }
  out += '"';
}

class Json : public Sink {
 public:
  explicit Json(const SinkOptions& options) : options_(options), file_(options.target) {}

  void Take(const Wanted& wanted) override {
    const bool isRecord = wanted.item.type == NavframeItemRecord;
    if (!isRecord && !options_.withParts) return;
    Begin(wanted);
    if (isRecord) {
      Record(wanted);
    } else {
      Part(wanted.item);
    }
    file_.Buffer().append("}\n");
    file_.WriteWhenLarge();
  }
  void Flush() override { file_.Write(); }
  void End() override { file_.Close(); }

 private:
  void Begin(const Wanted& wanted) {
    std::string& out = file_.Buffer();
    out.append("{\"time\":\"");
    const std::size_t before = out.size();
    AppendTime(wanted.item.time, out);
    if (out.size() == before) {
      out.replace(before - 1, 1, "null");
    } else {
      out += '"';
    }
    if (options_.withSource) {
      out.append(",\"source\":");
      AppendString(wanted.source, out);
    }
    out.append(",\"offset\":").append(std::to_string(wanted.item.offset));
  }

  void Record(const Wanted& wanted) {
    std::string& out = file_.Buffer();
    const NavframeKind& kind = *wanted.item.kind;
    out.append(",\"kind\":\"").append(kind.name).append("\",\"record\":");
    if (!options_.fields.empty()) return Chosen(ShapeFor(kind), wanted.record);
    const std::size_t before = out.size();
    std::size_t room = Room;
    for (;;) {
      out.resize(before + room);
      const std::size_t length = navframe_json(&kind, wanted.record, out.data() + before, room);
      if (length < room) return out.resize(before + length);
      room = length + 1;
    }
  }

  // The chosen members alone, by the names of their columns.
  void Chosen(const Level& level, const void* data) {
    std::string& out = file_.Buffer();
    out += '{';
    const char* separator = "";
    for (const Column& column : level.columns) {
      out.append(separator).append("\"").append(column.name).append("\":");
      separator = ",";
      Value(column, data);
    }
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

  void Value(const Column& column, const void* data) {
    text_.clear();
    column.Append(data, text_);
    const bool isText =
        column.member->type == NavframeText || column.member->type == NavframeRecordText;
    if (text_.empty() || text_ == "inf" || text_ == "-inf" || text_ == "nan") {
      file_.Buffer().append("null");
    } else if (isText) {
      AppendString(text_, file_.Buffer());
    } else {
      file_.Buffer().append(text_);
    }
  }

  void Part(const NavframeItem& item) {
    std::string& out = file_.Buffer();
    out.append(",\"part\":\"").append(PartOf(item)).append("\",\"length\":");
    out.append(std::to_string(item.length)).append(",\"message\":");
    AppendString(MessageOf(item), out);
    out.append(",\"name\":");
    AppendString(navframe_message_name(&item), out);
    out.append(",\"reason\":");
    AppendString(navframe_reason_text(item.reason), out);
    if (item.badField != 0) out.append(",\"field\":").append(std::to_string(item.badField));
  }

  const Level& ShapeFor(const NavframeKind& kind) {
    const auto [place, isNew] = shapes_.try_emplace(&kind);
    if (isNew) place->second = ShapeOf(*kind.record, options_.fields);
    return place->second;
  }

  static constexpr std::size_t Room = 4096;
  const SinkOptions options_;
  OutputFile file_;
  std::map<const NavframeKind*, Level> shapes_;
  std::string text_;
};

}  // namespace

std::unique_ptr<Sink> MakeJson(const SinkOptions& options) {
  return std::make_unique<Json>(options);
}

}  // namespace navframe::tool
