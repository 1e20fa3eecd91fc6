"""Records, items and arrays say what the tool's JSON says, for every kind of the streams."""

import json
import math
import random
import sys

import numpy
import pytest

import navframe
from conftest import SAMPLE


def same(value, written):
    """Whether a value is what JSON shows of it: numbers of 32 bits with the digits that they need."""
    if isinstance(written, dict):
        return list(value) == list(written) and all(same(value[k], written[k]) for k in written)
    if isinstance(written, list):
        return len(value) == len(written) and all(map(same, value, written))
    if isinstance(value, float):
        if written is None:
            return math.isinf(value)
        return written in (value, float(str(numpy.float32(value))))
    return value == written and type(value) is type(written)


def time_text(time):
    return time.utc and time.utc.strftime("%Y-%m-%dT%H:%M:%S.%f")[:-3] + "Z"


@pytest.mark.parametrize("legacy", [False, True], ids=["standard", "legacy"])
def test_records_are_the_tools(stream, tool, legacy):
    lines = [json.loads(line) for line in
             tool(stream, "--format", "json", "--quiet", *["--legacy"] * legacy)]
    records = list(navframe.read(stream, legacy=legacy))
    assert len(records) == len(lines)
    for record, line in zip(records, lines):
        assert (record.kind, record.offset, time_text(record.time)) == \
               (line["kind"], line["offset"], line["time"])
        assert same(record.asdict(), line["record"]), (record.asdict(), line["record"])


def test_info_is_the_tools(stream, tool, tmp_path):
    """Every member in its place and of its type; also of what has nothing, and of all together."""
    empty, noise = tmp_path / "empty", tmp_path / "noise"
    empty.touch()
    noise.write_bytes(random.Random(19).randbytes(100_000))
    for sources in ([stream], [empty], [noise], [stream, empty, SAMPLE]):
        found = navframe.info(*sources)
        told = json.loads("\n".join(tool("info", "--json", *sources)))
        assert json.dumps(found) == json.dumps(told)
        assert [one["recognised"] for one in found["files"]] == \
               [one in (stream, SAMPLE) for one in sources]


def test_parts_are_the_tools(stream, tool):
    """Frames that gave no record, rejected and skipped bytes; whole sentences are the tool's own."""
    lines = [json.loads(line) for line in tool(stream, "--undecoded", "--format", "json", "--quiet")]
    wanted = [(line["part"], line["offset"], line["length"], line["message"], line["name"],
               line["reason"], line.get("field")) for line in lines if "part" in line]
    data = stream.read_bytes()
    got = []
    for item in navframe.read(data, items=True):
        if isinstance(item, navframe.Part):
            got.append((item.part, item.offset, item.length, item.message, item.name, item.reason,
                        item.bad_field))
            assert item.bytes == data[item.offset:item.offset + item.length]
        elif item.bad_field:
            got.append(("malformed", item.offset, item.bad_field))
    for record in [entry for entry in got if len(entry) == 3]:  # shown by their frames
        assert any(w[:2] == record[:2] and w[6] == record[2] for w in wanted)
        wanted = [w for w in wanted if w[:2] != record[:2]]
    assert [entry for entry in got if len(entry) != 3] == wanted


def plain(value, mask):
    """A value of an array as a record has it."""
    if value.dtype.names:
        return {name: plain(value[name], mask[name]) for name in value.dtype.names}
    if value.shape:
        return [plain(element, masked) for element, masked in zip(value, mask)]
    if mask:
        return None
    value = value.item()
    if isinstance(value, bytes):
        try:
            return value.decode() or None
        except UnicodeDecodeError:
            return value.decode("latin-1")
    return value


def without_empty(value):
    """A text that is never unknown is empty in records, and None in arrays."""
    if isinstance(value, dict):
        return {name: without_empty(inside) for name, inside in value.items()}
    if isinstance(value, list):
        return [without_empty(inside) for inside in value]
    return None if value == "" else value


def check_rows(tables, name, expected):
    """Whether the table `name` has these rows: dicts, whose lists stand in tables of their own."""
    table = tables[name]
    assert len(table) == len(expected)
    lists = [inside[len(name) + 1:] for inside in tables
             if inside.rpartition(".")[0] == name]
    for row, (front, record) in enumerate(expected):
        fields = dict(front)
        fields.update({key + "_" * (key in ("kind", "time", "offset")): value
                       for key, value in record.items() if key not in lists})
        assert plain(table.data[row], table.mask[row]) == without_empty(fields), (name, row)
    for key in lists:
        index = "record" if "." not in name else "entry"
        entries = []
        for row, (front, record) in enumerate(expected):
            inner = {"time": front["time"], "record": front.get("record", row)}
            if index == "entry":
                inner["entry"] = row
            entries += [(inner, entry if isinstance(entry, dict) else {"value": entry})
                        for entry in record[key]]
        check_rows(tables, f"{name}.{key}", entries)


def test_arrays_are_the_records(stream):
    expected = {}
    for record in navframe.read(stream):
        utc = record.time.utc
        front = {"time": utc and utc.replace(tzinfo=None), "offset": record.offset}
        values = record.asdict()
        if record.kind == "55AA":  # whole in arrays
            values["payload"] += [0] * (480 - len(values["payload"]))
        expected.setdefault(record.kind, []).append((front, values))
    tables = navframe.arrays(stream, masked=True)
    assert sorted(name for name in tables if "." not in name) == sorted(expected)
    for name, rows in expected.items():
        check_rows(tables, name, rows)


def test_attributes_are_the_members():
    """Every type, by its documentation, and every record of the sample, by its values."""
    for name in navframe.records.__all__:
        assert getattr(navframe.records, name).__doc__, name
    assert navframe.records.GgaRecord.latitude.__doc__.startswith("[deg] north positive")
    for record in navframe.read(SAMPLE):
        for name, value in record.asdict().items():
            got = getattr(record, name + "_" * (name in ("kind", "time", "offset")))
            if isinstance(value, dict):
                got = got.asdict()
            elif value and isinstance(value[0] if isinstance(value, list) else None, dict):
                got = [entry.asdict() for entry in got]
            assert got == value


def test_names_of_values():
    record = next(navframe.read(SAMPLE, kinds="GGA"))
    assert record.value_name("fixQuality") == "differential"
    assert record.value_name("latitude") is None
    with pytest.raises(AttributeError):
        record.value_name("nothing")


def test_frames_without_pandas(monkeypatch):
    monkeypatch.setitem(sys.modules, "pandas", None)
    with pytest.raises(ImportError, match="navframe.arrays does without"):
        navframe.frame(SAMPLE, "GGA")


def test_frames():
    pandas = pytest.importorskip("pandas")
    table = navframe.arrays(SAMPLE)["OBSERVATIONS.observations"]
    frame = navframe.frame(SAMPLE, "OBSERVATIONS.observations")
    assert str(frame.index.dtype) == "datetime64[ns, UTC]"
    assert frame["pseudorange"].equals(pandas.Series(table["pseudorange"], frame.index))
    assert frame["code"].iloc[0] == "1C"
    assert frame["channel"].isna().sum() == (table["channel"] == -128).sum() > 0
    assert navframe.frame(SAMPLE, "GGA")["utc.hour"].iloc[0] == 12
    with pytest.raises(ValueError, match="OBSERVATIONS.observations"):
        navframe.frame(SAMPLE, "OBSERVATIONS.observation")
