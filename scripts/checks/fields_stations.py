"""Random messages of RTCM 3 for scripts/compare-fields: what reference stations say of themselves.

Fields, their order, resolutions and invalid codes are those of RTCM 10403.3.
"""

from fields_rtcm import dated, flag, is_lowest, some_signed, with_cut
from wire import Bits, Clock, Message, Scaled, rtcm_frame


def _at(rng):
    """A date for the stream, and the members that repeat it."""
    week, tow = rng.randrange(1930, 2600), rng.randrange(604800)
    return dated(week, tow), {"week": week, "tow": tow * 1000}


def _antenna_point(message):
    def make(rng):
        before, expected = _at(rng)
        station, year = rng.getrandbits(12), rng.getrandbits(6)
        flags = [flag(rng) for _ in range(5)]
        quarter, reserved = rng.getrandbits(2), flag(rng)
        places = [rng.randrange(-2**37, 2**37) for _ in range(3)]
        bits = Bits().u(message, 12).u(station, 12).u(year, 6)
        for one in flags[:4]:
            bits.u(one, 1)
        bits.s(places[0], 38).u(flags[4], 1).u(reserved, 1).s(places[1], 38)
        bits.u(quarter, 2).s(places[2], 38)
        height = rng.getrandbits(16)
        if message == 1006:
            bits.u(height, 16)
        for name, value in zip(("gps", "glonass", "galileo", "referenceStation",
                                "oneOscillator"), flags):
            expected[name] = value
        for name, value in zip("xyz", places):
            expected[name] = Scaled(value, 1e-4)
        return before + rtcm_frame(bits.bytes()), {
            **expected, "stationId": station, "rtcmMessage": message, "itrfYear": year,
            "quarterCycle": quarter or None,
            "antennaHeight": Scaled(height, 1e-4) if message == 1006 else None}
    return make


def _text(rng):
    length = rng.choice((0, 31, rng.randrange(32)))
    return "".join(chr(rng.randrange(32, 127)) for _ in range(length))


def _put_text(bits, text):
    bits.u(len(text), 8)
    for byte in text.encode("latin-1"):
        bits.u(byte, 8)


def _equipment(message):
    fields = {1007: ("antenna",), 1008: ("antenna", "antennaSerial"),
              1033: ("antenna", "antennaSerial", "receiver", "firmware", "receiverSerial")}

    def make(rng):
        before, expected = _at(rng)
        station, setup = rng.getrandbits(12), rng.getrandbits(8)
        bits = Bits().u(message, 12).u(station, 12)
        expected.update(stationId=station, rtcmMessage=message, setupId=setup)
        expected.update(dict.fromkeys(fields[1033]))
        for name in fields[message]:
            text = _text(rng)
            expected[name] = text or None
            _put_text(bits, text)
            if name == "antenna":
                bits.u(setup, 8)
        return before + rtcm_frame(bits.bytes()), expected
    return make


def _biases(rng):
    before, expected = _at(rng)
    station, aligned, reserved, mask = (rng.getrandbits(width) for width in (12, 1, 3, 4))
    bits = Bits().u(1230, 12).u(station, 12).u(aligned, 1).u(reserved, 3).u(mask, 4)
    expected.update(stationId=station, aligned=aligned)
    for place, name in enumerate(("l1Ca", "l1P", "l2Ca", "l2P")):
        expected[name] = None
        if mask & 8 >> place:
            raw = some_signed(rng, 16)
            bits.s(raw, 16)
            expected[name] = None if is_lowest(raw, 16) else Scaled(raw, 0.02)
    return before + rtcm_frame(bits.bytes()), expected


def _parameters(rng):
    station, leap = rng.getrandbits(12), rng.randrange(10, 30)
    day, second = rng.randrange(57800, 62000), rng.randrange(86400)
    several = [(rng.getrandbits(12), flag(rng), rng.getrandbits(16))
               for _ in range(rng.randrange(32))]
    bits = Bits().u(1013, 12).u(station, 12).u(day, 16).u(second, 17).u(len(several), 5)
    bits.u(leap, 8)
    for message, synchronous, interval in several:
        bits.u(message, 12).u(synchronous, 1).u(interval, 16)
    return rtcm_frame(bits.bytes()), {
        "tow": Clock, "stationId": station, "modifiedJulianDay": day, "secondsOfDay": second,
        "count": len(several), "leapSeconds": leap,
        "announcements": [{"messageId": message, "synchronous": synchronous, "interval": interval}
                          for message, synchronous, interval in several]}


def _message_text(rng):
    before, expected = _at(rng)
    station, day, second = rng.getrandbits(12), rng.getrandbits(16), rng.randrange(86400)
    text = "".join(rng.choice("aZ9 é€ß水𝄞") for _ in range(rng.randrange(60)))
    sent = text.encode()
    bits = Bits().u(1029, 12).u(station, 12).u(day, 16).u(second, 17).u(len(text), 7)
    bits.u(len(sent), 8)
    for byte in sent:
        bits.u(byte, 8)
    return before + rtcm_frame(bits.bytes()), {
        **expected, "stationId": station, "modifiedJulianDay": day, "secondsOfDay": second,
        "characters": len(text), "length": len(sent), "text": text or None}


MESSAGES = with_cut(
    [Message(f"RTCM {message}", "STATION-ARP", _antenna_point(message))
     for message in (1005, 1006)]
    + [Message(f"RTCM {message}", kind, _equipment(message))
       for message, kind in ((1007, "STATION-ANTENNA"), (1008, "STATION-ANTENNA"),
                             (1033, "STATION-RECEIVER"))]
    + [Message("RTCM 1029", "STATION-TEXT", _message_text),
       Message("RTCM 1230", "STATION-GLO-BIASES", _biases)]
) + [Message("RTCM 1013", "SYSPARAM", _parameters)]

NOT_HELD = {f"RTCM {message}": [("DF001", "reserved")] for message in (1005, 1006, 1230)}
