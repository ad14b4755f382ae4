#!/usr/bin/env python3
"""Megabytes per second and core: the engine beside wc -l, awk and Python on the same study.

Usage: compare.py MAKE_STUDY ENGINE [FOLDER]
Writes a year of hours x 1,000 receptors x 5 groups into FOLDER (about 530 MB; a temporary folder
when none is given), reads it once to warm the cache, then times each program several times and shows
the best. MB/s/core are megabytes per second that a core was busy, the system's share included, so
that other work on the machine matters little. "two at once" keeps two cores busy, as the engine does.
"""
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import time

AWK = ("!/^#/{for(i=5;i<=NF;i++)s[i]+=$i;"
       "if(++n%24==0){for(i in s)if(s[i]>m)m=s[i];delete s}}END{print m/24*1e6}")
PYTHON = """import sys
m, s, n = 0, None, 0
for line in open(sys.argv[1]):
    if line[0] != "#":
        v = [float(x) for x in line.split()[4:]]
        s = [a + b for a, b in zip(s, v)] if s else v
        n += 1
        if n % 24 == 0:
            m, s = max(m, max(s)), None
print(m / 24 * 1e6)
"""


def best_of(times, work):
    """The least seconds of the clock and of the processor, each over all of its processes."""
    clock, processor = [], []
    for _ in range(times):
        before, begin = resource.getrusage(resource.RUSAGE_CHILDREN), time.perf_counter()
        work()
        clock.append(time.perf_counter() - begin)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        processor.append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
    return min(clock), min(processor)


def run(command):
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)


def two_lists(command, files):
    """Two processes at once, each over all the files, so that two cores are busy to the end."""
    running = [subprocess.Popen(command + files, stdout=subprocess.DEVNULL) for _ in range(2)]
    for process in running:
        process.wait()


def main():
    make_study, engine = sys.argv[1:3]
    keep = len(sys.argv) > 3
    folder = pathlib.Path(sys.argv[3] if keep else tempfile.mkdtemp(prefix="korventally_compare"))
    run([make_study, str(folder), "8760", "1000", "5", "24"])
    files = sorted(str(path) for path in folder.glob("*.con"))
    size = sum(os.path.getsize(file) for file in files) / 1e6
    one = os.path.getsize(files[0]) / 1e6
    run(["wc", "-l"] + files)
    awk = shutil.which("mawk") or "awk"
    rows = [
        ("wc -l, one at a time", size, best_of(7, lambda: run(["wc", "-l"] + files))),
        ("wc -l, two at once", 2 * size, best_of(7, lambda: two_lists(["wc", "-l"], files))),
        ("engine, whole run", size,
         best_of(7, lambda: run([engine, str(folder / "korventally.inp")]))),
        (os.path.basename(awk) + ", one file", one, best_of(2, lambda: run([awk, AWK, files[0]]))),
        ("python3, one file", one,
         best_of(2, lambda: run([sys.executable, "-c", PYTHON, files[0]]))),
    ]
    print("%-24s %8s %10s %10s %12s" % ("", "MB", "clock, s", "cores, s", "MB/s/core"))
    for name, megabytes, (clock, processor) in rows:
        print("%-24s %8.0f %10.3f %10.3f %12.0f" % (name, megabytes, clock, processor,
                                                    megabytes / processor))
    if not keep:
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
