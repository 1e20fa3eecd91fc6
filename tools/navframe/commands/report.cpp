#include "commands/report.h"

#include <unistd.h>

#include <memory>
#include <string_view>
#include <utility>

#include "analysis/charting.h"
#include "analysis/inventory.h"
#include "commands/doctor_page.h"
#include "commands/info_json.h"
#include "commands/messages.h"
#include "commands/report_json.h"
#include "commands/rounds.h"
#include "commands/run_command.h"
#include "fault.h"
#include "interrupt.h"
#include "markup.h"
#include "outputs/output_file.h"
#include "report/page.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/folders.h"

namespace navframe::tool {
#ifdef NAVFRAME_WITH_REPORT
namespace {

// JSON that stands in a page: nothing in it ends the element that it is in.
void AppendJsonOfPage(std::string_view json, std::string& out) {
  for (const char c : json) {
    if (c == '<') {
      out += "\\u003c";
    } else {
      out += c;
    }
  }
}

class Run {
 public:
  Run(const ReportOptions& options, std::vector<std::string> sources)
      : sources_(std::move(sources)),
        progress_(SizeOfFiles(sources_)),
        messages_(progress_, false),
        output_(options.target) {}

  ExitStatus Write() {
    const ReportPage page = PageOfReport();
    const std::string title = sources_.size() == 1
                                  ? NameOf(sources_.front())
                                  : std::to_string(sources_.size()) + " recordings";
    output_.Buffer().append(page.head).append(EscapedMarkup(title)).append(page.middle);
    for (const std::string& source : sources_) {
      if (!IsInterrupted()) Look(source);
    }
    output_.Buffer().append(page.end);
    progress_.Hide();
    if (told_ == 0) return Failure;
    output_.Close();
    if (!isGood_) return Failure;
    return isRecognised_ ? Success : NothingRecognised;
  }

 private:
  static std::string NameOf(const std::string& source) {
    return source == "-" ? "standard input" : ShownName(source);
  }

  // One reading is good for the charts and for what info and doctor tell.
  void Look(const std::string& source) {
    const auto inventory = std::make_unique<analysis::Inventory>();
    const auto charting = std::make_unique<analysis::Charting>();
    analysis::Contents contents;
    analysis::Charts charts;
    Rounds rounds(source, progress_, messages_);
    try {
      rounds.Examine({[&](const NavframeItem& item) {
                        inventory->Take(item);
                        charting->Take(item);
                      },
                      [&](const NavframeStatistics& statistics) {
                        contents = inventory->End(statistics);
                        charts = charting->End();
                      }});
    } catch (const Fault& fault) {
      messages_.Add(fault.what());
      isGood_ = false;
      return;
    }
    isGood_ &= rounds.IsGood();
    Tell(NameOf(source), std::move(contents), charts, rounds.Found());
  }

  void Tell(const std::string& name, analysis::Contents contents, const analysis::Charts& charts,
            const analysis::Diagnosis& diagnosis) {
    if (!contents.IsRecognised()) {
      messages_.Add(contents.bytes == 0 ? name + " is empty" : "nothing was recognised in " + name);
    }
    isRecognised_ |= contents.IsRecognised();
    ++told_;
    std::string& out = output_.Buffer();
    out.append("<script type=\"application/json\" class=\"recording\">{\"charts\":");
    AppendJsonOfPage(ChartsJson(charts, contents, diagnosis), out);
    out.append(",\"doctor\":");
    AppendJsonOfPage(DoctorJson(name, diagnosis, {}), out);
    out.append(",\"info\":");
    std::vector<NamedContents> one;
    one.emplace_back(name, std::move(contents));
    AppendJsonOfPage(InfoJson(one, {}), out);
    out.append("}</script>\n");
    output_.WriteWhenLarge();
  }

  const std::vector<std::string> sources_;
  Progress progress_;
  Messages messages_;
  OutputFile output_;
  std::size_t told_ = 0;
  bool isGood_ = true;
  bool isRecognised_ = false;
};

ExitStatus Begin(const ReportOptions& options) {
  std::vector<std::string> sources = options.sources;
  if (sources.empty()) sources.emplace_back("-");
  if (options.recursive) sources = WithFilesOfFolders(sources);
  if (options.target == "-" && isatty(STDOUT_FILENO) != 0) {
    throw UsageFault("a page for browsers is no text for a terminal: name a file with --output");
  }
  CheckOutput(sources, options.target);
  return Run(options, std::move(sources)).Write();
}

}  // namespace

ExitStatus Report(const ReportOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] { return Begin(options); });
}

#else

ExitStatus Report(const ReportOptions&) {
  Progress none(0);
  Messages(none, false)
      .Add(
          "the tool was built without uPlot, which reports are drawn with (docs/report.md "
          "tells how to build it with that); info, doctor and track tell the same as text");
  return Failure;
}

#endif

}  // namespace navframe::tool
