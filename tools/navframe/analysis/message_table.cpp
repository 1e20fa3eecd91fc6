#include "analysis/message_table.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace navframe::analysis {
namespace {

constexpr std::size_t Places = 4 * MessageTable::MostMessages;  // a power of two

bool IsGsv(const NavframeKind& kind) { return std::string_view(kind.name).starts_with("GSV"); }

std::uint64_t Mixed(std::uint64_t value) {
  constexpr std::uint64_t Odd = 0x9E3779B97F4A7C15;
  value *= Odd;
  return value ^ value >> 32;
}

}  // namespace

std::string MessageText(const NavframeItem& frame) {
  if (frame.address[0] != '\0') return frame.address;
  std::array<char, 24> text{};
  if (frame.protocol == NavframeUbx) {
    std::snprintf(text.data(), text.size(), "%02X-%02X", frame.message >> 8 & 0xFF,
                  frame.message & 0xFF);
  } else if (frame.subType != 0) {
    std::snprintf(text.data(), text.size(), "%u-%u", frame.message, frame.subType);
  } else if (frame.protocol != NavframeNmea && frame.protocol != NavframeNmeaTagBlock) {
    std::snprintf(text.data(), text.size(), "%u", frame.message);
  }
  return text.data();
}

MessageTable::MessageTable() : rows_(1), places_(Places), kindPlaces_(Places) {
  rows_[0].key.number = ~std::uint64_t{0};  // of no message
}

MessageTable::Row& MessageTable::Find(const Key& key, const NavframeItem& item) {
  const std::uint64_t hash = Mixed(key.address ^ Mixed(key.addressEnd ^ Mixed(key.number)));
  std::size_t place = hash % Places;
  while (places_[place] != 0 && !(rows_[places_[place]].key == key)) place = (place + 1) % Places;
  if (places_[place] == 0) {
    if (rows_.size() > MostMessages) {
      current_ = 0;
      return unlisted_;
    }
    places_[place] = static_cast<std::uint16_t>(rows_.size());
    Row& row = rows_.emplace_back();
    row.key = key;
    row.message = MessageText(item);
    row.name = navframe_message_name(&item);
    row.isGsv = item.protocol == NavframeNmea && row.message.ends_with("GSV");
    // Its records come with the sentence that ends a cycle, which is another one.
    if (row.isGsv) row.kinds = {navframe_kind_named("GSV")};
  }
  rows_[current_].next = places_[place];
  current_ = places_[place];
  return rows_[current_];
}

// A record of another kind than the last one of the message. Without a frame of its own it is none
// of the message's: satellites in view that were waiting.
void MessageTable::Relate(Row& row, const NavframeItem& item) {
  row.lastKind = item.kind;
  row.lastKindRow = RowOf(item.kind);
  if (item.length == 0 || IsGsv(*item.kind) != row.isGsv) return;
  if (std::ranges::find(row.kinds, item.kind) == row.kinds.end()) row.kinds.push_back(item.kind);
}

// There are fewer kinds than places.
std::size_t MessageTable::RowOf(const NavframeKind* kind) {
  std::size_t place = Mixed(reinterpret_cast<std::uintptr_t>(kind)) % Places;
  while (kindPlaces_[place] != 0 && kindRows_[kindPlaces_[place] - 1U].kind != kind) {
    place = (place + 1) % Places;
  }
  if (kindPlaces_[place] == 0) {
    kindRows_.push_back({kind, {}});
    kindPlaces_[place] = static_cast<std::uint16_t>(kindRows_.size());
  }
  return kindPlaces_[place] - 1U;
}

std::vector<Message> MessageTable::Messages(std::int64_t origin) const {
  std::vector<Message> messages;
  for (std::size_t i = 1; i < rows_.size(); ++i) {
    const Row& row = rows_[i];
    messages.push_back({static_cast<std::uint32_t>(row.key.number >> 56), row.message, row.name,
                        row.kinds, row.bytes, row.reasons[NavframeNoKind],
                        row.reasons[NavframeBadContent], row.reasons[NavframeBadField],
                        row.pace.Found(origin)});
  }
  std::ranges::stable_sort(messages, [](const Message& one, const Message& other) {
    return std::pair(one.protocol, std::string_view(one.message)) <
           std::pair(other.protocol, std::string_view(other.message));
  });
  return messages;
}

std::vector<KindCount> MessageTable::Kinds(std::int64_t origin) const {
  std::vector<KindCount> kinds;
  for (const KindRow& row : kindRows_) kinds.push_back({row.kind, row.pace.Found(origin)});
  std::ranges::sort(kinds, {},
                    [](const KindCount& one) { return std::pair(one.kind->source, one.kind->id); });
  return kinds;
}

}  // namespace navframe::analysis
