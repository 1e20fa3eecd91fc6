// The time of a stream, as record.time.
#pragma once

#include <pybind11/pybind11.h>

#include "navframe/stream.h"

namespace navframe::python {

pybind11::object MakeTime(const NavframeTime& time);
void BindTime(pybind11::module_& module);

}  // namespace navframe::python
