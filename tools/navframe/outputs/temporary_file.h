// A file for what does not stay in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>

#include "sources/descriptor.h"

namespace navframe::tool {

// It has no name: it goes with its descriptor, whatever ends the program. Made with the first
// bytes. Failures are a WriteFault.
class TemporaryFile {
 public:
  std::uint64_t Size() const { return size_; }
  void Append(const void* from, std::size_t length);
  // All of them were appended before.
  void Read(std::uint64_t offset, void* to, std::size_t length) const;

 private:
  Descriptor file_;
  std::uint64_t size_ = 0;
};

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
// Such a file for the functions of <cstdio>, to be written and read.
std::unique_ptr<std::FILE, FileCloser> OpenTemporary();
// What their failures are.
WriteFault CannotKeep(int error);

}  // namespace navframe::tool
