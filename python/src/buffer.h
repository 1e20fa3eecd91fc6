// Bytes of a Python object.
#pragma once

#include <pybind11/pybind11.h>

#include <cstddef>
#include <cstdint>

namespace navframe::python {

// An object with the buffer protocol, held while it is read: it cannot be resized meanwhile. To be
// made and destroyed with the GIL.
class Buffer {
 public:
  explicit Buffer(PyObject* object) {
    if (PyObject_GetBuffer(object, &view_, PyBUF_SIMPLE) != 0) throw pybind11::error_already_set();
  }
  ~Buffer() { PyBuffer_Release(&view_); }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;

  const std::uint8_t* Data() const { return static_cast<const std::uint8_t*>(view_.buf); }
  std::size_t Length() const { return static_cast<std::size_t>(view_.len); }

 private:
  Py_buffer view_{};
};

}  // namespace navframe::python
