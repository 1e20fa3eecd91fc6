#include "outputs/spool.h"

namespace navframe::tool {
namespace {

constexpr std::size_t MostInMemory = 1 << 20;

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
  file_.Append(memory_.data(), memory_.size());
  memory_.clear();
}

void Spool::HandOn(Outputs& to) {
  std::uint64_t at = 0;
  for (const Piece& piece : pieces_) {
    Output& next = piece.output->In(to);
    std::string& text = next.Buffer();
    if (at >= file_.Size()) {
      text.append(memory_, static_cast<std::size_t>(at - file_.Size()), piece.length);
    } else {
      const std::size_t before = text.size();
      text.resize(before + piece.length);
      file_.Read(at, &text[before], piece.length);
    }
    at += piece.length;
    next.WriteWhenLarge();
  }
  pieces_.clear();
  memory_ = {};
  file_ = {};
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
