// A source without what an Undoing takes out of it. Its progress is not told: it is read again.
#pragma once

#include <memory>
#include <vector>

#include "analysis/undoing.h"
#include "sources/source.h"

namespace navframe::tool {

class UndoneSource : public Source {
 public:
  UndoneSource(std::unique_ptr<Source> source, const analysis::Undo& undo)
      : source_(std::move(source)), undoing_(undo), chunk_(std::size_t{1} << 16) {}

  Reading Read(std::uint8_t* to, std::size_t room) override;
  bool IsLive() const override { return source_->IsLive(); }

  const analysis::Undoing& Done() const { return undoing_; }

 private:
  const std::unique_ptr<Source> source_;
  analysis::Undoing undoing_;
  std::vector<std::uint8_t> chunk_;
  std::vector<std::uint8_t> left_;
  std::size_t at_ = 0;       // in left_
  std::uint64_t given_ = 0;  // bytes so far
  bool isAtEnd_ = false;
};

}  // namespace navframe::tool
