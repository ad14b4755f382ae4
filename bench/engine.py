"""A whole run of the engine on a large study, beside wc -l, awk and Python on the same files."""
import pathlib
import sys

from measure import awk, busy, figure, in_turns, peak, run, spread

RUNS, SLOW_RUNS = 7, 2
STUDY = {"hours": 8760, "receptors": 1000, "groups": 5, "averaging": 24}
# The highest 24-hour average of one file, which is the least that a script of one's own does.
AWK = ("!/^#/{for(i=5;i<=NF;i++)s[i]+=$i;"
       "if(++n%24==0){for(i in s)if(s[i]>m)m=s[i];delete s}}END{print m/24*1e6}")
PYTHON = """import sys
m, s, n = 0, None, 0
for line in open(sys.argv[1]):
    if line[0] != "#":
        v = [float(x) for x in line.split()[4:]]
        s = [a + b for a, b in zip(s, v)] if s else v
        n += 1
        if n % 24 == 0:
            m, s = max(m, max(s)), None
print(m / 24 * 1e6)
"""


def scripts(path):
    return {"awk": [awk(), AWK, path], "Python": [sys.executable, "-c", PYTHON, path]}


def measure(bench):
    page = bench.page
    page.heading("The engine, a whole run")
    with bench.scratch() as folder:
        run([bench.tool("make_study"), folder, *STUDY.values()])
        files = sorted(pathlib.Path(folder).glob("*.con"))
        everything = sum(file.stat().st_size for file in files) / 1e6
        # As the engine does, so that both keep two cores busy: they share what memory gives.
        twice = ["sh", "-c", 'wc -l "$@" & wc -l "$@"; wait', "sh", *files]
        commands = {"wc, one": ["wc", "-l", *files], "wc, two": twice,
                    "engine": [bench.engine, pathlib.Path(folder) / "korventally.inp"]}
        used = in_turns(RUNS, commands)
        used.update(in_turns(SLOW_RUNS, scripts(files[0])))
        memory = {name: peak(command) for name, command in
                  {**commands, **scripts(files[0])}.items()}
        one = files[0].stat().st_size / 1e6
    page.say("A year of hours of 5 groups at 1,000 receptors, 24-hour averages, %s MB in the "
             "system's cache. awk and Python compute the highest average of one file and nothing "
             "else. \"Two at once\" are two processes that read all of it each. %d runs in turns, "
             "of awk and Python %d." % (figure(everything), RUNS, SLOW_RUNS))
    rows = [("`wc -l`", "wc, one", everything), ("`wc -l`, two at once", "wc, two", 2 * everything),
            ("the engine", "engine", everything), ("awk (mawk)", "awk", one),
            ("Python", "Python", one)]
    speed = {key: size / busy(used[key]) for _, key, size in rows}
    page.table(["", "clock, s", "MB/s per core", "the engine against it", "peak, MB"],
               [(name, spread([usage.clock for usage in used[key]]), figure(speed[key]),
                 figure(speed["engine"] / speed[key]), figure(memory[key]))
                for name, key, _ in rows])
