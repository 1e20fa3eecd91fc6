"""What Python adds to decoding: python_bench.py DECODE_FILE ROUNDS STREAM...

Each stream is decoded in turns by the library alone (the program decode_file), into arrays, and
record by record, all from memory. Prints the best of all rounds, and ratios as medians with
their range, by processor time: what else the machine does concerns the turns of a round alike. The
kernel has to clear the pages that arrays are written to, which depends on the machine more than on
the program: the second ratio leaves its time out.
"""

import resource
import statistics
import subprocess
import sys
from pathlib import Path

import navframe


def processor_time(work):
    """Of the program, and of the kernel."""
    begin = resource.getrusage(resource.RUSAGE_SELF)
    work()
    end = resource.getrusage(resource.RUSAGE_SELF)
    return end.ru_utime - begin.ru_utime, end.ru_stime - begin.ru_stime


def count(data):
    records = 0
    for _ in navframe.read(data):
        records += 1
    return records


def shown(ratios):
    return f"{statistics.median(ratios):.2f} ({min(ratios):.2f}-{max(ratios):.2f})"


def measure(decode_file, rounds, path):
    data = path.read_bytes()
    megabytes = len(data) / 1e6
    alone, arrays, records = [], [], []
    with subprocess.Popen([decode_file, path], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          text=True) as other:
        for _ in range(rounds + 1):
            other.stdin.write("\n")
            other.stdin.flush()
            took, found = other.stdout.readline().split()
            alone.append(float(took))
            arrays.append(processor_time(lambda: navframe.arrays(data)))
            records.append(processor_time(lambda: count(data)))
        other.stdin.close()
    alone, arrays, records = alone[1:], arrays[1:], records[1:]  # the first ones warm up
    records = list(map(sum, records))
    print(f"| {path.name} | {megabytes / min(alone):.0f} | {megabytes / min(map(sum, arrays)):.0f} "
          f"| {shown([a / sum(b) for a, b in zip(alone, arrays)])} "
          f"| {shown([a / b[0] for a, b in zip(alone, arrays)])} "
          f"| {megabytes / min(records):.0f} | {int(found) / min(records) / 1e6:.2f} "
          f"| {shown([a / b for a, b in zip(alone, records)])} |", flush=True)


def main(decode_file, rounds, *paths):
    print("| stream | library MB/s | arrays MB/s | to the library | without the kernel "
          "| records MB/s | M records/s | to the library |")
    print("| --- | --: | --: | --: | --: | --: | --: | --: |")
    for path in paths:
        measure(decode_file, int(rounds), Path(path))


if __name__ == "__main__":
    main(*sys.argv[1:])
