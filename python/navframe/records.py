"""The types of records, by the names of the structs in the C headers; made when first asked for.

help(navframe.records.GgaRecord) tells what is in one; navframe.kinds() which kind has which.
"""

from __future__ import annotations

from . import _navframe

__all__ = _navframe.record_names()


def __getattr__(name: str) -> type:
    found = _navframe.record_type(name)
    if found is None:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    globals()[name] = found
    return found


def __dir__() -> list[str]:
    return __all__
