#include "analysis/diagnosis.h"

#include <algorithm>

namespace navframe::analysis {

const char* NameOf(Cause cause) {
  constexpr std::array<const char*, Causes> Names = {
      "cr-added",          "cr-lost",     "chunk-heads",    "begins-inside-frame",
      "ends-inside-frame", "bytes-lost",  "wrong-checksum", "no-checksum",
      "clock-back",        "clock-ahead", "repeated-block", "gap",
      "unexplained",       "text"};
  return Names[static_cast<std::size_t>(cause)];
}

bool Diagnosis::IsHealthy() const {
  return std::ranges::all_of(findings, [](const Finding& one) { return IsHarmless(one.cause); });
}

void Diagnosis::Add(const Finding& finding) {
  const auto same = std::ranges::find(findings, finding.cause, &Finding::cause);
  if (same == findings.end()) {
    findings.push_back(finding);
    std::ranges::sort(findings, {}, &Finding::cause);
    return;
  }
  same->places += finding.places;
  same->bytes += finding.bytes;
  same->count += finding.count;
  same->first.insert(same->first.begin(), finding.first.begin(), finding.first.end());
}

}  // namespace navframe::analysis
