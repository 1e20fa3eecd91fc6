"""Streams that are fed, in threads, and what stays behind of them."""

import copy
import gc
import os
import sys
import threading

import pytest

import navframe
from conftest import SAMPLE, streams

DATA = SAMPLE.read_bytes()


def fed(data, length=777, **options):
    """Every item of a stream that is fed in pieces."""
    got = []
    with navframe.Stream(**options) as stream:
        for i in range(0, len(data), length):
            got += [shown(item) for item in stream.feed(data[i:i + length])]
        got += [shown(item) for item in stream.flush()]
    return got


def shown(item):
    if isinstance(item, navframe.Part):
        return item.part, item.offset, item.bytes
    return item.kind, item.offset, item.asdict()


@pytest.mark.parametrize("length", [1, 777, 1 << 20])
def test_pieces_of_any_size(length):
    assert fed(DATA, length, items=True) == [shown(i) for i in navframe.read(DATA, items=True)]


def test_a_stream_over_its_life():
    stream = navframe.Stream(kinds="GGA")
    assert next(stream, None) is None
    assert len(list(stream.feed(bytearray(DATA)))) > 0
    assert stream.statistics["bytes"] == len(DATA) and stream.statistics["nmea"]["records"] > 0
    with pytest.raises(TypeError):
        stream.feed("text")
    stream.feed(DATA)
    stream.reset()
    assert next(stream, None) is None and stream.statistics["bytes"] == 0
    assert list(stream.feed(DATA).idle())
    assert not stream.closed
    stream.close()
    stream.close()
    assert stream.closed
    for use in (lambda: stream.feed(b""), stream.flush, stream.idle, stream.reset,
                lambda: next(stream), lambda: list(stream), lambda: stream.statistics):
        with pytest.raises(ValueError, match="closed"):
            use()


def in_threads(works):
    """What each work returns, all of them at once."""
    results = [None] * len(works)

    def run(i):
        results[i] = works[i]()

    threads = [threading.Thread(target=run, args=(i,)) for i in range(len(works))]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    return results


@pytest.mark.parametrize("work", [lambda data: navframe.Stream(kinds="ACK").feed(data),
                                  navframe.info], ids=["feed", "info"])
def test_others_run_meanwhile(work):
    """Python goes on in another thread while bytes are decoded."""
    data = DATA * 8000
    thread = threading.Thread(target=lambda: work(data))
    thread.start()
    turns = 0
    while thread.is_alive():
        turns += 1
    assert turns > 1000


def test_a_stream_a_thread():
    inputs = [path.read_bytes() for path in streams()]
    inputs = [inputs[i % len(inputs)] for i in range(8)]
    works = [lambda data=data: (fed(data), {name: table.tobytes()
                                            for name, table in navframe.arrays(data).items()})
             for data in inputs]
    assert in_threads(works) == [work() for work in works]


def test_threads_at_one_stream():
    stream = navframe.Stream()
    reader = navframe.read([DATA] * 100)
    single = len(list(navframe.read([DATA] * 100)))
    counts = in_threads([lambda: sum(1 for _ in reader)] * 8)
    assert sum(counts) == single
    counts = in_threads([lambda: sum(1 for _ in range(20) for _ in stream.feed(DATA))] * 8)
    assert stream.statistics["bytes"] == 160 * len(DATA)
    assert sum(counts) >= 159 * (single // 100)


def test_a_source_that_reads_its_reader():
    def pieces():
        yield DATA[:100]
        yield bytes(next(reader).offset)

    reader = navframe.read(pieces())
    with pytest.raises(RuntimeError, match="already executing"):
        list(reader)


def test_records_outlive_their_stream():
    stream = navframe.Stream()
    records = list(stream.feed(DATA))
    wanted = [record.asdict() for record in records]
    inner = [getattr(record, "satellites", None) for record in records]
    stream.feed(DATA[::-1])
    stream.close()
    del stream
    assert [record.asdict() for record in records] == wanted
    assert copy.deepcopy(records) == records  # each is its own copy
    del records
    for satellites, record in zip(inner, wanted):
        if isinstance(satellites, list):
            assert [satellite.asdict() for satellite in satellites] == record["satellites"]


def held():
    """Objects of Python, and bytes of the process."""
    gc.collect()
    with open("/proc/self/statm", encoding="ascii") as file:
        pages = int(file.read().split()[1])
    return sys.getallocatedblocks(), pages * os.sysconf("SC_PAGE_SIZE")


def everything():
    for record in navframe.read(DATA, items=True):
        repr(record), record.time.utc
        if isinstance(record, navframe.Record):
            record.asdict()
            [getattr(record, name) for name in dir(record) if name[0] != "_"]
    navframe.arrays(DATA, masked=True)
    stream = navframe.Stream()
    stream.feed(DATA)
    for make in (lambda: navframe.read("none"), lambda: stream.feed(5),
                 lambda: navframe.read(DATA, kinds="none"), lambda: list(navframe.read([5]))):
        with pytest.raises((OSError, TypeError, ValueError)):
            make()


def test_nothing_leaks():
    for _ in range(20):
        everything()
    objects, size = held()
    for _ in range(60):
        everything()
    more_objects, more = held()
    assert more_objects - objects < 2000 and more - size < 2 << 20
