// Records compared member by member: a failure says which member differs, and by what.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace navframe::test {

// A member of a record beside the value that it should have: the same bits, or the same text.
struct Member {
  const void* at;
  std::size_t size;
  std::string difference;  // empty when there is none

  template <class T>
  Member(const char* name, const T& is, const std::type_identity_t<T>& expected)
      : at(&is), size(sizeof(T)) {
    if (std::memcmp(&is, &expected, sizeof(T)) != 0) Differ(name, +is, +expected);
  }
  template <std::size_t Width>
  Member(const char* name, const char (&is)[Width], std::string_view expected)
      : at(is), size(Width) {
    if (is != expected) Differ(name, is, expected);
  }
  void Differ(const char* name, const auto& is, const auto& expected) {
    std::ostringstream text;
    text << std::setprecision(17) << name << " is " << is << ", not " << expected << "\n";
    difference = text.str();
  }
};
#define IS(member, expected) (::navframe::test::Member(#member, member, expected))

// A record that is compared, and where in a test.
struct Compared {
  std::vector<std::uint8_t> bytes;
  const void* begin;
  const char* file;
  int line;

  template <class Record>
  Compared(const Record& record, const char* in = __builtin_FILE(), int at = __builtin_LINE())
      : bytes(sizeof(Record)), begin(&record), file(in), line(at) {
    std::memcpy(bytes.data(), &record, sizeof(Record));
  }
};

void ExpectMembers(const Compared& record, const auto&... members) {
  const std::string text = (members.difference + ...);
  if (!text.empty()) ADD_FAILURE_AT(record.file, record.line) << text;
}

// The same of a whole record: what is none of these members has to be 0, padding included.
void ExpectRecord(Compared record, const auto&... members) {
  ExpectMembers(record, members...);
  const auto offset = [&](const void* at) {
    return static_cast<const char*>(at) - static_cast<const char*>(record.begin);
  };
  (std::memset(record.bytes.data() + offset(members.at), 0, members.size), ...);
  for (std::size_t i = 0; i < record.bytes.size(); ++i) {
    if (record.bytes[i] != 0)
      ADD_FAILURE_AT(record.file, record.line) << "byte " << i << " is not 0";
  }
}

}  // namespace navframe::test
