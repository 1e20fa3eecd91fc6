import datetime
from typing import Any, TypeVar

import numpy

version: str
_T = TypeVar("_T")

class DamagedFile(OSError):
    """What is compressed cannot be decompressed; the message has the name and the place."""

class Time:
    """The time of a stream when an item came out of it."""

    @property
    def week(self) -> int | None: "GPS week, never rolled over"
    @property
    def tow(self) -> float | None: "[s] GPS time of week"
    @property
    def utc(self) -> datetime.datetime | None: "aware, in UTC"
    @property
    def leap_seconds(self) -> int: "[s] GPS time less UTC, in use"
    @property
    def source(self) -> str | None: "what set it last: nmea, rtcm, ubx, log, start"

class _View:
    def asdict(self) -> dict[str, Any]: "every member by its name in the catalogue"
    def value_name(self, member: str, /) -> str | None: "what the value of a member stands for"
    def __copy__(self: _T) -> _T: ...
    def __deepcopy__(self: _T, memo: Any, /) -> _T: ...

class Entry(_View):
    """A record inside another one."""

class Record(_View):
    """A decoded record, with a copy of its own of all that it holds."""

    @property
    def kind(self) -> str: "name of the kind of record"
    @property
    def time(self) -> Time: "time of the stream once this record was decoded"
    @property
    def offset(self) -> int: "[B] of its frame, from the first byte of the input"
    @property
    def frame_length(self) -> int: "[B] of its frame; 0 of what the end of the input brought out"
    @property
    def bad_field(self) -> int | None: "number of the field that could not be converted"
    @property
    def tag_block(self) -> str | None: "text of the tag block in front of the sentence"

class Part:
    """A part of the input that gave no record."""

    @property
    def part(self) -> str: "undecoded, malformed, rejected or skipped"
    @property
    def offset(self) -> int: "[B] from the first byte of the input"
    @property
    def length(self) -> int: "[B]"
    @property
    def bytes(self) -> bytes: ...
    @property
    def time(self) -> Time: "time of the stream behind it"
    @property
    def message(self) -> str: "protocol and message"
    @property
    def name(self) -> str: "what the message is called"
    @property
    def reason(self) -> str: "why no record was made of it"
    @property
    def bad_field(self) -> int | None: "number of the field that could not be converted"

class Options:
    def __init__(self, kinds: list[str], protocols: int, start_week: int, legacy: bool,
                 with_parts: bool, /) -> None: ...

class Reader:
    """The items of a source, one after the other."""

    def __iter__(self) -> Reader: ...
    def __next__(self) -> Any: ...
    def __enter__(self) -> Reader: ...
    def __exit__(self, *args: object) -> None: ...
    def close(self) -> None: "closes the source; nothing comes out any more"

class Stream:
    def __init__(self, options: Options) -> None: ...
    def __iter__(self) -> Stream: ...
    def __next__(self) -> Any: ...
    def __enter__(self) -> Stream: ...
    def __exit__(self, *args: object) -> None: ...
    def feed(self, bytes: Any) -> Stream: "decodes bytes, without the GIL"
    def flush(self) -> Stream: "the input ends here"
    def idle(self) -> Stream: "the line is quiet"
    def reset(self) -> None: "forgets everything"
    def close(self) -> None: "frees the stream"
    @property
    def closed(self) -> bool: ...
    @property
    def statistics(self) -> dict[str, Any]: "what the stream did so far"

def read(source: Any, options: Options) -> Reader: ...
def arrays(source: Any, options: Options) -> dict[str, numpy.ndarray[Any, Any]]: ...
def info(sources: list[Any]) -> dict[str, Any]: ...
def kinds() -> list[dict[str, Any]]: ...
def groups() -> dict[str, list[str]]: ...
def kinds_named(name: str) -> list[str]: ...
def record_names() -> list[str]: ...
def record_type(name: str) -> type | None: ...
def table_names() -> list[str]: ...
def unknown_values(table: str) -> dict[str, int] | None: ...
