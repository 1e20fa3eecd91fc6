"""Random messages 910, 999 and 4074 for scripts/compare-fields.

What they hold, and where, is the library's own reading: the table in docs/compatibility.md. Bits
are counted from the first one of the frame.
"""

from datetime import datetime, timedelta

from wire import Clock, Message, Scaled, rtcm_frame

_NUMBER_BIT = 24
# Bytes of a message; of two of them others give no record.
_BYTES, _OWN_BYTES = 100, {(910, 33): 7, (999, 21): 57}


def _message(number, sub_type, rows):
    """Random bytes with values in them at the (bit, width) of the rows."""
    count = _OWN_BYTES.get((number, sub_type), _BYTES)

    def put(whole, bit, width, value):
        shift = 24 + count * 8 - bit - width
        mask = (1 << width) - 1
        return whole & ~(mask << shift) | (value & mask) << shift

    def make(rng, values):
        whole = put(rng.getrandbits(count * 8), _NUMBER_BIT, 12, number)
        whole = put(whole, 36, 12 if number == 4074 else 8, sub_type)
        for (bit, width), value in zip(rows, values):
            whole = put(whole, bit, width, value)
        return rtcm_frame(whole.to_bytes(count, "big"))
    return make


def _of(number, sub_type, rows, values_and_members):
    write = _message(number, sub_type, rows)

    def make(rng):
        values, expected = values_and_members(rng)
        return write(rng, values), expected
    return make


def _time(rng):
    week, tow = rng.randrange(1930, 2400), rng.randrange(604800000)
    return [tow, week], {"tow": tow, "week": week}


def _bytes_from(first, count, width=8):
    return [(first + place * width, width) for place in range(count)]


def _some(rng, count, width=8):
    return [rng.getrandbits(width) for _ in range(count)]


_TIME = [(48, 30), (78, 16)]
_TIME_9 = [(44, 30), (74, 16)]
_CALENDAR = [*_TIME, (94, 16), *_bytes_from(110, 5), (150, 16)]


def _sub17(rng):
    values = _some(rng, 27)
    return values, {"tow": Clock, "first": values[:15], "second": values[15:]}


def _sub33(rng):
    values = _some(rng, 7, 4)
    return values, {"tow": Clock, "values": values}


def _sub34(rng):
    time, expected = _time(rng)
    state, mode, values = rng.randrange(255), rng.getrandbits(4), _some(rng, 9)
    return [*time, state, mode, *values], {**expected, "state": state, "mode": mode,
                                           "values": values}


def _sub21(rng):
    time, expected = _time(rng)
    body = _some(rng, 48)
    return [*time, *body], {**expected, "body": body}


def _gyroscope(rng):
    time, expected = _time(rng)
    return time, {"gpsTime": expected, "gyro": [None] * 3, "acceleration": [None] * 3,
                  "timeText": None}


def _statistics(rng):
    state, levels = rng.randrange(255), [rng.randrange(128) for _ in range(3)]
    return [state, *levels], {"count": 1, "state": state, "levels": levels}


def _calendar(rng, members):
    """GPS time, and the same moment as UTC with 18 leap seconds."""
    time, expected = _time(rng)
    moment = datetime(1980, 1, 6) + timedelta(weeks=time[1], milliseconds=time[0] - 18000)
    ms = moment.microsecond // 1000
    utc = {"year": moment.year, "month": moment.month, "day": moment.day, "hour": moment.hour,
           "minute": moment.minute, "second": moment.second, "millisecond": ms}
    return [*time, *utc.values()], {"gpsTime": expected, "utc": utc,
                                    "timeText": f"{moment:%H%M%S}.{ms // 10:02}", **members}


def _attitude(rng):
    return _calendar(rng, {"values": [None] * 6})


def _inertial(rng):
    return _calendar(rng, {"values": [None] * 6, "text": [None] * 2})


def _solution(rng):
    latitude = rng.randrange(-90 * 2**32, 90 * 2**32)
    values, expected = _calendar(rng, {
        "latitude": Scaled(latitude, 2**-32), "longitude": None, "height": None,
        "velocity": [None] * 3, "attitude": [None] * 3})
    year, month, day = values[2:5]
    return [*values, latitude], {**expected, "dateText": f"{day:02}{month:02}{year % 100:02}"}


def _status(rng):
    time, expected = _time(rng)
    status = [rng.randrange(255), rng.getrandbits(4)]
    return [*time, *status], {**expected, "timeText": None, "status": status}


def _signals(rng):
    time, expected = _time(rng)
    return time, {**expected, "timeText": None, "count": 0, "satellites": []}


def _integers(rng):
    time, expected = _time(rng)
    return time, {**expected, "timeText": None, "latitude": None, "longitude": None,
                  "integers": [0] * 3}


def _nothing(**others):
    """Of messages whose records are made, and hold nothing of them."""
    return lambda _: ([], {"tow": None, "week": None, **others})


_ROWS = (
    (910, 17, "RTCM-SUB17", _bytes_from(44, 27), _sub17),
    (910, 33, "RTCM-SUB33", _bytes_from(44, 7, 4), _sub33),
    (910, 34, "RTCM-SUB34", [*_TIME_9, (90, 8), (98, 4), *_bytes_from(102, 9)], _sub34),
    (999, 21, "RTCM-SUB21", [*_TIME_9, *_bytes_from(90, 48)], _sub21),
    (4074, 11, "RTCM-GYOACC", _TIME, _gyroscope),
    (4074, 12, "RTCM-SNRSTAT", _bytes_from(48, 4), _statistics),
    (4074, 13, "RTCM-NAVATT", _CALENDAR, _attitude),
    (4074, 14, "RTCM-IMURAW", _CALENDAR, _inertial),
    (4074, 15, "RTCM-INSPVA", [*_CALENDAR, (166, 64)], _solution),
    (4074, 243, "RTCM-TIMESTATUS", [*_TIME, (94, 8), (102, 4)], _status),
    (4074, 249, "RTCM-SUB249", [], _nothing()),
    (4074, 251, "RTCM-CLOCKORBIT", [],
     _nothing(system=None, values=[None] * 4, integers=[None] * 4)),
    (4074, 253, "RTCM-COUNTS", [], _nothing(timeText=None, counts=[0] * 4)),
    (4074, 254, "RTCM-SIGNALS", _TIME, _signals),
    (4074, 255, "RTCM-INTEGERS", _TIME, _integers),
)

MESSAGES = [Message(f"RTCM {number}/{sub_type}", kind, _of(number, sub_type, rows, make))
            for number, sub_type, kind, rows, make in _ROWS]

_REST = "the rest", "Positions in the proprietary messages of docs/compatibility.md"
NOT_HELD = {message.name: [_REST] for message in MESSAGES}
