"""Observations and ephemerides of a stream, by the names that RINEX gives satellites."""

import streams

WEEK = 604800
SPEED_OF_LIGHT = 299792458.0
SYSTEMS = {1: "G", 2: "R", 3: "E", 4: "C", 5: "J", 6: "I", 7: "S"}
EPHEMERIS_SYSTEMS = {1: "G", 3: "E", 4: "C", 5: "J", 6: "I"}


def satellite_of(observation):
    system = SYSTEMS[observation["system"]]
    return f"{system}{observation['satellite'] - (100 if system == 'S' else 0):02}"


def satellite_of_ephemeris(item):
    system = "R" if item.kind == "EPH-GLO" else EPHEMERIS_SYSTEMS[item.record["system"]]
    return f"{system}{item.record['satellite']:02}"


def read(path):
    """Items of observations and of ephemerides, each in the order of the capture."""
    data = path.read_bytes()
    observed, orbits = [], []
    for item in streams.items(data, streams.RECORD):
        if item.kind == "OBSERVATIONS":
            observed.append(item)
        elif item.kind.startswith("EPH-"):
            orbits.append(item)
    return observed, orbits
