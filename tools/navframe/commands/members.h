// What is told of recordings, by names: objects, arrays and values, to whatever is made of them.
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

namespace navframe::tool {

// Entries of arrays have no name: nullptr. What is not known is null.
class Members {
 public:
  virtual ~Members() = default;

  template <class Inside>
  void Object(const char* name, Inside inside) {
    BeginObject(name);
    inside();
    EndObject();
  }
  template <class List, class One>
  void Array(const char* name, const List& list, One one) {
    BeginArray(name);
    for (const auto& entry : list) one(entry);
    EndArray();
  }

  // Bytes that are no UTF-8 are the characters of these numbers.
  virtual void Text(const char* name, std::string_view text) = 0;
  virtual void Count(const char* name, std::uint64_t count) = 0;
  virtual void Flag(const char* name, bool flag) = 0;

  void TextIfAny(const char* name, std::string_view text) {
    if (text.empty()) return Null(name);
    Text(name, text);
  }
  void Number(const char* name, double number) {
    if (!std::isfinite(number)) return Null(name);
    Finite(name, number);
  }
  template <class Value>
  void IfKnown(const char* name, const std::optional<Value>& value) {
    if (!value) return Null(name);
    Integer(name, static_cast<std::int64_t>(*value));
  }
  void Seconds(const char* name, const std::optional<std::int64_t>& milliseconds) {
    if (!milliseconds) return Null(name);
    Finite(name, static_cast<double>(*milliseconds) / 1e3);
  }

 protected:
  virtual void BeginObject(const char* name) = 0;
  virtual void EndObject() = 0;
  virtual void BeginArray(const char* name) = 0;
  virtual void EndArray() = 0;
  virtual void Integer(const char* name, std::int64_t value) = 0;
  virtual void Finite(const char* name, double number) = 0;
  virtual void Null(const char* name) = 0;
};

}  // namespace navframe::tool
