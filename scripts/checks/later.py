"""Observations of a stream at a later time, or of another station: for long streams, and for those
of stations that are mixed up. Checks of frames are made from what changes alone, which is fast.
  scripts/checks/later.py STREAM MEGABYTES >FILE   a stream again and again, its time going on"""

import struct
import sys
from pathlib import Path

WEEK_MS, DAY_MS = 604800000, 86400000
_OF_WEEK = {1001, 1002, 1003, 1004, *(tens * 10 + kind for tens in (107, 109, 110, 111, 112, 113)
                                      for kind in range(1, 8))}
_OF_DAY = {1009, 1010, 1011, 1012}
_GLONASS_MSM = set(range(1081, 1088))
_RAWX = b"\xb5\x62\x02\x15"


def frames(data):
    """Frames of RTCM 3 and UBX that follow each other without anything between."""
    at = 0
    while at < len(data):
        is_ubx = data[at] == 0xB5
        length = data[at + 4] + 256 * data[at + 5] + 8 if is_ubx else \
            (data[at + 1] & 3) * 256 + data[at + 2] + 6
        yield data[at:at + length]
        at += length


def _powers():
    """What a bit adds to the CRC by how many bits stand behind it."""
    found, value = [], 0x864CFB
    for _ in range(8 * 1029):
        found.append(value)
        value = value << 1 ^ (0x1864CFB if value & 0x800000 else 0)
    return found


_POWERS = _powers()


def number(frame):
    """Of the message, None but for RTCM 3."""
    return frame[3] << 4 | frame[4] >> 4 if frame[0] == 0xD3 else None


def with_bits(frame, begin, width, value):
    """A frame of RTCM 3 with other bits of its payload, and its CRC."""
    length = len(frame) - 6
    whole = int.from_bytes(frame[3:-3], "big")
    behind = 8 * length - begin - width
    change = (whole >> behind & (1 << width) - 1) ^ value
    crc = int.from_bytes(frame[-3:], "big")
    for bit in range(width):
        if change >> bit & 1:
            crc ^= _POWERS[behind + bit]
    return frame[:3] + (whole ^ change << behind).to_bytes(length, "big") + crc.to_bytes(3, "big")


def bits(frame, begin, width):
    return int.from_bytes(frame[3:-3], "big") >> 8 * (len(frame) - 6) - begin - width & (
        1 << width) - 1


def of_station(frame, station):
    return with_bits(frame, 12, 12, station)


def _raw_later(frame, ms):
    tow, week = struct.unpack_from("<dH", frame, 6)
    later = tow + ms / 1000
    body = bytearray(frame[2:-2])
    struct.pack_into("<dH", body, 4, later % 604800, week + int(later // 604800))
    a, b = frame[-2:]
    for at in range(4, 14):
        change = body[at] - frame[at + 2]
        a, b = a + change, b + (len(body) - at) * change
    return frame[:2] + bytes(body) + bytes((a & 255, b & 255))


def later(frame, ms):
    """Others than observations are as they were."""
    if frame.startswith(_RAWX):
        return _raw_later(frame, ms)
    message = number(frame)
    if message in _OF_WEEK:
        return with_bits(frame, 24, 30, (bits(frame, 24, 30) + ms) % WEEK_MS)
    if message in _GLONASS_MSM:
        local = (bits(frame, 24, 3) * DAY_MS + bits(frame, 27, 27) + ms) % WEEK_MS
        return with_bits(frame, 24, 30, local // DAY_MS << 27 | local % DAY_MS)
    if message == 1013:
        second = bits(frame, 24, 16) * 86400 + bits(frame, 40, 17) + ms // 1000
        return with_bits(with_bits(frame, 24, 16, second // 86400), 40, 17, second % 86400)
    if message in _OF_DAY:
        return with_bits(frame, 24, 27, (bits(frame, 24, 27) + ms) % DAY_MS)
    return frame


def moment(frame):
    """That of observations [ms], but for those of GLONASS; None of others."""
    if frame.startswith(_RAWX):
        return round(struct.unpack_from("<d", frame, 6)[0] * 1000)
    return bits(frame, 24, 30) if number(frame) in _OF_WEEK else None


def once(some):
    """Frames until the time of a message goes back, and how long that is [ms], the last epoch taken
    as a second."""
    first, last, found = {}, {}, []
    for frame in some:
        told, now = number(frame), moment(frame)
        if now is not None:
            if now < last.get(told, now):
                break
            first.setdefault(told, now)
            last[told] = now
        found.append(frame)
    return found, max(last[told] - first[told] for told in first) + 1000


def main():
    some, length = once(frames(Path(sys.argv[1]).read_bytes()))
    wanted, done, turn = int(sys.argv[2]) * 10**6, 0, 0
    while done < wanted:
        done += sys.stdout.buffer.write(b"".join(later(frame, turn * length) for frame in some))
        turn += 1


if __name__ == "__main__":
    main()
