"""Ephemerides of a stream against the rows of a RINEX 3.05 file."""

import math
from datetime import datetime

import rinex
import satellites

# The fields of an orbit in RINEX, line by line behind its first.
KEPLER_ROWS = [
    ["af0", "af1", "af2"],
    ["issueOfData", "crs", "deltaN", "m0"],
    ["cuc", "eccentricity", "cus", "sqrtSemiMajorAxis"],
    ["toe", "cic", "omega0", "cis"],
    ["i0", "crc", "omega", "omegaDot"],
    ["idot", "source", "week", "l2pDataFlag"],
    ["accuracy", "health", "firstDelay", "lastOfLine"],
    ["transmissionTime", "lastOfAll"],
]
GLONASS_ROWS = [
    ["minusTauN", "gammaN", "frameTime"],
    ["x", "vx", "ax", "health"],
    ["y", "vy", "ay", "channel"],
    ["z", "vz", "az", "age"],
]
DAY, GLONASS_AHEAD = 86400, 10800  # s; the latter of UTC
FIT_HOURS = {0: 4, 1: 6}  # of GPS; RINEX has hours there, of QZSS the flag
GALILEO_SOURCES = {2: 258, 3: 517}  # F/NAV: E5a, clock of E5a; I/NAV: E1 and E5b, their clock

RECEIPT = 2  # s
SUBFRAME, FRAME = 6, 30  # s, of LNAV; frames of GLONASS are as long

# Where the two differ and why. Each has a test in this file, of that name.
CAUSES = {
    "time of receipt": "has the time of receipt as that of transmission, which RTCM 3 does not "
                       "tell: ours is unknown",
    "end of a later subframe": "has the end of subframe 1, of a frame that came later; ours is its "
                               "start, of the frame that the record was made of",
    "later frame": "has the time of a frame that came later with the same ephemeris (GLONASS)",
    "one signal of I/NAV": "names E1 alone as the source of I/NAV, which E1 and E5b send alike",
    "delay of E5b": "has 0 for the group delay of E5b/E1 that F/NAV does not tell: ours is unknown",
}


def _fields_of_kepler(record, system):
    fields = dict(record)
    first_week = _first_week(system)
    fields["week"] = None if record["toeWeek"] is None else record["toeWeek"] - first_week
    fields["firstDelay"] = record["groupDelay"][0]
    fields["source"] = {"E": GALILEO_SOURCES.get(record["navigationMessage"]),
                        "C": 0}.get(system, record["codesOnL2"])
    fields["lastOfLine"] = record["groupDelay"][1] if system in "EC" else record["issueOfClock"]
    fields["l2pDataFlag"] = {"G": record["l2pDataFlag"], "J": 1}.get(system, 0)
    fields["lastOfAll"] = {"G": FIT_HOURS.get(record["fitInterval"]), "J": record["fitInterval"],
                           "C": record["issueOfClock"]}.get(system, 0)
    fields["moment"] = record["tocWeek"] * satellites.WEEK + record["toc"]
    return fields


def _first_week(system):
    return 1356 if system == "C" else 0


def _fields_of_glonass(record):
    utc = record["referenceUtc"]
    moment = datetime(*(utc[k] for k in ("year", "month", "day", "hour", "minute", "second")))
    fields = {"moment": (moment - rinex.GPS_EPOCH).total_seconds(), "minusTauN": -record["tauN"]}
    day = (fields["moment"] + GLONASS_AHEAD) // DAY * DAY
    fields["frameTime"] = (day + record["frameTime"] - GLONASS_AHEAD) % satellites.WEEK
    for member, prefix in (("position", ""), ("velocity", "v"), ("acceleration", "a")):
        for axis, value in zip("xyz", record[member]):
            fields[prefix + axis] = value / 1000
    for name in ("gammaN", "channel", "age"):
        fields[name] = record[name]
    fields["health"] = record["unhealthy"]
    return fields


def fields_of(item):
    system = satellites.satellite_of_ephemeris(item)[0]
    if system == "R":
        return _fields_of_glonass(item.record)
    return _fields_of_kepler(item.record, system)


def _is_equal(mine, theirs):
    """To the twelve digits of RINEX."""
    if mine is None or theirs is None:
        return False
    if mine == theirs:
        return True
    digits = math.floor(math.log10(abs(mine) or 1e-300)) - 11
    return abs(mine - theirs) <= 0.5001 * 10.0 ** digits


def differences(mine, moment, rows, system):
    """Names of fields with both values."""
    found = [] if mine["moment"] == moment else [("moment", mine["moment"], moment)]
    for names, values in zip(GLONASS_ROWS if system == "R" else KEPLER_ROWS, rows):
        found += [(name, mine[name], value) for name, value in zip(names, values)
                  if not _is_equal(mine[name], value)]
    return found


def cause_of(name, mine, theirs, item):
    """The name of a cause, or None."""
    record = item.record
    if name == "transmissionTime" and record["rtcmMessage"]:
        behind = 14 if item.kind == "EPH-BDS" else 0
        is_receipt = abs(theirs + behind - item.tow / 1000) <= RECEIPT
        return "time of receipt" if mine is None and is_receipt else None
    if name == "transmissionTime" and item.kind == "EPH-GPS" and mine is not None:
        later = theirs - SUBFRAME - mine
        return "end of a later subframe" if later >= 0 and later % FRAME == 0 else None
    if name == "frameTime" and not record["rtcmMessage"]:
        return "later frame" if theirs > mine and (theirs - mine) % FRAME == 0 else None
    if name == "source" and mine == GALILEO_SOURCES[3]:
        return "one signal of I/NAV" if theirs in (513, 516) else None
    if name == "lastOfLine" and record["rtcmMessage"] == 1045:
        return "delay of E5b" if mine is None and theirs == 0 else None
    return None


def compare(items, theirs, counts):
    """Each orbit of the other tool with that of ours which fits best."""
    by_satellite = {}
    for item in items:
        satellite = satellites.satellite_of_ephemeris(item)
        by_satellite.setdefault(satellite, []).append((item, fields_of(item)))
    found = set()
    for satellite, moment, rows in theirs:
        ours = [(differences(fields, moment, rows, satellite[0]), item)
                for item, fields in by_satellite.get(satellite, [])]
        if not ours:
            counts["UNEXPLAINED ephemeris of theirs alone"] += 1
            print("   ", satellite, moment, "of theirs alone")
            continue
        wrong, item = min(ours, key=lambda pair: len(pair[0]))
        found.add(id(item.record))
        rows_of = GLONASS_ROWS if satellite[0] == "R" else KEPLER_ROWS
        counts["equal: fields of ephemerides"] += sum(map(len, rows_of)) + 1 - len(wrong)
        counts["ephemerides compared"] += 1
        for name, mine, value in wrong:
            cause = cause_of(name, mine, value, item)
            counts[cause or f"UNEXPLAINED {name} of ephemerides"] += 1
            if not cause:
                print("   ", satellite, name, "ours", mine, "theirs", value)
    for satellite, ours in by_satellite.items():
        for item, fields in ours:
            if id(item.record) not in found:
                counts["UNEXPLAINED ephemeris of ours alone"] += 1
                print("   ", satellite, fields["moment"], "of ours alone")
