// Messages of reference stations as streams read them, written field by field.
#include <gtest/gtest.h>

#include "support/binary_frames.h"
#include "support/items.h"

namespace navframe::test {
namespace {

struct StationRow {
  BitWriter message;
  std::string line;
};

BitWriter Message(unsigned number, unsigned station = 1234) {
  return BitWriter().Put(number, 12).Put(station, 12);
}
BitWriter Text(BitWriter message, std::string_view text) {
  message.Put(text.size(), 8);
  for (const char c : text) message.Put(static_cast<std::uint8_t>(c), 8);
  return message;
}
BitWriter Position(unsigned number) {
  BitWriter message = Message(number).Put(31, 6).Put(0b1011, 4).Signed(8305731625, 38);
  return message.Put(0b10, 2).Signed(-48507297000, 38).Put(0b10, 2).Signed(39755214643, 38);
}

// The frame that gives a record, behind the time of the stream.
std::vector<StationRow> Rows() {
  const std::string head = R"({"tow":302418000,"week":2325,"stationId":1234,)";
  const std::string position =
      R"("itrfYear":31,"gps":1,"glonass":0,"galileo":1,"referenceStation":1,"oneOscillator":1,)"
      R"("quarterCycle":2,"x":830573.1625,"y":-4850729.7,"z":3975521.4643,"antennaHeight":)";
  const std::string antenna = R"("setupId":7,"antenna":"TRM55971.00     NONE",)";
  const std::string none = R"("receiver":null,"firmware":null,"receiverSerial":null})";
  const auto equipment = [](unsigned number) {
    return Text(Message(number), "TRM55971.00     NONE").Put(7, 8);
  };
  const std::string_view longest = "1234567890123456789012345678901";
  BitWriter text = Message(1029).Put(60522, 16).Put(43200, 17).Put(3, 7);
  return {
      {Position(1005), "STATION-ARP " + head + R"("rtcmMessage":1005,)" + position + "null}"},
      {Position(1006).Put(15000, 16),
       "STATION-ARP " + head + R"("rtcmMessage":1006,)" + position + "1.5}"},
      {equipment(1007), "STATION-ANTENNA " + head + R"("rtcmMessage":1007,)" + antenna +
                            R"("antennaSerial":null,)" + none},
      {Text(equipment(1008), "4711"), "STATION-ANTENNA " + head + R"("rtcmMessage":1008,)" +
                                          antenna + R"("antennaSerial":"4711",)" + none},
      {Text(Text(Text(Text(equipment(1033), ""), "NETR9"), "5.45"), longest),
       "STATION-RECEIVER " + head + R"("rtcmMessage":1033,)" + antenna +
           R"("antennaSerial":null,"receiver":"NETR9","firmware":"5.45","receiverSerial":")" +
           std::string(longest) + "\"}"},
      {Message(1230).Put(0b1000, 4).Put(0b1011, 4).Signed(-1, 16).Signed(-32768, 16).Put(35, 16),
       "STATION-GLO-BIASES " + head +
           R"("aligned":1,"l1Ca":-0.02,"l1P":null,"l2Ca":null,"l2P":0.7})"},
      {Text(text, "a\xC3\xA4z"), "STATION-TEXT " + head +
                                     R"("secondsOfDay":43200,"modifiedJulianDay":60522,)"
                                     R"("characters":3,"length":4,"text":"aäz"})"},
      {Message(1013).Put(60522, 16).Put(43200, 17).Put(1, 5).Put(18, 8).Put(1077, 12).Put(65537,
                                                                                          17),
       R"(SYSPARAM {"tow":302418000,"stationId":1234,"modifiedJulianDay":60522,)"
       R"("secondsOfDay":43200,"count":1,"leapSeconds":18,"announcements":[)"
       R"({"messageId":1077,"synchronous":1,"interval":1}]})"},
  };
}

TEST(RtcmStations, EveryFieldAndNoRecordOfAShorterMessage) {
  const Bytes noon = ToBytes(Sentence("GPRMC,120000.00,A,,,,,,,310724,,,A"));
  const auto recordOf = [&](const Bytes& payload) {
    WatchedStream watched;
    watched.withJson = true;
    watched.PutFlush(noon);
    const std::string lines = watched.PutFlush(RtcmFrame(payload));
    return lines.substr(lines.find('\n') + 1);
  };
  for (const StationRow& row : Rows()) {
    const Bytes whole = row.message.Written();
    EXPECT_EQ(recordOf(whole), "  " + row.line + "\n");
    for (std::size_t length = 2; length < whole.size(); ++length) {
      EXPECT_EQ(recordOf(First(whole, length)), "") << row.line << length;
    }
  }
  // A text that is longer than any.
  EXPECT_EQ(recordOf(Text(Message(1007), std::string(32, 'x')).Put(7, 8).Written()), "");
}

}  // namespace
}  // namespace navframe::test
