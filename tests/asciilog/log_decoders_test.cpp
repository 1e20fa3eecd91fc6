#include <gtest/gtest.h>

#include "asciilog/log_table.h"
#include "navframe/records.h"
#include "support/asciilog.h"

// Members wider than the packing are read by value (the unary plus): a reference to one would not
// be aligned.
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

std::string Texts(const char (&member)[4]) { return {member, ::strnlen(member, 4)}; }

std::string Numbers(int first, int last) {
  std::string text;
  for (int i = first; i <= last; ++i) text += std::to_string(i) + (i == last ? "" : ",");
  return text;
}

TEST(LogHeader, LongFormFillsTheImage) {
  const AsciiLogHeader header =
      DecodedBy<VelocityLogRecord>(
          99, Log("#BESTVELA,ICOM3,70001,41.5,FINESTEERING,2101,345678.2504,32,25,1500;"
                  "SOL_COMPUTED,NONE,0,0,1,1,1,1"))
          .header;
  // The first eight bytes are fixed by what hosts look for: 0x44AA and 0x00631C12.
  const std::uint8_t start[] = {0xAA, 0x44, 0x12, 0x1C, 99, 0, 0, 14};
  EXPECT_EQ(std::memcmp(&header, start, sizeof(start)), 0);
  EXPECT_EQ(header.messageLength, 44);
  EXPECT_EQ(header.sequence, 70001 - 65536);
  EXPECT_EQ(header.idleTime, 83);
  EXPECT_EQ(header.timeStatus, 180);
  EXPECT_EQ(header.week, 2101);
  EXPECT_EQ(header.milliseconds, 345678250);
  EXPECT_EQ(header.receiverStatus, 32U);
  EXPECT_EQ(header.reserved, 25);
  EXPECT_EQ(header.softwareBuild, 1500);
}

TEST(LogHeader, ShortFormFillsTimeAndIdleTime) {
  const AsciiLogHeader header =
      DecodedBy<BdsEphemerisLogRecord>(60015, ShortLog("BDSEPHA", "38,1,2")).header;
  EXPECT_EQ(header.messageId, 60015);
  EXPECT_EQ(header.idleTime, 83);
  EXPECT_EQ(header.timeStatus, 180);
  EXPECT_EQ(header.week, 2101);
  EXPECT_EQ(header.milliseconds, 345678250);
  EXPECT_EQ(header.port + header.sequence + header.softwareBuild, 0);
}

TEST(LogHeader, ValuesThatDoNotFitAreCut) {
  const auto header = [](std::string_view idle, std::string_view seconds) {
    const std::string line = "#TIMEA,X," + std::to_string(1) + "," + std::string(idle) +
                             ",NEVER,70000," + std::string(seconds) + ",-1,65537,-1;";
    return DecodedBy<TimeLogRecord>(101, Log(line + "VALID,0,0,0,1,1,1,1,1,1,VALID")).header;
  };
  EXPECT_EQ(header("200", "1e6").idleTime, 255);
  EXPECT_EQ(header("-3", "1e6").idleTime, 0);
  EXPECT_EQ(header("nan", "1e7").milliseconds, INT32_MIN);
  EXPECT_EQ(header("0", "nan").milliseconds, INT32_MIN);
  EXPECT_EQ(header("0", "-1.5").milliseconds, -1500);
  EXPECT_EQ(header("0", "0").week, 70000 - 65536);
  EXPECT_EQ(header("0", "0").receiverStatus, 0xFFFFFFFFU);
  EXPECT_EQ(header("0", "0").port + header("0", "0").timeStatus, 0);
}

constexpr std::string_view PositionBody =
    "INSUFFICIENT_OBS,NARROW_INT,51.11635910984,-114.03833105168,1063.8416,-16.2712,WGS84,1.25,1.5,"
    "2.125,\"A1\",0.5,0.75,12,11,10,9,8,1f,0A,fF";

void ExpectPosition(const PositionLogRecord& record) {
  EXPECT_EQ(record.solutionStatus, 1);
  EXPECT_EQ(record.positionType, 50);
  EXPECT_EQ(+record.latitude, 51.11635910984);
  EXPECT_EQ(+record.longitude, -114.03833105168);
  EXPECT_EQ(+record.height, 1063.8416);
  EXPECT_EQ(record.undulation, -16.2712F);
  EXPECT_EQ(record.datum, 61);
  EXPECT_EQ(record.latitudeDeviation, 1.25F);
  EXPECT_EQ(record.longitudeDeviation, 1.5F);
  EXPECT_EQ(record.heightDeviation, 2.125F);
  EXPECT_EQ(Texts(record.stationId), "A1");
  EXPECT_EQ(record.differentialAge, 0.5F);
  EXPECT_EQ(record.solutionAge, 0.75F);
  EXPECT_EQ(record.satellites.tracked, 12);
  EXPECT_EQ(record.satellites.usedMultiFreq, 9);
  EXPECT_EQ(record.satellites.reserved, 8);
  EXPECT_EQ(record.satellites.extendedStatus, 0x1F);
  EXPECT_EQ(record.satellites.gpsGlonassSignals, 0xFF);
}

TEST(LogDecoders, Position) {
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("BESTPOSA", PositionBody), 42));
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("PSRPOSA", PositionBody), 47));
  ExpectPosition(DecodedLog<PositionLogRecord>(LongLog("MATCHEDPOSA", PositionBody), 96));
  ExpectPosition(DecodedBy<PositionLogRecord>(6006, LongLog("ANY", PositionBody)));
  const auto solution = DecodedBy<NavigationSolutionLogRecord>(2118, ShortLog("ANY", PositionBody));
  EXPECT_EQ(+solution.longitude, -114.03833105168);
  EXPECT_EQ(solution.satellites.gpsGlonassSignals, 0xFF);
}

TEST(LogDecoders, Velocity) {
  for (const auto& [name, id] : {std::pair("BESTVELA", 99U), std::pair("PSRVELA", 100U)}) {
    const auto record = DecodedLog<VelocityLogRecord>(
        LongLog(name, "SOL_COMPUTED,DOPPLER_VELOCITY,0.25,4,0.2077,332.44,-0.0149,0.5"), id);
    EXPECT_EQ(record.velocityType, 8);
    EXPECT_EQ(record.latency, 0.25F);
    EXPECT_EQ(record.differentialAge, 4);
    EXPECT_EQ(+record.horizontalSpeed, 0.2077);
    EXPECT_EQ(+record.track, 332.44);
    EXPECT_EQ(+record.verticalSpeed, -0.0149);
    EXPECT_EQ(record.reserved, 0.5F);
  }
}

TEST(LogDecoders, DilutionOfPrecision) {
  for (const auto& [name, id] : {std::pair("PSRDOPA", 174U), std::pair("PSRDOP2A", 2059U)}) {
    const auto record =
        DecodedLog<DopLogRecord>(LongLog(name, "1.5,1.25,0.875,1.125,0.75,5.0,3,10,22,140"), id);
    EXPECT_EQ(record.header.messageLength, 28 + 3 * 4);
    EXPECT_EQ(record.gdop, 1.5F);
    EXPECT_EQ(record.tdop, 0.75F);
    EXPECT_EQ(record.elevationCutoff, 5);
    EXPECT_EQ(record.count, 3U);
    EXPECT_EQ(record.satellites[2], 140U);
    EXPECT_EQ(record.satellites[3], 0U);
  }
}

TEST(LogDecoders, Time) {
  const auto record = DecodedLog<TimeLogRecord>(
      LongLog("TIMEA", "CONVERGING,1.5e-10,-2.5e-9,-17.99999999630,2017,9,15,18,33,30250,VALID"),
      101);
  // The header begins with the numbers 17578 and 6626322.
  const std::uint8_t start[] = {17578 & 0xFF,        17578 >> 8,    6626322 & 0xFF,
                                6626322 >> 8 & 0xFF, 6626322 >> 16, 0};
  EXPECT_EQ(std::memcmp(&record, start, sizeof(start)), 0);
  EXPECT_EQ(record.clockStatus, 3);
  EXPECT_EQ(+record.offset, 1.5e-10);
  EXPECT_EQ(+record.offsetDeviation, -2.5e-9);
  EXPECT_EQ(+record.utcOffset, -17.99999999630);
  EXPECT_EQ(record.utcYear, 2017U);
  EXPECT_EQ(record.utcDay, 15);
  EXPECT_EQ(record.utcMinute, 33);
  EXPECT_EQ(record.utcMilliseconds, 30250U);
  EXPECT_EQ(record.utcStatus, 1);
}

TEST(LogDecoders, Cartesian) {
  const auto record = DecodedLog<CartesianLogRecord>(
      LongLog("BESTXYZA",
              "SOL_COMPUTED,NARROW_INT,-1634531.5683,-3664618.0326,4942496.327,0.5,"
              "0.25,0.125,PENDING,SINGLE,0.0011,-0.0049,-0.0001,1.5,1.25,1.125,"
              "\"AAAAB\",0.75,1,2,12,11,10,9,0,01,0,33"),
      241);
  EXPECT_EQ(+record.position[2], 4942496.327);
  EXPECT_EQ(record.positionDeviation[0], 0.5F);
  EXPECT_EQ(record.velocityStatus, 18);
  EXPECT_EQ(record.velocityType, 16);
  EXPECT_EQ(+record.velocity[1], -0.0049);
  EXPECT_EQ(record.velocityDeviation[2], 1.125F);
  EXPECT_EQ(Texts(record.stationId), "AAAA");
  EXPECT_EQ(record.velocityLatency, 0.75F);
  EXPECT_EQ(record.solutionAge, 2);
  EXPECT_EQ(record.satellites.used, 11);
  EXPECT_EQ(record.satellites.gpsGlonassSignals, 0x33);
}

TEST(LogDecoders, Heading) {
  for (const auto& [name, id] : {std::pair("HEADINGA", 971U), std::pair("HEADING2A", 1335U)}) {
    const auto record = DecodedLog<HeadingLogRecord>(
        LongLog(name,
                "SOL_COMPUTED,L1_INT,5.5,271.25,-0.75,0,0.125,0.25,\"9,9\",10,9,8,7,0c,00,0,11"),
        id);
    EXPECT_EQ(record.length, 5.5F);
    EXPECT_EQ(record.heading, 271.25F);
    EXPECT_EQ(record.pitch, -0.75F);
    EXPECT_EQ(record.headingDeviation, 0.125F);
    EXPECT_EQ(record.pitchDeviation, 0.25F);
    EXPECT_EQ(Texts(record.stationId), "9,9");
    EXPECT_EQ(record.satellites.tracked, 10);
    EXPECT_EQ(record.satellites.reserved, 0x0C);
    EXPECT_EQ(record.satellites.gpsGlonassSignals, 0x11);
  }
}

constexpr std::string_view InertialBody =
    "1264,144088.5,51.25,-114.5,1038.25,-1,2,3,0.5,-1.5,106.25,INS_SOLUTION_GOOD";

TEST(LogDecoders, Inertial) {
  const auto record = DecodedBy<InertialLogRecord>(507, LongLog("INSPVAA", InertialBody));
  EXPECT_EQ(record.week, 1264U);
  EXPECT_EQ(+record.seconds, 144088.5);
  EXPECT_EQ(+record.height, 1038.25);
  EXPECT_EQ(+record.northVelocity, -1);
  EXPECT_EQ(+record.roll, 0.5);
  EXPECT_EQ(+record.azimuth, 106.25);
  EXPECT_EQ(record.status, 4);
}

TEST(LogDecoders, Range) {
  std::string body = "432";
  for (int i = 0; i < 432; ++i) {
    body += "," + std::to_string(i % 64) + ",7,23145913.339,0.125,-121633909.567438,0.5,1376.25," +
            "44.5," + std::to_string(i) + ",0810dc04";
  }
  for (const auto& [name, id] : {std::pair("RANGEA", 43U), std::pair("RANGEHA", 6005U)}) {
    // No line of the stream is that long; the decoder takes it all the same.
    auto record =
        std::make_unique<RangeLogRecord>(DecodedBy<RangeLogRecord>(id, LongLog(name, body)));
    EXPECT_EQ(record->count, 432U);
    EXPECT_EQ(record->header.messageLength, 19012);
    const RangeObservation& last = record->observations[431];
    EXPECT_EQ(last.satellite, 431 % 64);
    EXPECT_EQ(last.glonassFrequency, 7);
    EXPECT_EQ(+last.pseudorange, 23145913.339);
    EXPECT_EQ(last.pseudorangeDeviation, 0.125F);
    EXPECT_EQ(+last.carrierPhase, -121633909.567438);
    EXPECT_EQ(last.carrierPhaseDeviation, 0.5F);
    EXPECT_EQ(last.doppler, 1376.25F);
    EXPECT_EQ(last.carrierToNoise, 44.5F);
    EXPECT_EQ(last.lockTime, 431);
    EXPECT_EQ(last.trackingStatus, 0x0810DC04U);
  }
  const auto none = DecodedLog<RangeLogRecord>(LongLog("RANGEA", "0"), 43);
  EXPECT_EQ(none.header.messageLength, 4);
}

// Fields of ephemerides are numbered from 1 on.
TEST(LogDecoders, GpsEphemeris) {
  for (const char* const name : {"GPSEPHEMA", "KMDGPSEPHA"}) {
    const auto record = DecodedLog<GpsEphemerisLogRecord>(
        LongLog(name, Numbers(1, 29) + ",TRUE," + Numbers(31, 32)), 7);
    EXPECT_EQ(record.satellite, 1U);
    EXPECT_EQ(record.zWeek, 7U);
    EXPECT_EQ(+record.toe, 8);
    EXPECT_EQ(+record.omega, 13);
    EXPECT_EQ(+record.cuc, 14);
    EXPECT_EQ(+record.i0, 20);
    EXPECT_EQ(record.iodc, 24U);
    EXPECT_EQ(+record.tgd, 26);
    EXPECT_EQ(+record.af2, 29);
    EXPECT_EQ(record.antiSpoofing, 1);
    EXPECT_EQ(+record.ura, 32);
  }
}

TEST(LogDecoders, GlonassEphemeris) {
  const auto record =
      DecodedLog<GlonassEphemerisLogRecord>(LongLog("GLOEPHEMERISA", Numbers(1, 28) + ",1c"), 723);
  EXPECT_EQ(record.slot, 1);
  EXPECT_EQ(record.week, 5);
  EXPECT_EQ(record.timeOffset, 7U);
  EXPECT_EQ(record.health, 12U);
  EXPECT_EQ(+record.position[0], 13);
  EXPECT_EQ(+record.velocity[0], 16);
  EXPECT_EQ(+record.acceleration[2], 21);
  EXPECT_EQ(+record.gamma, 24);
  EXPECT_EQ(record.frameTime, 25U);
  EXPECT_EQ(record.age, 28U);
  EXPECT_EQ(record.flags, 0x1CU);
}

TEST(LogDecoders, GalileoEphemeris) {
  const auto record = DecodedLog<GalileoEphemerisLogRecord>(
      LongLog("GALEPHEMERISA", "1,TRUE,FALSE," + Numbers(4, 38)), 1122);
  EXPECT_EQ(record.fnavReceived, 1);
  EXPECT_EQ(record.inavReceived, 0);
  EXPECT_EQ(record.sisa, 10);
  EXPECT_EQ(record.toe, 13U);
  EXPECT_EQ(+record.rootA, 14);
  EXPECT_EQ(+record.omegaDot, 28);
  EXPECT_EQ(record.fnavToc, 29U);
  EXPECT_EQ(record.inavToc, 33U);
  EXPECT_EQ(+record.e1E5bBgd, 38);
}

TEST(LogDecoders, SatelliteLogs) {
  const auto visible = DecodedBy<VisibilityLogRecord>(
      48, LongLog("ANY", "TRUE,FALSE,2,14,0,1,51.5,122.25,-1,-2,45,-7,0,1,2,3,4"));
  EXPECT_EQ(visible.valid, 1);
  EXPECT_EQ(visible.count, 2U);
  EXPECT_EQ(visible.satellites[1].glonassFrequency, -7);
  EXPECT_EQ(+visible.satellites[0].azimuth, 122.25);

  const auto system = DecodedLog<SystemVisibilityLogRecord>(
      LongLog("SATVIS2A", "GLONASS,TRUE,TRUE,2,13-2,1,51.5,122.25,-1,-2,8+6,0,1,2,3,4"), 1043);
  EXPECT_EQ(system.system, 1);
  EXPECT_EQ(system.satellites[0].satellite, 13);
  EXPECT_EQ(system.satellites[0].glonassFrequency, -2);
  EXPECT_EQ(system.satellites[1].glonassFrequency, 6);
  EXPECT_EQ(+system.satellites[1].apparentDoppler, 4);

  const auto list = DecodedBy<SatelliteListLogRecord>(
      1194, ShortLog("ANY", "2,GPS,14,GOOD,00000003,BEIDOU,19,NOSIGNALMATCH,8000000f"));
  EXPECT_EQ(list.count, 2U);
  EXPECT_EQ(list.satellites[1].system, 6);
  EXPECT_EQ(list.satellites[1].satellite, 19);
  EXPECT_EQ(list.satellites[1].status, 25);
  EXPECT_EQ(list.satellites[1].signals, 0x8000000FU);
}

TEST(LogDecoders, LogsWithFirstFieldsOnly) {
  const auto summary = DecodedLog<AgriculturalLogRecord>(
      ShortLog("AGRICA", "GNSS,236,19,7,26,6,16,27,4,4,12"), 11276);
  EXPECT_EQ(Texts(summary.format), "GNSS");
  EXPECT_EQ(summary.commandLength, 236);
  EXPECT_EQ(summary.utcMonth, 7);
  EXPECT_EQ(summary.utcSecond, 27);

  EXPECT_EQ(DecodedLog<BdsEphemerisLogRecord>(ShortLog("BDSEPHEMA", "38,1"), 60015).satellite, 38U);

  const auto ionosphere =
      DecodedLog<IonosphereLogRecord>(ShortLog("BDSIONA", Numbers(1, 8) + ",9"), 60019);
  EXPECT_EQ(+ionosphere.alpha[3], 4);
  EXPECT_EQ(+ionosphere.beta[3], 8);
  const auto galileo =
      DecodedLog<GalileoIonosphereLogRecord>(ShortLog("GALIONA", "1.5,2.5,3.5,0"), 60020);
  EXPECT_EQ(+galileo.effectiveIonisation[2], 3.5);

  const auto utc = DecodedLog<UtcLogRecord>(
      ShortLog("GALUTCA", "2190,405504,1.5e-9,-8e-16,2185,7,-18,18,0"), 60023);
  EXPECT_EQ(utc.tot, 405504U);
  EXPECT_EQ(+utc.a1, -8e-16);
  EXPECT_EQ(utc.leapDay, 7U);
  EXPECT_EQ(utc.leapBefore, -18);
}

// Every row of the dispatch table has the size that hosts allocate for.
TEST(LogDecoders, RecordSizesAreThoseOfTheTable) {
  const std::pair<std::uint32_t, std::uint32_t> sizes[] = {
      {7, 252},     {10, 17308},  {42, 100},     {43, 19040},  {47, 100},    {48, 2680},
      {52, 40},     {96, 100},    {99, 72},      {100, 72},    {101, 72},    {174, 320},
      {215, 928},   {241, 140},   {507, 116},    {723, 172},   {971, 72},    {1043, 17324},
      {1122, 248},  {1194, 6940}, {1335, 72},    {1461, 68},   {2059, 320},  {2118, 144},
      {2300, 28},   {2301, 28},   {2302, 28},    {2303, 28},   {2304, 32},   {2305, 24},
      {2306, 16},   {2307, 36},   {2308, 48},    {2309, 60},   {2310, 88},   {6005, 19040},
      {6006, 100},  {11276, 252}, {11277, 2944}, {57026, 100}, {60015, 256}, {60018, 100},
      {60019, 100}, {60020, 100}, {60021, 72},   {60022, 72},  {60023, 72},
  };
  const auto rows = asciilog::LogRows();
  ASSERT_EQ(rows.size(), std::size(sizes));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i].identifier, sizes[i].first);
    EXPECT_EQ(rows[i].recordSize, sizes[i].second) << sizes[i].first;
  }
}

// Headers alone, and lines without one.
TEST(LogDecoders, LogsWithoutKnownFieldsAreQueued) {
  const auto decoder = std::make_unique<Decoder>();
  PushAs(*decoder, AsciiLogLine, ShortLog("OBSVMA", "79,0,2"));
  PushAs(*decoder, AsciiLogLine, LongLog("FWINFOA", ""));
  decoder->asciiLog.DecodeLine(WithoutLineEnd(Log("$GPSTIME,1,2")), LogIdGpsTime);
  decoder->asciiLog.DecodeLine("$GPSTIME,1,2*00000000", LogIdGpsTime);  // CRC
  const auto records = PopAll(*decoder);
  ASSERT_EQ(Ids(records), (std::vector<std::uint32_t>{10, 11277, 2300}));
  EXPECT_EQ(records[0].As<HeaderLogRecord>().header.week, 2101);
  EXPECT_EQ(records[1].As<HeaderLogRecord>().header.softwareBuild, 1500);
  EXPECT_EQ(records[1].As<HeaderLogRecord>().header.messageLength, 0);
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
