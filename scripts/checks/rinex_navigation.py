"""RINEX navigation files, read strictly: see rinex_text.py."""

import re
from collections import namedtuple

from rinex_text import TICKS, Header

# `kind` is EPH, STO, ION or EOP, `message` LNAV and so on, both those of version 4; `time` [100 ns]
# of the clock; `values` by name (EPH that are named below) or all numbers in their order.
Record = namedtuple("Record", "kind satellite message time values line")

_KEPLER = ["af0 af1 af2", "issueOfData crs deltaN m0", "cuc eccentricity cus sqrtSemiMajorAxis",
           "toe cic omega0 cis", "i0 crc omega omegaDot"]
_GPS = [*_KEPLER, "idot codesOnL2 week l2pDataFlag", "accuracy health groupDelay issueOfClock",
        "transmissionTime fitInterval - -"]
_GALILEO = [*_KEPLER, "idot source week -", "accuracy health groupDelay secondDelay",
            "transmissionTime - - -"]
_BEIDOU = [*_KEPLER, "idot - week -", "accuracy health groupDelay secondDelay",
           "transmissionTime issueOfClock - -"]
_NAVIC = [*_KEPLER, "idot - week -", "accuracy health groupDelay -", "transmissionTime - - -"]
_GLONASS = ["minusTauN gammaN frameTime", "x vx ax health", "y vy ay channel", "z vz az age"]
_GLONASS_5 = [*_GLONASS, "status delay uncertainty flags"]
_SBAS = ["af0 af1 transmissionTime", "x vx ax health", "y vy ay accuracy", "z vz az issueOfData"]

# Names of the numbers of each line, "-" where nothing may stand but 0.
EPHEMERIDES = {
    "G": {"LNAV": _GPS}, "J": {"LNAV": _GPS}, "E": {"INAV": _GALILEO, "FNAV": _GALILEO},
    "C": {"D1": _BEIDOU, "D2": _BEIDOU}, "I": {"LNAV": _NAVIC}, "R": {"FDMA": _GLONASS_5},
    "S": {"SBAS": _SBAS},
}
# Numbers of lines of the other messages, of which the first has the time.
MORE_EPHEMERIDES = {"G": {"CNAV": 9, "CNV2": 10}, "J": {"CNAV": 9, "CNV2": 10},
                    "C": {"CNV1": 10, "CNV2": 10, "CNV3": 9}, "I": {"L1NV": 9},
                    "R": {"L1OC": 9, "L3OC": 9}}
OTHERS = {"STO": ("LNAV FDMA IFNV D1D2 SBAS CNVX L1NV L1OC L3OC".split(), 2),
          "EOP": ("LNAV CNVX L1NV L1OC L3OC".split(), 3),
          "ION": ("LNAV D1D2 CNVX L1NV".split(), 3)}
SHORT_IONOSPHERES = ("IFNV",)  # NeQuick's
WHOLE = {"week", "health", "channel", "issueOfData", "issueOfClock", "codesOnL2", "l2pDataFlag",
         "source"}
MANDATORY = {"af0", "af1", "af2", "toe", "week", "sqrtSemiMajorAxis", "eccentricity", "m0", "i0",
             "omega0", "omega", "minusTauN", "gammaN", "frameTime", "x", "y", "z", "vx", "vy", "vz",
             "channel", "health"}
WEEK = 604800
FIRST_WEEK = {"C": 1356}  # where weeks do not count as those of GPS
LONGEST_UNKNOWN = 999_000_000  # a time of transmission that is not known is 0.9999E+09
_HEAD = re.compile(r"> (EPH|STO|EOP|ION) ([GRECJIS]\d\d) ([A-Z0-9]{2,4})(?: {1,3}([A-Z]{4}))? *")
_SATELLITE = re.compile(r"[GRECJIS]\d\d")
_TIMES = "X1 I4 X1 I2.2 X1 I2.2 X1 I2.2 X1 I2.2 X1 I2.2"
_FIRST = f"A3 {_TIMES} 3(D19.12)"
_REST = "X4 4(D19.12)"


class Navigation:
    """`version`, `header` (fields of lines by label) and `records` as they come."""

    def __init__(self, source):
        self.source = source
        self.head = Header(source, "N")
        self.header, self.version = self.head.records, self.head.version
        self.head.need("PGM / RUN BY / DATE", "END OF HEADER")
        if self.version.startswith("4"):
            self.head.need("LEAP SECONDS")
        self.records = []
        while source.more():
            record = self._next()
            if record:
                self.records.append(record)
        self._judge()

    def _next(self):
        if not self.version.startswith("4"):
            return self._ephemeris(None, None)
        line = self.source.take()
        match = _HEAD.fullmatch(line)
        if not match:
            self.source.fault(f"no head of a record: {line!r}")
            return None
        kind, satellite, message, _ = match.groups()
        if kind == "EPH":
            return self._ephemeris(satellite, message)
        messages, count = OTHERS[kind]
        if kind == "ION" and message in SHORT_IONOSPHERES:
            messages, count = SHORT_IONOSPHERES, 2
        if message not in messages:
            self.source.fault(f"no message of {kind}: {message}")
        return self._other(kind, satellite, message, count)

    def _other(self, kind, satellite, message, count):
        at, line = self.source.at, self.source.take()
        layout = f"X4 {_TIMES[3:]} X1 A18 X1 A18 X1 A18" if kind == "STO" else \
            f"X4 {_TIMES[3:]} 3(D19.12)"
        fields = self.source.fields(line, layout)
        values = fields[6:]
        for _ in range(count - 1):
            values += self.source.fields(self.source.take(), _REST)
        return Record(kind, satellite, message, self.source.moment(fields[:6]), values, at)

    def _ephemeris(self, named, message):
        line = self.source.take()
        at, satellite = self.source.at, line[:3]
        if not _SATELLITE.fullmatch(satellite) or named not in (None, satellite):
            self.source.fault(f"no satellite of an ephemeris: {line[:23]!r}")
            return None
        rows = self._rows(satellite[0], message)
        _, *fields = self.source.fields(line, _FIRST)
        time, lines = self.source.moment(fields[:6]), [fields[6:]]
        if rows is None:
            count = MORE_EPHEMERIDES.get(satellite[0], {}).get(message)
            if count is None:
                self.source.fault(f"no message of {satellite}: {message}")
                count = 1
            for _ in range(count - 1):
                lines.append(self.source.fields(self.source.take(), _REST))
            return Record("EPH", satellite, message, time, sum(lines, []), at)
        for _ in rows[1:]:
            lines.append(self.source.fields(self.source.take(), _REST))
        values = self._named(rows, lines)
        self._judge_values(satellite[0], time, values, at)
        return Record("EPH", satellite, message or self._message_of(satellite, values), time,
                      values, at)

    def _rows(self, system, message):
        if message is not None:
            return EPHEMERIDES[system].get(message)
        return _GLONASS if system == "R" and self._is_short() else next(
            iter(EPHEMERIDES[system].values()))

    def _is_short(self):
        """GLONASS has a line more from version 3.05 on."""
        if self.version == "3.04":
            return True
        short = not (self.source.at + 3 < len(self.source.lines) and
                     self.source.lines[self.source.at + 3].startswith("    "))
        if short:
            self.source.fault("an ephemeris of GLONASS without its fifth line")
        return short

    @staticmethod
    def _message_of(satellite, values):
        if satellite[0] == "E":
            return "FNAV" if values["source"] and int(values["source"]) & 2 else "INAV"
        if satellite[0] == "C":
            return None  # D1 or D2: not told
        return next(iter(EPHEMERIDES[satellite[0]]))

    def _named(self, rows, lines):
        values = {}
        for names, numbers in zip(rows, lines):
            for name, number in zip(names.split(), numbers):
                if name != "-":
                    values[name] = number
                elif number:
                    self.source.fault(f"{number} where nothing stands")
        return values

    def _judge_values(self, system, time, values, at):
        for name, value in values.items():
            if value is None and name in MANDATORY:
                self.source.fault(f"{name} is blank", at)
            if value is not None and name in WHOLE and value != int(value):
                self.source.fault(f"{name} is {value}, not whole", at)
        if "toe" in values and None not in (values["toe"], values["week"], time):
            if not 0 <= values["toe"] < WEEK:
                self.source.fault(f"toe is {values['toe']}", at)
            toe = (values["week"] + FIRST_WEEK.get(system, 0)) * WEEK + values["toe"]
            if abs(toe - time // TICKS) > WEEK / 2:
                self.source.fault(f"week {values['week']}, the epoch is of another", at)
        sent = values.get("transmissionTime")
        if sent is not None and abs(sent) >= 2 * WEEK and sent < LONGEST_UNKNOWN:
            self.source.fault(f"time of transmission {sent}", at)
        source = values.get("source")
        if source is not None:
            signals, clocks = int(source) & 7, int(source) >> 8
            if clocks not in (1, 2) or signals not in (1, 2, 4, 5) or (signals == 2) != (
                    clocks == 1):
                self.source.fault(f"data source {source}", at)

    def _judge(self):
        seen = {}
        for record in self.records:
            system = self.head.system
            if system != "M" and record.satellite[0] != system:
                self.source.fault(f"{record.satellite} in a file of {system}", record.line)
            values = record.values
            if isinstance(values, dict):
                values = [number for name, number in values.items() if name != "transmissionTime"]
            key = (*record[:4], tuple(values))
            if key in seen:
                self.source.fault(f"{record.satellite} as in line {seen[key]}", record.line)
            seen[key] = record.line
