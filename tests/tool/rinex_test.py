"""RINEX files of the tool, read by a strict reader of the tests' own, and that reader itself."""
import gzip
import os
import random
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from decimal import Decimal
from fractions import Fraction
from pathlib import Path
from types import SimpleNamespace

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "scripts/checks"))
import fields_ephemerides  # noqa: E402
import fields_glonass  # noqa: E402
import fields_rawx  # noqa: E402
import fields_rtcm  # noqa: E402
import fields_stations  # noqa: E402
import later  # noqa: E402
import nav_fields  # noqa: E402
import rinex  # noqa: E402
import rinex_records  # noqa: E402
import satellites  # noqa: E402

Observations = """\
     3.05           OBSERVATION DATA    M                   RINEX VERSION / TYPE
a program           an agency           20260413 142930 UTC PGM / RUN BY / DATE
ABCD                                                        MARKER NAME
                                                            OBSERVER / AGENCY
                                                            REC # / TYPE / VERS
                                                            ANT # / TYPE
  3803655.0318  -148802.7065  5100626.2978                  APPROX POSITION XYZ
        0.0000        0.0000        0.0000                  ANTENNA: DELTA H/E/N
G    4 C1C L1C D1C S1C                                      SYS / # / OBS TYPES
R    2 C1C L1C                                              SYS / # / OBS TYPES
G L1C                                                       SYS / PHASE SHIFT
R L1C  0.00000                                              SYS / PHASE SHIFT
  1 R07  5                                                  GLONASS SLOT / FRQ #
 C1C    0.000                                               GLONASS COD/PHS/BIS
     1.000                                                  INTERVAL
  2026     4    13    14    28    7.9990000     GPS         TIME OF FIRST OBS
  2026     4    13    14    28    8.9990000     GPS         TIME OF LAST OBS
     2                                                      # OF SATELLITES
   G01     2     1     2     2                              PRN / # OF OBS
   R07     1     1                                          PRN / # OF OBS
                                                            END OF HEADER
> 2026 04 13 14 28  7.9990000  0  2       0.000000000001
G01  20763485.057 8 109112856.69838      1478.426          50.000
R07  23911277.007    89512856.698
> 2026 04 13 14 28  8.9990000  0  1
G01  20763485.057                         778.426          43.000
"""
Navigation = """\
     4.02           NAVIGATION DATA     M                   RINEX VERSION / TYPE
a program           an agency           20260413 142930 UTC PGM / RUN BY / DATE
    18                                                      LEAP SECONDS
                                                            END OF HEADER
> EPH E01 FNAV
E01 2026 04 13 16 00 00 7.800385355950D-05 7.730764965070e-12 0.000000000000E+00
     8.900000000000E+01-1.037500000000E+02 4.333394789000E-09 3.102436714930E+00
    -3.948807716370E-06 1.682943105700E-02 1.040287315850E-05 5.153772056580E+03
     1.440000000000E+05-3.166496753690E-07 2.223159664920E+00 3.241002559660E-07
     9.628034900470E-01 1.771250000000E+02-7.834704703930E-01-7.691391805910E-09
    -3.546576300570E-10 2.580000000000E+02 2.414000000000E+03
     2.000000000000E+00 0.000000000000E+00-1.769512892770E-08
     9.999000000000E+08
> EPH R07 FDMA
R07 2026 04 13 15 45 00 1.000000000000E-05 0.000000000000E+00 1.440000000000E+05
     8.900000000000E+03-1.037500000000E+00 4.333394789000E-09 0.000000000000E+00
     8.900000000000E+03-1.037500000000E+00 4.333394789000E-09 5.000000000000E+00
     8.900000000000E+03-1.037500000000E+00 4.333394789000E-09 0.000000000000E+00
                        9.999999999990E+08
> ION G01 LNAV
    2026 04 13 14 28 30 1.583000000000E-08 1.490000000000E-08-1.192000000000E-07
    -1.192000000000E-07 1.065000000000E+05 6.554000000000E+04-1.966000000000E+05
    -2.000000000000E+05
"""
# What is put in the place of what, and what the reader is to say of it.
Violations = [
    (Observations, [
        ("  3.05", "  3.03", "not a version"),
        ("7.9990000     GPS", "7.9980000     GPS", "TIME OF FIRST OBS: is not that of the epochs"),
        ("GPS         TIME OF LAST", "GLO         TIME OF LAST", "in 'GLO'"),
        ("MARKER NAME", " MARKER NAME", "no label of this file in column 61"),
        ("ABCD      ", "          ", "MARKER NAME: is blank"),
        ("  1 R07  5 ", "  2 R07  5 ", "says 2, has 1"),
        ("  1 R07  5 ", "  1 R07 14 ", "no slot and channel"),
        ("G    4", "G    5", "G says 5"),
        ("D1C S1C ", "D1C S1I ", "G has no S1I"),
        ("R L1C  0.00000", "R L2C  0.00000", "R has no L2C"),
        ("R L1C  0.00000 ", "R L1C  0.0000  ", "columns 7 to 14"),
        ("     2   ", "     3   ", "# OF SATELLITES: 3, are 2"),
        ("   G01     2     1 ", "   G01     2     2 ", "PRN / # OF OBS: G01 says"),
        ("     1.000     ", "     5.000     ", "INTERVAL: 5.000"),
        ("148802.7065 ", "148802.706  ", "columns 15 to 28"),
        ("  0  2  ", "  0  3  ", "no satellite, or again"),
        ("  0  2  ", "  0  1  ", "no epoch"),
        (" 8.9990000  0", " 7.9990000  0", "not later than the epoch before"),
        ("R07  2391", "G01  2391", "no satellite, or again: 'G01'"),
        ("0.000000000001", " 0.00000000001", "no epoch"),
        ("20763485.057 8 1", "20763485.0578  1", "lock '8' of C1C"),
        ("109112856.69838 ", "109112856.69888 ", "lock '8' of L1C"),
        ("109112856.69838 ", "109112856.69837 ", "signal strength 7 of 50000"),
        ("    89512856.698", "    89512856.698  1.000", "text behind the 2"),
        ("    89512856.698", "    89512856.69 ", "L1C is"),
        ("    89512856.698", "   X89512856.698", "L1C is"),
        ("20763485.057                ", "20763485.057               3", "L1C is"),
        ("> 2026 04 13 14 28  8.9", "> 2026 04 31 14 28  8.9", "no time"),
        ("an agency", "an ag\tncy", "a control character"),
        ("          50.000\n", "          50.000", "text behind the 4"),
        ("R07  23911277.007    89512856.698\n", "", "no satellite"),
        ("          43.000\n", "          43.000", "the last line has no end"),
        ("> 2026 04 13 14 28  8.9990000  0  1", "> 2026 04 13 14 28  8.9990000  0  2", "ends"),
    ]),
    (Navigation, [
        ("4.02", "3.05", "no satellite of an ephemeris: '> EPH"),
        ("LEAP SECONDS", "COMMENT", "LEAP SECONDS: is not there"),
        ("> EPH E01", "> EPH E02", "no satellite of an ephemeris: 'E01"),
        ("FNAV", "LNAV", "no message of E01"),
        ("2.580000000000E+02", "2.590000000000E+02", "data source"),
        ("2.414000000000E+03", "2.413000000000E+03", "the epoch is of another"),
        ("2.414000000000E+03", "                  ", "week is blank"),
        ("2.414000000000E+03\n", "2.414000000000E+03 1.000000000000E+00\n", "where nothing stands"),
        ("8.900000000000E+01", "8.950000000000E+01", "issueOfData is 89.5"),
        ("5.153772056580E+03", "5.15377205658E+003", "columns 62 to 80"),
        ("9.999000000000E+08", "9.999000000000E+07", "time of transmission"),
        ("-2.000000000000E+05\n", "-2.000000000000E+05\n" +
         Navigation[Navigation.index("> EPH R07"):Navigation.index("> ION")] * 2, "R07 as in line"),
        ("> ION G01 LNAV", "> ION G01 XNAV", "no message of ION"),
        ("                        9.999999999990E+08\n", "", "columns"),
        ("    -2.000000000000E+05\n", "", "ends before"),
    ]),
]


def Said(text, name="file.rnx"):
    """The reader's first complaint, or what it read."""
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / name
        path.write_text(text)
        try:
            return rinex.read(path)
        except rinex.Violation as violation:
            return str(violation)


class Reader(unittest.TestCase):
    def test_planted_violations(self):
        epochs = Said(Observations).epochs
        self.assertEqual((epochs[0].offset, epochs[0].satellites["G01"]["L1C"], len(epochs)),
                         (1, (109112856698, 3, 8), 2))
        self.assertEqual([record.message for record in Said(Navigation).records],
                         ["FNAV", "FDMA", "LNAV"])
        for whole, cases in Violations:
            for old, new, reason in cases:
                self.assertIn(old, whole)
                said = Said(whole.replace(old, new, 1))
                self.assertIsInstance(said, str, (old, new))
                self.assertIn(reason, said, (old, new))

    def test_names(self):
        for name, found in (
                ("ABCD00CHE_R_20261031400_01H_01S_MO.rnx", True),
                ("ABCD00CHE_R_20261031428_01M_02S_MO.rnx", "the name says 2 s"),
                ("ABCD00CHE_R_20261031429_01H_01S_MO.rnx", "epochs outside"),
                ("ABCD00CHE_R_20261031400_01H_01S_GO.rnx", "the name says GO")):
            said = Said(Observations, name)
            self.assertTrue(not isinstance(said, str) if found is True else found in said, said)
        for name in ("ABCD00CHE_R_20261031400_01H_MO.rnx", "abcd00CHE_R_20261031400_01H_01S_MO.rnx",
                     "ABCD00CHE_R_2026103140_01H_01S_MO.rnx",
                     "ABCD00CHE_R_20261031400_01D_01S_MN.rnx"):
            self.assertIsNone(rinex.name_of(name), name)


Tool = os.environ.get("NAVFRAME_TOOL")
Week, Tow = 2400, 345600  # 2026-01-08 00:00:00
Second = 10**7
Start = (Week * 604800 + Tow) * Second


def Rinex(source, *options, name="stream.rtcm3", live=False):
    """Status, files by name, and what was said. `source`: bytes of a file of that name, or of
    standard input in small pieces, or an address."""
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / name
        given = source if isinstance(source, str) else "-" if live else path
        if given == path:
            path.write_bytes(source)
        os.makedirs(folder + "/out")
        process = subprocess.Popen(
            [Tool, "rinex", given, "-o", folder + "/out/" * ("--station" in options) +
             "/out/it" * ("--station" not in options), *options],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0)
        if live:
            for at in range(0, len(source), 997):
                process.stdin.write(source[at:at + 997])
        said = process.communicate(timeout=60)[1].decode()
        files = {}
        for path in sorted(Path(folder, "out").iterdir()):
            rinex.read(path)  # strictly
            content = path.read_bytes()
            files[path.name] = (gzip.decompress(content) if path.suffix == ".gz" else
                                content).decode()
        return process.returncode, files, said


def Body(text):
    """Without the line that has the time of the run."""
    return [line for line in text.splitlines() if "PGM / RUN BY / DATE" not in line]


def Parsed(text, name="file.rnx"):
    found = Said(text, name)
    if isinstance(found, str):
        raise AssertionError(found)
    return found


def CellsOf(*texts):
    """By time, satellite and type, of files that follow each other."""
    return {(epoch.time, satellite, kind): cell
            for text in texts for epoch in Parsed(text).epochs
            for satellite, cells in epoch.satellites.items() for kind, cell in cells.items()}


def Plain(members):
    """Numbers of what a writer of messages expects."""
    if isinstance(members, dict):
        return {name: Plain(value) for name, value in members.items()}
    if isinstance(members, list):
        return [Plain(value) for value in members]
    return members.raw * members.step if hasattr(members, "raw") else members


def Expected(time, observations):
    """Exact thousandths, and the half-cycle bit, of what a writer of messages expects."""
    found, signals = {}, set()
    for said in observations:
        if said["code"] is None or said["satellite"] is None or said["system"] is None:
            continue
        satellite = satellites.satellite_of(said)
        if (satellite, said["code"]) in signals:
            continue  # once more: the first counts
        signals.add((satellite, said["code"]))
        for letter, member in zip("CLDS", ("pseudorange", "carrierPhase", "doppler", "cn0")):
            value = said[member]
            if value is None:
                continue
            exact = Fraction(value.raw) * Fraction(value.step) if hasattr(value, "raw") else \
                Fraction(value)
            if letter == "D" or abs(exact) >= Fraction(1, 2000):
                found[time, satellite, letter + said["code"]] = (
                    exact * 1000, 2 * (said["halfCycleAmbiguity"] or 0) if letter == "L" else 0)
    return found


def MsmEpoch(rng, seconds, station=120, level=7):
    """Messages MSM of all systems, and what is expected of them."""
    frames, expected = b"", {}
    for tens in sorted(fields_rtcm.SIGNALS):
        msm = fields_rtcm.Msm(rng, tens, level)
        tow = round((Tow + seconds) * 1000) % later.WEEK_MS
        msm.station, msm.tow_ms, msm.epoch = station, tow, tow
        if tens == 112:
            msm.epoch = (tow - 14000) % later.WEEK_MS
        if tens == 108:
            moment = (tow - 18000 + 10800000) % later.WEEK_MS
            msm.epoch = moment // 86400000 << 27 | moment % 86400000
            msm.rough = {satellite: (rough, satellite % 14, rate)
                         for satellite, (rough, _, rate) in msm.rough.items()}
        msm.head[0] = int(tens != 113)
        frames += msm.frame()
        expected |= Expected(Start + round(seconds * Second), msm.expected()["observations"])
    return frames, expected


def Stream(count=12, step=1.0, station=120, seed=1, dated=True, first=0, level=7):
    """Epochs of MSM, with a date before them or none."""
    rng = random.Random(seed)
    epochs = [MsmEpoch(rng, first + i * step, station, level) for i in range(count)]
    date = later.of_station(fields_rtcm.dated(Week, Tow + first), station) if dated else b""
    return date + b"".join(frames for frames, _ in epochs), {
        key: value for _, expected in epochs for key, value in expected.items()}


class Values(unittest.TestCase):
    def Holds(self, expected, text):
        found = CellsOf(text)
        self.assertEqual(set(expected) - set(found), set())
        self.assertEqual(set(found) - set(expected), set())
        for key, (value, half) in expected.items():
            self.assertLessEqual(abs(found[key].value - value), Fraction(50001, 100000), key)
            self.assertEqual((found[key].lock or 0) & 2, half, key)

    def test_random_messages_of_stations(self):
        for level in (4, 5, 6, 7):
            data, expected = Stream(seed=level, level=level)
            status, files, said = Rinex(data)
            self.assertEqual(status, 0, said)
            self.Holds(expected, files["it.obs"])

    def test_random_raw_measurements(self):
        rng, data, expected = random.Random(3), b"", {}
        for i in range(40):
            frame, record = fields_rawx.raw(rng, Tow + i * 0.2, week=Week)
            data += frame
            expected |= Expected(Start + i * Second // 5, record["observations"])
        status, files, said = Rinex(data, name="raw.ubx")
        self.assertEqual(status, 0, said)
        self.Holds(expected, files["it.obs"])

    def test_random_ephemerides(self):
        """Of each message, in both versions: what the writer of the message expects of a record,
        and what RINEX has for what is not known."""
        unknown = {"accuracy": (8192, -1), "secondDelay": (0,), "delay": (999999999.999,),
                   "uncertainty": (15,)}
        makes = fields_ephemerides.MESSAGES + fields_glonass.MESSAGES
        for message in [m for m in makes if m.name.split()[-1] not in (
                "date", "short", "damaged", "issues", "missing")]:
            for seed in range(4):
                data, members = message.make(random.Random(seed))
                if members.get("tocWeek", 0) is None:
                    self.assertIn("--date", Rinex(data)[2])
                    continue
                item, found = SimpleNamespace(kind=message.kind, record=Plain(members)), []
                for version, times in (("3", 1), ("4", 2)):  # once, however often it is sent
                    status, files, said = Rinex(data * times, "--version", version)
                    self.assertEqual(status, 0, said)
                    found += rinex_records.known(Parsed(files["it.nav"]))
                satellite = satellites.satellite_of_ephemeris(item)
                self.assertEqual([orbit[0] for orbit in found], [satellite] * 2)
                for _, moment, values in found:
                    for name, mine, told in nav_fields.differences(
                            nav_fields.fields_of(item), moment, values):
                        if name not in ("status", "flags"):  # of which parts may be known
                            self.assertIsNone(mine, (message.name, seed, name, told))
                            self.assertIn(told, unknown[name], (message.name, seed, name))

    def test_the_station_itself(self):
        make = {message.name: message.make for message in fields_stations.MESSAGES}
        for seed in range(5):
            rng, frames, expected = random.Random(seed), b"", {}
            for name in ("RTCM 1006", "RTCM 1033", "RTCM 1230"):
                data, members = make[name](rng)
                frames += later.of_station([*later.frames(data)][-1], 120)
                expected |= members
            found = Parsed(Rinex(Stream(2)[0] + frames)[1]["it.obs"])
            head = found.head
            self.assertEqual(found.biases, {
                code: Decimal(expected[name].raw) / 50 for code, name in (
                    ("C1C", "l1Ca"), ("C1P", "l1P"), ("C2C", "l2Ca"), ("C2P", "l2P"))
                if expected[name] is not None})
            self.assertEqual(list(map(float, head.first("APPROX POSITION XYZ"))),
                             [round(expected[axis].raw * 1e-4, 4) for axis in "xyz"])
            self.assertEqual(head.first("ANTENNA: DELTA H/E/N")[0],
                             Fraction(expected["antennaHeight"].raw, 10000))
            for label, names in (("REC # / TYPE / VERS", ("receiverSerial", "receiver",
                                                           "firmware")),
                                 ("ANT # / TYPE", ("antennaSerial", "antenna"))):
                self.assertEqual(head.first(label)[:len(names)],
                                 [(expected[name] or "")[:20].rstrip() for name in names])


class Ways(unittest.TestCase):
    """The same data by different ways."""

    def test_versions(self):
        data, _ = Stream()
        three, four = (Rinex(data, "--version", str(version))[1]["it.obs"] for version in (3, 4))
        self.assertEqual((Parsed(three).version, Parsed(four).version), ("3.05", "4.02"))
        self.assertEqual(CellsOf(three), CellsOf(four))
        self.assertEqual([epoch[:3] for epoch in Parsed(three).epochs],
                         [epoch[:3] for epoch in Parsed(four).epochs])

    def test_live_and_file_and_compressed(self):
        data, _ = Stream()
        types = "--types", ",".join(f"{letter}{code}" for code in ("1C", "2I", "5X")
                                    for letter in "CLDS")  # of which each system has some
        whole = Rinex(data, *types)[1]["it.obs"]
        self.assertEqual(Body(Rinex(data, *types, live=True)[1]["it.obs"]), Body(whole))
        self.assertEqual(Body(Rinex(data, live=True)[1]["it.obs"]), Body(Rinex(data)[1]["it.obs"]))
        self.assertEqual(Body(Rinex(data, *types, "--gzip")[1]["it.obs.gz"]), Body(whole))
        listening = socket.create_server(("127.0.0.1", 0))

        def Serve():
            connection = listening.accept()[0]
            with connection:
                for at in range(0, len(data), 1009):
                    connection.sendall(data[at:at + 1009])
        threading.Thread(target=Serve, daemon=True).start()
        status, files, said = Rinex("tcp://127.0.0.1:%d" % listening.getsockname()[1], *types)
        self.assertIn("it.obs", files, said)
        self.assertEqual(Body(files["it.obs"]), Body(whole))
        listening.close()

    def test_until_it_is_interrupted(self):
        data, _ = Stream()
        with tempfile.TemporaryDirectory() as folder:
            process = subprocess.Popen([Tool, "rinex", "-", "-o", folder + "/it", "--types",
                                        "C1C,L1C", "--quiet"], stdin=subprocess.PIPE)
            process.stdin.write(data)
            process.stdin.flush()
            time.sleep(1)
            self.assertEqual(os.listdir(folder), [])  # files appear when they are complete
            process.send_signal(signal.SIGINT)
            self.assertEqual(process.wait(10), 0)
            process.stdin.close()
            self.assertEqual(Body(Path(folder, "it.obs").read_text()),
                             Body(Rinex(data, "--types", "C1C,L1C")[1]["it.obs"]))

    def test_some_of_it(self):
        data, _ = Stream()
        whole = CellsOf(Rinex(data)[1]["it.obs"])
        for options, wanted in (
                (("--sat", "G,E05"), lambda time, satellite, kind:
                    satellite[0] == "G" or satellite == "E05"),
                (("--signal", "1C"), lambda time, satellite, kind: kind[1:] == "1C"),
                (("--types", "G:C1C,L2W,R:D1C"), lambda time, satellite, kind:
                    (satellite[0], kind) in (("G", "C1C"), ("G", "L2W"), ("R", "D1C"))),
                (("--every", "3s"), lambda time, satellite, kind: time % (3 * Second) == 0),
                (("--from", "2026-01-07T23:59:46Z", "--to", "2026-01-07T23:59:50Z"),
                 lambda time, satellite, kind: 4 <= (time - Start) // Second < 8)):
            status, files, said = Rinex(data, *options)
            self.assertEqual(status, 0, said)
            expected = {key: cell for key, cell in whole.items() if wanted(*key)}
            found = CellsOf(files["it.obs"])
            self.assertEqual(
                {key: cell.value for key, cell in found.items()},
                {key: cell.value for key, cell in expected.items()}, options)

    def test_versions_of_captures(self):
        folder = os.environ.get("NAVFRAME_CAPTURES")
        if not folder:
            self.skipTest("without NAVFRAME_CAPTURES")
        for name in ("ubx-rawx-sfrbx.ubx", "mixed-ubx-nmea-rtcm3.bin"):
            data = Path(folder, name).read_bytes()
            three, four = (Rinex(data, "--version", version)[1] for version in "34")
            self.assertEqual(CellsOf(three["it.obs"]), CellsOf(four["it.obs"]))
            orbits = [[record for record in Parsed(files["it.nav"]).records
                       if record.kind == "EPH"] for files in (three, four)]
            self.assertEqual([(record.satellite, record.time, record.values)
                              for record in orbits[0]],
                             [(record.satellite, record.time, record.values)
                              for record in orbits[1]])
            self.assertEqual(orbits[0], sorted(orbits[0], key=lambda orbit: (orbit.time,
                                                                             orbit.satellite)))

    def test_hours_and_names(self):
        data, _ = Stream(count=20, step=600)
        whole = Rinex(data)[1]["it.obs"]
        status, hours, said = Rinex(data, "--station", "ABCD00CHE", "--split", "hour")
        self.assertEqual(status, 0, said)
        self.assertEqual([*hours], [f"ABCD00CHE_S_20260080{hour}00_01H_10M_MO.rnx"
                                    for hour in range(4)])
        self.assertEqual(CellsOf(*hours.values()), CellsOf(whole))
        day = Rinex(data, "--station", "ABCD00CHE", "--split", "day", "--gzip")[1]
        self.assertEqual([*day], ["ABCD00CHE_S_20260080000_01D_10M_MO.rnx.gz"])
        self.assertEqual(CellsOf(*day.values()), CellsOf(whole))


class Times(unittest.TestCase):
    def test_end_of_the_week(self):
        first = 604800 - Tow - 5
        for options, dated in (((), True), (("--date", "2026-01-10"), False)):
            data, expected = Stream(first=first, dated=dated)
            status, files, said = Rinex(data, *options)
            self.assertEqual(status, 0, said)
            self.assertEqual(set(CellsOf(files["it.obs"])), set(expected))

    def test_weeks_and_what_says_them(self):
        dated, undated = Stream(2)[0], Stream(2, dated=False)[0]
        for data, options, name, week, why in (
                (dated, ("--date", "2025-01-08"), "a_20240108.rtcm3", Week, "stream"),
                (undated, ("--date", "2025-01-08"), "a_20240108.rtcm3", 2348, "--date"),
                (undated, (), "a_20240108.rtcm3", 2296, "name")):
            status, files, said = Rinex(data, *options, name=name)
            self.assertEqual(status, 0, said)
            found = Parsed(files["it.obs"])
            self.assertEqual(found.epochs[0].time // Second // 604800, week)
            comments = " ".join(fields[0] for fields in found.header["COMMENT"])
            self.assertIn(why, comments)
        status, files, said = Rinex(undated)
        self.assertEqual((status, files), (1, {}), said)
        self.assertIn("--date", said)


class BadInput(unittest.TestCase):
    def test_stations_that_are_mixed_up(self):
        rng = random.Random(5)
        one, other = ([MsmEpoch(rng, i, station)[0] for i in range(5)] for station in (120, 121))
        date = later.of_station(fields_rtcm.dated(Week, Tow), 120)
        mixed = date + b"".join(a + b for a, b in zip(one, other))
        status, files, said = Rinex(mixed)
        self.assertEqual((status != 0, files), (True, {}))
        self.assertTrue("120" in said and "121" in said and "--station-id" in said, said)
        for station, alone in ((120, one), (121, other)):
            self.assertEqual(Body(Rinex(mixed, "--station-id", str(station))[1]["it.obs"]),
                             Body(Rinex(date + b"".join(alone))[1]["it.obs"]))

    def test_order_and_repetition(self):
        rng = random.Random(6)
        epochs = [MsmEpoch(rng, i)[0] for i in range(6)]
        date = fields_rtcm.dated(Week, Tow)
        for order, times, reason in (((0, 1, 3, 2, 4), [0, 1, 3, 4], "out of order"),
                                     ((0, 1, 1, 2), [0, 1, 2], "had already")):
            status, files, said = Rinex(date + b"".join(epochs[i] for i in order))
            found = [(epoch.time - Start) // Second for epoch in Parsed(files["it.obs"]).epochs]
            self.assertEqual(found, times)
            self.assertIn(reason, said)

    def test_cut_inside_an_epoch(self):
        rng = random.Random(7)
        whole, (cut, _) = MsmEpoch(rng, 0)[0], MsmEpoch(rng, 1)
        frames = [*later.frames(cut)]
        _, files, said = Rinex(fields_rtcm.dated(Week, Tow) + whole + b"".join(frames[:2]) +
                               frames[2][:20])
        epochs = Parsed(files["it.obs"]).epochs
        self.assertEqual(len(epochs), 2)
        self.assertEqual({name[0] for name in epochs[1].satellites}, {"G", "R"})
        self.assertIn("1 epochs are written without their last messages", said)

    def test_damage(self):
        """Whatever comes, files are right by themselves: Rinex() reads them strictly."""
        folder = os.environ.get("NAVFRAME_CAPTURES")
        sources = [Stream()[0], (Root / "samples/mixed.bin").read_bytes()]
        sources += [path.read_bytes()[:300000] for path in sorted(Path(folder or "/none").glob("*"))
                    if path.suffix != ".md"]
        rng = random.Random(8)
        for data in sources:
            for rate in (0, 1e-5, 1e-3):
                spoilt = bytearray(data)
                for _ in range(int(len(data) * rate)):
                    spoilt[rng.randrange(len(data))] = rng.randrange(256)
                status, _, said = Rinex(bytes(spoilt), "--date", "2026-01-08")
                self.assertTrue(status == 0 or status in (1, 3) and "no observations" in said or
                                status == 1 and "--station-id" in said, said)


if __name__ == "__main__":
    unittest.main()
