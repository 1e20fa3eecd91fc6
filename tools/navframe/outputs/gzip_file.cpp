#include "outputs/gzip_file.h"

#include "fault.h"
#include "outputs/output_file.h"

#ifdef NAVFRAME_WITH_ZLIB
#include <zlib.h>

#include <array>
#include <new>
#endif

namespace navframe::tool {

#ifdef NAVFRAME_WITH_ZLIB
struct GzipFile::State {
  explicit State(const std::string& name) : file(name) {
    constexpr int GzipWindow = 15 + 16;
    constexpr int Memory = 8;
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, GzipWindow, Memory,
                     Z_DEFAULT_STRATEGY) != Z_OK) {
      throw std::bad_alloc();
    }
  }
  ~State() { deflateEnd(&stream); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  void Put(std::string& text, int flush) {
    stream.next_in = reinterpret_cast<Bytef*>(text.data());
    stream.avail_in = static_cast<uInt>(text.size());
    do {
      stream.next_out = reinterpret_cast<Bytef*>(made.data());
      stream.avail_out = static_cast<uInt>(made.size());
      deflate(&stream, flush);
      file.Buffer().append(made.data(), made.size() - stream.avail_out);
      file.WriteWhenLarge();
    } while (stream.avail_out == 0);
    text.clear();
  }

  OutputFile file;
  z_stream stream{};
  std::array<char, 1 << 16> made;
};

GzipFile::GzipFile(const std::string& name) : state_(std::make_unique<State>(name)) {}

void GzipFile::Write() {
  if (!Buffer().empty()) state_->Put(Buffer(), Z_NO_FLUSH);
}

void GzipFile::Close() {
  state_->Put(Buffer(), Z_FINISH);
  state_->file.Close();
}
#else
struct GzipFile::State {};

GzipFile::GzipFile(const std::string& name) {
  throw WriteFault("cannot write " + name + ": navframe was built without zlib");
}

void GzipFile::Write() {}
void GzipFile::Close() {}
#endif

GzipFile::~GzipFile() = default;

}  // namespace navframe::tool
