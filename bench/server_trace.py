"""How many requests programs make of Wine's server: of all figures the one that no other work on
the machine can change."""
import collections
import pathlib
import re
import subprocess

CALL = re.compile(r"([0-9a-f]+): [a-z_]+\( ")


def server(*arguments):
    subprocess.run(["wineserver", *arguments], check=False, timeout=60)


def trace(bench, program, *arguments):
    """Runs a program with a server of its own that writes down what is asked of it. Returns what the
    program printed, and for each of its spans the thread that marked it and the numbers of requests
    by threads."""
    server("-k")
    server("-w")
    with bench.scratch() as scratch:
        path = pathlib.Path(scratch) / "trace"
        with open(path, "wb") as out, \
                subprocess.Popen(["wineserver", "-f", "-d", "-p"], stderr=out):
            try:
                lines = bench.wine(program, *arguments)
            finally:
                server("-k")
        with open(path, encoding="latin-1") as calls:
            spans = list(spans_of(calls))
    server("-p")
    return lines, spans


def spans_of(calls):
    counts = None
    for line in calls:
        call = CALL.match(line)
        if not call:
            continue
        if 'name=L"measured from here"' in line:
            counts = collections.Counter()
        elif 'name=L"measured to here"' in line:
            yield call[1], counts
            counts = None
        elif counts is not None:
            counts[call[1]] += 1
