#include "rinex/signal_codes.h"

#include <algorithm>
#include <iterator>

#include "rinex/observed.h"

namespace navframe::tool {
namespace {

// The attributes of a band.
struct BandRow {
  char system;
  char band;
  std::string_view attributes;
};
constexpr BandRow Bands[] = {
    {'G', '1', "CSLXPWYMNR"}, {'G', '2', "CDSLXPWYMNR"}, {'G', '5', "IQX"},   {'R', '1', "CP"},
    {'R', '2', "CP"},         {'R', '3', "IQX"},         {'R', '4', "ABX"},   {'R', '6', "ABX"},
    {'E', '1', "ABCXZ"},      {'E', '5', "IQX"},         {'E', '6', "ABCXZ"}, {'E', '7', "IQX"},
    {'E', '8', "IQX"},        {'C', '1', "DPXSLZ"},      {'C', '2', "IQX"},   {'C', '5', "DPX"},
    {'C', '6', "IQXDPZ"},     {'C', '7', "IQXDPZ"},      {'C', '8', "DPX"},   {'J', '1', "CESLXZB"},
    {'J', '2', "SLX"},        {'J', '5', "IQXDPZ"},      {'J', '6', "SLXEZ"}, {'I', '1', "DPX"},
    {'I', '5', "ABCX"},       {'I', '9', "ABCX"},        {'S', '1', "C"},     {'S', '5', "IQX"},
};

}  // namespace

bool HasSignal(std::size_t system, std::string_view code) {
  return std::ranges::any_of(Bands, [&](const BandRow& row) {
    return row.system == SystemLetters[system] && row.band == code[0] &&
           row.attributes.find(code[1]) != row.attributes.npos;
  });
}

}  // namespace navframe::tool
