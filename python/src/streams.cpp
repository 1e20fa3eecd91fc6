#include "streams.h"

#include <algorithm>
#include <new>
#include <span>
#include <stdexcept>
#include <utility>

#include "buffer.h"
#include "parts.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

constexpr const char* ClosedText = "the stream is closed";

PyObject* MakeItem(RecordTypes& types, const Waiting& waiting) {
  if (waiting.item.type != NavframeItemRecord) return MakePart(waiting).release().ptr();
  PyObject* const record = types.Make(waiting);
  if (record == nullptr) throw py::error_already_set();
  return record;
}

py::dict DictOf(const NavframeProtocolStatistics& counts) {
  using namespace py::literals;
  return py::dict("frames"_a = counts.frames, "frame_bytes"_a = counts.frameBytes,
                  "undecoded"_a = counts.undecoded, "rejected"_a = counts.rejected,
                  "records"_a = counts.records);
}

py::dict DictOf(const NavframeStatistics& statistics) {
  py::dict all;
  all["bytes"] = statistics.bytes;
  all["skipped_bytes"] = statistics.skippedBytes;
  all["waiting_bytes"] = statistics.waitingBytes;
  all["nmea"] = DictOf(statistics.nmea);
  all["tagblock"] = DictOf(statistics.tagBlock);
  all["rtcm"] = DictOf(statistics.rtcm3);
  all["ubx"] = DictOf(statistics.ubx);
  all["55aa"] = DictOf(statistics.binary55Aa);
  all["log"] = DictOf(statistics.asciiLog);
  return all;
}

// What Python calls for next().
template <class Items>
py::object NextOf(Items& items) {
  PyObject* const item = items.Next();
  if (item == nullptr) throw py::stop_iteration();
  return py::reinterpret_steal<py::object>(item);
}

// The same for loops, without the way through a method.
template <class Items>
PyObject* IterNext(PyObject* self) {
  try {
    return py::cast<Items&>(py::handle(self)).Next();
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const py::builtin_exception& error) {
    error.set_error();
  } catch (const std::bad_alloc&) {
    PyErr_NoMemory();
  } catch (const std::exception& error) {
    PyErr_SetString(PyExc_RuntimeError, error.what());
  }
  return nullptr;
}

template <class Items>
void MakeIterator(py::class_<Items>& type) {
  type.def("__iter__", [](py::object self) { return self; }).def("__next__", NextOf<Items>);
  type.def("__enter__", [](py::object self) { return self; });
  type.def("__exit__", [](Items& items, const py::args&) { items.Close(); });
  auto* const object = reinterpret_cast<PyTypeObject*>(type.ptr());
  object->tp_iter = PyObject_SelfIter;
  object->tp_iternext = IterNext<Items>;
}

}  // namespace

PyObject* Reader::Next() {
  const Turn turn(turns_);
  for (;;) {
    if (const Waiting* const waiting = decoder_.Next()) return MakeItem(types_, *waiting);
    if (failure_) RaiseFault(*std::exchange(failure_, std::nullopt), input_.name);
    if (input_.source == nullptr) return nullptr;
    Fill();
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
  }
}

void Reader::Fill() {
  try {
    if (ReadAndDecode() != tool::Reading::State::End) return;
  } catch (const tool::Fault& fault) {
    failure_ = fault;
    decoder_.Flush();
  } catch (...) {
    input_.source.reset();
    throw;
  }
  input_.source.reset();
}

tool::Reading::State Reader::ReadAndDecode() {
  const py::gil_scoped_release withoutPython;
  const tool::Reading reading = input_.source->Read(chunk_.data(), chunk_.size());
  if (reading.state == tool::Reading::State::Bytes) decoder_.Take({chunk_.data(), reading.length});
  if (reading.state == tool::Reading::State::Quiet) decoder_.Idle();
  if (reading.state == tool::Reading::State::End) decoder_.Flush();
  return reading.state;
}

void Reader::Close() {
  const Turn turn(turns_);
  input_.source.reset();
  failure_.reset();
  decoder_.Reset();
}

Decoder& LiveStream::Opened() {
  if (!decoder_) throw py::value_error(ClosedText);
  return *decoder_;
}

template <class Work>
auto LiveStream::InTurn(Work&& work) {
  const Turn turn(turns_);
  Decoder& decoder = Opened();
  const py::gil_scoped_release withoutPython;
  return work(decoder);
}

void LiveStream::Feed(const py::object& bytes) {
  if (IsClosed()) throw py::value_error(ClosedText);
  if (PyObject_CheckBuffer(bytes.ptr()) == 0) {
    throw py::type_error(std::string("expected bytes, not ") + Py_TYPE(bytes.ptr())->tp_name);
  }
  const Buffer buffer(bytes.ptr());
  const std::span<const std::uint8_t> all(buffer.Data(), buffer.Length());
  const Turn turn(turns_);
  for (std::size_t at = 0; at < all.size(); at += FeedLength) {
    Decoder& decoder = Opened();
    const auto piece = all.subspan(at, std::min(FeedLength, all.size() - at));
    {
      const py::gil_scoped_release withoutPython;
      decoder.Take(piece);
    }
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
  }
}
void LiveStream::Flush() {
  InTurn([](Decoder& decoder) { decoder.Flush(); });
}
void LiveStream::Idle() {
  InTurn([](Decoder& decoder) { decoder.Idle(); });
}
void LiveStream::Reset() {
  InTurn([](Decoder& decoder) { decoder.Reset(); });
}
NavframeStatistics LiveStream::Statistics() {
  return InTurn([](const Decoder& decoder) { return decoder.Statistics(); });
}

PyObject* LiveStream::Next() {
  const Turn turn(turns_);
  const Waiting* const waiting = Opened().Next();
  return waiting == nullptr ? nullptr : MakeItem(types_, *waiting);
}

void LiveStream::Close() {
  const Turn turn(turns_);
  decoder_.reset();
}

bool LiveStream::IsClosed() {
  const Turn turn(turns_);
  return !decoder_;
}

void BindStreams(py::module_& module, RecordTypes& types) {
  // Methods that return the stream, for `for record in stream.feed(...)`.
  const auto chained = [](void (LiveStream::*method)()) {
    return [method](py::object self) {
      (py::cast<LiveStream&>(self).*method)();
      return self;
    };
  };

  py::class_<Reader> reader(module, "Reader", "The items of a source, one after the other.");
  reader.def("close", &Reader::Close, "Closes the source; nothing comes out any more.");
  MakeIterator(reader);
  module.def(
      "read",
      [&types](const py::object& source, const Options& options) {
        return std::make_unique<Reader>(types, source, options);
      },
      py::arg("source"), py::arg("options"));

  py::class_<LiveStream> stream(module, "Stream",
                                "What one receiver sends, fed in pieces of any size. Iterating "
                                "gives the items that wait, and "
                                "ends when there are none: go on after more was fed.");
  stream.def(py::init(
      [&types](const Options& options) { return std::make_unique<LiveStream>(types, options); }));
  stream.def(
      "feed",
      [](py::object self, const py::object& bytes) {
        py::cast<LiveStream&>(self).Feed(bytes);
        return self;
      },
      py::arg("bytes"), "Decodes bytes, without the GIL, and returns the stream.");
  stream.def("flush", chained(&LiveStream::Flush),
             "The input ends here: what waits comes out. Returns the stream.");
  stream.def("idle", chained(&LiveStream::Idle),
             "The line is quiet: what waits comes out if it is whole. Returns the stream.");
  stream.def("reset", &LiveStream::Reset, "Forgets everything, as if opened anew.");
  stream.def("close", &LiveStream::Close,
             "Frees the stream; all but close() then raise ValueError.");
  stream.def_property_readonly("closed", &LiveStream::IsClosed);
  stream.def_property_readonly(
      "statistics", [](LiveStream& self) { return DictOf(self.Statistics()); },
      "What the stream did so far: bytes, and frames and records by protocol.");
  MakeIterator(stream);
}

}  // namespace navframe::python
