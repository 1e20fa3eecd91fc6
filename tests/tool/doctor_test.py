"""What navframe doctor tells of recordings that are damaged here, and what it repairs."""
import functools
import json
import operator
import os
import random
import re
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(Root / "scripts/checks"))
import wire

Tool = os.environ["NAVFRAME_TOOL"]
Start = 118_000  # s of GPS week 2408: 2026-03-02 08:46:22 UTC


def Run(*arguments, data=None):
    """Status, output and errors."""
    done = subprocess.run([Tool, "doctor", *map(str, arguments)], input=data, capture_output=True,
                          timeout=60)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def Epoch(second, rng):
    """Frames of an epoch: a fix, bytes of chance with many LFs, two sentences, a message."""
    at = second - 18 - 86400
    day, hour, minute, second = 2 + at // 86400, at // 3600 % 24, at // 60 % 60, at % 60
    fix = struct.pack("<IHBBBBBBIiBBBB68x", (at + 86418) * 1000, 2026, 3, day, hour, minute, second,
                      7, 50, 0, 3, 1, 0, 9)
    many = bytes(rng.choice(b"\x00\x0a\x0b\x41\x7f\x99") for _ in range(rng.randrange(80, 120)))
    clock = f"{hour:02}{minute:02}{second:02}.00"
    return [wire.ubx_frame(1, 7, fix), wire.ubx_frame(0x21, 4, many),
            wire.nmea_sentence(f"GNGGA,{clock},4530.0,N,00730.0,E,1,08,1.0,200.0,M,48.0,M,,"),
            wire.nmea_sentence(f"GNGLL,4530.0,N,00730.0,E,{clock},A,A"),
            wire.rtcm_frame(b"\xfa\x00" + many[:60] + clock.encode())]


class Recording:
    """`frames` by epoch and number in it; `At` where each of them begins."""

    def __init__(self, epochs=40, start=Start):
        rng = random.Random(7)
        self.epochs = [Epoch(start + i, rng) for i in range(epochs)]

    def __bytes__(self):
        return b"".join(frame for epoch in self.epochs for frame in epoch)

    def At(self, epoch, frame=0):
        return sum(len(f) for e in self.epochs[:epoch] for f in e) + \
            sum(len(f) for f in (self.epochs + [[]])[epoch][:frame])


def Chunked(data):
    rng, out, at = random.Random(3), b"", 0
    while at < len(data):
        part = data[at:at + rng.randrange(50, 900)]
        out, at = out + b"%x\r\n%s\r\n" % (len(part), part), at + len(part)
    return out + b"0\r\n\r\n"


def Found(data, *arguments):
    """By cause, offsets and what else the JSON has of the places."""
    status, out, err = Run("--json", *arguments, data=data)
    told = json.loads(out)
    assert not err, err
    assert status == (0 if told["healthy"] else 1), status
    return {one["cause"]: one for one in told["findings"]}


def Offsets(found):
    return {cause: [place["offset_bytes"] for place in one["first"]]
            for cause, one in found.items()}


def Sentences(data):
    """Offsets of sentences with a wrong checksum, cut by the next one, and without a checksum."""
    wrong, cut, without = [], [], []
    for piece in re.finditer(rb"\$[A-Z][^$\r\n]*", data):
        first = re.match(rb"\$([^*]*)\*([0-9A-F]{2})", piece[0])
        if first and functools.reduce(operator.xor, first[1]) == int(first[2], 16):
            continue
        if data[piece.end():piece.end() + 1] == b"$":
            cut.append(piece.start())
        else:
            (wrong if re.search(rb"\*[0-9A-F]{2}$", piece[0]) else without).append(piece.start())
    return wrong, cut, without


Whole = Recording()
Data = bytes(Whole)


def Cut(data, begin, length):
    return data[:begin] + data[begin + length:]


class Causes(unittest.TestCase):
    def test_EachIsNamedWhereItIs(self):
        at = Whole.At
        flipped = bytearray(Data)
        flipped[at(5, 1) + 20] ^= 1
        block = Data[at(10, 1):at(14, 1)]
        sentence = at(8, 3)
        star = Data.index(b"*", sentence)
        back = bytes(Recording(start=Start - 500))
        ahead = bytes(Recording(start=Start + 2 * 86400))
        foreign = b"".join(Data[at(i):at(i + 1)] + b"\xba\xce" + bytes(30) for i in range(40))
        drive = (Root / "samples/drive.nmea").read_bytes()
        begin, end = drive.index(b"$GNGGA,120020"), drive.index(b"$GNGGA,120030")
        irregular = [Epoch(Start + i * i % 7 + 6 * i + 900 * (i >= 25), random.Random(i))[0]
                     for i in range(40)]
        cases = {
            "nothing": (Data, {}),
            "comments": (b"# a station\r\n" + Data + b"\r\n", {"text": [0, len(Data) + 13]}),
            "lost in a frame": (Cut(Data, at(5, 1) + 20, 7), {"bytes-lost": [at(5, 1)]}),
            "lost end of a frame": (Cut(Data, at(5, 2) - 9, 9), {"bytes-lost": [at(5, 1)]}),
            "lost end of a sentence": (Cut(Data, sentence + 20, len(Whole.epochs[8][3]) - 20),
                                       {"bytes-lost": [sentence]}),
            "lost from a frame to the next": (Cut(Data, at(5, 1) + 40, at(6) - at(5, 1)),
                                              {"bytes-lost": [at(5, 1)]}),
            "lost beginning of a sentence": (Cut(Data, sentence, 12), {"bytes-lost": [sentence]}),
            "the reply of a server": (b"HTTP/1.1 200 OK\r\nServer: x\r\n\r\n" + Data,
                                      {"text": [0, 17, 28]}),
            "an ASCII log": (Data + wire.log_line("VERSIONA,COM1,0,54.5").replace(b"54", b"55"),
                             {"wrong-checksum": [len(Data)]}),
            "other content": (bytes(flipped), {"wrong-checksum": [at(5, 1)]}),
            "no checksum": (Cut(Data, star, 3), {"no-checksum": [sentence]}),
            "begins inside": (Data[30:], {"begins-inside-frame": [0]}),
            "ends inside": (Data[:-30], {"ends-inside-frame": [at(39, 4)]}),
            "ends inside a sentence": (Data[:at(39, 3) + 9], {"ends-inside-frame": [at(39, 3)]}),
            "bytes of nothing": (Data[:at(4)] + b"\x01\x02\x03" + Data[at(4):],
                                 {"unexplained": [at(4)]}),
            "another protocol": (foreign, {"unexplained": [at(i + 1) + 32 * i for i in range(40)]}),
            "a block twice": (Data[:at(20)] + block + Data[at(20):], {"repeated-block": [at(20)]}),
            "a block twice, inside of an epoch": (Data[:at(20, 1)] + block + Data[at(20, 1):],
                                                  {"repeated-block": [at(20, 1)]}),
            "a block twice that begins behind its time": (drive[:end] + drive[begin:],
                                                          {"repeated-block": [end]}),
            "time back": (Data + back, {"clock-back": [len(Data)]}),
            "time ahead": (Data + ahead, {"clock-ahead": [len(Data)]}),
            "a gap": (Cut(Data, at(12), at(17) - at(12)), {"gap": [at(12)]}),
            "a gap of what comes irregularly": (
                b"".join(irregular), {"gap": [sum(map(len, irregular[:25]))]}),
            "a gap of one message": (
                Cut(Cut(Data, at(7, 2), at(7, 3) - at(7, 2)), at(6, 2), at(6, 3) - at(6, 2)),
                {"gap": [at(8, 2) - (at(7, 3) - at(7, 2)) - (at(6, 3) - at(6, 2))]}),
        }
        for name, (data, expected) in cases.items():
            with self.subTest(name):
                self.assertEqual(Offsets(Found(data)), expected)

    def test_EvidenceIsThatOfTheDamage(self):
        at = Whole.At
        size = len(Whole.epochs[5][1])
        lost = Found(Cut(Data, at(5, 1) + 20, 7))["bytes-lost"]
        self.assertEqual(lost["lost_bytes"], 7)
        place = lost["first"][0]
        self.assertEqual((place["length_bytes"], place["claimed_bytes"], place["protocol"],
                          place["message"], place["s"], place["utc"]),
                         (size - 7, size, "UBX", "21-04", 5, "2026-03-02T08:46:27.000Z"))
        twice = Found(Data + Data[at(10):at(14)])["repeated-block"]["first"][0]
        self.assertEqual((twice["first_offset_bytes"], twice["count"], twice["length_bytes"]),
                         (at(10), 20, at(14) - at(10)))
        gap = Found(Cut(Data, at(12), at(17) - at(12)))["gap"]["first"][0]
        self.assertEqual((gap["step_s"], gap["count"], gap["all_messages"], gap["s"]),
                         (6, 5, True, 11))
        self.assertEqual(len(gap["messages"]), 5)
        self.assertEqual(Found(Data + bytes(Recording(start=Start - 500)))["clock-back"]["first"][0]
                         ["step_s"], -539)
        nothing = Found(Data[:at(4)] + b"\xd3\xf2\x03" + Data[at(4):])["unexplained"]
        heads = [(head["protocol"], head["count"]) for head in nothing["heads"]]
        self.assertEqual((nothing["bytes"], heads), (3, [("RTCM 3", 1)]))

    def test_WhatIsNoRecording(self):
        status, out, err = Run(data=b"")
        self.assertEqual((status, out), (3, "standard input: empty\n"))
        self.assertIn("is empty", err)
        status, _, err = Run(data=random.Random(1).randbytes(200_000))
        self.assertEqual(status, 3)
        self.assertIn("nothing was recognised", err)
        self.assertEqual(Run("/nowhere")[0], 1)


class Repair(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def Repaired(self, data):
        """What doctor tells, and the repaired bytes."""
        (self.folder / "in").write_bytes(data)
        found = Found(None, self.folder / "in", "--repair", self.folder / "out")
        self.assertEqual((self.folder / "in").read_bytes(), data)
        self.assertEqual(sorted(os.listdir(self.folder)), ["in", "out"])
        return found, (self.folder / "out").read_bytes()

    def test_GivesBackWhatWasSent(self):
        crs = Data.count(b"\n")
        self.assertGreater(crs, 500)
        translated, chunked = Data.replace(b"\n", b"\r\n"), Chunked(Data)
        heads = chunked.count(b"\r\n") // 2 - Data.count(b"\r\n") // 2
        half = Whole.At(20)
        cut = Cut(Data, Whole.At(5, 1) + 20, 7)
        for name, data, sent, causes in (
                ("nothing", Data, Data, {}),
                ("translated", translated, Data, {"cr-added": (crs, Whole.At(0, 1))}),
                ("chunks", chunked, Data, {"chunk-heads": (heads, 0)}),
                ("chunks, from inside of one", chunked[40:], Data[39 - chunked.index(b"\n"):], None),
                ("chunks, translated", chunked.replace(b"\n", b"\r\n"), Data, None),
                ("translated, in chunks", Chunked(translated), Data, None),
                ("the second half translated", Data[:half] + translated[translated.index(
                    Whole.epochs[20][0][:20]):], Data,
                 {"cr-added": (Data[half:].count(b"\n"), Whole.At(20, 1))}),
                ("more damage", cut.replace(b"\n", b"\r\n"), cut, None)):
            with self.subTest(name):
                found, repaired = self.Repaired(data)
                self.assertTrue(repaired == sent)
                if causes is not None:
                    told = {cause: (one["count"], one["first"][0]["offset_bytes"])
                            for cause, one in found.items()}
                    self.assertEqual(told, causes)

    def test_OffsetsAreThoseOfTheRecording(self):
        """Also of what is found behind bytes that are taken out, and from standard input."""
        flipped = bytearray(Data)
        flipped[Whole.At(30, 0) + 20] ^= 1
        for make in (lambda data: data.replace(b"\n", b"\r\n"), Chunked):
            data = make(bytes(flipped))
            offset = data.index(Whole.epochs[30][0][:12])
            self.assertEqual(Offsets(Found(data))["wrong-checksum"], [offset])
            (self.folder / "in").write_bytes(data)
            with open(self.folder / "in", "rb") as file:
                out = subprocess.run([Tool, "doctor", "--repair", self.folder / "out"], stdin=file,
                                     capture_output=True, timeout=60)
            self.assertEqual((out.returncode, out.stderr), (1, b""))
            self.assertTrue((self.folder / "out").read_bytes() == bytes(flipped))

    def test_InputIsKeptWhereTmpdirSays(self):
        for folder, status in (("", 0), (f"{self.folder}/none", 1)):
            done = subprocess.run([Tool, "doctor", "--repair", self.folder / "out"], input=Data,
                                  env=os.environ | {"TMPDIR": folder}, capture_output=True,
                                  timeout=60)
            self.assertEqual(done.returncode, status)
            self.assertIn(b"temporary file in " + folder.encode() if status else b"", done.stderr)

    def test_WhatIsLostIsNamed(self):
        """CR LF that became LF: where frames of binary protocols tell."""
        frame = wire.ubx_frame(0x21, 4, b"ab\r\nc" + bytes(30))
        sent = b"".join(frame + b"".join(epoch) for epoch in Whole.epochs)
        data = sent.replace(b"\r\n", b"\n")
        first = data.index(b"ab\nc") - 6
        found = Found(data)
        self.assertEqual(found["cr-lost"]["places"], 40)
        self.assertEqual(found["cr-lost"]["first"][0]["offset_bytes"], first)

    def test_InputIsLeftAlone(self):
        path, link = self.folder / "in", self.folder / "link"
        path.write_bytes(Data)
        os.link(path, link)
        for out in (path, link):
            status, _, err = Run(path, "--repair", out)
            self.assertEqual(status, 2)
            self.assertIn("is a recording, which is left as it is", err)
        self.assertEqual(Run(path, "--repair", self.folder / "none" / "out")[0], 1)
        path.write_bytes(b"nothing at all")
        self.assertEqual(Run(path, "--repair", self.folder / "out")[0], 3)
        self.assertEqual(sorted(os.listdir(self.folder)), ["in", "link"])


@unittest.skipUnless("NAVFRAME_CAPTURES" in os.environ, "NAVFRAME_CAPTURES is not set")
class Captures(unittest.TestCase):
    def test_AreAsTheirSourcesSay(self):
        expected = {
            "rtcm3-msm7.rtcm3": {"ends-inside-frame": [97462]},
            "mixed-nmea-ubx-rawx.bin": {"begins-inside-frame": [0]},
            "damaged-ubx-checksums.ubx": {"wrong-checksum": [758]}}
        folder = Path(os.environ["NAVFRAME_CAPTURES"])
        paths = [path for path in folder.iterdir() if path.suffix != ".md"]
        self.assertGreater(len(paths), 10)
        for path in paths:
            found = Found(None, path)
            if path.name == "damaged-nmea-between-foreign-binary.bin":
                self.assertEqual(list(found), ["unexplained"])
                self.assertEqual((found["unexplained"]["places"], found["unexplained"]["bytes"]),
                                 (130, 77244))
            elif path.name == "damaged-nmea-checksums.nmea":
                wrong, cut, without = Sentences(path.read_bytes())
                told = Offsets(found)
                self.assertEqual(told["wrong-checksum"], wrong)
                self.assertLessEqual(set(cut), set(told["bytes-lost"]))
                self.assertLessEqual(set(told["no-checksum"]), set(without))
                self.assertGreater(min(len(wrong), len(cut), len(told["no-checksum"])), 2)
            else:
                found.pop("text", None)
                self.assertEqual(Offsets(found), expected.get(path.name, {}), path.name)
            if path.name == "damaged-ubx-checksums.ubx":
                inside = found["wrong-checksum"]["first"][0]["heads_inside"]
                self.assertEqual([(h["protocol"], h["offset_bytes"]) for h in inside],
                                 [("UBX", 765), ("RTCM 3", 1289)])


if __name__ == "__main__":
    unittest.main()
