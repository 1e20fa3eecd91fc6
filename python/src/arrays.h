// Tables as NumPy arrays.
#pragma once

#include <pybind11/pybind11.h>

namespace navframe::python {

void BindArrays(pybind11::module_& module);

}  // namespace navframe::python
