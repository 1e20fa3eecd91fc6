// info(): what recordings hold, as the tool's JSON has it.
#pragma once

#include <pybind11/pybind11.h>

namespace navframe::python {

void BindInfo(pybind11::module_& module);

}  // namespace navframe::python
