#include "commands/doctor_page.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "commands/moments.h"
#include "commands/text_table.h"
#include "navframe/stream.h"
#include "printable.h"

namespace navframe::tool {
namespace {

using analysis::Cause;
using analysis::Diagnosis;
using analysis::Finding;
using analysis::Place;
using enum TextTable::Side;

// "1 byte", "2 bytes".
std::string Count(std::uint64_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}
std::string Count(std::uint64_t count, const char* one) {
  return Count(count, one, (std::string(one) + "s").c_str());
}

std::string Hex(std::uint8_t byte) {
  std::array<char, 4> text{};
  std::snprintf(text.data(), text.size(), "%02X", byte);
  return text.data();
}

// "UBX 01-07".
std::string Name(const Place& place) {
  std::string name = navframe_protocol_name(place.protocol);
  if (!place.message.empty()) {
    name += ' ';
    AppendPrintable(place.message, name);
  }
  return name;
}

class Page {
 public:
  Page(const Diagnosis& diagnosis, std::string& out)
      : diagnosis_(diagnosis), calendar_{diagnosis.known, diagnosis.leapSeconds}, out_(out) {}

  void Append(const std::string& heading, const Repaired& repaired) {
    std::string size = Count(diagnosis_.bytes, "byte") + ", " + Count(diagnosis_.frames, "frame");
    if (!diagnosis_.isRecognised) {
      out_ += heading + ": " +
              (diagnosis_.bytes == 0 ? "empty" : size + ", nothing was recognised") + "\n";
      return;
    }
    std::size_t causes = 0;
    for (const Finding& one : diagnosis_.findings) causes += IsHarmless(one.cause) ? 0 : 1;
    const std::string unhealthy =
        "not healthy, for " + (causes == 1 ? "one reason" : std::to_string(causes) + " reasons");
    out_ += heading + ": " + (diagnosis_.IsHealthy() ? "healthy" : unhealthy) + "\n  " + size;
    if (diagnosis_.first) {
      out_ += ", " + calendar_.Shown(*diagnosis_.first) + " to " + Moment(*diagnosis_.last) +
              (calendar_.known == analysis::TimeKnown::TimeOfWeek ? " of the week" : " UTC");
    }
    out_ += '\n';
    for (const Finding& one : diagnosis_.findings) Tell(one);
    Tell(repaired);
  }

 private:
  // Without the date where that is the same as of the beginning.
  std::string Moment(std::int64_t time) const {
    const std::string text = calendar_.Shown(time);
    const std::size_t date = text.find(' ') + 1;
    const bool isSame = calendar_.HasDate() && diagnosis_.first &&
                        calendar_.Shown(*diagnosis_.first).compare(0, date, text, 0, date) == 0;
    return isSame ? text.substr(date) : text;
  }

  void Tell(const Finding& finding) {
    constexpr std::size_t Most = 10;
    if (IsHarmless(finding.cause)) {
      out_ += "\n" + Sentence(finding) + "\n";
      return;
    }
    out_ += "\n" + Sentence(finding) + "\n";
    TextTable table({{"byte", Right}, {"bytes", Right}, {"time", Left}, {"", Left}});
    const std::size_t shown = std::min(Most, finding.first.size());
    for (std::size_t i = 0; i < shown; ++i) {
      const Place& place = finding.first[i];
      const bool hasTime = place.time != analysis::NoTime;
      table.Add({std::to_string(place.offset),
                 place.length == 0 ? "" : std::to_string(place.length),
                 hasTime ? Moment(place.time) : "", What(finding.cause, place)});
    }
    if (!table.IsEmpty()) table.AppendTo(out_);
    if (finding.places > shown) {
      out_ += "  and in " + Count(finding.places - shown, "more place") + "\n";
    }
    for (const analysis::HeadCount& head : finding.heads) {
      out_ += std::string("  ") + navframe_protocol_name(head.protocol) + ": " +
              std::to_string(head.count) + (head.count == 1 ? " head" : " heads") +
              " without a frame, " + navframe_reason_text(head.reason) + "\n";
    }
  }

 public:
  static std::string Sentence(const Finding& finding) {
    const std::uint64_t places = finding.places;
    switch (finding.cause) {
      case Cause::CrAdded:
        return "LF became CR LF: " + Count(finding.count, "CR was", "CRs were") +
               " put in, without which " +
               Count(places, "frame or line end is", "frames or line ends are") +
               " as sent. --repair takes them out.";
      case Cause::CrLost:
        return "CR LF became LF: " + Count(places, "frame is", "frames are") +
               " whole with a CR in front of an LF, and no CR LF is left. Nothing tells where all "
               "of "
               "them stood.";
      case Cause::ChunkHeads:
        return "Heads of a transfer in chunks (HTTP) stand in the stream: " +
               Count(finding.count, "head") + ". --repair takes them out.";
      case Cause::BeginsInside:
        return "It begins inside of a frame, or with what is none.";
      case Cause::EndsInside:
        return "It ends inside of a frame.";
      case Cause::BytesLost:
        return "Bytes are lost" +
               (finding.lost == 0 ? "" : ", " + std::to_string(finding.lost) + " at least") + ": " +
               Count(places, "frame is", "frames are") + " cut off.";
      case Cause::WrongChecksum:
        return Count(places, "frame does", "frames do") +
               " not hold what was sent: the checksum is wrong.";
      case Cause::NoChecksum:
        return Count(places, "sentence has", "sentences have") + " no checksum.";
      case Cause::ClockBack:
        return "The time goes back" + Times(places) + ".";
      case Cause::ClockAhead:
        return "The time goes ahead by more than a day" + Times(places) + ".";
      case Cause::Repeated:
        return Count(places, "block comes", "blocks come") + " a second time.";
      case Cause::Gap:
        return "Messages stay away" + Times(places) + ".";
      case Cause::Unexplained:
        return Count(finding.bytes, "byte is", "bytes are") + " part of no frame, in " +
               Count(places, "place") + Beginning(finding) + ".";
      case Cause::Text:
        return "Harmless: " + Count(places, "comment or blank line", "comments or blank lines") +
               ".";
    }
    return "";
  }

  static std::string Times(std::uint64_t count) {
    return count == 1 ? "" : ", " + std::to_string(count) + " times";
  }

  static std::string Beginning(const Finding& finding) {
    if (finding.beginSo == 0) return "";
    return "; " + std::to_string(finding.beginSo) + " of them begin with " +
           Hex(finding.beginning[0]) + " " + Hex(finding.beginning[1]) +
           ", as those of a protocol that is not known";
  }

  static std::string What(Cause cause, const Place& place) {
    switch (cause) {
      case Cause::CrAdded:
        if (place.claimed == 0) return "CR CR LF behind a sentence";
        return Name(place) + ", " + std::to_string(place.claimed) + " bytes without " +
               Count(place.count, "CR");
      case Cause::CrLost:
        return Name(place) + ", " + std::to_string(place.claimed) + " bytes with a CR";
      case Cause::ChunkHeads:
        return Count(place.count, "head") + ", each where the length of the one before says";
      case Cause::EndsInside:
      case Cause::BytesLost:
        if (place.claimed == 0) {
          return Name(place) + (place.message.empty() ? ", the end of a sentence" : "");
        }
        if (place.lost == 0) {
          return Name(place) + " of " + std::to_string(place.claimed) +
                 " bytes is not whole, and nothing begins where it should end";
        }
        return Name(place) + ", " + Count(place.lost, "byte") + " of " +
               std::to_string(place.claimed) + " missing";
      case Cause::WrongChecksum:
      case Cause::NoChecksum:
        return Name(place) + Inside(place);
      case Cause::ClockBack:
      case Cause::ClockAhead:
        return (place.step < 0 ? "back by " : "ahead by ") + Step(place.step) + ", with " +
               Name(place);
      case Cause::Repeated:
        return Count(place.count, "frame") + ", which stood at byte " +
               std::to_string(place.firstOffset) + " before";
      case Cause::Gap:
        return "nothing for " + Duration(place.step) + Absent(place);
      default:
        return place.fill ? "all of them " + Hex(*place.fill) : "";
    }
  }

  static std::string Step(std::int64_t step) {
    const std::int64_t length = std::abs(step);
    const std::string text = Duration(length);
    constexpr std::int64_t Rollover = 1024;
    const std::int64_t weeks = (length + analysis::DayMs) / analysis::WeekMs;
    if (weeks == 0 || std::abs(length - weeks * analysis::WeekMs) > analysis::DayMs) return text;
    return text + (weeks == Rollover
                       ? " (1024 weeks: the week number rolled over)"
                       : " (" + Count(static_cast<std::uint64_t>(weeks), "week") + ")");
  }

  static std::string Inside(const Place& place) {
    std::string text;
    for (const analysis::HeadInside& head : place.inside) {
      text += std::string(text.empty() ? "; inside of it, what seems to begin " : ", ") +
              navframe_protocol_name(head.protocol) + " at byte " + std::to_string(head.offset);
    }
    return text;
  }

  static std::string Absent(const Place& place) {
    constexpr std::size_t Most = 6;
    if (place.messages.empty()) return "";
    std::string text = ": " + Count(place.count, "epoch") + " of ";
    for (std::size_t i = 0; i < std::min(Most, place.messages.size()); ++i) {
      text.append(i == 0 ? "" : ", ");
      AppendPrintable(place.messages[i], text);
    }
    if (place.messages.size() > Most) {
      text += " and " + std::to_string(place.messages.size() - Most) + " more";
    }
    return text + (place.isAll ? ": of all that come regularly" : "");
  }

 private:
  void Tell(const Repaired& repaired) {
    if (repaired.name.empty()) return;
    out_ += '\n';
    AppendPrintable(repaired.name, out_);
    if (repaired.takenOut == 0) {
      out_ += ": a copy, as there is nothing to take out\n";
      return;
    }
    out_ += ": without";
    if (repaired.crs != 0) out_ += " " + Count(repaired.crs, "CR");
    if (repaired.heads != 0) {
      out_ += (repaired.crs == 0 ? " " : " and ") + Count(repaired.heads, "head") +
              " of chunks with their line ends";
    }
    out_ += ", " + Count(repaired.takenOut, "byte") + " less\n";
  }

  const Diagnosis& diagnosis_;
  const Calendar calendar_;
  std::string& out_;
};

}  // namespace

void AppendDoctorPage(const std::string& heading, const Diagnosis& diagnosis,
                      const Repaired& repaired, std::string& out) {
  std::string name;
  AppendPrintable(heading, name);
  Page(diagnosis, out).Append(name, repaired);
}

std::string SentenceOf(const Finding& finding) { return Page::Sentence(finding); }
std::string EvidenceOf(Cause cause, const Place& place) { return Page::What(cause, place); }

}  // namespace navframe::tool
