"""Builds the extension by the CMake project that this folder is a part of."""

import os
import re
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent.parent


def version():
    return re.search(r"VERSION (\d+\.\d+\.\d+)", (ROOT / "CMakeLists.txt").read_text())[1]


class BuildByCMake(build_ext):
    def build_extension(self, extension):
        place = Path(self.get_ext_fullpath(extension.name)).resolve()
        tree = Path(self.build_temp).resolve()
        place.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["cmake", "-S", str(ROOT), "-B", str(tree), "-DCMAKE_BUILD_TYPE=Release",
                        "-DNAVFRAME_PYTHON=ON", "-DNAVFRAME_PYTHON_REQUIRED=ON",
                        "-DNAVFRAME_TOOL=OFF", "-DNAVFRAME_DEVELOPER=OFF", "-DNAVFRAME_INSTALL=OFF",
                        f"-DPython3_EXECUTABLE={sys.executable}",
                        f"-DNAVFRAME_PYTHON_OUTPUT={place.parent}"], check=True)
        subprocess.run(["cmake", "--build", str(tree), "--target", "navframe_python",
                        "--parallel", os.environ.get("NAVFRAME_JOBS", str(os.cpu_count()))],
                       check=True)


setup(version=version(), ext_modules=[Extension("navframe._navframe", [])],
      cmdclass={"build_ext": BuildByCMake})
