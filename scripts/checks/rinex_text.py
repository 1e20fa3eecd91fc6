"""Lines of RINEX files: fixed columns, headers and names, as the documents of versions 3.04, 3.05
and 4.02 give them.

What a file violates goes to its `fault`, which ends the reading with the place and the reason, or
keeps them where a list of violations is wanted.
"""

import functools
import gzip
import re
from datetime import datetime
from decimal import Decimal

GPS_EPOCH = datetime(1980, 1, 6)
TICKS = 10**7  # times are whole numbers of 100 ns since that epoch, in the file's own time
VERSIONS = ("3.04", "3.05", "4.02")


class Violation(Exception):
    """Text: file, line and reason."""


class Lines:
    """The lines of a file and how far they are read."""

    def __init__(self, path, violations=None):
        self.path, self.violations, self.at = path, violations, 0
        opened = gzip.open if str(path).endswith(".gz") else open
        with opened(path, "rb") as file:
            data = file.read()
        try:
            text = data.decode("ascii")
        except UnicodeDecodeError as error:
            line = data.count(b"\n", 0, error.start) + 1
            self.fault("a byte that is not ASCII", line)
            text = data.decode("latin-1")
        self.lines = text.replace("\r\n", "\n").split("\n")
        if self.lines.pop():
            self.fault("the last line has no end", len(self.lines) + 1)
        for i, line in enumerate(self.lines):
            if line and not line.isprintable():
                self.fault("a control character", i + 1)

    def fault(self, reason, line=None):
        text = f"{self.path}:{self.at if line is None else line}: {reason}"
        if self.violations is None:
            raise Violation(text)
        self.violations.append(text)

    def more(self):
        return self.at < len(self.lines)

    def take(self):
        self.at += 1
        if self.at > len(self.lines):
            self.at = len(self.lines)
            raise Violation(f"{self.path}:{self.at + 1}: the file ends before what it began")
        return self.lines[self.at - 1]

    def fields(self, text, layout):
        """Values at their columns: texts of A, numbers of I, F and D; None where blank."""
        found, columns = [], _columns(layout)
        end = columns[-1][2]
        if text[end:].strip():
            self.fault(f"text behind column {end}: {text[end:].strip()!r}")
        text = text.ljust(end)
        for letter, begin, end, pattern in columns:
            part = text[begin:end]
            if letter == "A":
                found.append(part.rstrip())
            elif not part.strip():
                found += [None] * (letter != "X")
            elif not pattern.fullmatch(part):
                self.fault(f"columns {begin + 1} to {end} hold {part!r}, not {pattern.pattern}")
                found += [None] * (letter != "X")
            else:
                found.append(int(part) if letter == "I" else Decimal(_pointed(part)))
        return found

    def moment(self, numbers):
        """100 ns of year, month, day, hour, minute and second; None if there is no such time."""
        try:
            second = Decimal(numbers[5])
            whole = datetime(*map(int, numbers[:5])) - GPS_EPOCH
            if not 0 <= second < 61:
                raise ValueError
        except (TypeError, ValueError):
            self.fault(f"no time: {numbers}")
            return None
        return (whole.days * 86400 + whole.seconds) * TICKS + int(second * TICKS)


def _pointed(text):
    return text.strip().replace("D", "e").replace("d", "e")


@functools.lru_cache(None)
def _columns(layout):
    """Letter, begin, end and pattern of each field: "A1 X2 3(I6)" is A1,2X,3I6 of the documents."""
    layout = re.sub(r"(\d+)\((.*?)\)", lambda m: " ".join([m[2]] * int(m[1])), layout)
    found, at = [], 0
    for field in layout.split():
        letter, width, digits = re.fullmatch(r"([AXIFD])(\d+)(?:\.(\d+))?", field).groups()
        pattern = {
            "A": ".*", "X": " *",
            "I": rf"\d{{{digits}}}" if digits else r" *-?\d+",
            "F": rf" *-?\d*\.\d{{{digits}}}",
            "D": rf" *-?\d?\.\d{{{digits}}}[DEde][+-]\d\d"}[letter]
        found.append((letter, at, at + int(width), re.compile(pattern)))
        at += int(width)
    return found


_TIME = "5(I6) F13.7 X5 A3 X9"
COMMON = {
    "RINEX VERSION / TYPE": "F9.2 X11 A20 A20", "PGM / RUN BY / DATE": "A20 A20 A20",
    "COMMENT": "A60", "LEAP SECONDS": "4(I6) A3 X33", "END OF HEADER": "X60",
}
OF_VERSION_4 = {"DOI": "A60", "LICENSE OF USE": "A60", "STATION INFORMATION": "A60",
                "MERGED FILE": "I9 X51"}
OF_OBSERVATIONS = {
    "MARKER NAME": "A60", "MARKER NUMBER": "A20 X40", "MARKER TYPE": "A20 X40",
    "OBSERVER / AGENCY": "A20 A40", "REC # / TYPE / VERS": "A20 A20 A20",
    "ANT # / TYPE": "A20 A20 X20", "APPROX POSITION XYZ": "3(F14.4) X18",
    "ANTENNA: DELTA H/E/N": "3(F14.4) X18", "ANTENNA: DELTA X/Y/Z": "3(F14.4) X18",
    "SYS / # / OBS TYPES": "A1 X2 I3 13(X1 A3) X2", "SIGNAL STRENGTH UNIT": "A20 X40",
    "INTERVAL": "F10.3 X50", "TIME OF FIRST OBS": _TIME, "TIME OF LAST OBS": _TIME,
    "RCV CLOCK OFFS APPL": "I6 X54", "SYS / SCALE FACTOR": "A1 X1 I4 X2 I2 12(X1 A3) X2",
    "SYS / PHASE SHIFT": "A1 X1 A3 X1 F8.5 X2 I2.2 10(X1 A3) X2",
    "GLONASS SLOT / FRQ #": "I3 X1 8(A1 I2.2 X1 I2 X1)",
    "GLONASS COD/PHS/BIS": "4(X1 A3 X1 F8.3) X8",
    "# OF SATELLITES": "I6 X54", "PRN / # OF OBS": "X3 A1 I2.2 9(I6)",
}
OF_NAVIGATION = {
    "IONOSPHERIC CORR": "A4 X1 4(D12.4) X1 A1 X1 I2 X2",
    "TIME SYSTEM CORR": "A4 X1 D17.10 D16.9 I7 I5 X1 A5 X1 I2 X1",
}
SEVERAL = {"COMMENT", "SYS / # / OBS TYPES", "SYS / SCALE FACTOR", "SYS / PHASE SHIFT",
           "GLONASS SLOT / FRQ #", "PRN / # OF OBS", "IONOSPHERIC CORR", "TIME SYSTEM CORR",
           "STATION INFORMATION", "DOI", "LICENSE OF USE"}


class Header:
    """`records`: of each label the list of its lines' fields. `lines`: the first line of each."""

    def __init__(self, source, kind):
        self.source, self.records, self.lines = source, {}, {}
        self.version = "?"
        while (label := self._read_line(kind)) != "END OF HEADER":
            if source.at == 1 and label != "RINEX VERSION / TYPE":
                source.fault("does not begin with RINEX VERSION / TYPE")

    def _read_line(self, kind):
        line = self.source.take()
        label = line[60:].rstrip()
        if len(line) > 80:
            self.source.fault(f"{len(line)} columns in a header")
        layouts = COMMON | (OF_OBSERVATIONS if kind == "O" else OF_NAVIGATION)
        if self.version.startswith("4"):
            layouts = layouts | OF_VERSION_4
        if label not in layouts:
            self.source.fault(f"no label of this file in column 61: {line[60:]!r}")
            return label
        if label in self.records and label not in SEVERAL:
            self.source.fault(f"{label} again")
        fields = self.source.fields(line[:60], layouts[label])
        self.records.setdefault(label, []).append(fields)
        self.lines.setdefault(label, self.source.at)
        if label == "RINEX VERSION / TYPE":
            self._judge_version(fields, kind)
        elif label == "PGM / RUN BY / DATE" and not (
                fields[0] and re.fullmatch(r"\d{8} \d{6} [A-Z]{3,4}", fields[2])):
            self.source.fault(f"no program or date: {fields}")
        return label

    def _judge_version(self, fields, kind):
        self.version, file_type, self.system = str(fields[0]), fields[1], fields[2][:1]
        if self.version not in VERSIONS or file_type[:1] != kind or self.system not in "GRECJISM":
            self.source.fault(f"not a version, type and system: {fields}")

    def fault(self, label, reason):
        self.source.fault(f"{label}: {reason}", self.lines.get(label, self.source.at))

    def need(self, *labels):
        for label in labels:
            if label not in self.records:
                self.fault(label, "is not there")

    def first(self, label):
        """The fields of the only line, or None."""
        return self.records[label][0] if label in self.records else None


NAME = re.compile(r"([A-Z0-9]{4}\d\d[A-Z]{3})_([RSU])_(\d{4})(\d{3})(\d\d)(\d\d)_(\d\d)([MHDYU])"
                  r"(?:_(\d\d)([CZSMHDU]))?_([GREJCISM][ON])\.rnx(\.gz)?")
_SECONDS = {"C": Decimal("0.01"), "Z": 1, "S": 1, "M": 60, "H": 3600, "D": 86400, "Y": 31622400}


def name_of(name):
    """Station, source, start [100 ns], period and interval [s], None unspecified, and type, of a
    long name; None when it is none."""
    match = NAME.fullmatch(name)
    if not match or (match[9] is None) != (match[11][1] == "N"):
        return None
    start = datetime.strptime("".join(match.group(3, 4, 5, 6)), "%Y%j%H%M") - GPS_EPOCH
    period = None if match[8] == "U" else int(match[7]) * _SECONDS[match[8]]
    interval = None
    if match[9] and match[10] in "CZ":  # of hertz, the former by the hundred
        interval = 1 / (Decimal(match[9]) / _SECONDS[match[10]])
    elif match[9] and match[10] != "U":
        interval = int(match[9]) * _SECONDS[match[10]]
    return (match[1], match[2], (start.days * 86400 + start.seconds) * TICKS, period, interval,
            match[11])
