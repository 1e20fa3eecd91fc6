"""Where bytes come from, and what happens when they do not."""

import bz2
import datetime
import gc
import gzip
import io
import itertools
import mmap
import os
import signal
import subprocess
import sys
import threading
import time

import pytest

import navframe
from conftest import SAMPLE

DATA = SAMPLE.read_bytes()
WANTED = [(record.kind, record.offset, record.asdict()) for record in navframe.read(DATA)]


def pieces(length):
    return [DATA[i:i + length] for i in range(0, len(DATA), length)]


class Slow(io.RawIOBase):
    """Has nothing every other time, as a file that does not wait."""

    def __init__(self):
        super().__init__()
        self.pieces = itertools.chain.from_iterable((None, piece) for piece in pieces(4096))

    def read(self, _=-1):
        return next(self.pieces, b"")


def in_file(folder, name, content):
    path = folder / name
    path.write_bytes(content)
    return path


def in_pipe(folder):
    path = folder / "pipe"
    os.mkfifo(path)
    threading.Thread(target=path.write_bytes, args=(DATA,)).start()
    return path


def in_memory(folder):
    with in_file(folder, "mapped", DATA).open("rb") as file:
        return mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)


def zstd(content):
    return subprocess.run(["zstd", "-qc"], input=content, stdout=subprocess.PIPE, check=True).stdout


SOURCES = {
    "path": lambda folder: in_file(folder, "plain", DATA),
    "name": lambda folder: str(in_file(folder, "plain", DATA)),
    "name of bytes no text has": lambda folder: in_file(folder, os.fsdecode(b"\xff\xfe"), DATA),
    "gzip": lambda folder: in_file(folder, "a", gzip.compress(DATA)),
    "gzip, two members": lambda folder: gzip.compress(DATA[:999]) + gzip.compress(DATA[999:]),
    "zstd": lambda folder: in_file(folder, "b", zstd(DATA)),
    "pipe": in_pipe,
    "bytes": lambda _: DATA,
    "bytearray": lambda _: bytearray(DATA),
    "memoryview": lambda _: memoryview(DATA),
    "mmap": in_memory,
    "file": lambda folder: in_file(folder, "plain", DATA).open("rb"),
    "file of gzip": lambda folder: io.BytesIO(gzip.compress(DATA)),
    "file that decompresses": lambda folder: bz2.BZ2File(io.BytesIO(bz2.compress(DATA))),
    "file that has nothing yet": lambda _: Slow(),
    "pieces": lambda _: pieces(1000),
    "pieces of a generator, some empty": lambda _: (p for q in pieces(7) for p in (b"", q)),
}


@pytest.mark.parametrize("make", SOURCES.values(), ids=SOURCES)
def test_sources(make, tmp_path):
    if "zstd" in make.__code__.co_names and subprocess.call(["which", "zstd"]):
        pytest.skip("no zstd")
    assert [(r.kind, r.offset, r.asdict()) for r in navframe.read(make(tmp_path))] == WANTED


@pytest.mark.parametrize("name", ["pipe", "pieces", "file that has nothing yet", "gzip"])
def test_sources_of_arrays(name, tmp_path):
    tables = navframe.arrays(SOURCES[name](tmp_path))
    wanted = navframe.arrays(DATA)
    assert {n: t.tobytes() for n, t in tables.items()} == {n: t.tobytes() for n, t in wanted.items()}


@pytest.mark.parametrize("name", ["pipe", "pieces", "file that has nothing yet", "gzip"])
def test_sources_of_info(name, tmp_path):
    source = SOURCES[name](tmp_path)
    path = str(source) if name in ("pipe", "gzip") else None
    assert navframe.info(source)["files"] == [{**navframe.info(DATA)["files"][0], "source": path}]


def raises(error):
    def read(*_):
        raise error
    return read


class Failing(io.RawIOBase):
    read = raises(ZeroDivisionError("in read"))


PACKED = gzip.compress(DATA)
DAMAGED = PACKED[:len(PACKED) // 2] + b"damaged" + PACKED[len(PACKED) // 2 + 7:]
BAD = [  # source, options, exception, what stands in its text
    (lambda _: 5, {}, TypeError, "int"),
    (lambda _: None, {}, TypeError, "NoneType"),
    (lambda _: [1, 2], {}, TypeError, "int"),
    (lambda _: ["text"], {}, TypeError, "str"),
    (lambda _: io.StringIO("text"), {}, TypeError, "binary"),
    (lambda _: memoryview(DATA)[::2], {}, BufferError, "contiguous"),
    (lambda _: "a\0b", {}, ValueError, "null"),
    (lambda _: Failing(), {}, ZeroDivisionError, "in read"),
    (lambda _: (1 / 0 for _ in "a"), {}, ZeroDivisionError, ""),
    (lambda folder: folder / "none", {}, FileNotFoundError, "none"),
    (lambda folder: folder, {}, IsADirectoryError, ""),
    (lambda folder: in_file(folder, "cut.gz", gzip.compress(DATA)[:-9]), {}, navframe.DamagedFile,
     r"cut\.gz: gzip data ends early, at byte \d+"),
    (lambda folder: in_file(folder, "bad.gz", DAMAGED), {}, OSError,
     r"bad\.gz: gzip data are damaged.* at byte \d+"),
    (lambda _: DAMAGED, {}, navframe.DamagedFile, "input: gzip data"),
    (lambda _: DATA, {"kinds": "GGB"}, ValueError, "'GGB'.*GGA"),
    (lambda _: DATA, {"kinds": ["GGA", "nav-pvd"]}, ValueError, "NAV-PVT"),
    (lambda _: DATA, {"kinds": "fixx"}, ValueError, "fix"),
    (lambda _: DATA, {"kinds": []}, ValueError, "all"),
    (lambda _: DATA, {"kinds": [5]}, TypeError, "int"),
    (lambda _: DATA, {"kinds": b"GGA"}, TypeError, "bytes"),
    (lambda _: DATA, {"kinds": 5}, TypeError, "int"),
    (lambda _: DATA, {"protocols": "ubxx"}, ValueError, "ubx"),
    (lambda _: DATA, {"start": "2026"}, TypeError, "str"),
    (lambda _: DATA, {"start": 70000}, ValueError, "65534"),
    (lambda _: DATA, {"start": datetime.date(1970, 1, 1)}, ValueError, "65534"),
]


@pytest.mark.parametrize("function", [lambda *a, **k: list(navframe.read(*a, **k)), navframe.arrays,
                                      navframe.info], ids=["read", "arrays", "info"])
@pytest.mark.parametrize("make, options, error, text", BAD)
def test_bad_input(function, make, options, error, text, tmp_path):
    if options and function is navframe.info:
        error, text = TypeError, "keyword"  # it has no options
    with pytest.raises(error, match=text):
        function(make(tmp_path), **options)


def test_what_came_before_a_failure(tmp_path):
    path = in_file(tmp_path, "bad.gz", DAMAGED)
    got = []
    with pytest.raises(navframe.DamagedFile):
        for record in navframe.read(path):
            got.append((record.kind, record.offset, record.asdict()))
    assert len(got) < len(WANTED) and got[:20] == WANTED[:20]


def test_a_file_that_shrinks(tmp_path):
    path = in_file(tmp_path, "large", DATA * 400)
    reader = navframe.read(path)
    first = [next(reader) for _ in range(10)]
    os.truncate(path, 100)
    assert len(first) + sum(1 for _ in reader) < 400 * len(WANTED)


def test_options():
    kinds = {record.kind for record in navframe.read(DATA, kinds="fix, 1077")}
    assert {"GGA", "NAV-PVT-WIDE", "OBSERVATIONS"} <= kinds < {kind for kind, *_ in WANTED}
    assert {r.kind for r in navframe.read(DATA, protocols=["55aa"])} == {"55AA"}
    empty = navframe.arrays(b"", kinds=["GSV"])
    assert len(empty["GSV.satellites.signals"]) == 0
    sentence = next(DATA[r.offset:r.offset + r.frame_length] for r in navframe.read(DATA, "GLL"))
    for start in (2409, datetime.date(2026, 3, 14),
                  datetime.datetime(2026, 3, 14, tzinfo=datetime.timezone.utc)):
        assert next(navframe.read(sentence, start=start)).time.week is not None


def open_files():
    return sorted(os.readlink(f"/proc/self/fd/{n}") for n in os.listdir("/proc/self/fd")
                  if os.path.exists(f"/proc/self/fd/{n}"))


def test_left_loops_close_their_files():
    before = open_files()
    for _ in range(20):
        with pytest.raises(ZeroDivisionError):
            for record in navframe.read(SAMPLE):
                assert 1 / 0, record
        with navframe.read(SAMPLE) as reader:
            next(reader)
        assert list(reader) == []
    reader = navframe.read(SAMPLE)
    reader.close()
    reader.close()
    gc.collect()
    assert open_files() == before


def interrupt(*_):
    raise KeyboardInterrupt


@pytest.mark.parametrize("work", [
    lambda: navframe.arrays("/dev/zero"),
    lambda: navframe.arrays(itertools.repeat(DATA), kinds="ACK"),
    lambda: navframe.info("/dev/zero"),
    lambda: next(navframe.read("/dev/zero")),
    lambda: list(navframe.read(itertools.repeat(DATA), kinds="ACK")),
    lambda: navframe.Stream(kinds="ACK").feed(DATA * 28000),
], ids=["zeros", "endless", "info", "records of zeros", "no records", "gigabytes at once"])
def test_interrupts(work):
    handler = signal.signal(signal.SIGALRM, interrupt)
    signal.setitimer(signal.ITIMER_REAL, 0.2)
    begin = time.monotonic()
    try:
        with pytest.raises(KeyboardInterrupt):
            work()
        assert time.monotonic() - begin < 5
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, handler)


def test_import_is_fast():
    """Without the packages that only arrays need, in less than 100 ms of a processor."""
    code = ("import sys, time; begin = time.process_time(); import navframe; "
            "print(time.process_time() - begin, 'numpy' in sys.modules)")
    runs = [subprocess.check_output([sys.executable, "-c", code]).split() for _ in range(5)]
    assert min(float(took) for took, _ in runs) < 0.1
    assert {numpy for _, numpy in runs} == {b"False"}
