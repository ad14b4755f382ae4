#!/usr/bin/env python3
"""Megabytes per second and core: the engine against wc -l, for each form of number and separator.

Usage: formats.py ENGINE [FORM ...]
Writes one study after the other into a temporary folder (2 groups, about 200 MB each), lets the
engine and wc -l read it in turns, and shows the best of seven runs each. MB/s per core are megabytes
per second that a core was busy, the system's share included, so that other work on the machine
matters little. A FORM is the beginning of a first column, such as F13.5.
"""
import os
import pathlib
import random
import resource
import subprocess
import sys
import tempfile

HOURS, RECEPTORS, ROWS, RUNS = 8760, 1000, 300, 7


def fortran(decimals):
    """The E of Fortran, which has its digits behind "0."."""
    def text(value):
        mantissa, exponent = ("%.*E" % (decimals - 1, value)).split("E")
        power = int(exponent) + 1 if value else 0
        return "0.%sE%+03d" % (mantissa.replace(".", ""), power)
    return text


# Values as plumes spread them: over eight decades, a tenth of them zero (upwind).
FORMS = [
    ("1.23456E-05", 1e-4, 11, lambda v: "%.5E" % v),
    ("E12.5", 1e-4, 12, fortran(5)),
    ("E13.6", 1e-4, 13, fortran(6)),
    ("F13.5", 1e3, 13, lambda v: "%.5f" % v),
    ("F13.5 with E-06", 1e3, 17, lambda v: "%.5fE-06" % v),  # what an import writes
    ("0.0000123456", 1e-4, 12, lambda v: "%.10f" % v),
    ("%.6G", 1e3, 12, lambda v: "%.6G" % v),
]
SEPARATORS = [
    ("one blank", " "), ("two blanks", "  "), ("three blanks", "   "), ("columns", None),
    ("comma", ","), ("comma, blank", ", "), ("tab", "\t"),
]


def write_study(folder, scale, width, text, separator):
    """The control file of a study whose values have this form, and its concentration files."""
    source = random.Random(7)
    def field(value):
        return " " + text(value).rjust(width) if separator is None else separator + text(value)
    def value():
        return 0.0 if source.random() < 0.1 else scale * 10 ** source.uniform(-8, 0)
    rows = ["".join(field(value()) for _ in range(RECEPTORS)) for _ in range(ROWS)]
    files = [folder / "all.con", folder / "facility.con"]
    for file in files:
        with open(file, "w", encoding="ascii", newline="") as out:
            hour = 0
            for month, days in enumerate((31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31), 1):
                for day in range(1, days + 1):
                    for clock in range(24):
                        out.write("2009 %2d %2d %2d%s\n" % (month, day, clock, rows[hour % ROWS]))
                        hour += 1
    (folder / "receptors.dat").write_text(
        "".join("%d 0 R%d\n" % (i, i) for i in range(RECEPTORS)), encoding="ascii")
    values = [folder / "out.lst", "SO2", "2009,01,01,00", HOURS, 2, files[0], "ALL_SOURCES",
              files[1], "FACILITY", "1000000.0,0.0", "0", 24, "1E+15", 1, folder / "receptors.dat",
              "1", "5.0", "2", "F", "0"]
    control = folder / "korventally.inp"
    control.write_text("".join(" " * 29 + ":%s\r\n" % v for v in values), encoding="ascii")
    return control, [str(file) for file in files]


def seconds(command):
    """What the processor was busy with this command, the system's share included."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def main():
    engine, chosen = sys.argv[1], tuple(sys.argv[2:])
    print("%-16s %-14s %6s %9s %9s %9s" % ("form", "separator", "MB", "wc -l", "engine", "against"))
    for name, scale, width, text in FORMS:
        if chosen and not name.startswith(chosen):
            continue
        for separator_name, separator in SEPARATORS:
            with tempfile.TemporaryDirectory(prefix="korventally_formats") as temporary:
                folder = pathlib.Path(temporary)
                control, files = write_study(folder, scale, width, text, separator)
                megabytes = sum(os.path.getsize(file) for file in files) / 1e6
                pairs = [(seconds(["wc", "-l"] + files), seconds([engine, str(control)]))
                         for _ in range(RUNS)]
            counting, computing = (megabytes / min(times) for times in zip(*pairs))
            print("%-16s %-14s %6.0f %9.0f %9.0f %9.2f" % (
                name, separator_name, megabytes, counting, computing, computing / counting),
                flush=True)


if __name__ == "__main__":
    main()
