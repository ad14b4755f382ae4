"""From the click on "NEXT" until the next step is drawn."""
import collections
import pathlib

from measure import median, spread, windows_path
from server_trace import trace

RUNS = 15
STEPS = {"1-2": "step 1 to 2", "2-3": "step 2 to 3", "page-1-2": "group 1 to 2",
         "page-2-3": "group 2 to 3", "3-4": "step 3 to 4", "4-5": "step 4 to 5"}


def measure(bench):
    page = bench.page
    page.heading("\"NEXT\" to the next step")
    tool = bench.windows_tool("window_bench.exe")
    with bench.scratch() as scratch:
        (pathlib.Path(scratch) / "any.dat").write_bytes(b"any")
        study = windows_path(scratch) + "\\"
        lines = bench.wine(tool, "steps", RUNS + 1, study)
        _, spans = trace(bench, tool, "steps", 2, study)
    times = collections.defaultdict(list)
    for name, passed in lines[len(STEPS):]:
        times[name].append(float(passed))
    requests = [of[thread] for thread, of in spans][len(STEPS):]
    page.say("From the press of the mouse button until every message is handled, everything is "
             "painted and the display has drawn it, in the wizard's own process under Wine, "
             "milliseconds: median of %d walks (least to most); and the requests that it makes of "
             "Wine's server for it." % RUNS)
    page.table(["From", "ms", "requests"],
               [(STEPS[name], spread(of), "{:,}".format(number))
                for (name, of), number in zip(times.items(), requests)])
    page.aim("worst step", max(map(median, times.values())), 16, "ms")
