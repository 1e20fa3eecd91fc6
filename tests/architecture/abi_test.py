#!/usr/bin/env python3
"""scripts/abi sees what breaks hosts, and lets through what does not.

  abi_test.py LIBRARY    the library that the headers of the checkout belong to
"""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
TEXT = ROOT / "abi/libnavframe.so.1.txt"

# Where, what stands there, what takes its place, and what is said of it.
BREAKING_HEADERS = [
    ("records_nmea.h", "float hdop;         /* horizontal dilution of precision */\n"
     "  float altitude;", "float altitude; float hdop;", [
        "struct GgaRecord::hdop: was float at 64; unknown NaN; is float at 68; unknown NaN",
        "struct GgaRecord::altitude: was float at 68; m; unknown NaN; is float at 64; m; unknown NaN"]),
    ("records_nmea.h", "uint16_t stationId;", "int16_t stationId;", [
        "struct GgaRecord::stationId: was uint16_t at 80; unknown 65535; is int16_t at 80; "
        "unknown 65535"]),
    ("navframe.h", "void* data;", "const void* data;", [
        "struct GnssMessage::data: was void* at 8; is const void* at 8"]),
    ("navframe.h", "MsgIdGll = 5,", "MsgIdGll = 12,", ["enum MsgId::MsgIdGll: was 5; is 12"]),
    ("navframe.h", "MsgIdTxt = 34,", "", ["enum MsgId::MsgIdTxt: is gone; was 34"]),
    ("navframe.h", "MESSAGES 3000u", "MESSAGES 4000u", [
        "constant NAVFRAME_MAX_QUEUED_MESSAGES: was 3000; is 4000"]),
    ("stream.h", "NavframeUbx = 0x08,", "NavframeUbx = 0x10,", [
        "enum NavframeProtocol::NavframeUbx: was 8; is 16"]),
    ("stream.h", "NavframeAllItems = 0x0F", "NavframeAllItems = 0x1E", [
        "enum NavframeItemType::NavframeAllItems: was 15; is 30"]),
    ("stream.h", "navframe_user(const NavframeStream*", "navframe_user(NavframeStream*", [
        "symbol navframe_user: was void* (const NavframeStream*); is void* (NavframeStream*)"]),
    ("stream.h", "  UTCTIME utc;         /*", "  char zone[4]; UTCTIME utc; /*", [
        "struct NavframeTime: was 24 bytes, aligned to 4; is 28 bytes, aligned to 4",
        "struct NavframeTime::zone: is new, in a struct that hosts know whole; char[4] at 8",
        "struct NavframeTime::utc: was UTCTIME at 8; is UTCTIME at 12",
        "struct NavframeTime::leapSeconds: was int32_t at 20; is int32_t at 24"]),
    ("time_manager.h", "unsigned int getTOW()", "unsigned short getTOW()", [
        "symbol _ZN11TimeManager6getTOWEv: was unsigned int; is unsigned short"]),
    ("time_manager.h", "leapSeconds;         // GPS - UTC, seconds; 18 at construction\n"
     "  std::int32_t leapMilliseconds;", "leapMilliseconds; std::int32_t leapSeconds;", [
        "struct TimeManager::leapSeconds: was int32_t at 72; is int32_t at 76",
        "struct TimeManager::leapMilliseconds: was int32_t at 76; is int32_t at 72"]),
]
HARMLESS_HEADERS = [
    ("stream.h", "  const char* tagBlock;", "  const char* tagBlock; uint64_t received;", [
        "struct NavframeItem: 136 bytes, aligned to 8, was 128 bytes, aligned to 8",
        "struct NavframeItem::received: uint64_t at 128"]),
    ("catalogue.h", "  const NavframeRecord* record;\n", "  const NavframeRecord* record;\n"
     "  uint32_t since;\n", [
        "struct NavframeKind: 64 bytes, aligned to 8, was 56 bytes, aligned to 8",
        "struct NavframeKind::since: uint32_t at 56"]),
    ("stream.h", "NavframeAllProtocols = 0x6F", "NavframeSbf = 0x80, NavframeAllProtocols = 0xEF", [
        "enum NavframeProtocol::NavframeSbf: 128",
        "enum NavframeProtocol::NavframeAllProtocols: 239, was 111"]),
    ("time_types.h", "#ifdef __cplusplus\n} /*", "typedef struct Span { uint32_t first; } Span;\n"
     "#ifdef __cplusplus\n} /*", ["struct Span: 4 bytes, aligned to 4",
                                  "struct Span::first: uint32_t at 0"]),
]
# The same from the other side, what the library has beside another text.
TEXTS = [
    ("symbol navframe_user:", "symbol navframe_gone: int ()\nsymbol navframe_user:", [
        "symbol navframe_gone: is gone; was int ()"], []),
    ("symbol navframe_open: NavframeStatus (const NavframeOptions*, NavframeStream**)\n", "", [],
     ["symbol navframe_open: NavframeStatus (const NavframeOptions*, NavframeStream**)"]),
    ("kind 1 of source 0: GGA, GgaRecord of 88 bytes\n", "", [],
     ["kind 1 of source 0: GGA, GgaRecord of 88 bytes"]),
    ("kind 2 of source 0: RMC, ", "kind 2 of source 0: RMCX, ", [
        "kind 2 of source 0: was RMCX, RmcRecord of 80 bytes; is RMC, RmcRecord of 80 bytes"], []),
    ("  cn0: uint16_t at 2; 0.01 dB-Hz; unknown 65535\n", "  cn0: uint16_t at 2; dB-Hz; unknown 0\n",
     ["struct WideSatelliteSignal::cn0: was uint16_t at 2; dB-Hz; unknown 0; is uint16_t at 2; "
      "0.01 dB-Hz; unknown 65535"], []),
]


class Abi(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def replace(self, path, old, new):
        text = path.read_text()
        self.assertEqual(text.count(old), 1, f"{path.name}: {old}")
        path.write_text(text.replace(old, new))

    def check(self, *options, breaks, added):
        done = subprocess.run([ROOT / "scripts/abi", "--library", sys.argv[1], *options],
                              capture_output=True, text=True, check=False)
        told = [line.removeprefix("abi: ") for line in done.stderr.splitlines()]
        new = [line.removeprefix("new: ") for line in done.stdout.splitlines()[:-1]]
        self.assertEqual(sorted(told), sorted(breaks))
        self.assertEqual(sorted(new), sorted(added))
        self.assertEqual(done.returncode, 1 if breaks else 0)

    def changed_headers(self, changes):
        shutil.copytree(ROOT / "include", self.folder / "include")
        for header, old, new, _ in changes:
            self.replace(self.folder / "include/navframe" / header, old, new)
        return [line for change in changes for line in change[3]]

    def test_headers_that_break_hosts(self):
        breaks = self.changed_headers(BREAKING_HEADERS)
        self.check("--headers", self.folder / "include", breaks=breaks, added=[])

    def test_headers_that_only_add(self):
        added = self.changed_headers(HARMLESS_HEADERS)
        self.check("--headers", self.folder / "include", breaks=[], added=added)

    def test_libraries(self):
        text = self.folder / "abi.txt"
        shutil.copy(TEXT, text)
        for old, new, _, _ in TEXTS:
            self.replace(text, old, new)
        self.check("--text", text, breaks=[line for row in TEXTS for line in row[2]],
                   added=[line for row in TEXTS for line in row[3]])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
