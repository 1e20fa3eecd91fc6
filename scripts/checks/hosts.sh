# Builds the programs of examples/ against an installed library, and sees what they do. Sourced behind
# lib.sh by scripts that have set `scratch`, a folder of their own.

readonly examples=$root/examples
readonly cc=${CC:-gcc} cxx=${CXX:-g++}
readonly c_flags=(-std=c99 -Wall -Wextra -pedantic-errors -Werror)
readonly cxx_flags=(-std=c++20 -Wall -Wextra -pedantic-errors -Werror)
unset CFLAGS CXXFLAGS CMAKE_BUILD_TYPE

fail() {
  echo "${0##*/}: $*" >&2
  exit 1
}

# Runs a command and shows what it says only when it fails.
quietly() {
  local said
  said=$("$@" 2>&1) || {
    printf '%s\n' "$said" >&2
    fail "failed: $*"
  }
}

# A stream whose outcome is known: the sample, with a sentence in the middle whose latitude is no
# number, and one that no record is made of.
readonly sample=$root/samples/drive.nmea
readonly stream=$scratch/stream.nmea
make_stream() {
  local half=$(($(wc -l <"$sample") / 2))
  {
    head -n "$half" "$sample"
    printf '$GPGGA,000000.00,x,N,00000.000,E,1,08,0.9,0.0,M,0.0,M,,*3B\r\n$GPWPL,01*71\r\n'
    tail -n "+$((half + 1))" "$sample"
  } >"$stream"
}

fixes=$(grep -c '^\$..GGA' "$sample")
readonly fixes

# check_decode PROGRAM: prints every fix.
check_decode() {
  "$1" "$sample" >"$scratch/decode.out" || fail "$1 does not run"
  [[ $(grep -c '^{"kind":"GGA","record":{.*}}$' "$scratch/decode.out") == "$fixes" ]] ||
    fail "$1: fixes are missing"
}

# check_programs FOLDER: decode, feed and track of a folder do what they should.
check_programs() {
  check_decode "$1/decode"
  "$1/feed" "$stream" >"$scratch/feed.out" 2>"$scratch/feed.err"
  grep -q '^byte [0-9]*: NMEA GPGGA: a field cannot be converted$' "$scratch/feed.err" ||
    fail "$1/feed: the malformed sentence was not reported"
  grep -q '^byte [0-9]*: NMEA GPWPL: ' "$scratch/feed.err" ||
    fail "$1/feed: the sentence without a record was not reported"
  [[ $(wc -l <"$scratch/feed.err") == 2 ]] || fail "$1/feed: reports what is right"
  [[ $(grep -c '^GGA {' "$scratch/feed.out") == $((fixes + 1)) ]] ||
    fail "$1/feed: fixes are missing"
  "$1/track" "$stream" >"$scratch/track.out"
  [[ $(grep -Ec '^[0-9.]+( -?[0-9]+\.[0-9]{9}){2} ' "$scratch/track.out") == "$fixes" ]] ||
    fail "$1/track: fixes are missing"
  echo "${0##*/}: ${1##*/}: $fixes fixes from each of decode, feed and track"
}

# Compiles the three programs into a folder with the flags in `args`.
compile_programs() {
  mkdir -p "$1"
  "$cc" "${c_flags[@]}" "$examples/decode.c" -o "$1/decode" "${args[@]}"
  "$cxx" "${cxx_flags[@]}" "$examples/feed.cpp" -o "$1/feed" "${args[@]}"
  "$cxx" "${cxx_flags[@]}" "$examples/find_package/track.cpp" -o "$1/track" "${args[@]}"
}
