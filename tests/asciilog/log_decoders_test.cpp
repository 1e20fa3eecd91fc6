#include <gtest/gtest.h>

#include "asciilog/log_table.h"
#include "navframe/records.h"
#include "support/asciilog.h"

namespace navframe::test {
namespace {

using enum ParserState;

// As DecodedLog, for logs that no name leads to.
template <class T>
T DecodedBy(std::uint32_t id, const std::string& line) {
  T record{};
  const asciilog::LogRow& row = *asciilog::RowOf(id);
  EXPECT_EQ(row.recordSize, sizeof(T));
  EXPECT_EQ(DecodeLog(row, WithoutLineEnd(line), &record), asciilog::DecodeResult::Success);
  return record;
}

// Members to compare, or what they should be. By value: members wider than the packing have no
// aligned reference.
template <class... Numbers>
std::vector<double> Values(Numbers... numbers) {
  return {static_cast<double>(numbers)...};
}

std::string Texts(const char (&member)[4]) { return {member, ::strnlen(member, 4)}; }

// "first,...,last": fields that are numbered in the order of the line.
std::string Numbered(int first, int last) {
  std::string text;
  for (int i = first; i <= last; ++i) text += std::to_string(i) + (i == last ? "" : ",");
  return text;
}

TEST(LogHeader, LongFormFillsTheImage) {
  const std::string line =
      Log("#TIMEA,ICOM3,70001,41.5,FINESTEERING,2101,345678.2504,32,25,1500;"
          "VALID,0,0,0,1,1,1,1,1,1,VALID");
  const auto record = DecodedBy<TimeLogRecord>(101, line);
  // Hosts look for the numbers 17578 and 6626322.
  const std::uint8_t start[] = {
      17578 & 0xFF, 17578 >> 8, 6626322 & 0xFF, 6626322 >> 8 & 0xFF, 6626322 >> 16, 0, 0, 14};
  EXPECT_EQ(std::memcmp(&record, start, sizeof(start)), 0);
  const AsciiLogHeader& h = record.header;
  EXPECT_EQ(Values(h.messageLength, h.sequence, h.idleTime, h.timeStatus, h.week, h.milliseconds,
                   h.receiverStatus, h.reserved, h.softwareBuild),
            Values(44, 4465, 83, 180, 2101, 345678250, 32, 25, 1500));
}

TEST(LogHeader, ShortFormFillsTimeAndIdleTime) {
  const auto h = DecodedBy<BdsEphemerisLogRecord>(60015, ShortLog("BDSEPHA", "38,1,2")).header;
  EXPECT_EQ(Values(h.messageId, h.messageLength, h.idleTime, h.timeStatus, h.week, h.milliseconds,
                   h.port, h.sequence, h.receiverStatus, h.reserved, h.softwareBuild),
            Values(60015, 4, 83, 180, 2101, 345678250, 0, 0, 0, 0, 0));
}

TEST(LogHeader, ValuesThatDoNotFitAreCut) {
  const auto header = [](const std::string& idle, const std::string& seconds) {
    const std::string line = "#X,NOPORT,1," + idle + ",NEVER,70000," + seconds + ",-1,65537,-1;";
    return DecodedBy<TimeLogRecord>(101, Log(line + "VALID,0,0,0,1,1,1,1,1,1,VALID")).header;
  };
  EXPECT_EQ(header("200", "1").idleTime, 255);
  EXPECT_EQ(header("-3", "1").idleTime, 0);
  EXPECT_EQ(header("nan", "1e7").milliseconds, INT32_MIN);
  const AsciiLogHeader h = header("nan", "-1.5");
  EXPECT_EQ(Values(h.port, h.idleTime, h.timeStatus, h.week, h.milliseconds, h.receiverStatus,
                   h.reserved, h.softwareBuild),
            Values(0, 0, 0, 70000 - 65536, -1500, 0xFFFFFFFF, 1, 0xFFFF));
}

constexpr std::string_view PositionBody =
    "INSUFFICIENT_OBS,NARROW_INT,51.11635910984,-114.03833105168,1063.8416,-16.25,WGS84,1.25,1.5,"
    "2.125,\"A1\",0.5,0.75,12,11,10,9,8,1f,0A,fF";

template <class Record>
void ExpectPosition(const Record& r) {
  EXPECT_EQ(Values(r.positionType, r.latitude, r.longitude, r.height, r.undulation, r.datum,
                   r.latitudeDeviation, r.longitudeDeviation, r.heightDeviation),
            Values(50, 51.11635910984, -114.03833105168, 1063.8416, -16.25, 61, 1.25, 1.5, 2.125));
  EXPECT_EQ(Texts(r.stationId), "A1");
  const SolutionSatellites& s = r.satellites;
  EXPECT_EQ(Values(r.differentialAge, r.solutionAge, s.tracked, s.used, s.usedL1, s.usedMultiFreq,
                   s.reserved, s.extendedStatus, s.galileoBdsSignals, s.gpsGlonassSignals),
            Values(0.5, 0.75, 12, 11, 10, 9, 8, 0x1F, 0x0A, 0xFF));
}

TEST(LogDecoders, Position) {
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("BESTPOSA", PositionBody), 42));
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("PSRPOSA", PositionBody), 47));
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("MATCHEDPOSA", PositionBody), 96));
  ExpectPosition(DecodedBy<PositionLogRecord>(6006, LongLog("ANY", PositionBody)));
  ExpectPosition(DecodedBy<NavigationSolutionLogRecord>(2118, ShortLog("ANY", PositionBody)));
}

TEST(LogDecoders, Velocity) {
  for (const auto& [name, id] : {std::pair("BESTVELA", 99U), std::pair("PSRVELA", 100U)}) {
    const auto r = DecodedLog<VelocityLogRecord>(
        LongLog(name, "PENDING,DOPPLER_VELOCITY,0.25,4,0.2077,332.44,-0.0149,0.5"), id);
    EXPECT_EQ(Values(r.solutionStatus, r.velocityType, r.latency, r.differentialAge,
                     r.horizontalSpeed, r.track, r.verticalSpeed, r.reserved),
              Values(18, 8, 0.25, 4, 0.2077, 332.44, -0.0149, 0.5));
  }
}

TEST(LogDecoders, DilutionOfPrecision) {
  for (const auto& [name, id] : {std::pair("PSRDOPA", 174U), std::pair("PSRDOP2A", 2059U)}) {
    const auto r =
        DecodedLog<DopLogRecord>(LongLog(name, "1.5,1.25,0.875,1.125,0.75,5.0,3,10,22,140"), id);
    EXPECT_EQ(Values(r.gdop, r.pdop, r.hdop, r.htdop, r.tdop, r.elevationCutoff, r.count,
                     r.satellites[2], r.satellites[3], r.header.messageLength),
              Values(1.5, 1.25, 0.875, 1.125, 0.75, 5, 3, 140, 0, 28 + 3 * 4));
  }
}

TEST(LogDecoders, Time) {
  const auto r = DecodedLog<TimeLogRecord>(
      LongLog("TIMEA", "CONVERGING,1.5e-10,-2.5e-9,-17.99999999630,2017,9,15,18,33,30250,VALID"),
      101);
  EXPECT_EQ(Values(r.clockStatus, r.offset, r.offsetDeviation, r.utcOffset, r.utcYear, r.utcMonth,
                   r.utcDay, r.utcHour, r.utcMinute, r.utcMilliseconds, r.utcStatus),
            Values(3, 1.5e-10, -2.5e-9, -17.99999999630, 2017, 9, 15, 18, 33, 30250, 1));
}

TEST(LogDecoders, Cartesian) {
  const auto r = DecodedLog<CartesianLogRecord>(
      LongLog("BESTXYZA",
              "SOL_COMPUTED,NARROW_INT,-1634531.5683,-3664618.0326,4942496.327,0.5,"
              "0.25,0.125,PENDING,SINGLE,0.0011,-0.0049,-0.0001,1.5,1.25,1.125,"
              "\"AAAAB\",0.75,1,2,12,11,10,9,0,01,0,33"),
      241);
  EXPECT_EQ(Values(r.positionType, r.position[0], r.position[2], r.positionDeviation[2]),
            Values(50, -1634531.5683, 4942496.327, 0.125));
  EXPECT_EQ(Values(r.velocityStatus, r.velocityType, r.velocity[1], r.velocityDeviation[0]),
            Values(18, 16, -0.0049, 1.5));
  EXPECT_EQ(Texts(r.stationId), "AAAA");
  EXPECT_EQ(
      Values(r.velocityLatency, r.solutionAge, r.satellites.used, r.satellites.gpsGlonassSignals),
      Values(0.75, 2, 11, 0x33));
}

TEST(LogDecoders, Heading) {
  for (const auto& [name, id] : {std::pair("HEADINGA", 971U), std::pair("HEADING2A", 1335U)}) {
    const auto r = DecodedLog<HeadingLogRecord>(
        LongLog(name, "PENDING,L1_INT,5.5,271.25,-0.75,0,0.125,0.25,\"9,9\",10,9,8,7,0c,00,0,11"),
        id);
    EXPECT_EQ(Values(r.solutionStatus, r.positionType, r.length, r.heading, r.pitch,
                     r.headingDeviation, r.pitchDeviation, r.satellites.tracked,
                     r.satellites.reserved, r.satellites.gpsGlonassSignals),
              Values(18, 48, 5.5, 271.25, -0.75, 0.125, 0.25, 10, 0x0C, 0x11));
    EXPECT_EQ(Texts(r.stationId), "9,9");  // a comma between quotes
  }
}

constexpr std::string_view InertialBody =
    "1264,144088.5,51.25,-114.5,1038.25,-1,2,3,0.5,-1.5,106.25,INS_SOLUTION_GOOD";

TEST(LogDecoders, Inertial) {
  const auto r = DecodedBy<InertialLogRecord>(507, LongLog("INSPVAA", InertialBody));
  EXPECT_EQ(Values(r.week, r.seconds, r.latitude, r.longitude, r.height, r.northVelocity,
                   r.eastVelocity, r.upVelocity, r.roll, r.pitch, r.azimuth, r.status),
            Values(1264, 144088.5, 51.25, -114.5, 1038.25, -1, 2, 3, 0.5, -1.5, 106.25, 4));
}

TEST(LogDecoders, Range) {
  std::string body = "432";
  for (int i = 0; i < 432; ++i) {
    body += "," + std::to_string(i % 64) + ",7,23145913.339,0.125,-121633909.567438,0.5,1376.25," +
            "44.5," + std::to_string(i) + ",0810dc04";
  }
  // No line of the stream is that long; the decoder takes it all the same.
  for (const std::uint32_t id : {43U, 6005U}) {
    const auto record = DecodedBy<RangeLogRecord>(id, LongLog("ANY", body));
    EXPECT_EQ(Values(record.count, record.header.messageLength), Values(432, 4 + 432 * 44));
    const RangeObservation& o = record.observations[431];
    EXPECT_EQ(Values(o.satellite, o.glonassFrequency, o.pseudorange, o.pseudorangeDeviation,
                     o.carrierPhase, o.carrierPhaseDeviation, o.doppler, o.carrierToNoise,
                     o.lockTime, o.trackingStatus),
              Values(431 % 64, 7, 23145913.339, 0.125, -121633909.567438, 0.5, 1376.25, 44.5, 431,
                     0x0810DC04));
  }
  EXPECT_EQ(DecodedLog<RangeLogRecord>(LongLog("RANGEHA", "0"), 6005).header.messageLength, 4);
}

TEST(LogDecoders, Ephemerides) {
  const auto gps = DecodedLog<GpsEphemerisLogRecord>(
      LongLog("GPSEPHEMA", Numbered(11, 39) + ",TRUE," + Numbered(41, 42)), 7);
  EXPECT_EQ(Values(gps.satellite, gps.health, gps.zWeek, gps.toe, gps.omega, gps.cuc, gps.i0,
                   gps.iodc, gps.tgd, gps.af2, gps.antiSpoofing, gps.ura),
            Values(11, 13, 17, 18, 23, 24, 30, 34, 36, 39, 1, 42));

  const auto glonass =
      DecodedLog<GlonassEphemerisLogRecord>(LongLog("GLOEPHEMERISA", Numbered(1, 28) + ",1c"), 723);
  EXPECT_EQ(
      Values(glonass.slot, glonass.week, glonass.timeOffset, glonass.dayNumber, glonass.health,
             glonass.position[0], glonass.velocity[0], glonass.acceleration[2], glonass.gamma,
             glonass.frameTime, glonass.age, glonass.flags),
      Values(1, 5, 7, 8, 12, 13, 16, 21, 24, 25, 28, 0x1C));

  const auto galileo = DecodedLog<GalileoEphemerisLogRecord>(
      LongLog("GALEPHEMERISA", "1,TRUE,FALSE," + Numbered(4, 38)), 1122);
  EXPECT_EQ(
      Values(galileo.fnavReceived, galileo.inavReceived, galileo.sisa, galileo.toe, galileo.rootA,
             galileo.omegaDot, galileo.fnavToc, galileo.inavToc, galileo.e1E5bBgd),
      Values(1, 0, 10, 13, 14, 28, 29, 33, 38));
}

TEST(LogDecoders, SatelliteLogs) {
  const auto visible = DecodedBy<VisibilityLogRecord>(
      48, LongLog("ANY", "TRUE,FALSE,2,14,0,1,51.5,122.25,-1,-2,45,-7,0,1,2,3,4"));
  EXPECT_EQ(Values(visible.valid, visible.completeAlmanac, visible.count,
                   visible.satellites[1].glonassFrequency, visible.satellites[0].azimuth),
            Values(1, 0, 2, -7, 122.25));

  const auto system = DecodedLog<SystemVisibilityLogRecord>(
      LongLog("SATVIS2A", "GLONASS,TRUE,TRUE,2,13-2,1,51.5,122.25,-1,-2,8+6,0,1,2,3,4"), 1043);
  const auto& [first, second] = std::tie(system.satellites[0], system.satellites[1]);
  EXPECT_EQ(Values(system.system, first.satellite, first.glonassFrequency, second.glonassFrequency,
                   second.apparentDoppler),
            Values(1, 13, -2, 6, 4));

  const auto list = DecodedBy<SatelliteListLogRecord>(
      1194, ShortLog("ANY", "2,GPS,14,GOOD,00000003,BEIDOU,19,NOSIGNALMATCH,8000000f"));
  const ListedSatellite& last = list.satellites[1];
  EXPECT_EQ(Values(list.count, last.system, last.satellite, last.status, last.signals),
            Values(2, 6, 19, 25, 0x8000000F));
}

TEST(LogDecoders, LogsWithFirstFieldsOnly) {
  const auto summary = DecodedLog<AgriculturalLogRecord>(
      ShortLog("AGRICA", "GNSS,236,19,7,26,6,16,27,4,4,12"), 11276);
  EXPECT_EQ(Texts(summary.format), "GNSS");
  EXPECT_EQ(Values(summary.commandLength, summary.utcMonth, summary.utcSecond), Values(236, 7, 27));

  const auto bds = DecodedLog<IonosphereLogRecord>(ShortLog("BDSIONA", Numbered(1, 9)), 60019);
  const auto galileo =
      DecodedLog<GalileoIonosphereLogRecord>(ShortLog("GALIONA", "1.5,2.5,3.5,0"), 60020);
  EXPECT_EQ(Values(bds.alpha[3], bds.beta[3], galileo.effectiveIonisation[2]), Values(4, 8, 3.5));

  const auto utc = DecodedLog<UtcLogRecord>(
      ShortLog("GALUTCA", "2190,405504,1.5e-9,-8e-16,2185,7,-18,18,0"), 60023);
  EXPECT_EQ(Values(utc.week, utc.tot, utc.a0, utc.a1, utc.leapWeek, utc.leapDay, utc.leapBefore),
            Values(2190, 405504, 1.5e-9, -8e-16, 2185, 7, -18));
}

// Headers alone, and lines without one.
TEST(LogDecoders, LogsWithoutKnownFieldsAreQueued) {
  const auto decoder = std::make_unique<Decoder>();
  PushAs(*decoder, AsciiLogLine, ShortLog("OBSVMA", "79,0,2"));
  PushAs(*decoder, AsciiLogLine, LongLog("FWINFOA", ""));
  decoder->asciiLog.DecodeLine(WithoutLineEnd(Log("$GPSTIME,1,2")), LogIdGpsTime);
  decoder->asciiLog.DecodeLine("$GPSTIME,1,2*00000000", LogIdGpsTime);  // wrong CRC
  const auto records = PopAll(*decoder);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{10, 11277, 2300}));
  EXPECT_EQ(records[0].As<HeaderLogRecord>().header.week, 2101);
  EXPECT_EQ(records[1].As<HeaderLogRecord>().header.softwareBuild, 1500);
  EXPECT_EQ(Values(records[0].size, records[1].size, records[2].size), Values(17308, 2944, 28));
}

TEST(LogRecords, IgnoreTheFilterAndTheDecodedIdSet) {
  const auto decoder = std::make_unique<Decoder>();
  decoder->sink.SetFilter(1);
  PushAs(*decoder, AsciiLogLine, LongLog("BESTPOSA", PositionBody));
  EXPECT_EQ(ReleaseAll(*decoder), 1U);
  std::array<std::uint32_t, 64> ids;
  EXPECT_EQ(decoder->sink.DrainDecodedIds(ids.data()), 0U);
}

// The fixed blocks and the line buffer come back in every way a record can, and are freed in none:
// the address sanitizer would tell.
TEST(LogRecords, FixedPayloadsAreOnlyLetGo) {
  const auto decoder = std::make_unique<Decoder>();
  const std::string inertial = LongLog("INSPVAA", InertialBody);
  const auto push = [&] {
    PushAs(*decoder, AsciiLogLine, inertial);
    decoder->asciiLog.DecodeLine(WithoutLineEnd(LongLog("ANY", PositionBody)), LogIdPosition57026);
    PushAs(*decoder, AsciiLogBinary, BinaryLog(2058, Bytes(20, 3)));
  };
  push();
  const std::uint32_t expectedIds[] = {507, 57026, 2058};
  const std::size_t zeros[] = {sizeof(InertialLogRecord), sizeof(PositionLogRecord), 0};
  for (std::size_t i = 0; i < 3; ++i) {
    GnssMessage record;
    ASSERT_EQ(decoder->sink.Pop(record, 0), 0U);
    EXPECT_EQ(record.id, expectedIds[i]);
    EXPECT_EQ(record.source, SourceAsciiLog);
    const auto* const bytes = static_cast<const std::uint8_t*>(record.data);
    EXPECT_TRUE(std::all_of(bytes, bytes + zeros[i], [](auto byte) { return byte == 0; }));
    decoder->sink.Release(record);
    EXPECT_EQ(record.data, nullptr);
    decoder->sink.Release(record);
  }
  // Discarded because another kind is wanted.
  push();
  GnssMessage record;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(decoder->sink.Pop(record, 1), NAVFRAME_NOTHING);
    EXPECT_EQ(record.data, nullptr);
  }
  // Dropped by a full queue; ordinary records of the same sizes do not get their blocks.
  for (std::uint32_t i = 0; i < MaxQueuedMessages + 30; i += 3) push();
  for (int i = 0; i < 10; ++i) PushAs(*decoder, AsciiLogLine, LongLog("BESTPOSA", PositionBody));
  std::size_t positions = 0;
  while (decoder->sink.Pop(record, 0) == 0) {
    if (record.id == LogIdBestPosition) {
      ExpectPosition(*static_cast<const PositionLogRecord*>(record.data));
      ++positions;
    }
    decoder->sink.Release(record);
  }
  EXPECT_EQ(positions, 10U);
}

// Neither failed decodes nor the records behind fixed blocks pile up.
TEST(LogRecords, AbandonedRecordsDoNotGrowMemory) {
  if (ResidentMemory() == 0) GTEST_SKIP() << "resident memory is not known";
  const auto decoder = std::make_unique<Decoder>();
  const std::string failing = WithoutLineEnd(LongLog("RANGEA", "9,1"));
  const std::string inertial = WithoutLineEnd(LongLog("INSPVAA", InertialBody));
  const auto run = [&](int times) {
    for (int i = 0; i < times; ++i) {
      decoder->asciiLog.DecodeLine(failing, LogIdRange);
      decoder->asciiLog.DecodeLine(inertial, LogIdInertial);
    }
  };
  run(3000);  // the queue is full from here on
  const std::size_t before = ResidentMemory();
  run(3000);  // 57 MB of failed range records, were they kept
  EXPECT_LT(ResidentMemory(), before + (8U << 20));
}

}  // namespace
}  // namespace navframe::test
