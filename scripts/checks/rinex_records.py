"""What RINEX files of a stream are to have by its records, and by what convbin makes of it."""

import observed
import rinex
import satellites

WEEK_KEYS = satellites.WEEK * 10000


def key_of(time):
    """As observed.epoch_key has epochs."""
    return round(time / 1000) % WEEK_KEYS


def cells_of_file(found):
    """By epoch, satellite and type."""
    return {(key_of(epoch.time), satellite, kind): cell
            for epoch in found.epochs if epoch.time is not None
            for satellite, cells in epoch.satellites.items() for kind, cell in cells.items()}


def cells_of_stream(epochs):
    """By epoch, satellite and code those of all messages that tell the signal, whole ranges
    alone."""
    found = {}
    whole = [item for item in epochs
             if item.record["tow"] is not None and not item.record["rangeModulus"]]
    for cells in observed.cells_of(whole).values():
        for key, cell in cells.items():
            if key[2] and cell.observation["satellite"] is not None:
                found.setdefault(key, []).append(cell)
    return found


def is_rounded(value, thousandths):
    return value is not None and abs(value * 1000 - thousandths) <= 0.5 + 1e-4


def strength_of(cell):
    ratio = cell.value("S")
    return None if ratio is None else min(max(int(ratio / 6), 1), 9)


def is_of(kind, found, cell):
    """Whether a cell of a file is that of the stream, digits included."""
    lock = cell.lock_digit() if kind[0] == "L" else 0
    return is_rounded(cell.value(kind[0]), found.value) and (found.lock or 0) == lock and (
        kind[0] not in "CL" or found.strength in (None, strength_of(cell)))


def of_records(ours, stream, complain):
    """Each cell of the file is one of the stream's, and none of those is missing."""
    for (epoch, satellite, kind), found in ours.items():
        cells = stream.get((epoch, satellite, kind[1:]), [])
        if not any(is_of(kind, found, cell) for cell in cells):
            complain((epoch, satellite, kind), "ours", found, "records",
                     [(cell.value(kind[0]), cell.lock_digit(), strength_of(cell))
                      for cell in cells])
    for (epoch, satellite, code), cells in stream.items():
        for kind in observed.MEMBERS:
            is_told = any(cell.value(kind) is not None for cell in cells)
            if is_told and (epoch, satellite, kind + code) not in ours:
                complain((epoch, satellite, kind + code), "not written, records",
                         [cell.value(kind) for cell in cells])


# Where files differ besides observed.CAUSES, and why. Each has a test in this file.
CAUSES = {
    "lost frame": "loses frames behind false heads, and epochs whose last frame is cut off: it has "
                  "them when it is handed the frames alone, the last of each epoch marked",
    "other message": "takes the last message of several that tell a signal in an epoch",
    "uncertain phase": "leaves out phases of UBX whose deviation is above 0.02 cycles, and tells a "
                       "loss of lock there with the phase that comes next",
}


def cause_of_difference(kind, theirs, cells):
    """The name of a cause why values differ, or None."""
    for cell in cells:
        cause = observed.cause_of_value(cell, kind[0], theirs.value / 1000)
        if cause:
            return cause
    values = [cell.value(kind[0]) for cell in cells]
    return "other message" if any(is_rounded(value, theirs.value) for value in values) else None


def cause_of_absence(key, cells, mine, alone):
    """Why they have no such cell, or None. `alone`: theirs when handed the frames alone."""
    causes = {observed.cause_of_absence(cell, key[2][0]) for cell in cells} - {None}
    if causes:
        return causes.pop()
    if key[2][0] == "L" and all(cell.is_uncertain() for cell in cells):
        return "uncertain phase"
    found = alone.get(key)
    if found and (found.value == mine.value or cause_of_difference(key[2], found, cells)):
        return "lost frame"
    return None


def header_differences(ours, theirs):
    """Labels and what both say, where theirs says anything. It computes a position where the stream
    tells none."""
    is_placed = any(ours.head.first("APPROX POSITION XYZ"))
    for label, fields in theirs.header.items():
        mine = ours.header.get(label)
        if label in ("MARKER NAME", "REC # / TYPE / VERS", "ANT # / TYPE", "APPROX POSITION XYZ",
                     "ANTENNA: DELTA H/E/N") and any(fields[0]) and (
                         mine is None or mine[0] != fields[0]) and (
                             is_placed or label != "APPROX POSITION XYZ"):
            yield label, mine and mine[0], fields[0]
    for satellite, channel in theirs.channels.items():
        if ours.channels.get(satellite, channel) != channel:
            yield satellite, ours.channels[satellite], channel


def known(navigation):
    """Satellite, moment of the clock and values by name, what the file says not to know as None."""
    for record in navigation.records if navigation else ():
        if record.kind == "EPH":
            yield record.satellite, record.time // rinex.TICKS, {
                name: None if value is None or name == "transmissionTime" and value == 999900000
                else float(value) for name, value in record.values.items()}


def read(path):
    """A file that may violate this and that, None where there is none."""
    return rinex.read(path, []) if path.exists() else None
