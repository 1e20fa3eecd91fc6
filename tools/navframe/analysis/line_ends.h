// Whether line ends of a binary recording were translated, and where.
#pragma once

#include <cstdint>
#include <vector>

#include "analysis/frame_check.h"

namespace navframe::analysis {

struct Stretch {
  std::uint64_t begin;
  std::uint64_t end;
};

// Takes what is found in the order of the recording. A stretch in which every LF has a CR in front
// of it that was not there goes from one proof to the next, as long as nothing shows that a part
// between them is as it was sent.
class LineEnds {
 public:
  static constexpr std::size_t MostStretches = 4096;

  // Bytes that are whole again without the CRs in front of their LFs.
  void Added(std::uint64_t begin, std::uint64_t end);
  // Bytes that are as they were sent: whether they hold an LF.
  void AsSent(Bytes bytes) {
    if (HasLf(bytes)) Contradict();
  }
  // Bytes of which that is not known.
  void Unknown(Bytes bytes) {
    if (HasBareLf(bytes)) Contradict();
  }
  // To the end of the recording where nothing contradicts.
  std::vector<Stretch> End(std::uint64_t size);

 private:
  static bool HasLf(Bytes bytes);
  static bool HasBareLf(Bytes bytes);
  void Contradict() {
    isOpen_ = false;
    isContradicted_ = true;
  }

  std::vector<Stretch> stretches_;
  bool isOpen_ = false;
  bool isContradicted_ = false;
};

}  // namespace navframe::analysis
