#include "outputs/spool.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "fault.h"

namespace navframe::tool {
namespace {

constexpr std::size_t MostInMemory = 1 << 20;

// A file without a name: it goes with its descriptor, whatever ends the program.
Descriptor OpenTemporary() {
  std::error_code error;
  std::string name = std::filesystem::temp_directory_path(error).string();
  if (error) throw CannotWrite("a temporary file", error.value());
  name += "/navframeXXXXXX";
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) throw CannotWrite(name, errno);
  unlink(name.c_str());
  return Descriptor(file);
}

}  // namespace

Output& Spool::Open(const std::string& name, const std::string& heading) {
  return outputs_.try_emplace(name, *this, name, heading).first->second;
}

void Spool::Flush() {
  for (auto& [name, output] : outputs_) output.Write();
}

void Spool::Put(Waiting& output) {
  std::string& text = output.Buffer();
  if (Outputs* const to = to_.load()) {
    HandOn(*to);
    Output& next = output.In(*to);
    next.Buffer().append(text);
    next.WriteWhenLarge();
  } else {
    if (memory_.size() + text.size() > MostInMemory) Spill();
    pieces_.push_back({&output, text.size()});
    memory_.append(text);
  }
  text.clear();
}

void Spool::Spill() {
  if (file_.Number() < 0) file_ = OpenTemporary();
  for (std::size_t done = 0; done < memory_.size();) {
    const ssize_t length = write(file_.Number(), memory_.data() + done, memory_.size() - done);
    if (length < 0 && errno == EINTR) continue;
    if (length < 0) throw CannotWrite("a temporary file", errno);
    done += static_cast<std::size_t>(length);
  }
  inFile_ += memory_.size();
  memory_.clear();
}

void Spool::HandOn(Outputs& to) {
  std::size_t at = 0;
  for (const Piece& piece : pieces_) {
    Output& next = piece.output->In(to);
    std::string& text = next.Buffer();
    if (at >= inFile_) {
      text.append(memory_, at - inFile_, piece.length);
    } else {
      const std::size_t before = text.size();
      text.resize(before + piece.length);
      for (std::size_t done = 0; done < piece.length;) {
        const ssize_t length = pread(file_.Number(), &text[before + done], piece.length - done,
                                     static_cast<off_t>(at + done));
        if (length < 0 && errno == EINTR) continue;
        if (length <= 0) throw CannotWrite("a temporary file", length < 0 ? errno : EIO);
        done += static_cast<std::size_t>(length);
      }
    }
    at += piece.length;
    next.WriteWhenLarge();
  }
  pieces_.clear();
  memory_ = {};
  file_ = Descriptor();
  inFile_ = 0;
}

void Spool::End(Outputs& to) {
  HandOn(to);
  for (auto& [name, output] : outputs_) {
    Output& next = output.In(to);
    next.Buffer().append(output.Buffer());
    output.Buffer().clear();
    next.WriteWhenLarge();
  }
}

}  // namespace navframe::tool
