"""Writers of frames and what the records made of them are to hold, for scripts/compare-fields.

Knows how frames are sealed and nothing of the library: what a message holds stands in the modules
`fields_*.py`, each of which has

- `MESSAGES`, a list of `Message`: `make(rng)` answers the bytes of a random message and what is
  expected of the record that comes of it: member names (nested records as dictionaries, lists as
  lists of all elements in use) to a plain value (None unknown, number, text), `Scaled`, `Single`
  or `Clock`;
- `NOT_HELD`, {name of a message: [(field, why)]}: what is sent and no member holds.
"""

from collections import namedtuple

# `kind` is that of the record in a Standard stream.
Message = namedtuple("Message", "name kind make")

# raw * step, as exactly as `step` needs.
Scaled = namedtuple("Scaled", "raw step")

# A number of 32 bits with a fraction, which JSON has in no more digits than it takes.
Single = namedtuple("Single", "value")


class _Clock:
    def __repr__(self):
        return "Clock"


# What comes from the stream's clock and not from the message: not compared.
Clock = _Clock()


class Bits:
    """Fields of any width, the highest bit first, as RTCM 3 has them."""

    def __init__(self):
        self.value, self.length = 0, 0

    def u(self, value, width):
        if not 0 <= value < 1 << width:
            raise ValueError(f"{value} does not fit {width} bits")
        self.value, self.length = self.value << width | value, self.length + width
        return self

    def s(self, value, width):
        """Two's complement."""
        if not -(1 << width - 1) <= value < 1 << width - 1:
            raise ValueError(f"{value} does not fit {width} bits with sign")
        return self.u(value & (1 << width) - 1, width)

    def sm(self, value, width):
        """Sign and magnitude, as GLONASS has them."""
        return self.u(1 if value < 0 else 0, 1).u(abs(value), width - 1)

    def bytes(self):
        """All of it, the last byte filled up with zeros."""
        fill = -self.length % 8
        return (self.value << fill).to_bytes((self.length + fill) // 8, "big")


def ubx_frame(message_class, message_id, payload):
    body = bytes((message_class, message_id)) + len(payload).to_bytes(2, "little") + payload
    a = b = 0
    for byte in body:
        a = a + byte & 0xFF
        b = b + a & 0xFF
    return b"\xb5\x62" + body + bytes((a, b))


def nmea_sentence(body):
    """`body` is the text between "$" and "*"."""
    checksum = 0
    for byte in body.encode("latin-1"):
        checksum ^= byte
    return f"${body}*{checksum:02X}\r\n".encode("latin-1")


def _crc24q(data):
    crc = 0
    for byte in data:
        crc ^= byte << 16
        for _ in range(8):
            crc = crc << 1 ^ (0x1864CFB if crc & 0x800000 else 0)
    return crc


def rtcm_frame(payload):
    if len(payload) > 1023:
        raise ValueError(f"{len(payload)} bytes do not fit a frame")
    frame = b"\xd3" + len(payload).to_bytes(2, "big") + payload
    return frame + _crc24q(frame).to_bytes(3, "big")


def log_line(text):
    """An ASCII log; `text` is what stands between "#" and "*"."""
    crc = 0
    for byte in text.encode("latin-1"):
        crc ^= byte
        for _ in range(8):
            crc = crc >> 1 ^ (0xEDB88320 if crc & 1 else 0)
    return f"#{text}*{crc:08x}\r\n".encode("latin-1")
