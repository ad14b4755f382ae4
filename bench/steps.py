"""From the click on "NEXT" until the next step is drawn."""
import collections
import pathlib

from measure import median, spread, windows_path

RUNS = 15
STEPS = {"1-2": "step 1 to 2", "2-3": "step 2 to 3", "page-1-2": "group 1 to 2",
         "page-2-3": "group 2 to 3", "3-4": "step 3 to 4", "4-5": "step 4 to 5"}


def measure(bench):
    page = bench.page
    page.heading("\"NEXT\" to the next step")
    with bench.scratch() as scratch:
        (pathlib.Path(scratch) / "any.dat").write_bytes(b"any")
        lines = bench.wine(bench.windows_tool("window_bench.exe"), "steps", RUNS + 1,
                           windows_path(scratch) + "\\")
    times = collections.defaultdict(list)
    for name, passed in lines[len(STEPS):]:
        times[name].append(float(passed))
    page.say("From the press of the mouse button until every message is handled, everything is "
             "painted and the display has drawn it, in the wizard's own process under Wine, "
             "milliseconds: median of %d walks (least to most)." % RUNS)
    page.table(["From", "ms"], [(STEPS[name], spread(of)) for name, of in times.items()])
    page.aim("worst step", max(map(median, times.values())), 16, "ms")
