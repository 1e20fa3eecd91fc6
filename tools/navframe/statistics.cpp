#include "statistics.h"

#include <cstdio>

#include "records/item_text.h"

namespace navframe::tool {
namespace {

constexpr double Million = 1e6;

constexpr std::pair<NavframeProtocol, NavframeProtocolStatistics NavframeStatistics::*>
    Protocols[] = {{NavframeNmea, &NavframeStatistics::nmea},
                   {NavframeNmeaTagBlock, &NavframeStatistics::tagBlock},
                   {NavframeRtcm3, &NavframeStatistics::rtcm3},
                   {NavframeUbx, &NavframeStatistics::ubx},
                   {Navframe55Aa, &NavframeStatistics::binary55Aa},
                   {NavframeAsciiLog, &NavframeStatistics::asciiLog}};

unsigned long long Shown(std::uint64_t count) { return count; }

void PrintCount(const std::string& name, std::uint64_t count) {
  std::fprintf(stderr, "%-32s %12llu\n", name.c_str(), Shown(count));
}

void AddUp(NavframeProtocolStatistics& sum, const NavframeProtocolStatistics& part) {
  sum.frames += part.frames;
  sum.frameBytes += part.frameBytes;
  sum.undecoded += part.undecoded;
  sum.rejected += part.rejected;
  sum.records += part.records;
}

}  // namespace

void Statistics::Frame(const NavframeItem& item) {
  if (item.reason == NavframeBadField) ++malformed_;
  if (item.reason != NavframeNoKind && item.reason != NavframeBadContent) return;
  const char* const name = navframe_message_name(&item);
  ++undecoded_[(item.reason == NavframeNoKind ? "undecoded " : "bad content ") + MessageOf(item) +
               (*name == '\0' ? "" : " ") + name];
}

void Statistics::Stream(const NavframeStream* stream) {
  NavframeStatistics part{};
  part.size = sizeof part;
  navframe_statistics(stream, &part);
  sum_.bytes += part.bytes;
  sum_.skippedBytes += part.skippedBytes;
  for (const auto& [protocol, counts] : Protocols) AddUp(sum_.*counts, part.*counts);
}

void Statistics::Add(const Statistics& others) {
  for (const auto& [kind, count] : others.records_) records_[kind] += count;
  for (const auto& [message, count] : others.undecoded_) undecoded_[message] += count;
  malformed_ += others.malformed_;
  sum_.bytes += others.sum_.bytes;
  sum_.skippedBytes += others.sum_.skippedBytes;
  for (const auto& [protocol, counts] : Protocols) AddUp(sum_.*counts, others.sum_.*counts);
}

std::uint64_t Statistics::Frames() const {
  std::uint64_t frames = 0;
  for (const auto& [protocol, counts] : Protocols) frames += (sum_.*counts).frames;
  return frames;
}

void Statistics::Print(double seconds) const {
  std::uint64_t records = 0;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const auto counted = records_.find(navframe_kind_at(i));
    if (counted == records_.end()) continue;
    PrintCount(counted->first->name, counted->second);
    records += counted->second;
  }
  for (const auto& [message, count] : undecoded_) PrintCount(message, count);
  for (const auto& [protocol, member] : Protocols) {
    const NavframeProtocolStatistics& counts = sum_.*member;
    if (counts.frames == 0 && counts.rejected == 0) continue;
    std::fprintf(stderr, "%s: %llu frames, %llu bytes, %llu false starts\n",
                 navframe_protocol_name(protocol), Shown(counts.frames), Shown(counts.frameBytes),
                 Shown(counts.rejected));
  }
  const double megabytes = static_cast<double>(sum_.bytes) / Million;
  std::fprintf(stderr,
               "%llu records, %llu malformed sentences, %llu bytes, %llu skipped, %.3f s, "
               "%.1f MB/s\n",
               Shown(records), Shown(malformed_), Shown(sum_.bytes), Shown(sum_.skippedBytes),
               seconds, seconds > 0 ? megabytes / seconds : 0.0);
}

}  // namespace navframe::tool
