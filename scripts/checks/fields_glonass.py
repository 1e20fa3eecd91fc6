"""Random ephemerides of GLONASS for scripts/compare-fields: message 1020 of RTCM 3, and the same
sets as strings in UBX RXM-SFRBX. Both are held against one expectation.

Fields and scales are those of the GLONASS ICD 5.1, the order of 1020 that of RTCM 10403.3.
"""

from datetime import datetime, timedelta
from functools import reduce

from fields_rtcm import LEAP_SECONDS, dated, with_cut
from layouts import bit_text, damaged, one_missing, packed, sfrbx, some, words32, written
from layouts import signed as _s
from layouts import unsigned as _u
from wire import Message, Scaled, rtcm_frame

WEEK = 604800
UBX_GLONASS = 6

# Sign and magnitude, where there is a sign.
GLONASS = {
    "p1": _u(2), "hours": _u(5), "minutes": _u(6), "halves": _u(1), "bn": _u(3), "p2": _u(1),
    "tb": _u(7, "tb", 900), "p3": _u(1, "p3"), "gamma": _s(11, "gammaN", 2**-40), "p": _u(2, "p"),
    "ln3": _u(1, "lnThird"), "tau": _s(22, "tauN", 2**-30), "dtau": _s(5, "deltaTauN", 2**-30),
    "age": _u(5, "age"), "p4": _u(1, "p4"), "ft": _u(4), "nt": _u(11, "nt"), "m": _u(2),
    "na": _u(11, "na"), "tauc": _s(32, "tauC", 2**-31), "n4": _u(5, "n4"),
    "taugps": _s(22, "tauGps", 2**-30), "ln5": _u(1, "lnFifth"), "slot": _u(5),
    **{name + axis: _s(bits) for axis in "xyz" for name, bits in
       (("v", 24), ("r", 27), ("a", 5))}}
_STATE = (("position", "r", 2**-11 * 1000), ("velocity", "v", 2**-20 * 1000),
          ("acceleration", "a", 2**-30 * 1000))

GLONASS_STRINGS = (
    "?2 p1 hours minutes halves vx ax rx",
    "bn p2 tb ?5 vy ay ry",
    "p3 gamma ?1 p ln3 vz az rz",
    "tau dtau age ?14 p4 ft ?3 nt slot m",
    "na tauc ?1 n4 taugps ln5")
RTCM_1020 = ("satellite channel cn cnknown p1 hours minutes halves bn1 p2 tb vx rx ax vy ry ay "
             "vz rz az p3 gamma p ln3 tau dtau age p4 ft nt m more na tauc n4 taugps ln5 ?7")


class GlonassSet:
    def __init__(self, rng):
        self.rng = rng
        values = self.values = {name: some(rng, quantity)
                                for name, quantity in GLONASS.items()}
        for name, quantity in GLONASS.items():  # the lowest of two's complement is none here
            if quantity.signed:
                values[name] = max(values[name], 1 - (1 << quantity.bits - 1))
        self.satellite, self.channel = rng.randrange(1, 25), rng.randrange(-7, 7)
        values.update(slot=self.satellite, nt=rng.randrange(1, 1462), n4=rng.randrange(6, 11),
                      tb=rng.randrange(1, 96), hours=rng.randrange(24),
                      minutes=rng.randrange(60), m=rng.randrange(3))
        # Days since the first of GPS time: 1996 began on day 5839, intervals have 1461 days.
        day = 5839 + (values["n4"] - 1) * 1461 + values["nt"] - 1
        self.utc = day * 86400 + values["tb"] * 900 - 10800
        self.gps = self.utc + LEAP_SECONDS

    def date(self):
        return dated(*divmod(self.gps, WEEK))

    def sent(self, name):
        value, quantity = self.values[name], GLONASS[name]
        if not quantity.signed:
            return value
        return (1 << quantity.bits - 1 if value < 0 else 0) | abs(value)

    def written(self, layout, **others):
        values = {name: self.sent(name) for name in GLONASS}
        values.update(others)
        widths = {"satellite": 6, "channel": 5, "cn": 1, "cnknown": 1, "bn1": 1, "more": 1}
        return written(self.rng, layout, values,
                        {**GLONASS, **{name: _u(bits) for name, bits in widths.items()}})

    def expected(self, rtcm=0):
        values = self.values
        expected = {quantity.member: values[name] if quantity.step is None
                    else Scaled(values[name], quantity.step)
                    for name, quantity in GLONASS.items() if quantity.member}
        for member, name, step in _STATE:
            expected[member] = [Scaled(values[name + axis], step) for axis in "xyz"]
        week, tow = divmod(self.gps, WEEK)
        expected.update(
            satellite=self.satellite, channel=self.channel, rtcmMessage=rtcm, week=week,
            tow=tow * 1000, p2=values["p2"], p1=values["p1"],
            health=values["bn"], unhealthy=values["bn"] >> 2, almanacHealth=None,
            accuracyIndex=None if values["ft"] == 15 else values["ft"],
            satelliteType=values["m"],
            frameTime=values["hours"] * 3600 + values["minutes"] * 60 + values["halves"] * 30,
            reference={"tow": tow * 1000, "week": week}, referenceUtc=_calendar(self.utc))
        if values["m"] == 0:  # what GLONASS-M alone sends; the date is that of the stream then
            expected.update(dict.fromkeys(("p", "lnThird", "deltaTauN", "p4", "accuracyIndex",
                                           "nt", "n4", "tauGps", "lnFifth")))
        return expected


def _calendar(second):
    moment = datetime(1980, 1, 6) + timedelta(seconds=second)
    return {"year": moment.year, "month": moment.month, "day": moment.day, "hour": moment.hour,
            "minute": moment.minute, "second": moment.second, "millisecond": 0}


def _glonass_1020(rng):
    one = GlonassSet(rng)
    health, known, more = (rng.getrandbits(1) for _ in range(3))
    text = one.written(RTCM_1020, satellite=one.satellite, channel=one.channel + 7, cn=health,
                       cnknown=known, bn1=one.values["bn"] >> 2, more=more)
    expected = one.expected(1020)
    expected.update(health=one.values["bn"] & 4, almanacHealth=health if known else None)
    if not more:
        expected.update(na=None, tauC=None, n4=None, tauGps=None, lnFifth=None)
    return one.date() + rtcm_frame(packed(bit_text(1020, 12) + text)), expected


def _hamming(data):
    """The eight check bits of a string: `data` are bits 85 to 9 of it."""
    places = [place for place in range(3, 85) if place & place - 1][:len(data)]
    where = dict(zip(places, map(int, reversed(data))))
    checks = [reduce(lambda one, place: one ^ where[place] if place >> bit & 1 else one, where, 0)
              for bit in range(7)]
    checks.append(reduce(lambda one, bit: one ^ bit, [*where.values(), *checks], 0))
    return "".join(str(bit) for bit in reversed(checks))


def _string_frames(one, frame=None):
    """Bits 85 to 1 of strings 1 to 5, and numbers of superframe and frame in a word of its own."""
    frame = one.rng.getrandbits(16) << 16 | one.rng.randrange(1, 6) if frame is None else frame
    for place, layout in enumerate(GLONASS_STRINGS):
        data = "0" + bit_text(place + 1, 4) + one.written(layout)
        words = words32((data + _hamming(data)).ljust(96, "0"))
        yield sfrbx(UBX_GLONASS, one.satellite, 0, [*words, frame], one.channel + 7)


def _glonass_strings(rng):
    one = GlonassSet(rng)
    return one.date() + b"".join(_string_frames(one)), one.expected()


def _glonass_spoiled(spoil):
    def make(rng):
        one, other = GlonassSet(rng), GlonassSet(rng)
        other.satellite = one.satellite % 24 + 1
        return (one.date() + b"".join(_string_frames(one))
                + b"".join(spoil(rng, other, _string_frames))), one.expected()
    return make


def _two_frames(rng, one, frames):
    """The second string is that of another frame."""
    several, others = list(frames(one, 1 << 16 | 1)), list(frames(one, 1 << 16 | 2))
    return [several[0], others[1], *several[2:]]


MESSAGES = (
    with_cut([Message("RTCM 1020", "EPH-GLO", _glonass_1020)])
    + [Message("RXM-SFRBX GLONASS", "EPH-GLO", _glonass_strings)]
    + [Message(f"RXM-SFRBX GLONASS {what}", "EPH-GLO", _glonass_spoiled(spoil))
       for what, spoil in (("damaged", damaged), ("of two frames", _two_frames),
                           ("one missing", one_missing))])

NOT_HELD = {"RTCM 1020": [("DF001", "reserved")]}
