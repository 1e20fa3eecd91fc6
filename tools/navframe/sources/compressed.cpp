#include "sources/compressed.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "fault.h"
#include "sources/decompressor.h"

namespace navframe::tool {
namespace {

// How compressed content begins, and what decompresses it.
struct FormatRow {
  std::array<std::uint8_t, 4> head;
  std::size_t headLength;
  std::unique_ptr<Decompressor> (*make)();
};
constexpr FormatRow Formats[] = {
    {{0x1F, 0x8B}, 2, MakeGzip},
    {{0x28, 0xB5, 0x2F, 0xFD}, 4, MakeZstd},
};
constexpr std::size_t LongestHead = 4;

class DecompressedSource : public Source {
 public:
  DecompressedSource(std::unique_ptr<Source> source, std::string name)
      : source_(std::move(source)), name_(std::move(name)) {}

  Reading Read(std::uint8_t* to, std::size_t room) override {
    if (!known_) {
      if (const Reading reading = Fill(); reading.state == Reading::State::Quiet) return reading;
      if (End() < LongestHead && !ended_) return {Reading::State::Quiet, 0};
      Recognise();
    }
    return decompressor_ == nullptr ? ReadPlain(to, room) : ReadCompressed(to, room);
  }
  bool IsLive() const override { return source_->IsLive(); }
  std::uint64_t Taken() const override { return source_->Taken(); }
  std::uint64_t Total() const override { return source_->Total(); }
  void Tell(const Position& position) override { source_->Tell(position); }

 private:
  static constexpr std::size_t Room = 1 << 16;

  std::size_t End() const { return end_; }

  // More input behind that which waits; there is room for it once that was used.
  Reading Fill() {
    if (begin_ == end_) begin_ = end_ = 0;
    const Reading reading = source_->Read(&input_[end_], Room - end_);
    if (reading.state == Reading::State::End) ended_ = true;
    end_ += reading.length;
    return reading;
  }

  void Recognise() {
    known_ = true;
    for (const FormatRow& row : Formats) {
      if (end_ >= row.headLength &&
          std::equal(&row.head[0], &row.head[row.headLength], &input_[0])) {
        decompressor_ = row.make();
      }
    }
  }

  // What was read to recognise it, then straight from the source.
  Reading ReadPlain(std::uint8_t* to, std::size_t room) {
    if (begin_ == end_) return ended_ ? Reading{} : source_->Read(to, room);
    const std::size_t length = std::min(room, end_ - begin_);
    std::memcpy(to, &input_[begin_], length);
    begin_ += length;
    return {Reading::State::Bytes, length};
  }

  Reading ReadCompressed(std::uint8_t* to, std::size_t room) {
    for (;;) {
      if (!fault_.empty()) throw Faulty(fault_);
      if (begin_ == end_ && !ended_) {
        if (Fill().state == Reading::State::Quiet) return {Reading::State::Quiet, 0};
      }
      const Decompressor::Step step =
          decompressor_->Take({&input_[begin_], end_ - begin_}, {to, room});
      begin_ += step.taken;
      used_ += step.taken - step.behind;
      fault_ = step.fault;  // what it made before is good
      if (step.made != 0) return {Reading::State::Bytes, step.made};
      if (ended_ && begin_ == end_ && fault_.empty()) {
        if (!decompressor_->IsComplete()) throw Faulty("ends early");
        return {};
      }
    }
  }

  Fault Faulty(const std::string& why) const {
    return Fault("cannot read " + name_ + ": " + decompressor_->Name() + " data " + why +
                 ", at byte " + std::to_string(used_));
  }

  std::unique_ptr<Source> source_;
  std::string name_;
  std::unique_ptr<Decompressor> decompressor_;  // none: plain
  std::array<std::uint8_t, Room> input_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::uint64_t used_ = 0;
  std::string fault_;
  bool known_ = false;
  bool ended_ = false;
};

}  // namespace

std::unique_ptr<Source> Decompressed(std::unique_ptr<Source> source, const std::string& name) {
  return std::make_unique<DecompressedSource>(std::move(source), name);
}

}  // namespace navframe::tool
