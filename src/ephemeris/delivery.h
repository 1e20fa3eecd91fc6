// From the fields of an ephemeris, as they were sent, to its record.
#pragma once

#include "navframe/records_ephemerides.h"
#include "output/record_sink.h"
#include "time/decoder_clock.h"

namespace navframe::ephemeris {

// What the interface documents compute with.
inline constexpr double Semicircle = 3.1415926535898;  // rad

// Values EphemerisSystem and EphemerisMessage of navframe/records_ephemerides.h.
enum class System : std::uint8_t { Gps = 1, Galileo = 3, BeiDou = 4, Qzss = 5, NavIc = 6 };
enum class Message : std::uint8_t { Lnav = 1, Fnav, Inav, D1, D2, NavIcSps };

// The message of a BeiDou satellite, by its number: those above the equator send D2.
Message BeiDouMessage(std::uint8_t satellite);

// The time of a GLONASS frame, 12 bits of it: hours, 6 bits of minutes, halves of them.
inline void PutFrameTime(std::uint32_t sent, GlonassEphemerisRecord& record) {
  record.frameTime = (sent >> 7) * 3600 + (sent >> 1 & 63U) * 60 + (sent & 1U) * 30;
}

// A clock without a date learns the week, also from a day that the message does not vouch for:
// better that one than none.
void NoteWeek(const GlonassEphemerisRecord& record, NavframeTimeSource source, DecoderClock& clock);

// Adds what follows from the fields that were read (weeks, accuracy, health, dates), and pushes the
// record. A clock without a date learns the week.
void Deliver(KeplerEphemerisRecord& record, NavframeTimeSource source, RecordSink& sink,
             DecoderClock& clock);
void Deliver(GlonassEphemerisRecord& record, NavframeTimeSource source, RecordSink& sink,
             DecoderClock& clock);

}  // namespace navframe::ephemeris
