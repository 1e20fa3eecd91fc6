#include "commands/doctor.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "analysis/examination.h"
#include "commands/doctor_page.h"
#include "commands/items.h"
#include "commands/messages.h"
#include "commands/run_command.h"
#include "commands/undone_source.h"
#include "outputs/output_file.h"
#include "sources/address.h"
#include "sources/descriptor.h"
#include "sources/folders.h"

namespace navframe::tool {
namespace {

using analysis::Cause;
using analysis::Examination;
using analysis::Undo;

// A temporary file without a name, which keeps what can be read once alone.
class Kept {
 public:
  Kept() : file_(std::tmpfile()) {
    if (!file_) throw CannotWrite("a temporary file", errno);
  }
  void Append(const std::uint8_t* bytes, std::size_t length) {
    if (std::fwrite(bytes, 1, length, file_.get()) != length) {
      throw CannotWrite("a temporary file", errno);
    }
  }
  // Source::Read from its beginning; one reader at a time.
  void Rewind() {
    if (std::fflush(file_.get()) != 0) throw CannotWrite("a temporary file", errno);
    std::rewind(file_.get());
  }
  std::size_t Read(std::uint8_t* to, std::size_t room) {
    return std::fread(to, 1, room, file_.get());
  }

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

class KeepingSource : public Source {
 public:
  KeepingSource(std::unique_ptr<Source> source, Kept& kept)
      : source_(std::move(source)), kept_(kept) {}
  Reading Read(std::uint8_t* to, std::size_t room) override {
    const Reading reading = source_->Read(to, room);
    kept_.Append(to, reading.length);
    return reading;
  }
  bool IsLive() const override { return source_->IsLive(); }

 private:
  const std::unique_ptr<Source> source_;
  Kept& kept_;
};

class KeptSource : public Source {
 public:
  explicit KeptSource(Kept& kept) : kept_(kept) { kept_.Rewind(); }
  Reading Read(std::uint8_t* to, std::size_t room) override {
    const std::size_t length = kept_.Read(to, room);
    return {length == 0 ? Reading::State::End : Reading::State::Bytes, length};
  }
  bool IsLive() const override { return false; }

 private:
  Kept& kept_;
};

bool IsSameFile(const std::string& one, const std::string& other) {
  struct stat first {};
  struct stat second {};
  const bool isInput = one == "-";
  return (isInput ? fstat(STDIN_FILENO, &first) : stat(one.c_str(), &first)) == 0 &&
         stat(other.c_str(), &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

class Run {
 public:
  explicit Run(const DoctorOptions& options)
      : options_(options),
        progress_(SizeOfFiles({options.source})),
        messages_(progress_, false),
        output_(options.target) {}

  ExitStatus Tell() {
    Examine();
    const bool isRecognised = diagnosis_.isRecognised;
    try {
      if (!options_.repaired.empty() && isGood_ && isRecognised) Repair();
    } catch (const std::runtime_error& fault) {  // of the copy: what was found is told
      messages_.Add(fault.what());
      isGood_ = false;
    }
    const std::string name = options_.source == "-" ? "standard input" : ShownName(options_.source);
    if (options_.json) {
      output_.Buffer() = DoctorJson(name, diagnosis_, repaired_);
    } else {
      AppendDoctorPage(name, diagnosis_, repaired_, output_.Buffer());
    }
    progress_.Hide();
    output_.Close();
    if (!isGood_) return Failure;
    if (isRecognised) return diagnosis_.IsHealthy() ? Success : Failure;
    messages_.Add(diagnosis_.bytes == 0 ? name + " is empty" : "nothing was recognised in " + name);
    return NothingRecognised;
  }

 private:
  // The recording, without what was found in it so far.
  std::unique_ptr<Source> Open() {
    undone_.clear();
    std::unique_ptr<Source> source;
    if (kept_ && isRead_) {
      source = std::make_unique<KeptSource>(*kept_);
    } else {
      source = OpenSource(options_.source);
      if (source->IsLive() || options_.source == "-") {
        kept_.emplace();
        source = std::make_unique<KeepingSource>(std::move(source), *kept_);
      }
    }
    for (const Undo& undo : undos_) {
      auto undone = std::make_unique<UndoneSource>(std::move(source), undo);
      undone_.push_back(undone.get());
      source = std::move(undone);
    }
    return source;
  }

  std::uint64_t Original(std::uint64_t offset) const {
    for (std::size_t i = undone_.size(); i-- != 0;) offset = undone_[i]->Done().Original(offset);
    return offset;
  }

  // What can be taken out is taken out, and what is left looked at again.
  void Examine() {
    constexpr std::size_t MostRounds = 4;
    std::vector<analysis::Finding> found;
    std::uint64_t bytes = 0;
    for (;;) {
      Examination::Result result = Round();
      if (undos_.empty()) bytes = result.diagnosis.bytes;
      diagnosis_ = std::move(result.diagnosis);
      if (result.undo.IsNothing() || undos_.size() == MostRounds || IsInterrupted()) break;
      for (const analysis::Finding& finding : diagnosis_.findings) {
        const bool isChunks = finding.cause == Cause::ChunkHeads;
        const bool isCrs = finding.cause == Cause::CrAdded && result.undo.chunks.empty();
        if (isChunks || isCrs) found.push_back(finding);
        if (isChunks) repaired_.heads += finding.count;
      }
      undos_.push_back(std::move(result.undo));
    }
    diagnosis_.bytes = bytes;
    for (std::size_t i = 0; i < found.size(); ++i) {
      if (found[i].cause == Cause::CrAdded && i < takenOut_.size()) {
        found[i].count = takenOut_[i];
        repaired_.crs += takenOut_[i];
      }
      diagnosis_.Add(found[i]);
    }
    for (const std::uint64_t bytesOut : takenOut_) repaired_.takenOut += bytesOut;
  }

  Examination::Result Round() {
    Items items(analysis::ExaminationItems);
    std::optional<Examination> examination;
    try {
      source_ = Open();
      examination.emplace([this](std::uint64_t offset) { return Original(offset); });
      items.Read(*source_, progress_, [&](const NavframeItem& item) { examination->Take(item); });
      Examination::Result result = examination->End(items.Statistics());
      Close();
      return result;
    } catch (const Fault& fault) {
      if (!examination) throw;
      messages_.Add(fault.what());
      isGood_ = false;
      Examination::Result result = examination->End(items.Statistics());
      result.undo = {};
      return result;
    }
  }

  void Close() {
    isRead_ = true;
    takenOut_.clear();
    for (const UndoneSource* const undone : undone_) {
      takenOut_.push_back(undone->Done().TakenOut());
    }
  }

  void Repair() {
    OutputFile file(options_.repaired);
    source_ = Open();
    std::vector<std::uint8_t> chunk(std::size_t{1} << 16);
    for (;;) {
      const Reading reading = source_->Read(chunk.data(), chunk.size());
      if (IsInterrupted()) throw Fault("interrupted: " + options_.repaired + " was not written");
      if (reading.state == Reading::State::End) break;
      file.Buffer().append(reinterpret_cast<const char*>(chunk.data()), reading.length);
      file.WriteWhenLarge();
    }
    file.Close();
    repaired_.name = options_.repaired;
  }

  const DoctorOptions& options_;
  Progress progress_;
  Messages messages_;
  OutputFile output_;
  std::optional<Kept> kept_;
  bool isRead_ = false;
  std::vector<Undo> undos_;
  std::unique_ptr<Source> source_;
  std::vector<const UndoneSource*> undone_;  // of the source that is open
  std::vector<std::uint64_t> takenOut_;      // bytes, by each of undos_
  analysis::Diagnosis diagnosis_;
  Repaired repaired_;
  bool isGood_ = true;
};

}  // namespace

ExitStatus Doctor(const DoctorOptions& options) {
  NoteInterrupts();
  Progress none(0);
  Messages messages(none, false);
  if (!options.repaired.empty() && IsSameFile(options.source, options.repaired)) {
    messages.Add(options.repaired + " is the recording itself, which is left as it is");
    return WrongUsage;
  }
  if (!options.repaired.empty() && options.target == options.repaired) {
    messages.Add(options.repaired + " cannot be both the page and the repaired recording");
    return WrongUsage;
  }
  return RunCommand([&options] { return Run(options).Tell(); });
}

}  // namespace navframe::tool
