"""Reads RINEX files of versions 3.04, 3.05 and 4.02 strictly.
  scripts/checks/rinex.py FILE...   says of each what it violates first"""

import sys
from pathlib import Path

from rinex_navigation import EPHEMERIDES, Navigation
from rinex_observations import Observations
from rinex_text import GPS_EPOCH, TICKS, Lines, Violation, name_of

WEEK = 604800


def read(path, violations=None):
    """Observations or Navigation. Raises Violation at the first fault, or collects the texts of all
    that do not end the reading."""
    source = Lines(path, violations)
    kind = source.lines[0][20:21] if source.lines else ""
    if kind not in ("O", "N"):
        raise Violation(f"{path}:1: neither observations nor navigation: {kind!r}")
    found = Observations(source) if kind == "O" else Navigation(source)
    judge_name(Path(path).name, found, source)
    return found


def judge_name(name, found, source):
    """A long name says what the file has."""
    named = name_of(name)
    if named is None:
        return
    _, _, start, period, interval, kind = named
    if kind != found.head.system + ("O" if isinstance(found, Observations) else "N"):
        source.fault(f"the name says {kind}, the file {found.head.system}", 1)
    if not isinstance(found, Observations) or not found.epochs:
        return
    first, last = found.epochs[0].time, found.epochs[-1].time
    if first < start or period and last >= start + period * TICKS:
        source.fault("epochs outside the time that the name says", found.epochs[0].line)
    said = found.head.first("INTERVAL")
    if interval and said and abs(said[0] - interval) > interval / 100:
        source.fault(f"the name says {interval} s, the file {said[0]}", 1)


def observations(path):
    """Epochs as floating numbers, of a file that may violate this and that: moment [s], and cells
    by satellite and type as (value, digit of lost lock)."""
    for epoch in read(path, []).epochs:
        yield epoch.time / TICKS, {
            (satellite, kind): (cell.value / 1000, cell.lock or 0)
            for satellite, cells in epoch.satellites.items() for kind, cell in cells.items()}


def ephemerides(path):
    """Of such a file: satellite, moment of the clock, and values by name."""
    for record in read(path, []).records:
        yield record.satellite, record.time // TICKS, {
            name: value if value is None else float(value) for name, value in record.values.items()}


def main():
    status = 0
    for path in sys.argv[1:]:
        try:
            found = read(path)
            amount = len(found.epochs if isinstance(found, Observations) else found.records)
            print(f"{path}: version {found.version}, {amount} epochs or records")
        except Violation as violation:
            print(violation)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
