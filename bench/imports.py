"""`korventally import` beside wc -l, awk and Python on a dispersion model's files."""
import datetime
import pathlib
import random
import struct
import sys

from forms import fortran
from measure import awk, busy, figure, in_turns, peak

RECEPTORS, HOURS, RUNS, SLOW_RUNS = 250, 8760, 7, 2
# What a script of one's own does: a line per hour of one group, the values with their exponent.
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
HEAD = ("*        X             Y      AVERAGE CONC    ZELEV    ZHILL    ZFLAG    AVE     "
        "GRP       DATE     NET ID\n")
BLOCKS = 20


def dates(hours):
    """The names that a model gives the hours, YYMMDDHH with hours 01 to 24."""
    for hour in range(hours):
        day = datetime.date(2010, 1, 1) + datetime.timedelta(days=hour // 24)
        yield day.strftime("%y%m%d") + "%02d" % (hour % 24 + 1)


def values(group, receptors):
    """Values over eight decades for some hours, which then come again."""
    source = random.Random(group)
    return [[1000 * 10 ** source.uniform(-8, 0) for _ in range(receptors)] for _ in range(BLOCKS)]


def write_formatted(file, group, receptors, hours, text):
    """An hour in a hundred is zero everywhere."""
    places = [" %13.5f %13.5f " % (100 * (i % 50), 100 * (i // 50)) for i in range(receptors)]
    tail = " %8.2f %8.2f %8.2f    1-HR  %-8s  @DATE@  GRID    \n" % (0, 0, 0, group)
    def block(of):
        return "".join(place + text(value).rjust(13) + tail for place, value in zip(places, of))
    blocks = [block(of) for of in values(group, receptors)]
    calm = block([0.0] * receptors)
    with open(file, "w", encoding="ascii", newline="") as out:
        out.write(HEAD)
        for hour, date in enumerate(dates(hours)):
            rows = calm if hour % 100 == 7 else blocks[hour % BLOCKS]
            out.write(rows.replace("@DATE@", date))


def write_unformatted(file, group, receptors, hours):
    size = 16 + 8 * receptors
    bodies = [struct.pack("<%dd" % receptors, *of) for of in values(group, receptors)]
    with open(file, "wb") as out:
        for hour, date in enumerate(dates(hours)):
            length = struct.pack("<i", size)
            head = struct.pack("<ii8s", int(date), 1, group.ljust(8).encode())
            out.write(length + head + bodies[hour % BLOCKS] + length)


def write_receptors(folder, receptors):
    path = folder / "places.dat"
    path.write_text("".join("%d %d R%d\n" % (100 * (i % 50), 100 * (i // 50), i)
                            for i in range(receptors)), encoding="ascii")
    return path


def write_f13_5(file, group, receptors, hours):
    write_formatted(file, group, receptors, hours, lambda v: "%.5f" % v)


def write_exp(file, group, receptors, hours):
    write_formatted(file, group, receptors, hours, fortran(6))


FORMS = [("`F13.5`", write_f13_5, True), ("FILEFORM EXP (`0.123456E-04`)", write_exp, True),
         ("UNFORM", write_unformatted, False)]


def command(bench, folder, files):
    return [bench.engine, "import", "--zero-hours", "valid", "--out", folder / "out", "--receptors",
            write_receptors(folder, RECEPTORS), *files]


def measure(bench):
    page = bench.page
    page.heading("The import of a model's files")
    page.say("`korventally import` of a year of hours of two groups at %d receptors, files in the "
             "system's cache; MB/s per core of the model's files, medians of %d runs in turns, of "
             "awk and Python %d. awk and Python write one group's values in lines of hours, and "
             "check nothing." % (RECEPTORS, RUNS, SLOW_RUNS))
    rows = []
    for name, write, is_text in FORMS:
        with bench.scratch() as temporary:
            folder = pathlib.Path(temporary)
            files = [folder / (group + ".pst") for group in ("ALL", "FACILITY")]
            for file in files:
                write(file, file.stem, RECEPTORS, HOURS)
            one = files[0].stat().st_size / 1e6
            importing = command(bench, folder, files)
            used = in_turns(RUNS, {"wc": ["wc", "-l", *files], "import": importing})
            memory = peak(importing)
            (folder / "own.py").write_text(PYTHON, encoding="ascii")
            slow = in_turns(SLOW_RUNS, {
                "awk": [awk(), AWK, files[0]],
                "Python": [sys.executable, folder / "own.py", files[0], "/dev/null"],
            } if is_text else {})
        wc, own = (2 * one / busy(used[of]) for of in ("wc", "import"))
        rows.append([name, figure(2 * one), figure(wc), figure(own), figure(own / wc),
                     *(figure(one / busy(slow[of])) if slow else "" for of in ("awk", "Python")),
                     figure(memory)])
    page.table(["Form", "MB", "`wc -l`", "the import", "against `wc -l`", "awk (mawk)", "Python",
                "peak, MB"], rows)
