// The framers and decoders of all protocols, over one clock and one sink: what the exports and
// streams share.
#pragma once

#include <cstdint>

#include "asciilog/ascii_log_decoder.h"
#include "asciilog/line_framer.h"
#include "base/characters.h"
#include "base/crc24q.h"
#include "base/dialect.h"
#include "ephemeris/collector.h"
#include "frame55aa/frame_decoder.h"
#include "frame55aa/frame_framer.h"
#include "framing/framing.h"
#include "framing/overlapping_checksum.h"
#include "framing/parser_state.h"
#include "nmea/nmea_decoder.h"
#include "nmea/sentence_framer.h"
#include "nmea/tag_block_framer.h"
#include "output/record_sink.h"
#include "rtcm/rtcm_decoder.h"
#include "rtcm/rtcm_framer.h"
#include "time/decoder_clock.h"
#include "ubx/fletcher.h"
#include "ubx/frame.h"
#include "ubx/ubx_decoder.h"
#include "ubx/ubx_framer.h"

namespace navframe {

// What framers keep between heads.
struct FramingState {
  nmea::SentenceSweep sweep;  // of the sentence at the head
  OverlappingChecksum<ubx::Fletcher> ubxChecksum;
  OverlappingChecksum<Crc24q> rtcmCrc;
  std::uint64_t logSearched = 0;
};

struct FrameDecoders {
  // `sink` must outlive the decoders.
  explicit FrameDecoders(RecordSink& sink, const Dialect& differences = LegacyDialect)
      : dialect(differences),
        ubx{sink, time, dialect},
        binary55Aa{sink},
        rtcm{sink, time, dialect},
        subframes{sink, time},
        nmea{sink, time, dialect},
        asciiLog{sink, dialect} {}
  FrameDecoders(const FrameDecoders&) = delete;
  FrameDecoders& operator=(const FrameDecoders&) = delete;

  const Dialect dialect;
  DecoderClock time{dialect.trueClock};
  FramingState framing;
  ubx::UbxDecoder ubx;
  frame55aa::FrameDecoder binary55Aa;
  rtcm::RtcmDecoder rtcm;
  ephemeris::SubframeCollector subframes;
  // Where these meet lies memory that streams seldom use.
  nmea::NmeaDecoder nmea;
  asciilog::AsciiLogDecoder asciiLog;
};

// How well a check tells frames from chance.
enum class Rank : std::uint8_t { EightBits, Fletcher, Crc };

// A protocol whose frames are recognised by their bytes alone.
struct ProtocolRow {
  NavframeProtocol protocol;
  NavframeProtocolStatistics NavframeStatistics::*counts;
  ParserState state;  // that its sync byte selects
  std::uint8_t syncByte;
  Rank rank;
  bool (*mayFollow)(std::uint8_t second);  // whether frames have it behind the sync byte
  std::uint32_t longestFrame;              // bytes, of the exports; more of them decide nothing
  Framing (*frame)(FramingState& state, const Dialect& dialect, const Head& head);
  // Of a frame that `frame` has just recognised.
  DecodeResult (*decode)(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length);
};

namespace protocols {

// Second bytes of frames.
constexpr bool IsLetterByte(std::uint8_t second) { return IsLetter(static_cast<char>(second)); }
constexpr bool IsCapital(std::uint8_t second) { return second >= 'A' && second <= 'Z'; }
constexpr bool IsPrintable(std::uint8_t second) { return second >= ' ' && second <= '~'; }
constexpr bool IsRtcmLength(std::uint8_t second) { return second < 4; }
template <std::uint8_t Byte>
constexpr bool Is(std::uint8_t second) {
  return second == Byte;
}

inline Framing FrameNmea(FramingState& state, const Dialect&, const Head& head) {
  return nmea::FrameSentence(head, state.sweep);
}
inline Framing FrameRtcm(FramingState& state, const Dialect&, const Head& head) {
  return rtcm::FrameRtcm3(head, state.rtcmCrc);
}
inline Framing FrameUbx(FramingState& state, const Dialect& dialect, const Head& head) {
  return ubx::FrameUbx(head, dialect.longRawMeasurements, state.ubxChecksum);
}
inline Framing Frame55Aa(FramingState&, const Dialect&, const Head& head) {
  return frame55aa::FrameBinary(head);
}
inline Framing FrameTagBlock(FramingState&, const Dialect&, const Head& head) {
  return nmea::FrameTagBlock(head);
}
inline Framing FrameLog(FramingState& state, const Dialect&, const Head& head) {
  return asciilog::FrameLine(head, state.logSearched);
}

inline DecodeResult DecodeNmea(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t) {
  const nmea::Fields fields(reinterpret_cast<const char*>(frame), decoders.framing.sweep);
  return decoders.nmea.Decode(fields, nmea::TagFlag::Plain);
}
inline DecodeResult DecodeRtcm(FrameDecoders& decoders, const std::uint8_t* frame,
                               std::uint32_t length) {
  return decoders.rtcm.Decode({frame, length});
}
DecodeResult DecodeUbx(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length);
inline DecodeResult Decode55Aa(FrameDecoders& decoders, const std::uint8_t* frame,
                               std::uint32_t length) {
  constexpr std::uint32_t Around = frame55aa::HeaderLength + frame55aa::ChecksumLength;
  return decoders.binary55Aa.Decode(frame + frame55aa::HeaderLength, length - Around);
}
// Its text goes with the sentence behind it.
inline DecodeResult DecodeTagBlock(FrameDecoders&, const std::uint8_t*, std::uint32_t) {
  return {};
}

DecodeResult DecodeLog(FrameDecoders& decoders, const std::uint8_t* frame, std::uint32_t length);

}  // namespace protocols

// Protocol, counts, state, sync byte, rank, second byte, longest frame, framer, decoder.
inline constexpr ProtocolRow Protocols[] = {
    {NavframeNmea, &NavframeStatistics::nmea, ParserState::NmeaSentence, '$', Rank::EightBits,
     protocols::IsLetterByte, nmea::LongestSentence, protocols::FrameNmea, protocols::DecodeNmea},
    {NavframeRtcm3, &NavframeStatistics::rtcm3, ParserState::Rtcm3, 0xD3, Rank::Crc,
     protocols::IsRtcmLength, rtcm::LongestFrame, protocols::FrameRtcm, protocols::DecodeRtcm},
    {NavframeUbx, &NavframeStatistics::ubx, ParserState::Ubx, 0xB5, Rank::Fletcher,
     protocols::Is<ubx::SecondSyncByte>, ubx::LongestFrame, protocols::FrameUbx,
     protocols::DecodeUbx},
    {Navframe55Aa, &NavframeStatistics::binary55Aa, ParserState::Binary55Aa, 'U', Rank::EightBits,
     protocols::Is<frame55aa::SecondSyncByte>, frame55aa::LongestFrame, protocols::Frame55Aa,
     protocols::Decode55Aa},
};

// What streams recognise besides; the exports have framers of their own for these.
inline constexpr ProtocolRow StreamProtocols[] = {
    {NavframeNmeaTagBlock, &NavframeStatistics::tagBlock, ParserState::NmeaTagBlock, '\\',
     Rank::EightBits, protocols::IsPrintable, nmea::LongestTagBlock, protocols::FrameTagBlock,
     protocols::DecodeTagBlock},
    {NavframeAsciiLog, &NavframeStatistics::asciiLog, ParserState::AsciiLogLine, '#', Rank::Crc,
     protocols::IsCapital, asciilog::LongestLine, protocols::FrameLog, protocols::DecodeLog},
};

}  // namespace navframe
