"""From the start of the program until its first window waits for the user."""
import os
import subprocess
import sys

from measure import median, spread, windows_path
from server_trace import trace

NAMES = ["the wizard", "an empty window", "Wine's notepad"]
QUIET_RUNS, BUSY_RUNS = 11, 7


def programs(bench):
    return [windows_path(bench.installation / "KorvenTallyWizard.exe"),
            windows_path(bench.windows_tool("empty_window.exe")), "notepad"]


def starts(bench, runs):
    """Milliseconds, peak and private MB of each program's starts, but for the first ones."""
    lines = bench.wine(bench.windows_tool("start_timer.exe"), runs + 1, *programs(bench))
    seen = [[] for _ in NAMES]
    for number, passed, most, private, _ in lines[len(NAMES):]:
        seen[int(number)].append((float(passed), int(most) / 2**20, int(private) / 2**20))
    return [list(zip(*each)) for each in seen]


def busy_starts(bench):
    """The same beside a process for each core that does nothing but compute. They end by themselves
    if this one is killed."""
    command = ["timeout", "120", sys.executable, "-c", "while True: pass"]
    burners = [subprocess.Popen(command) for _ in range(os.cpu_count())]
    try:
        return starts(bench, BUSY_RUNS)
    finally:
        for burner in burners:
            burner.terminate()
            burner.wait()


def requests(bench):
    """How many each program's window thread has made of Wine's server when it is idle."""
    lines, spans = trace(bench, bench.windows_tool("start_timer.exe"), 2, *programs(bench))
    threads = ["%04x" % int(line[4], 16) for line in lines]
    return [of[thread] for thread, (_, of) in zip(threads, spans)][len(NAMES):]


def measure(bench):
    page = bench.page
    page.heading("Start of the wizard")
    quiet, loaded, asked = starts(bench, QUIET_RUNS), busy_starts(bench), requests(bench)
    page.say("From the start of the process until its window is shown, everything in it is painted "
             "and it waits for the user, milliseconds: median of %d starts (least to most), the "
             "programs in turns, on a desktop that is there already. \"Busy\" is beside a process "
             "for each core that only computes, %d starts. Memory is the peak working set (`VmHWM`) "
             "and what is the process's own then (`RssAnon`), MB. Requests are those that the "
             "window's thread has made of Wine's server up to then." % (QUIET_RUNS, BUSY_RUNS))
    page.table(["Program", "quiet, ms", "busy, ms", "peak, MB", "own, MB", "requests"],
               [(name, spread(quiet[i][0]), spread(loaded[i][0]), spread(quiet[i][1]),
                 spread(quiet[i][2]), "{:,}".format(asked[i])) for i, name in enumerate(NAMES)])
    for name, seen in (("", quiet), (", busy", loaded)):
        # Each start against the one of notepad in the same turn.
        page.aim("start against that of notepad" + name,
                 median([own / other for own, other in zip(seen[0][0], seen[2][0])]), 1.25, "times")
    page.aim("peak memory against that of notepad", median(quiet[0][1]) / median(quiet[2][1]), 1, "times")
    page.aim("requests of Wine's server", asked[0], 4000)
