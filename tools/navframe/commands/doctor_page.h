// What `navframe doctor` tells.
#pragma once

#include <cstdint>
#include <string>

#include "analysis/diagnosis.h"

namespace navframe::tool {

// What became of the repaired copy.
struct Repaired {
  std::string name;  // "" without one
  std::uint64_t crs = 0;
  std::uint64_t heads = 0;     // of chunks
  std::uint64_t takenOut = 0;  // bytes, all in all
};

void AppendDoctorPage(const std::string& heading, const analysis::Diagnosis& diagnosis,
                      const Repaired& repaired, std::string& out);
// What that page says of a finding, and of one of its places.
std::string SentenceOf(const analysis::Finding& finding);
std::string EvidenceOf(analysis::Cause cause, const analysis::Place& place);

std::string DoctorJson(const std::string& source, const analysis::Diagnosis& diagnosis,
                       const Repaired& repaired);

}  // namespace navframe::tool
