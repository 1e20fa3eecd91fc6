"""RINEX 3 files of observations and ephemerides, as far as they are compared."""

from datetime import datetime, timedelta

GPS_EPOCH = datetime(1980, 1, 6)
WEEK = 604800
NAV_LINES = {"R": 4, "S": 4}  # lines of an ephemeris; others have 8


def moment(fields):
    """Seconds since the GPS epoch of year, month, day, hour, minute, second, in their own time."""
    year, month, day, hour, minute = map(int, fields[:5])
    whole = datetime(year, month, day, hour, minute) - GPS_EPOCH
    return whole / timedelta(seconds=1) + float(fields[5])


def _number(text):
    text = text.strip().replace("D", "e").replace("d", "e")
    return float(text) if text else None


def _observed_types(lines, at):
    """The types of observations by system, and where the header ends."""
    types = {}
    system = None
    while "END OF HEADER" not in lines[at]:
        if lines[at][60:].strip() == "SYS / # / OBS TYPES":
            system = lines[at][0].strip() or system
            types.setdefault(system, []).extend(lines[at][6:60].split())
        at += 1
    return types, at + 1


def observations(path):
    """Epochs in order: moment, and cells by satellite and type as (value, loss-of-lock digit)."""
    lines = path.read_text().splitlines()
    types, at = _observed_types(lines, 0)
    while at < len(lines):
        head = lines[at]
        count = int(head[32:35])
        cells = {}
        for line in lines[at + 1:at + 1 + count]:
            for i, kind in enumerate(types[line[0]]):
                field = line[3 + 16 * i:19 + 16 * i]
                value = _number(field[:14])
                if value is not None:
                    lock = field[14:15].strip()
                    cells[line[:3].replace(" ", "0"), kind] = (value, int(lock) if lock else 0)
        yield moment(head[1:29].split()), cells
        at += 1 + count


def ephemerides(path):
    """Satellite, moment of the clock and the numbers behind it, those of each line in a list."""
    lines = path.read_text().splitlines()
    at = next(i for i, line in enumerate(lines) if "END OF HEADER" in line) + 1
    while at < len(lines):
        head = lines[at]
        count = NAV_LINES.get(head[0], 8)
        if head[0] == "R" and at + 4 < len(lines) and lines[at + 4].startswith("    "):
            count = 5
        rows = [[_number(line[k:k + 19]) for k in range(23 if i == 0 else 4, 80, 19)]
                for i, line in enumerate(lines[at:at + count])]
        yield head[:3].replace(" ", "0"), moment(head[4:23].split()), rows
        at += count
