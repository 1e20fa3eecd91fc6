"""Writes what satellites send: the fields of an RTCM 3 ephemeris as RXM-SFRBX frames with parts of
navigation messages. Layouts are lists of (field, bits); a field in pieces is (field, bits, bits
that follow in a later piece). A number is a fixed value, None reserved."""

# Messages of RTCM 3 behind their number.
_ORBIT = [("crs", 16), ("dn", 16), ("m0", 32), ("cuc", 16), ("e", 32), ("cus", 16), ("a", 32),
          ("toe", 16), ("cic", 16), ("node", 32), ("cis", 16), ("i0", 32), ("crc", 16), ("w", 32),
          ("noded", 24)]
_GALILEO = [("sat", 6), ("week", 12), ("iod", 10), ("acc", 8), ("idot", 14), ("toc", 14),
            ("af2", 6), ("af1", 21), ("af0", 31)]
_GALILEO += [(name, 14 if name == "toe" else bits) for name, bits in _ORBIT]
_BEIDOU_BITS = {"toe": 17, **dict.fromkeys(("crs", "cuc", "cus", "cic", "cis", "crc"), 18)}
RTCM = {
    1019: [("sat", 6), ("week", 10), ("acc", 4), ("codes", 2), ("idot", 14), ("iod", 8),
           ("toc", 16), ("af2", 8), ("af1", 16), ("af0", 22), ("iodc", 10)] + _ORBIT +
          [("tgd", 8), ("health", 6), ("l2p", 1), ("fit", 1)],
    1042: [("sat", 6), ("week", 13), ("acc", 4), ("idot", 14), ("iod", 5), ("toc", 17), ("af2", 11),
           ("af1", 22), ("af0", 24), ("iodc", 5)] +
          [(name, _BEIDOU_BITS.get(name, bits)) for name, bits in _ORBIT] +
          [("tgd", 10), ("tgd2", 10), ("health", 1)],
    1045: _GALILEO + [("tgd", 10), ("h5a", 2), ("d5a", 1)],
    1046: _GALILEO + [("tgd", 10), ("tgd2", 10), ("h5b", 2), ("d5b", 1), ("h1", 2), ("d1", 1)],
    1020: [("sat", 6), ("freq", 5), (None, 2), ("p1", 2), ("tk", 12), ("bn", 1), ("p2", 1),
           ("tb", 7), ("vx", 24), ("x", 27), ("ax", 5), ("vy", 24), ("y", 27), ("ay", 5),
           ("vz", 24), ("z", 27), ("az", 5), ("p3", 1), ("gamma", 11), ("p", 2), ("ln3", 1),
           ("tau", 22), ("dtau", 5), ("age", 5), ("p4", 1), ("ft", 4), ("nt", 11), ("m", 2),
           ("more", 1), ("na", 11), ("tauc", 32), ("n4", 5), ("taugps", 22), ("ln5", 1)],
}

# Bits of data of each part; parity is added to them.
LNAV = [
    [(0x8B, 8), (0, 16), ("time", 17), (0, 2), (1, 3), (0, 2), ("week", 10), ("codes", 2),
     ("acc", 4), ("health", 6), ("iodc", 2, 8), ("l2p", 1), (0, 87), ("tgd", 8), ("iodc", 8),
     ("toc", 16), ("af2", 8), ("af1", 16), ("af0", 22), (0, 2)],
    [(0x8B, 8), (0, 16), ("time", 17), (0, 2), (2, 3), (0, 2), ("iod", 8), ("crs", 16), ("dn", 16),
     ("m0", 32), ("cuc", 16), ("e", 32), ("cus", 16), ("a", 32), ("toe", 16), ("fit", 1), (0, 7)],
    [(0x8B, 8), (0, 16), ("time", 17), (0, 2), (3, 3), (0, 2), ("cic", 16), ("node", 32),
     ("cis", 16), ("i0", 32), ("crc", 16), ("w", 32), ("noded", 24), ("iod", 8), ("idot", 14),
     (0, 2)],
]
INAV = [
    [(1, 6), ("iod", 10), ("toe", 14), ("m0", 32), ("e", 32), ("a", 32), (0, 2)],
    [(2, 6), ("iod", 10), ("node", 32), ("i0", 32), ("w", 32), ("idot", 14), (0, 2)],
    [(3, 6), ("iod", 10), ("noded", 24), ("dn", 16), ("cuc", 16), ("cus", 16), ("crc", 16),
     ("crs", 16), ("acc", 8)],
    [(4, 6), ("iod", 10), ("sat", 6), ("cic", 16), ("cis", 16), ("toc", 14), ("af0", 31),
     ("af1", 21), ("af2", 6), (0, 2)],
    [(5, 6), (0, 41), ("tgd", 10), ("tgd2", 10), ("h5b", 2), ("h1", 2), ("d5b", 1), ("d1", 1),
     ("week", 12), ("time", 20), (0, 23)],
]
FNAV = [
    [(1, 6), ("sat", 6), ("iod", 10), ("toc", 14), ("af0", 31), ("af1", 21), ("af2", 6), ("acc", 8),
     (0, 41), ("tgd", 10), ("h5a", 2), ("week", 12), ("time", 20), ("d5a", 1), (0, 26)],
    [(2, 6), ("iod", 10), ("m0", 32), ("noded", 24), ("e", 32), ("a", 32), ("node", 32),
     ("idot", 14), ("week", 12), ("time", 20)],
    [(3, 6), ("iod", 10), ("i0", 32), ("w", 32), ("dn", 16), ("cuc", 16), ("cus", 16), ("crc", 16),
     ("crs", 16), ("toe", 14), ("week", 12), ("time", 20), (0, 8)],
    [(4, 6), ("iod", 10), ("cic", 16), ("cis", 16), (0, 141), ("time", 20), (0, 5)],
]


def _beidou_head(number):
    return [(0x712, 11), (0, 4), (number, 3), ("time", 20)]


D1 = [
    _beidou_head(1) + [("health", 1), ("iodc", 5), ("acc", 4), ("week", 13), ("toc", 17),
                       ("tgd", 10), ("tgd2", 10), (0, 64), ("af2", 11), ("af0", 24), ("af1", 22),
                       ("iod", 5)],
    _beidou_head(2) + [("dn", 16), ("cuc", 18), ("m0", 32), ("e", 32), ("cus", 18), ("crc", 18),
                       ("crs", 18), ("a", 32), ("toe", 2, 15)],
    _beidou_head(3) + [("toe", 15), ("i0", 32), ("cic", 18), ("noded", 24), ("cis", 18),
                       ("idot", 14), ("node", 32), ("w", 32), (0, 1)],
]
D2 = [_beidou_head(1) + [(page, 4)] + fields for page, fields in enumerate([
    [("health", 1), ("iodc", 5), ("acc", 4), ("week", 13), ("toc", 17), ("tgd", 10), ("tgd2", 10)],
    [],
    [(0, 28), (0, 10), ("af0", 24), ("af1", 4, 18)],
    [("af1", 18), ("af2", 11), ("iod", 5), ("dn", 16), ("cuc", 14, 4)],
    [("cuc", 4), ("m0", 32), ("cus", 18), ("e", 10, 22)],
    [("e", 22), ("a", 32), ("cic", 10, 8)],
    [("cic", 8), ("cis", 18), ("toe", 17), ("i0", 21, 11)],
    [("i0", 11), ("crc", 18), ("crs", 18), ("noded", 19, 5)],
    [("noded", 5), ("node", 32), ("w", 27, 5)],
    [("w", 5), ("idot", 14)],
], 1)]
STRINGS = [
    [(1, 5), (0, 2), ("p1", 2), ("tk", 12), ("vx", 24), ("ax", 5), ("x", 27)],
    [(2, 5), ("bn", 1), (0, 2), ("p2", 1), ("tb", 7), (0, 5), ("vy", 24), ("ay", 5), ("y", 27)],
    [(3, 5), ("p3", 1), ("gamma", 11), (0, 1), ("p", 2), ("ln3", 1), ("vz", 24), ("az", 5),
     ("z", 27)],
    [(4, 5), ("tau", 22), ("dtau", 5), ("age", 5), (0, 14), ("p4", 1), ("ft", 4), (0, 3),
     ("nt", 11), ("sat", 5), ("m", 2)],
    [(5, 5), ("na", 11), ("tauc", 32), (0, 1), ("n4", 5), ("taugps", 22), ("ln5", 1)],
]

# Bits of data, from 1 on, in each of the six bits of parity of LNAV, and whether the last two bits
# of the word before are in it.
LNAV_PARITY = [
    ((1, 2, 3, 5, 6, 10, 11, 12, 13, 14, 17, 18, 20, 23), True),
    ((2, 3, 4, 6, 7, 11, 12, 13, 14, 15, 18, 19, 21, 24), False),
    ((1, 3, 4, 5, 7, 8, 12, 13, 14, 15, 16, 19, 20, 22), True),
    ((2, 4, 5, 6, 8, 9, 13, 14, 15, 16, 17, 20, 21, 23), False),
    ((1, 3, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 21, 22, 24), False),
    ((3, 5, 6, 8, 9, 10, 11, 13, 15, 19, 22, 23, 24), True),
]


def read(payload, number):
    """The fields of an ephemeris as they are sent, from the payload of its message."""
    bits, at, fields = int.from_bytes(payload, "big"), len(payload) * 8 - 12, {}
    for name, length in RTCM[number]:
        at -= length
        fields[name] = bits >> at & (1 << length) - 1
    return fields


def _bits(layout, fields):
    """A part as a string of 0 and 1."""
    text = ""
    for name, length, *behind in layout:
        value = fields[name] if isinstance(name, str) else name
        text += format(value >> (behind[0] if behind else 0) & (1 << length) - 1, f"0{length}b")
    return text


def _lnav_words(text):
    words, before = [], (0, 0)
    for at in range(0, 240, 24):
        data = text[at:at + 24]
        parity = ""
        for ones, has_before in LNAV_PARITY:
            total = sum(int(data[bit - 1]) for bit in ones) + (sum(before) if has_before else 0)
            parity += str(total % 2)
        before = (int(parity[4]), int(parity[5]))
        words.append(int(data + parity, 2))
    return words


def _crc24(text):
    value = 0
    for bit in text:
        value = value << 1 ^ (0x1864CFB if (value >> 23 & 1) != int(bit) else 0)
    return format(value & 0xFFFFFF, "024b")


def _words_of(text, count):
    text = text.ljust(32 * count, "0")
    return [int(text[at:at + 32], 2) for at in range(0, 32 * count, 32)]


def _inav_words(text):
    even, odd = "00" + text[:112], "10" + text[112:] + "0" * 64
    return _words_of((even + "0" * 14) + odd + _crc24(even + odd), 8)


def _fnav_words(text):
    return _words_of(text + _crc24(text), 8)


def _bch(data):
    """The four check bits of eleven bits."""
    value = int(data, 2) << 4
    for bit in range(14, 3, -1):
        if value >> bit & 1:
            value ^= 0b10011 << (bit - 4)
    return format(value, "04b")


def _beidou_words(text):
    text = text.ljust(224, "0")
    words = [int(text[:26] + _bch(text[15:26]), 2)]
    for at in range(26, 224, 22):  # receivers have parted again what is sent bit by bit in turns
        first, second = text[at:at + 11], text[at + 11:at + 22]
        words.append(int(first + second + _bch(first) + _bch(second), 2))
    return words


def _string_words(text):
    """77 bits and the Hamming code behind them; the last word ends with the frame's number."""
    places = [place for place in range(3, 127) if place & (place - 1)]
    data = [int(bit) for bit in reversed(text)]  # bit 9 of the string first
    checks = [sum(bit for bit, place in zip(data, places) if place >> k & 1) % 2 for k in range(7)]
    checks.append((sum(data) + sum(checks)) % 2)
    return _words_of(text + "".join(map(str, reversed(checks))), 4)


def _sfrbx(system, satellite, signal, channel, words):
    payload = bytes((system, satellite, signal, channel, len(words), 0, 2, 0))
    payload += b"".join(word.to_bytes(4, "little") for word in words)
    body = b"\x02\x13" + len(payload).to_bytes(2, "little") + payload
    a = b = 0
    for byte in body:
        a = (a + byte) & 0xFF
        b = (b + a) & 0xFF
    return b"\xb5\x62" + body + bytes((a, b))


# Of each message: system and signal of UBX, parts, how they become words.
MESSAGES = {1019: (0, 0, LNAV, _lnav_words), 1046: (2, 1, INAV, _inav_words),
            1045: (2, 3, FNAV, _fnav_words), 1042: (3, 0, D1, _beidou_words),
            1020: (6, 0, STRINGS, _string_words)}


def subframes(fields, number, second):
    """RXM-SFRBX frames that say what the message says, sent from a second of the GPS week on."""
    system, signal, parts, words = MESSAGES[number]
    if number == 1042 and (fields["sat"] <= 5 or fields["sat"] >= 59):
        signal, parts = 1, D2
    # Of LNAV in units of 6 s; of BeiDou in its own time, one behind the other; of I/NAV and F/NAV
    # the same second in all parts will do.
    start = {1019: second // 6, 1042: max(second - 14, 0)}.get(number, second)
    step = 3 if parts is D2 else 6 if parts is D1 else 1 if parts is LNAV else 0
    return b"".join(_sfrbx(system, fields["sat"], signal, fields.get("freq", 0),
                           words(_bits(part, {**fields, "time": start + step * i})))
                    for i, part in enumerate(parts))
