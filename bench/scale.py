"""Engine and import from small cases to the largest that anybody has."""
import os
import pathlib

import forms
import imports
from measure import busy, figure, in_turns, median, peak, run

RUNS = 3
PERIODS = {"a month": 720, "a year": 8760, "five years": 43800}
ENGINE_RECEPTORS = (25, 250, 1000, 5000)
# A row for each value makes a model's files ten times as large: the rest has no room on the disk.
IMPORTS = [("a month", 25), ("a month", 5000), ("a year", 250), ("a year", 1000),
           ("five years", 25), ("five years", 250)]


def row(period, receptors, files, command):
    """A row of the table: the command on the files, beside wc."""
    megabytes = sum(file.stat().st_size for file in files) / 1e6
    used = in_turns(RUNS, {"wc": ["wc", "-l", *files], "own": command})
    own = busy(used["own"])
    return [period, "{:,}".format(receptors), figure(megabytes), clock_of(used["own"]),
            figure(megabytes / own), figure(busy(used["wc"]) / own), figure(peak(command))]


def clock_of(usages):
    return figure(median([usage.clock for usage in usages]))


HEADS = ["Hours", "receptors", "MB", "clock, s", "MB/s per core", "against `wc -l`", "peak, MB"]


def engine_row(bench, period, receptors):
    """Both groups have one file under two names: two of the largest would not find room."""
    hours = PERIODS[period]
    with bench.scratch() as temporary:
        folder = pathlib.Path(temporary)
        run([bench.tool("make_study"), folder, hours, receptors, 1, 24])
        files = [folder / "all.con", folder / "facility.con"]
        os.link(*files)
        control = forms.write_control(folder, hours, files, receptors)
        return row(period, receptors, files, [bench.engine, control])


def import_row(bench, period, receptors):
    with bench.scratch() as temporary:
        folder = pathlib.Path(temporary)
        file = folder / "ALL.pst"
        imports.write_f13_5(file, "ALL", receptors, PERIODS[period])
        command = [bench.engine, "import", "--zero-hours", "valid", "--out", folder / "out", file]
        return row(period, receptors, [file], command)


def measure(bench):
    page = bench.page
    page.heading("From a month to five years, from 25 to 5,000 receptors")
    page.say("Medians of %d runs in turns with `wc -l`, files in the system's cache where they fit "
             "into it. The engine on 2 groups in the form `1.23456E-05`, 24-hour averages: of its "
             "memory 8 bytes a receptor, block and group are the averages." % RUNS)
    page.table(HEADS, [engine_row(bench, period, receptors) for period in PERIODS
                       for receptors in ENGINE_RECEPTORS])
    page.say("The import of one group in `F13.5`, a row for each value.")
    page.table(HEADS, [import_row(bench, *size) for size in IMPORTS])
