// JSON of several lines, for programs that read what the tool tells of recordings.
#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "json_text.h"

namespace navframe::tool {

// What members have: objects, arrays, and values under their names. What is not known is null.
class JsonWriter {
 public:
  JsonWriter() { json_.SetIndent(' ', 2); }

  template <class Members>
  void Object(const char* name, Members members) {
    Name(name);
    json_.StartObject();
    members();
    json_.EndObject();
  }
  template <class List, class One>
  void Array(const char* name, const List& list, One one) {
    Name(name);
    json_.StartArray();
    for (const auto& entry : list) one(entry);
    json_.EndArray();
  }

  void Text(const char* name, std::string_view text) {
    Name(name);
    quoted_.clear();
    AppendJsonString(text, quoted_);
    EscapeLongControls(quoted_, 0);
    json_.RawValue(quoted_.data(), quoted_.size(), rapidjson::kStringType);
  }
  void TextIfAny(const char* name, std::string_view text) {
    if (!text.empty()) return Text(name, text);
    Name(name);
    json_.Null();
  }
  void Count(const char* name, std::uint64_t count) {
    Name(name);
    json_.Uint64(count);
  }
  void Number(const char* name, double number) {
    Name(name);
    if (std::isfinite(number)) {
      json_.Double(number);
    } else {
      json_.Null();
    }
  }
  void Flag(const char* name, bool flag) {
    Name(name);
    json_.Bool(flag);
  }
  template <class Value>
  void IfKnown(const char* name, const std::optional<Value>& value) {
    Name(name);
    if (value) {
      json_.Int64(static_cast<std::int64_t>(*value));
    } else {
      json_.Null();
    }
  }
  void Seconds(const char* name, const std::optional<std::int64_t>& milliseconds) {
    Number(name, milliseconds ? static_cast<double>(*milliseconds) / 1e3
                              : std::numeric_limits<double>::quiet_NaN());
  }

  std::string Done() const { return {text_.GetString(), text_.GetSize()}; }

 private:
  void Name(const char* name) {
    if (name != nullptr) json_.Key(name);
  }

  rapidjson::StringBuffer text_;
  rapidjson::PrettyWriter<rapidjson::StringBuffer> json_{text_};
  std::string quoted_;
};

}  // namespace navframe::tool
