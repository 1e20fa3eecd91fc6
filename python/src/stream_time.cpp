#include "stream_time.h"

#include <string>

#include "values.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

struct Time {
  NavframeTime raw;
};

py::object Week(const Time& time) {
  return time.raw.week == UINT16_MAX ? py::none() : py::object(py::int_(time.raw.week));
}

py::object Tow(const Time& time) {
  return time.raw.tow == UINT32_MAX ? py::none() : py::object(py::float_(time.raw.tow / 1000.0));
}

py::object Utc(const Time& time) {
  PyObject* const utc = DatetimeOf(time.raw);
  if (utc == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(utc);
}

py::object Source(const Time& time) {
  constexpr const char* Names[] = {nullptr, "start", "nmea", "rtcm", "ubx", "log"};
  const char* const name = time.raw.source < std::size(Names) ? Names[time.raw.source] : nullptr;
  return name == nullptr ? py::none() : py::object(py::str(name));
}

}  // namespace

py::object MakeTime(const NavframeTime& time) { return py::cast(Time{time}); }

void BindTime(py::module_& module) {
  py::class_<Time>(module, "Time", "The time of a stream when an item came out of it.")
      .def_property_readonly("week", Week, "GPS week, never rolled over; None when not known")
      .def_property_readonly("tow", Tow, "[s] GPS time of week; None when not known")
      .def_property_readonly("utc", Utc,
                             "aware datetime in UTC; None while the date is not known. A leap "
                             "second is the first second behind it")
      .def_property_readonly(
          "leap_seconds", [](const Time& time) { return time.raw.leapSeconds; },
          "[s] GPS time less UTC, in use")
      .def_property_readonly("source", Source,
                             "what set it last: \"nmea\", \"rtcm\", \"ubx\", \"log\", \"start\"; "
                             "None when nothing did")
      .def("__repr__", [](const Time& time) {
        return py::str("<Time week {} tow {} utc {}>").format(Week(time), Tow(time), Utc(time));
      });
}

}  // namespace navframe::python
