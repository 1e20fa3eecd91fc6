#include "inputs.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

#include "buffer.h"
#include "sources/compressed.h"
#include "sources/file.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

using tool::Reading;

class BytesSource : public tool::Source {
 public:
  explicit BytesSource(const py::object& bytes) : bytes_(bytes.ptr()) {}

  Reading Read(std::uint8_t* to, std::size_t room) override {
    const std::size_t length = std::min(room, bytes_.Length() - taken_);
    if (length == 0) return {};
    std::memcpy(to, bytes_.Data() + taken_, length);
    taken_ += length;
    return {Reading::State::Bytes, length};
  }
  bool IsLive() const override { return false; }

 private:
  Buffer bytes_;
  std::size_t taken_ = 0;
};

// What Python hands over piece by piece, each an object with bytes. The GIL is taken for each.
class PiecesSource : public tool::Source {
 public:
  Reading Read(std::uint8_t* to, std::size_t room) override {
    const Reading reading = ReadPiece(to, room);
    if (reading.state == Reading::State::Quiet) std::this_thread::sleep_for(UntilAskedAgain);
    return reading;
  }
  bool IsLive() const override { return true; }

 protected:
  // The next piece; no object behind the last one, None when there is none yet.
  virtual py::object Next(std::size_t room) = 0;
  // Whether a piece without bytes is the end.
  virtual bool IsEndedByNoBytes() const = 0;

 private:
  static constexpr std::chrono::milliseconds UntilAskedAgain{10};

  Reading ReadPiece(std::uint8_t* to, std::size_t room) {
    const py::gil_scoped_acquire withPython;
    while (buffer_ == nullptr || taken_ == buffer_->Length()) {
      buffer_.reset();
      taken_ = 0;
      py::object piece = Next(room);
      if (piece.ptr() == nullptr) return {};
      if (piece.is_none()) return {Reading::State::Quiet, 0};
      if (PyObject_CheckBuffer(piece.ptr()) == 0) {
        throw py::type_error(std::string("expected pieces of bytes, not ") +
                             Py_TYPE(piece.ptr())->tp_name);
      }
      buffer_ = std::make_unique<Buffer>(piece.ptr());
      if (buffer_->Length() == 0 && IsEndedByNoBytes()) return {};
    }
    const std::size_t length = std::min(room, buffer_->Length() - taken_);
    std::memcpy(to, buffer_->Data() + taken_, length);
    taken_ += length;
    return {Reading::State::Bytes, length};
  }

  std::unique_ptr<Buffer> buffer_;
  std::size_t taken_ = 0;
};

class FileObjectSource : public PiecesSource {
 public:
  explicit FileObjectSource(py::object read) : read_(std::move(read)) {}

 private:
  py::object Next(std::size_t room) override {
    py::object piece = read_(room);
    if (py::isinstance<py::str>(piece)) {
      throw py::type_error("read() returned str: the file must be opened in binary mode");
    }
    return piece;
  }
  bool IsEndedByNoBytes() const override { return true; }

  py::object read_;
};

class IterableSource : public PiecesSource {
 public:
  explicit IterableSource(py::object iterator) : iterator_(std::move(iterator)) {}

 private:
  py::object Next(std::size_t) override {
    PyObject* const piece = PyIter_Next(iterator_.ptr());
    if (piece == nullptr && PyErr_Occurred() != nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::object>(piece);
  }
  bool IsEndedByNoBytes() const override { return false; }

  py::object iterator_;
};

std::string PathOf(const py::object& source) {
  PyObject* encoded = nullptr;
  if (PyUnicode_FSConverter(source.ptr(), &encoded) == 0) throw py::error_already_set();
  const auto bytes = py::reinterpret_steal<py::bytes>(encoded);
  return std::string(bytes);
}

std::unique_ptr<tool::Source> OpenObject(const py::object& source) {
  if (PyObject_CheckBuffer(source.ptr()) != 0) return std::make_unique<BytesSource>(source);
  if (py::hasattr(source, "read")) {
    return std::make_unique<FileObjectSource>(source.attr("read"));
  }
  PyObject* const iterator = PyObject_GetIter(source.ptr());
  if (iterator == nullptr) {
    PyErr_Clear();
    throw py::type_error(std::string("expected a path, bytes, a binary file or an iterable of "
                                     "bytes, not ") +
                         Py_TYPE(source.ptr())->tp_name);
  }
  return std::make_unique<IterableSource>(py::reinterpret_steal<py::object>(iterator));
}

}  // namespace

Input OpenInput(const py::object& source) {
  if (!py::isinstance<py::str>(source) && !py::hasattr(source, "__fspath__")) {
    return {tool::Decompressed(OpenObject(source), "input"), ""};
  }
  const std::string name = PathOf(source);
  try {
    return {tool::OpenFile(name == "-" ? "./-" : name), name};
  } catch (const tool::Fault& fault) {
    RaiseFault(fault, name);
  }
}

void RaiseFault(const tool::Fault& fault, const std::string& name) {
  if (fault.Error() == 0) {
    const py::object damaged = py::module_::import("navframe._navframe").attr("DamagedFile");
    PyErr_SetString(damaged.ptr(), fault.what());
  } else if (name.empty()) {
    PyErr_SetString(PyExc_OSError, fault.what());
  } else {
    errno = fault.Error();
    const auto file = py::reinterpret_steal<py::object>(PyUnicode_DecodeFSDefault(name.c_str()));
    PyErr_SetFromErrnoWithFilenameObject(PyExc_OSError, file.ptr());
  }
  throw py::error_already_set();
}

}  // namespace navframe::python
