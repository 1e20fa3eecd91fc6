#!/usr/bin/env python3
"""One table of many files as a Dask data frame, a file a partition:
  frame_dask.py TABLE OUTPUT.csv [--scheduler ADDRESS] [--processes N] [--partial] <LIST
LIST has the name of a file on each line, TABLE is one of navframe.arrays, as GGA. Without the
address of a cluster it starts processes of its own. Files that fail are named, and then nothing is
written, unless --partial asks for the rest."""

import argparse
import logging
import os
import sys

import dask.dataframe
from distributed import Client, LocalCluster, wait
import navframe


def stamp(path):
    return os.stat(path).st_size, os.stat(path).st_mtime_ns


def partition(path, table):
    """The rows of a file, with its name behind."""
    before = stamp(path)
    frame = navframe.frame(path, table).assign(file=path)
    if stamp(path) != before:
        raise OSError("changed while it was read")
    return frame


def open_frame(client, paths, table, partial=False):
    """The rows stay on the workers that decoded them."""
    futures = client.map(partition, paths, table=table, pure=False)
    wait(futures)
    failed = [one for one in zip(futures, paths) if one[0].status != "finished"]
    for future, path in failed:
        print(f"frame_dask: {path}: {future.exception()}", file=sys.stderr)
    if failed and not partial:
        raise SystemExit(f"frame_dask: {len(failed)} of {len(paths)} files are missing")
    good = [future for future in futures if future.status == "finished"]
    return dask.dataframe.from_delayed(good, meta=navframe.frame(b"", table).assign(file=""))


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("table")
    parser.add_argument("output")
    parser.add_argument("--scheduler")
    parser.add_argument("--processes", type=int, default=os.cpu_count())
    parser.add_argument("--partial", action="store_true")
    chosen = parser.parse_args()
    paths = list(filter(None, os.fsdecode(sys.stdin.buffer.read()).split("\n")))
    own = chosen.scheduler or LocalCluster(
        n_workers=chosen.processes, threads_per_worker=1, host="127.0.0.1",
        dashboard_address="127.0.0.1:0", silence_logs=logging.ERROR)
    with Client(own) as client:
        frame = open_frame(client, paths, chosen.table, chosen.partial)
        part = f"{chosen.output}.part{os.getpid()}"
        frame.to_csv(part, single_file=True, date_format="%Y-%m-%dT%H:%M:%S.%fZ")
        os.replace(part, chosen.output)
        print(f"{frame.npartitions} files by {len(client.nthreads())} processes")


if __name__ == "__main__":
    main()
