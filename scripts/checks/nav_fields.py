"""Ephemerides of a stream against those of a RINEX file, by the names that the reader has."""

import math
from datetime import datetime

import rinex
import satellites

DAY, GLONASS_AHEAD = 86400, 10800  # s; the latter of UTC
# Of GPS, where the flag is set, by the first of a range of IODC (table 20-XII of IS-GPS-200); RINEX
# has the flag itself of QZSS.
FIT_HOURS = ((1021, 26), (1011, 146), (1008, 122), (768, 6), (764, 122), (757, 98), (752, 74),
             (512, 6), (511, 74), (504, 50), (497, 26), (496, 14), (256, 6), (248, 14), (240, 8),
             (0, 6))
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
    fields["groupDelay"], fields["secondDelay"] = record["groupDelay"]
    fields["source"] = GALILEO_SOURCES.get(record["navigationMessage"])
    fields["l2pDataFlag"] = {"G": record["l2pDataFlag"], "J": 1}.get(system, 0)
    if system == "G":
        fields["fitInterval"] = _fit_hours(record["fitInterval"], record["issueOfClock"])
    if record["transmissionTime"] is not None:  # of the week that is reported
        fields["transmissionTime"] += satellites.WEEK * round(
            (record["toe"] - record["transmissionTime"]) / satellites.WEEK)
    fields["moment"] = record["tocWeek"] * satellites.WEEK + record["toc"]
    return fields


def _fit_hours(flag, issue):
    return next(hours for first, hours in FIT_HOURS if issue >= first) if flag else 4


def _first_week(system):
    return 1356 if system == "C" else 0


def _fields_of_glonass(record):
    utc = record["referenceUtc"]
    moment = datetime(*(utc[k] for k in ("year", "month", "day", "hour", "minute", "second")))
    fields = {"moment": (moment - rinex.GPS_EPOCH).total_seconds(), "minusTauN": -record["tauN"]}
    local = fields["moment"] + GLONASS_AHEAD
    frame = local + (record["frameTime"] - local + DAY / 2) % DAY - DAY / 2
    fields["frameTime"] = (frame - GLONASS_AHEAD) % satellites.WEEK
    for member, prefix in (("position", ""), ("velocity", "v"), ("acceleration", "a")):
        for axis, value in zip("xyz", record[member]):
            fields[prefix + axis] = value / 1000
    for name in ("gammaN", "channel", "age"):
        fields[name] = record[name]
    fields["health"] = record["unhealthy"]
    # The line that version 3.05 adds.
    status = [record[name] for name in ("satelliteType", "p4", "p3", "p2", "p1", "p")]
    fields["status"] = None if None in status else sum(
        value << at for value, at in zip(status, (7, 6, 5, 4, 2, 0)))
    fields["delay"], fields["uncertainty"] = record["deltaTauN"], record["accuracyIndex"]
    almanac = record["almanacHealth"]
    fields["flags"] = None if record["lnThird"] is None else record["lnThird"] << 2 | (
        0 if almanac is None else 2 | almanac)
    return fields


def fields_of(item):
    system = satellites.satellite_of_ephemeris(item)[0]
    if system == "R":
        return _fields_of_glonass(item.record)
    return _fields_of_kepler(item.record, system)


def is_equal(mine, theirs, last=0.5001):
    """To the twelve digits of RINEX; `last` is how much of the last one may be missing."""
    if mine is None or theirs is None:
        return mine is theirs
    if mine == theirs:
        return True
    digits = math.floor(math.log10(abs(mine) or 1e-300)) - 11
    return abs(mine - theirs) <= last * 10.0 ** digits


def differences(mine, moment, theirs):
    """Names of fields with both values."""
    found = [] if mine["moment"] == moment else [("moment", mine["moment"], moment)]
    return found + [(name, mine.get(name), value) for name, value in theirs.items()
                    if not is_equal(mine.get(name), value)]


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
    if name == "secondDelay" and record["rtcmMessage"] == 1045:
        return "delay of E5b" if mine is None and theirs == 0 else None
    return None


def best_of(items, satellite, moment, values):
    """Names of fields that differ, with both values, and the item that fits best; None where the
    satellite has none."""
    ours = [(differences(fields_of(item), moment, values), item) for item in items
            if satellites.satellite_of_ephemeris(item) == satellite]
    return min(ours, key=lambda pair: len(pair[0]), default=(None, None))


def compare(items, theirs, counts):
    """Each orbit of the other tool with that of ours which fits best."""
    found = set()
    for satellite, moment, values in theirs:
        wrong, item = best_of(items, satellite, moment, values)
        if item is None:
            counts["UNEXPLAINED ephemeris of theirs alone"] += 1
            print("   ", satellite, moment, "of theirs alone")
            continue
        found.add(id(item.record))
        counts["equal: fields of ephemerides"] += len(values) + 1 - len(wrong)
        counts["ephemerides compared"] += 1
        for name, mine, value in wrong:
            cause = cause_of(name, mine, value, item)
            counts[cause or f"UNEXPLAINED {name} of ephemerides"] += 1
            if not cause:
                print("   ", satellite, name, "ours", mine, "theirs", value)
    for item in items:
        if id(item.record) not in found:
            counts["UNEXPLAINED ephemeris of ours alone"] += 1
            print("   ", satellites.satellite_of_ephemeris(item), "of ours alone")
