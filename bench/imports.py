#!/usr/bin/env python3
"""Megabytes per second and core: `korventally import` beside wc -l, awk and Python.

Usage: imports.py ENGINE [RECEPTORS]
Writes a year of hours of two groups as a dispersion model prints them (250 receptors unless told
otherwise), lets each read it in turns, and shows the best of nine runs. awk and Python do what the
awk script of one's own did: a line per hour of one group, the values with their exponent.
"""
import datetime
import os
import pathlib
import random
import sys
import tempfile

from formats import seconds

RUNS = 9
AWK = """!/^\\*/ { if ($9 != hour) { printf "\\n%s", $9; hour = $9 } printf " %sE-06", $3 }"""
PYTHON = """
import sys
hour = None
with open(sys.argv[1]) as rows, open(sys.argv[2], "w") as out:
    for row in rows:
        if row[0] == "*":
            continue
        fields = row.split()
        if fields[8] != hour:
            hour = fields[8]
            out.write("\\n" + hour)
        out.write(" " + fields[2] + "E-06")
"""


def write_group(file, group, receptors):
    """A year of rows; values over eight decades, an hour in a hundred zero everywhere."""
    source = random.Random(group)
    places = [" %13.5f %13.5f " % (100 * (i % 50), 100 * (i // 50)) for i in range(receptors)]
    values = ["%13.5f" % (1000 * 10 ** source.uniform(-8, 0)) for _ in range(99991)]
    next_value = 0
    with open(file, "w", encoding="ascii", newline="") as out:
        out.write("*        X             Y      AVERAGE CONC    ZELEV    ZHILL    ZFLAG    AVE     "
                  "GRP       DATE     NET ID\n")
        for hour in range(8760):
            date = datetime.date(2010, 1, 1) + datetime.timedelta(days=hour // 24)
            tail = " %8.2f %8.2f %8.2f    1-HR  %-8s  %s%02d  GRID    \n" % (
                0, 0, 0, group, date.strftime("%y%m%d"), hour % 24 + 1)
            rows = []
            for place in places:
                next_value = (next_value + 1) % len(values)
                rows.append(place + ("%13.5f" % 0 if hour % 100 == 7 else values[next_value]) + tail)
            out.write("".join(rows))


def main():
    engine = sys.argv[1]
    receptors = int(sys.argv[2]) if len(sys.argv) > 2 else 250
    with tempfile.TemporaryDirectory(prefix="korventally_imports") as temporary:
        folder = pathlib.Path(temporary)
        files = [str(folder / (group + ".pst")) for group in ("ALL", "FACILITY")]
        for file in files:
            write_group(file, pathlib.Path(file).stem, receptors)
        (folder / "one.py").write_text(PYTHON, encoding="ascii")
        commands = [
            ("wc -l", files, ["wc", "-l"] + files),
            ("korventally import", files, [engine, "import", "--out", str(folder / "out")] + files),
            ("awk", files[:1], ["awk", AWK, files[0]]),
            ("Python", files[:1], [sys.executable, str(folder / "one.py"), files[0], os.devnull]),
        ]
        best = {name: float("inf") for name, _, _ in commands}
        for run in range(RUNS):
            for name, _, command in commands:
                if run < 2 or name in ("wc -l", "korventally import"):
                    best[name] = min(best[name], seconds(command))
        print("%-20s %8s %10s %8s" % ("", "MB", "MB/s", "of wc -l"))
        counting = 0
        for name, read, _ in commands:
            megabytes = sum(os.path.getsize(file) for file in read) / 1e6
            speed = megabytes / best[name]
            counting = counting or speed
            print("%-20s %8.0f %10.0f %8.3f" % (name, megabytes, speed, speed / counting))


if __name__ == "__main__":
    main()
