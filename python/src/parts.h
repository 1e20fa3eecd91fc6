// Parts of the input that gave no record, as Python objects.
#pragma once

#include <pybind11/pybind11.h>

#include "batch.h"

namespace navframe::python {

pybind11::object MakePart(const Waiting& waiting);
void BindPart(pybind11::module_& module);

}  // namespace navframe::python
