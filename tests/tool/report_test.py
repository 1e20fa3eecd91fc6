"""Pages of navframe report, read by a parser of HTML, and by a browser where there is one."""
import base64
import hashlib
import html.parser
import json
import operator
import os
import random
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "scripts/checks"))
import wire

import browser

Tool = os.environ["NAVFRAME_TOOL"]
Hostile = "</script><script>document.title='taken'</script><!--<script><img src=x:y>"
Samples = [Root / "samples/mixed.bin", Root / "samples/drive.nmea"]


def Run(*arguments, data=None):
    """Status, output and errors."""
    done = subprocess.run([Tool, *map(str, arguments)], input=data, capture_output=True,
                          timeout=60)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


class Page(html.parser.HTMLParser):
    """Elements with their attributes, and the texts of those that have some."""

    def __init__(self, text):
        super().__init__()
        self.elements, self.texts, self.size, self.inside = [], {}, len(text), None
        self.feed(text)
        self.recordings = [json.loads(one) for one in self.texts["script"][:-1]]

    def handle_starttag(self, tag, attributes):
        self.elements.append((tag, dict(attributes)))
        self.texts.setdefault(tag, []).append("")
        self.inside = tag

    def handle_endtag(self, tag):
        self.inside = None

    def handle_data(self, data):
        if self.inside:
            self.texts[self.inside][-1] += data


def Report(*arguments, data=None):
    status, out, err = Run("report", *arguments, data=data)
    assert status == 0, err
    return Page(out)


def Announcement():
    """What stands in texts of the input, as it was sent."""
    text = Hostile.encode()
    station = bytes((1033 >> 4, (1033 & 15) << 4, 5, 31)) + text[:31]
    version = wire.ubx_frame(0x0A, 4, text.ljust(90, b"\0")[:30] + b"1".ljust(10, b"\0"))
    return (wire.nmea_sentence(f"GNTXT,01,01,02,{Hostile.replace('!', '')}") +
            wire.rtcm_frame(station + b"\0\1a\1r\1f\1s") + version)


class Content(unittest.TestCase):
    def test_TellsWhatInfoAndDoctorTell(self):
        page = Report(*Samples)
        for sample, recording in zip(Samples, page.recordings, strict=True):
            self.assertEqual(recording["info"], json.loads(Run("info", "--json", sample)[1]))
            self.assertEqual(recording["doctor"], json.loads(Run("doctor", "--json", sample)[1]))

    def test_AxisIsTheBestThatIsKnown(self):
        def Fix(second, days=()):
            clock = f"{second // 3600:02}{second // 60 % 60:02}{second % 60:02}.00"
            return b"".join(
                [wire.nmea_sentence(f"GPZDA,{clock},{day:02},03,2026,00,00") for day in days] +
                [wire.nmea_sentence(f"GPGGA,{clock},4530.0,N,00730.0,E,1,08,1.0,200.0,M,48.0,M,,")])
        rest = b"".join(Fix(second) for second in range(41, 50))
        for data, kind, origin, end in (
                (Fix(40, [2]) + rest, "utc", 1772409640000, 9000),
                (Fix(40) + rest, "day", 40000, 9000),
                (Fix(40, [2]) + rest + Fix(49, [9]) + Fix(40, [2]) + rest, "elapsed", 0, 18000),
                (10 * wire.ubx_frame(0x0A, 0x38, bytes(8)), "bytes", 0, 144)):
            axis = Report(data=data).recordings[0]["charts"]["axis"]
            self.assertEqual((axis["kind"], axis["origin"], axis["x"][-1]), (kind, origin, end))

    def test_InputIsNoMarkup(self):
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder, "<img src=x:y>&amp;\n\xe4.ubx")
            path.write_bytes(Announcement())
            page = Report(path)
        self.assertEqual([tag for tag, _ in page.elements if tag in ("script", "img")],
                         ["script", "script"])
        self.assertEqual(page.texts["title"], [str(path).replace("\n", "\\x0A")])
        info = page.recordings[0]["info"]["files"][0]
        self.assertEqual(info["source"], str(path))
        self.assertEqual(info["texts"][0]["text"], Hostile.replace("!", ""))
        self.assertEqual(info["station_equipment"][0]["antenna"], Hostile[:31])
        self.assertEqual(info["receivers"][0]["software"], Hostile[:30])

    def test_NothingElseIsAllowed(self):
        page = Report(Samples[0])
        of = {tag: [text.encode() for text in page.texts[tag]] for tag in ("script", "style")}
        hashes = {tag: "'sha256-" + base64.b64encode(hashlib.sha256(texts[-1]).digest()).decode() +
                  "'" for tag, texts in of.items()}
        policy = next(attributes["content"] for tag, attributes in page.elements
                      if attributes.get("http-equiv") == "Content-Security-Policy")
        self.assertEqual(policy, f"default-src 'none'; script-src {hashes['script']}; style-src "
                         f"{hashes['style']}; base-uri 'none'; form-action 'none'")
        addresses = [value for _, attributes in page.elements for name, value in attributes.items()
                     if name in ("src", "href", "style", "action") or name.startswith("on")]
        self.assertEqual(addresses, ["#report"])
        self.assertNotIn(b"url(", of["style"][0])
        self.assertIn(b"The MIT License (MIT)", of["script"][-1])


def Ubx(message, payload):
    """As wire.ubx_frame, in less time."""
    body = struct.pack("<BBH", 1, message, len(payload)) + payload
    sums = sum(body), sum(map(operator.mul, range(len(body), 0, -1), body))
    return b"\xb5\x62" + body + bytes(one & 255 for one in sums)


def Hour(weak, far, few, gap):
    """At 10 Hz, with one epoch each that is unlike all others, and some that do not come."""
    rng = random.Random(1)
    signals = bytearray(8 + 16 * 30)
    for i in range(30):
        struct.pack_into("<BBBBhBBBBH4x", signals, 8 + 16 * i, (0, 2, 6)[i % 3], 1 + i // 3, 0, 0, 0,
                         0, 7, 0, 0, 0x29)
    frames = []
    for epoch in range(36_000):
        if epoch in gap:
            continue
        ms = 118_000_000 + 100 * epoch
        second = ms // 1000 - 18 - 86_400
        east = 4000 if epoch == far else rng.randrange(-500, 500)
        frames.append(Ubx(7, struct.pack(
            "<IHBBBBBBIiBBBBiiii52x", ms, 2026, 3, 2, second // 3600, second // 60 % 60,
            second % 60, 7, 50, ms % 1000 * 10**6, 3, 1, 0, 5 if epoch == few else rng.randrange(20, 26),
            east, rng.randrange(-500, 500), 100_000, 50_000)))
        struct.pack_into("<IBB", signals, 0, ms, 0, 30)
        for i in range(30):
            signals[14 + 16 * i] = rng.randrange(35, 50)
        if epoch == weak:
            signals[14 + 16 * 9] = 7
        frames.append(Ubx(0x43, bytes(signals)))
    return b"".join(frames)


class TenHertz(unittest.TestCase):
    def test_IsSmallAndKeepsExtremes(self):
        weak, far, few, gap = 12_345, 20_001, 27_183, range(30_000, 30_600)
        page = Report(data=Hour(weak, far, few, gap))
        self.assertLess(page.size, 5_000_000)
        charts = page.recordings[0]["charts"]
        x = charts["axis"]["x"]
        self.assertEqual((charts["axis"]["kind"], x[0], x[-1] > 3_598_000), ("utc", 0, True))
        self.assertGreater(len(x), 1500)

        def At(values, value):
            """Tenths of a second at which the stretch with the value begins, and ends."""
            i = values.index(value)
            return range(x[i] // 100, x[i + 1] // 100)

        signal = charts["strengths"]["signals"][0]
        self.assertEqual((signal["system"], signal["signal"]), ("GPS", "1C"))
        self.assertIn(weak, At(signal["cn0"]["least"], 7))
        self.assertIn(few, At(charts["satellites"]["used"]["least"], 5))
        self.assertEqual(max(signal["cn0"]["most"]), 49)
        track = charts["track"]
        self.assertEqual(track["points"], 36_000 - len(gap))
        self.assertLess(len(track["latitude"]), 20_000)
        self.assertEqual(max(track["longitude"]), 4e-4)
        self.assertEqual(len(track["begins"]), 2)
        for row in charts["messages"]:
            self.assertEqual([round(end / 1e5) for end in row["runs"]], [0, 30, 31, 36])
        self.assertEqual([d["places"] for d in charts["damage"] if d["cause"] == "gap"],
                         [[2_999_900, 3_060_000]])


class BadInput(unittest.TestCase):
    def test_WhatIsNoRecording(self):
        with tempfile.TemporaryDirectory() as folder:
            path, page = Path(folder, "in"), Path(folder, "page.html")
            for data, says in (b"", "is empty"), (random.Random(1).randbytes(50_000), "recognised"):
                path.write_bytes(data)
                status, _, err = Run("report", path, "-o", page)
                self.assertEqual(status, 3)
                self.assertIn(says, err)
                recording, = Page(page.read_text()).recordings
                self.assertFalse(recording["info"]["files"][0]["recognised"])
                page.unlink()
            self.assertEqual(Run("report", "/nowhere", "-o", page)[0], 1)
            self.assertEqual(Run("report", path, "-o", path)[0], 2)
            self.assertEqual(Run("report", Samples[0], "-o", "/dev/full")[0], 1)
            self.assertEqual(os.listdir(folder), ["in"])
            several = Run("report", "/nowhere", path, Samples[0])
            self.assertEqual((several[0], len(Page(several[1]).recordings)), (1, 2))

    def test_WhateverIsCutOff(self):
        sample = Samples[0].read_bytes()
        for length in range(0, len(sample), len(sample) // 20):
            self.assertIn(Run("report", data=sample[length // 2:length])[0], (0, 3))


@unittest.skipUnless(shutil.which("chromium"), "chromium is not installed")
class Shown(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(folder.cleanup)
        path, page = Path(folder.name, "in"), Path(folder.name, "page.html")
        path.write_bytes(Samples[0].read_bytes() + Announcement())
        self.assertEqual(Run("report", path, Samples[1], "-o", page)[0], 0)
        self.address = page.as_uri()
        self.browser = browser.Browser(Path(folder.name, "profile"))
        self.addCleanup(self.browser.close)

    def Text(self, selector):
        return self.browser.value(f"document.querySelector('{selector}').textContent")

    def test_AsAPage(self):
        show = self.browser
        for width, scheme in (390, "light"), (900, "dark"), (1600, "light"):
            show("Emulation.setDeviceMetricsOverride", width=width, height=900, mobile=False,
                 deviceScaleFactor=1)
            show("Emulation.setEmulatedMedia",
                 features=[{"name": "prefers-color-scheme", "value": scheme}])
            show.open(self.address)
            self.assertEqual(self.Text("h1"), "in")
            self.assertEqual(show.value("document.title"), "2 recordings")
            self.assertIn(Hostile.replace("!", ""), self.Text("main"))
            self.assertGreater(show.value("document.querySelectorAll('canvas').length"), 5)
            self.assertEqual(show.value("document.querySelectorAll('.view svg').length"), 2)
            self.assertLessEqual(show.value("document.documentElement.scrollWidth"), width)
            back = show.value("getComputedStyle(document.body).backgroundColor")
            self.assertEqual(int(back[4:].split(",")[0]) < 100, scheme == "dark")
            requests = show.of("Network.requestWillBeSent")
            self.assertEqual([one["request"]["url"] for one in requests], [self.address])
            self.assertEqual(show.of("Runtime.exceptionThrown", "Runtime.consoleAPICalled",
                                     "Log.entryAdded"), [])

    def test_ByKeyboard(self):
        show = self.browser
        show.open(self.address)
        show.value("document.querySelectorAll('nav button')[1].focus()")
        show.key(" ")
        self.assertEqual(self.Text("h1"), "drive.nmea")
        show.value("document.querySelector('.canvas').focus()")
        show.key("ArrowRight")
        show.key("ArrowRight")
        self.assertEqual(self.Text(".chart .time"), "12:00:01.000")
        self.assertNotEqual(self.Text(".legend output"), "")
        axis = "document.querySelector('canvas').toDataURL()"
        whole = show.value(axis)
        show.key("+")
        self.assertNotEqual(show.value(axis), whole)
        show.value("document.querySelector('.legend button').focus()")
        show.key(" ")
        self.assertEqual(show.value("document.activeElement.getAttribute('aria-pressed')"), "false")


if __name__ == "__main__":
    unittest.main(verbosity=1)
