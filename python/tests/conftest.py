"""Inputs of the tests: the samples, and the captures where they lie."""

import os
import subprocess
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
SAMPLE = ROOT / "samples/mixed.bin"


def streams():
    folder = os.environ.get("NAVFRAME_CAPTURES")
    captures = sorted(Path(folder).glob("*.*")) if folder else []
    return [SAMPLE, ROOT / "samples/drive.nmea"] + [c for c in captures if c.suffix != ".md"]


@pytest.fixture(params=streams(), ids=lambda path: path.name)
def stream(request):
    return request.param


@pytest.fixture
def tool():
    """The command-line tool, as a function of its options to its lines."""
    program = os.environ.get("NAVFRAME_TOOL")
    if not program:
        pytest.skip("NAVFRAME_TOOL names no tool")

    def run(*options):
        done = subprocess.run([program, *map(str, options)], stdout=subprocess.PIPE, check=False)
        return done.stdout.decode().splitlines()

    return run
