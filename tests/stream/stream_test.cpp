// Streams as hosts see them: spans over every byte, records in any chunking, flush, idle, ranks.
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "generator/mixed_stream.h"
#include "support/asciilog.h"
#include "support/binary_frames.h"
#include "support/items.h"

namespace navframe::test {
namespace {

Bytes Nmea(std::string_view body) { return ToBytes(Sentence(body)); }
const Bytes Vtg = Nmea("GPVTG,54.7,T,34.4,M,5.5,N,10.2,K");                 // 38 bytes
const Bytes Gsv1 = Nmea("GPGSV,2,1,05,01,40,083,46,02,17,308,41,,,,,,,,");  // 52
const Bytes Gsv2 = Nmea("GPGSV,2,2,05,03,40,083,46");                       // 31
const Bytes Unknown = Nmea("GPWPL,01,01,02,u-blox");                        // 27
const Bytes Station = sample::RtcmStation();                                // 25
const Bytes Zeros = RtcmFrame(Bytes(19));                                   // 25
const Bytes AroundFalseHeads =
    Frame55Aa(Bytes{0xD3, 0, 180, 0xD3, 0, 180, 0xD3, 0, 180} + Bytes(155));  // 171

// A minute of positions, 64 bytes each.
Bytes Gga(int second) {
  char time[16];
  std::snprintf(time, sizeof time, "1200%02d.00", second);
  return Nmea(std::string("GPGGA,") + time + ",4807.038,N,01131.000,E,1,08,0.9,5.4,M,,M,,");
}
// The header of a UBX frame with a payload of that many bytes.
Bytes UbxHeader(std::size_t payload) {
  return {0xB5,
          0x62,
          1,
          7,
          static_cast<std::uint8_t>(payload),
          static_cast<std::uint8_t>(payload >> 8)};
}

StreamOptions Asking(std::uint32_t items) {
  StreamOptions options;
  options.items = items;
  return options;
}

std::string Repeated(const std::string& lines, int times) {
  return times == 0 ? "" : lines + Repeated(lines, times - 1);
}

std::string Name(std::size_t chunk) { return "by " + std::to_string(chunk); }

// What comes of some bytes at the end of a stream.
struct Case {
  Bytes bytes;
  std::string lines;
};

TEST(Streams, SpansTellWhatTheyAre) {
  const Case cases[] = {
      {Vtg, "NMEA GPVTG 38 =1\n  VTG\n"},
      {First(Vtg, 36) + Vtg, "NMEA GPVTG 36 =1\n  VTG\nNMEA GPVTG 38 =1\n  VTG\n"},
      {Unknown, "NMEA GPWPL 27 =0 no kind\n"},
      {UbxFrame(0x0A, 0x09, Bytes(10)), "UBX 0A09 18 =0 no kind\n"},
      {UbxFrame(0x01, 0x07, Bytes(4)), "UBX 0107 12 =0 content\n"},
      {Frame55Aa(Bytes(8)), "55AA 8 15 =0 no kind\n"},
      {Station, "RTCM 3 1005 25 =1\n  STATION-ARP\n"},
      {RtcmFrame(BitWriter().Put(4074, 12).Put(77, 12)), "RTCM 3 4074-77 9 =0 no kind\n"},
      {RtcmFrame(BitWriter().Put(910, 12).Put(33, 8)), "RTCM 3 910-33 9 =0 content\n"},
      {Bytes{0xD3, 0x00, 0x00, 0x47, 0xEA, 0x4B}, "RTCM 3 6 =0 no kind\n"},
      {RtcmFrame(Bytes(1023)), "RTCM 3 1029 =0 no kind\n"},
      {ToBytes(Log("#VERSIONA,1")), "ASCII log VERSIONA 22 =0 no kind\n"},
      {ToBytes("\\g:1*6C\\") + Vtg,
       "NMEA tag block 8 =0\nNMEA GPVTG 38 =1 \\g:1*6C\n  VTG \\g:1*6C\n"},
      {ToBytes("\\g:1*6C\\") + Station, "NMEA tag block 8 =0\nRTCM 3 1005 25 =1\n  STATION-ARP\n"},
      {ToBytes("\\g:1*6C\\\n") + Vtg, "NMEA tag block 8 =0\nskipped 1\nNMEA GPVTG 38 =1\n  VTG\n"},
      // Satellites in view belong to the sentence that closed them, or to the end.
      {Gsv1 + Gsv2 + Vtg, "NMEA GPGSV 52 =0\nNMEA GPGSV 31 =0\nNMEA GPVTG 38 =2\n  GSV\n  VTG\n"},
      {Gsv2 + Unknown, "NMEA GPGSV 31 =0\nNMEA GPWPL 27 =1 no kind\n  GSV\n"},
      {Gsv2 + ToBytes("Uxxxxx"), "NMEA GPGSV 31 =0\n55AA rejected header 0\nskipped 5\n  GSV\n"},
      {Gsv2 + Nmea("GPVTG,x,T"),
       "NMEA GPGSV 31 =0\nNMEA GPVTG 15 =2 field 1\n  GSV\n  VTG field 1\n"},
      {Nmea("GPGSV,1,1,01,300,40,083,46") + Nmea("GPVTG,x,T"),
       "NMEA GPGSV 32 =0\nNMEA GPVTG 15 =2 field 1\n  GSV-WIDE\n  VTG field 1\n"},
      // Rejected by what follows the first byte, by a length, by a check, and cut off by the end.
      {ToBytes("$1P,*00"), "NMEA rejected header 0\nskipped 6\n"},
      {ToBytes("$GPXXX" + std::string(260, ',')), "NMEA rejected length 0\nskipped 265\n"},
      {ToBytes("$GPXXX,*00"), "NMEA rejected checksum 10\nskipped 9\n"},
      {ToBytes("$GPXXX,"), "NMEA rejected cut 0\nskipped 6\n"},
      {ToBytes("$GPXXX") + Vtg, "NMEA rejected cut 0\nskipped 5\nNMEA GPVTG 38 =1\n  VTG\n"},
      {ToBytes("\xB5xxxxx"), "UBX rejected header 0\nskipped 5\n"},
      {UbxHeader(4049), "UBX rejected length 4057\nskipped 5\n"},
      {Damaged(UbxFrame(1, 7, Bytes(10))), "UBX rejected checksum 18\nskipped 17\n"},
      {UbxHeader(100), "UBX rejected cut 108\nskipped 5\n"},
      {ToBytes("\xD3\x04\x01\xD3\x08\x01\xD3\x10\x01\xD3\x20\x01\xD3\x40\x01\xD3\x80\x01"),
       Repeated("RTCM 3 rejected header 0\nskipped 2\n", 6)},
      {Damaged(Zeros), "RTCM 3 rejected checksum 25\nskipped 24\n"},
      {First(Zeros, 20), "RTCM 3 rejected cut 25\nskipped 19\n"},
      {ToBytes("Uxxxxx"), "55AA rejected header 0\nskipped 5\n"},
      {Bytes{'U', 0xAA, 9, 0, 0, 0}, "55AA rejected length 16\nskipped 5\n"},
      {Damaged(Frame55Aa(Bytes(8))), "55AA rejected checksum 15\nskipped 14\n"},
      {First(Frame55Aa(Bytes(8)), 14), "55AA rejected cut 15\nskipped 13\n"},
      {ToBytes("\\s:1\\"),
       "NMEA tag block rejected header 0\nskipped 3\n"
       "NMEA tag block rejected cut 0\n"},
      {ToBytes("\\s:1*00 "), "NMEA tag block rejected cut 0\nskipped 7\n"},
      {ToBytes("\\" + std::string(260, 'a')), "NMEA tag block rejected length 0\nskipped 260\n"},
      {ToBytes("#NOLOG,1"), "ASCII log rejected header 0\nskipped 7\n"},
      {ToBytes("#BESTPOSA,1\n"), "ASCII log rejected cut 0\nskipped 11\n"},
      {ToBytes("#BESTPOSA,1*00000000"), "ASCII log rejected checksum 20\nskipped 19\n"},
      {Bytes(70000), "skipped 65536\nskipped 4464\n"},
  };
  for (const auto& [bytes, lines] : cases) {
    for (const std::size_t chunk : {std::size_t{1}, std::size_t{7}, SIZE_MAX}) {
      EXPECT_EQ(Watched(bytes, chunk), lines) << Name(chunk);
    }
  }
}

// The lines of a text that `is` holds for.
template <class Is>
std::string LinesThat(const std::string& text, Is is) {
  std::string lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at) + 1;
    const std::string line = text.substr(at, end - at);
    if (is(line)) lines += line;
    at = end;
  }
  return lines;
}

// Frames of all protocols, false heads, damage and noise.
Bytes Rough() {
  Bytes bytes;
  for (std::uint64_t seed = 1; seed < 4; ++seed) {
    bytes = bytes + NoiseBytes(3000, seed) + sample::MixedStream() +
            ToBytes("\\g:1*6C\\" + Sentence("GPVTG,x,T") + Log("#VERSIONA,1")) + Gsv1 +
            AroundFalseHeads + Frame55Aa(Bytes(4) + Zeros + Bytes(135));
  }
  return bytes;
}

TEST(Streams, ChunksNeverMatter) {
  const Bytes bytes = Rough();
  const std::string whole = Watched(bytes);
  const std::string records = LinesOf(Asking(NavframeItemRecord), bytes);
  for (const std::size_t chunk : {1U, 7U, 61U, 4096U, 65536U}) {
    EXPECT_EQ(Watched(bytes, chunk), whole) << Name(chunk);
    EXPECT_EQ(LinesOf(Asking(NavframeItemRecord), bytes, chunk), records) << Name(chunk);
  }
}

TEST(Streams, WhatIsNotAskedForChangesNothingElse) {
  const Bytes bytes = Rough();
  const std::string all = LinesOf(Asking(NavframeAllItems), bytes);
  const auto typeOf = [](const std::string& line) -> std::uint32_t {
    if (line.starts_with("  ")) return NavframeItemRecord;
    if (line.starts_with("skipped")) return NavframeItemSkipped;
    if (line.find(" rejected ") != std::string::npos) return NavframeItemRejected;
    const bool undecoded = line.ends_with(" no kind\n") || line.ends_with(" content\n");
    return undecoded ? 0U + NavframeItemFrame + NavframeItemUndecoded : 0U + NavframeItemFrame;
  };
  for (std::uint32_t items = 1; items < 2 * NavframeItemUndecoded; ++items) {
    const auto asked = [&](const std::string& line) { return (typeOf(line) & items) != 0; };
    EXPECT_EQ(LinesOf(Asking(items), bytes), LinesThat(all, asked)) << items;
  }
  int kinds = 0;
  for (const NavframeKind* kind; (kind = navframe_kind_at(kinds)) != nullptr; ++kinds) {
    StreamOptions options = Asking(NavframeItemRecord);
    options.kinds = &kind;
    options.kindCount = 1;
    const auto wanted = [name = "  " + std::string(kind->name) + " "](const std::string& line) {
      return line.starts_with(name);
    };
    EXPECT_EQ(LinesOf(options, bytes), LinesThat(all, wanted)) << kind->name;
  }
}

TEST(Streams, ProtocolsAreSetApart) {
  const std::pair<NavframeProtocol, Bytes> frames[] = {
      {NavframeNmea, Vtg},
      {NavframeNmeaTagBlock, ToBytes("\\g:1*6C\\")},
      {NavframeRtcm3, Station},
      {NavframeUbx, UbxFrame(1, 7, Bytes(10))},
      {Navframe55Aa, Frame55Aa(Bytes(8))},
      {NavframeAsciiLog, ToBytes(Log("#VERSIONA,1"))}};
  Bytes bytes;
  for (const auto& frame : frames) bytes = bytes + frame.second + Bytes(1);
  for (const auto& [protocol, frame] : frames) {
    StreamOptions options = Asking(NavframeItemFrame);
    options.protocols = protocol;
    EXPECT_EQ(LinesOf(options, bytes), LinesOf(options, frame));
    EXPECT_TRUE(LinesOf(options, frame).starts_with(navframe_protocol_name(protocol)));
    options.protocols = NavframeAllProtocols & ~protocol;
    EXPECT_EQ(LinesOf(options, frame), "");
  }
}

TEST(Streams, AFlushEndsTheInput) {
  WatchedStream watched;
  const Bytes waiting = UbxHeader(100) + Vtg + Station;
  EXPECT_EQ(watched.Put(waiting), "");
  watched.stream.flush();
  EXPECT_EQ(watched.stream.put(Vtg), 0U) << "what the flush lets out comes first";
  EXPECT_EQ(watched.Flush(),
            "UBX rejected cut 108\nskipped 5\nNMEA GPVTG 38 =1\n  VTG\n"
            "RTCM 3 1005 25 =1\n  STATION-ARP\n");
  EXPECT_EQ(watched.Flush(), "");
  // Nothing reaches over it: no head, no tag block, no cycle, no line end.
  EXPECT_EQ(watched.PutFlush(First(Zeros, 10)), "RTCM 3 rejected cut 25\nskipped 9\n");
  EXPECT_EQ(watched.PutFlush(Bytes(15)), "skipped 15\n");
  EXPECT_EQ(watched.PutFlush(ToBytes("\\g:1*6C\\")), "NMEA tag block 8 =0\n");
  EXPECT_EQ(watched.PutFlush(Gsv1), "NMEA GPGSV 52 =0\n  GSV\n");
  EXPECT_EQ(watched.PutFlush(First(Vtg, 36)), "NMEA GPVTG 36 =1\n  VTG\n");
  EXPECT_EQ(watched.Put(ToBytes("\r\n") + Vtg), "skipped 2\nNMEA GPVTG 38 =1\n  VTG\n");
}

TEST(Streams, AQuietLineGivesUpWhatAWholeFrameStandsBehind) {
  WatchedStream watched;
  EXPECT_EQ(watched.Put(UbxHeader(4000) + Bytes{0xD3, 0, 200}), "");
  EXPECT_EQ(watched.Idle(), "");
  EXPECT_EQ(watched.Put(Gga(0)), "");
  EXPECT_EQ(watched.Idle(),
            "UBX rejected cut 4008\nskipped 5\nRTCM 3 rejected cut 206\nskipped 2\n"
            "NMEA GPGGA 64 =1\n  GGA\n");
  for (int second = 1; second < 5; ++second) {
    EXPECT_EQ(watched.PutIdle(Gga(second)), "NMEA GPGGA 64 =1\n  GGA\n");
  }
  // One call is for what is there then.
  EXPECT_EQ(watched.Put(UbxHeader(4000) + Gga(5)), "");
  EXPECT_NE(watched.Idle(), "");
  // A frame that is still coming is waited for.
  const Bytes slow = UbxFrame(0x0A, 0x09, Bytes(1000));
  for (std::size_t at = 0; at < slow.size(); at += 100) {
    const Bytes piece(slow.begin() + static_cast<std::ptrdiff_t>(at),
                      slow.begin() + static_cast<std::ptrdiff_t>(std::min(at + 100, slow.size())));
    const bool last = at + 100 >= slow.size();
    EXPECT_EQ(watched.PutIdle(piece), last ? "UBX 0A09 1008 =0 no kind\n" : "") << at;
  }
  // So is the second sentence of two, but not a line end.
  EXPECT_EQ(watched.PutIdle(Gsv1), "NMEA GPGSV 52 =0\n");
  EXPECT_EQ(watched.PutIdle(Gsv2), "NMEA GPGSV 31 =0\n  GSV\n");
  EXPECT_EQ(watched.PutIdle(Gsv2), "NMEA GPGSV 31 =0\n") << "the first one is missing";
  EXPECT_EQ(watched.Put(First(Vtg, 36)), "");
  EXPECT_EQ(watched.Idle(), "NMEA GPVTG 36 =2\n  GSV\n  VTG\n");
  EXPECT_EQ(watched.PutIdle(Gsv1 + Gsv2), "NMEA GPGSV 52 =0\nNMEA GPGSV 31 =0\n  GSV\n");
}

TEST(Streams, AStrongerCheckWins) {
  const Bytes ubx = UbxFrame(0x0A, 0x09, Bytes(20));
  // A sentence whose checksum lies in the frame that begins in it.
  const std::string checked = Sentence("GPXXX,\xD3\x01\x01xx");
  const Bytes reaching = ToBytes(checked.substr(0, 7)) +
                         RtcmFrame(ToBytes(checked.substr(10, 5) + std::string(252, 'x')));
  const Case cases[] = {
      {reaching, "NMEA rejected stronger 15\nskipped 6\nRTCM 3 1927 263 =0 no kind\n"},
      {AroundFalseHeads + Frame55Aa(Bytes(4) + Zeros + Bytes(135)),
       "55AA 164 171 =0 no kind\n"
       "55AA rejected stronger 171\nskipped 9\nRTCM 3 25 =0 no kind\nskipped 136\n"},
      {Frame55Aa(ubx + Bytes(136)),
       "55AA rejected stronger 171\nskipped 5\nUBX 0A09 28 =0 no kind\nskipped 137\n"},
      // The checksum of one is the first byte of the other.
      {Frame55Aa(Bytes{0xCB} + Bytes(7)) + Bytes(Zeros.begin() + 1, Zeros.end()),
       "55AA rejected stronger 15\nskipped 13\nRTCM 3 25 =0 no kind\n"},
      {UbxFrame(0x0A, 0x09, Zeros + Bytes(3)),
       "UBX rejected stronger 36\nskipped 5\nRTCM 3 25 =0 no kind\nskipped 5\n"},
      // Neither a weaker one, nor an equal one.
      {RtcmFrame(Bytes(2) + ubx), "RTCM 3 36 =0 no kind\n"},
      {UbxFrame(0x0A, 0x09, Vtg + ubx), "UBX 0A09 74 =0 no kind\n"},
      {Frame55Aa(Vtg + Bytes(126)), "55AA 164 171 =0 no kind\n"},
      // A head with a stronger check that is none, and one that never comes to its end.
      {Frame55Aa(Damaged(Zeros) + Bytes(139)), "55AA 164 171 =0 no kind\n"},
      {Frame55Aa(Bytes{0xD3, 0, 200} + Bytes(161)), "55AA 164 171 =0 no kind\n"},
  };
  for (const auto& [bytes, lines] : cases) {
    for (const std::size_t chunk : {std::size_t{1}, SIZE_MAX}) {
      EXPECT_EQ(Watched(bytes, chunk), lines) << Name(chunk);
    }
  }
  // The weaker frame is waited with to the end of the stronger head, no longer.
  WatchedStream watched;
  EXPECT_EQ(watched.Put(Frame55Aa(Bytes{0xD3, 0, 200} + Bytes(161)) + Bytes(40)), "");
  EXPECT_EQ(watched.Put(Bytes(1)), "55AA 164 171 =0 no kind\n");
  EXPECT_EQ(watched.PutIdle(Frame55Aa(Bytes{0xD3, 0, 200} + Bytes(161))),
            "skipped 41\n55AA 164 171 =0 no kind\n");
}

TEST(Streams, LegacyShowsWhatTheExportsThrowAndTell) {
  StreamOptions options;
  options.dialect = NavframeLegacy;
  WatchedStream watched(options);
  EXPECT_EQ(watched.Put(Gga(0) + Nmea("GPVTG,x,T") + Vtg + Damaged(UbxFrame(1, 7, Bytes(4)))),
            "NMEA GPGGA 64 =1\n  GGA\nNMEA GPVTG 15 =0 field 1\nNMEA GPVTG 38 =1\n  VTG\n"
            "UBX rejected checksum 12\n  DIAGNOSTIC\n");
  EXPECT_EQ(watched.stream.statistics().nmea.undecoded, 1U);
  EXPECT_EQ(watched.Flush(), "skipped 11\n");
}

TEST(Streams, AResetIsANewStream) {
  const Bytes bytes = Bytes(8) + Vtg + UbxFrame(1, 7, Bytes(60)) + Rough();
  const std::string expected = LinesOf(Asking(NavframeAllItems), bytes, 10);
  Stream stream(Asking(NavframeAllItems));
  // A tag block in front of where the new stream has a sentence; a head given up where it waits;
  // anything else; and always the end of the input.
  for (const Bytes& before : {ToBytes("\\g:1*6C\\"), UbxHeader(4000) + Bytes(90) + Vtg, Rough()}) {
    stream.feed(before, [](const Item&) {});
    stream.idle();
    stream.feed({}, [](const Item&) {});
    stream.flush();
    stream.reset();
    std::string lines;
    const auto add = [&lines](const Item& item) { lines += LineOf(item, true); };
    for (std::size_t at = 0; at < bytes.size(); at += 10) {
      stream.feed(std::span(bytes).subspan(at, std::min<std::size_t>(10, bytes.size() - at)), add);
    }
    stream.finish(add);
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(stream.statistics().bytes, bytes.size());
  }
}

// Frames by protocol, those that no kind is made of (and one GSV that lacks fields), and bytes
// outside of frames, as a plain search for heads with a right checksum counts them.
struct Counted {
  const char* capture;
  std::uint64_t nmea, ubx, rtcm3, undecoded, outside;
};
const Counted Captures[] = {{"nmea-multi-gnss.nmea", 1015, 0, 0, 0, 0},
                            {"nmea-times-whole-seconds.nmea", 151, 0, 0, 56, 0},
                            {"ubx-nav-pvt-sat.ubx", 0, 2982, 0, 0, 1},
                            {"ubx-rawx-sfrbx.ubx", 0, 1200, 0, 0, 0},
                            {"ubx-nav-att.ubx", 0, 1621, 0, 35, 0},
                            {"ubx-nav-all-with-pl.ubx", 0, 60, 0, 22, 0},
                            {"rtcm3-msm4-1013.rtcm3", 0, 0, 688, 0, 0},
                            {"rtcm3-msm5.rtcm3", 0, 0, 243, 0, 0},
                            {"rtcm3-msm7.rtcm3", 0, 0, 296, 0, 230},
                            {"rtcm3-one-of-each.rtcm3", 0, 0, 35, 0, 0},
                            {"mixed-ubx-nmea-rtcm3.bin", 871, 277, 224, 7, 1},
                            {"mixed-nmea-ubx-rawx.bin", 2620, 1963, 0, 0, 377},
                            {"damaged-nmea-between-foreign-binary.bin", 2080, 0, 0, 0, 77244},
                            {"damaged-ubx-checksums.ubx", 0, 25, 0, 11, 532},
                            {"damaged-nmea-checksums.nmea", 96, 0, 0, 1, 2141}};

TEST(Streams, CapturesAreWhollyAccountedFor) {
  for (const auto& [name, nmea, ubx, rtcm3, undecoded, outside] : Captures) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, name);
    std::string whole;
    for (const std::size_t chunk :
         {SIZE_MAX, std::size_t{65536}, std::size_t{4096}, std::size_t{7}, std::size_t{1}}) {
      WatchedStream watched;
      watched.withJson = true;
      std::string lines = watched.Put(bytes, chunk);
      lines += watched.Flush();
      if (whole.empty()) whole = lines;
      ASSERT_TRUE(lines == whole) << name << " " << Name(chunk);
      const NavframeStatistics statistics = watched.stream.statistics();
      const std::vector<std::uint64_t> frames{statistics.nmea.frames, statistics.ubx.frames,
                                              statistics.rtcm3.frames,
                                              statistics.binary55Aa.frames};
      EXPECT_EQ(frames, (std::vector<std::uint64_t>{nmea, ubx, rtcm3, 0})) << name;
      EXPECT_EQ(statistics.nmea.undecoded + statistics.ubx.undecoded + statistics.rtcm3.undecoded,
                undecoded)
          << name;
      EXPECT_EQ(bytes.size() - statistics.nmea.frameBytes - statistics.ubx.frameBytes -
                    statistics.rtcm3.frameBytes,
                outside)
          << name;
    }
  }
}

TEST(Streams, MessagesHaveNames) {
  const struct {
    std::uint32_t protocol, message;
    const char* address;
    const char* name;
  } rows[] = {{NavframeRtcm3, 1019, "", "GPS ephemeris"},
              {NavframeRtcm3, 1137, "", "NavIC MSM7"},
              {NavframeRtcm3, 1261, "", "SSR BeiDou orbit and clock corrections"},
              {NavframeRtcm3, 1028, "", ""},
              {NavframeRtcm3, 4001, "", "proprietary"},
              {NavframeUbx, 0x0109, "", "NAV-ODO"},
              {NavframeUbx, 0x2800, "", "HNR-PVT"},
              {NavframeUbx, 0x13FF, "", "MGA"},
              {NavframeUbx, 0xAA00, "", ""},
              {NavframeNmea, 0, "GPAAM", "waypoint arrival alarm"},
              {NavframeNmea, 0, "GNZTG", "time to destination waypoint"},
              {NavframeNmea, 0, "CCGPQ", "query"},
              {NavframeNmea, 0, "PXYZ,ZTG", "proprietary"},
              {NavframeNmea, 0, "ZTG", ""},
              {NavframeAsciiLog, 1019, "BESTPOSA", ""}};
  for (const auto& row : rows) {
    NavframeItem item{};
    item.protocol = row.protocol;
    item.length = 8;
    item.message = row.message;
    std::strcpy(item.address, row.address);
    EXPECT_STREQ(navframe_message_name(&item), row.name) << row.message << row.address;
  }
  EXPECT_STREQ(navframe_message_name(nullptr), "");
  for (const Counted& capture : Captures) {
    NAVFRAME_CAPTURE_OR_SKIP(bytes, capture.capture);
    StreamOptions options;
    options.items = NavframeItemUndecoded;
    Stream(options).feed(bytes, [](const Item& item) {
      EXPECT_STRNE(navframe_message_name(&item.raw()), "") << item.message() << item.address();
    });
  }
}

}  // namespace
}  // namespace navframe::test
