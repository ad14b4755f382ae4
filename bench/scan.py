"""The list file read for its verdict, held against grep and wc."""
import pathlib
import subprocess

from measure import busy, figure, in_turns, median, windows_path

RUNS = 5
SIZES = {"1 KB": 10**3, "1 MB": 10**6, "100 MB": 10**8, "1 GB": 10**9}
ROWS = ("   17  R0123      1200.0   -600.0  2009-01-12 05   18    221.9943    12.3456    5.6 yes\r\n"
        "      | OTHER_1        12.3456   5.6 %   OTHER_2         1.2345   0.6 %\r\n")
VERDICT = "\r\nRUN COMPLETED\r\n"


def write_list(path, size):
    """A list file as the engine writes them, with its verdict in the last line."""
    piece = (ROWS * 4000).encode()
    with open(path, "wb") as out:
        left = size - len(VERDICT)
        while left > 0:
            left -= out.write(piece[:left])
        out.write(VERDICT.encode())


def measure(bench):
    page = bench.page
    page.heading("The list file's verdict")
    rows, worst, silences, peaks = [], 0, [], []
    for name, size in SIZES.items():
        # A small file is read so often that its time can be told.
        times = max(1, min(2000, 2 * 10**8 // size))
        with bench.scratch() as scratch:
            path = pathlib.Path(scratch) / "korventally.lst"
            write_list(path, size)
            subprocess.run(["wc", "-l", path], check=True, stdout=subprocess.DEVNULL)
            seen = [], [], [], []
            used = {"grep": [], "wc": []}
            for _ in range(RUNS):
                lines = bench.wine(bench.windows_tool("window_bench.exe"), "scan", times,
                                   windows_path(path))
                for values, line in zip(seen, lines):
                    values.append(float(line[1]))
                for command, more in in_turns(1, {
                        "grep": ["grep", "-cx", "RUN COMPLETED\r", path],
                        "wc": ["wc", "-l", path]}).items():
                    used[command] += more
        clock, own, silence, memory = seen
        grep, count = 1000 * busy(used["grep"]), 1000 * busy(used["wc"])
        rows.append((name, figure(median(clock)), figure(median(own)), figure(grep), figure(count),
                     figure(max(silence)), figure(median(memory) / 2**20)))
        worst = max(worst, median(own) / grep)
        silences.append(max(silence))
        peaks.append(median(memory) / 2**20)
    page.say("The wizard's own reading under Wine, in its process, of a file in the system's cache; "
             "`grep -cx` and `wc -l` on Linux read the same file in turns with it. Milliseconds, "
             "medians of %d: \"busy\" is what a processor was busy, the system's share included, "
             "and for `grep` and `wc` the start of the process. The longest that an event had to wait "
             "meanwhile is the worst of all runs, with a second thread that always has one; peak "
             "memory is that of the whole process." % RUNS)
    page.table(["File", "wizard, clock", "wizard, busy", "`grep -cx`, busy", "`wc -l`, busy",
                "longest wait, ms", "peak, MB"], rows)
    page.aim("reading against `grep -cx`, worst size", worst, 1, "times")
    page.aim("longest wait of an event", max(silences), 50, "ms")
    page.aim("memory of 1 GB more than of 1 KB", max(0, peaks[-1] - peaks[0]), 1, "MB")
