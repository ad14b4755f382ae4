"""What the program adds to a run of the engine, and what it computes itself."""
import json
import pathlib
import shutil
import subprocess

from measure import figure, median, spread, windows_path

RUNS = 5
# Before the batch file, before the first look, before the scan, of the animation, before the
# verdict shows.
WAITS = 50 + 1000 + 50 + 3 * 500 + 50
CYCLE = 50 + 3 * 500


def run_times(bench):
    """Milliseconds of runs beyond their waits, and of writing the control file."""
    with bench.scratch() as scratch:
        program, study = pathlib.Path(scratch) / "program", pathlib.Path(scratch) / "study"
        program.mkdir()
        study.mkdir()
        # The engine is looked for beside the program.
        shutil.copy(bench.windows_tool("window_bench.exe"), program)
        shutil.copy(bench.build / "windows/tests/e2e/slow_engine.exe", program / "korventally.exe")
        (program / "behaviour.txt").write_bytes(b"")
        lines = bench.wine(program / "window_bench.exe", "run", RUNS, windows_path(study) + "\\")
    passed = [float(value) for name, value in lines if name == "run"]
    if len(passed) != RUNS:
        raise RuntimeError("a run of the stand-in engine failed")
    # On a busy machine an engine may end after the first look, and there is a second cycle.
    cycles = [int((value - WAITS) // CYCLE) for value in passed]
    added = [value - WAITS - CYCLE * more for value, more in zip(passed, cycles)]
    return added, sum(cycles), [float(value) for name, value in lines if name == "control"]


def own_times(bench):
    """Rows of the native benchmark: what, microseconds."""
    output = subprocess.run([bench.tool("case_bench"), "--benchmark_repetitions=5",
                             "--benchmark_min_time=0.05", "--benchmark_format=json"],
                            check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    times = {}
    for one in json.loads(output.stdout)["benchmarks"]:
        if one["run_type"] == "iteration":
            times.setdefault(one["run_name"], []).append(one["cpu_time"] / 1000)
    return times


NAMES = {
    "controlFileLines/2": "lines of the control file, 2 groups",
    "controlFileLines/50": "the same, 50 groups",
    "writeControlFile/2": "control file written, 2 groups",
    "writeControlFile/50": "the same, 50 groups",
    "readControlFile/2": "control file read back and checked, 2 groups",
    "readControlFile/50": "the same, 50 groups",
    "capture/2": "case collected of the five steps, 2 groups",
    "capture/50": "the same, 50 groups",
    "deriveLimits": "limits derived",
    "scan/10000": "256 KB of a list file searched",
    "scan/10": "the same, every 10th line begins with RUN",
    "scan/1": "the same, every line begins with RUN",
}


def measure(bench):
    page = bench.page
    page.heading("What the program adds to a run")
    added, cycles, control = run_times(bench)
    page.say("From the click on \"RUN\" in the summary to the verdict on the screen, under Wine, "
             "with an engine that writes its verdict and ends at once, less the waits that are laid "
             "down (%s ms). Of 50 groups; checks, two files written to the disk, command interpreter "
             "and batch file, scan, files deleted. Milliseconds, median of %d runs (least to "
             "most)." % (figure(WAITS), RUNS))
    page.table(["", "ms"], [("added to the waits", spread(added)),
                            ("control file alone, flushed to the disk", spread(control))])
    if cycles:
        page.say("The engine was slower than the first look %d times; a cycle more was taken "
                 "off." % cycles)
    page.aim("added to the waits", median(added), 50, "ms")
    page.say("On Linux, with the simulated desktop (files are in memory), microseconds: median of 5 "
             "(least to most).")
    times = own_times(bench)
    page.table(["", "µs"], [(what, spread(times[name])) for name, what in NAMES.items()])
