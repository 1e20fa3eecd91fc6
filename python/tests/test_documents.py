"""What documents and stubs say is so."""

import re
import shutil
import subprocess
import sys

import pytest

from conftest import ROOT, SAMPLE

PACKAGE = ROOT / "python"
EXAMPLES = [(document, code) for document in ("README.md", "python/README.md", "docs/python.md")
            for code in re.findall(r"```python\n(.*?)```", (ROOT / document).read_text(), re.S)]


@pytest.mark.parametrize("document, code", EXAMPLES)
def test_examples_run(document, code, tmp_path, monkeypatch, capsys):
    monkeypatch.chdir(tmp_path)
    shutil.copy(SAMPLE, "drive.ubx")
    subprocess.run(["gzip", "-k", "drive.ubx"], check=True)
    exec(compile(code, document, "exec"), {})
    assert capsys.readouterr().out


def test_stubs(tmp_path):
    """Strictly typed, current, and such that a wrong name of a member is found."""
    pytest.importorskip("mypy")
    host = tmp_path / "host.py"
    host.write_text('''
import navframe
from navframe.records import GgaRecord
for record in navframe.read("drive.ubx"):
    if isinstance(record, GgaRecord):
        reveal_type(record.latitude)
        print(record.latitud)
''')
    check = [sys.executable, "-m", "mypy", "--strict", "--config-file",
             str(PACKAGE / "pyproject.toml"), "--cache-dir", str(tmp_path / "cache")]
    done = subprocess.run([*check, "navframe"], cwd=PACKAGE, stdout=subprocess.PIPE, check=False)
    assert done.returncode == 0, done.stdout.decode()
    said = subprocess.run([*check, str(host)], cwd=PACKAGE, stdout=subprocess.PIPE,
                          check=False).stdout.decode()
    assert 'Revealed type is "Union[builtins.float, None]"' in said
    assert '"GgaRecord" has no attribute "latitud"' in said
    assert "Found 1 error" in said


# What pybind11 makes otherwise than a class in Python: the metaclass, and constructors that refuse;
# and names that type checkers alone have.
DIFFERENT = r"""
navframe\.(_navframe\.)?(Options|Part|Reader|Stream|Time)
navframe\.(_navframe\.)?(Part|Reader|Time)\.__init__
navframe\.(pandas|numpy|_tables\.Table)
"""


def test_stubs_have_what_the_types_have(tmp_path):
    pytest.importorskip("mypy")
    allowed = tmp_path / "allowed"
    allowed.write_text(DIFFERENT)
    done = subprocess.run([sys.executable, "-m", "mypy.stubtest", "navframe", "--concise",
                           "--mypy-config-file", str(PACKAGE / "pyproject.toml"), "--allowlist",
                           str(allowed), "--ignore-unused-allowlist"], cwd=tmp_path,
                          stdout=subprocess.PIPE, check=False)
    assert done.returncode == 0, done.stdout.decode()
