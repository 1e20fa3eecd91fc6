"""The recorded streams that checks are made with, or the end of the script when there are none."""

import os
import sys
from pathlib import Path

import streams


def captures():
    """Paths of all captures, from the folder that the environment variable names."""
    folder = os.environ.get("NAVFRAME_CAPTURES")
    if not folder:
        sys.exit("NAVFRAME_CAPTURES names no folder: set it to that of the recorded streams.")
    found = sorted(path for path in Path(folder).glob("*") if path.suffix != ".md")
    if not found:
        sys.exit(f"There are no captures in {folder} (NAVFRAME_CAPTURES).")
    if not streams.LIBRARY.exists():
        sys.exit(f"There is no {streams.LIBRARY}: build the preset release first.")
    return found
