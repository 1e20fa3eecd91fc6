# Shared by the scripts beside it and by .ci/run: sets up the machine and builds. Sourced by bash
# with -euo pipefail.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly root

# Debian's name of each package, and the test that what it brings is there, wherever it came from.
build_packages=(
  "g++:command g++"
  "cmake:cmake_at_least 3.25"
  "ninja-build:command ninja"
  "libgtest-dev:header gtest/gtest.h"
  "libgmock-dev:header gmock/gmock.h"
  "libbenchmark-dev:header benchmark/benchmark.h"
  "libcli11-dev:header CLI/CLI.hpp"
  "rapidjson-dev:header rapidjson/document.h"
  "zlib1g-dev:header zlib.h"
  "libzstd-dev:header zstd.h"
  "pkg-config:command pkg-config"
  "libcurl4-openssl-dev:header curl/curl.h"
)
# The Python package and its tests; for Debian's own interpreter.
python_packages=(
  "python3-dev:python_headers"
  "pybind11-dev:file /usr/include/pybind11/pybind11.h"
  "python3-setuptools:python_module setuptools"
  "python3-wheel:python_module wheel"
  "python3-pip:python_module pip"
  "python3-pytest:python_module pytest"
  "python3-numpy:python_module numpy"
  "python3-pandas:python_module pandas"
  "mypy:python_module mypy"
  "zstd:command zstd"
)
# What scripts/run shows of the sample, and the README of that.
sample_options="--first 5 --kinds GGA,RMC,GSV,NAV-PVT,OBSERVATIONS,STATION-ARP --fields fixQuality,fixType,latitude,longitude,altitude,height,speedKnots,course,satellite,number,elevation,code,pseudorange,carrierPhase,cn0,x,y,z"
readonly sample_options

ci_packages=(
  "clang-format:command clang-format"
  "clang-tidy:command clang-tidy"
  "valgrind:command valgrind"
  "clang:command clang++"
  "libclang-rt-dev:fuzzer_runtime"
  "python3:command python3"
  "rtklib:command convbin"
  "socat:command socat"
  "gpsbabel:command gpsbabel"
  "openssl:command openssl"
  "iproute2:command ip"
  "util-linux:command unshare"
)

# What brings reports their charts, and looks at them; without, reports and these tests are left out.
report_packages=(
  "npm:command npm"
  "chromium:command chromium"
)

# What examples/archive run on; their tests are left out without.
archive_packages=(
  "slurm-wlm:command sbatch"
  "munge:file /usr/sbin/munged"
  "parallel:command parallel"
  "python3-dask:python_module dask.dataframe"
  "python3-distributed:python_module distributed"
  "util-linux:command unshare"
)

# What builds for 64-bit ARM and runs what was built; nothing is tested there without.
arm_packages=(
  "g++-aarch64-linux-gnu:command aarch64-linux-gnu-g++"
  "qemu-user-static:command qemu-aarch64-static"
  "googletest:file /usr/src/googletest/CMakeLists.txt"
)

# For scripts/build-debian-packages, beside what the library and the tool need.
debian_packages=(
  "g++:command g++"
  "cmake:cmake_at_least 3.25"
  "libcli11-dev:header CLI/CLI.hpp"
  "zlib1g-dev:header zlib.h"
  "libzstd-dev:header zstd.h"
  "pkg-config:command pkg-config"
  "libcurl4-openssl-dev:header curl/curl.h"
  "dpkg-dev:command dpkg-buildpackage"
  "debhelper:command dh"
  "dh-python:command dh_python3"
  "python3-dev:python_headers"
  "pybind11-dev:file /usr/include/pybind11/pybind11.h"
  "python3-setuptools:python_module setuptools"
  "python3-wheel:python_module wheel"
  "python3-numpy:python_module numpy"
  "fakeroot:command fakeroot"
  "lintian:command lintian"
)

have_command() { command -v "$1" >/dev/null; }

have_header() {
  have_command "${CXX:-g++}" &&
    printf '#if !__has_include(<%s>)\n#error missing\n#endif\n' "$1" |
    "${CXX:-g++}" -E -x c++ - >/dev/null 2>&1
}

have_file() { [[ -e $1 ]]; }

have_python_module() { /usr/bin/python3 -c "import $1" 2>/dev/null; }

have_python_headers() {
  /usr/bin/python3 -c 'import os, sysconfig
os.stat(os.path.join(sysconfig.get_path("include"), "Python.h"))' 2>/dev/null
}

have_cmake_at_least() {
  have_command cmake || return 1
  local found
  found=$(cmake --version | sed -n '1s/[^0-9]*//p')
  [[ $(printf '%s\n' "$1" "$found" | sort -V | head -n 1) == "$1" ]]
}

have_fuzzer_runtime() {
  have_command clang++ && [[ -e $(clang++ -print-file-name="libclang_rt.fuzzer-$(uname -m).a") ]]
}

# Prints the packages of a list whose content is not there.
missing_of() {
  local entry
  for entry in "$@"; do
    # shellcheck disable=SC2086  # the test is a function's name and its argument
    have_${entry#*:} || printf '%s\n' "${entry%%:*}"
  done
}

# Installs what is missing of a list of packages; 1 when some of it, then in `missing`, cannot be had.
provide_packages() {
  mapfile -t missing < <(missing_of "$@")
  ((${#missing[@]} == 0)) && return
  if have_command apt-get; then
    echo "Installing ${missing[*]}" >&2
    become_root apt-get update -qq >&2 || true
    become_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2 || true
    mapfile -t missing < <(missing_of "$@")
  fi
  ((${#missing[@]} == 0))
}

# Installs what is missing of a list of packages, or names it and ends the script.
require_packages() {
  local missing
  provide_packages "$@" && return
  echo "Needed and not there: ${missing[*]} (names of Debian and Ubuntu)." >&2
  echo "Install them and start again." >&2
  exit 1
}

# Runs a command as root: directly, or through a sudo that may ask for a password on a terminal.
become_root() {
  if ((EUID == 0)); then
    "$@"
  elif ! have_command sudo; then
    return 1
  elif [[ -t 0 && -t 2 ]]; then
    sudo "$@"
  else
    sudo -n "$@" 2>/dev/null
  fi
}

# build PRESET [target...]: everything without targets. Says little; output goes to stderr.
build() {
  local tree=$root/build/$1 target=() said
  # Without, the tool is built without reports.
  have_command npm && { "$root/scripts/provide-uplot" || echo "No uPlot: no reports" >&2; }
  if [[ ! -f $tree/build.ninja || $root/CMakePresets.json -nt $tree/build.ninja ||
    $root/build/npm/package-lock.json -nt $tree/build.ninja ]]; then
    echo "Building build/$1" >&2
    said=$(cd "$root" && cmake --preset "$1" 2>&1) || {
      printf '%s\n' "$said" >&2
      return 1
    }
  fi
  (($# == 1)) || target=(--target "${@:2}")
  if [[ -t 2 ]]; then
    cmake --build "$tree" "${target[@]}" >&2
  else
    cmake --build "$tree" "${target[@]}" -- --quiet 2>&1 | sed '/^ninja: no work/d' >&2
  fi
}
