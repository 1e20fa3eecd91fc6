"""Random RXM-RAWX and the observations that are to come of them, for scripts/compare-fields."""

import math
import struct

from ubx_tables import draw, draw_float
from wire import Message, Scaled, ubx_frame

LIGHT_SPEED = 299792458.0
UNLISTED = (None, math.nan)

# gnssId: (ObservedSystem, satellites, {sigId: code of RINEX and MHz}).
_L1, _L2, _L5, _E5B, _E6 = 1575.42, 1227.60, 1176.45, 1207.14, 1278.75
_B1I, _B3I = 1561.098, 1268.52
SYSTEMS = {
    0: (1, range(1, 33), {0: ("1C", _L1), 2: UNLISTED, 3: ("2L", _L2), 4: ("2S", _L2),
                          6: ("5I", _L5), 7: ("5Q", _L5)}),
    1: (7, range(120, 159), {0: ("1C", _L1)}),
    2: (3, range(1, 37), {0: ("1C", _L1), 1: ("1B", _L1), 3: ("5I", _L5), 4: ("5Q", _L5),
                          5: ("7I", _E5B), 6: ("7Q", _E5B), 8: ("6B", _E6), 9: ("6C", _E6),
                          10: ("6A", _E6)}),
    3: (4, range(1, 64), {0: ("2I", _B1I), 1: ("2I", _B1I), 2: ("7I", _E5B), 3: ("7I", _E5B),
                          4: ("6I", _B3I), 10: ("6I", _B3I), 5: ("1P", _L1), 6: ("1D", _L1),
                          7: ("5P", _L5), 8: ("5D", _L5)}),
    4: (None, range(173, 183), {0: UNLISTED}),
    5: (5, range(1, 11), {0: ("1C", _L1), 1: ("1Z", _L1), 4: ("2S", _L2), 5: ("2L", _L2),
                          8: ("5I", _L5), 9: ("5Q", _L5), 12: ("1E", _L1)}),
    6: (2, (*range(1, 33), 255), {0: ("1C", 1602.0), 2: ("2C", 1246.0)}),
    7: (6, range(1, 15), {0: ("5A", _L5)}),
}
GLONASS = 6
SPACING = {0: 0.5625, 2: 0.4375}  # MHz from one channel of GLONASS to the next, by signal

# What a message of one receiver cannot say, but one of a reference station.
OF_STATIONS = dict.fromkeys(("stationId", "stationIssue", "clockSteering", "externalClock",
                             "divergenceFree", "smoothing"))


def _computed(value, step=1e-6):
    """A number that is made of others, which may not be known."""
    return None if math.isnan(value) else Scaled(value / step, step)


def _signals(rng):
    """Each once, with its slot: of a repeated one it could be told whether lock was lost."""
    all_of = [(gnss, satellite, signal) for gnss, (_, satellites, signals) in SYSTEMS.items()
              for satellite in satellites for signal in signals]
    some = rng.sample(all_of, rng.choice((0, 1, 2, 8, 30, 255 if rng.random() < 0.1 else 5)))
    return [(*signal, rng.randrange(14) if signal[0] == GLONASS else draw(rng, 8))
            for signal in some]


def _block(rng, gnss, satellite, signal, slot):
    system, _, signals = SYSTEMS[gnss]
    code, megahertz = signals[signal]
    if gnss == GLONASS:
        megahertz += (slot - 7) * SPACING[signal]
    wave = LIGHT_SPEED / (megahertz * 1e6)
    pseudorange = rng.choice((0.0, rng.uniform(1.9e7, 4.2e7)))
    phase = rng.choice((rng.uniform(9e7, 2.4e8), rng.uniform(-1e9, 1e9)))
    doppler, = struct.unpack("<f", struct.pack("<f", rng.uniform(-5e3, 5e3)))
    lock, cn0 = rng.choice((0, 64500, rng.randrange(64501))), draw(rng, 8)
    deviations, state = [draw(rng, 4) for _ in range(3)], draw(rng, 4)
    spare = [rng.getrandbits(4) << 4 for _ in range(4)]
    data = struct.pack("<ddf4BHB3BBx", pseudorange, phase, doppler, gnss, satellite, signal, slot,
                       lock, cn0, *(part | rest for part, rest in zip(deviations, spare)),
                       state | spare[3])
    has_range, has_phase, half_known, half_subtracted = (state >> bit & 1 for bit in range(4))
    return data, {
        "system": system, "satellite": None if satellite == 255 else satellite, "signal": signal,
        "channel": slot - 7 if gnss == GLONASS else None, "code": code,
        "frequency": _computed(megahertz * 1e6),
        "pseudorange": pseudorange if has_range else None,
        "carrierPhase": phase if has_phase else None,
        "phaseRange": _computed(phase * wave) if has_phase else None,
        "doppler": doppler, "rangeRate": _computed(-doppler * wave), "cn0": cn0,
        "pseudorangeDeviation": Scaled(1, 0.01 * 2 ** deviations[0]),
        "carrierPhaseDeviation": None if deviations[1] == 15 else Scaled(deviations[1], 0.004),
        "dopplerDeviation": Scaled(1, 0.002 * 2 ** deviations[2]),
        "lockTime": lock, "lossOfLock": None, "halfCycleAmbiguity": 1 - half_known,
        "halfCycleSubtracted": half_subtracted}


def raw(rng, tow=None, signals=None, week=None):
    tow = rng.choice((0.0, 604799.999999, rng.uniform(0, 604800))) if tow is None else tow
    week = draw(rng, 16) if week is None else week
    leap, state, version = draw(rng, 8), draw(rng, 8), rng.randrange(2)
    signals = _signals(rng) if signals is None else signals
    blocks = [_block(rng, *signal) for signal in signals]
    payload = struct.pack("<dHBBBBxx", tow, week, leap, len(blocks), state, version)
    payload += b"".join(data for data, _ in blocks)
    leap_seconds = leap - 256 if leap > 127 else leap
    return ubx_frame(0x02, 0x15, payload), OF_STATIONS | {
        "tow": tow, "week": None if week == 0xFFFF else week, "message": 0x0215, "protocol": 8,
        "version": version, "rangeModulus": 0, "epochComplete": 1,
        "leapSeconds": None if leap_seconds == -128 else leap_seconds, "leapKnown": state & 1,
        "clockReset": state >> 1 & 1, "count": len(blocks),
        "observations": [observation for _, observation in blocks]}


def _raw_again(rng):
    """Two epochs: lock was lost where its time is shorter than what has passed."""
    signals = _signals(rng)[:40]
    start, passed = rng.randrange(604800000), rng.choice((50, 1000, 64500, 64501, 200000))
    first, before = raw(rng, start / 1000, signals)
    second, expected = raw(rng, (start + passed) % 604800000 / 1000, signals)
    for old, new in zip(before["observations"], expected["observations"]):
        if None not in (old["carrierPhase"], new["carrierPhase"]):
            new["lossOfLock"] = int(new["lockTime"] < min(passed, 64500))
    return first + second, expected


MESSAGES = [Message("RXM-RAWX", "OBSERVATIONS", raw),
            Message("RXM-RAWX again", "OBSERVATIONS", _raw_again)]
NOT_HELD = {"RXM-RAWX": [("freqId", "of other systems than GLONASS, for which it means nothing"),
                         ("gnssId", "of systems that ObservedSystem does not have (IMES)")]}
