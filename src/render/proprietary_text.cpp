#include "render/proprietary_text.h"

#include <span>

namespace navframe {
namespace {

// Each value with a comma behind it, also when it is unknown.
void Values(std::span<const double> values, int decimals, TextWriter& writer) {
  for (const double value : values) writer.FixedOr(value, decimals, ",", ",");
}

}  // namespace

void FormatNavPos(const NavPosRecord& record, TextWriter& writer) {
  const double position[] = {record.x, record.y, record.z};
  const double sigma[] = {record.sigmaX, record.sigmaY, record.sigmaZ};
  writer.Field(record.timeText);
  Values(position, 3, writer);
  Values(sigma, 6, writer);
}

void FormatNavVel(const NavVelRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  if (!IsUnknown(record.status)) writer.Hex(record.status, 1);
  writer.Text(",");
  writer.IntOr(record.count, ",", ",");
  Values(record.velocity, 3, writer);
  writer.FixedOr(record.speedAccuracy, 3, "", ",");
}

void FormatNavTime(const NavTimeRecord& record, TextWriter& writer) {
  for (const NavTimeGroup& group : record.groups) writer.FixedOr(group.seconds, 9, ",", ",");
}

void FormatNavAcc(const NavAccRecord& record, TextWriter& writer) {
  writer.Field(record.timeText);
  writer.Text(record.status == 1 ? "A," : "V,");
  writer.IntOr(record.values[0], ",", ",");
  writer.IntOr(record.values[1], ",", ",");
  writer.IntOr(record.values[2], "", "");
}

// Literal: 255 is an ordinary value here.
void FormatPNavMsg(const PNavMsgRecord& record, TextWriter& writer) {
  writer.Int(record.head[0]);
  writer.Text(",");
  writer.Int(record.head[1]);
  for (const std::uint8_t value : record.values) {
    writer.Text(",");
    writer.Hex(value, 2);
  }
}

// Literal: -1 is an ordinary value here. Behind the first value come pairs, of which the first is
// written without a sign, as the first value is, and the second with its sign.
void FormatCwOut(const CwOutRecord& record, TextWriter& writer) {
  for (std::size_t i = 0; i < std::size(record.values); ++i) {
    if (i != 0) writer.Text(",");
    const bool withSign = i != 0 && i % 2 == 0;
    if (withSign) {
      writer.Int(record.values[i]);
    } else {
      writer.Int(static_cast<std::uint32_t>(record.values[i]));
    }
  }
}

void FormatGyoAcc(const GyoAccRecord& record, TextWriter& writer) {
  Values(record.gyro, 6, writer);
  Values(record.acceleration, 6, writer);
}

void FormatSnrStat(const SnrStatRecord& record, TextWriter& writer) {
  writer.IntOr(record.count, ",", ",");
  writer.IntOr(record.state, ",", ",");
  for (const std::int8_t level : record.levels) writer.IntOr(level, ",", ",");
}

void FormatImu(const ImuRecord& record, TextWriter& writer) {
  writer.Field(record.text[0]);
  writer.Field(record.text[1]);
  Values(record.values, 6, writer);
}

void FormatNavAtt(const NavAttRecord& record, TextWriter& writer) {
  Values(record.values, 6, writer);
}

void FormatInsPva(const InsPvaRecord& record, TextWriter& writer) {
  writer.FixedOr(record.latitude, 8, ",", ",");
  writer.FixedOr(record.longitude, 8, ",", ",");
  writer.FixedOr(record.height, 2, ",", ",");
  Values(record.velocity, 3, writer);
  writer.FixedOr(record.attitude[0], 3, ",", ",");
  writer.FixedOr(record.attitude[1], 3, ",", ",");
  writer.FixedOr(record.attitude[2], 3, "", "");
}

}  // namespace navframe
