// JSON of several lines, for programs that read what the tool tells of recordings.
#pragma once

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "commands/members.h"
#include "json_text.h"

namespace navframe::tool {

template <class Writer>
class BasicJsonWriter : public Members {
 public:
  void Text(const char* name, std::string_view text) override {
    Name(name);
    quoted_.clear();
    AppendJsonString(text, quoted_);
    EscapeLongControls(quoted_, 0);
    json_.RawValue(quoted_.data(), quoted_.size(), rapidjson::kStringType);
  }
  void Count(const char* name, std::uint64_t count) override {
    Name(name);
    json_.Uint64(count);
  }
  void Flag(const char* name, bool flag) override {
    Name(name);
    json_.Bool(flag);
  }

  std::string Done() const { return {text_.GetString(), text_.GetSize()}; }

 private:
  void BeginObject(const char* name) override {
    Name(name);
    json_.StartObject();
  }
  void EndObject() override { json_.EndObject(); }
  void BeginArray(const char* name) override {
    Name(name);
    json_.StartArray();
  }
  void EndArray() override { json_.EndArray(); }
  void Integer(const char* name, std::int64_t value) override {
    Name(name);
    json_.Int64(value);
  }
  void Finite(const char* name, double number) override {
    Name(name);
    json_.Double(number);
  }
  void Null(const char* name) override {
    Name(name);
    json_.Null();
  }
  void Name(const char* name) {
    if (name != nullptr) json_.Key(name);
  }

  rapidjson::StringBuffer text_;
  std::string quoted_;

 protected:
  Writer json_{text_};
};

class JsonWriter : public BasicJsonWriter<rapidjson::PrettyWriter<rapidjson::StringBuffer>> {
 public:
  JsonWriter() { json_.SetIndent(' ', 2); }
};

// All of it on one line.
using DenseJsonWriter = BasicJsonWriter<rapidjson::Writer<rapidjson::StringBuffer>>;

}  // namespace navframe::tool
