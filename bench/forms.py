"""The engine beside wc -l, awk and Python, for each form of number and each separator."""
import pathlib
import random

import engine
from measure import busy, figure, in_turns

HOURS, RECEPTORS, ROWS, RUNS = 8760, 1000, 300, 5
MONTHS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)
# awk and Python are so slow that a part of the file has to do.
SHORT_HOURS, SHORT_RUNS = 360, 2


def fortran(decimals):
    """The E of Fortran, which has its digits behind "0."."""
    def text(value):
        mantissa, exponent = ("%.*E" % (decimals - 1, value)).split("E")
        power = int(exponent) + 1 if value else 0
        return "0.%sE%+03d" % (mantissa.replace(".", ""), power)
    return text


# Values as plumes spread them: over eight decades, a tenth of them zero (upwind).
FORMS = [
    ("`1.23456E-05`", 1e-4, 11, lambda v: "%.5E" % v),
    ("E12.5 (`0.12345E-04`)", 1e-4, 12, fortran(5)),
    ("E13.6 (`0.123456E-04`)", 1e-4, 13, fortran(6)),
    ("F13.5 (`12.34567`)", 1e3, 13, lambda v: "%.5f" % v),
    ("F13.5 with E-06", 1e3, 17, lambda v: "%.5fE-06" % v),  # what an import writes
    ("`0.0000123456`", 1e-4, 12, lambda v: "%.10f" % v),
    ("`%.6G` (no two alike)", 1e3, 12, lambda v: "%.6G" % v),
]
# In columns is one blank and the value at the right edge of its width, as Fortran writes it.
SEPARATORS = [
    ("one blank", " "), ("two blanks", "  "), ("three blanks", "   "), ("columns", None),
    ("comma", ","), ("comma, blank", ", "), ("tab", "\t"),
]


def write_control(folder, hours, files, receptors):
    """The control file of the first group and the facility, and the receptors' file."""
    (folder / "receptors.dat").write_text(
        "".join("%d 0 R%d\n" % (i, i + 1) for i in range(receptors)), encoding="ascii")
    values = [folder / "out.lst", "SO2", "2009,01,01,00", hours, 2, files[0], "ALL_SOURCES",
              files[1], "FACILITY", "1000000.0,0.0", "0", 24, "1E+15", 1, folder / "receptors.dat",
              "1", "5.0", "2", "F", "0"]
    control = folder / "korventally.inp"
    control.write_text("".join(" " * 29 + ":%s\r\n" % v for v in values), encoding="ascii")
    return control


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
            hours = ((month, day, hour) for month, days in enumerate(MONTHS, 1)
                     for day in range(1, days + 1) for hour in range(24))
            for number, hour in enumerate(hours):
                out.write("2009 %2d %2d %2d%s\n" % (*hour, rows[number % ROWS]))
    return write_control(folder, HOURS, files, RECEPTORS), files


def speeds_of_scripts(folder, file):
    """Megabytes per second of awk and Python, on the beginning of a file."""
    short = folder / "short.con"
    with open(file, encoding="ascii") as lines:
        short.write_text("".join(next(lines) for _ in range(SHORT_HOURS)), encoding="ascii")
    used = in_turns(SHORT_RUNS, engine.scripts(short))
    return [short.stat().st_size / 1e6 / busy(used[name]) for name in ("awk", "Python")]


def measure_form(bench, form, scripts):
    """For each separator the speeds of wc and of the engine; with blanks also those of scripts."""
    _, scale, width, text = form
    rows = []
    for name, separator in SEPARATORS:
        with bench.scratch() as temporary:
            folder = pathlib.Path(temporary)
            control, files = write_study(folder, scale, width, text, separator)
            megabytes = sum(file.stat().st_size for file in files) / 1e6
            used = in_turns(RUNS, {"wc": ["wc", "-l", *files], "engine": [bench.engine, control]})
            rows.append([name, *(megabytes / busy(used[of]) for of in ("wc", "engine"))])
            if separator == " ":
                scripts += speeds_of_scripts(folder, files[0])
    return rows


def measure(bench):
    page = bench.page
    page.heading("The engine, for each form of number")
    page.say("A year of hours, 1,000 receptors, 2 groups, in the system's cache. MB/s per core, medians "
             "of %d runs in turns. The first table has one blank between values; awk and Python "
             "compute the highest average of the first %d hours." % (RUNS, SHORT_HOURS))
    against, table = [], []
    for form in FORMS:
        scripts = []
        rows = measure_form(bench, form, scripts)
        _, wc, own = rows[0]
        table.append([form[0], figure(wc), figure(own), figure(own / wc),
                      *(part for speed in scripts
                        for part in (figure(speed), figure(own / speed)))])
        against.append([form[0], *(figure(of / wc) for _, wc, of in rows)])
    page.table(["Form", "`wc -l`", "the engine", "against `wc -l`", "awk (mawk)", "against it",
                "Python", "against it"], table)
    page.say("The engine against `wc -l` with other separators. \"In columns\" is one blank and the "
             "value at the right edge of its width, as Fortran writes it.")
    page.table(["Form", *(name for name, _ in SEPARATORS)], against)
