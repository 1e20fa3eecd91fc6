"""RINEX observation files, read strictly: see rinex_text.py."""

import re
from collections import Counter, namedtuple
from decimal import Decimal

from rinex_text import COMMON, OF_OBSERVATIONS, TICKS, Header

# Time [100 ns], flag, clock offset [ps] or None, and of each satellite its cells by type.
Epoch = namedtuple("Epoch", "time flag offset satellites line")

# Value in thousandths; digits of lost lock and of signal strength, None where blank.
Cell = namedtuple("Cell", "value lock strength")

# Attributes of the codes by system and band.
CODES = {
    "G": {"1": "CSLXPWYMNR", "2": "CDSLXPWYMNR", "5": "IQX"},
    "R": {"1": "CP", "4": "ABX", "2": "CP", "6": "ABX", "3": "IQX"},
    "E": {"1": "ABCXZ", "5": "IQX", "7": "IQX", "8": "IQX", "6": "ABCXZ"},
    "S": {"1": "C", "5": "IQX"},
    "J": {"1": "CESLXZB", "2": "SLX", "5": "IQXDPZ", "6": "SLXEZ"},
    "C": {"2": "IQX", "1": "DPXASLZN", "5": "DPX", "7": "IQXDPZ", "8": "DPX", "6": "IQXADPZ"},
    "I": {"5": "ABCX", "9": "ABCX", "1": "DPX"},
}
_EPOCH = re.compile(r"> \d{4}( \d\d){4} [ \d]\d\.\d{7}  [0-6][ \d]{2}\d"
                    r"(?:      (?P<offset>[ \d-]{2}\.\d{12})(?: {1,3}\d{5})?| {6,21})? *")
_BLANK_EPOCH = re.compile(r">[ \d.]{29} [2-5][ \d]{2}\d *")
_VALUE = re.compile(r" *-?\d+\.\d{3}")
_SATELLITE = re.compile(r"[GRECJIS]\d\d")
_BANDS_OF_BIASES = ["C1C", "C1P", "C2C", "C2P"]


class Observations:
    """`version`, `header` (fields of lines by label), `types` by system, `epochs`, `channels` and
    `biases` of GLONASS, `shifts` by system and code."""

    def __init__(self, source):
        self.source = source
        self.head = Header(source, "O")
        self.header, self.version = self.head.records, self.head.version
        self.types = self._types()
        self.channels = self._channels()
        self.biases = self._biases()
        self.shifts = self._shifts()
        self._judge_header()
        self.epochs = []
        while source.more():
            self._read_epoch()
        self._judge_epochs()
        self._judge_counts()

    # --- the header

    def _runs(self, label, key):
        """Lines of a label put together where a line continues the one before: fields of the first,
        and the rest of all."""
        runs = []
        for fields in self.header.get(label, []):
            if fields[key] or not runs:
                runs.append(list(fields))
            else:
                runs[-1] += fields[key + 2:]
        return runs

    def _types(self):
        found = {}
        for system, count, *types in self._runs("SYS / # / OBS TYPES", 0):
            types = [kind for kind in types if kind]
            if count != len(types) or not types or len(set(types)) != len(types):
                self.head.fault("SYS / # / OBS TYPES", f"{system} says {count}: {types}")
            if system in found or system not in CODES:
                self.head.fault("SYS / # / OBS TYPES", f"system {system!r}")
            for kind in types:
                if not (kind[:1] in "CLDS" and
                        kind[2:] and kind[2:] in CODES.get(system, {}).get(kind[1:2], "")):
                    self.head.fault("SYS / # / OBS TYPES", f"{system} has no {kind}")
            found[system] = types
        return found

    def _channels(self):
        label, rows = "GLONASS SLOT / FRQ #", self.header.get("GLONASS SLOT / FRQ #", [])
        if "R" in self.types and not rows:
            self.head.fault(label, "is not there")
        found, count = {}, None
        for first, *entries in rows:
            count = first if count is None else count
            for letter, slot, channel in zip(*[iter(entries)] * 3):
                if letter == "R" and slot and channel is not None and -7 <= channel <= 13:
                    found[f"R{slot:02}"] = channel
                elif letter or slot or channel is not None:
                    self.head.fault(label, f"no slot and channel: {letter}{slot} {channel}")
        if count is not None and count != len(found):
            self.head.fault(label, f"says {count}, has {len(found)}")
        return found

    def _biases(self):
        label, fields = "GLONASS COD/PHS/BIS", self.head.first("GLONASS COD/PHS/BIS")
        if fields is None or not any(fields):
            if "R" in self.types and fields is None and self.version.startswith("3"):
                self.head.fault(label, "is not there")
            return {}
        found = {code: value for code, value in zip(fields[::2], fields[1::2]) if code}
        if not set(found) <= set(_BANDS_OF_BIASES) or None in found.values():
            self.head.fault(label, f"codes or values: {fields}")
        return found

    def _shifts(self):
        label, found, told = "SYS / PHASE SHIFT", {}, set()
        for system, code, shift, _, *satellites in self._runs(label, 0):
            told.add(system)
            if not code and shift is None:
                continue  # unknown
            if code not in self.types.get(system, []) or code[0] != "L":
                self.head.fault(label, f"{system} has no {code}")
            if (system, code) in found and not any(satellites):
                self.head.fault(label, f"{system} {code} again")
            found[system, code] = shift or Decimal(0)
        for system, types in self.types.items():
            if self.version.startswith("3") and system not in told and "L" in "".join(types):
                self.head.fault(label, f"none of {system}")
        return found

    def _judge_header(self):
        head = self.head
        head.need("PGM / RUN BY / DATE", "MARKER NAME", "OBSERVER / AGENCY", "REC # / TYPE / VERS",
                  "ANT # / TYPE", "SYS / # / OBS TYPES", "TIME OF FIRST OBS", "END OF HEADER")
        if "ANTENNA: DELTA X/Y/Z" not in self.header:
            head.need("ANTENNA: DELTA H/E/N")
        marker = (head.first("MARKER TYPE") or [""])[0]
        if marker in ("", "GEODETIC", "NON_GEODETIC"):
            head.need("APPROX POSITION XYZ")
        if not (head.first("MARKER NAME") or [""])[0]:
            head.fault("MARKER NAME", "is blank")
        if head.system != "M" and set(self.types) - {head.system}:
            head.fault("RINEX VERSION / TYPE", f"{head.system} alone, types of {set(self.types)}")
        unit = head.first("SIGNAL STRENGTH UNIT")
        if unit and unit[0] != "DBHZ":
            head.fault("SIGNAL STRENGTH UNIT", f"{unit[0]!r}")

    # --- epochs

    def _read_epoch(self):
        line = self.source.take()
        match = _EPOCH.fullmatch(line)
        if not match and not _BLANK_EPOCH.fullmatch(line):
            self.source.fault(f"no epoch: {line!r}")
            return
        flag, count = int(line[31]), int(line[32:35])
        if flag > 1:
            self._read_event(flag, count)
            return
        time = self.source.moment(line[1:29].split())
        offset = match["offset"]
        at, satellites = self.source.at, {}
        for _ in range(count):
            self._read_satellite(satellites)
        self.epochs.append(Epoch(time, flag, int(Decimal(offset) * 10**12) if offset else None,
                                 satellites, at))

    def _read_event(self, flag, count):
        for _ in range(count):
            line = self.source.take()
            if flag == 6:
                continue
            layout = (COMMON | OF_OBSERVATIONS).get(line[60:].rstrip())
            if layout is None:
                self.source.fault(f"no header line in an event: {line!r}")
            else:
                self.source.fields(line[:60], layout)

    def _read_satellite(self, satellites):
        line = self.source.take()
        name, types = line[:3], self.types.get(line[:1], [])
        if not _SATELLITE.fullmatch(name) or name in satellites:
            self.source.fault(f"no satellite, or again: {name!r}")
        if len(line) > 3 + 16 * len(types) and (line[3 + 16 * len(types):].strip() or not types):
            self.source.fault(f"text behind the {len(types)} observations of {line[:1]}")
        cells = {}
        for i, kind in enumerate(types):
            part = line[3 + 16 * i:19 + 16 * i]
            if part.strip():
                cell = self._cell(kind, part.ljust(16))
                if cell:
                    cells[kind] = cell
        if not cells:
            self.source.fault(f"{name} has no observations")
        self._judge_strength(cells)
        satellites[name] = cells

    def _cell(self, kind, part):
        value, lock, strength = part[:14], part[14], part[15]
        if not _VALUE.fullmatch(value):
            self.source.fault(f"{kind} is {part!r}")
            return None
        if lock not in " 01234567" or lock != " " and kind[0] != "L":
            self.source.fault(f"lock {lock!r} of {kind}")
            lock = " "
        if strength not in " 123456789" or strength != " " and kind[0] not in "CL":
            self.source.fault(f"signal strength {strength!r} of {kind}")
            strength = " "
        thousandths = int(value.replace(".", ""))
        if thousandths == 0 and kind[0] != "D":
            return None  # as good as blank
        return Cell(thousandths, int(lock) if lock != " " else None,
                    int(strength) if strength != " " else None)

    def _judge_strength(self, cells):
        for kind, cell in cells.items():
            ratio = cells.get("S" + kind[1:])
            if cell.strength and ratio:
                if cell.strength != min(max(ratio.value // 6000, 1), 9):
                    self.source.fault(f"{kind}: signal strength {cell.strength} of {ratio.value}")

    # --- what the header says of the body

    def _judge_epochs(self):
        times = [epoch.time for epoch in self.epochs]
        for before, epoch in zip(self.epochs, self.epochs[1:]):
            if None not in (before.time, epoch.time) and before.time >= epoch.time:
                self.source.fault("not later than the epoch before", epoch.line)
        for label, time in (("TIME OF FIRST OBS", (times or [None])[0]),
                            ("TIME OF LAST OBS", (times or [None])[-1])):
            fields = self.head.first(label)
            if fields and self.source.moment(fields[:6]) != time:
                self.head.fault(label, f"is not that of the epochs: {fields[:6]}")
            if fields and fields[6] not in SYSTEM_TIMES.get(self.head.system, ("GPS",)):
                self.head.fault(label, f"in {fields[6]!r}")
        interval = self.head.first("INTERVAL")
        steps = Counter(round((b - a) * 1000 / TICKS) for a, b in zip(times, times[1:]))
        likely = (min(steps), steps.most_common(1)[0][0]) if steps else ()
        if interval and likely and min(abs(interval[0] * 1000 - step) for step in likely) > 1:
            self.head.fault("INTERVAL", f"{interval[0]}, epochs {steps.most_common(3)} [ms]")

    def _judge_counts(self):
        counts = {}
        for epoch in self.epochs:
            for name, cells in epoch.satellites.items():
                counts.setdefault(name, Counter()).update(list(cells))
        said = self.head.first("# OF SATELLITES")
        if said and said[0] != len(counts):
            self.head.fault("# OF SATELLITES", f"{said[0]}, are {len(counts)}")
        told = {}
        for system, number, *entries in self._runs("PRN / # OF OBS", 0):
            told[f"{system}{number or 0:02}"] = entries
        for name, entries in told.items():
            types = self.types.get(name[0], [])
            real = [counts.get(name, {}).get(kind, 0) for kind in types]
            if [entry or 0 for entry in entries[:len(types)]] != real or any(entries[len(types):]):
                self.head.fault("PRN / # OF OBS", f"{name} says {entries}, has {real}")
        if told and set(told) != set(counts):
            self.head.fault("PRN / # OF OBS", f"of {set(told) ^ set(counts)}")


# Times that observations of one system alone may be in.
SYSTEM_TIMES = {"R": ("GLO", "GPS"), "E": ("GAL", "GPS"), "C": ("BDT", "GPS"),
                "J": ("QZS", "GPS"), "I": ("IRN", "GPS")}
