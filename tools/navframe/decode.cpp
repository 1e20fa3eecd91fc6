#include "decode.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <vector>

#include "navframe/feeder.hpp"
#include "printable.h"
#include "record_text.h"

namespace navframe::tool {
namespace {

constexpr double Million = 1e6;

// Collects lines and writes them in large pieces.
class LineWriter {
 public:
  std::string& Buffer() { return buffer_; }

  void WriteWhenLarge() {
    if (buffer_.size() >= LargeEnough) Write();
  }

  void Write() {
    if (error_ == 0 && (std::fwrite(buffer_.data(), 1, buffer_.size(), stdout) != buffer_.size() ||
                        std::fflush(stdout) != 0)) {
      error_ = errno;
    }
    buffer_.clear();
  }

  // errno of the write that failed, as behind `| head`; 0 while none has.
  int Error() const { return error_; }

 private:
  static constexpr std::size_t LargeEnough = 1 << 18;
  std::string buffer_;
  int error_ = 0;
};

// A bar on standard error for files that take a while.
class Progress {
 public:
  explicit Progress(std::FILE* input) {
    struct stat status {};
    if (fstat(fileno(input), &status) == 0 && S_ISREG(status.st_mode)) {
      total_ = static_cast<std::uint64_t>(status.st_size);
    }
    shown_ = total_ > WorthABar && isatty(STDERR_FILENO) != 0 && isatty(STDOUT_FILENO) == 0;
  }

  void Show(std::uint64_t done) {
    if (!shown_) return;
    const auto percent = static_cast<int>(100 * done / total_);
    if (percent == last_) return;
    last_ = percent;
    const std::string bar(static_cast<std::size_t>(percent / 2), '#');
    std::fprintf(stderr, "\r[%-50s] %3d%%", bar.c_str(), percent);
  }

  void End() {
    if (shown_) std::fprintf(stderr, "\r%*s\r", 58, "");
  }

 private:
  static constexpr std::uint64_t WorthABar = 4'000'000;
  std::uint64_t total_ = 0;
  bool shown_ = false;
  int last_ = -1;
};

struct Statistics {
  std::map<std::uint32_t, std::uint64_t> records;  // by kind
  std::uint64_t bytes = 0;
  std::uint64_t rejected = 0;
};

void PrintStatistics(const Statistics& statistics, double seconds) {
  std::uint64_t records = 0;
  for (const auto& [id, count] : statistics.records) {
    std::fprintf(stderr, "%-12s %12llu\n", KindName(id).c_str(),
                 static_cast<unsigned long long>(count));
    records += count;
  }
  const double megabytes = static_cast<double>(statistics.bytes) / Million;
  std::fprintf(stderr, "%llu records, %llu malformed sentences, %llu bytes, %.3f s, %.1f MB/s\n",
               static_cast<unsigned long long>(records),
               static_cast<unsigned long long>(statistics.rejected),
               static_cast<unsigned long long>(statistics.bytes), seconds,
               seconds > 0 ? megabytes / seconds : 0.0);
}

void PrintRejected(const Feeder::Rejected& rejected) {
  std::string sentence;
  AppendPrintable(rejected.sentence, sentence);
  std::fprintf(stderr, "navframe: malformed sentence at byte %llu: %s (%s)\n",
               static_cast<unsigned long long>(rejected.offset), sentence.c_str(),
               rejected.reason.c_str());
}

struct FileCloser {
  void operator()(std::FILE* file) const {
    if (file != stdin) std::fclose(file);
  }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File Open(const std::string& name) {
  return File(name == "-" ? stdin : std::fopen(name.c_str(), "rb"));
}

int Unreadable(const std::string& name) {
  std::fprintf(stderr, "navframe: cannot read %s: %s\n",
               name == "-" ? "standard input" : name.c_str(), std::strerror(errno));
  return Failure;
}

// Pops everything that waits.
void Drain(Statistics& statistics, LineWriter& lines) {
  GnssMessage message;
  while (GNSSGetMsg(&message, 0) == 0) {
    ++statistics.records[message.id];
    if (const NavframeKind* const kind = navframe_kind(message.id, message.source)) {
      AppendRecord(*kind, message.data, lines.Buffer());
    }
    GNSSFreeMem(&message);
  }
  lines.WriteWhenLarge();
}

}  // namespace

ExitStatus UnwritableOutput(int error) {
  if (error == EPIPE) return Success;
  std::fprintf(stderr, "navframe: cannot write standard output: %s\n", std::strerror(error));
  return Failure;
}

int Decode(const Options& options) {
  const File input = Open(options.file);
  if (!input) return Unreadable(options.file);
  GNSSSetMsgTypes(options.protocols);
  GNSSSetBoardType(options.board);
  GNSSSetOutMsgID(options.only);

  Statistics statistics;
  LineWriter lines;
  Progress progress(input.get());
  Feeder feeder(
      [&](const Feeder::Rejected& rejected) {
        ++statistics.rejected;
        if (!options.quiet) PrintRejected(rejected);
      },
      [&] { Drain(statistics, lines); });
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::uint8_t> chunk(options.chunk);
  while (lines.Error() == 0) {
    const ssize_t length = read(fileno(input.get()), chunk.data(), chunk.size());
    if (length < 0) {
      const int status = Unreadable(options.file);
      lines.Write();
      return status;
    }
    if (length == 0) break;
    statistics.bytes += static_cast<std::uint64_t>(length);
    feeder.Push(chunk.data(), static_cast<std::size_t>(length));
    Drain(statistics, lines);
    // A short read is a live source, whose lines are wanted now.
    if (static_cast<std::size_t>(length) < chunk.size()) lines.Write();
    progress.Show(statistics.bytes);
  }
  lines.Write();
  progress.End();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (options.stats) PrintStatistics(statistics, elapsed.count());
  return lines.Error() == 0 ? Success : UnwritableOutput(lines.Error());
}

}  // namespace navframe::tool
