"""Observations of a stream as the cells of a RINEX file, and why those of convbin (package rtklib)
differ."""

import struct

import convbin
import satellites
import streams

MEMBERS = {"C": "pseudorange", "L": "carrierPhase", "D": "doppler", "S": "cn0"}
ROUNDING = 0.5e-3 + 1e-6  # of three decimals, and of the numbers before
LONGEST_LOCK = {4: 524288, 5: 524288, 6: 67108864, 7: 67108864}  # ms, by the kind of MSM
LONGEST_OTHER_LOCK = {streams.UBX: 64500, streams.RTCM3: 937000}

# Where the two differ and why. Each has a test in this file, of that name.
CAUSES = {
    "float Doppler": "keeps Doppler in 32 bits: equal once ours is put into them, too",
    "BeiDou B1C and B2a": "does not know MSM signals 23 and 31 of RTCM 10403.3 (5P and 1P)",
    "channel": "knows channels of GLONASS from ephemerides alone where MSM4 and MSM6 do not tell "
               "them: ours also from other observations of the stream",
    "first phase": "calls lock lost in the first epoch, and with the first phase that follows a "
                   "lock time of 0: ours is unknown then, unless another message told the phase",
    "half cycle as loss": "calls lock lost when half a cycle is subtracted or no more, of UBX: "
                          "that is halfCycleSubtracted of ours, the lock goes on",
    "lock between": "sees no loss as long as lock times do not fall: ours is lost when the lock is "
                    "shorter than the time since the phase before",
}


def epoch_key(seconds):
    return round(seconds * 1e4) % (satellites.WEEK * 10000)


def as_float32(value):
    return struct.unpack("f", struct.pack("f", value))[0]


class Cell:
    """One signal in one epoch."""

    def __init__(self, item, observation, gap):
        self.record, self.observation = item.record, observation
        self.is_msm = item.protocol == streams.RTCM3 and item.message in convbin.MSM
        self.is_ubx = item.protocol == streams.UBX
        self.gap = gap  # ms since the phase before

    def value(self, kind):
        return self.observation[MEMBERS[kind]]

    def lock_digit(self):
        """That of RINEX."""
        return ((self.observation["lossOfLock"] or 0) +
                2 * bool(self.observation["halfCycleAmbiguity"]))

    def is_uncertain(self):
        deviation = self.observation["carrierPhaseDeviation"]
        return self.is_ubx and (deviation is None or deviation > 0.02001)

    def longest_lock(self):
        other = LONGEST_OTHER_LOCK[self.record["protocol"]]
        return LONGEST_LOCK[self.record["message"] % 10] if self.is_msm else other

    def tells_loss_by_lock(self):
        """Whether lossOfLock is what lock time and the time since the phase before say."""
        lost, lock = self.observation["lossOfLock"], self.observation["lockTime"]
        if self.gap is None or self.observation["phaseRange"] is None:
            return lost is None
        return lost == int(lock < min(self.gap, self.longest_lock()))


def cells_of(items):
    """Of each kind of message the cells by epoch, satellite and code."""
    kinds, last_phase = {}, {}
    for item in items:
        kind = convbin.kind_of_item(item)
        epoch = epoch_key(item.record["tow"])
        for observation in item.record["observations"]:
            signal = (satellites.satellite_of(observation), observation["code"])
            history = (*signal, item.protocol, item.message in convbin.MSM)
            gap = (epoch - last_phase[history]) / 10 if history in last_phase else None
            kinds.setdefault(kind, {})[epoch, *signal] = Cell(item, observation, gap)
            if observation["phaseRange"] is not None:
                last_phase[history] = epoch
    return kinds


def cause_of_value(cell, kind, theirs):
    """The name of a cause, or None."""
    mine = cell.value(kind)
    if kind == "D" and mine is not None and abs(as_float32(mine) - theirs) <= ROUNDING:
        return "float Doppler"
    return None


def cause_of_absence(cell, kind):
    observation = cell.observation
    if observation["system"] == 4 and cell.is_msm and observation["signal"] in (23, 31):
        return "BeiDou B1C and B2a"
    if observation["system"] == 2 and cell.is_msm and kind == "L":
        return "channel" if cell.record["message"] in (1084, 1086) else None
    return None


class OtherLocks:
    """The loss of lock as the other tool tells it, followed cell by cell."""

    def __init__(self):
        self.lock, self.half, self.pending = {}, {}, set()

    def digit(self, key, cell, has_phase):
        """That of RINEX. What is lost without a phase is told with the next, but of MSM."""
        signal, observation = key[1:], cell.observation
        lock, half = observation["lockTime"], observation["halfCycleSubtracted"]
        before = self.lock.get(signal, 0)
        slip = lock < before or lock == 0 and (cell.is_ubx or before == 0)
        self.is_half = cell.is_ubx and half != self.half.get(signal, 0) and lock >= before > 0
        if cell.is_ubx:
            slip |= half != self.half.get(signal, 0)
        self.lock[signal], self.half[signal] = lock, half
        self.was_pending = signal in self.pending
        slip |= self.was_pending
        self.pending.discard(signal)
        if slip and cell.is_ubx and not has_phase:
            self.pending.add(signal)
        return (1 if slip else 0) + (2 if observation["halfCycleAmbiguity"] else 0)


def cause_of_lock(cell, mine, theirs, is_first, other):
    """The name of a cause, or None. The half-cycle bits are the same, or there is none."""
    lost = cell.observation["lossOfLock"]
    if mine ^ theirs != 1:
        return None
    if lost is None or is_first and lost == 0:
        return "first phase"
    if lost == 0:
        return "half cycle as loss" if other.is_half else \
            "uncertain phase" if other.was_pending else None
    return "lock between" if cell.observation["lockTime"] < cell.gap else None


def locks(cells, theirs):
    """Of each cell with a digit of theirs: key, cell, what is theirs, what that is by the way that
    they count, and the cause of a difference to ours, or None."""
    other = OtherLocks()
    first_epoch = min((key[0] for key in theirs), default=None)
    for key, cell in cells.items():  # it reads a file twice, and begins with the locks at its end
        if cell.is_ubx:
            other.digit(key, cell, has_phase=True)
    for key, cell in cells.items():
        found = theirs.get((key[0], key[1], "L" + key[2]))
        predicted = other.digit(key, cell, found is not None)
        if found is None:
            continue
        if key[0] == first_epoch:
            predicted |= 1
        yield key, cell, found, predicted, cause_of_lock(
            cell, cell.lock_digit(), found[1], key[0] == first_epoch, other)
