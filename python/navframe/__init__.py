"""Decodes what GNSS receivers send: NMEA 0183, RTCM 3, UBX, 0x55 0xAA and ASCII logs.

    import navframe

    for record in navframe.read("drive.ubx", kinds="GGA"):
        print(record.time.utc, record.latitude, record.longitude)

    tables = navframe.arrays("drive.ubx.gz")
    tables["OBSERVATIONS.observations"]["pseudorange"]

What is in records, by kind and member, in which unit, stands in the types of navframe.records:
help(navframe.records.Observation). Values that are not known are None; in arrays NaN of numbers
with a point, and of integers the value that unknown_values tells.
"""

from __future__ import annotations

import datetime
import typing

from . import _navframe
from ._navframe import DamagedFile, Entry, Part, Reader, Record, Time

if typing.TYPE_CHECKING:
    import numpy
    import pandas

__version__ = _navframe.version
__all__ = ["DamagedFile", "Entry", "Kind", "Part", "Reader", "Record", "Stream", "Time", "arrays",
           "frame", "groups", "info", "kinds", "read", "records", "unknown_values"]

_PROTOCOLS = {"nmea": 0x01, "tagblock": 0x02, "rtcm": 0x04, "ubx": 0x08, "55aa": 0x20, "log": 0x40}
_GPS_START = datetime.date(1980, 1, 6)

Names = typing.Union[str, typing.Iterable[str], None]
Start = typing.Union[int, datetime.date, None]


class Kind(typing.NamedTuple):
    """A kind of record, as the catalogue has it."""

    name: str  #: "GGA", "NAV-PVT"
    id: int
    protocol: str
    message: str  #: what it comes from, as the protocol writes it: "1074-1077"
    description: str
    record: str  #: name of the type in navframe.records


def kinds() -> list[Kind]:
    """All kinds of records."""
    return [Kind(**kind) for kind in _navframe.kinds()]


def groups() -> dict[str, list[str]]:
    """Names that stand for several kinds, such as "fix", and these kinds."""
    return _navframe.groups()


def _names(value: Names, what: str) -> list[str]:
    if isinstance(value, str):
        return [name.strip() for name in value.split(",")]
    if value is None or isinstance(value, (bytes, bytearray)):
        raise TypeError(f"{what} must be names, not {type(value).__name__}")
    names = list(value)
    for name in names:
        if not isinstance(name, str):
            raise TypeError(f"{what} must be names, not {type(name).__name__}")
    return names


def _unknown(what: str, name: str, known: typing.Iterable[str]) -> ValueError:
    import difflib

    near = {entry.lower(): entry for entry in known}
    matches = [near[match] for match in difflib.get_close_matches(name.lower(), near, 3, 0.5)]
    hint = f"; near it: {', '.join(matches)}" if matches else ""
    return ValueError(f"no {what} is called {name!r}{hint}")


def _options(wanted: Names, protocols: Names, start: Start, legacy: bool,
             items: bool) -> _navframe.Options:
    chosen: list[str] = []
    for name in _names(wanted, "kinds") if wanted is not None else []:
        found = _navframe.kinds_named(name)
        if not found:
            raise _unknown("kind of record", name,
                           [kind.name for kind in kinds()] + list(_navframe.groups()))
        chosen += [kind for kind in found if kind not in chosen]
    if wanted is not None and not chosen:
        raise ValueError("kinds names none: leave it out for all")
    bits = 0
    for name in _names(protocols, "protocols") if protocols is not None else []:
        if name.lower() not in _PROTOCOLS:
            raise _unknown("protocol", name, _PROTOCOLS)
        bits |= _PROTOCOLS[name.lower()]
    return _navframe.Options(chosen, bits, _week(start), legacy, items)


def _week(start: Start) -> int:
    if start is None:
        return 0
    if isinstance(start, datetime.datetime):
        start = start.astimezone(datetime.timezone.utc).date() if start.tzinfo else start.date()
    if isinstance(start, datetime.date):
        start = (start - _GPS_START).days // 7
    if not isinstance(start, int) or isinstance(start, bool):
        raise TypeError(f"start must be a date or a GPS week, not {type(start).__name__}")
    if not 0 < start < 65535:
        raise ValueError("start must lie between the GPS weeks 1 and 65534")
    return start


def read(source: typing.Any, kinds: Names = None, *, protocols: Names = None, items: bool = False,
         start: Start = None, legacy: bool = False) -> Reader:
    """Goes through the records of a source, one by one, as they are decoded.

    source     a path; bytes or what has a buffer of bytes; a binary file object; an iterable of
               pieces of bytes. What begins as gzip or zstd do is decompressed.
    kinds      names of kinds ("GGA", "NAV-PVT"), messages ("1077") or groups ("fix"), one with
               commas or several; all kinds without
    protocols  those to look for: nmea, tagblock, rtcm, ubx, 55aa, log; all without
    items      also give what is no record: Part, for undecoded frames, rejected and skipped bytes
    start      date or GPS week of the first byte, to a half of 1024 weeks, for receivers that do
               not tell it
    legacy     records as the exports of the C interface make them
    """
    return _navframe.read(source, _options(kinds, protocols, start, legacy, items))


class Stream(_navframe.Stream):
    """What one receiver sends, fed in pieces of any size as they come.

        with navframe.Stream(kinds="GGA") as stream:
            for piece in pieces:
                for record in stream.feed(piece):
                    ...

    Options are those of read. Iterating gives the items that wait and then ends; it goes on once
    more was fed. Any thread may use it, in turn; once it is closed, all but close raises ValueError.
    """

    def __init__(self, kinds: Names = None, *, protocols: Names = None, items: bool = False,
                 start: Start = None, legacy: bool = False) -> None:
        super().__init__(_options(kinds, protocols, start, legacy, items))


def arrays(source: typing.Any, kinds: Names = None, *, protocols: Names = None,
           start: Start = None, legacy: bool = False,
           masked: bool = False) -> dict[str, numpy.ndarray[typing.Any, typing.Any]]:
    """Decodes a source into one NumPy structured array for each kind of record and each list.

    The array of a kind ("OBSERVATIONS") has a row for each record: `time` (UTC), `offset` of its
    frame in bytes, and the members by name. Lists are arrays of their own
    ("OBSERVATIONS.observations") with a row for each entry: `record`, the row of the record that it
    stands in, that one's `time`, and the entry's members (`value` of plain numbers); in lists
    inside lists also `entry`, the row of the entry around.

    Numbers with a point that are not known are NaN, times NaT, texts empty; integers have the value
    that unknown_values tells, or are masked with `masked`. Kinds that are named have an array also
    when none came. Other options are those of read.
    """
    tables = _navframe.arrays(source, _options(kinds, protocols, start, legacy, False))
    if masked:
        from ._tables import masked as with_masks

        return {name: with_masks(name, table) for name, table in tables.items()}
    return tables


def frame(source: typing.Any, table: str, *, protocols: Names = None, start: Start = None,
          legacy: bool = False) -> pandas.DataFrame:
    """One of the arrays as a pandas DataFrame, by its name: "GGA", "OBSERVATIONS.observations".

    Its index is the time in UTC. Records inside records become columns with a point ("utc.hour"),
    arrays columns with a number ("position.0"), texts str; integers that are not known are <NA>.
    """
    from ._tables import frame as as_frame

    return as_frame(source, table, protocols=protocols, start=start, legacy=legacy)


def info(source: typing.Any, *more: typing.Any) -> dict[str, typing.Any]:
    """What recordings hold, as `navframe info --json` of the tool tells it.

        found = navframe.info("drive.ubx")["files"][0]
        for message in found["messages"]:
            print(message["protocol"], message["message"], message["count"], message["rate_hz"])

    `files` is a list with a dict for each source: times, protocols, messages and kinds of records
    with rates and gaps, stations and receivers, satellites and signals, the position, bytes outside
    of frames; `total`, of several sources, such a dict for all of them. docs/info.md tells what is
    in them. What is not known is None.

    Sources are those of read; `source` in the dict is the path, None of what has none. One that is
    empty, or in which nothing is recognised, is no error: `recognised` is False.
    """
    return _navframe.info([source, *more])


def unknown_values(table: str) -> dict[str, int]:
    """The value of each integer that stands for "not known" in an array, by field; fields of
    records inside as "utc.hour". Fields that are not named always have a value."""
    found = _navframe.unknown_values(table)
    if found is None:
        raise _unknown("array", table, _navframe.table_names())
    return found


from . import records  # noqa: E402  (its types are made when they are asked for)
