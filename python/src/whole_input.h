// A source read to its end in one call, without the GIL but for now and then.
#pragma once

#include <pybind11/pybind11.h>

#include <chrono>
#include <cstdint>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "inputs.h"
#include "navframe/stream.hpp"

namespace navframe::python {

class WholeInput {
 public:
  // Needs the GIL, as Read does.
  WholeInput(const pybind11::object& source, Stream stream)
      : input_(OpenInput(source)), stream_(std::move(stream)) {}

  // Hands every item to `take`, which has no GIL. Throws what the source and signals raise.
  template <class Take>
  void Read(Take&& take) {
    try {
      while (WorkForAWhile(take)) {
        if (PyErr_CheckSignals() != 0) throw pybind11::error_already_set();
      }
    } catch (const tool::Fault& fault) {
      RaiseFault(fault, input_.name);
    }
  }

  const std::string& Name() const { return input_.name; }
  NavframeStatistics Statistics() const { return stream_.statistics(); }

 private:
  static constexpr std::size_t ChunkLength = std::size_t{1} << 15;
  static constexpr std::chrono::milliseconds While{50};

  // False behind the end.
  template <class Take>
  bool WorkForAWhile(Take& take) {
    const pybind11::gil_scoped_release withoutPython;
    const auto end = std::chrono::steady_clock::now() + While;
    do {
      const tool::Reading reading = input_.source->Read(chunk_.data(), chunk_.size());
      if (reading.state == tool::Reading::State::Bytes) {
        Put({chunk_.data(), reading.length}, take);
        continue;
      }
      const bool isEnd = reading.state == tool::Reading::State::End;
      if (isEnd) {
        stream_.flush();
      } else {
        stream_.idle();
      }
      Drain(take);
      return !isEnd;
    } while (std::chrono::steady_clock::now() < end);
    return true;
  }

  template <class Take>
  void Put(std::span<const std::uint8_t> bytes, Take& take) {
    while (!bytes.empty()) {
      bytes = bytes.subspan(stream_.put(bytes));
      Drain(take);
    }
  }

  template <class Take>
  void Drain(Take& take) {
    NavframeItem item{};
    item.size = sizeof item;
    NavframeStatus status = NavframeNeedsBytes;
    while ((status = navframe_next(stream_.handle(), &item)) == NavframeItemReady) take(item);
    if (status < 0) throw std::bad_alloc();
  }

  Input input_;
  Stream stream_;
  std::vector<std::uint8_t> chunk_ = std::vector<std::uint8_t>(ChunkLength);
};

}  // namespace navframe::python
