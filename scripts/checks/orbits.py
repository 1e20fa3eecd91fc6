"""Where satellites are and what their clocks show, from broadcast ephemerides."""

import math

from satellites import WEEK

BDT_BEHIND = 14  # s, of GPS time
FLATTENING_C20 = 1.0826257e-3  # of PZ-90
PZ90_RADIUS, PZ90_MU, PZ90_RATE = 6378136.0, 398600.44e9, 7.292115e-5
MU = {"G": 3.986005e14, "J": 3.986005e14, "E": 3.986004418e14, "C": 3.986004418e14}
EARTH_RATE = {"G": 7.2921151467e-5, "J": 7.2921151467e-5, "E": 7.2921151467e-5, "C": 7.292115e-5}
RELATIVITY = -4.442807e-10  # s per m^0.5, about the same of all systems
GEO_TILT = math.radians(-5)
STEP = 30  # s, of the integration of GLONASS orbits


def _since(seconds, reference):
    """Seconds between two times of the week, across its end."""
    return (seconds - reference + WEEK / 2) % WEEK - WEEK / 2


def is_geostationary(satellite):
    return satellite[0] == "C" and (int(satellite[1:]) <= 5 or int(satellite[1:]) >= 59)


def _eccentric_anomaly(mean, eccentricity):
    anomaly = mean
    for _ in range(20):
        anomaly -= ((anomaly - eccentricity * math.sin(anomaly) - mean) /
                    (1 - eccentricity * math.cos(anomaly)))
    return anomaly


def _turned(axis, angle, point):
    """The point in axes that are turned by an angle about x (0) or z (2)."""
    x, y, z = point
    s, c = math.sin(angle), math.cos(angle)
    return (x, c * y + s * z, c * z - s * y) if axis == 0 else (c * x + s * y, c * y - s * x, z)


def kepler(record, satellite, tow):
    """Position in m and clock in s at a GPS time of week."""
    system = satellite[0]
    tow -= BDT_BEHIND if system == "C" else 0
    t, rate = _since(tow, record["toe"]), EARTH_RATE[system]
    axis, e = record["sqrtSemiMajorAxis"] ** 2, record["eccentricity"]
    motion = math.sqrt(MU[system] / axis ** 3) + record["deltaN"]
    anomaly = _eccentric_anomaly(record["m0"] + motion * t, e)
    latitude = record["omega"] + math.atan2(math.sqrt(1 - e * e) * math.sin(anomaly),
                                            math.cos(anomaly) - e)
    s, c = math.sin(2 * latitude), math.cos(2 * latitude)
    radius = axis * (1 - e * math.cos(anomaly)) + record["crs"] * s + record["crc"] * c
    tilt = record["i0"] + record["idot"] * t + record["cis"] * s + record["cic"] * c
    latitude += record["cus"] * s + record["cuc"] * c
    is_geo = is_geostationary(satellite)
    node = (record["omega0"] + (record["omegaDot"] - (0 if is_geo else rate)) * t -
            rate * record["toe"])
    point = (radius * math.cos(latitude), radius * math.sin(latitude), 0)
    point = _turned(2, -node, _turned(0, -tilt, point))
    if is_geo:
        point = _turned(2, rate * t, _turned(0, GEO_TILT, point))
    age = _since(tow, record["toc"])
    clock = record["af0"] + record["af1"] * age + record["af2"] * age * age
    return point, clock + RELATIVITY * e * record["sqrtSemiMajorAxis"] * math.sin(anomaly)


def _motion(state, acceleration):
    """The derivative of position and velocity in the turning axes of PZ-90."""
    x, y, z, vx, vy, vz = state
    r2 = x * x + y * y + z * z
    r3 = r2 * math.sqrt(r2)
    flat = 1.5 * FLATTENING_C20 * PZ90_MU * PZ90_RADIUS ** 2 / (r2 * r3)
    polar = 5 * z * z / r2
    along = -PZ90_MU / r3 - flat * (1 - polar) + PZ90_RATE ** 2
    return (vx, vy, vz,
            along * x + 2 * PZ90_RATE * vy + acceleration[0],
            along * y - 2 * PZ90_RATE * vx + acceleration[1],
            (-PZ90_MU / r3 - flat * (3 - polar)) * z + acceleration[2])


def _moved(state, slope, time):
    return tuple(a + b * time for a, b in zip(state, slope))


def glonass(record, _, tow):
    """As kepler, by Runge-Kutta of the fourth order from the state at tb."""
    t = _since(tow, record["reference"]["tow"] / 1000)
    state = (*record["position"], *record["velocity"])
    steps = max(1, math.ceil(abs(t) / STEP))
    h, acceleration = t / steps, record["acceleration"]
    for _ in range(steps):
        k1 = _motion(state, acceleration)
        k2 = _motion(_moved(state, k1, h / 2), acceleration)
        k3 = _motion(_moved(state, k2, h / 2), acceleration)
        k4 = _motion(_moved(state, k3, h), acceleration)
        slope = tuple((a + 2 * b + 2 * c + d) / 6 for a, b, c, d in zip(k1, k2, k3, k4))
        state = _moved(state, slope, h)
    return state[:3], -record["tauN"] + record["gammaN"] * t


def age(item, tow):
    """Seconds from the reference time of an ephemeris."""
    if item.kind == "EPH-GLO":
        return abs(_since(tow, item.record["reference"]["tow"] / 1000))
    return abs(_since(tow, item.record["toe"] + (BDT_BEHIND if item.kind == "EPH-BDS" else 0)))


def at(item, satellite, tow):
    return (glonass if item.kind == "EPH-GLO" else kepler)(item.record, satellite, tow)
