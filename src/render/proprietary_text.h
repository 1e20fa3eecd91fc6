// Text forms of the records of proprietary sentences and of sensors.
#pragma once

#include "navframe/records.h"
#include "render/text_writer.h"

namespace navframe {

void FormatNavPos(const NavPosRecord& record, TextWriter& writer);
void FormatNavVel(const NavVelRecord& record, TextWriter& writer);
void FormatNavTime(const NavTimeRecord& record, TextWriter& writer);
void FormatNavAcc(const NavAccRecord& record, TextWriter& writer);
void FormatPNavMsg(const PNavMsgRecord& record, TextWriter& writer);
void FormatCwOut(const CwOutRecord& record, TextWriter& writer);
void FormatGyoAcc(const GyoAccRecord& record, TextWriter& writer);
void FormatSnrStat(const SnrStatRecord& record, TextWriter& writer);
void FormatImu(const ImuRecord& record, TextWriter& writer);
void FormatNavAtt(const NavAttRecord& record, TextWriter& writer);
void FormatInsPva(const InsPvaRecord& record, TextWriter& writer);

}  // namespace navframe
