"""Random messages of RTCM 3 for scripts/compare-fields: observations.

Fields, their order, resolutions and invalid codes are those of RTCM 10403.3, codes those of the
signal tables there and of RINEX 3.05, carriers those of the interface documents of each system.
"""

from wire import Bits, Message, Scaled, rtcm_frame

SPEED_OF_LIGHT = 299792458
MS_OF_WEEK = 604800000
LEAP_SECONDS = 18  # what a stream begins with, and what `dated` tells

# Hz, by system and band of RINEX.
_L1, _L2, _L5 = 1575420000, 1227600000, 1176450000
_GPS_BANDS = {"1": _L1, "2": _L2, "5": _L5, "6": 1278750000}
_GALILEO_BANDS = {"1": _L1, "5": _L5, "6": 1278750000, "7": 1207140000, "8": 1191795000}
_BEIDOU_BANDS = {"1": _L1, "2": 1561098000, "5": _L5, "6": 1268520000, "7": 1207140000,
                 "8": 1191795000}

# Observed system by the tens of its messages: number of the system, codes by signal id, bands,
# satellites. 1C is id 2 everywhere but for BeiDou and NavIC.
_L1C = {30: "1S", 31: "1L", 32: "1X"}
SIGNALS = {
    107: (1, {2: "1C", 3: "1P", 4: "1W", 8: "2C", 9: "2P", 10: "2W", 15: "2S", 16: "2L", 17: "2X",
              22: "5I", 23: "5Q", 24: "5X", **_L1C}, _GPS_BANDS, 63),
    108: (2, {2: "1C", 3: "1P", 8: "2C", 9: "2P"}, {}, 24),
    109: (3, {2: "1C", 3: "1A", 4: "1B", 5: "1X", 6: "1Z", 8: "6C", 9: "6A", 10: "6B", 11: "6X",
              12: "6Z", 14: "7I", 15: "7Q", 16: "7X", 18: "8I", 19: "8Q", 20: "8X", 22: "5I",
              23: "5Q", 24: "5X"}, _GALILEO_BANDS, 52),
    110: (7, {2: "1C", 22: "5I", 23: "5Q", 24: "5X"}, _GPS_BANDS, 39),
    111: (5, {2: "1C", 9: "6S", 10: "6L", 11: "6X", 15: "2S", 16: "2L", 17: "2X", 22: "5I",
              23: "5Q", 24: "5X", **_L1C}, _GPS_BANDS, 10),
    112: (4, {2: "2I", 3: "2Q", 4: "2X", 8: "6I", 9: "6Q", 10: "6X", 14: "7I", 15: "7Q", 16: "7X",
              22: "5D", 23: "5P", 24: "5X", 25: "7D", 30: "1D", 31: "1P", 32: "1X"},
          _BEIDOU_BANDS, 63),
    113: (6, {22: "5A"}, {"5": _L5}, 14),
}
_NAMES = {107: "GPS", 108: "GLONASS", 109: "Galileo", 110: "SBAS", 111: "QZSS", 112: "BeiDou",
          113: "NavIC"}
_GPS, _GLONASS, _SBAS, _BEIDOU = 1, 2, 7, 4


def flag(rng):
    return rng.getrandbits(1)


def dated(week, tow, leap_seconds=LEAP_SECONDS):
    """Message 1013, which tells a stream what time it is [s]."""
    second = week * 604800 + tow - leap_seconds
    return rtcm_frame(Bits().u(1013, 12).u(0, 12).u(44244 + second // 86400, 16)
                      .u(second % 86400, 17).u(0, 5).u(leap_seconds, 8).bytes())


def _carrier(system, bands, code, channel):
    if not code:
        return None
    if system != _GLONASS:
        return bands[code[0]]
    if channel is None:
        return None
    return 1602000000 + 562500 * channel if code[0] == "1" else 1246000000 + 437500 * channel


def _nearest_week(week, tow, tow_ms):
    """The week in which `tow_ms` is nearest to a second of a week."""
    return week if tow_ms is None else week + round((tow * 1000 - tow_ms) / MS_OF_WEEK)


def _observation(system, satellite, signal, code, frequency, channel=None):
    return {"system": system, "satellite": satellite, "signal": signal, "code": code,
            "frequency": None if frequency is None else Scaled(frequency, 1), "channel": channel,
            "pseudorange": None, "carrierPhase": None, "phaseRange": None, "doppler": None,
            "rangeRate": None, "cn0": None, "lockTime": None, "halfCycleAmbiguity": None,
            "lossOfLock": None, "halfCycleSubtracted": None, "pseudorangeDeviation": None,
            "carrierPhaseDeviation": None, "dopplerDeviation": None}


def _head(message, station, tow_ms, week, observations, **others):
    return {"message": message, "stationId": station, "protocol": 4, "version": None,
            "tow": None if tow_ms is None else Scaled(tow_ms, 1e-3), "week": week,
            "rangeModulus": Scaled(0, 1), "clockReset": None, "leapSeconds": None,
            "leapKnown": None, "count": len(observations), "observations": observations,
            "stationIssue": None, "clockSteering": None, "externalClock": None, **others}


def _some_ms(rng):
    """A time of week, often beside its ends."""
    return rng.choice((0, 1, MS_OF_WEEK - 1, 13999, 604786000, rng.randrange(MS_OF_WEEK),
                       rng.randrange(MS_OF_WEEK)))


def _epoch(rng, system):
    """30 bits of an MSM, and the GPS time of week [ms] that they say, None for no time of one."""
    if rng.random() < 0.1:
        if system == _GLONASS:  # a day may have a second more than 86400
            return rng.randrange(8) << 27 | rng.randrange(86401000, 2**27), None
        return rng.randrange(MS_OF_WEEK, 2**30), None
    if system == _GLONASS:  # day of the week, and of it, three hours ahead of UTC
        day, ms = rng.randrange(7), rng.choice((0, 10799999, 86400999, rng.randrange(86400000)))
        return day << 27 | ms, (day * 86400000 + ms - 10800000 + LEAP_SECONDS * 1000) % MS_OF_WEEK
    raw = _some_ms(rng)
    return raw, (raw + 14000) % MS_OF_WEEK if system == _BEIDOU else raw


# --- MSM4 to MSM7

# Widths and resolutions by message: fine range and phase range [ms], lock, C/N0 [dB-Hz].
_COARSE = (15, 2**-24, 22, 2**-29, 4, 6, 1)
_FINE = (20, 2**-29, 24, 2**-31, 10, 10, 2**-4)


def _lock_ms(indicator, width):
    if width == 4:
        return 2**(indicator + 4) if indicator else 0
    if indicator < 64:
        return indicator
    shift = indicator // 32 - 1
    return None if indicator > 704 else (indicator - 32 * shift) << shift


def some_signed(rng, width):
    """Two's complement with its invalid code, the lowest value, now and then."""
    low = -(1 << width - 1)
    return rng.choice((low, low + 1, -low - 1, 0) + (rng.randrange(low, -low),) * 6)


def _masks(rng, tens):
    system, codes, _, last = SIGNALS[tens]
    wanted = rng.randint(1, 8)
    signals = sorted(rng.sample(sorted(codes), min(wanted, len(codes))))
    if rng.random() < 0.3:  # one that the table does not list
        signals = sorted({*signals, rng.randint(1, 32)})
    most = min(64 // len(signals), last)
    satellites = sorted(rng.sample(range(1, last + 1), rng.randint(1, most)))
    cells = [(satellite, signal) for satellite in satellites for signal in signals
             if rng.random() < 0.8]
    return satellites, signals, cells


def _mask(members, places):
    return sum(1 << places - member for member in members)


def _satellites(rng, satellites, has_rates, is_glonass):
    """Of each: rough range in 1/1024 ms, extended information, rough rate [m/s]."""
    found = {}
    for satellite in satellites:
        whole = rng.choice((255, 0, 254) + (rng.randrange(255),) * 6)
        extended = rng.choice((rng.randrange(14), 15)) if is_glonass else rng.randrange(16)
        found[satellite] = (None if whole == 255 else whole * 1024 + rng.randrange(1024),
                            extended, some_signed(rng, 14) if has_rates else None)
    return found


def _write_satellites(bits, rough, has_rates, rng):
    for whole, _, _ in rough.values():
        bits.u(255 if whole is None else whole // 1024, 8)
    if has_rates:
        for _, extended, _ in rough.values():
            bits.u(extended, 4)
    for whole, _, _ in rough.values():
        bits.u(rng.randrange(1024) if whole is None else whole % 1024, 10)
    if has_rates:
        for _, _, rate in rough.values():
            bits.s(rate, 14)


def _cell(rng, widths, has_rates):
    return {"range": some_signed(rng, widths[0]), "phase": some_signed(rng, widths[2]),
            "lock": rng.choice((0, rng.randrange(1 << widths[4]))), "half": flag(rng),
            "cn0": rng.choice((0, rng.randrange(1 << widths[5]))),
            "rate": some_signed(rng, 15) if has_rates else None}


def _write_cells(bits, cells, widths, has_rates):
    for name, width in (("range", widths[0]), ("phase", widths[2])):
        for cell in cells:
            bits.s(cell[name], width)
    for name, width in (("lock", widths[4]), ("half", 1), ("cn0", widths[5])):
        for cell in cells:
            bits.u(cell[name], width)
    for cell in cells if has_rates else ():
        bits.s(cell["rate"], 15)


def is_lowest(value, width):
    return value == -(1 << width - 1)


def _said(cell, rough, widths, expected, frequency):
    """What a cell and its satellite say together."""
    whole, _, rough_rate = rough
    per_ms = SPEED_OF_LIGHT / 1000
    if whole is not None and not is_lowest(cell["range"], widths[0]):
        expected["pseudorange"] = Scaled(whole * 2**-10 / widths[1] + cell["range"],
                                         widths[1] * per_ms)
    if whole is not None and not is_lowest(cell["phase"], widths[2]):
        phase = whole * 2**-10 / widths[3] + cell["phase"]
        expected["phaseRange"] = Scaled(phase, widths[3] * per_ms)
        if frequency:
            expected["carrierPhase"] = Scaled(phase, widths[3] / 1000 * frequency)
    if (cell["rate"] is not None and not is_lowest(cell["rate"], 15)
            and not is_lowest(rough_rate, 14)):
        rate = rough_rate * 10000 + cell["rate"]
        expected["rangeRate"] = Scaled(rate, 1e-4)
        if frequency:
            expected["doppler"] = Scaled(-rate, 1e-4 * frequency / SPEED_OF_LIGHT)
    if cell["cn0"]:
        expected["cn0"] = Scaled(cell["cn0"], widths[6])
    expected["lockTime"] = _lock_ms(cell["lock"], widths[4])
    expected["halfCycleAmbiguity"] = cell["half"]


class Msm:
    """One message; `satellites`, `signals` and `cells` are those of its masks."""

    def __init__(self, rng, tens, level, masks=None):
        self.rng, self.tens, self.level = rng, tens, level
        self.system, self.codes, self.bands, _ = SIGNALS[tens]
        self.widths = _COARSE if level < 6 else _FINE
        self.has_rates = level in (5, 7)
        self.station = rng.randrange(4096)
        self.epoch, self.tow_ms = _epoch(rng, self.system)
        self.head = [rng.getrandbits(width) for width in (1, 3, 7, 2, 2, 1, 3)]
        self.satellites, self.signals, self.cells = masks or _masks(rng, tens)
        self.rough = _satellites(rng, self.satellites, self.has_rates, self.system == _GLONASS)
        self.values = [_cell(rng, self.widths, self.has_rates) for _ in self.cells]

    def frame(self, cut=0):
        bits = Bits().u(self.tens * 10 + self.level, 12).u(self.station, 12).u(self.epoch, 30)
        for value, width in zip(self.head, (1, 3, 7, 2, 2, 1, 3)):
            bits.u(value, width)
        bits.u(_mask(self.satellites, 64), 64).u(_mask(self.signals, 32), 32)
        for satellite in self.satellites:
            for signal in self.signals:
                bits.u((satellite, signal) in self.cells, 1)
        _write_satellites(bits, self.rough, self.has_rates, self.rng)
        _write_cells(bits, self.values, self.widths, self.has_rates)
        payload = bits.bytes()
        return rtcm_frame(payload[:len(payload) - cut])

    def channel(self, satellite):
        extended = self.rough[satellite][1]
        return extended - 7 if self.has_rates and extended < 14 else None

    def expected(self, week=None, channels=None):
        observations = []
        for (satellite, signal), cell in zip(self.cells, self.values):
            channel = None
            if self.system == _GLONASS:
                channel = self.channel(satellite)
                if channel is None:
                    channel = (channels or {}).get(satellite)
            code = self.codes.get(signal)
            frequency = _carrier(self.system, self.bands, code, channel)
            number = satellite + 119 if self.system == _SBAS else satellite
            said = _observation(self.system, number, signal, code, frequency, channel)
            _said(cell, self.rough[satellite], self.widths, said, frequency)
            observations.append(said)
        return _head(self.tens * 10 + self.level, self.station, self.tow_ms, week, observations,
                     epochComplete=1 - self.head[0], stationIssue=self.head[1],
                     clockSteering=self.head[3], externalClock=self.head[4],
                     divergenceFree=self.head[5], smoothing=self.head[6])


def _msm(tens, level):
    def make(rng):
        msm = Msm(rng, tens, level)
        before, week, channels = b"", None, {}
        if rng.random() < 0.5:
            week, tow = rng.randrange(1930, 2600), rng.randrange(604800)
            before, week = dated(week, tow), _nearest_week(week, tow, msm.tow_ms)
        elif tens == 108 and rng.random() < 0.5:  # channels of an earlier message
            other = Msm(rng, tens, 7, (msm.satellites, [2], [(msm.satellites[0], 2)]))
            other.values[0]["phase"] = -2**23  # none, so that the lock of all begins behind it
            channels = {satellite: other.channel(satellite) for satellite in msm.satellites}
            before = other.frame()
        return before + msm.frame(), msm.expected(week, channels)
    return make


def _msm_again(level):
    """The same signals one second later: whether their lock was lost."""
    def make(rng):
        masks = _masks(rng, 107)
        first, second = Msm(rng, 107, level, masks), Msm(rng, 107, level, masks)
        first.epoch = rng.randrange(MS_OF_WEEK - 1000)
        second.epoch = second.tow_ms = first.epoch + 1000
        expected = second.expected()
        for one, other in zip(first.expected()["observations"], expected["observations"]):
            if None not in (one["phaseRange"], one["lockTime"], other["phaseRange"],
                            other["lockTime"]):
                other["lossOfLock"] = int(other["lockTime"] < 1000)
        return first.frame() + second.frame(), expected
    return make


def _glonass_day(rng):
    """Day 7, which means an unknown one, and other leap seconds than a stream begins with."""
    msm, leap = Msm(rng, 108, rng.randint(4, 7)), rng.randint(17, 20)
    week, tow = rng.randrange(1930, 2400), rng.randrange(604800)
    since = rng.randrange(-43000000, 43000000)  # within half a day of the time of the stream
    moment = (week * 604800 + tow) * 1000 + since
    msm.tow_ms = moment % MS_OF_WEEK
    msm.epoch = 7 << 27 | (moment - leap * 1000 + 10800000) % 86400000
    return dated(week, tow, leap) + msm.frame(), msm.expected(moment // MS_OF_WEEK)


def _not_taken(spoil):
    """A good message and behind it a bad one, of which no record may come."""
    def make(rng):
        good, level = Msm(rng, 107, 7), rng.randint(4, 7)
        return good.frame() + spoil(rng, rng.choice(sorted(SIGNALS)), level), good.expected()
    return make


def _too_many_cells(rng, tens, level):
    signals = list(range(2, 2 + rng.randint(9, 16)))
    satellites = list(range(1, 65 // len(signals) + 2))
    return Msm(rng, tens, level, (satellites, signals, [(1, 2)])).frame()


def _cut_short(rng, tens, level):
    msm = Msm(rng, tens, level, ([1, 2, 3], [2, 22], [(1, 2), (3, 22)]))
    return msm.frame(rng.randint(1, 20))


def _last_cut(make):
    """A good message and behind it another of its kind that lacks bytes: it gives no record."""
    def cut(rng):
        good, expected = make(rng)
        other, _ = make(rng)
        at = 0
        while (end := at + 6 + int.from_bytes(other[at + 1:at + 3], "big")) < len(other):
            at = end
        payload = other[at + 3:end - 3]
        return good + rtcm_frame(payload[:len(payload) - rng.randint(1, 6)]), expected
    return cut


def with_cut(messages):
    return messages + [Message(message.name + " cut short", message.kind, _last_cut(message.make))
                       for message in messages]


# --- 1001 to 1004 and 1009 to 1012

def _lock_s(indicator):
    """Seven bits; 127 is 937 s and more."""
    for first, step in ((24, 1), (48, 2), (72, 4), (96, 8), (120, 16), (127, 32)):
        if indicator < first:
            base = {1: 0, 2: 24, 4: 120, 8: 408, 16: 1176, 32: 3096}[step]
            return indicator * step - base
    return 937


class _Rtk:
    """Widths and meanings that differ between the messages of GPS and of GLONASS."""

    def __init__(self, first, system, modulus, range_bits, ambiguity_bits, bands):
        self.first, self.system, self.modulus = first, system, modulus
        self.range_bits, self.ambiguity_bits, self.bands = range_bits, ambiguity_bits, bands


_RTK_GPS = _Rtk(1001, _GPS, 299792.458, 24, 8, _GPS_BANDS)
_RTK_GLONASS = _Rtk(1009, _GLONASS, 599584.916, 25, 7, {})
_L1_CODES = {_GPS: ("1C", "1P"), _GLONASS: ("1C", "1P"), _SBAS: ("1C", None)}
# C/A or L2C, P(Y) direct, P(Y) cross-correlated, correlated P/Y; of GLONASS C/A and P.
_L2_CODES = {_GPS: ("2X", "2P", "2D", "2W"), _GLONASS: ("2C", "2P"), _SBAS: (None,) * 4}


def _rtk_phase(observation, raw, frequency):
    """`raw` in 0.5 mm."""
    observation["phaseRange"] = Scaled(raw, 5e-4)
    if frequency:
        observation["carrierPhase"] = Scaled(raw, 5e-4 * frequency / SPEED_OF_LIGHT)


def _rtk_satellite(rng, rtk, bits, satellite, is_extended, has_l2):
    """Writes one satellite; what is expected of its signals."""
    system, number, channel = rtk.system, satellite, None
    indicator = flag(rng)
    bits.u(satellite, 6).u(indicator, 1)
    if system == _GLONASS:
        channel = rng.randrange(21)
        bits.u(channel, 5)
        channel -= 7
    elif satellite >= 40:
        system, number = _SBAS, satellite + 80
    metres50 = rng.randrange(int(rtk.modulus * 50))  # 0.02 m
    if has_l2 and rtk.system == _GPS and rng.random() < 0.1:
        metres50 = 0x80000  # no code of L1; the value serves L2 alone
    phase, lock = some_signed(rng, 20), rng.randrange(128)
    bits.u(metres50, rtk.range_bits).s(phase, 20).u(lock, 7)
    ambiguity, cn0 = (rng.randrange(1 << rtk.ambiguity_bits), rng.randrange(256)) \
        if is_extended else (0, 0)
    if is_extended:
        bits.u(ambiguity, rtk.ambiguity_bits).u(cn0, 8)
    # Both moduli and 0.02 m are whole numbers of 0.5 mm.
    half_mm = ambiguity * round(rtk.modulus * 2000) + metres50 * 40
    code = _L1_CODES[system][indicator]
    said = [_observation(system, number, indicator, code,
                         _carrier(system, rtk.bands, code, channel), channel)]
    if not (rtk.system == _GPS and metres50 == 0x80000):
        said[0]["pseudorange"] = Scaled(half_mm, 5e-4)
    if not is_lowest(phase, 20):
        _rtk_phase(said[0], half_mm + phase, _carrier(system, rtk.bands, code, channel))
    said[0]["lockTime"] = _lock_s(lock) * 1000
    said[0]["cn0"] = Scaled(cn0, 0.25) if cn0 else None
    return said, half_mm, (system, number, channel)


def _rtk_l2(rng, rtk, bits, half_mm, satellite, is_extended):
    system, number, channel = satellite
    codes = _L2_CODES[system]
    indicator = rng.randrange(len(codes))
    code = codes[indicator]
    frequency = _carrier(system, rtk.bands, code, channel)
    difference, phase, lock = some_signed(rng, 14), some_signed(rng, 20), rng.randrange(128)
    cn0 = rng.randrange(256) if is_extended else 0
    bits.u(indicator, 2).s(difference, 14).s(phase, 20).u(lock, 7)
    if is_extended:
        bits.u(cn0, 8)
    said = _observation(system, number, indicator, code, frequency, channel)
    if not is_lowest(difference, 14):
        said["pseudorange"] = Scaled(half_mm + difference * 40, 5e-4)
    if not is_lowest(phase, 20):
        _rtk_phase(said, half_mm + phase, frequency)
    said["lockTime"] = _lock_s(lock) * 1000
    said["cn0"] = Scaled(cn0, 0.25) if cn0 else None
    return said


def _rtk(rtk, message):
    is_extended, has_l2 = message % 2 == rtk.first % 2 - 1, message - rtk.first >= 2

    def make(rng):
        is_glonass = rtk.system == _GLONASS
        station, sync, free, smoothing = (rng.getrandbits(width) for width in (12, 1, 1, 3))
        known = list(range(1, 25)) if is_glonass else [*range(1, 33), *range(40, 59)]
        satellites = rng.sample(known, rng.randrange(min(len(known), 32)))
        week, tow = rng.randrange(1930, 2600), rng.randrange(604800)
        before, tow_ms = dated(week, tow), _some_ms(rng)
        bits = Bits().u(message, 12).u(station, 12)
        if is_glonass:  # within half a day of the stream's time
            tow_ms = (tow * 1000 + rng.randrange(-43100000, 43100000)) % MS_OF_WEEK
            bits.u((tow_ms - LEAP_SECONDS * 1000 + 10800000) % 86400000, 27)
        else:
            bits.u(tow_ms, 30)
        bits.u(sync, 1).u(len(satellites), 5).u(free, 1).u(smoothing, 3)
        observations = []
        for satellite in satellites:
            said, half_mm, which = _rtk_satellite(rng, rtk, bits, satellite, is_extended, has_l2)
            observations += said
            if has_l2:
                observations.append(_rtk_l2(rng, rtk, bits, half_mm, which, is_extended))
        modulus = 0 if is_extended else rtk.modulus
        return before + rtcm_frame(bits.bytes()), _head(
            message, station, tow_ms, _nearest_week(week, tow, tow_ms), observations,
            rangeModulus=Scaled(modulus, 1), epochComplete=1 - sync, divergenceFree=free,
            smoothing=smoothing)
    return make


MESSAGES = (
    [Message(f"RTCM {tens}{level} {_NAMES[tens]}", "OBSERVATIONS", _msm(tens, level))
     for tens in SIGNALS for level in (4, 5, 6, 7)]
    + [Message(f"RTCM 107{level} again", "OBSERVATIONS", _msm_again(level))
       for level in (4, 5, 6, 7)]
    + [Message("RTCM 1084-1087 day 7", "OBSERVATIONS", _glonass_day),
       Message("RTCM MSM of too many cells", "OBSERVATIONS", _not_taken(_too_many_cells)),
       Message("RTCM MSM cut short", "OBSERVATIONS", _not_taken(_cut_short))]
    + with_cut([Message(f"RTCM {message}", "OBSERVATIONS", _rtk(rtk, message))
                for rtk in (_RTK_GPS, _RTK_GLONASS)
                for message in range(rtk.first, rtk.first + 4)]))

_RESERVED = "DF001", "reserved"
_ROUGH = ("DF397 and DF398", "rough range of a satellite without a pseudorange and a phase")
_EXTENDED = "extended satellite information", "reserved, but for GLONASS"

NOT_HELD = {
    f"RTCM {tens}{level} {_NAMES[tens]}":
        [_RESERVED, _ROUGH] + ([_EXTENDED] if tens != 108 and level in (5, 7) else [])
    for tens in SIGNALS for level in (4, 5, 6, 7)}
