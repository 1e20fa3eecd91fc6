// The kinds of sentences: how they are recognised and what becomes of them. Parsers and rows stand
// together, in standard_sentences.cpp and proprietary_sentences.cpp.
//
// A parser fills a record of unknown values from a sentence's fields; an empty field leaves the
// value unknown, and so does one that cannot be converted, of which its reader takes note.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>

#include "catalogue/unknown_records.h"
#include "navframe/records.h"
#include "nmea/field.h"
#include "nmea/nmea_context.h"
#include "nmea/sentence.h"
#include "nmea/time_keeping.h"
#include "output/record_sink.h"

namespace navframe::nmea {

// When the output filter is asked: not at all, before the record is built (a blocked sentence is
// then not even parsed and moves no clock), or after it was parsed.
enum class FilterTest : std::uint8_t { Never, BeforeBuilding, AfterParsing };

// A text member of a record, by place; width 0 for none.
struct TextMember {
  std::uint16_t offset = 0;
  std::uint16_t width = 0;
};

// What a kind of sentence becomes.
struct SentenceRow {
  std::uint32_t kind;  // MsgId of the plain sentence
  FilterTest filterTest;
  ClockRule clock = ClockRule::None;
  bool (*takes)(const Fields& fields) = nullptr;  // null: any number of fields
  // A filter value that lets the record pass besides that of its kind, 0 for none; and the one of
  // its kind where that is another kind's.
  std::uint32_t twin = 0;
  std::uint32_t passesAs = 0;
  bool keepsTimeText = false;  // though it does not move the clock
  bool takesByTime = false;    // `takes` asks for decimals of its time alone
  // What streams of the Standard dialect make of a sentence that this one takes.
  const SentenceRow* wide = nullptr;

  // What follows from the type of the record.
  std::uint32_t size = 0;                              // 0 for kinds without one
  bool hasTag = false;                                 // the first byte is the tag flag
  void (*copy)(void* to, const void* from) = nullptr;  // of a whole record, `from` staying valid
  // Writes every byte of the record.
  void (*parse)(NmeaContext& context, FieldReader& fields, void* record) = nullptr;
  std::uint16_t gpsTimeOffset = 0;
  std::uint16_t utcOffset = 0;  // of a record with a ClockRule
  TextMember text = {};         // the time text

  // The standard sentences have kinds of their own behind tag blocks.
  std::uint32_t Kind(TagFlag tag) const {
    return tag == TagFlag::Plain || kind > MsgIdZda ? kind : kind + (MsgIdTaggedGga - MsgIdGga);
  }
  bool Passes(const RecordSink& sink) const {
    if (sink.PassesAll()) [[likely]]
      return true;
    const std::uint32_t other = twin != 0 ? twin : Kind(TagFlag::BehindTagBlock);
    return sink.PassesAny(passesAs != 0 ? passesAs : kind, other);
  }
  // A record that does not move the clock takes its time text from it.
  bool TakesTimeText() const {
    return clock == ClockRule::None && !keepsTimeText && text.width != 0;
  }
};

// The largest record that a row names, and its alignment.
inline constexpr std::size_t LargestRecord = 288;

// Copies every byte of a record, also those between its members.
template <class Record>
void CopyRecord(void* to, const void* from) {
  std::memcpy(to, from, sizeof(Record));
  if constexpr (requires { Record::text.c_str(); }) {
    // A string's bytes may point into the string itself.
    new (&static_cast<Record*>(to)->text) RecordText(static_cast<const Record*>(from)->text);
  }
}

// Adds to a row what follows from the type of its record.
template <class Record, void (*Parse)(NmeaContext&, FieldReader&, Record&)>
constexpr SentenceRow With(SentenceRow row) {
  static_assert(sizeof(Record) <= LargestRecord);
  row.size = sizeof(Record);
  row.hasTag = requires { Record::tag; };
  row.copy = CopyRecord<Record>;
  row.parse = [](NmeaContext& context, FieldReader& fields, void* bytes) {
    auto& record = *static_cast<Record*>(bytes);
    catalogue::MakeUnknown(record);
    Parse(context, fields, record);
  };
  row.gpsTimeOffset = offsetof(Record, gpsTime);
  if constexpr (requires { Record::utc; }) row.utcOffset = offsetof(Record, utc);
  if constexpr (requires { Record::timeText; }) {
    row.text = {offsetof(Record, timeText), sizeof(Record::timeText)};
  }
  return row;
}

// The row of a sentence: that of the three characters behind "$" and a two-letter talker, or else
// that of the text behind "$"; null when it is of no known kind.
const SentenceRow* Classify(std::string_view text);
const SentenceRow* FindProprietary(std::string_view text);  // by the text behind "$" alone

}  // namespace navframe::nmea
