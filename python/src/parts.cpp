#include "parts.h"

#include <string>

#include "records/item_text.h"
#include "stream_time.h"
#include "values.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

struct Part {
  NavframeItem item;
  std::string bytes;
  const char* name;
};

py::object TextOf(std::string_view text) {
  PyObject* const decoded = DecodedText(text);
  if (decoded == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(decoded);
}

py::object BadField(const Part& part) {
  return part.item.badField == 0 ? py::none() : py::object(py::int_(part.item.badField));
}

py::str Shown(const Part& part) {
  return py::str("<{} at byte {}, {} bytes: {}>")
      .format(tool::PartOf(part.item), part.item.offset, part.item.length,
              TextOf(tool::MessageOf(part.item)));
}

}  // namespace

py::object MakePart(const Waiting& waiting) {
  const auto data = waiting.Data();
  return py::cast(Part{waiting.item,
                       {reinterpret_cast<const char*>(data.data()), data.size()},
                       waiting.messageName});
}

void BindPart(py::module_& module) {
  py::class_<Part>(module, "Part", "A part of the input that gave no record.")
      .def_property_readonly(
          "part", [](const Part& part) { return tool::PartOf(part.item); },
          "\"undecoded\", \"malformed\", \"rejected\" or \"skipped\"")
      .def_property_readonly(
          "offset", [](const Part& part) { return part.item.offset; },
          "[B] from the first byte of the input")
      .def_property_readonly(
          "length", [](const Part& part) { return part.item.length; }, "[B] of the part")
      .def_property_readonly(
          "bytes", [](const Part& part) { return py::bytes(part.bytes); }, "the part itself")
      .def_property_readonly(
          "time", [](const Part& part) { return MakeTime(part.item.time); },
          "time of the stream behind it")
      .def_property_readonly(
          "message", [](const Part& part) { return TextOf(tool::MessageOf(part.item)); },
          "protocol and message: \"UBX 0A-09\"; \"\" of skipped bytes")
      .def_property_readonly(
          "name", [](const Part& part) { return TextOf(part.name); },
          "what the message is called; \"\" without a name")
      .def_property_readonly(
          "reason", [](const Part& part) { return navframe_reason_text(part.item.reason); },
          "why no record was made of it, a sentence")
      .def_property_readonly("bad_field", BadField,
                             "number of the field that could not be converted, 1 the first; None")
      .def("__repr__", Shown);
}

}  // namespace navframe::python
