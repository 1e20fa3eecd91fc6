#include "commands/rounds.h"

#include <cerrno>
#include <cstdio>
#include <optional>
#include <utility>

#include "commands/items.h"
#include "outputs/temporary_file.h"
#include "sources/source.h"

namespace navframe::tool {

using analysis::Cause;
using analysis::Examination;
using analysis::Undo;

// A temporary file without a name, which keeps what can be read once alone.
class Rounds::Kept {
 public:
  void Append(const std::uint8_t* bytes, std::size_t length) {
    if (std::fwrite(bytes, 1, length, file_.get()) != length) throw CannotKeep(errno);
  }
  // Source::Read from its beginning; one reader at a time.
  void Rewind() {
    if (std::fflush(file_.get()) != 0) throw CannotKeep(errno);
    std::rewind(file_.get());
  }
  std::size_t Read(std::uint8_t* to, std::size_t room) {
    const std::size_t length = std::fread(to, 1, room, file_.get());
    if (std::ferror(file_.get()) != 0) throw CannotKeep(errno);
    return length;
  }

 private:
  const std::unique_ptr<std::FILE, FileCloser> file_ = OpenTemporary();
};

class Rounds::KeepingSource : public Source {
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

class Rounds::KeptSource : public Source {
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

Rounds::Rounds(std::string name, Progress& progress, Messages& messages)
    : name_(std::move(name)), progress_(progress), messages_(messages) {}
Rounds::~Rounds() = default;

Source& Rounds::Open() {
  undone_.clear();
  std::unique_ptr<Source> source;
  if (kept_ && isRead_) {
    source = std::make_unique<KeptSource>(*kept_);
  } else {
    source = OpenSource(name_);
    if (source->IsLive() || name_ == "-") {
      kept_ = std::make_unique<Kept>();
      source = std::make_unique<KeepingSource>(std::move(source), *kept_);
    }
  }
  for (const Undo& undo : undos_) {
    auto undone = std::make_unique<UndoneSource>(std::move(source), undo);
    undone_.push_back(undone.get());
    source = std::move(undone);
  }
  source_ = std::move(source);
  return *source_;
}

std::uint64_t Rounds::Original(std::uint64_t offset) const {
  for (std::size_t i = undone_.size(); i-- != 0;) offset = undone_[i]->Done().Original(offset);
  return offset;
}

void Rounds::Examine(const Others& others) {
  constexpr std::size_t MostRounds = 4;
  std::vector<analysis::Finding> found;
  std::uint64_t bytes = 0;
  for (;;) {
    Examination::Result result = Round(undos_.empty() && others.take ? &others : nullptr);
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

// The others, when there are any, look at the items as well.
Examination::Result Rounds::Round(const Others* others) {
  constexpr std::uint32_t All = NavframeAllItems;
  Items items(others == nullptr ? analysis::ExaminationItems : All);
  std::optional<Examination> examination;
  try {
    Source& source = Open();
    examination.emplace([this](std::uint64_t offset) { return Original(offset); });
    items.Read(source, progress_, [&](const NavframeItem& item) {
      examination->Take(item);
      if (others != nullptr) others->take(item);
    });
    Close();
  } catch (const Fault& fault) {
    if (!examination) throw;
    messages_.Add(fault.what());
    isGood_ = false;
  }
  if (others != nullptr) others->end(items.Statistics());
  Examination::Result result = examination->End(items.Statistics());
  if (!isGood_) result.undo = {};
  return result;
}
void Rounds::Close() {
  isRead_ = true;
  takenOut_.clear();
  for (const UndoneSource* const undone : undone_) {
    takenOut_.push_back(undone->Done().TakenOut());
  }
}

}  // namespace navframe::tool
