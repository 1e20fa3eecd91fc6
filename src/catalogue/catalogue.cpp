// The exported walk over kinds and members.
#include "navframe/catalogue.h"

#include <algorithm>
#include <concepts>
#include <string_view>

#include "base/characters.h"
#include "catalogue/digits.h"
#include "catalogue/kinds.h"
#include "catalogue/reading.h"

using namespace navframe;
using namespace navframe::catalogue;

namespace {

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, [](char x, char y) { return Lower(x) == Lower(y); });
}

// "1074-1077" has 1075, and "4074-11" itself alone: a range has numbers of the same length.
bool NamesOneOf(std::string_view message, std::string_view name) {
  if (EqualIgnoringCase(message, name)) return true;
  const std::size_t dash = message.find('-');
  if (dash != name.size() || message.size() != 2 * dash + 1) return false;
  constexpr std::size_t ShortestNumber = 4;
  return dash >= ShortestNumber && std::ranges::all_of(name, IsDigit) &&
         name >= message.substr(0, dash) && name <= message.substr(dash + 1);
}

bool NamesMessage(std::string_view messages, std::string_view name) {
  constexpr std::string_view Between = ", ";
  if (messages.empty() || name.empty()) return false;
  for (;;) {
    const std::size_t end = messages.find(Between);
    if (NamesOneOf(messages.substr(0, end), name)) return true;
    if (end == messages.npos) return false;
    messages.remove_prefix(end + Between.size());
  }
}

// As in JSON.
char* PutShortest(char* to, std::integral auto value) { return PutNumber(to, value); }
char* PutShortest(char* to, std::floating_point auto value) {
  char* const end = PutCommonNumber(to, value);
  return end != nullptr ? end : PutUncommonNumber(to, value);
}

// With a terminator; there must be room for one more than LongestNumber. Returns the length.
[[gnu::noinline]] std::size_t PutWhole(const NavframeMember& member, const std::uint8_t* at,
                                       char* to) {
  char* end = to;
  ReadNumber(member, at, [&end, to](auto value) { end = PutShortest(to, value); });
  *end = '\0';
  return static_cast<std::size_t>(end - to);
}

// Anything else, or where there is less room.
[[gnu::noinline]] std::size_t PutWhatFits(const NavframeMember& member, const void* data,
                                          std::uint32_t index, char* to, std::size_t capacity) {
  char number[LongestNumber + 1];
  std::string_view text;
  if (index < Elements(member)) {
    const std::uint8_t* const at = ElementAt(member, static_cast<const std::uint8_t*>(data), index);
    if (IsText(member)) text = ReadText(member, at);
    if (IsNumber(member)) text = {number, PutWhole(member, at, number)};
  }
  if (capacity != 0) {
    const std::size_t length = text.copy(to, capacity - 1);
    to[length] = '\0';
  }
  return text.size();
}

}  // namespace

extern "C" {

uint32_t navframe_kind_count(void) { return static_cast<uint32_t>(KindRows().size()); }

const NavframeKind* navframe_kind_at(uint32_t index) {
  return index < KindRows().size() ? &KindRows()[index].kind : nullptr;
}

const NavframeKind* navframe_kind(uint32_t id, uint32_t source) {
  const KindRow* const row = FindKind(id, source);
  return row == nullptr ? nullptr : &row->kind;
}

const NavframeKind* navframe_kind_named(const char* name) {
  if (name == nullptr) return nullptr;
  for (const KindRow& row : KindRows()) {
    if (EqualIgnoringCase(row.kind.name, name)) return &row.kind;
  }
  for (const KindRow& row : KindRows()) {
    if (NamesMessage(row.kind.message, name)) return &row.kind;
  }
  return nullptr;
}

int navframe_kind_has_name(const NavframeKind* kind, const char* name) {
  if (kind == nullptr || name == nullptr) return 0;
  return EqualIgnoringCase(kind->name, name) || NamesMessage(kind->message, name) ? 1 : 0;
}

const NavframeMember* navframe_member(const NavframeRecord* record, const char* name) {
  if (record == nullptr || name == nullptr) return nullptr;
  for (const NavframeMember* const member : MembersOf(*record)) {
    if (std::string_view(member->name) == name) return member;
  }
  return nullptr;
}

uint32_t navframe_length(const NavframeRecord* record, const NavframeMember* member,
                         const void* data) {
  return LengthInUse(*record, *member, static_cast<const std::uint8_t*>(data));
}

const void* navframe_nested(const NavframeMember* member, const void* data, uint32_t index) {
  if (member->type != NavframeNested || index >= Elements(*member)) return nullptr;
  return ElementAt(*member, static_cast<const std::uint8_t*>(data), index);
}

int navframe_number(const NavframeMember* member, const void* data, uint32_t index, double* out) {
  if (!IsNumber(*member) || index >= Elements(*member)) return NavframeNoNumber;
  const std::uint8_t* const at = ElementAt(*member, static_cast<const std::uint8_t*>(data), index);
  return ReadNumber(*member, at, [out](auto value) { *out = static_cast<double>(value); })
             ? NavframeKnown
             : NavframeNotKnown;
}

int navframe_integer(const NavframeMember* member, const void* data, uint32_t index, int64_t* out) {
  if (!IsNumber(*member) || IsFloat(*member) || index >= Elements(*member)) return NavframeNoNumber;
  const std::uint8_t* const at = ElementAt(*member, static_cast<const std::uint8_t*>(data), index);
  return ReadNumber(*member, at, [out](auto value) { *out = static_cast<int64_t>(+value); })
             ? NavframeKnown
             : NavframeNotKnown;
}

size_t navframe_text(const NavframeMember* member, const void* data, uint32_t index, char* out,
                     size_t capacity) {
  if (!IsNumber(*member) || index >= Elements(*member) || capacity <= LongestNumber) {
    return PutWhatFits(*member, data, index, out, capacity);
  }
  return PutWhole(*member, ElementAt(*member, static_cast<const std::uint8_t*>(data), index), out);
}

const char* navframe_value_name(const NavframeMember* member, int64_t value) {
  for (uint32_t i = 0; i < member->valueCount; ++i) {
    if (member->values[i].value == value) return member->values[i].name;
  }
  return nullptr;
}

}  // extern "C"
