#include "decode.h"

#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "navframe/catalogue.h"
#include "navframe/stream.h"
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

// "UBX 01-09 NAV-ODO", "RTCM 3 4074-11 proprietary", "NMEA GPWPL waypoint location".
std::string MessageName(const NavframeItem& item) {
  std::string name = navframe_protocol_name(item.protocol);
  std::array<char, 32> number{};
  if (item.address[0] != '\0') {
    name += ' ';
    AppendPrintable(item.address, name);
  } else if (item.protocol == NavframeUbx) {
    std::snprintf(number.data(), number.size(), " %02X-%02X", item.message >> 8,
                  item.message & 0xFF);
  } else if (item.subType != 0) {
    std::snprintf(number.data(), number.size(), " %u-%u", item.message, item.subType);
  } else {
    std::snprintf(number.data(), number.size(), " %u", item.message);
  }
  name += number.data();
  const std::string message = navframe_message_name(&item);
  return message.empty() ? name : name + ' ' + message;
}

void PrintMalformed(const NavframeItem& item) {
  std::string_view bytes(reinterpret_cast<const char*>(item.bytes), item.length);
  bytes = bytes.substr(0, bytes.find_last_not_of("\r\n") + 1);
  std::string sentence;
  AppendPrintable(bytes, sentence);
  std::fprintf(stderr, "navframe: malformed sentence at byte %llu: %s (field %u: %s)\n",
               static_cast<unsigned long long>(item.offset), sentence.c_str(), item.badField,
               navframe_reason_text(item.reason));
}

// What is counted for --stats, beside what the stream counts itself.
struct Counts {
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint64_t> records;  // by source and id
  std::map<std::string, std::uint64_t> undecoded;                            // by message
  std::uint64_t malformed = 0;

  void Frame(const NavframeItem& item) {
    if (item.reason == NavframeBadField) ++malformed;
    if (item.reason == NavframeNoKind) ++undecoded["undecoded " + MessageName(item)];
    if (item.reason == NavframeBadContent) ++undecoded["bad content " + MessageName(item)];
  }
};

void PrintCount(const std::string& name, std::uint64_t count) {
  std::fprintf(stderr, "%-32s %12llu\n", name.c_str(), static_cast<unsigned long long>(count));
}

void PrintProtocol(NavframeProtocol protocol, const NavframeProtocolStatistics& counts) {
  if (counts.frames == 0 && counts.rejected == 0) return;
  std::fprintf(stderr, "%s: %llu frames, %llu bytes, %llu false starts\n",
               navframe_protocol_name(protocol), static_cast<unsigned long long>(counts.frames),
               static_cast<unsigned long long>(counts.frameBytes),
               static_cast<unsigned long long>(counts.rejected));
}

void PrintStatistics(const NavframeStream* stream, const Counts& counts, double seconds) {
  NavframeStatistics statistics{};
  statistics.size = sizeof statistics;
  navframe_statistics(stream, &statistics);
  std::uint64_t records = 0;
  for (const auto& [kind, count] : counts.records) {
    PrintCount(navframe_kind(kind.second, kind.first)->name, count);
    records += count;
  }
  for (const auto& [message, count] : counts.undecoded) PrintCount(message, count);
  PrintProtocol(NavframeNmea, statistics.nmea);
  PrintProtocol(NavframeNmeaTagBlock, statistics.tagBlock);
  PrintProtocol(NavframeRtcm3, statistics.rtcm3);
  PrintProtocol(NavframeUbx, statistics.ubx);
  PrintProtocol(Navframe55Aa, statistics.binary55Aa);
  PrintProtocol(NavframeAsciiLog, statistics.asciiLog);
  const double megabytes = static_cast<double>(statistics.bytes) / Million;
  std::fprintf(stderr,
               "%llu records, %llu malformed sentences, %llu bytes, %llu skipped, %.3f s, "
               "%.1f MB/s\n",
               static_cast<unsigned long long>(records),
               static_cast<unsigned long long>(counts.malformed),
               static_cast<unsigned long long>(statistics.bytes),
               static_cast<unsigned long long>(statistics.skippedBytes), seconds,
               seconds > 0 ? megabytes / seconds : 0.0);
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

struct StreamCloser {
  void operator()(NavframeStream* stream) const { navframe_close(stream); }
};
using Stream = std::unique_ptr<NavframeStream, StreamCloser>;

Stream Open(const Options& options) {
  NavframeOptions ours{};
  ours.size = sizeof ours;
  navframe_default_options(&ours);
  ours.protocols = options.protocols;
  ours.items = NavframeItemRecord;
  if (options.stats || !options.quiet) ours.items |= NavframeItemFrame;
  ours.kinds = options.only.data();
  ours.kindCount = static_cast<std::uint32_t>(options.only.size());
  NavframeStream* stream = nullptr;
  navframe_open(&ours, &stream);
  return Stream(stream);
}

// From a stream to lines.
class Decoding {
 public:
  explicit Decoding(const Options& options) : options_(options), stream_(Open(options)) {}

  bool Failed() const { return stream_ == nullptr || status_ < 0; }
  int WriteError() const { return lines_.Error(); }

  void Put(const std::uint8_t* data, std::size_t length) {
    while (length != 0 && !Failed()) {
      const std::size_t taken = navframe_put(stream_.get(), data, length);
      data += taken;
      length -= taken;
      Drain();
    }
  }
  void Idle() {
    navframe_idle(stream_.get());
    Drain();
  }
  void End() {
    navframe_flush(stream_.get());
    Drain();
    Write();
  }
  void Write() { lines_.Write(); }

  void PrintStatistics(double seconds) const {
    tool::PrintStatistics(stream_.get(), counts_, seconds);
  }

 private:
  void Drain() {
    NavframeItem item;
    item.size = sizeof item;
    while ((status_ = navframe_next(stream_.get(), &item)) == NavframeItemReady) {
      if (item.type == NavframeItemFrame) {
        counts_.Frame(item);
        if (item.reason == NavframeBadField && !options_.quiet) PrintMalformed(item);
      } else {
        ++counts_.records[{item.kind->source, item.kind->id}];
        AppendRecord(*item.kind, item.record, lines_.Buffer());
        lines_.WriteWhenLarge();
      }
    }
  }

  const Options& options_;
  const Stream stream_;
  NavframeStatus status_ = NavframeOk;
  LineWriter lines_;
  Counts counts_;
};

int NoMemory() {
  std::fprintf(stderr, "navframe: %s\n", navframe_status_text(NavframeOutOfMemory));
  return Failure;
}

// True when nothing comes for so long that a receiver has said what it had to say.
bool IsQuiet(int input) {
  constexpr int Milliseconds = 300;
  pollfd source = {input, POLLIN, 0};
  return poll(&source, 1, Milliseconds) == 0;
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
  const int source = fileno(input.get());
  Decoding decoding(options);
  Progress progress(input.get());
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::uint8_t> chunk(options.chunk);
  std::uint64_t bytes = 0;
  while (!decoding.Failed() && decoding.WriteError() == 0) {
    if (IsQuiet(source)) {
      decoding.Idle();
      decoding.Write();
    }
    const ssize_t length = read(source, chunk.data(), chunk.size());
    if (length < 0) {
      const int status = Unreadable(options.file);
      decoding.Write();
      return status;
    }
    if (length == 0) break;
    bytes += static_cast<std::uint64_t>(length);
    decoding.Put(chunk.data(), static_cast<std::size_t>(length));
    // A short read is a live source, whose lines are wanted now.
    if (static_cast<std::size_t>(length) < chunk.size()) decoding.Write();
    progress.Show(bytes);
  }
  decoding.End();
  progress.End();
  if (decoding.Failed()) return NoMemory();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  if (options.stats) decoding.PrintStatistics(elapsed.count());
  return decoding.WriteError() == 0 ? Success : UnwritableOutput(decoding.WriteError());
}

}  // namespace navframe::tool
