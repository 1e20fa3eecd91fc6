// read() and Stream: items handed out one by one, decoded ahead in pieces without the GIL.
#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "batch.h"
#include "inputs.h"
#include "records.h"
#include "turn.h"

namespace navframe::python {

// What read() returns: the items of a source.
class Reader {
 public:
  Reader(RecordTypes& types, const pybind11::object& source, const Options& options)
      : types_(types), decoder_(options), input_(OpenInput(source)) {}

  // The next item, a new reference; null at the end, and when it was closed. Throws what the source
  // does, behind the items of what it brought before.
  PyObject* Next();
  void Close();

 private:
  static constexpr std::size_t ChunkLength = std::size_t{1} << 16;

  void Fill();
  tool::Reading::State ReadAndDecode();

  RecordTypes& types_;
  TurnKeeper turns_;
  Decoder decoder_;
  Input input_;  // without a source once it ended
  std::optional<tool::Fault> failure_;
  std::vector<std::uint8_t> chunk_ = std::vector<std::uint8_t>(ChunkLength);
};

// A stream that Python feeds.
class LiveStream {
 public:
  LiveStream(RecordTypes& types, const Options& options) : types_(types), decoder_(options) {}

  // What comes out waits for Next. All but Close throw a ValueError once it is closed. A signal may
  // end Feed between pieces of its bytes.
  void Feed(const pybind11::object& bytes);
  void Flush();
  void Idle();
  void Reset();
  NavframeStatistics Statistics();
  // The next item, a new reference; null when none waits.
  PyObject* Next();
  void Close();
  bool IsClosed();

 private:
  static constexpr std::size_t FeedLength = std::size_t{1} << 22;

  // Works on the decoder in turn, without the GIL.
  template <class Work>
  auto InTurn(Work&& work);
  Decoder& Opened();

  RecordTypes& types_;
  TurnKeeper turns_;
  std::optional<Decoder> decoder_;
};

void BindStreams(pybind11::module_& module, RecordTypes& types);

}  // namespace navframe::python
