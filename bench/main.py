#!/usr/bin/env python3
"""main.py ROOT PART...: measures the parts, one after the other, and shows their tables. With the
part "all" it measures all of them and writes docs/performance.md."""
import datetime
import os
import pathlib
import platform
import re
import subprocess
import sys
import time

import engine
import forms
import imports
import measure
import runs
import scale
import scan
import sizes
import start
import steps

PARTS = {"start": start, "steps": steps, "scan": scan, "run": runs, "engine": engine,
         "forms": forms, "import": imports, "scale": scale, "sizes": sizes}


def version(*command):
    """The first line of what a program says of itself."""
    output = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                            stdin=subprocess.DEVNULL, timeout=60)
    return output.stdout.decode().splitlines()[0]


def machine(load):
    """Of the machine what a figure depends on, but not which one it is."""
    model = re.search(r"model name\s*: (.*)", pathlib.Path("/proc/cpuinfo").read_text("ascii"))
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return [
        ("processor", "%s, %d cores" % (model.group(1) if model else platform.machine(),
                                        os.cpu_count())),
        ("memory", "%.0f GB" % memory),
        ("load before the start", "%.2f (1 minute), %.2f (5 minutes)" % load[:2]),
        ("system", platform.freedesktop_os_release()["PRETTY_NAME"] + ", Linux " +
         re.match(r"[0-9.]*", platform.release()).group()),
        ("Wine", version("wine", "--version")),
        ("compilers", version("x86_64-w64-mingw32-g++-posix", "--version") + "; " +
         version("g++", "--version")),
        ("held against", ", ".join([version("wc", "--version"), version("grep", "--version"),
                                    version("mawk", "-W", "version"),
                                    "Python " + platform.python_version()])),
    ]


INTRODUCTION = (
    "This page is written by `scripts/bench`, one command that measures everything below in one run; "
    "nothing in it is written by hand. `scripts/bench PART` measures one part again and only shows "
    "it. Figures are medians of several runs, and programs that are held against each other ran in "
    "turns. \"MB/s per core\" are megabytes per second that a core was busy, the system's share "
    "included. The programs of awk and Python stand in `bench/engine.py` and `bench/imports.py`.")


def write_page(bench, begun, took, load):
    lines = ["# Performance\n", measure.wrapped(INTRODUCTION) + "\n"]
    lines.append(measure.table(["", ""], [("measured", begun), ("took", "%.0f minutes" % (took / 60)),
                                          *((name, "`%s`" % value) for name, value in machine(load))]))
    met = sum(aim[-1] == "met" for aim in bench.page.aims)
    lines.append("## Aims\n\n%d of %d are met.\n" % (met, len(bench.page.aims)))
    lines.append(measure.table(["What", "at most", "measured", ""], bench.page.aims))
    path = bench.root / "docs/performance.md"
    path.write_text("\n".join(lines + bench.page.parts), encoding="utf-8")
    print("Written: docs/performance.md", flush=True)


def main():
    root, chosen = sys.argv[1], sys.argv[2:]
    load = os.getloadavg()
    begun = datetime.datetime.now(datetime.timezone.utc).strftime("%Y-%m-%d %H:%M UTC")
    clock = time.monotonic()
    bench = measure.Bench(root)
    for part in PARTS if chosen == ["all"] else chosen:
        print("--- %s, after %.0f s" % (part, time.monotonic() - clock), flush=True)
        bench.page.part = part
        PARTS[part].measure(bench)
    if chosen == ["all"]:
        write_page(bench, begun, time.monotonic() - clock, load)


if __name__ == "__main__":
    main()
