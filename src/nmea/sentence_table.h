// The kinds of sentences: how they are recognised and what becomes of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "nmea/nmea_context.h"
#include "nmea/sentence.h"
#include "nmea/time_keeping.h"
#include "output/record_sink.h"

namespace navframe::nmea {

// When the output filter is asked: not at all, before the record is built (a blocked sentence is
// then not even parsed and moves no clock), or after it was parsed.
enum class FilterTest : std::uint8_t { Never, BeforeBuilding, AfterParsing };

// Whether the record's first byte is the tag flag.
enum class FirstByte : std::uint8_t { TagFlag, Data };

// Where the record's time text comes from.
enum class TimeText : std::uint8_t { FromSentence, FromDecoder };

// A text member of a record, by place; width 0 for none.
struct TextMember {
  std::uint16_t offset = 0;
  std::uint16_t width = 0;
};

// What a kind of sentence becomes.
struct SentenceRow {
  std::uint32_t kind;                     // MsgId of the plain sentence
  std::uint32_t taggedKind;               // and behind a tag block
  std::array<std::uint32_t, 2> accepted;  // filter values that let the record pass, besides 0
  FilterTest filterTest;
  FirstByte firstByte;
  TimeText timeText;
  ClockRule clock;
  bool (*takes)(const Fields& fields);                 // null: any number of fields
  std::uint32_t size = 0;                              // of the record; 0 for kinds without one
  const void* unknown = nullptr;                       // the record before its parser runs
  void (*copy)(void* to, const void* from) = nullptr;  // of a whole record, `from` staying valid
  void (*parse)(NmeaContext& context, const Fields& fields, void* record) = nullptr;
  std::uint16_t gpsTimeOffset = 0;
  std::uint16_t utcOffset = 0;  // of a record with a ClockRule
  TextMember text = {};         // the time text

  std::uint32_t Kind(TagFlag tag) const { return tag == TagFlag::Plain ? kind : taggedKind; }
  bool Passes(const RecordSink& sink) const { return sink.PassesAny(accepted[0], accepted[1]); }
};

// The largest record that a row names, and its alignment.
inline constexpr std::size_t LargestRecord = 128;

// The row of a sentence; null when it is of no known kind.
const SentenceRow* Classify(std::string_view text);

}  // namespace navframe::nmea
