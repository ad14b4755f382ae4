#!/usr/bin/env python3
"""Writes the sample study: receptors.dat and one concentration file per source group.

A week of hours over 25 receptors around an industrial valley, computed with a plain Gaussian
plume and a made-up but plausible winter week of wind. No random numbers from outside: the same
files come out on every machine. Usage: python3 make_sample.py [folder]
"""
import math
import pathlib
import sys

HOURS = 168
START = (2009, 1, 12)  # a Monday; hours 0 to 23
SPACING = 600.0        # metres between receptors
SOURCES = {            # name: (x, y, stack height m, emission g/s)
    "facility": (-350.0, 250.0, 45.0, 48.0),
    "other_1": (900.0, -800.0, 38.0, 75.0),
    "other_2": (-1500.0, -900.0, 60.0, 110.0),
    "other_3": (300.0, 1500.0, 30.0, 26.0),
    "rest": (2600.0, 1900.0, 20.0, 4.0),  # small sources that form no group of their own
}
GROUPS = ["facility", "other_1", "other_2", "other_3"]


class Wobble:
    """A small linear congruential generator: the week's weather must not change with Python."""

    def __init__(self, seed):
        self.state = seed

    def next(self):
        self.state = (self.state * 1103515245 + 12345) % 2**31
        return self.state / 2**31


def weather():
    """Wind direction (degrees it blows towards), speed (m/s) and mixing (0 stable, 1 unstable)."""
    wobble = Wobble(20090112)
    for hour in range(HOURS):
        sun = max(0.0, math.sin((hour % 24 - 7) / 10 * math.pi))
        valley = 140 if hour % 24 < 9 or hour % 24 > 19 else 315
        turning = 35 * math.sin(hour / 168 * 4 * math.pi)
        yield (valley + turning + 50 * (wobble.next() - 0.5),
               1.2 + 2.8 * sun + 1.5 * wobble.next(), sun)


def plume(source, x, y, wind):
    """Ground-level concentration in g/m**3 from one stack."""
    towards, speed, mixing = wind
    sx, sy, height, emission = source
    angle = math.radians(towards)
    downwind = (x - sx) * math.sin(angle) + (y - sy) * math.cos(angle)
    crosswind = (x - sx) * math.cos(angle) - (y - sy) * math.sin(angle)
    if downwind < 20:
        return 0.0
    sigma_y = (0.08 + 0.14 * mixing) * downwind / math.sqrt(1 + 0.0001 * downwind)
    sigma_z = (0.045 + 0.12 * mixing) * downwind / math.sqrt(1 + 0.0004 * downwind)
    rise = height + 60 / speed
    return (emission / (math.pi * speed * sigma_y * sigma_z)
            * math.exp(-0.5 * (crosswind / sigma_y) ** 2)
            * math.exp(-0.5 * (rise / sigma_z) ** 2))


def receptors():
    for row in range(5):
        for column in range(5):
            yield ((column - 2) * SPACING, (row - 2) * SPACING, "R%02d" % (row * 5 + column + 1))


def write_concentrations(path, title, names):
    places = list(receptors())
    with open(path, "w", newline="\r\n", encoding="ascii") as out:
        out.write("# %s, hourly SO2 in g/m**3 at the receptors of receptors.dat\n" % title)
        out.write("# year month day hour, then one value per receptor\n")
        out.write("# receptors: %s\n" % " ".join(name for _, _, name in places))
        for hour, wind in enumerate(weather()):
            values = (sum(plume(SOURCES[name], x, y, wind) for name in names)
                      for x, y, _ in places)
            out.write("%4d %2d %2d %2d " % (START[0], START[1], START[2] + hour // 24, hour % 24))
            out.write(" ".join("%.5E" % (0.0 if v < 1e-15 else v) for v in values) + "\n")


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    with open(folder / "receptors.dat", "w", newline="\r\n", encoding="ascii") as out:
        out.write("# X (m), Y (m), ID\n")
        for x, y, name in receptors():
            out.write("%10.1f %10.1f  %s\n" % (x, y, name))
    write_concentrations(folder / "all_sources.con", "All sources", list(SOURCES))
    for name in GROUPS:
        write_concentrations(folder / (name + ".con"), name, [name])


if __name__ == "__main__":
    main()
