#include "commands/info.h"

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <thread>
#include <utility>

#include "analysis/inventory.h"
#include "commands/in_order.h"
#include "commands/info_json.h"
#include "commands/info_page.h"
#include "commands/items.h"
#include "commands/messages.h"
#include "commands/run_command.h"
#include "outputs/output_file.h"
#include "sources/address.h"
#include "sources/file.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

// What became of one source.
struct Found {
  std::optional<analysis::Contents> contents;  // none of one that did not open
  std::string fault;
};

Found Look(const std::string& name, Progress& progress) {
  Found found;
  try {
    const std::unique_ptr<Source> source = OpenSource(name);
    const auto inventory = std::make_unique<analysis::Inventory>();
    Items items(analysis::InventoryItems);
    try {
      items.Read(*source, progress, [&](const NavframeItem& item) { inventory->Take(item); });
    } catch (const Fault& fault) {
      found.fault = fault.what();
    }
    found.contents = inventory->End(items.Statistics());
  } catch (const Fault& fault) {
    found.fault = fault.what();
  } catch (const std::bad_alloc&) {
    found.fault = navframe_status_text(NavframeOutOfMemory);
  }
  return found;
}

class Run {
 public:
  Run(const InfoOptions& options, std::vector<std::string> sources)
      : options_(options),
        sources_(std::move(sources)),
        progress_(SizeOfFiles(sources_)),
        messages_(progress_, false),
        output_(options.target) {}

  ExitStatus Tell() {
    std::vector<Found> found(sources_.size());
    DoInOrder(sources_.size(), Threads(),
              {[&](std::size_t i) {
                 if (!IsInterrupted()) found[i] = Look(sources_[i], progress_);
               },
               [](std::size_t) {},
               [&](std::size_t i) { Finish(sources_[i], std::exchange(found[i], {})); }});
    if (options_.json) {
      output_.Buffer() = InfoJson(files_, total_);
    } else if (told_ > 1) {
      Page("total of " + std::to_string(told_) + " files", total_);
    }
    progress_.Hide();
    output_.Close();
    if (!isGood_) return Failure;
    if (isRecognised_) return Success;
    messages_.Add("nothing was recognised");
    return NothingRecognised;
  }

 private:
  unsigned Threads() const {
    const unsigned wanted =
        options_.jobs != 0 ? options_.jobs : std::max(1U, std::thread::hardware_concurrency());
    return static_cast<unsigned>(std::min<std::size_t>(wanted, sources_.size()));
  }

  void Finish(const std::string& source, Found found) {
    if (!found.fault.empty()) {
      messages_.Add(found.fault);
      isGood_ = false;
    }
    if (!found.contents) return;
    const std::string name = source == "-" ? "standard input" : ShownName(source);
    isRecognised_ |= found.contents->IsRecognised();
    if (sources_.size() > 1) total_.Add(*found.contents);
    ++told_;
    if (options_.json) {
      files_.emplace_back(name, std::move(*found.contents));
    } else {
      Page(name, *found.contents);
    }
  }

  void Page(const std::string& heading, const analysis::Contents& contents) {
    std::string& out = output_.Buffer();
    if (!isFirst_) out += '\n';
    isFirst_ = false;
    AppendInfoPage(heading, contents, out);
    progress_.Hide();
    output_.Write();
  }

  const InfoOptions& options_;
  const std::vector<std::string> sources_;
  Progress progress_;
  Messages messages_;
  OutputFile output_;
  std::vector<NamedContents> files_;
  analysis::Contents total_;
  std::size_t told_ = 0;
  bool isFirst_ = true;
  bool isGood_ = true;
  bool isRecognised_ = false;
};

}  // namespace

ExitStatus Info(const InfoOptions& options) {
  NoteInterrupts();
  return RunCommand([&options] {
    std::vector<std::string> sources = options.sources;
    if (sources.empty()) sources.emplace_back("-");
    if (options.recursive) sources = WithFilesOfFolders(sources);
    CheckOutput(sources, options.target);
    return Run(options, std::move(sources)).Tell();
  });
}

}  // namespace navframe::tool
