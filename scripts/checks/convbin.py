"""Runs convbin (package rtklib) on the frames of a capture, as it can use them."""

import os
import subprocess

import rinex
import satellites
import streams

FORMATS = {streams.RTCM3: "rtcm3", streams.UBX: "ubx"}
RAWX, SFRBX, GALILEO = b"\x02\x15", b"\x02\x13", 2
# Observations of RTK as they are sent together; those that tell no whole ranges are left out.
RTK_MESSAGES = {1002: "1002, 1010", 1010: "1002, 1010", 1004: "1004, 1012", 1012: "1004, 1012"}
MSM = range(1071, 1138)
MORE_TO_COME = {1010: 51, 1012: 51, 1002: 54, 1004: 54}  # bit of the payload; of MSM the last


def kind_of(message):
    """Observations of one kind are converted at once: of a signal that several kinds tell convbin
    keeps the last. None of what is not converted."""
    if message in MSM:
        return f"MSM{message % 10}"
    return RTK_MESSAGES.get(message, None if 1001 <= message <= 1012 else "")


def kind_of_item(item):
    return kind_of(item.message) if item.protocol == streams.RTCM3 else "UBX"


def _ubx_sealed(frame):
    """With its length and checksum anew."""
    body = bytearray(frame[2:-2])
    body[2:4] = (len(body) - 4).to_bytes(2, "little")
    a = b = 0
    for byte in body:
        a = (a + byte) & 0xFF
        b = (b + a) & 0xFF
    return frame[:2] + bytes(body) + bytes((a, b))


def _ubx_usable(frame):
    """convbin knows pages of Galileo as receivers send them that add a ninth word to the eight, and
    leaves out phases whose deviation is above 5, which is not compared."""
    if frame[2:4] == RAWX:
        changed = bytearray(frame)
        for deviation in range(6 + 16 + 28, len(frame) - 2, 32):
            changed[deviation] = min(changed[deviation] & 15, 5)
        return _ubx_sealed(bytes(changed))
    if frame[2:4] == SFRBX and frame[6] == GALILEO and frame[10] == 8:
        return _ubx_sealed(frame[:10] + b"\x09" + frame[11:-2] + bytes(4) + frame[-2:])
    return frame


def _ended(item):
    """The frame of observations as the last of its epoch: convbin hands out no other epochs."""
    bit = MORE_TO_COME.get(item.message, 54)
    changed = bytearray(item.bytes)
    changed[3 + bit // 8] &= ~(0x80 >> bit % 8) & 0xFF
    value = 0
    for byte in changed[:-3]:
        value ^= byte << 16
        for _ in range(8):
            value = value << 1 ^ (0x1864CFB if value & 0x800000 else 0)
    return bytes(changed[:-3]) + value.to_bytes(3, "big")


def frames(path, protocol, kind, observed):
    """The frames of a protocol whose observations are of this kind, and ephemerides. They are
    handed over alone: a false head elsewhere, or a frame cut off, makes convbin lose others."""
    epochs = {item.offset: item.record["tow"] for item in observed}
    taken = [item for item in streams.items(path.read_bytes(), streams.FRAME)
             if item.protocol == protocol and
             (protocol == streams.UBX or kind_of(item.message) in (kind, ""))]
    last = {epochs[item.offset]: item.offset for item in taken if item.offset in epochs}
    for item in taken:
        if protocol == streams.UBX:
            yield _ubx_usable(item.bytes)
        else:
            yield _ended(item) if item.offset in last.values() else item.bytes


def files(source, protocol, start, folder):
    """Paths of observations and navigation that it makes of the bytes."""
    path, observed, orbits = folder / "frames", folder / "theirs.obs", folder / "theirs.nav"
    path.write_bytes(b"".join(source))
    for output in (observed, orbits):
        output.unlink(missing_ok=True)
    subprocess.run(["convbin", "-r", FORMATS[protocol], "-v", "3.05", "-f", "7",
                    "-od", "-os", "-oi", "-ot", "-ol", "-tr", start.strftime("%Y/%m/%d"),
                    start.strftime("%H:%M:%S"), "-o", observed, "-n", orbits, path],
                   check=True, env={**os.environ, "TZ": "UTC"},
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return observed, orbits


def run(source, protocol, start, folder):
    """Epochs and ephemerides that it makes of the frames."""
    observed, orbits = files(source, protocol, start, folder)
    return (list(rinex.observations(observed)) if observed.exists() else [],
            list(rinex.ephemerides(orbits)) if orbits.exists() else [])
