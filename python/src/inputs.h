// Where bytes come from in Python: paths, bytes, file objects and iterables.
#pragma once

#include <pybind11/pybind11.h>

#include <memory>
#include <string>

#include "fault.h"
#include "sources/source.h"

namespace navframe::python {

struct Input {
  std::unique_ptr<tool::Source> source;
  std::string name;  // of the file; "" for what has none
};

// The bytes of `source`, decompressed when they begin as gzip or zstd do. To be made and destroyed
// with the GIL; read with it or without: it takes it where it calls Python. Throws what Python
// raises (pybind11::error_already_set), and a TypeError for what has no bytes.
Input OpenInput(const pybind11::object& source);

// Raises the Fault in Python: as an OSError by its errno, or as navframe.DamagedFile. Needs the
// GIL.
[[noreturn]] void RaiseFault(const tool::Fault& fault, const std::string& name);

}  // namespace navframe::python
