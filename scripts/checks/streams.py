"""Streams of the release build, for scripts: items as tuples, records as dictionaries.

Records are read through the catalogue of the library, so that this knows no layout of any.
"""

import ctypes as c
import json
from collections import namedtuple
from pathlib import Path

LIBRARY = Path(__file__).resolve().parents[2] / "build/release/libnavframe.so"

RECORD, FRAME, REJECTED, SKIPPED, UNDECODED, ALL = 0x01, 0x02, 0x04, 0x08, 0x10, 0x0F
NMEA, TAG_BLOCK, RTCM3, UBX, B55AA, LOG = 0x01, 0x02, 0x04, 0x08, 0x20, 0x40
NO_REASON, NO_KIND, BAD_CONTENT, BAD_FIELD = 0, 6, 7, 8

# `kind` is the name of the record's kind and `record` its members by name, None where unknown; both
# None of spans. `name` is what the message is called. `tow` [ms] and `week` are the stream's.
Item = namedtuple("Item", "type protocol offset length bytes reason message sub_type address kind "
                          "record name tow week")


class _Kind(c.Structure):
    _fields_ = [("id", c.c_uint32), ("source", c.c_uint32), ("name", c.c_char_p),
                ("protocol", c.c_char_p), ("message", c.c_char_p), ("description", c.c_char_p),
                ("size", c.c_uint32), ("record", c.c_void_p)]


class _Time(c.Structure):
    _fields_ = [("tow", c.c_uint32), ("week", c.c_uint16), ("source", c.c_uint16),
                ("utc", c.c_uint16 * 6), ("leap_seconds", c.c_int32)]


class _Item(c.Structure):
    _fields_ = [("size", c.c_size_t), ("type", c.c_uint32), ("protocol", c.c_uint32),
                ("offset", c.c_uint64), ("length", c.c_uint32), ("claimed", c.c_uint32),
                ("bytes", c.POINTER(c.c_uint8)), ("reason", c.c_uint32), ("message", c.c_uint32),
                ("sub_type", c.c_uint32), ("address", c.c_char * 16), ("bad_field", c.c_uint32),
                ("record_count", c.c_uint32), ("time", _Time), ("kind", c.POINTER(_Kind)),
                ("record", c.c_void_p), ("tag_block", c.c_char_p)]


class _Options(c.Structure):
    _fields_ = [("size", c.c_size_t), ("dialect", c.c_uint32), ("protocols", c.c_uint32),
                ("items", c.c_uint32), ("buffer_size", c.c_uint32), ("start_week", c.c_uint32),
                ("kind_count", c.c_uint32), ("kinds", c.c_void_p), ("user", c.c_void_p)]


def _load():
    library = c.CDLL(str(LIBRARY))
    for name, answer, arguments in (
            ("navframe_open", c.c_int, [c.POINTER(_Options), c.POINTER(c.c_void_p)]),
            ("navframe_close", None, [c.c_void_p]),
            ("navframe_put", c.c_size_t, [c.c_void_p, c.c_char_p, c.c_size_t]),
            ("navframe_next", c.c_int, [c.c_void_p, c.POINTER(_Item)]),
            ("navframe_flush", c.c_int, [c.c_void_p]),
            ("navframe_json", c.c_size_t,
             [c.POINTER(_Kind), c.c_void_p, c.c_char_p, c.c_size_t]),
            ("navframe_message_name", c.c_char_p, [c.POINTER(_Item)]),
            ("navframe_kind_count", c.c_uint32, []),
            ("navframe_kind_at", c.POINTER(_Kind), [c.c_uint32])):
        function = getattr(library, name)
        function.restype, function.argtypes = answer, arguments
    return library


def _record(library, item, room):
    needed = library.navframe_json(item.kind, item.record, room, len(room))
    if needed >= len(room):
        room = c.create_string_buffer(needed + 1)
        library.navframe_json(item.kind, item.record, room, len(room))
    return json.loads(room.value)


def _taken(library, stream, item, room):
    while (status := library.navframe_next(stream, c.byref(item))) == 1:
        has_record = item.type == RECORD
        yield Item(item.type, item.protocol, item.offset, item.length,
                   c.string_at(item.bytes, item.length) if item.length else b"", item.reason,
                   item.message, item.sub_type, item.address.decode("latin-1"),
                   item.kind.contents.name.decode() if has_record else None,
                   _record(library, item, room) if has_record else None,
                   library.navframe_message_name(c.byref(item)).decode(),
                   item.time.tow, item.time.week)
    if status != 0:
        raise RuntimeError(f"navframe_next answers {status}")


def items(data, wanted=RECORD | UNDECODED, start_week=0, protocols=0):
    """All items of `data`, which ends there."""
    library = _load()
    stream, item, room = c.c_void_p(), _Item(c.sizeof(_Item)), c.create_string_buffer(1 << 20)
    options = _Options(size=c.sizeof(_Options), items=wanted, start_week=start_week,
                       protocols=protocols)
    if library.navframe_open(c.byref(options), c.byref(stream)) != 0:
        raise RuntimeError("navframe_open fails")
    try:
        at = 0
        while at < len(data):
            at += library.navframe_put(stream, data[at:at + 65536], min(65536, len(data) - at))
            yield from _taken(library, stream, item, room)
        library.navframe_flush(stream)
        yield from _taken(library, stream, item, room)
    finally:
        library.navframe_close(stream)


def kinds():
    """The names of all kinds that some message gives."""
    library = _load()
    every = (library.navframe_kind_at(i).contents for i in range(library.navframe_kind_count()))
    return [kind.name.decode() for kind in every if kind.message]
