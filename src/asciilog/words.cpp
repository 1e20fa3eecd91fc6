#include "asciilog/words.h"

#include <algorithm>
#include <ranges>
#include <span>

namespace navframe::asciilog {
namespace {

struct Word {
  std::string_view text;
  std::int32_t value;
};

constexpr Word TimeStatuses[] = {
    {"UNKNOWN", 20},        {"APPROXIMATE", 60},     {"COARSEADJUSTING", 80},
    {"COARSE", 100},        {"COARSESTEERING", 120}, {"FREEWHEELING", 130},
    {"FINEADJUSTING", 140}, {"FINE", 160},           {"FINEBACKUPSTEERING", 170},
    {"FINESTEERING", 180},  {"SATTIME", 200},        {"LOCAL", 201},
};

constexpr Word SolutionStatuses[] = {
    {"SOL_COMPUTED", 0},       {"INSUFFICIENT_OBS", 1}, {"NO_CONVERGENCE", 2}, {"SINGULARITY", 3},
    {"COV_TRACE", 4},          {"TEST_DIST", 5},        {"COLD_START", 6},     {"V_H_LIMIT", 7},
    {"VARIANCE", 8},           {"RESIDUALS", 9},        {"DELTA_POS", 10},     {"NEGATIVE_VAR", 11},
    {"INTEGRITY_WARNING", 13}, {"PENDING", 18},         {"INVALID_FIX", 19},   {"UNAUTHORIZED", 20},
    {"ANTENNA_WARNING", 21},
};

constexpr Word PositionTypes[] = {
    {"NONE", 0},
    {"FIXEDPOS", 1},
    {"FIXEDHEIGHT", 2},
    {"DOPPLER_VELOCITY", 8},
    {"SINGLE", 16},
    {"PSRDIFF", 17},
    {"SBAS", 18},
    {"PROPAGATED", 19},
    {"OMNISTAR", 20},
    {"L1_FLOAT", 32},
    {"IONOFREE_FLOAT", 33},
    {"NARROW_FLOAT", 34},
    {"L1_INT", 48},
    {"WIDE_INT", 49},
    {"NARROW_INT", 50},
    {"RTK_DIRECT_INS", 51},
    {"INS", 52},
    {"INS_PSRSP", 53},
    {"INS_PSRDIFF", 54},
    {"INS_RTKFLOAT", 55},
    {"INS_RTKFIXED", 56},
    {"OMNISTAR_HP", 64},
    {"OMNISTAR_XP", 65},
    {"CDGPS", 66},
    {"PPP_CONVERGING", 68},
    {"PPP", 69},
    {"PPP_BASIC_CONVERGING", 77},
    {"PPP_BASIC", 78},
};

// Searched in this order for a word inside the field: "NA" catches every later one that holds
// those two letters. Two words are misspelt by the receivers.
constexpr Word SatelliteStatuses[] = {
    {"GOOD", 0},
    {"BADHEALTH", 1},
    {"OLDEPHEMERIS", 2},
    {"ECCENTRICANOMALY", 3},
    {"TRUEANOMALY", 4},
    {"SATCOORDINATEERROR", 5},
    {"ELEVATIONERROR", 6},
    {"MISCLOSURE", 7},
    {"NODIFFCORR", 8},
    {"NOEPHEMERIS", 9},
    {"INVALIDIODE", 10},
    {"LOCKEDOUT", 11},
    {"LOWPOWER", 12},
    {"OBSL2", 13},
    {"NOIONOCORR", 16},
    {"NOTUSED", 17},
    {"OBSL1", 18},
    {"OBSE1", 19},
    {"OBSL5", 20},
    {"OBSE5", 21},
    {"OBSB2", 22},
    {"OBSB1", 23},
    {"OBSB3", 24},
    {"NOSIGNALMATCH", 25},
    {"SUPPLEMENTARY", 26},
    {"NA", 99},
    {"BAD_INTERGRITY", 100},
    {"LOSSSOFLOCK", 101},
    {"NOAMBIGUITY", 102},
};

// "WIDE_INT" stands twice: its second number is never reached.
constexpr Word ExtendedPositionTypes[] = {
    {"UNDEFINED", 0},         {"L3_FLOAT", 1},
    {"L2_FLOAT", 2},          {"L1_FLOAT", 3},
    {"IONOFREE_FLOAT", 4},    {"NARROW_FLOAT_L23", 5},
    {"NARROW_FLOAT_L13", 6},  {"NARROW_FLOAT", 7},
    {"NARROW_FLOAT_L123", 8}, {"WIDE_INT", 9},
    {"L3_INT", 10},           {"L2_INT", 11},
    {"L1_INT", 12},           {"IONOFREE_DISCRETE", 13},
    {"NARROW_INT_L23", 14},   {"NARROW_INT_L13", 15},
    {"NARROW_INT", 16},       {"WIDE_INT", 17},
    {"REFERENCE", 20},
};

// The value of a datum is its place.
constexpr std::string_view Datums[] = {
    "ERROR",  "ADIND",  "ARC50", "ARC60", "AGD66", "AGD84",  "BUKIT", "ASTRO",  "CHATM",  "CARTH",
    "CAPE",   "DJAKA",  "EGYPT", "ED50",  "ED79",  "GUNSG",  "GEO49", "GRB36",  "GUAM",   "HAWAII",
    "KAUAI",  "MAUI",   "OAHU",  "HERAT", "HJORS", "HONGK",  "HUTZU", "INDIA",  "IRE65",  "KERTA",
    "KANDA",  "LIBER",  "LUZON", "MINDA", "MERCH", "NAHR",   "NAD83", "CANADA", "ALASKA", "NAD27",
    "CARIBB", "MEXICO", "CAMER", "MINNA", "OMAN",  "PUERTO", "QORNO", "ROME",   "CHUA",   "SAM56",
    "SAM69",  "CAMPO",  "SACOR", "YACAR", "TANAN", "TIMBA",  "TOKYO", "TRIST",  "VITI",   "WAK60",
    "WGS72",  "WGS84",  "ZANDE", "USER",  "CSRS",  "ADIM",   "ARSM",  "ENW",    "HTN",    "INDB",
    "INDI",   "IRL",    "LUZA",  "LUZB",  "NAHC",  "NASP",   "OGBM",  "OHAA",   "OHAB",   "OHAC",
    "OHAD",   "OHIA",   "OHIB",  "OHIC",  "OHID",  "TIL",    "TOYM"};

constexpr std::string_view Ports[] = {
    "COM1",  "COM2",    "COM3",   "THISPORT", "XCOM1",  "XCOM2",  "XCOM3", "USB1",  "USB2",
    "USB3",  "COM1_30", "ICOM1",  "ICOM2",    "ICOM3",  "ICOM4",  "ICOM5", "ICOM6", "ICOM7",
    "ICOM8", "ICOM9",   "ICOM10", "ICOM11",   "ICOM12", "ICOM13", "ICOM14"};

constexpr std::string_view InertialStatuses[] = {
    "INS_INACTIVE",      "INS_ALIGNING",           "INS_HIGH_VARIANCE",       "INS_SOLUTION_GOOD",
    "INS_SOLUTION_FREE", "INS_ALIGNMENT_COMPLETE", "DETERMINING_ORIENTATION", "WAITING_INITIALPOS"};

constexpr std::string_view TimeValidities[] = {"VALID",     "INVALID", "CONVERGING",
                                               "ITERATING", "ERROR",   "WARNING"};

constexpr std::string_view ComponentTypes[] = {"UNKNOWN",    "GPSCARD",       "CONTROLLER",
                                               "ENCLOSURE",  "IMUCARD",       "DB_HEIGHTMODEL",
                                               "DB_USERAPP", "DB_USERAPPAUTO"};

// Of this library's own making, with gaps: see SatelliteSystem.
constexpr Word SatelliteSystems[] = {
    {"GPS", 0},    {"GLONASS", 1}, {"SBAS", 2},  {"GALILEO", 5},
    {"BEIDOU", 6}, {"QZSS", 7},    {"NAVIC", 9},
};

std::int32_t ValueOf(std::string_view word, std::span<const Word> words) {
  const auto found = std::ranges::find(words, word, &Word::text);
  return found == words.end() ? 0 : found->value;
}

// The place of the word in the list, counted from `first`.
std::int32_t PlaceOf(std::string_view word, std::span<const std::string_view> words,
                     std::int32_t first) {
  const auto found = std::ranges::find(words, word);
  return found == words.end() ? 0 : first + static_cast<std::int32_t>(found - words.begin());
}

}  // namespace

std::int32_t TimeStatus(std::string_view word) { return ValueOf(word, TimeStatuses); }
std::int32_t SolutionStatus(std::string_view word) { return ValueOf(word, SolutionStatuses); }
std::int32_t PositionType(std::string_view word) { return ValueOf(word, PositionTypes); }
std::int32_t ExtendedPositionType(std::string_view word) {
  return ValueOf(word, ExtendedPositionTypes);
}
std::int32_t Datum(std::string_view word) { return PlaceOf(word, Datums, 0); }

std::int32_t SatelliteStatus(std::string_view field) {
  const auto occurs = [field](const Word& word) {
    return field.find(word.text) != std::string_view::npos;
  };
  const auto* const found = std::ranges::find_if(SatelliteStatuses, occurs);
  return found == std::ranges::end(SatelliteStatuses) ? 0 : found->value;
}

std::int32_t Port(std::string_view word) { return PlaceOf(word, Ports, 1); }
std::int32_t InertialStatus(std::string_view word) { return PlaceOf(word, InertialStatuses, 1); }
std::int32_t TimeValidity(std::string_view word) { return PlaceOf(word, TimeValidities, 1); }
std::int32_t ComponentType(std::string_view word) { return PlaceOf(word, ComponentTypes, 1); }

std::int32_t Boolean(std::string_view word) { return word == "TRUE" ? 1 : 0; }

std::int32_t SatelliteSystem(std::string_view word) { return ValueOf(word, SatelliteSystems); }

TimeReference TimeReferenceOf(std::string_view word) {
  if (word == "GPS") return TimeReference::Gps;
  // With or without the number of the system's generation.
  const bool bds = word == "BDS" || word == "BDS1" || word == "BDS2";
  return bds ? TimeReference::Bds : TimeReference::Unknown;
}

}  // namespace navframe::asciilog
