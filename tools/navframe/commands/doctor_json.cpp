#include "commands/doctor_page.h"
#include "commands/json_writer.h"
#include "commands/moments.h"
#include "navframe/stream.h"

namespace navframe::tool {
namespace {

using analysis::Cause;
using analysis::Diagnosis;
using analysis::Finding;
using analysis::Place;

class Page {
 public:
  Page(JsonWriter& json, const Diagnosis& diagnosis)
      : json_(json), diagnosis_(diagnosis), calendar_{diagnosis.known, diagnosis.leapSeconds} {}

  void Members() {
    json_.Count("size_bytes", diagnosis_.bytes);
    json_.Count("frames", diagnosis_.frames);
    json_.Flag("recognised", diagnosis_.isRecognised);
    json_.Flag("healthy", diagnosis_.isRecognised && diagnosis_.IsHealthy());
    Utc("first_utc", diagnosis_.first);
    Utc("last_utc", diagnosis_.last);
    json_.Array("findings", diagnosis_.findings, [this](const Finding& one) { Tell(one); });
  }

 private:
  void Utc(const char* name, const std::optional<std::int64_t>& time) {
    json_.TextIfAny(name, time ? calendar_.Utc(*time) : "");
  }

  void Tell(const Finding& finding) {
    json_.Object(nullptr, [&] {
      json_.Text("cause", NameOf(finding.cause));
      json_.Flag("harmless", IsHarmless(finding.cause));
      json_.Count("places", finding.places);
      json_.Count("bytes", finding.bytes);
      json_.Count("count", finding.count);
      json_.Count("lost_bytes", finding.lost);
      json_.Array("first", finding.first, [&](const Place& place) { Tell(finding.cause, place); });
      if (finding.cause != Cause::Unexplained) return;
      json_.Array("heads", finding.heads, [this](const analysis::HeadCount& head) {
        json_.Object(nullptr, [&] {
          json_.Text("protocol", navframe_protocol_name(head.protocol));
          json_.Text("reason", navframe_reason_text(head.reason));
          json_.Count("count", head.count);
        });
      });
    });
  }

  void Tell(Cause cause, const Place& place) {
    const bool hasTime = place.time != analysis::NoTime;
    json_.Object(nullptr, [&] {
      json_.Count("offset_bytes", place.offset);
      json_.Count("length_bytes", place.length);
      json_.TextIfAny("utc", hasTime ? calendar_.Utc(place.time) : "");
      std::optional<std::int64_t> since;
      if (hasTime && diagnosis_.first) since = place.time - *diagnosis_.first;
      json_.Seconds("s", since);
      if (place.protocol != 0) json_.Text("protocol", navframe_protocol_name(place.protocol));
      if (!place.message.empty()) json_.Text("message", place.message);
      if (place.claimed != 0) json_.Count("claimed_bytes", place.claimed);
      if (place.lost != 0) json_.Count("lost_bytes", place.lost);
      if (place.count != 0) json_.Count("count", place.count);
      if (place.step != 0) json_.Seconds("step_s", place.step);
      if (cause == Cause::Repeated) json_.Count("first_offset_bytes", place.firstOffset);
      if (place.fill) json_.Count("all_bytes", *place.fill);
      if (!place.inside.empty()) {
        json_.Array("heads_inside", place.inside, [this](const analysis::HeadInside& head) {
          json_.Object(nullptr, [&] {
            json_.Text("protocol", navframe_protocol_name(head.protocol));
            json_.Count("offset_bytes", head.offset);
          });
        });
      }
      if (cause != Cause::Gap) return;
      json_.Array("messages", place.messages,
                  [this](const std::string& message) { json_.Text(nullptr, message); });
      json_.Flag("all_messages", place.isAll);
    });
  }

  JsonWriter& json_;
  const Diagnosis& diagnosis_;
  const Calendar calendar_;
};

}  // namespace

std::string DoctorJson(const std::string& source, const Diagnosis& diagnosis,
                       const Repaired& repaired) {
  JsonWriter json;
  json.Object(nullptr, [&] {
    json.Text("source", source);
    Page(json, diagnosis).Members();
    if (repaired.name.empty()) return;
    json.Object("repaired", [&] {
      json.Text("output", repaired.name);
      json.Count("crs", repaired.crs);
      json.Count("chunk_heads", repaired.heads);
      json.Count("bytes_taken_out", repaired.takenOut);
    });
  });
  return json.Done() + "\n";
}

}  // namespace navframe::tool
