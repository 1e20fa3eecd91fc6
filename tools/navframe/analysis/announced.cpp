#include "analysis/announced.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "navframe/records.h"

namespace navframe::analysis {
namespace {

template <std::size_t Width>
std::string TextOf(const char (&member)[Width]) {
  return {member, ::strnlen(member, Width)};
}

template <class One>
void Put(std::vector<One>& list, One one, std::uint64_t& leftOut) {
  const auto same = std::ranges::find_if(list, [&](const One& other) { return other.IsSame(one); });
  if (same != list.end()) {
    same->count += one.count;
  } else if (list.size() < Announced::Most) {
    list.push_back(std::move(one));
  } else {
    leftOut += one.count;
  }
}

ReferencePoint PointOf(const StationAntennaPointRecord& record) {
  return {record.stationId,     record.rtcmMessage,           {record.x, record.y, record.z},
          record.antennaHeight, record.referenceStation == 1, 1};
}

Equipment EquipmentOf(const StationEquipmentRecord& record) {
  return {record.stationId,
          record.rtcmMessage,
          TextOf(record.antenna),
          TextOf(record.antennaSerial),
          TextOf(record.receiver),
          TextOf(record.firmware),
          TextOf(record.receiverSerial),
          1};
}

ReceiverVersion VersionOf(const UbxVersionRecord& record) {
  ReceiverVersion version{TextOf(record.software), TextOf(record.hardware), {}, 1};
  const std::size_t count = std::min<std::size_t>(record.count, std::size(record.extensions));
  for (std::size_t i = 0; i < count; ++i) {
    std::string text = TextOf(record.extensions[i]);
    if (!text.empty()) version.extensions.push_back(std::move(text));
  }
  return version;
}

Announcement TextOfSentence(const NavframeItem& item) {
  const auto& record = *static_cast<const TextRecord*>(item.record);
  const std::size_t length = std::min<std::size_t>(record.length, sizeof record.text);
  return {item.address, std::string(record.text, length), 1};
}

Announcement Information(const UbxInformationRecord& record) {
  constexpr const char* Severities[] = {"error", "warning", "notice", "test", "debug"};
  const char* const severity =
      record.severity < std::size(Severities) ? Severities[record.severity] : "text";
  return {std::string("INF ") + severity, TextOf(record.text), 1};
}

Announcement StationText(const StationTextRecord& record) {
  const std::size_t length = std::min<std::size_t>(record.length, sizeof record.text);
  return {"1029 of station " + std::to_string(record.stationId), std::string(record.text, length),
          1};
}

// The same bits: not known is like not known.
bool IsSameNumber(double one, double other) {
  return one == other || (std::isnan(one) && std::isnan(other));
}

}  // namespace

bool ReferencePoint::IsSame(const ReferencePoint& other) const {
  return stationId == other.stationId && message == other.message &&
         isComputed == other.isComputed && IsSameNumber(position.x, other.position.x) &&
         IsSameNumber(position.y, other.position.y) && IsSameNumber(position.z, other.position.z) &&
         IsSameNumber(antennaHeight, other.antennaHeight);
}

bool Equipment::IsSame(const Equipment& other) const {
  return stationId == other.stationId && message == other.message && antenna == other.antenna &&
         antennaSerial == other.antennaSerial && receiver == other.receiver &&
         firmware == other.firmware && receiverSerial == other.receiverSerial;
}

bool ReceiverVersion::IsSame(const ReceiverVersion& other) const {
  return software == other.software && hardware == other.hardware && extensions == other.extensions;
}

bool Announcement::IsSame(const Announcement& other) const {
  return from == other.from && text == other.text;
}

bool Announced::IsOf(const NavframeKind& kind) {
  if (kind.source != SourceStream) return false;
  constexpr std::uint32_t Ids[] = {
      StationIdAntennaPoint, StationIdAntenna,    StationIdReceiver, StationIdText,
      MsgIdUbxVersion,       MsgIdUbxInformation, MsgIdText};
  return std::ranges::find(Ids, kind.id) != std::end(Ids);
}

void Announced::Take(const NavframeItem& item) {
  switch (item.kind->id) {
    case StationIdAntennaPoint:
      return Put(points, PointOf(*static_cast<const StationAntennaPointRecord*>(item.record)),
                 leftOut);
    case StationIdAntenna:
    case StationIdReceiver:
      return Put(equipment, EquipmentOf(*static_cast<const StationEquipmentRecord*>(item.record)),
                 leftOut);
    case MsgIdUbxVersion:
      return Put(versions, VersionOf(*static_cast<const UbxVersionRecord*>(item.record)), leftOut);
    case StationIdText:
      return Put(texts, StationText(*static_cast<const StationTextRecord*>(item.record)), leftOut);
    case MsgIdUbxInformation:
      return Put(texts, Information(*static_cast<const UbxInformationRecord*>(item.record)),
                 leftOut);
    case MsgIdText:
      return Put(texts, TextOfSentence(item), leftOut);
    default:
      return;
  }
}

void Announced::Add(const Announced& others) {
  leftOut += others.leftOut;
  for (const auto& one : others.points) Put(points, one, leftOut);
  for (const auto& one : others.equipment) Put(equipment, one, leftOut);
  for (const auto& one : others.versions) Put(versions, one, leftOut);
  for (const auto& one : others.texts) Put(texts, one, leftOut);
}

}  // namespace navframe::analysis
