"""Random ephemerides of Kepler elements for scripts/compare-fields: the messages of RTCM 3, and the
same sets as satellites send them, in UBX RXM-SFRBX. Both are held against one expectation.

Fields and scales are those of IS-GPS-200, IS-QZSS-PNT, the Galileo OS SIS ICD, the BeiDou ICD for
B1I and the NavIC ICD; orders of the messages those of RTCM 10403.3.
"""

from collections import namedtuple
from functools import reduce

from fields_rtcm import dated, with_cut
from layouts import (bit_text, damaged, one_missing, packed, sfrbx, some, words32,
                     written)
from layouts import signed as _s
from layouts import unsigned as _u
from wire import Message, Scaled, rtcm_frame

WEEK = 604800
PI = 3.1415926535898


def _orbit(harmonics, harmonic_exponent, radius_exponent):
    """What GPS, QZSS, Galileo and BeiDou have in common."""
    angle, radius = 2**harmonic_exponent, 2**radius_exponent
    return {
        "dn": _s(16, "deltaN", 2**-43 * PI), "m0": _s(32, "m0", 2**-31 * PI),
        "e": _u(32, "eccentricity", 2**-33), "sqrta": _u(32, "sqrtSemiMajorAxis", 2**-19),
        "omega0": _s(32, "omega0", 2**-31 * PI), "i0": _s(32, "i0", 2**-31 * PI),
        "omega": _s(32, "omega", 2**-31 * PI), "omegadot": _s(24, "omegaDot", 2**-43 * PI),
        "idot": _s(14, "idot", 2**-43 * PI),
        **{name: _s(harmonics, name, angle) for name in ("cuc", "cus", "cic", "cis")},
        **{name: _s(harmonics, name, radius) for name in ("crc", "crs")}}


GPS = {**_orbit(16, -29, -5), "week": _u(10, "broadcastWeek"), "ura": _u(4, "accuracyIndex"),
       "l2codes": _u(2, "codesOnL2"), "health": _u(6, "health"), "iodc": _u(10, "issueOfClock"),
       "iode": _u(8, "issueOfData"), "l2p": _u(1, "l2pDataFlag"), "fit": _u(1, "fitInterval"),
       "tgd": _s(8, "groupDelay", 2**-31), "toc": _u(16, "toc", 16), "toe": _u(16, "toe", 16),
       "af0": _s(22, "af0", 2**-31), "af1": _s(16, "af1", 2**-43), "af2": _s(8, "af2", 2**-55)}
QZSS = {name: quantity for name, quantity in GPS.items() if name != "l2p"}
GALILEO = {**_orbit(16, -29, -5), "week": _u(12, "broadcastWeek"), "iod": _u(10, "issueOfData"),
           "sisa": _u(8, "accuracyIndex"), "toc": _u(14, "toc", 60), "toe": _u(14, "toe", 60),
           "af0": _s(31, "af0", 2**-34), "af1": _s(21, "af1", 2**-46), "af2": _s(6, "af2", 2**-59),
           "bgd5a": _s(10, "groupDelay", 2**-32), "bgd5b": _s(10, "groupDelay", 2**-32),
           "hs1": _u(2), "hs5a": _u(2), "hs5b": _u(2), "dvs1": _u(1), "dvs5a": _u(1),
           "dvs5b": _u(1)}
BEIDOU = {**_orbit(18, -31, -6), "week": _u(13, "broadcastWeek"), "ura": _u(4, "accuracyIndex"),
          "aode": _u(5, "issueOfData"), "aodc": _u(5, "issueOfClock"), "health": _u(1, "health"),
          "toc": _u(17, "toc", 8), "toe": _u(17, "toe", 8), "af0": _s(24, "af0", 2**-33),
          "af1": _s(22, "af1", 2**-50), "af2": _s(11, "af2", 2**-66),
          "tgd1": _s(10, "groupDelay", 1e-10), "tgd2": _s(10, "groupDelay", 1e-10)}
NAVIC = {**_orbit(15, -28, -4), "dn": _s(22, "deltaN", 2**-41 * PI),
         "omegadot": _s(22, "omegaDot", 2**-41 * PI), "week": _u(10, "broadcastWeek"),
         "ura": _u(4, "accuracyIndex"), "iodec": _u(8, "issueOfData"), "l5": _u(1), "s": _u(1),
         "tgd": _s(8, "groupDelay", 2**-31), "toc": _u(16, "toc", 16), "toe": _u(16, "toe", 16),
         "af0": _s(22, "af0", 2**-31), "af1": _s(16, "af1", 2**-43), "af2": _s(8, "af2", 2**-55)}

# A system: quantities, its number, navigation message, GPS week of its week 0, satellites.
System = namedtuple("System", "quantities number first_week satellites")
SYSTEMS = {
    "GPS": System(GPS, 1, 0, range(1, 33)), "QZSS": System(QZSS, 5, 0, range(1, 11)),
    "Galileo": System(GALILEO, 3, 1024, range(1, 37)),
    "BeiDou": System(BEIDOU, 4, 1356, range(1, 64)), "NavIC": System(NAVIC, 6, 1024, range(1, 15))}
LNAV, FNAV, INAV, D1, D2, NAVIC_SPS = 1, 2, 3, 4, 5, 6
GEOS = {1, 2, 3, 4, 5, 59, 60, 61, 62, 63}

# Messages of RTCM 3 in the order of their fields; "?3" are three bits that mean nothing.
RTCM = {
    1019: "satellite week ura l2codes idot iode toc af2 af1 af0 iodc crs dn m0 cuc e cus sqrta toe "
          "cic omega0 cis i0 crc omega omegadot tgd health l2p fit",
    1041: "satellite week af0 af1 af2 ura toc tgd dn iodec ?10 l5 s cuc cus cic cis crc crs idot "
          "m0 toe e sqrta omega0 omega omegadot i0 ?4",
    1042: "satellite week ura idot aode toc af2 af1 af0 aodc crs dn m0 cuc e cus sqrta toe cic "
          "omega0 cis i0 crc omega omegadot tgd1 tgd2 health",
    1044: "satellite toc af2 af1 af0 iode crs dn m0 cuc e cus sqrta toe cic omega0 cis i0 crc "
          "omega omegadot idot l2codes week ura health tgd iodc fit",
    1045: "satellite week iod sisa idot toc af2 af1 af0 crs dn m0 cuc e cus sqrta toe cic omega0 "
          "cis i0 crc omega omegadot bgd5a hs5a dvs5a ?7",
    1046: "satellite week iod sisa idot toc af2 af1 af0 crs dn m0 cuc e cus sqrta toe cic omega0 "
          "cis i0 crc omega omegadot bgd5a bgd5b hs5b dvs5b hs1 dvs1 ?2",
}

# What satellites send. "af1/22-19" are bits 22 to 19 of af1, counted from the last, which is 1.
LNAV_SUBFRAMES = (
    "week l2codes ura health iodc/10-9 l2p ?23 ?24 ?24 ?16 tgd iodc/8-1 toc af2 af1 af0",
    "iode crs dn m0 cuc e cus sqrta toe fit ?5",
    "cic omega0 cis i0 crc omega omegadot iode idot")
QZSS_SUBFRAMES = (LNAV_SUBFRAMES[0].replace("l2p", "?1"), *LNAV_SUBFRAMES[1:])
INAV_WORDS = (
    "iod toe m0 e sqrta ?2",
    "iod omega0 i0 omega idot ?2",
    "iod omegadot dn cuc cus crc crs sisa",
    "iod svid cic cis toc af0 af1 af2 ?2",
    "?11 ?11 ?14 ?5 bgd5a bgd5b hs5b hs1 dvs5b dvs1 week time ?23")
FNAV_PAGES = (
    "svid iod toc af0 af1 af2 sisa ?11 ?11 ?14 ?5 bgd5a hs5a week time dvs5a ?26",
    "iod m0 omegadot e sqrta omega0 idot week time",
    "iod i0 omega dn cuc cus crc crs toe week time ?8",
    "iod cic cis ?32 ?24 ?8 ?8 ?8 ?8 ?3 ?8 ?8 ?16 ?12 ?6 time ?5")
D1_SUBFRAMES = (
    "health aodc ura week toc tgd1 tgd2 ?64 af2 af0 af1 aode",
    "dn cuc m0 e cus crc crs sqrta toe/17-16",
    "toe/15-1 i0 cic omegadot cis idot omega0 omega ?1")
D2_PAGES = (
    "health aodc ura week toc tgd1 tgd2 ?12",
    "?78",
    "?6 ?22 ?10 af0 af1/22-19 ?6",
    "af1/18-1 af2 aode dn cuc/18-5 ?8",
    "cuc/4-1 m0 cus e/32-23 ?8",
    "e/22-1 sqrta cic/18-9 ?8",
    "cic/8-1 cis toe i0/32-12 ?8",
    "i0/11-1 crc crs omegadot/24-6 ?6",
    "omegadot/5-1 omega0 omega/32-6 ?8",
    "omega/5-1 idot ?59")


def _whole(seconds, step):
    return round(seconds / step) * step % WEEK


def _nearest(second, moment):
    """The week in which a second of the week comes nearest to a moment."""
    return round((moment - second) / WEEK)


class Set:
    """A random set of one satellite, sent at a random moment, often near the end of a week."""

    def __init__(self, rng, name):
        self.rng, self.system = rng, SYSTEMS[name]
        quantities = self.system.quantities
        self.satellite = rng.choice(self.system.satellites)
        self.values = {key: some(rng, quantity) for key, quantity in quantities.items()}
        self.week = rng.randrange(1930, 2400)
        self.tow = rng.choice((rng.randrange(300), WEEK - 1 - rng.randrange(300),
                               rng.randrange(WEEK))) // 30 * 30
        self.moment = self.week * WEEK + self.tow
        toe = _whole(self.tow + rng.randrange(-14000, 14000), quantities["toe"].step)
        toc = _whole(toe + rng.randrange(-7000, 7000), quantities["toc"].step)
        self.toe_week = _nearest(toe, self.moment)
        self.toc_week = _nearest(toc, self.toe_week * WEEK + toe)
        self.values["toe"] = toe // quantities["toe"].step
        self.values["toc"] = toc // quantities["toc"].step
        if "iodc" in quantities:
            self.values["iode"] = self.values["iodc"] & 0xFF
        self.values["week"] = self.week_sent()

    def week_sent(self):
        return (self.week - self.system.first_week) % (1 << self.system.quantities["week"].bits)

    def date(self):
        return dated(self.week, self.tow)

    def expected(self, names, message, rtcm=0):
        """Of the members whose quantities are `names`, and of what follows from them."""
        quantities, values = self.system.quantities, self.values
        expected = dict.fromkeys(
            (quantity.member for system in SYSTEMS.values()
             for quantity in system.quantities.values() if quantity.member))
        expected.update(
            system=self.system.number, satellite=self.satellite, rtcmMessage=rtcm,
            navigationMessage=message, week=self.week, tow=self.tow * 1000,
            toeWeek=self.toe_week, tocWeek=self.toc_week, transmissionTime=None, health=None,
            signalHealth=[None] * 3, dataInvalid=[None] * 3, groupDelay=[None] * 2,
            accuracy=_accuracy(values))
        for name in names:
            quantity = quantities.get(name)
            if quantity and quantity.member and quantity.member != "groupDelay":
                expected[quantity.member] = (values[name] if quantity.step is None else
                                             Scaled(values[name], quantity.step))
        for place, delays in enumerate((("tgd", "tgd1", "bgd5a"), ("tgd2", "bgd5b"))):
            for name in delays:
                if name in names:
                    expected["groupDelay"][place] = Scaled(values[name], quantities[name].step)
        self._put_health(names, expected)
        return expected

    def _put_health(self, names, expected):
        values = self.values
        if "l5" in names:
            expected["health"] = 2 * values["l5"] + values["s"]
        if "sisa" in names:
            expected["health"] = 0
            for place, signal in enumerate(("1", "5a", "5b")):
                if "hs" + signal in names:
                    health, invalid = values["hs" + signal], values["dvs" + signal]
                    expected["signalHealth"][place] = health
                    expected["dataInvalid"][place] = invalid
                    expected["health"] += (invalid + 2 * health) << 3 * place


def _accuracy(values):
    """In metres, of the user range accuracy or of SISA."""
    if "ura" in values:
        tenths = {0: 20, 1: 28, 2: 40, 3: 57, 4: 80, 5: 113, 15: None}
        found = tenths.get(values["ura"], 10 * 2**(values["ura"] - 2))
        return None if found is None else Scaled(found, 0.1)
    index = values["sisa"]
    for first, base, step in ((50, 0, 1), (75, 50, 2), (100, 100, 4), (126, 200, 16)):
        if index < first:
            steps = index - {50: 0, 75: 50, 100: 75, 126: 100}[first]
            return Scaled(base + steps * step, 0.01)
    return None


# --- Messages of RTCM 3

def _rtcm(name, message, navigation, is_dated=True):
    names = RTCM[message].split()

    def make(rng):
        one = Set(rng, name)
        bits = 4 if message == 1044 else 6
        quantities = {**one.system.quantities, "satellite": _u(bits)}
        if is_dated:  # the week is that of the transmission, or that of toe
            one.values["week"] = (rng.choice((one.week, one.toe_week)) - one.system.first_week) \
                % (1 << quantities["week"].bits)
        text = written(rng, RTCM[message], {**one.values, "satellite": one.satellite}, quantities)
        frame = rtcm_frame(packed(bit_text(message, 12) + text))
        which = navigation or (D2 if one.satellite in GEOS else D1)
        expected = one.expected(names, which, message)
        if is_dated:
            return one.date() + frame, expected
        # Weeks of 1024 alone tell none; longer ones are taken as they are.
        alone = one.system.quantities["week"].bits > 10
        toe = expected["toe"].raw * expected["toe"].step
        toc = expected["toc"].raw * expected["toc"].step
        expected.update(tow=None, week=one.week if alone else None,
                        toeWeek=one.week if alone else None,
                        tocWeek=_nearest(toc, one.week * WEEK + toe) if alone else None)
        return frame, expected
    return make


# --- RXM-SFRBX

UBX_GPS, UBX_GALILEO, UBX_BEIDOU, UBX_QZSS = 0, 2, 3, 5


# Data bits that each of the six parity bits of a word sums up, and the bit of the word before it.
_PARITY = ((29, (1, 2, 3, 5, 6, 10, 11, 12, 13, 14, 17, 18, 20, 23)),
           (30, (2, 3, 4, 6, 7, 11, 12, 13, 14, 15, 18, 19, 21, 24)),
           (29, (1, 3, 4, 5, 7, 8, 12, 13, 14, 15, 16, 19, 20, 22)),
           (30, (2, 4, 5, 6, 8, 9, 13, 14, 15, 16, 17, 20, 21, 23)),
           (30, (1, 3, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 21, 22, 24)),
           (29, (3, 5, 6, 8, 9, 10, 11, 13, 15, 19, 22, 23, 24)))


def _transmitted(data, before):
    """30 bits of a word as they are sent behind the word `before`; `data` as 24 characters."""
    last = {29: before >> 1 & 1, 30: before & 1}
    parity = [reduce(lambda one, bit: one ^ int(data[bit - 1]), bits, last[which])
              for which, bits in _PARITY]
    sent = int(data, 2) ^ (0xFFFFFF if last[30] else 0)
    return sent << 6 | int("".join(map(str, parity)), 2)


def _lnav_words(text):
    """Ten words as the receiver hands them on: turned where the word before ended with 1."""
    words, before = [], 0
    for place in range(10):
        data = text[place * 24:place * 24 + 24]
        sent = _transmitted(data, before)
        if place in (1, 9):  # two bits there make the word end with 00
            sent = next(word for ending in ("00", "01", "10", "11")
                        if (word := _transmitted(data[:22] + ending, before)) & 3 == 0)
        words.append(sent ^ (0x3FFFFFFF if before & 1 else 0))
        before = sent
    return words


def _lnav_frames(one, ubx_system, layouts):
    """Subframes 1 to 3; the time count of each is that of the end of it."""
    for place, layout in enumerate(layouts):
        count = (one.tow // 6 + place + 1) % (WEEK // 6)
        text = (bit_text(0x8B, 8) + bit_text(one.rng.getrandbits(16), 16) + bit_text(count, 17)
                + bit_text(one.rng.getrandbits(2), 2) + bit_text(place + 1, 3) + "00")
        body = written(one.rng, layout, one.values, one.system.quantities)
        yield sfrbx(ubx_system, one.satellite, 0, _lnav_words(text + body + "00"))


def _crc24q(text):
    crc = 0
    for bit in text:
        crc = (crc << 1 ^ (0x1864CFB if (crc >> 23 ^ int(bit)) & 1 else 0)) & 0xFFFFFF
    return bit_text(crc, 24)


def _galileo_quantities(one):
    return ({**one.system.quantities, "svid": _u(6), "time": _u(20)},
            {**one.values, "svid": one.satellite, "time": one.tow})


def _inav_frames(one, signal):
    """Words 1 to 5, each an even and an odd page of 120 bits, filled up to 128."""
    quantities, values = _galileo_quantities(one)
    for place, layout in enumerate(INAV_WORDS):
        word = bit_text(place + 1, 6) + written(one.rng, layout, values, quantities)
        even = "00" + word[:112]
        odd = "10" + word[112:] + bit_text(one.rng.getrandbits(64), 64)
        end = _crc24q(even + odd) + bit_text(one.rng.getrandbits(8), 8)
        text = (even + "0" * 6).ljust(128, "0") + (odd + end + "0" * 6).ljust(128, "0")
        yield sfrbx(UBX_GALILEO, one.satellite, signal, words32(text))


def _fnav_frames(one):
    quantities, values = _galileo_quantities(one)
    for place, layout in enumerate(FNAV_PAGES):
        text = bit_text(place + 1, 6) + written(one.rng, layout, values, quantities)
        text = (text + _crc24q(text) + "0" * 6).ljust(256, "0")
        yield sfrbx(UBX_GALILEO, one.satellite, 3, words32(text))


def _bch(data):
    """The four check bits of BCH(15,11) behind eleven."""
    rest = int(data, 2) << 4
    for bit in range(14, 3, -1):
        if rest >> bit & 1:
            rest ^= 0b10011 << bit - 4
    return bit_text(rest, 4)


def _beidou_words(number, second, body):
    """Ten words; `body` follows the second of the week."""
    second = bit_text(second, 20)
    head = bit_text(0b11100010010, 11) + "0000" + bit_text(number, 3) + second[:8]
    words = [int(head + _bch(head[15:]), 2)]
    rest = second[8:] + body
    for at in range(0, 198, 22):
        data = rest[at:at + 22]
        words.append(int(data + _bch(data[:11]) + _bch(data[11:]), 2))
    return words


def _d1_frames(one):
    for place, layout in enumerate(D1_SUBFRAMES):
        body = written(one.rng, layout, one.values, one.system.quantities)
        second = (one.tow + 6 * place) % WEEK
        yield sfrbx(UBX_BEIDOU, one.satellite, 0, _beidou_words(place + 1, second, body))


def _d2_frames(one):
    """Pages 1 to 10 of subframe 1, which use the first half of it."""
    for place, layout in enumerate(D2_PAGES):
        page = bit_text(place + 1, 4) + written(one.rng, layout, one.values, one.system.quantities)
        body = page + bit_text(one.rng.getrandbits(186 - len(page)), 186 - len(page))
        second = (one.tow + 3 * place) % WEEK
        yield sfrbx(UBX_BEIDOU, one.satellite, 1, _beidou_words(1, second, body))


def _sent_by_satellite(name, navigation, layouts, frames, satellites=None):
    names = {token.partition("/")[0] for layout in layouts for token in layout.split()}

    def make(rng):
        one = Set(rng, name)
        one.satellite = rng.choice(satellites or one.system.satellites)
        several, expected = list(frames(one)), one.expected(names, navigation)
        if name != "BeiDou":  # whose parts follow one another; others begin anywhere
            rng.shuffle(several)
        data = b"".join(several)
        expected["transmissionTime"] = Scaled(one.tow, 1)
        if rng.random() < 0.7:
            return one.date() + data, expected
        expected["tow"] = None  # without a date of the stream weeks of 1024 tell none
        if one.system.quantities["week"].bits == 10:
            expected.update(week=None, toeWeek=None, tocWeek=None)
        return data, expected
    return make


def _spoiled(name, navigation, layouts, frames, spoil, satellites=None):
    """A whole set, and behind it frames of which no further record may come."""
    whole = _sent_by_satellite(name, navigation, layouts, frames, satellites)

    def make(rng):
        data, expected = whole(rng)
        other = Set(rng, name)
        other.satellite = rng.choice([satellite for satellite in satellites
                                      or other.system.satellites
                                      if satellite != expected["satellite"]])
        return data + b"".join(spoil(rng, other, frames)), expected
    return make


def _two_issues(rng, one, frames):
    """One of the parts is that of another issue, of BeiDou of another time."""
    several, place = list(frames(one)), rng.randrange(3)
    for name in ("iod", "iode", "iodc"):
        if name in one.values:
            one.values[name] ^= 1
    one.tow = (one.tow + 30) % WEEK
    several[place] = list(frames(one))[place]
    return several


_SENT = {
    "GPS LNAV": ("EPH-GPS", "GPS", LNAV, LNAV_SUBFRAMES,
                 lambda one: _lnav_frames(one, UBX_GPS, LNAV_SUBFRAMES)),
    "QZSS LNAV": ("EPH-QZS", "QZSS", LNAV, QZSS_SUBFRAMES,
                  lambda one: _lnav_frames(one, UBX_QZSS, QZSS_SUBFRAMES)),
    "Galileo I/NAV E1": ("EPH-GAL", "Galileo", INAV, INAV_WORDS, lambda one: _inav_frames(one, 1)),
    "Galileo I/NAV E5b": ("EPH-GAL", "Galileo", INAV, INAV_WORDS,
                          lambda one: _inav_frames(one, 5)),
    "Galileo F/NAV": ("EPH-GAL", "Galileo", FNAV, FNAV_PAGES, _fnav_frames),
    "BeiDou D1": ("EPH-BDS", "BeiDou", D1, D1_SUBFRAMES, _d1_frames,
                  sorted(set(range(1, 64)) - GEOS)),
    "BeiDou D2": ("EPH-BDS", "BeiDou", D2, D2_PAGES, _d2_frames, sorted(GEOS)),
}

MESSAGES = (
    with_cut([Message(f"RTCM {message}{suffix}", kind, _rtcm(name, message, navigation, is_dated))
              for message, kind, name, navigation in (
                  (1019, "EPH-GPS", "GPS", LNAV), (1041, "EPH-NAV", "NavIC", NAVIC_SPS),
                  (1042, "EPH-BDS", "BeiDou", None), (1044, "EPH-QZS", "QZSS", LNAV),
                  (1045, "EPH-GAL", "Galileo", FNAV), (1046, "EPH-GAL", "Galileo", INAV))
              for suffix, is_dated in (("", True), (" without a date", False))])
    + [Message(f"RXM-SFRBX {name}", row[0], _sent_by_satellite(*row[1:]))
       for name, row in _SENT.items()]
    + [Message(f"RXM-SFRBX {name} {what}", row[0], _spoiled(*row[1:5], spoil, *row[5:]))
       for what, spoil in (("damaged", damaged), ("of two issues", _two_issues),
                           ("one missing", one_missing))
       for name, row in _SENT.items()])

NOT_HELD = {"RTCM 1041": [("DF526, DF544 and DF545", "reserved")]}
