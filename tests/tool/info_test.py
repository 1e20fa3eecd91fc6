"""What navframe info and navframe track tell, beside streams that are made here and counters of
their own."""
import itertools
import json
import math
import os
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
from collections import Counter
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "scripts/checks"))
import wire

Tool = os.environ["NAVFRAME_TOOL"]
Epoch = 100_000  # s of the week, 2026-03-02
Week = 2408


def Run(*arguments, data=None):
    """Status, output and errors."""
    done = subprocess.run([Tool, *map(str, arguments)], input=data, capture_output=True,
                          timeout=60)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def Look(data):
    status, out, err = Run("info", "--json", data=data)
    assert status == 0, err
    return json.loads(out)["files"][0]


def Message(info, message):
    return next(m for m in info["messages"] if m["message"] == message)


def Clock(ms):
    """Day of the month and time of day, UTC, of a time of that week."""
    seconds, ms = divmod(ms - 18_000, 1000)
    return 1 + seconds // 86400, seconds // 3600 % 24, seconds // 60 % 60, seconds % 60, ms


def Pvt(ms, latitude=0.0, longitude=0.0, height=100.0, fix=3, flags=1):
    day, hour, minute, second, milli = Clock(ms)
    return wire.ubx_frame(1, 7, struct.pack(
        "<IHBBBBBBIiBBBBiiiiII44x", ms, 2026, 3, day, hour, minute, second, 7, 50, milli * 10**6,
        fix, flags, 0, 9, round(longitude * 1e7), round(latitude * 1e7), round(height * 1e3),
        round(height * 1e3) - 50_000, 1500, 2500))


def Gga(ms, latitude="4530.0000000,N", longitude="00730.0000000,E", quality=1):
    _, hour, minute, second, milli = Clock(ms)
    return wire.nmea_sentence(f"GNGGA,{hour:02}{minute:02}{second:02}.{milli // 10:02},{latitude},"
                              f"{longitude},{quality},08,1.00,200.0,M,48.0,M,,")


def Ms(seconds):
    return round((Epoch + seconds) * 1000)


def CountFrames(data):
    """Frames by what begins and checks them, each message with its count and bytes."""
    counts, sizes, at = Counter(), Counter(), 0
    while at < len(data):
        key, size = None, 0
        if data[at] == 0x24:
            found = re.match(rb"\$([^$*\r\n,]+)(,[^$*\r\n]*)?\*([0-9A-F]{2})(?:\r?\n)?",
                             data[at:at + 4096])
            if found:
                check = 0
                for byte in found[0][1:found[0].index(b"*")]:
                    check ^= byte
                if check == int(found[3], 16):
                    key, size = ("NMEA", found[1].decode()), len(found[0])
        elif data[at] == 0xD3 and at + 6 <= len(data) and data[at + 1] < 4:
            payload = data[at + 3:at + 3 + (data[at + 1] << 8 | data[at + 2])]
            if len(payload) > 1 and wire.rtcm_frame(payload) == data[at:at + len(payload) + 6]:
                number = payload[0] << 4 | payload[1] >> 4
                key, size = ("RTCM 3", str(number)), len(payload) + 6
        elif data[at:at + 2] == b"\xb5\x62" and at + 8 <= len(data):
            length = struct.unpack_from("<H", data, at + 4)[0]
            payload = data[at + 6:at + 6 + length]
            if wire.ubx_frame(data[at + 2], data[at + 3], payload) == data[at:at + 8 + length]:
                key, size = ("UBX", f"{data[at + 2]:02X}-{data[at + 3]:02X}"), 8 + length
        if key:
            counts[key] += 1
            sizes[key] += size
        at += max(size, 1)
    return counts, sizes


class Info(unittest.TestCase):
    @unittest.skipUnless("NAVFRAME_CAPTURES" in os.environ, "NAVFRAME_CAPTURES is not set")
    def test_CountsAreThoseOfAnotherCounter(self):
        paths = [p for p in sorted(Path(os.environ["NAVFRAME_CAPTURES"]).iterdir())
                 if p.suffix != ".md"]
        pages = json.loads(Run("info", "--json", *paths)[1])
        self.assertGreater(len(paths), 10)
        total = Counter()
        for path, info in zip(paths, pages["files"], strict=True):
            data = path.read_bytes()
            counts, sizes = CountFrames(data)
            told = {(m["protocol"], m["message"]): m for m in info["messages"]}
            self.assertEqual({key: m["count"] for key, m in told.items()}, counts, path.name)
            self.assertEqual({key: m["bytes"] for key, m in told.items()}, sizes, path.name)
            self.assertEqual(info["outside_frames"]["bytes"], len(data) - sizes.total(), path.name)
            records = subprocess.run([Tool, "--quiet", "--format", "json", path],
                                     capture_output=True, check=True).stdout
            kinds = Counter(json.loads(line)["kind"] for line in records.splitlines())
            self.assertEqual({k["kind"]: k["count"] for k in info["kinds"]}, kinds, path.name)
            total += counts
        self.assertEqual({(m["protocol"], m["message"]): m["count"]
                          for m in pages["total"]["messages"]}, total)

    def test_RatesAndGaps(self):
        data = b""
        for tenth in range(600):
            if not 200 < tenth < 250:
                data += Pvt(Ms(tenth / 10))
            if tenth % 20 == 0:  # a burst
                data += 3 * wire.ubx_frame(0x0A, 0x38, bytes(8))
        info = Look(data)
        pvt, other = Message(info, "01-07"), Message(info, "0A-38")
        self.assertEqual((pvt["count"], pvt["usual_interval_s"], pvt["longest_gap_s"]),
                         (551, 0.1, 5))
        self.assertEqual(pvt["longest_gap_from_utc"], "2026-03-02T03:46:42.000Z")
        self.assertEqual((pvt["first_s"], pvt["last_s"], pvt["longest_gap_from_s"]), (0, 59.9, 20))
        self.assertAlmostEqual(pvt["rate_hz"], 550 / 59.9, 4)
        self.assertEqual((other["kinds"], other["name"], other["undecoded"]), ([], "MON-RF", 90))
        # While the time stood still three bursts were one.
        self.assertEqual((other["rate_hz"], other["longest_gap_s"]),
                         (round(90 / 28 * 27 / 58, 4), 6))
        self.assertEqual(info["time"], {
            "known": "date", "first_utc": "2026-03-02T03:46:22.000Z",
            "last_utc": "2026-03-02T03:47:21.900Z", "first_gps_week": Week,
            "first_gps_tow_s": Epoch, "last_gps_week": Week, "last_gps_tow_s": Epoch + 59.9,
            "duration_s": 59.9, "leap_seconds_s": 18, "jumps": 0})

    def test_PositionsAtTheDateLine(self):
        offset = 1e-5
        data = b"".join(Pvt(Ms(i), 0, (180 - offset) * (-1) ** i, 10 + 2 * (i % 2)) +
                        Gga(Ms(i)) for i in range(100)) + Pvt(Ms(100), fix=0, flags=0)
        position = Look(data)["position"]
        self.assertEqual((position["source"], position["epochs"], position["fixes"]),
                         ("NAV-PVT", 101, 100))
        self.assertEqual(position["quality_shares"], {"no fix": round(1 / 101, 6),
                                                      "autonomous": round(100 / 101, 6)})
        mean, deviation = position["mean"], position["standard_deviation"]
        self.assertAlmostEqual(abs(mean["longitude_deg"]), 180, 8)
        self.assertAlmostEqual(mean["height_ellipsoid_m"], 11, 3)
        self.assertAlmostEqual(deviation["east_m"], 6378148 * math.radians(offset), 3)
        self.assertEqual((deviation["north_m"], deviation["up_m"]), (0, 1))

    def test_SatellitesComeAndGo(self):
        rng, data, cn0s = random.Random(5), b"", {}
        view = [(0, 3), (0, 7), (6, 1), (2, 33), (3, 12)]
        for epoch in range(300):
            if rng.random() < 0.2:
                view = rng.sample(view, rng.randrange(1, len(view) + 1))
            if rng.random() < 0.2:
                view.insert(rng.randrange(len(view) + 1), (0, rng.randrange(1, 32)))
            payload = struct.pack("<IBBH", Ms(epoch), 1, len(view), 0)
            for system, number in view:
                cn0 = rng.choice((0, 255, 30, 41, 50))
                payload += struct.pack("<BBBbhhI", system, number, cn0, 10, 20, 0, 0)
                if cn0 not in (0, 255):
                    cn0s.setdefault(f"{'GSECBJR'[system]}{number:02}", []).append(cn0)
            data += wire.ubx_frame(1, 0x35, payload)
        seen = Look(data)["satellites"]
        self.assertEqual({one["satellite"]: (one["count"], one["mean_cn0_dbhz"])
                          for one in seen["satellites"]},
                         {name: (len(all), math.floor(1000 * sum(all) / len(all) + 0.5) / 1000)
                          for name, all in cn0s.items()})

    def test_TotalsHaveTheTimesWithADate(self):
        with tempfile.TemporaryDirectory() as folder:
            parts = Gga(Ms(5)), Pvt(Ms(0)), b"", Gga(Ms(9)), Pvt(Ms(7)) + Gga(Ms(8))
            for i, part in enumerate(parts):
                Path(folder, str(i)).write_bytes(part)
            for count, span in (1, 0), (2, 0), (4, 0), (5, 8):
                paths = [Path(folder, str(i)) for i in range(count)]
                info = json.loads(Run("info", "--json", folder + "/2", *paths)[1])["total"]
                self.assertEqual(info["time"]["duration_s"], span)
                self.assertEqual(info["time"]["first_utc"],
                                 "2026-03-02T03:46:22.000Z" if count > 1 else None)

    def test_TablesDoNotGrow(self):
        letters = itertools.product("ABCDEFGHIJKLMNO", repeat=3)
        names = ["P" + "".join(three) for three in letters][:3000]
        data = b"".join(wire.nmea_sentence(f"{name},1") for name in names)
        data += b"".join(wire.nmea_sentence(f"GPTXT,01,01,02,text {i}") for i in range(1000))
        info = Look(data + Gga(Ms(0)))
        listed = sum(m["count"] for m in info["messages"])
        self.assertEqual((len(info["messages"]), listed + info["unlisted_frames"]), (1024, 4001))
        with tempfile.TemporaryDirectory() as folder:
            halves = [Path(folder, name) for name in "ab"]
            for i, path in enumerate(halves):
                path.write_bytes(b"".join(wire.nmea_sentence(name) for name in names[i::2]))
            total = json.loads(Run("info", "--json", *halves)[1])["total"]
        self.assertEqual((len(total["messages"]), total["unlisted_frames"]), (1024, 3000 - 1024))
        texts = Look(data[-40_000:])["texts"]
        self.assertEqual(len(texts), 32)

    def test_TextOfTheInput(self):
        data = 2 * wire.nmea_sentence('GPTXT,01,01,02,<script>"\\^1B[31m\xe9\xc2\x9b')
        info = Look(data)
        self.assertEqual(info["texts"], [
            {"from": "GPTXT", "text": '<script>"\\\x1b[31m\xe9\x9b', "count": 2}])
        page = Run("info", data=data)[1]
        self.assertIn('text        GPTXT: <script>"\\\\x1B[31m', page)
        self.assertNotRegex(page, "[\x00-\x09\x0b-\x1f\x7f-\x9f]")

    def test_NothingRecognised(self):
        noise = bytes((i * i * 7919 >> 5 ^ i >> 3) & 0xFF for i in range(200_000))
        for data, said in ((b"", "0 bytes: empty"), (noise, "nothing was recognised"),
                           (b"\xd3" * 5000, "nothing was recognised")):
            status, out, err = Run("info", data=data)
            self.assertEqual((status, err), (3, "navframe: nothing was recognised\n"))
            self.assertIn(said, out)
            info = json.loads(Run("info", "--json", data=data)[1])["files"][0]
            self.assertFalse(info["recognised"])
            self.assertEqual(Run("track", data=data)[:2], (3, ""))

    def test_WhateverIsCutOff(self):
        sample = (Root / "samples/mixed.bin").read_bytes()
        for length in range(0, len(sample), len(sample) // 40):
            for command in ("info",), ("info", "--json"), ("track", "--format", "geojson"):
                self.assertIn(Run(*command, data=sample[:length])[0], (0, 3))

    def test_ReadmeShowsWhatIsPrinted(self):
        readme = (Root / "README.md").read_text(encoding="utf-8")
        shown = re.search(r"\$ navframe info (\S+)\n(.*?)```", readme, re.S)
        printed = subprocess.run([Tool, "info", shown[1]], cwd=Root, capture_output=True,
                                 check=True).stdout.decode().splitlines()
        lines = shown[2].splitlines()
        self.assertGreater(len(lines), 10)
        for line in lines:
            self.assertTrue(line == "..." or line in printed, line)


class Track(unittest.TestCase):
    def Points(self, data, *options):
        status, out, err = Run("track", "--format", "csv", *options, data=data)
        self.assertEqual(status, 0, err)
        head, *lines = out.splitlines()
        names = [name.split(" ")[0] for name in head.split(",")]
        return [dict(zip(names, line.split(","), strict=True)) for line in lines]

    def Pieces(self, data, *options):
        """Source and number of points of each."""
        points = self.Points(data, *options)
        return [(source, count) for (_, source), count in
                Counter((p["piece"], p["source"]) for p in points).items()]

    def test_SourcesAndGaps(self):
        both = [Gga(Ms(i)) + Pvt(Ms(i)) for i in range(30)]
        alone = [Gga(Ms(i)) for i in range(30, 60)]
        later = [Pvt(Ms(i)) for i in range(60, 70)]
        late = [Pvt(Ms(i)) for i in range(85, 90)]
        self.assertEqual(self.Pieces(b"".join(both + alone + later + late)),
                         [("NAV-PVT", 30), ("GGA", 30), ("NAV-PVT", 10), ("NAV-PVT", 5)])
        self.assertEqual(self.Pieces(b"".join(later + late), "--gap", "20s"), [("NAV-PVT", 15)])
        # A lesser source does not fill what is no gap of the better one.
        self.assertEqual(self.Pieces(b"".join(both[:10] + [Gga(Ms(i)) for i in range(10, 16)] +
                                              [Pvt(Ms(16))])),
                         [("NAV-PVT", 11)])
        self.assertEqual(self.Pieces(b"".join(both + alone[:5])), [("NAV-PVT", 30)])
        slow = b"".join(Pvt(Ms(30 * i)) for i in range(20))
        self.assertEqual(self.Pieces(slow), [("NAV-PVT", 20)])
        self.assertEqual(self.Pieces(slow, "--gap", "10"), 20 * [("NAV-PVT", 1)])
        rare = b"".join(Gga(Ms(600 + 30 * i)) for i in range(10))
        self.assertEqual(self.Pieces(b"".join(later) + rare), [("NAV-PVT", 10), ("GGA", 10)])
        self.assertEqual([p["gpsTow"] for p in self.Points(slow, "--every", "5min")],
                         ["100000.000", "100210.000", "100510.000"])
        self.assertEqual(self.Points(b"".join(both))[0], {
            "time": "2026-03-02T03:46:22.000Z", "gpsWeek": str(Week), "gpsTow": "100000.000",
            "latitude": "0.000000000", "longitude": "0.000000000", "heightEllipsoid": "100.0000",
            "heightSea": "50.0000", "quality": "autonomous", "satellites": "9", "hdop": "1.00",
            "horizontalAccuracy": "1.5000", "verticalAccuracy": "2.5000", "source": "NAV-PVT",
            "piece": "1"})

    def test_WithoutADate(self):
        points = self.Points(b"".join(Gga(Ms(i)) for i in range(5)) + Gga(Ms(9), quality=0))
        self.assertEqual([p["time"] for p in points], [f"03:46:{22 + i}.000" for i in range(5)])
        self.assertEqual((points[0]["latitude"], points[0]["longitude"]),
                         ("45.500000000", "7.500000000"))

    def test_MidnightAndLastLongitude(self):
        night = 86_400 + 18  # of the week, GPS
        data = b"".join(Gga((night + i) * 1000, longitude="18000.0000000,E")
                        for i in range(-30, 30))
        self.assertEqual(Look(data)["time"]["duration_s"], 59)
        self.assertEqual(self.Pieces(data), [("GGA", 60)])
        self.assertIn('lon="-180.000000000"', Run("track", data=data)[1])

    def test_GeoJsonAtTheDateLine(self):
        longitudes = [179.9998, 179.9999, -179.9999, -179.9998, 179.9999]
        data = b"".join(Pvt(Ms(i), -17, longitude) for i, longitude in enumerate(longitudes))
        collection = json.loads(Run("track", "--format", "geojson", data=data)[1])
        point, lines = collection["features"]
        self.assertEqual(point["geometry"], {"type": "Point", "coordinates": [179.9999, -17, 100]})
        self.assertEqual(lines["geometry"], {"type": "MultiLineString", "coordinates": [
            [[179.9998, -17, 100], [179.9999, -17, 100]],
            [[-179.9999, -17, 100], [-179.9998, -17, 100]]]})
        self.assertEqual(lines["properties"]["times"][1][0], "2026-03-02T03:46:24.000Z")
        self.assertEqual(lines["properties"]["height_sea_m"], [[50, 50], [50, 50]])

    @unittest.skipUnless(shutil.which("gpsbabel"), "gpsbabel is not installed")
    def test_GpxHasTheSamePoints(self):
        captures = [p for p in sorted(Path(os.environ.get("NAVFRAME_CAPTURES", "")).glob("*.*"))
                    if p.suffix != ".md" and Run("track", p)[0] == 0]
        with tempfile.TemporaryDirectory() as folder:
            odd = Path(folder, "a<b&c.ubx")
            odd.write_bytes(b"".join(Pvt(Ms(i), i / 10, -i) for i in (0, 1, 2, 40, 41)))
            for path in [Root / "samples/mixed.bin", odd, *captures]:
                gpx, table = Path(folder, "track.gpx"), Path(folder, "track.csv")
                self.assertEqual(Run("track", path, "-o", gpx)[0], 0)
                subprocess.run(["gpsbabel", "-t", "-i", "gpx", "-f", gpx, "-x",
                                "transform,wpt=trk,del", "-o", "xcsv,style=" + self.Style(folder),
                                "-F", table], check=True)
                read = [line.split(",") for line in table.read_text().split()]
                ours = self.Points(path.read_bytes())
                self.assertEqual(len(read), len(ours), path.name)
                for (latitude, longitude, height), point in zip(read, ours):
                    self.assertAlmostEqual(float(latitude), float(point["latitude"]), 8)
                    self.assertAlmostEqual(float(longitude), float(point["longitude"]), 8)
                    self.assertAlmostEqual(float(height), float(point["heightSea"]), 2)

    @staticmethod
    def Style(folder):
        """How gpsbabel writes what it read."""
        path = Path(folder, "points.style")
        path.write_text("FIELD_DELIMITER COMMA\nRECORD_DELIMITER NEWLINE\n"
                        'OFIELD LAT_DECIMAL, "", "%.9f"\nOFIELD LON_DECIMAL, "", "%.9f"\n'
                        'OFIELD ALT_METERS, "", "%.4f"\n')
        return str(path)


if __name__ == "__main__":
    unittest.main(verbosity=1)
