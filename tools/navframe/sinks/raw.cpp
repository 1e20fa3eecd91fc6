// The bytes of the frames whose records pass: to cut, filter and clean a recording.
#include <string_view>

#include "navframe/records_nmea.h"
#include "sinks/sink.h"

namespace navframe::tool {
namespace {

// A sentence that has no record of its own: the one that ends the run of them brings it.
bool IsSatellitesInView(const NavframeItem& item) {
  const std::string_view address = item.address;
  return item.protocol == NavframeNmea && item.recordCount == 0 &&
         (item.reason == NavframeNoReason || item.reason == NavframeBadField) &&
         address.size() == 5 && address.ends_with("GSV");
}

// Where all records are wanted, frames pass without being looked into; else with the first of their
// records that passes. Records of satellites in view come from several sentences, which are kept
// until it is known whether it passes; tag blocks wait for their sentence.
class Raw : public Sink {
 public:
  Raw(const SinkOptions& options, Outputs& outputs)
      : options_(options), output_(outputs.Open("", "")) {}

  void Take(const Wanted& wanted) override { Look(wanted.item, true); }
  void Leave(const NavframeItem& item) override { Look(item, false); }

 private:
  void Look(const NavframeItem& item, bool passes) {
    if (item.type == NavframeItemRecord) {
      if (options_.bySome) Record(item, passes);
    } else if (item.type != NavframeItemFrame) {
      if (passes && options_.withParts) Put(BytesOf(item));
    } else if (!options_.bySome) {
      if (passes) Put(BytesOf(item));
    } else {
      Frame(item, passes);
    }
    output_.WriteWhenLarge();
  }

  void Frame(const NavframeItem& item, bool passes) {
    if (item.protocol == NavframeNmeaTagBlock) {
      tagBlock_.assign(BytesOf(item));
      return;
    }
    frame_.assign(item.tagBlock == nullptr ? "" : tagBlock_).append(BytesOf(item));
    tagBlock_.clear();
    if (IsSatellitesInView(item)) {
      cycle_.append(frame_);
      frame_.clear();
    } else if (passes && options_.withParts && item.reason != NavframeNoReason) {
      Put(frame_);
      frame_.clear();
    }
  }

  void Record(const NavframeItem& item, bool passes) {
    const bool isCycle = item.kind->id == MsgIdGsv || item.kind->id == MsgIdWideGsv;
    std::string& bytes = isCycle ? cycle_ : frame_;
    if (passes) Put(bytes);
    if (passes || isCycle) bytes.clear();
  }

  static std::string_view BytesOf(const NavframeItem& item) {
    return {reinterpret_cast<const char*>(item.bytes), item.length};
  }
  void Put(std::string_view bytes) { output_.Buffer().append(bytes); }

  const SinkOptions& options_;
  Output& output_;
  std::string frame_;     // the last one, until one of its records passes
  std::string tagBlock_;  // in front of the next one
  std::string cycle_;     // sentences of the satellites that are collected
};

}  // namespace

std::unique_ptr<Sink> MakeRaw(const SinkOptions& options, Outputs& outputs) {
  return std::make_unique<Raw>(options, outputs);
}

}  // namespace navframe::tool
