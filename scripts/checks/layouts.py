"""Fields of navigation messages, bit by bit, and the RXM-SFRBX that bring them, for the modules
`fields_*.py` of ephemerides.
"""

from collections import namedtuple

from wire import Bits, ubx_frame

# One quantity of a satellite: its bits, whether they have a sign, the member that holds it and the
# unit of the last bit; None for numbers that are kept as they are.
Quantity = namedtuple("Quantity", "bits signed member step")


def unsigned(bits, member=None, step=None):
    return Quantity(bits, False, member, step)


def signed(bits, member=None, step=None):
    return Quantity(bits, True, member, step)


def bit_text(value, width):
    """A number, in two's complement, as a text of 0 and 1."""
    return format(value & (1 << width) - 1, f"0{width}b")


def written(rng, layout, values, quantities):
    """The fields of a layout as a text of 0 and 1: names of quantities in their order, "e/22-1" for
    bits 22 to 1 of e, counted from the last, and "?3" for three bits that mean nothing.
    """
    text = ""
    for token in layout.split():
        name, _, part = token.partition("/")
        if name[0] == "?":
            text += bit_text(rng.getrandbits(int(name[1:])), int(name[1:]))
        else:
            whole = bit_text(values[name], quantities[name].bits)
            first, last = (int(bit) for bit in part.split("-")) if part else (len(whole), 1)
            text += whole[len(whole) - first:len(whole) - last + 1]
    return text


def packed(text):
    return Bits().u(int(text, 2), len(text)).bytes()


def some(rng, quantity):
    """A random value that the bits can hold, often one of the ends."""
    low = -(1 << quantity.bits - 1) if quantity.signed else 0
    high = low + (1 << quantity.bits) - 1
    return rng.choice((low, high, 0) + (rng.randint(low, high),) * 9)


def words32(text):
    """Words of 32 bits, as the receiver hands a text of 0 and 1 on."""
    return [int(text[at:at + 32], 2) for at in range(0, len(text), 32)]


def sfrbx(system, satellite, signal, words, channel=0):
    head = bytes((system, satellite, signal, channel, len(words), 0, 2, 0))
    return ubx_frame(0x02, 0x13, head + b"".join(word.to_bytes(4, "little") for word in words))


def damaged(rng, one, frames):
    """Bad input: one bit of a part is wrong, which the codes of all messages find."""
    several = list(frames(one))
    place = rng.randrange(len(several))
    payload = bytearray(several[place][6:-2])
    payload[8 + 4 + rng.randrange(1, 3)] ^= 1 << rng.randrange(8)
    several[place] = ubx_frame(0x02, 0x13, bytes(payload))
    return several


def one_missing(rng, one, frames):
    """Bad input: a part of the set does not come."""
    several = list(frames(one))
    del several[rng.randrange(len(several))]
    return several
