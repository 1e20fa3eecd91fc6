#include "records.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <vector>

#include "stream_time.h"
#include "values.h"

namespace py = pybind11;

namespace navframe::python {
namespace {

// What records and the records inside them begin with.
struct View {
  PyVarObject head;
  const std::uint8_t* data;
  const Layout* layout;
  PyObject* owner;  // of an entry: the record that has the bytes; else null
};

struct Record {
  View view;
  const NavframeKind* kind;
  NavframeTime time;
  std::uint64_t offset;
  std::uint32_t length;
  std::uint32_t badField;
  std::uint32_t dataLength;
  std::uint32_t tagLength;
  bool hasTag;
  // The payload follows, and the tag block.
  alignas(8) std::uint8_t bytes[1];
};

View* ViewOf(PyObject* self) { return reinterpret_cast<View*>(self); }
Record* RecordOf(PyObject* self) { return reinterpret_cast<Record*>(self); }

}  // namespace

// A member that Python sees; getters get it as their closure.
struct Attribute {
  const NavframeMember* member;
  const Layout* inside;  // of records inside; else null
  py::str key;           // the catalogue's name
  std::string name;      // Python's
  std::string documentation;
};

// A layout with what Python knows of it.
struct Layout {
  const NavframeRecord* record;
  PyTypeObject* type = nullptr;
  std::vector<Attribute> attributes;
  std::vector<PyGetSetDef> getters;

  const Attribute* Named(std::string_view name) const {
    const auto found = std::ranges::find_if(attributes, [name](const Attribute& attribute) {
      return attribute.name == name || attribute.member->name == name;
    });
    return found == attributes.end() ? nullptr : &*found;
  }
};

namespace {

PyObject* DictOf(const Layout& layout, const std::uint8_t* data);

PyObject* MakeEntry(const Layout& layout, PyObject* holder, const std::uint8_t* data) {
  PyObject* const self = layout.type->tp_alloc(layout.type, 0);
  if (self == nullptr) return nullptr;
  View& view = *ViewOf(self);
  view.data = data;
  view.layout = &layout;
  PyObject* const outer = ViewOf(holder)->owner;
  view.owner = Py_NewRef(outer != nullptr ? outer : holder);
  return self;
}

// Calls `make` with the place of each element in use, and puts what it returns into a list.
template <class Make>
PyObject* ListOf(const Layout& layout, const NavframeMember& member, const std::uint8_t* data,
                 Make&& make) {
  const std::uint32_t count = navframe_length(layout.record, &member, data);
  PyObject* const list = PyList_New(static_cast<Py_ssize_t>(count));
  if (list == nullptr) return nullptr;
  const std::uint8_t* at = data + member.offset;
  for (std::uint32_t i = 0; i < count; ++i, at += member.size) {
    PyObject* const element = make(at);
    if (element == nullptr) {
      Py_DECREF(list);
      return nullptr;
    }
    PyList_SET_ITEM(list, static_cast<Py_ssize_t>(i), element);
  }
  return list;
}

// A member's value, its elements by `make`.
template <class Make>
PyObject* MemberOf(const Layout& layout, const NavframeMember& member, const std::uint8_t* data,
                   Make&& make) {
  if (member.length != 0) return ListOf(layout, member, data, make);
  return make(data + member.offset);
}

PyObject* GetMember(PyObject* self, void* closure) {
  const auto& attribute = *static_cast<const Attribute*>(closure);
  const NavframeMember& member = *attribute.member;
  const View& view = *ViewOf(self);
  return MemberOf(*view.layout, member, view.data, [&](const std::uint8_t* at) {
    return attribute.inside == nullptr ? ValueAt(member, at)
                                       : MakeEntry(*attribute.inside, self, at);
  });
}

PyObject* DictOf(const Layout& layout, const std::uint8_t* data) {
  PyObject* const dict = PyDict_New();
  if (dict == nullptr) return nullptr;
  for (const Attribute& attribute : layout.attributes) {
    const NavframeMember& member = *attribute.member;
    PyObject* const value = MemberOf(layout, member, data, [&](const std::uint8_t* at) {
      return attribute.inside == nullptr ? ValueAt(member, at) : DictOf(*attribute.inside, at);
    });
    const bool isSet = value != nullptr && PyDict_SetItem(dict, attribute.key.ptr(), value) == 0;
    Py_XDECREF(value);
    if (!isSet) {
      Py_DECREF(dict);
      return nullptr;
    }
  }
  return dict;
}

PyObject* AsDict(PyObject* self, PyObject*) {
  return DictOf(*ViewOf(self)->layout, ViewOf(self)->data);
}

// What the value of an enumerated member stands for.
PyObject* ValueName(PyObject* self, PyObject* name) {
  const View& view = *ViewOf(self);
  Py_ssize_t length = 0;
  const char* const characters = PyUnicode_AsUTF8AndSize(name, &length);
  if (characters == nullptr) return nullptr;
  const Attribute* const attribute =
      view.layout->Named({characters, static_cast<std::size_t>(length)});
  if (attribute == nullptr) {
    return PyErr_Format(PyExc_AttributeError, "%s has no member %R", view.layout->record->name,
                        name);
  }
  std::int64_t value = 0;
  const char* text = nullptr;
  if (navframe_integer(attribute->member, view.data, 0, &value) == NavframeKnown) {
    text = navframe_value_name(attribute->member, value);
  }
  return text == nullptr ? Py_NewRef(Py_None) : PyUnicode_FromString(text);
}

void FreeView(PyObject* self) {
  PyTypeObject* const type = Py_TYPE(self);
  Py_XDECREF(ViewOf(self)->owner);
  type->tp_free(self);
  Py_DECREF(type);
}

PyObject* KindOf(PyObject* self, void*) { return PyUnicode_FromString(RecordOf(self)->kind->name); }
PyObject* TimeOf(PyObject* self, void*) {
  try {
    return MakeTime(RecordOf(self)->time).release().ptr();
  } catch (py::error_already_set& error) {
    error.restore();
    return nullptr;
  }
}
PyObject* OffsetOf(PyObject* self, void*) {
  return PyLong_FromUnsignedLongLong(RecordOf(self)->offset);
}
PyObject* FrameLengthOf(PyObject* self, void*) {
  return PyLong_FromUnsignedLong(RecordOf(self)->length);
}
PyObject* BadFieldOf(PyObject* self, void*) {
  const std::uint32_t field = RecordOf(self)->badField;
  return field == 0 ? Py_NewRef(Py_None) : PyLong_FromUnsignedLong(field);
}
PyObject* TagBlockOf(PyObject* self, void*) {
  const Record& record = *RecordOf(self);
  if (!record.hasTag) return Py_NewRef(Py_None);
  return DecodedText(
      {reinterpret_cast<const char*>(record.bytes) + record.dataLength, record.tagLength});
}

PyObject* RecordRepr(PyObject* self) {
  const Record& record = *RecordOf(self);
  PyObject* const when = DatetimeOf(record.time);
  if (when == nullptr) return nullptr;
  PyObject* const text = PyUnicode_FromFormat("<%s at byte %llu, %S>", record.kind->name,
                                              static_cast<unsigned long long>(record.offset), when);
  Py_DECREF(when);
  return text;
}

PyObject* EntryRepr(PyObject* self) {
  PyObject* const dict = AsDict(self, nullptr);
  if (dict == nullptr) return nullptr;
  PyObject* const text = PyUnicode_FromFormat("<%s %R>", ViewOf(self)->layout->record->name, dict);
  Py_DECREF(dict);
  return text;
}

// Nothing about a record changes: it is its own copy.
PyObject* Itself(PyObject* self, PyObject*) { return Py_NewRef(self); }

PyMethodDef Methods[] = {
    {"__copy__", Itself, METH_NOARGS, nullptr},
    {"__deepcopy__", Itself, METH_O, nullptr},
    {"asdict", AsDict, METH_NOARGS,
     "asdict($self, /)\n--\n\nEvery member by its name in the catalogue, records inside and lists "
     "as dicts and lists."},
    {"value_name", ValueName, METH_O,
     "value_name($self, member, /)\n--\n\nWhat the value of a member with named values stands for; "
     "None when it has no name."},
    {nullptr, nullptr, 0, nullptr},
};

PyGetSetDef RecordGetters[] = {
    {"kind", KindOf, nullptr, "name of the kind of record: \"GGA\", \"NAV-PVT\"", nullptr},
    {"time", TimeOf, nullptr, "time of the stream once this record was decoded", nullptr},
    {"offset", OffsetOf, nullptr,
     "[B] of the frame that the record was decoded from, from the first byte of the input",
     nullptr},
    {"frame_length", FrameLengthOf, nullptr,
     "[B] of that frame; 0 of a record that the end of the input brought out", nullptr},
    {"bad_field", BadFieldOf, nullptr,
     "number of the field that could not be converted, 1 the first; None", nullptr},
    {"tag_block", TagBlockOf, nullptr, "text of the tag block in front of the sentence, or None",
     nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr},
};

PyTypeObject* NewType(const char* name, std::size_t size, int itemSize, unsigned long flags,
                      std::initializer_list<PyType_Slot> slots, PyTypeObject* base) {
  std::vector<PyType_Slot> all(slots);
  all.push_back({0, nullptr});
  PyType_Spec spec = {
      name, static_cast<int>(size), itemSize,
      static_cast<unsigned>(Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION | flags),
      all.data()};
  PyObject* const bases =
      base == nullptr ? nullptr : PyTuple_Pack(1, reinterpret_cast<PyObject*>(base));
  PyObject* const type = PyType_FromSpecWithBases(&spec, bases);
  Py_XDECREF(bases);
  if (type == nullptr) throw py::error_already_set();
  return reinterpret_cast<PyTypeObject*>(type);
}

template <class T>
void* Slot(T* function) {
  return reinterpret_cast<void*>(function);
}

std::string Documentation(const NavframeMember& member) {
  std::string text;
  if (*member.unit != '\0') text.append("[").append(member.unit).append("] ");
  text += member.description;
  if ((member.flags & NavframeYesNo) != 0) text += "; 0 no, 1 yes";
  if ((member.flags & NavframeAsSent) != 0) text += "; as sent";
  for (std::uint32_t i = 0; i < member.valueCount; ++i) {
    text += i == 0 ? "; values " : ", ";
    text.append(std::to_string(member.values[i].value)).append(" ").append(member.values[i].name);
  }
  if (member.unknownRule != NavframeUnknownNever) text += "; None when not known";
  return text;
}

std::string Documentation(const NavframeRecord& record) {
  std::string text;
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    const NavframeKind& kind = *navframe_kind_at(i);
    if (kind.record != &record) continue;
    text.append(text.empty() ? "" : "\n").append(kind.name).append(": ").append(kind.description);
  }
  return text.empty() ? "A record inside others." : text;
}

bool IsPayload(const NavframeRecord& record) {
  for (std::uint32_t i = 0; i < navframe_kind_count(); ++i) {
    if (navframe_kind_at(i)->record == &record) return true;
  }
  return false;
}

}  // namespace

std::string AttributeName(const NavframeMember& member) {
  constexpr std::string_view Taken[] = {"kind", "time", "offset"};
  const bool isTaken = std::ranges::find(Taken, member.name) != std::end(Taken);
  return std::string(member.name) + (isTaken ? "_" : "");
}

RecordTypes::RecordTypes() {
  recordBase_ = NewType("navframe.Record", offsetof(Record, bytes), 1, Py_TPFLAGS_BASETYPE,
                        {{Py_tp_doc, const_cast<char*>("A decoded record, with a copy of its own "
                                                       "of all that it holds.")},
                         {Py_tp_methods, Methods},
                         {Py_tp_getset, RecordGetters},
                         {Py_tp_repr, Slot(RecordRepr)},
                         {Py_tp_dealloc, Slot(FreeView)}},
                        nullptr);
  entryBase_ = NewType("navframe.Entry", sizeof(View), 0, Py_TPFLAGS_BASETYPE,
                       {{Py_tp_doc, const_cast<char*>("A record inside another one.")},
                        {Py_tp_methods, Methods},
                        {Py_tp_repr, Slot(EntryRepr)},
                        {Py_tp_dealloc, Slot(FreeView)}},
                       nullptr);
}

RecordTypes::~RecordTypes() = default;

py::object RecordTypes::RecordBase() const {
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(recordBase_));
}
py::object RecordTypes::EntryBase() const {
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(entryBase_));
}
py::object RecordTypes::TypeOf(const NavframeRecord& record) {
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(LayoutOf(record).type));
}

const Layout& RecordTypes::LayoutOf(const NavframeRecord& record) {
  std::unique_ptr<Layout>& place = layouts_[&record];
  if (place != nullptr) return *place;
  auto layout = std::make_unique<Layout>();
  layout->record = &record;
  for (std::uint32_t m = 0; m < record.memberCount; ++m) {
    const NavframeMember& member = *record.members[m];
    if (!IsShown(member)) continue;
    const Layout* const inside = member.record == nullptr ? nullptr : &LayoutOf(*member.record);
    layout->attributes.push_back(
        {&member, inside, py::str(member.name), AttributeName(member), Documentation(member)});
  }
  for (Attribute& attribute : layout->attributes) {
    layout->getters.push_back(
        {attribute.name.c_str(), GetMember, nullptr, attribute.documentation.c_str(), &attribute});
  }
  layout->getters.push_back({nullptr, nullptr, nullptr, nullptr, nullptr});
  const std::string name = std::string("navframe.records.") + record.name;
  std::string documentation = Documentation(record);
  layout->type = NewType(name.c_str(), 0, 0, 0,
                         {{Py_tp_doc, documentation.data()},
                          {Py_tp_getset, layout->getters.data()},
                          {Py_tp_dealloc, Slot(FreeView)}},
                         IsPayload(record) ? recordBase_ : entryBase_);
  place = std::move(layout);
  return *place;
}

PyObject* RecordTypes::Make(const Waiting& waiting) {
  const NavframeItem& item = waiting.item;
  if (item.kind != last_.kind) last_ = {item.kind, &LayoutOf(*item.kind->record)};
  PyTypeObject* const type = last_.layout->type;
  const auto room = Py_ssize_t{waiting.dataLength} + Py_ssize_t{waiting.tagLength};
  PyObject* const self = PyObject_NewVar(PyObject, type, room);
  if (self == nullptr) return nullptr;
  Record& record = *RecordOf(self);
  record.view.data = record.bytes;
  record.view.layout = last_.layout;
  record.view.owner = nullptr;
  record.kind = item.kind;
  record.time = item.time;
  record.offset = item.offset;
  record.length = item.length;
  record.badField = item.badField;
  record.dataLength = waiting.dataLength;
  record.tagLength = waiting.tagLength;
  record.hasTag = waiting.hasTag;
  std::memcpy(record.bytes, waiting.Data().data(), static_cast<std::size_t>(room));
  return self;
}

}  // namespace navframe::python
