"""Tables of UBX messages, of which random messages are made and what their records are to hold.

A message is a table in the order of its payload, a line a field: type, name, member, and the unit
of the number in that of the member, if it is not the same. Types are those of the interface
descriptions (U4, I2, X1, R8, ...), besides A2 and A4, accuracies of which all bits set stand for
not known, and R<n>, n reserved bytes. Lines with a dot have bits of the field above them. Of
members:

    name    a whole number; all bits set, or the most negative one, stand for not known
    name*   a whole number of which every value is one
    name[]  the next element of a list of numbers
    +       held by what the function of the message says
    - why   held by none
"""

import math
import struct
from collections import namedtuple

from wire import Clock, Message, Scaled, Single, ubx_frame

Row = namedtuple("Row", "type size name member step bits")
Bit = namedtuple("Bit", "low width name member")


def _step(text):
    base, caret, exponent = text.partition("^")
    return float(base) ** int(exponent) if caret else float(text)


def table(text, message, not_held):
    rows = []
    for words in (line.split() for line in text.splitlines() if line.strip()):
        if words[0].startswith("."):
            low, _, high = words[0][1:].partition("-")
            rows[-1].bits.append(Bit(int(low), int(high or low) - int(low) + 1, *words[1:3]))
        elif len(words) == 1:
            rows.append(Row("reserved", int(words[0][1:]), "", "", None, []))
        else:
            member = words[2] if len(words) > 2 else ""
            step = _step(words[3]) if len(words) > 3 and member != "-" else None
            rows.append(Row(words[0][0], int(words[0][1:]), words[1], member, step, []))
        if "-" in words[2:3]:
            not_held.setdefault(message, []).append((words[1], " ".join(words[3:])))
    return rows


def draw(rng, bits):
    """A number of that many bits, often one at the limits or with a single bit set."""
    case = rng.randrange(16)
    limits = (0, (1 << bits) - 1, 1 << bits - 1, (1 << bits - 1) - 1)
    if case < 4:
        return limits[case]
    if case < 6:
        return 1 << rng.randrange(bits)
    return rng.getrandbits(rng.randint(1, bits) if case < 8 else bits)


def draw_float(rng, size):
    """The bytes and the value of any number but infinite ones and NaN."""
    data = rng.randbytes(size) if rng.random() < 0.9 else bytes(size)
    value, = struct.unpack("<f" if size == 4 else "<d", data)
    return (data, value) if math.isfinite(value) else draw_float(rng, size)


def hold(expected, member, value):
    if member.endswith("[]"):
        expected.setdefault(member[:-2], []).append(value)
    else:
        expected[member.rstrip("*")] = value


def whole(raw, member, unknown):
    return None if raw == unknown and not member.endswith("*") else raw


def _write(row, rng, given, wire, expected):
    if row.type == "reserved":
        return rng.randbytes(row.size)
    if row.type == "R":
        data, value = draw_float(rng, row.size)
        hold(expected, row.member, Single(value) if row.size == 4 else value)
        return data
    bits = 8 * row.size
    raw = given[row.name] if row.name in given else draw(rng, bits)
    number = raw - (1 << bits) if row.type == "I" and raw >> bits - 1 else raw
    wire[row.name] = number
    for bit in row.bits:
        part = wire[bit.name] = raw >> bit.low & (1 << bit.width) - 1
        if bit.member not in ("+", "-"):
            hold(expected, bit.member, part)
    if row.member not in ("", "+", "-"):
        ones = (1 << bits) - 1
        if row.step is None:
            value = whole(number, row.member, -(1 << bits - 1) if row.type == "I" else ones)
        else:
            value = None if row.type == "A" and raw == ones else Scaled(number, row.step)
        hold(expected, row.member, value)
    return raw.to_bytes(row.size, "little")


def written(rows, rng, given, judge):
    wire, expected = {}, {}
    data = b"".join(_write(row, rng, given, wire, expected) for row in rows)
    if judge:
        judge(expected, wire)
    return data, wire, expected


def count_of(rng, most):
    return rng.choice((0, 1, 2, 3, rng.randint(0, min(most, 40)), rng.randint(0, 12)) +
                      ((most,) if rng.random() < 0.1 else ()))


def ubx_message(not_held, name, number, kind, head, judge=None, given=None, block="", member="",
                counter="", most=0, judge_block=None):
    """A message of a head and perhaps blocks that fill `member`, as many as `counter` tells; what
    none holds goes to `not_held`."""
    rows, block_rows = table(head, name, not_held), table(block, name, not_held)
    given = dict(given or {})

    def make(rng):
        count = count_of(rng, most) if member else 0
        if counter:
            given[counter] = count
        payload, wire, expected = written(rows, rng, given, judge)
        expected.setdefault("tow", Clock)
        expected.update(week=Clock, timeText=Clock)
        if member:
            blocks = [written(block_rows, rng, {}, judge_block) for _ in range(count)]
            payload += b"".join(data for data, _, _ in blocks)
            expected["count"] = count
            expected[member] = [inner for _, _, inner in blocks]
        return ubx_frame(number >> 8, number & 0xFF, payload), expected

    return Message(name, kind, make)


def unknown_unless(condition, *members):
    """The members are not known unless all of the wire's names say so; "!name" says so when 0."""
    def judge(expected, wire):
        if not all(wire[name.lstrip("!")] == (0 if name[0] == "!" else 1) for name in condition):
            expected.update(dict.fromkeys(members))
    return judge


def joined(step, fine, *triples):
    """Numbers sent in two parts: member, coarse part, finer part in `fine`-ths of it."""
    def judge(expected, wire):
        for member, coarse, rest in triples:
            expected[member] = Scaled(wire[coarse] * fine + wire[rest], step)
    return judge


def all_of(*judges):
    def judge(expected, wire):
        for one in judges:
            one(expected, wire)
    return judge
