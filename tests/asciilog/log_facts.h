// What is known of logs apart from the library's tables: names, words, and the fields of each kind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "catalogue/layouts.h"

namespace navframe::test {

// A name and its log's number: "#OBSVH" is the start of "#OBSVHCMP", and the longer name wins.
inline constexpr std::string_view NamesOfLogs =
    "$GPSTIME, 2300 $BDSTIME, 2301 $GALTIME, 2302 $GLOTIME, 2303 $UTCTIME, 2304 $LSINFO, 2305 "
    "#PPSSTATUSA, 9000 %GYRATTSA, 1443 #SPPNAVENUA, 45 #BD3IONA, 21 #BD3UTCA, 22 #BESTNAVA, 1026 "
    "#BESTNAVHA, 1026 #PPPNAVA, 1026 #SPPNAVA, 1026 #SPPNAVHA, 1026 #ADRNAVA, 1026 "
    "#ADRNAVHA, 1026 #JAMSTATUSA, 511 #FREQJAMSTATUSA, 519 #JAMSTATUSDA, 517 #HWSTATUSDA, 518 "
    "#SATINFOA, 60079 #SATSINFOA, 2124 #AGRICA, 11276 #SATXYZ2A, 2114 #GPSEPHEMERISA, 60014 "
    "#BD3EPHEMA, 3000 #SATVIS2A, 1043 #INSPVAA, 507 #FWINFOA, 11277 #ANTENNAA 51 #GALION 60020 "
    "#GALUTC 60023 #RANGEA, 43 #BASERANGEA 283 #BASERANGE2 286 #GPSEPHEMA 7 #KMDGPSEPH 7 "
    "#BD2EPHEMA 1047 #BDSEPHEMERISA 1696 #GLOEPHEMERISA 723 #PPPDOPA 1025 #STADOPA 1025 "
    "#SPPDOPA 1025 #ADRDOPA 1025 #MPPPDOPA 1025 #STADOPHA 1025 #SPPDOPHA 1025 #ADRDOPHA 1025 "
    "#PPPPOSA 1024 #MPPPPOSA 2316 #PSRPOSA 47 #PSRPOS2A 2057 #MPSRPOSA 3005 #PSRVELA 100 "
    "#PSRVEL2A 2058 #PSRDOPA 174 #PSRDOP2A 2059 #RTKPOSA 141 #RTKPOS2A 2023 #RTKVELA 216 "
    "#RTKVEL2A 2024 #RTKDOPA 952 #RTKDOP2A 2025 #BESTPOSA 42 #WLNAVSUBFRAME 8029 #BESTPOS2A 2062 "
    "#BESTVELA 99 #BESTVEL1A 2061 #BESTVEL2A 2063 #BESTXYZA 241 $GPGGA 22223 $GAGGA 22222 "
    "$GAGSV 22222 $GAGSA 22222 $BDGGA 237 $GLGGA 219 $GNGGA 244 $BDGSA 224 $GLGSA 226 $GNGSA 222 "
    "$GPGSV 223 $GLGSV 231 $BDGSV 232 $GBGSV 232 $GPRMC 225 $BDRMC 225 $GNRMC 225 $GLRMC 225 "
    "#VERSION 37 #TIMEA 101 #RECTIMEA 102 #SLANTSTATUSA 513 #MATCHEDPOSA 96 #HEADINGA 971 "
    "#UNIHEADINGA 972 #UNIHEADING2A 972 #HEADING2A 1335 $GPHDT 1045 $BDHDT 1045 $GLHDT 1045 "
    "$GNHDT 1045 #RANGEHA 6005 #RANGEA_1 6005 #GYOACC 57022 #PVTSOL 1023 #GALEPHEMERISA 1122 "
    "#OBSVMCMP 138 #OBSVHCMP 139 #OBSVH 11 #OBSVM 10 #OBSVBASEA 284 #BASEINFOA 176 #BD3EPHA, 2999 "
    "#GPSEPHA, 60014 #BDSEPHA, 60015 #GALEPHA, 60016 #GLOEPHA, 60017 #GPSEPHEM, 60014 "
    "#BDSEPHEM 60015 #GALEPHEM 60016 #GLOEPHEM 60017 #GPSION 60018 #GPSUTC 60021 #BDSION 60019 "
    "#BDSUTC 60022";

// Each word behind its set, and its value behind it. The first of equal words counts.
struct WordFacts {
  std::string_view set, words;
};
inline constexpr WordFacts WordsOfLogs[] = {
    {"time status",
     "UNKNOWN 20 APPROXIMATE 60 COARSEADJUSTING 80 COARSE 100 COARSESTEERING 120 FREEWHEELING 130 "
     "FINEADJUSTING 140 FINE 160 FINEBACKUPSTEERING 170 FINESTEERING 180 SATTIME 200 LOCAL 201"},
    {"solution status",
     "SOL_COMPUTED 0 INSUFFICIENT_OBS 1 NO_CONVERGENCE 2 SINGULARITY 3 COV_TRACE 4 TEST_DIST 5 "
     "COLD_START 6 V_H_LIMIT 7 VARIANCE 8 RESIDUALS 9 DELTA_POS 10 NEGATIVE_VAR 11 "
     "INTEGRITY_WARNING 13 PENDING 18 INVALID_FIX 19 UNAUTHORIZED 20 ANTENNA_WARNING 21"},
    {"position type",
     "NONE 0 FIXEDPOS 1 FIXEDHEIGHT 2 DOPPLER_VELOCITY 8 SINGLE 16 PSRDIFF 17 SBAS 18 "
     "PROPAGATED 19 OMNISTAR 20 L1_FLOAT 32 IONOFREE_FLOAT 33 NARROW_FLOAT 34 L1_INT 48 "
     "WIDE_INT 49 NARROW_INT 50 RTK_DIRECT_INS 51 INS 52 INS_PSRSP 53 INS_PSRDIFF 54 "
     "INS_RTKFLOAT 55 INS_RTKFIXED 56 OMNISTAR_HP 64 OMNISTAR_XP 65 CDGPS 66 PPP_CONVERGING 68 "
     "PPP 69 PPP_BASIC_CONVERGING 77 PPP_BASIC 78"},
    {"satellite status",
     "GOOD 0 BADHEALTH 1 OLDEPHEMERIS 2 ECCENTRICANOMALY 3 TRUEANOMALY 4 SATCOORDINATEERROR 5 "
     "ELEVATIONERROR 6 MISCLOSURE 7 NODIFFCORR 8 NOEPHEMERIS 9 INVALIDIODE 10 LOCKEDOUT 11 "
     "LOWPOWER 12 OBSL2 13 NOIONOCORR 16 NOTUSED 17 OBSL1 18 OBSE1 19 OBSL5 20 OBSE5 21 OBSB2 22 "
     "OBSB1 23 OBSB3 24 NOSIGNALMATCH 25 SUPPLEMENTARY 26 NA 99 BAD_INTERGRITY 100 "
     "LOSSSOFLOCK 101 NOAMBIGUITY 102"},
    {"extended position type",
     "UNDEFINED 0 L3_FLOAT 1 L2_FLOAT 2 L1_FLOAT 3 IONOFREE_FLOAT 4 NARROW_FLOAT_L23 5 "
     "NARROW_FLOAT_L13 6 NARROW_FLOAT 7 NARROW_FLOAT_L123 8 WIDE_INT 9 L3_INT 10 L2_INT 11 "
     "L1_INT 12 IONOFREE_DISCRETE 13 NARROW_INT_L23 14 NARROW_INT_L13 15 NARROW_INT 16 "
     "WIDE_INT 17 REFERENCE 20"},
    {"datum",
     "ERROR 0 ADIND 1 ARC50 2 ARC60 3 AGD66 4 AGD84 5 BUKIT 6 ASTRO 7 CHATM 8 CARTH 9 CAPE 10 "
     "DJAKA 11 EGYPT 12 ED50 13 ED79 14 GUNSG 15 GEO49 16 GRB36 17 GUAM 18 HAWAII 19 KAUAI 20 "
     "MAUI 21 OAHU 22 HERAT 23 HJORS 24 HONGK 25 HUTZU 26 INDIA 27 IRE65 28 KERTA 29 KANDA 30 "
     "LIBER 31 LUZON 32 MINDA 33 MERCH 34 NAHR 35 NAD83 36 CANADA 37 ALASKA 38 NAD27 39 CARIBB 40 "
     "MEXICO 41 CAMER 42 MINNA 43 OMAN 44 PUERTO 45 QORNO 46 ROME 47 CHUA 48 SAM56 49 SAM69 50 "
     "CAMPO 51 SACOR 52 YACAR 53 TANAN 54 TIMBA 55 TOKYO 56 TRIST 57 VITI 58 WAK60 59 WGS72 60 "
     "WGS84 61 ZANDE 62 USER 63 CSRS 64 ADIM 65 ARSM 66 ENW 67 HTN 68 INDB 69 INDI 70 IRL 71 "
     "LUZA 72 LUZB 73 NAHC 74 NASP 75 OGBM 76 OHAA 77 OHAB 78 OHAC 79 OHAD 80 OHIA 81 OHIB 82 "
     "OHIC 83 OHID 84 TIL 85 TOYM 86"},
    {"port",
     "COM1 1 COM2 2 COM3 3 THISPORT 4 XCOM1 5 XCOM2 6 XCOM3 7 USB1 8 USB2 9 USB3 10 COM1_30 11 "
     "ICOM1 12 ICOM2 13 ICOM3 14 ICOM4 15 ICOM5 16 ICOM6 17 ICOM7 18 ICOM8 19 ICOM9 20 ICOM10 21 "
     "ICOM11 22 ICOM12 23 ICOM13 24 ICOM14 25"},
    {"inertial status",
     "INS_INACTIVE 1 INS_ALIGNING 2 INS_HIGH_VARIANCE 3 INS_SOLUTION_GOOD 4 INS_SOLUTION_FREE 5 "
     "INS_ALIGNMENT_COMPLETE 6 DETERMINING_ORIENTATION 7 WAITING_INITIALPOS 8"},
    {"time validity", "VALID 1 INVALID 2 CONVERGING 3 ITERATING 4 ERROR 5 WARNING 6"},
    {"component type",
     "UNKNOWN 1 GPSCARD 2 CONTROLLER 3 ENCLOSURE 4 IMUCARD 5 DB_HEIGHTMODEL 6 DB_USERAPP 7 "
     "DB_USERAPPAUTO 8"},
    {"boolean", "TRUE 1 FALSE 0"},
    {"satellite system", "GPS 0 GLONASS 1 SBAS 2 GALILEO 5 BEIDOU 6 QZSS 7 NAVIC 9"},
    {"time reference", "GPS 1 BDS 2 BDS1 2 BDS2 2"},
};

// What a field takes and what it refuses, by the letter that stands for it in LogFacts. A text that
// is taken has its value behind "=", or is its value; between the texts stands "|".
struct FieldFacts {
  char letter;
  std::size_t width;
  std::string_view taken, refused;
};
inline constexpr FieldFacts FieldsOfLogs[] = {
    {'B', 1, "0|255|+9| 3", "256|-1|1.5"},
    {'H', 2, "0|65535", "65536|-1"},
    {'h', 2, "32767|-32768", "32768|-32769"},
    {'I', 4, "0|4294967295", "4294967296|-1"},
    {'i', 4, "2147483647|-2147483648", "2147483648|-2147483649"},
    {'x', 1, "0c=12|ff=255|7F=127|0x1f=31|0XA=10", "100|g|-1|0x"},
    {'X', 4, "0810dc04=135322628|ffffffff=4294967295", "100000000|-1"},
    {'F', 4, "-0.1|3.4e38|+1e-3|inf", "1e39|0x1"},
    {'D', 8, "-121633909.56743812|1e300|+1e-3|inf", "1e999|0x1"},
    // Four characters.
    {'T', 4, "\"9\"=9|\"A1\"=A1|AAAAB=AAAA|\"1;,\"=1;,|\"A=A|\"=|=", ""},
    // A satellite's number and its frequency channel.
    {'y', 4, "13-2=13 -2|8+6=8 6|65535=65535 0|1-32768=1 -32768", "65536|-2|3-|1+32768|2+-1"},
    {'s', 4, "PENDING=18|PPP=0|=0", ""},                   // solution status
    {'p', 4, "PPP=69|L1_INT=48|PENDING=0", ""},            // position type
    {'m', 4, "WGS84=61|ADIND=1|wgs84=0", ""},              // datum
    {'v', 4, "ITERATING=4|VALID=1|INS_ALIGNING=0", ""},    // time validity
    {'n', 4, "INS_ALIGNING=2|VALID=0", ""},                // inertial status
    {'b', 4, "TRUE=1|FALSE=0|no=0", ""},                   // boolean
    {'g', 4, "BEIDOU=6|GLONASS=1|GPS=0|BDS=0", ""},        // satellite system
    {'q', 4, "xLOWPOWERx=12|NOSIGNALMATCH=25|low=0", ""},  // satellite status
};

template <class Record>
inline constexpr const NavframeRecord* Of = &catalogue::RecordOf<Record>;

// The kinds of records: numbers of their logs, bytes, header (L long, S short, - none), and fields.
// Behind those stand `most` groups at most, as many as the last of the fields says.
struct LogFacts {
  std::string_view ids;
  std::uint32_t size;
  char header;
  const NavframeRecord* record = Of<HeaderLogRecord>;
  // A letter for each field; the members that the fields become, "a*3" for three elements, "@" for
  // what a solution has of its satellites; of a group first the array that it is an element of.
  std::string_view fields = "", members = "", group = "", groupMembers = "";
  std::uint32_t most = 0;
};
inline constexpr LogFacts KindsOfLogs[] = {
    {"42 47 96 6006 57026", 100, 'L', Of<PositionLogRecord>, "spDDDFmFFFTFFBBBBxxxx",
     "solutionStatus positionType latitude longitude height undulation datum latitudeDeviation "
     "longitudeDeviation heightDeviation stationId differentialAge solutionAge @"},
    {"99 100", 72, 'L', Of<VelocityLogRecord>, "spFFDDDF",
     "solutionStatus velocityType latency differentialAge horizontalSpeed track verticalSpeed "
     "reserved"},
    {"174 2059", 320, 'L', Of<DopLogRecord>, "FFFFFFI",
     "gdop pdop hdop htdop tdop elevationCutoff count", "I", "satellites", 66},
    {"101", 72, 'L', Of<TimeLogRecord>, "vDDDIBBBBIv",
     "clockStatus offset offsetDeviation utcOffset utcYear utcMonth utcDay utcHour utcMinute "
     "utcMilliseconds utcStatus"},
    {"241", 140, 'L', Of<CartesianLogRecord>, "spDDDFFFspDDDFFFTFFFBBBBBxxx",
     "positionStatus positionType position*3 positionDeviation*3 velocityStatus velocityType "
     "velocity*3 velocityDeviation*3 stationId velocityLatency differentialAge solutionAge @"},
    {"971 1335", 72, 'L', Of<HeadingLogRecord>, "spFFFFFFTBBBBxxxx",
     "solutionStatus positionType length heading pitch reserved headingDeviation pitchDeviation "
     "stationId @"},
    {"507", 116, 'L', Of<InertialLogRecord>, "IDDDDDDDDDDn",
     "week seconds latitude longitude height northVelocity eastVelocity upVelocity roll pitch "
     "azimuth status"},
    {"43 6005", 19040, 'L', Of<RangeLogRecord>, "I", "count", "HHDFDFFFFX",
     "observations satellite glonassFrequency pseudorange pseudorangeDeviation carrierPhase "
     "carrierPhaseDeviation doppler carrierToNoise lockTime trackingStatus",
     432},
    {"7", 252, 'L', Of<GpsEphemerisLogRecord>, "IDIIIIIDDDDDDDDDDDDDDDDIDDDDDbDD",
     "satellite timeOfWeek health iode1 iode2 week zWeek toe semiMajorAxis deltaN m0 eccentricity "
     "omega cuc cus crc crs cic cis i0 iDot omega0 omegaDot iodc toc tgd af0 af1 af2 antiSpoofing "
     "n ura"},
    {"723", 172, 'L', Of<GlonassEphemerisLogRecord>, "HHBBHIIHBBIIDDDDDDDDDDDDIIIII",
     "slot frequency satelliteType reserved0 week milliseconds timeOffset dayNumber reserved1 "
     "reserved2 issue health position*3 velocity*3 acceleration*3 tau deltaTau gamma frameTime p "
     "accuracy age flags"},
    {"1122", 248, 'L', Of<GalileoEphemerisLogRecord>, "IbbBBBBBBBBIIDDDDDDDDDDDDDDDIDDDIDDDDD",
     "satellite fnavReceived inavReceived e1bHealth e5aHealth e5bHealth e1bDataValidity "
     "e5aDataValidity e5bDataValidity sisa reserved iodNav toe rootA deltaN m0 eccentricity omega "
     "cuc cus crc crs cic cis i0 iDot omega0 omegaDot fnavToc fnavAf*3 inavToc inavAf*3 e1E5aBgd "
     "e1E5bBgd"},
    {"48", 2680, 'L', Of<VisibilityLogRecord>, "bbI", "valid completeAlmanac count", "HhIDDDD",
     "satellites satellite glonassFrequency health elevation azimuth trueDoppler apparentDoppler",
     66},
    {"1043", 17324, 'L', Of<SystemVisibilityLogRecord>, "gbbI",
     "system valid completeAlmanac count", "yIDDDD",
     "satellites satellite glonassFrequency health elevation azimuth trueDoppler apparentDoppler",
     432},
    {"1194", 6940, 'S', Of<SatelliteListLogRecord>, "I", "count", "gyqX",
     "satellites system satellite glonassFrequency status signals", 431},
    {"2118", 144, 'S', Of<NavigationSolutionLogRecord>, "spDDDFmFFFTFFBBBBxxxx",
     "positionStatus positionType latitude longitude height undulation datum latitudeDeviation "
     "longitudeDeviation heightDeviation stationId differentialAge solutionAge @"},
    {"11276", 252, 'S', Of<AgriculturalLogRecord>, "TBBBBBBB",
     "format commandLength utcYear utcMonth utcDay utcHour utcMinute utcSecond"},
    {"60015", 256, 'S', Of<BdsEphemerisLogRecord>, "I", "satellite"},
    {"60018 60019", 100, 'S', Of<IonosphereLogRecord>, "DDDDDDDD", "alpha*4 beta*4"},
    {"60020", 100, 'S', Of<GalileoIonosphereLogRecord>, "DDD", "effectiveIonisation*3"},
    {"60021 60022 60023", 72, 'S', Of<UtcLogRecord>, "IIDDIIii",
     "week tot a0 a1 leapWeek leapDay leapBefore leapAfter"},
    {"10", 17308, 'S'},
    {"11277", 2944, 'L'},
    {"215", 928, 'L'},
    {"52", 40, 'L'},
    {"1461", 68, 'L'},
    {"2300 2301 2302 2303", 28, '-'},
    {"2304", 32, '-'},
    {"2305", 24, '-'},
    {"2306", 16, '-'},
    {"2307", 36, '-'},
    {"2308", 48, '-'},
    {"2309", 60, '-'},
    {"2310", 88, '-'},
};

}  // namespace navframe::test
