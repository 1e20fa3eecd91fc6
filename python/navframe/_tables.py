"""Arrays with masks, and as pandas: what NumPy and pandas do with what the extension decoded."""

from __future__ import annotations

import typing

import numpy

from . import arrays, unknown_values

if typing.TYPE_CHECKING:
    Table = numpy.ndarray[typing.Any, typing.Any]


def _fill_mask(mask: Table, table: Table, unknown: dict[str, int],
               prefix: str = "") -> None:
    for name in table.dtype.names or ():
        values = table[name]
        if values.dtype.names:
            _fill_mask(mask[name], values, unknown, f"{prefix}{name}.")
        elif values.dtype.kind == "f":
            mask[name] = numpy.isnan(values)
        elif values.dtype.kind == "M":
            mask[name] = numpy.isnat(values)
        elif f"{prefix}{name}" in unknown:
            mask[name] = values == values.dtype.type(unknown[f"{prefix}{name}"])


def masked(name: str, table: Table) -> typing.Any:
    """The array with what is not known masked."""
    ma: typing.Any = numpy.ma
    mask = numpy.zeros(table.shape, ma.make_mask_descr(table.dtype))
    _fill_mask(mask, table, unknown_values(name))
    return ma.MaskedArray(table, mask)


def _columns(table: Table, unknown: dict[str, int],
             prefix: str = "") -> typing.Iterator[tuple[str, typing.Any]]:
    import pandas

    for name in table.dtype.names or ():
        values, path = table[name], prefix + name
        if values.dtype.names:
            yield from _columns(values, unknown, path + ".")
            continue
        rows = [(path, values)] if values.ndim == 1 else [
            (f"{path}.{i}", values[:, i]) for i in range(values.shape[1])]
        for column, content in rows:
            content = numpy.ascontiguousarray(content)
            if content.dtype.kind == "S":
                texts = [text.decode("utf-8", "replace") for text in content.tolist()]
                yield column, numpy.array(texts, object)  # what no rows hold are texts, too
            elif path in unknown:
                absent = content == content.dtype.type(unknown[path])
                yield column, pandas.arrays.IntegerArray(content, absent)
            else:
                yield column, content


def frame(source: typing.Any, table: str, **options: typing.Any) -> typing.Any:
    try:
        import pandas
    except ImportError as error:
        raise ImportError("navframe.frame needs pandas; navframe.arrays does without") from error
    unknown = unknown_values(table)
    content = arrays(source, [table.split(".")[0]], **options)[table]
    columns = dict(_columns(content, unknown))
    index = pandas.DatetimeIndex(columns.pop("time").astype("M8[ns]"), tz="UTC", name="time")
    return pandas.DataFrame(columns, index=index)
