#include "commands/sources.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <string_view>
#include <vector>

#include "commands/run_command.h"
#include "fault.h"
#include "interrupt.h"
#include "outputs/output_file.h"
#include "printable.h"
#include "sources/caster_request.h"
#include "sources/source.h"

namespace navframe::tool {
namespace {

constexpr std::chrono::seconds AnswerWithin(30);

// The body of a caster's answer to the request for its list.
std::string Fetch(const std::string& name) {
  CasterQuery query = ParseCaster(name);
  query.address.path.clear();
  const std::string failed = "cannot read " + ShownName(name) + ": ";
  for (;;) {
    const std::unique_ptr<CasterRequest> request = MakeCasterRequest(query);
    const auto limit = std::chrono::steady_clock::now() + AnswerWithin;
    while (!request->End()) {
      request->Work(QuietMilliseconds);
      if (IsInterrupted()) throw Fault(failed + "interrupted");
      if (std::chrono::steady_clock::now() > limit) throw Fault(failed + "no answer in time");
    }
    CasterAnswer& answer = request->Answer();
    if (answer.WantsDigest() && !query.withDigest) {
      query.withDigest = true;
      continue;
    }
    if (answer.What() == CasterAnswer::Kind::None && answer.Body().empty()) {
      throw Fault(failed + *request->End());
    }
    if (answer.What() == CasterAnswer::Kind::Other) throw Fault(failed + answer.Why());
    return answer.Body();
  }
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

// What is shown of a mountpoint, by the number of the field.
struct ColumnRow {
  const char* title;
  std::size_t field;
};
constexpr ColumnRow Columns[] = {{"MOUNTPOINT", 1}, {"PLACE", 2},   {"COUNTRY", 8}, {"LATITUDE", 9},
                                 {"LONGITUDE", 10}, {"FORMAT", 3},  {"SYSTEMS", 6}, {"GGA", 11},
                                 {"ACCESS", 15},    {"MESSAGES", 4}};
constexpr std::size_t Gga = 11;
constexpr std::size_t Access = 15;

std::string Shown(std::size_t field, std::string_view value) {
  if (field == Gga) return value == "1" ? "wanted" : "";
  if (field == Access && value == "N") return "free";
  if (field == Access && value == "B") return "basic";
  if (field == Access && value == "D") return "digest";
  std::string text;
  AppendPrintable(value, text);
  return text;
}

using Row = std::array<std::string, std::size(Columns)>;

void AppendAligned(const std::vector<Row>& rows, std::string& out) {
  std::array<std::size_t, std::size(Columns)> widths{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line.append(row[i]).append(widths[i] + 2 - row[i].size(), ' ');
    }
    out.append(line, 0, line.find_last_not_of(' ') + 1).append("\n");
  }
}

// "caster: HOST PORT NAME OPERATOR ...".
void AppendOther(const char* title, const std::vector<std::string_view>& fields, std::string& out) {
  out.append(title);
  for (std::size_t i = 1; i < fields.size(); ++i) {
    if (fields[i].empty()) continue;
    out += ' ';
    AppendPrintable(fields[i], out);
  }
  out += '\n';
}

// Nothing when it is no list.
std::string Readable(std::string_view table) {
  std::vector<Row> rows(1);
  for (std::size_t i = 0; i < std::size(Columns); ++i) rows[0][i] = Columns[i].title;
  std::string others;
  bool isList = false;
  for (std::string_view line : Split(table, '\n')) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    const std::vector<std::string_view> fields = Split(line, ';');
    isList |= line == "ENDSOURCETABLE" || fields[0] == "STR";
    if (fields[0] == "CAS") AppendOther("caster:", fields, others);
    if (fields[0] == "NET") AppendOther("network:", fields, others);
    if (fields[0] != "STR") continue;
    Row& row = rows.emplace_back();
    for (std::size_t i = 0; i < std::size(Columns); ++i) {
      const std::size_t field = Columns[i].field;
      if (field < fields.size()) row[i] = Shown(field, fields[field]);
    }
  }
  std::string out;
  if (isList) AppendAligned(rows, out);
  return out + (isList ? others : "");
}

}  // namespace

ExitStatus ListSources(const std::string& caster) {
  NoteInterrupts();
  return RunCommand([&caster] {
    const std::string list = Readable(Fetch(caster));
    if (list.empty()) throw Fault("cannot read " + ShownName(caster) + ": answers with no list");
    OutputFile file("-");
    file.Buffer() = list;
    file.Close();
    return Success;
  });
}

}  // namespace navframe::tool
