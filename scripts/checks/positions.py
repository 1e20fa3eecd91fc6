"""Residuals of pseudoranges against computed satellites; positions and clocks of receivers."""

import math

import orbits
from satellites import SPEED_OF_LIGHT

EARTH_RATE = 7.2921151467e-5
ROUNDS = 12  # of the solution, which begins at the centre of the Earth


def solved(rows, values):
    """The unknowns that fit rows of factors to values best."""
    count = len(rows[0])
    table = [[sum(row[i] * row[j] for row in rows) for j in range(count)] +
             [sum(row[i] * value for row, value in zip(rows, values))] for i in range(count)]
    for i in range(count):
        pivot = max(range(i, count), key=lambda k: abs(table[k][i]))
        table[i], table[pivot] = table[pivot], table[i]
        for k in range(count):
            if k != i:
                factor = table[k][i] / table[i][i]
                table[k] = [a - factor * b for a, b in zip(table[k], table[i])]
    return [table[i][count] / table[i][i] for i in range(count)]


def expected(receiver, item, satellite, tow, pseudorange):
    """Pseudorange but for the receiver's clock, and the direction from the satellite."""
    sent = tow - pseudorange / SPEED_OF_LIGHT
    sent -= orbits.at(item, satellite, sent)[1]
    (x, y, z), clock = orbits.at(item, satellite, sent)
    turn = EARTH_RATE * (math.dist(receiver, (x, y, z)) / SPEED_OF_LIGHT if any(receiver) else 0.07)
    place = (x + turn * y, y - turn * x, z)
    distance = math.dist(receiver, place)
    return (distance - SPEED_OF_LIGHT * clock,
            tuple((a - b) / distance for a, b in zip(receiver, place)))


def solve(ranges, tow):
    """The receiver's position from (item, satellite, pseudorange), with a clock for each system."""
    systems = sorted({satellite[0] for _, satellite, _ in ranges})
    if len(ranges) < 3 + len(systems):
        return None
    receiver = (0.0, 0.0, 0.0)
    for _ in range(ROUNDS):
        rows, values = [], []
        for item, satellite, pseudorange in ranges:
            distance, direction = expected(receiver, item, satellite, tow, pseudorange)
            rows.append([*direction, *(float(satellite[0] == system) for system in systems)])
            values.append(pseudorange - distance)
        step = solved(rows, values)
        receiver = tuple(a + b for a, b in zip(receiver, step))
    return receiver
