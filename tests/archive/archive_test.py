"""The examples for archives: what tasks make together is what one run makes, whatever ends them,
and files that fail are named. Commands are those of docs/archives.md."""
import csv
import gzip
import hashlib
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

Root = Path(__file__).resolve().parents[2]
Examples = Root / "examples/archive"
Tool = os.environ["NAVFRAME_TOOL"]
Kinds = ["--kinds", "GGA,GSV,OBSERVATIONS"]

# Stands in for navframe: the first one to decode a file of $HELD tells its process and waits until
# that is allowed to go on. Behind $CHANGED it writes to the file.
Holding = """#!/bin/bash
for file; do :; done
mark=$MARKS/${file##*/}
if grep -qxF -- "$file" <<<"$HELD" && mkdir "$mark.reached" 2>/dev/null; then
  touch "$mark.held"; echo $$ >"$mark.new"; mv "$mark.new" "$mark.pid"
  while [[ -e $mark.held ]]; do sleep 0.05; done
fi
[[ $file == "$CHANGED" ]] && { "$NAVFRAME_TOOL" "$@"; echo >>"$file"; exit; }
exec "$NAVFRAME_TOOL" "$@"
"""


def Missing(*programs):
    path = os.environ["PATH"] + ":/usr/sbin"
    return [program for program in programs if not shutil.which(program, path=path)]


def Wait(what, condition, seconds=60):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain: {what}")
        time.sleep(0.05)


def HasEnded(process):
    try:
        return re.search(r"^State:\s*[ZX]", Path(f"/proc/{process}/status").read_text(), re.M)
    except OSError:
        return True


def Hashes(folder):
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in Path(folder).rglob("*") if path.is_file()}


def Documented(heading):
    """The commands of a section, on which the tests insist."""
    text = (Root / "docs/archives.md").read_text()
    section = text.split(f"\n## {heading}\n")[1].split("\n## ")[0]
    return re.findall(r"<!-- Commands that a test runs. -->\n```sh\n(.*?)```", section, re.S)


class Archive(unittest.TestCase):
    """18 files of three stations, whose names are in another order than their times."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.place = Path(temporary.name)
        for name in ("examples", "scripts"):
            (self.place / name).symlink_to(Root / name)
        self.folder, self.work = self.place / "archive", self.place / "work"
        lines = (Root / "samples/drive.nmea").read_bytes().splitlines(keepends=True)
        begins = [at for at, line in enumerate(lines) if line[3:6] == b"RMC"][::6] + [len(lines)]
        sample = (Root / "samples/mixed.bin").read_bytes()
        self.files = {f"ABCD/2026/ABCD_{90 - at}.nmea": b"".join(lines[begin:end])
                      for at, (begin, end) in enumerate(zip(begins, begins[1:]))}
        self.files |= {f"EFGH/EFGH00CHE_{at}, odd 'name'.ubx": sample * at for at in range(1, 6)}
        self.files |= {f"WXYZ/wxyz.{at}.gz": gzip.compress(sample * at) for at in (20, 7, 1)}
        for name, content in self.files.items():
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / name).write_bytes(content)
        (self.place / "holding").write_text(Holding)
        (self.place / "holding").chmod(0o755)
        self.marks = self.place / "marks"
        self.marks.mkdir()
        self.environment = {**os.environ, "NAVFRAME": Tool, "MARKS": str(self.marks),
                            "PATH": "/usr/bin:" + os.environ["PATH"]}

    def Hold(self, *names, **more):
        """What runs from here on stops at these files, the first time."""
        held = "\n".join(str(self.folder / name) for name in names)
        self.environment |= {"NAVFRAME": str(self.place / "holding"), "HELD": held, **more}

    def Mark(self, name, end):
        return self.marks / (Path(name).name + end)

    def Held(self, name):
        """The process that stopped at a file."""
        Wait(f"a task at {name}", self.Mark(name, ".pid").exists)
        return int(self.Mark(name, ".pid").read_text())

    def Start(self, *command, **options):
        process = subprocess.Popen(command, cwd=self.place, env=self.environment, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
        self.addCleanup(lambda: (process.kill(), process.communicate()))
        return process

    def Run(self, *command, **options):
        process = self.Start(*command, **options)
        out, err = process.communicate(timeout=120)
        return process.returncode, out, err

    def Shell(self, commands):
        status, out, err = self.Run("bash", "-euo", "pipefail", "-c", commands)
        self.assertEqual(status, 0, commands + out + err)
        return out

    def MakeTasks(self, count, *command, names=None):
        names = self.files if names is None else names
        with tempfile.TemporaryFile() as file:
            file.write(b"".join(os.fsencode(self.folder / name) + b"\n" for name in names))
            file.seek(0)
            status, out, err = self.Run(Examples / "make-tasks", self.work, str(count), *command,
                                        stdin=file)
        self.assertEqual((status, err), (0, ""))
        return [json.loads((self.work / "tasks" / str(number)).read_text())["files"]
                for number in range(1, int(out) + 1)]

    def Task(self, number):
        return self.Run(Examples / "run-task", self.work, str(number))

    def Merge(self, *options):
        return self.Run(Examples / "merge", self.work, *options)

    def SingleRun(self, without=()):
        """The tables by one navframe a station, of its files by time, less the column source."""
        single = {}
        for station in ("ABCD", "EFGH00CHE", "wxyz"):
            names = [name for name in self.files if Path(name).name.startswith(station) and
                     name not in without]  # as they were made: by time
            self.assertGreater(len(names), 1)
            if station == "wxyz":
                names.sort()  # all of one time
            tables = self.place / "single"
            subprocess.run([Tool, "decode", "--format", "csv", *Kinds, "-o", tables,
                            *names], cwd=self.folder, check=True)
            for table in tables.iterdir():
                rows = re.sub(rb'(?m)^(?:"[^"]*"|[^",]*),', b"", table.read_bytes())
                single[f"{station}/{table.name}"] = hashlib.sha256(rows).hexdigest()
            shutil.rmtree(tables)
        return single

    def CheckMerged(self):
        self.assertEqual(Hashes(self.work / "merged"), self.SingleRun())
        self.assertEqual(list((self.work / "parts").iterdir()), [])


class Tasks(Archive):
    def test_ByBytes(self):
        tasks = self.MakeTasks(7, "info", names=[*self.files, *self.files])
        sizes = [sum(file["stamp"][0] for file in task) for task in tasks]
        self.assertEqual(sorted(file["path"] for task in tasks for file in task),
                         sorted(str(self.folder / name) for name in self.files))
        largest = max(map(len, self.files.values()))
        self.assertLessEqual(max(sizes), sum(sizes) / 7 + largest)
        self.assertEqual(len(self.MakeTasks(100, "info")), len(self.files))  # none is empty

    def test_AsDocumented(self):
        for commands in Documented("Tasks"):
            self.Shell(commands)
        self.assertTrue((self.work / "merged/EFGH00CHE/OBSERVATIONS.csv").exists())

    def test_InfoAndRinex(self):
        self.MakeTasks(2, "info")
        self.assertEqual([self.Task(number) for number in (1, 2)], [(0, "", "")] * 2)
        self.assertEqual(self.Merge()[0], 0)
        single = subprocess.run([Tool, "info", "--json", "--recursive", self.folder], check=True,
                                stdout=subprocess.PIPE).stdout
        with (self.work / "merged/info.csv").open(newline="") as file:
            rows = list(csv.DictReader(file))
        found = {one["source"]: one for one in json.loads(single)["files"]}
        self.assertEqual(sorted(found), sorted(row["file"] for row in rows))
        for row in rows:
            one = found[row["file"]]
            self.assertEqual((row["size_bytes"], row["first_utc"], row["latitude_deg"]),
                             (str(one["size_bytes"]), one["time"]["first_utc"],
                              str(one["position"]["mean"]["latitude_deg"])))
        self.assertEqual([row["first_utc"] for row in rows if row["station"] == "ABCD"],
                         sorted(one["time"]["first_utc"] for name, one in found.items()
                                if "ABCD" in name))
        self.MakeTasks(1, "rinex", "--station-id", "ubx", names=["EFGH/" + name for name in
                                                                 os.listdir(self.folder / "EFGH")])
        self.assertEqual(self.Task(1)[0], 0)
        self.assertEqual(len(list((self.work / "done").rglob("rinex.obs"))), 5)
        self.assertEqual(self.Merge()[0], 0)

    def test_BadFiles(self):
        """Each of them fails by name, what shares a task with it does not."""
        names = list(self.files)
        vanished, gone, changed, growing, damaged, empty, closed = bad = names[2:9]
        (self.folder / gone).unlink()
        (self.folder / damaged).write_bytes(gzip.compress(b"$GPGGA" * 9999)[:-9])
        (self.folder / empty).write_bytes(b"")
        self.MakeTasks(2, "decode", *Kinds)
        (self.folder / vanished).unlink()
        with (self.folder / changed).open("ab") as file:
            file.write(b"\n")
        (self.folder / closed).chmod(0)
        self.Hold(CHANGED=str(self.folder / growing))
        lesser = []
        if os.geteuid() == 0:  # who may read everything
            lesser = ["setpriv", "--bounding-set=-all", "--inh-caps=-all"]
            if Missing("setpriv") or self.Run(*lesser, "true")[0] != 0:
                lesser = []
                (self.folder / closed).unlink()
        results = [self.Run(*lesser, Examples / "run-task", self.work, str(number))
                   for number in (1, 2)]
        said = "".join(result[2] for result in results)
        for name, why in ((vanished, "No such file"), (gone, "No such file"), (changed, "changed"),
                          (growing, "changed"), (damaged, "status 1"), (empty, "status 3"),
                          (closed, "status 1" if lesser else "")):
            self.assertRegex(said, f"(?m)^run-task: task [12]: {re.escape(str(self.folder / name))}"
                                   f": .*{why}")
        self.assertEqual(max(result[0] for result in results), 1)
        told = {f"merge: missing: {self.folder / name}" for name in bad}
        status, _, err = self.Merge()
        self.assertEqual((status, set(err.splitlines()[:-1])), (1, told))
        self.assertFalse((self.work / "merged").exists())
        self.assertEqual(self.Merge("--partial")[0], 0)
        (self.work / "merged/missing.txt").unlink()
        self.assertEqual(Hashes(self.work / "merged"), self.SingleRun(without=bad))

        # Once they are well, and the tasks made anew, only they are done.
        before = {path: path.stat().st_ctime_ns for path in (self.work / "done").glob("*/*")}
        for name in bad:
            (self.folder / name).unlink(missing_ok=True)
            (self.folder / name).write_bytes(self.files[name])
        self.environment["NAVFRAME"] = Tool
        self.MakeTasks(3, "decode", *Kinds)
        self.assertEqual([self.Task(number)[0] for number in (1, 2, 3)], [0] * 3)
        self.assertEqual(self.Merge()[0], 0)
        self.CheckMerged()
        for path, changed in before.items():
            self.assertEqual(path.stat().st_ctime_ns, changed)

    def test_TwiceAtOnce(self):
        self.MakeTasks(1, "decode", *Kinds)
        name = list(self.files)[3]
        self.Hold(name)
        first = self.Start(Examples / "run-task", self.work, "1")
        self.Held(name)
        self.assertEqual(self.Task(1), (0, "", ""))
        self.Mark(name, ".held").unlink()
        self.assertEqual((*first.communicate(), first.returncode), ("", "", 0))
        self.assertEqual(self.Merge()[0], 0)
        self.CheckMerged()

    def test_Ended(self):
        """By a signal to it, or to navframe; and one that always ends fails at last."""
        self.MakeTasks(1, "decode", *Kinds)
        name = list(self.files)[3]
        self.Hold(name)
        task = self.Start(Examples / "run-task", self.work, "1")
        held = self.Held(name)
        task.terminate()
        self.assertEqual(task.wait(), 75)
        Wait("the end of navframe", lambda: HasEnded(held))
        self.assertEqual(list((self.work / "parts").iterdir()), [])
        (self.place / "holding").write_text('#!/bin/sh\ncase "$*" in *wxyz.7*) kill -9 $$;; esac\n'
                                            'exec "$NAVFRAME_TOOL" "$@"\n')
        self.assertEqual(self.Task(1)[0], 75)
        self.environment["SLURM_RESTART_COUNT"] = "3"
        status, _, err = self.Task(1)
        self.assertEqual((status, err.count("\n")), (1, 1))
        self.assertIn("wxyz.7.gz: navframe ended with status -9", err)

    def test_FullDisk(self):
        """Of a folder that has room for a part of the outputs, until more is made."""
        small = "mkdir -p work && mount -t tmpfs -o size=10000k tmpfs work"
        if self.Run("unshare", "-rm", "sh", "-c", small)[0] != 0:
            self.skipTest("no small disk: unshare and mount are not allowed here")
        status, out, err = self.Run("unshare", "-rm", "bash", "-c", f"""
            run() {{ for task in 1 2 3; do examples/archive/run-task work $task; echo $?; done; }}
            {small}; head -c 9600k /dev/zero >work/other
            find archive -type f | examples/archive/make-tasks work 3 decode {' '.join(Kinds)}
            run; examples/archive/merge work; echo $?; ls work/parts work
            rm work/other
            run; examples/archive/merge work; echo $?
            ls work/parts; cp -r work/merged whole""")
        self.assertIn("No space left on device", err)
        self.assertRegex(err, r"run-task: task [123]: \S+/wxyz.20.gz: ")
        self.assertRegex(err, r"merge: missing: \S+/wxyz.20.gz\n")
        self.assertRegex(out, "^3\n1\n[01]\n[01]\n1\nwork:\ndone\nother\nparts\ntasks\n\nwork/parts:\n"
                              "(0\n){4}$")
        self.assertLess(err.count("merge: missing"), len(self.files))
        self.assertEqual((status, Hashes(self.place / "whole")), (0, self.SingleRun()))


@unittest.skipIf(Missing("parallel"), "without GNU parallel (package parallel)")
class Parallel(Archive):
    def test_Killed(self):
        whole, others = Documented("GNU parallel")
        list_, run = whole.strip().split("\n")
        self.Shell(list_)
        name = list(self.files)[3]
        self.Hold(name)
        first = self.Start(*run.split(), "--jobs", "2", start_new_session=True)
        held = self.Held(name)
        Wait("half of the tasks", lambda: (self.work / "tasks/log").read_text().count("\n") > 8)
        os.killpg(first.pid, signal.SIGKILL)
        os.kill(held, signal.SIGKILL)
        ended = (self.work / "tasks/log").read_text().count("\n")
        self.assertFalse((self.work / "merged").exists())
        self.Shell(run)
        log = (self.work / "tasks/log").read_text().splitlines()[1:]
        self.assertEqual(len({line.split("\t")[0] for line in log}), 16)
        self.assertLess(ended, len(log))
        self.CheckMerged()
        # Over ssh, which this test has not: what stands in for it drops the name of the node, and
        # names the user's shell as a node's login does; the test's own caller may name none.
        shutil.rmtree(self.work)
        (self.place / "ssh").write_text('#!/bin/sh\necho $1 >>"$MARKS/nodes"\nshift 2\n'
                                        'SHELL=/bin/sh exec /bin/sh -c "$*"\n')
        (self.place / "ssh").chmod(0o755)
        self.environment["PARALLEL_SSH"] = str(self.place / "ssh")
        self.Shell(list_ + "\n" + others)
        self.assertEqual(set((self.marks / "nodes").read_text().split()), {"node1", "node2"})
        self.CheckMerged()


class Dask(Archive):
    def setUp(self):
        super().setUp()
        missing = self.Run("python3", "-c", "import dask.dataframe, distributed, navframe")[2]
        if missing:
            self.skipTest("without python3-dask and python3-distributed, or the Python package: " +
                          missing.splitlines()[-1])

    def test_SameTable(self):
        """As the tool has it, and without what fails."""
        (commands,) = Documented("Dask")
        whole, partial = commands.strip().split("\n")
        self.assertEqual(self.Shell(whole), "18 files by 4 processes\n")
        self.Compare(self.place / "fixes.csv")
        gone = list(self.files)[-1]
        (self.folder / gone).write_bytes(b"\x1f\x8b\x08")
        for command, result in ((whole, 1), (partial, 0)):
            command = command.replace("--processes 4", "").replace("fixes.csv",
                                                                   "less.csv --processes 1")
            status, _, err = self.Run("bash", "-c", command)
            self.assertEqual(status, result, err)
            self.assertRegex(err, f"(?m)^frame_dask: archive/{re.escape(gone)}: ")
            self.assertEqual((self.place / "less.csv").exists(), result == 0)
        self.Compare(self.place / "less.csv", gone)

    def Compare(self, table, *without):
        names = sorted(set(self.files) - set(without))
        single = self.place / "single.csv"
        subprocess.run([Tool, "decode", "--kinds", "GGA", "-o", single, "--format", "csv", *names],
                       cwd=self.folder, check=True)
        rows = [list(csv.DictReader(path.read_text().splitlines())) for path in (single, table)]
        wanted, found = [
            [(row[file].removeprefix("archive/"), row["time"][:23],
              float(row[f"latitude{degrees}"]), float(row[f"longitude{degrees}"])) for row in some]
            for some, file, degrees in zip(rows, ("source", "file"), (" [deg]", ""))]
        self.assertGreater(len(wanted), 80)
        self.assertEqual(found, wanted)


@unittest.skipIf(Missing("sbatch", "slurmd", "slurmctld", "munged"),
                 "without Slurm (packages slurm-wlm and munge)")
class Slurm(Archive):
    def test_Requeued(self):
        """One task is requeued, navframe is killed in another: all is there once, and joined."""
        begin, submit, end = Documented("Slurm")
        try:
            self.Shell(begin)
            self.environment["SLURM_CONF"] = str(self.place / "trial/slurm.conf")
            self.CheckLoopback()
            self.CheckRequeued(submit)
        finally:  # whatever happens, also when the test is interrupted
            daemons = [int(pid.read_text()) for pid in (self.place / "trial").glob("*.pid")]
            self.Shell(end)
        self.assertEqual((len(daemons), [pid for pid in daemons if not HasEnded(pid)]), (4, []))

    def CheckRequeued(self, submit):
        names = ["EFGH/EFGH00CHE_5, odd 'name'.ubx", "ABCD/2026/ABCD_85.nmea"]
        self.Hold(*names)
        merge = self.Shell(submit).split()[-1]
        tasks = {name: path.name for path in (self.work / "tasks").iterdir() for name in names
                 if name in path.read_text()}
        array = str(int(merge) - 1)
        self.Held(names[0])
        self.Shell(f"scontrol requeue {array}_{tasks[names[0]]}")
        os.kill(self.Held(names[1]), signal.SIGKILL)
        Wait("the last job", lambda: not self.Shell("squeue --noheader"), 120)
        self.CheckMerged()
        jobs = self.Shell(f"scontrol show job {array}").split("\n\n")
        self.assertEqual({job for name in names for job in jobs
                          if f"ArrayTaskId={tasks[name]} " in job and "Restarts=1 " in job},
                         {job for job in jobs if "Restarts=0" not in job and job})

    def CheckLoopback(self):
        """Nobody else can reach the daemons."""
        sockets = {os.readlink(file) for pid in (self.place / "trial").glob("*.pid")
                   for file in Path("/proc", pid.read_text().strip(), "fd").iterdir()}
        rows = [row.split() for table in ("tcp", "tcp6")
                for row in Path("/proc/net", table).read_text().splitlines()[1:]]
        listening = [row[1] for row in rows if row[3] == "0A" and f"socket:[{row[9]}]" in sockets]
        self.assertEqual(len(listening), 3)
        for address in listening:
            self.assertRegex(address, "^0100007F:")


if __name__ == "__main__":
    unittest.main()
