"""From the start of the program until its first window waits for the user."""
import os
import re
import subprocess
import sys

from measure import median, spread, windows_path

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
    """The same beside a process for each core that does nothing but compute."""
    burners = [subprocess.Popen([sys.executable, "-c", "while True: pass"])
               for _ in range(os.cpu_count())]
    try:
        return starts(bench, BUSY_RUNS)
    finally:
        for burner in burners:
            burner.kill()
            burner.wait()


def requests(bench):
    """How many requests each program's window thread makes of Wine's server until then."""
    def server(*arguments, **options):
        subprocess.run(["wineserver", *arguments], check=False, timeout=60, **options)
    server("-k")
    server("-w")
    with bench.scratch() as scratch:
        trace = os.path.join(scratch, "trace")
        with open(trace, "wb") as out:
            tracing = subprocess.Popen(["wineserver", "-f", "-d", "-p"], stderr=out)
            try:
                lines = bench.wine(bench.windows_tool("start_timer.exe"), 2, *programs(bench))
            finally:
                server("-k")
                tracing.wait(timeout=60)
        counts = [0] * len(NAMES)
        with open(trace, encoding="latin-1") as calls:
            for line in lines:
                count_until_shown(calls, counts, int(line[0]), "%04x" % int(line[4], 16))
    server("-p")
    return counts


def count_until_shown(calls, counts, program, thread):
    """Reads on in a trace up to the end of the next start. The second start counts."""
    call = re.compile(thread + r": [a-z_]+\( ")
    begun, counts[program] = False, 0
    for line in calls:
        if 'L"before the start"' in line:
            begun = True
        elif 'L"behind the start"' in line:
            return
        counts[program] += begun and call.match(line) is not None


def measure(bench):
    page = bench.page
    page.heading("Start of the wizard")
    quiet, loaded, asked = starts(bench, QUIET_RUNS), busy_starts(bench), requests(bench)
    page.say("From the start of the process until its window is shown, everything in it is painted "
             "and it waits for the user, milliseconds: median of %d starts (least to most), the "
             "programs in turns, on a desktop that is there already. \"Busy\" is beside a process "
             "for each core that only computes, %d starts. Memory is the peak working set (VmHWM) "
             "and what is the process's own then (RssAnon), MB. Requests are those that the "
             "window's thread has made of Wine's server up to then." % (QUIET_RUNS, BUSY_RUNS))
    page.table(["Program", "quiet, ms", "busy, ms", "peak, MB", "own, MB", "requests"],
               [(name, spread(quiet[i][0]), spread(loaded[i][0]), spread(quiet[i][1]),
                 spread(quiet[i][2]), "{:,}".format(asked[i])) for i, name in enumerate(NAMES)])
    for name, seen in (("", quiet), (", busy", loaded)):
        # Each start against the one of notepad in the same turn.
        page.aim("start against notepad's" + name,
                 median([own / other for own, other in zip(seen[0][0], seen[2][0])]), 1.25, "times")
    page.aim("peak memory against notepad's", median(quiet[0][1]) / median(quiet[2][1]), 1, "times")
    page.aim("requests of Wine's server", asked[0], 4000)
