"""What the parts of the benchmark share: times and memory of programs, medians, tables, aims."""
import dataclasses
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import textwrap
import time

WIDTH = 128


@dataclasses.dataclass
class Usage:
    """What one run of a program took: seconds of the clock, and seconds that a processor was busy
    with it, the system's share included."""
    clock: float
    busy: float


def run(command, **options):
    """Runs a program to its end, and nothing of it may fail."""
    begin = time.perf_counter()
    process = subprocess.Popen([str(word) for word in command], stdout=subprocess.DEVNULL, **options)
    _, status, used = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode:
        raise RuntimeError("%s ended with %d" % (command[0], process.returncode))
    return Usage(time.perf_counter() - begin, used.ru_utime + used.ru_stime)


def in_turns(runs, commands, **options):
    """Each command as often as told, one after the other and then again: what else the machine does
    meets them alike. A dictionary of lists of usages, by the commands' names."""
    used = {name: [] for name in commands}
    for _ in range(runs):
        for name, command in commands.items():
            used[name].append(run(command, **options))
    return used


def median(values):
    return statistics.median(values)


def busy(usages):
    return median([usage.busy for usage in usages])


def peak(command):
    """The most memory that a program has in a run of its own, in MB. The system counts to a program
    what the one that started it had: a small one has to start it."""
    told = subprocess.run(["time", "-f", "%M", *map(str, command)], check=True,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    return int(told.stderr.split()[-1]) / 1024


def figure(value):
    """Three digits or so, and groups of three in large numbers."""
    if value >= 100:
        return "{:,.0f}".format(value)
    return "%.1f" % value if value >= 10 else "%.2f" % value if value >= 0.1 else "%.3g" % value


def spread(values):
    """The median and, behind it, from the least to the most."""
    return "%s (%s to %s)" % tuple(map(figure, (median(values), min(values), max(values))))


def table(heads, rows):
    lines = ["| " + " | ".join(heads) + " |", "|" + "---|" * len(heads)]
    lines += ["| " + " | ".join(map(str, row)) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def wrapped(text):
    return textwrap.fill(text, WIDTH, break_long_words=False, break_on_hyphens=False)


class Page:
    """Collects the sections of docs/performance.md, and what became of each aim."""

    def __init__(self):
        self.parts, self.aims = [], []
        self.part = ""  # as the command line names what is measured

    def heading(self, text):
        self.add("## %s" % text)
        self.add("    scripts/bench %s" % self.part)

    def say(self, text):
        self.add(wrapped(text))

    def table(self, heads, rows):
        self.add(table(heads, rows).rstrip("\n"))

    def add(self, text):
        self.parts.append(text + "\n")
        self.tell(text)

    def aim(self, what, value, most, unit=""):
        """An aim is met where the value is at most so much."""
        verdict = "met" if value <= most else "missed"
        unit = unit and " " + unit
        shown = figure(value)
        if value > most and shown == figure(most):
            shown = "%.4f" % value  # missed by so little that it needs to be seen
        self.aims.append((what, figure(most) + unit, shown + unit, verdict))
        self.say("Aim: %s at most %s%s. **%s**: %s%s." % (
            what, figure(most), unit, verdict.capitalize(), shown, unit))

    @staticmethod
    def tell(text):
        print(text + "\n", flush=True)


class Bench:
    """Where things are, and a folder for what is measured, which goes in the end."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        self.build = self.root / "build"
        self.engine = self.build / "bench/engine/korventally"
        self.installation = self.root / "dist/KorvenTally"
        self.page = Page()

    def tool(self, name):
        return self.build / "bench/bench" / name

    def windows_tool(self, name):
        return self.build / "windows/bench" / name

    def scratch(self):
        """A folder on the disk of build/, because large files may not fit elsewhere."""
        (self.build / "scratch").mkdir(parents=True, exist_ok=True)
        return tempfile.TemporaryDirectory(prefix="bench-", dir=self.build / "scratch")

    def wine(self, program, *arguments, limit=300):
        """What a program prints under Wine, in lists of words."""
        output = subprocess.run(["wine", str(program), *map(str, arguments)], check=True,
                                timeout=limit, stdout=subprocess.PIPE, stderr=sys.stderr)
        return [line.split() for line in output.stdout.decode().splitlines()]


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def awk():
    return shutil.which("mawk") or "awk"
