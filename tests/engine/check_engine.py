#!/usr/bin/env python3
"""Checks the engine against slow, obvious arithmetic on random studies.

Usage: check_engine.py [--count N] [--seed S] ENGINE...
ENGINE is the program, or a command in front of it (wine path/to/korventally.exe).

Every study is computed here with exact fractions from the very texts that the files hold, then
the engine's list file is read as a user would read it: maxima, counts, exceedances with their
contributions, receptors, averages left out, warnings; the table of every exceedance beside it; and
the page beside it, which must show the list file's figures. Exit status 1 and the study's folder on
a difference.
"""
import argparse
import csv
import datetime
import io
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree
from fractions import Fraction

LINE = " " * 29 + ":"
MICRO = Fraction(10) ** 6
TINY = Fraction(1, 10**9)


def number(rng):
    """A value in g/m**3 in one of the ways that models write it; now and then zero."""
    value = 0.0 if rng.random() < 0.1 else 10 ** rng.uniform(-8, -3.5)
    ways = ["%.5E", "%.3e", "%.7E", "%.9f", "%.2E", "%12.4E", "%.12g", "%.1E"]
    return rng.choice(ways) % value


class Study:
    def __init__(self, rng, folder):
        self.rng, self.folder = rng, folder
        self.groups = rng.choice([2, 3, 3, 5, 5, 8, 13, 50])
        self.receptors = rng.choice([1, 2, 3, 4, 7])
        self.choose_period()
        self.start = datetime.datetime(rng.choice([2008, 2009, 2011]), rng.choice([1, 2, 12]),
                                       rng.choice([1, 28]), rng.choice([0, 1, 23]))
        self.rank1 = rng.random() < 0.5
        self.background = rng.choice(["0", "0", "12.5", "3", "0.125"])
        self.separator = rng.choice([" ", "  ", "\t", ",", ", ", " ,"])
        self.line_end = rng.choice(["\n", "\r\n"])
        self.midnight_is_24 = rng.random() < 0.3
        self.names = ["ALL_SOURCES", "FACILITY"] + ["OTHER_%d" % i for i in range(1, 49)]
        self.make_values()
        self.compute()
        self.choose_limits()

    def choose_period(self):
        """The averaging period, the run length, and hours in the files outside of the run."""
        rng = self.rng
        self.averaging = rng.choice([1, 3, 3, 8, 24, 24, 48, 8760, 8784])
        self.annual = self.averaging >= 8760
        self.run = rng.randint(1, 400) if self.annual else rng.randint(self.averaging, 130)
        if rng.random() < 0.05:  # more than a year; few groups and receptors keep that quick
            self.averaging, self.annual = rng.choice([24, 24, 500]), False
            self.run, self.groups, self.receptors = rng.randint(8760, 9400), 2, 2
        self.block = self.run if self.annual else self.averaging
        self.blocks = self.run // self.block
        self.before, self.after = rng.choice([0, 0, 5]), rng.choice([0, 0, 7])

    def choose_marks(self):
        """Calm and missing hours, many in some studies; hours zero everywhere in others."""
        rng = self.rng
        share = rng.choice([0, 0, 0.05, 0.5])
        hours = self.before + self.run + self.after
        self.marks = [rng.choice(["calm", "missing"]) if rng.random() < share else None
                      for _ in range(hours)]
        self.nights = rng.choice([0, 0, 0.2])
        if self.annual and all(self.marks[self.before:self.before + self.run]):
            self.marks[self.before] = None

    def make_values(self):
        hours = self.before + self.run + self.after
        self.choose_marks()
        self.texts = []
        for _ in range(self.groups):
            self.texts.append([[number(self.rng).strip() for _ in range(self.receptors)]
                               for _ in range(hours)])
        if self.rng.random() < 0.5:  # the first group is what the others add up to
            share = Fraction(self.rng.choice([900, 1000, 1300]), 1000)
            for hour in range(hours):
                for r in range(self.receptors):
                    parts = sum(Fraction(self.texts[g][hour][r]) for g in range(1, self.groups))
                    self.texts[0][hour][r] = "%.6E" % float(parts * share)
        for hour in range(hours):
            if self.rng.random() < self.nights:
                for group in self.texts:
                    group[hour] = ["0.0"] * self.receptors

    def is_zero(self, hour):
        return not any(Fraction(text) for group in self.texts for text in group[hour])

    def averages(self, group, zero_is_calm=False):
        rows = []
        for b in range(self.blocks):
            first = self.before + b * self.block
            valid = [h for h in range(first, first + self.block)
                     if not self.marks[h] and not (zero_is_calm and self.is_zero(h))]
            least = 1 if self.annual else int(Fraction(3, 4) * self.block + Fraction(9, 10))
            if not zero_is_calm and group == 0:
                self.valid.append(len(valid))
            rows.append([sum(Fraction(self.texts[group][h][r]) for h in valid) * MICRO
                         / max(len(valid), least) for r in range(self.receptors)])
        return rows

    def compute(self):
        back = Fraction(self.background)
        self.valid = []
        self.own = [self.averages(g) for g in range(self.groups)]
        self.total = [[v + back for v in row] for row in self.own[0]]
        self.total_if_calm = [[v + back for v in row] for row in self.averages(0, True)]

    def choose_limits(self):
        totals = sorted(v for row in self.total for v in row)
        facility = sorted(v for row in self.own[1] for v in row)
        pick = self.rng.choice(totals)
        # Now and then the standard is one of the values itself, as near as decimals allow.
        self.standard = "%.10f" % float(pick if self.rng.random() < 0.3 else pick * Fraction(97, 100))
        self.sil = "%.4f" % max(0.0001, float(self.rng.choice(facility)))
        if float(self.standard) <= 0:
            self.standard = "0.5"

    def write(self):
        self.receptor_format = self.rng.choice(["1", "2"])
        ids = ["R%d" % (r + 1) for r in range(self.receptors)]
        self.order = list(range(self.receptors))
        self.names_receptors = self.receptor_format == "2" or self.rng.random() < 0.4
        if self.names_receptors:
            self.rng.shuffle(self.order)
        place = [(100.5 * r, -20.25 * r * r) for r in range(self.receptors)]
        with open(self.folder / "rec.dat", "w", newline="") as out:
            out.write("# receptors%s" % self.line_end)
            order = list(self.order)
            if self.receptor_format == "2":
                order += [self.rng.choice(order) for _ in range(5)]
            self.ranked, self.ranked_is_true = [], self.rng.random() < 0.5
            for rank, r in enumerate(order):
                totals = sorted((row[r] for row in self.total), reverse=True)
                again = order[:rank].count(r)
                true = self.ranked_is_true and again < len(totals)
                self.ranked.append((r, "%.6f" % (float(totals[again]) if true else 12.5)))
                fields = ["%.4f" % place[r][0], "%.4f" % place[r][1], ids[r]]
                if self.receptor_format == "2":
                    fields = [str(rank + 1), self.ranked[rank][1]] + fields
                out.write(self.separator.join(fields) + self.line_end)
        for g in range(self.groups):
            self.write_group(self.folder / ("g%d.con" % g), self.texts[g])
        lines = [str(self.folder / "out.lst"), "SO2", self.start.strftime("%Y,%m,%d,%H"),
                 str(self.run), str(self.groups)]
        for g in range(self.groups):
            lines += [str(self.folder / ("g%d.con" % g)), self.names[g]]
        lines += ["1000000.0,0.0", self.background, str(self.averaging), self.standard,
                  self.receptor_format, str(self.folder / "rec.dat"), "1", self.sil, "2",
                  "T" if self.rank1 else "F", "0"]
        with open(self.folder / "korventally.inp", "w", newline="") as out:
            out.write("".join(LINE + line + "\r\n" for line in lines))

    def top(self, out):
        """The remarks of a concentration file; returns its columns: receptors, or None for others'."""
        columns = list(range(self.receptors))
        out.write("# hourly values%s#%s" % (self.line_end, self.line_end))
        if self.names_receptors:
            columns += [None] * self.rng.choice([0, 0, 3])
            self.rng.shuffle(columns)
            names = ["OTHER%d" % i if r is None else "R%d" % (r + 1) for i, r in enumerate(columns)]
            cut = self.rng.randint(1, len(names))
            for part in filter(None, (names[:cut], names[cut:])):
                out.write("# receptors:%s%s" % (self.separator.join([""] + part).replace(",", " "),
                                                self.line_end))
        return columns

    def write_group(self, path, rows):
        moment = self.start - datetime.timedelta(hours=self.before)
        with open(path, "w", newline="") as out:
            columns = self.top(out)
            for row, mark in zip(rows, self.marks):
                zero = not any(Fraction(text) for text in row)
                row = [mark] if mark else [("0" if zero else number(self.rng).strip()) if r is None
                                           else row[r] for r in columns]
                day, hour = self.named(moment)
                fields = [str(day.year), "%02d" % day.month, str(day.day), "%d" % hour] + row
                out.write(self.separator.join(fields) + self.line_end)
                moment += datetime.timedelta(hours=1)

    def named(self, moment):
        """The day and the hour as the files count them."""
        if self.midnight_is_24 and moment.hour == 0:
            return moment - datetime.timedelta(days=1), 24
        return moment, moment.hour

    def date_of(self, hours):
        """So many hours after the start, as the list file should name it."""
        day, hour = self.named(self.start + datetime.timedelta(hours=hours))
        return day.strftime("%Y-%m-%d ") + "%02d" % hour

    def date(self, block):
        return self.date_of(block * self.block)

    def off_the_clock(self):
        if self.annual:
            return False
        moments = [(self.start + datetime.timedelta(hours=b * self.block)) for b in range(self.blocks)]
        first = 1 if self.midnight_is_24 else 0
        return any((m.hour - first) % 24 % min(self.block, 24) for m in moments)


    def block_of(self, date):
        return [self.date(b) for b in range(self.blocks)].index(date)

    def facility(self, place):
        return self.own[1][place[0]][place[1]]

    def years(self):
        """The blocks that begin in each year of the run, counted from its start."""
        years = []
        for b in range(self.blocks):
            begin = self.start + datetime.timedelta(hours=b * self.block)
            year = begin.year - self.start.year
            if (begin.month, begin.day, begin.hour) < (self.start.month, self.start.day, self.start.hour):
                year -= 1
            while len(years) <= year:
                years.append([])
            years[year].append(b)
        return years


class Difference(Exception):
    pass


def same(shown, exact, what, digits=4):
    """The figure shown is the exact value, rounded to what is shown."""
    slack = Fraction(51, 100) / 10**digits
    if "E" in shown:
        slack = abs(exact) * Fraction(1, 100)
    if abs(Fraction(shown) - exact) > slack + abs(exact) * TINY:
        raise Difference("%s: %s is shown, %s is right" % (what, shown, float(exact)))


def beside(shown, exact, limit, what):
    """Also, the figure lies on the side of the limit on which the value lies."""
    same(shown, exact, what)
    limit = Fraction(limit)
    side = 0 if abs(exact - limit) <= TINY * limit else exact - limit
    shown = Fraction(shown) - limit
    need((shown > 0) == (side > 0) and (shown < 0) == (side < 0), what + ": on the wrong side")


def need(condition, what):
    if not condition:
        raise Difference(what)


def whole(text):
    """A number with its thousands parted by commas."""
    return int(text.replace(",", ""))


def section(lines, start):
    begin = next(i for i, line in enumerate(lines) if line.startswith(start))
    end = next(i for i in range(begin, len(lines)) if lines[i] == "")
    return lines[begin + 1:end]


def check_maxima(study, lines):
    rows = section(lines, "HIGHEST")[2:]
    need(len(rows) == study.groups * (2 if study.blocks > 1 else 1), "rows of maxima")
    values = [study.total] + study.own[1:]
    for i, row in enumerate(rows):
        group, second = (i // 2, i % 2) if study.blocks > 1 else (i, 0)
        m = re.match(r"  (.{15})(1st|2nd) +(\S+)  (\S+) +(\S+) +(\S+)  (\S+ \d\d)$", row)
        need(m, "form of " + row)
        need(m[1].strip() == ("" if second else study.names[group]), "group in " + row)
        need(m[2] == ("2nd" if second else "1st"), "rank in " + row)
        of_receptor = [sorted((values[group][b][r] for b in range(study.blocks)), reverse=True)[second]
                       for r in range(study.receptors)]
        same(m[3], max(of_receptor), "maximum " + row)
        r = int(m[4][1:]) - 1
        block = study.block_of(m[7])
        need(abs(values[group][block][r] - max(of_receptor)) <= TINY * max(of_receptor), "place in " + row)
        same(m[5], Fraction(201, 2) * r, "X in " + row, 1)


def judged_places(study, lines):
    places = [(b, r) for b in range(study.blocks) for r in study.order]
    years = [year for year in study.years() if len(year) > 1]
    if not study.rank1 or not years:
        need(not any(line.startswith("RANK 1 AVERAGES") for line in lines), "left-out section")
        return places
    rows = section(lines, "RANK 1 AVERAGES")[1:]
    need(len(rows) == study.receptors * len(years), "rows left out")
    for i, row in enumerate(rows):
        year, r = i // study.receptors, study.order[i % study.receptors]
        m = re.match(r" +(\d+)  R(\d+) .*  (\d{4}-\d\d-\d\d \d\d) +(\S+)$", row)
        need(m and int(m[1]) == year + 1 and int(m[2]) == r + 1, "form of " + row)
        block = study.block_of(m[3])
        highest = max(study.total[b][r] for b in years[year])
        need(block in years[year], "year in " + row)
        need(abs(study.total[block][r] - highest) <= TINY * highest, "block in " + row)
        same(m[4], highest, row)
        places.remove((block, r))
    return places


def check_judgement(study, lines):
    places = judged_places(study, lines)
    standard, sil = Fraction(study.standard), Fraction(study.sil)
    exceeding = [p for p in places if study.total[p[0]][p[1]] - standard > TINY * standard]
    significant = [p for p in exceeding if study.facility(p) - sil >= -TINY * sil]
    rows = section(lines, "JUDGEMENT")
    facts = dict(re.match(r" +(.*?): +(\S+)", line).groups() for line in rows)
    count = {name: whole(facts[name]) for name in facts if facts[name][0].isdigit()
             and name not in ("Largest contribution", "Total there")}
    need(count["Averages judged"] == len(places), "averages judged")
    need(count["Exceedances"] == len(exceeding), "exceedances")
    need(count["Receptors that exceed"] == len({p[1] for p in exceeding}), "receptors")
    need(count["Significant exceedances"] == len(significant), "significant")
    check_largest(study, facts, "\n".join(rows), exceeding, significant)
    tables = Tables(study, lines, exceeding, significant)
    tables.check()
    check_receptors(study, lines, exceeding, significant)
    check_csv(study, exceeding)


def check_largest(study, facts, text, exceeding, significant):
    if not exceeding:
        need(facts["Largest contribution"] == "none:", "no contribution")
        return
    largest = max(map(study.facility, exceeding))
    beside(facts["Largest contribution"], largest, study.sil, "largest contribution")
    need(("none is significant" in text) == (not significant), "conclusion")
    m = re.search(r"receptor R(\d+) \(.*\), first hour (.*)", text)
    place = (study.block_of(m[2]), int(m[1]) - 1)
    need(place in exceeding and abs(study.facility(place) - largest) <= TINY * largest, "its place")
    beside(facts["Total there"], study.total[place[0]][place[1]], study.standard, "its total")


class Tables:
    """The tables of exceedances and of significant ones."""

    def __init__(self, study, lines, exceeding, significant):
        self.study, self.lines = study, lines
        self.exceeding, self.significant = exceeding, significant

    def check(self):
        if not self.exceeding:
            need(section(self.lines, "EXCEEDANCES") == ["  None."], "no exceedances")
            return
        total = {p: self.study.total[p[0]][p[1]] for p in self.exceeding}
        shown = self.rows("EXCEEDANCES", total)
        extra = any(line.startswith("SIGNIFICANT EXCEEDANCES") for line in self.lines)
        need(extra == (not set(self.significant) <= shown), "table of significant exceedances")
        if extra:
            self.rows("SIGNIFICANT EXCEEDANCES", {p: self.study.facility(p) for p in self.significant})

    def rows(self, title, values):
        rows = section(self.lines, title)
        need(max(map(len, rows)) <= 132, "width")
        text = "\n".join(rows[rows.index(next(r for r in rows if r.startswith("---"))) + 1:])
        more = re.search(r"\n  and ([\d,]+) (significant )?exceedances? more.*$", text)
        need((whole(more[1]) if more else 0) == max(0, len(values) - 50), "exceedances not shown")
        entries = re.findall(r"(?m)^ +(\d+)  R(\d+) +\S+ +\S+  (\S+ \d\d) +(\d+) +(\S+) +(\S+) +(\S+) +(yes|no)"
                             r" +(\S+)((?:\n      \| .*)*)", text[:more.start()] if more else text)
        need(len(entries) == min(50, len(values)), "rows of exceedances")
        ordered = sorted(values.values(), reverse=True)
        seen = set()
        for i, entry in enumerate(entries):
            place = (self.study.block_of(entry[2]), int(entry[1]) - 1)
            need(int(entry[0]) == i + 1 and place in values and place not in seen, "row %d" % i)
            need(abs(values[place] - ordered[i]) <= TINY * values[place], "order at row %d" % i)
            seen.add(place)
            self.check_row(place, entry[3:])
        return seen

    def check_row(self, place, row):
        study, (hours, total, facility, percent, yes, rest, others) = self.study, row
        exact = study.total[place[0]][place[1]]
        contributions = [study.own[g][place[0]][place[1]] for g in range(study.groups)]
        need(int(hours) == study.valid[place[0]], "hours of %s" % (place,))
        beside(total, exact, study.standard, "total of %s" % (place,))
        beside(facility, contributions[1], study.sil, "facility at %s" % (place,))
        need((yes == "yes") == (place in self.significant), "SIL at %s" % (place,))
        same(rest, contributions[0] - sum(contributions[1:]), "left over at %s" % (place,))
        self.check_percent(percent, contributions[1], exact)
        self.check_others(contributions, exact, others)

    @staticmethod
    def check_percent(percent, value, total):
        if percent != ">999":
            same(percent, 100 * value / total, "per cent", 1)

    def check_others(self, contributions, total, text):
        cells = re.findall(r"(OTHER_\d+) +(\S+) +(\S+) %", text)
        rest = re.search(r"and (\d+) groups?, together (\S+) %", text)
        left = dict(zip(self.study.names[2:], contributions[2:]))
        last = None
        for name, value, percent in cells:
            exact = left.pop(name)
            same(value, exact, "contribution of " + name)
            self.check_percent(percent, exact, total)
            need(last is None or exact <= last * (1 + TINY), "order of groups")
            need(100 * exact >= total * (1 - TINY) or not left, "a small group is named")
            last = exact
        need((int(rest[1]) if rest else 0) == len(left), "groups not named")
        if rest:
            need(len(left) > 1, "one group alone is not named")
            self.check_percent(rest[2], sum(left.values()), total)
            need(len(cells) == 12 or 100 * max(left.values()) < total * (1 + TINY), "a large group is not named")
            need(len(cells) <= 12, "too many groups named")


def check_receptors(study, lines, exceeding, significant):
    if not exceeding:
        need(not any(line.startswith("RECEPTORS THAT") for line in lines), "receptors that exceed")
        return
    rows = section(lines, "RECEPTORS THAT")[3:]
    need(len(rows) == len({p[1] for p in exceeding}), "number of receptors")
    for r, row in zip([r for r in study.order if r in {p[1] for p in exceeding}], rows):
        m = re.match(r"  R(\d+) +\S+ +\S+ +(\S+) +(\S+) +(\S+)  (\S+ \d\d) +(\S+)  (\S+ \d\d)$", row)
        need(m and int(m[1]) == r + 1, "form of " + row)
        mine = [p for p in exceeding if p[1] == r]
        need(whole(m[2]) == len(mine), "exceedances of " + row)
        need(whole(m[3]) == len([p for p in significant if p[1] == r]), "SIL of " + row)
        for shown, date, limit, value in (
                (m[4], m[5], study.standard, lambda p: study.total[p[0]][p[1]]),
                (m[6], m[7], study.sil, study.facility)):
            highest = max(map(value, mine))
            beside(shown, highest, limit, row)
            place = (study.block_of(date), r)
            need(place in mine and abs(value(place) - highest) <= TINY * highest, "hour in " + row)


def check_ranked(study, lines):
    """The list's values of each receptor, the largest first, are its highest averages."""
    back = Fraction(study.background)
    wrong = []
    for extra in (0, back):
        wrong.append(0)
        for r in range(study.receptors):
            listed = sorted((Fraction(v) for at, v in study.ranked if at == r), reverse=True)
            own = sorted((row[r] + extra for row in study.own[0]), reverse=True)
            wrong[-1] += len(listed) > len(own) or any(
                abs(a - b) > max(a, b) / 1000 + Fraction(1, 1000) for a, b in zip(listed, own))
    text = " ".join(line.strip() for line in section(lines, "WARNINGS"))
    m = re.search(r"ranked list of receptors has other values .* at (\d+) of (\d+) receptor", text)
    need(bool(m) == (min(wrong) > 0), "ranked list")
    need(not m or (int(m[1]), int(m[2])) == (min(wrong), study.receptors), "receptors of the ranked list")


def check_csv(study, exceeding):
    data = (study.folder / "out.lst.csv").read_bytes().decode("ascii")
    need(data.endswith("\r\n") and data.count("\n") == data.count("\r\n"), "line ends of the CSV")
    rows = list(csv.reader(io.StringIO(data, newline="")))
    need(rows[0] == ["Receptor ID", "X", "Y", "First hour", "Valid hours", "Total (ug/m**3)"]
         + study.names[:study.groups], "header of the CSV")
    need([(study.block_of(row[3]), int(row[0][1:]) - 1) for row in rows[1:]] == exceeding, "rows of the CSV")
    for row, (b, r) in zip(rows[1:], exceeding):
        need(int(row[4]) == study.valid[b], "hours in the CSV")
        exact = [study.total[b][r]] + [study.own[g][b][r] for g in range(study.groups)]
        for shown, value in zip(row[5:], exact, strict=True):
            need(abs(Fraction(shown) - value) <= value / 10**11, "CSV: %s for %s" % (shown, float(value)))


def words(element):
    return " ".join("".join(part.itertext()).replace("\u00b5g", "ug").replace("g/m\u00b3", "g/m**3")
                    for part in element).split()


def check_page(study, lines):
    """Every tag is closed, every drawing is told in words, every figure is the list file's."""
    page = xml.etree.ElementTree.parse(study.folder / "out.lst.html").getroot()
    for svg in page.iter("svg"):
        need(svg.get("role") == "img" and svg.get("viewBox").startswith("0 0 640 ")
             and [part.tag for part in svg[:2]] == ["title", "desc"] and svg[0].text and svg[1].text,
             "words for a drawing")
    need(len(list(page.iter("svg"))) == 3, "drawings")
    need(len(list(page.iter("use"))) == study.receptors, "marks of the map")
    check_page_tables(page, lines)
    check_page_facts(page, lines)


def check_page_tables(page, lines):
    shown = {table.find("caption").get("id"): table for table in page.iter("table")}
    exceed = "EXCEEDANCES, the largest first"
    for name, title, skipped in (("maxima", "HIGHEST", 2), ("exceedances", exceed, None),
                                 ("significant", "SIGNIFICANT EXC", None),
                                 ("receptors", "RECEPTORS THAT", 3), ("left-out", "RANK 1 AVER", 1)):
        rows = section(lines, title) if any(line.startswith(title) for line in lines) else ["  None."]
        need((name in shown) == (rows != ["  None."]), "page: table " + name)
        if name not in shown:
            continue
        if skipped is None:
            skipped = next(i for i, row in enumerate(rows) if row.startswith("---")) + 1
        rows = [row for row in rows[skipped:] if not row.startswith("  and ")]
        listed = " ".join(rows).replace("      | ", " ").split()
        on_page = [word.rstrip(";") for row in shown[name].iter("tr") for word in words(row.findall("td"))]
        need(on_page == listed, "page: figures of " + name)
        heads = shown[name].find("thead").findall("tr/th")
        need(all(head.get("scope") == "col" for head in heads)
             and {sum(int(cell.get("colspan", 1)) for cell in row) for row in shown[name].find("tbody")} == {len(heads)}, "page: columns of " + name)


def check_page_facts(page, lines):
    facts = {"".join(div[0].itertext()).strip(): " ".join(words([div[1]])) for div in page.iter("div")
             if div.find("dt") is not None}
    for line in section(lines, "CASE") + section(lines, "JUDGEMENT"):
        label, value = line.strip().split(":", 1)
        need(label == "In pictures" or facts.get(label) == " ".join(value.split()), "page: " + label)
    warnings = [item for part in page.iter("section") if part.get("class") == "warnings"
                for item in part.iter("li")]
    listed = " ".join(section(lines, "WARNINGS")).split()
    need((words(warnings) or ["None."]) == listed, "page: warnings")


def check_misfit(study, lines):
    count, worst = 0, 0
    for b in range(study.blocks):
        for r in range(study.receptors):
            own = study.own[0][b][r]
            beyond = sum(study.own[g][b][r] for g in range(1, study.groups)) - own
            if beyond > own / 1000 + Fraction(1, 1000):
                count, worst = count + 1, max(worst, beyond)
    text = " ".join(line.strip() for line in section(lines, "WARNINGS"))
    m = re.search(r"In ([\d,]+) averages? the groups? .*The worst case: (\S+) against (\S+) ug", text)
    need(bool(m) == (count > 0), "misfit warning")
    if m:
        need(whole(m[1]) == count, "misfit count")
        same(str(float(m[2]) - float(m[3])), worst, "worst misfit", 3)


def check_hours(study, lines):
    used = study.marks[study.before:study.before + study.blocks * study.block]
    text = "\n".join(section(lines, "AVERAGES"))
    m = re.search(r"Of the ([\d,]+) hours? used, ([\d,]+) hours? calm, ([\d,]+) hours? missing: left out", text)
    need(bool(m) == any(used), "marked hours")
    if m:
        need((whole(m[1]), whole(m[2]), whole(m[3])) ==
             (len(used), used.count("calm"), used.count("missing")), "numbers of marked hours")
    shown = {study.named(study.start + datetime.timedelta(hours=h - study.before))[1]
             for h in range(len(study.marks))}
    counted = "1 to 24" if 24 in shown else "0 to 23" if 0 in shown else "0 to 23 or 1 to 24, both would fit"
    if {0, 24} & shown:
        need(("Off the clock" in text) == study.off_the_clock(), "clock of the averages")
    span = "%s to %s" % (study.date_of(0), study.date_of(study.blocks * study.block - 1))
    need(span in text, "hours of the averages, " + span)
    of_files = [re.match(r" {17}hours counted " + counted + r"; (?:([\d,]+) hours? calm, ([\d,]+) hours? missing|no hour marked)$", line)
                for line in lines]
    of_files = [m for m in of_files if m]
    need(len(of_files) == study.groups, "marked hours of files")
    for m in of_files:
        need([whole(m[1] or "0"), whole(m[2] or "0")] ==
             [study.marks.count(word) for word in ("calm", "missing")], "marks of a file")
    zero = sum(not mark and study.is_zero(study.before + h) for h, mark in enumerate(used))
    warnings = " ".join(line.strip() for line in section(lines, "WARNINGS"))
    m = re.search(r"([\d,]+) hours? (?:is|are) zero at every receptor of every group", warnings)
    need((whole(m[1]) if m else 0) == zero, "hours of zeros")
    m = re.search(r"would be (\S+) instead of (\S+) ug", warnings)
    highest, then = (max(v for row in t for v in row) for t in (study.total, study.total_if_calm))
    if zero and then > highest * Fraction(1001, 1000):
        need(m, "effect of hours of zeros")
    if m:
        same(m[1], then, "highest average without hours of zeros")
        same(m[2], highest, "highest average in the warning")


def check(study, engine):
    study.write()
    subprocess.run(engine + [str(study.folder / "korventally.inp")], check=False, timeout=120)
    data = (study.folder / "out.lst").read_bytes().decode("ascii")
    need(data.endswith("\r\nRUN COMPLETED\r\n"), "verdict: " + data[-300:])
    lines = data.split("\r\n")
    check_hours(study, lines)
    check_maxima(study, lines)
    check_judgement(study, lines)
    check_misfit(study, lines)
    check_page(study, lines)
    if study.receptor_format == "2":
        check_ranked(study, lines)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--count", type=int, default=60)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("engine", nargs="+")
    options = parser.parse_args()
    for seed in range(options.seed, options.seed + options.count):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="korventally check "))
        try:
            check(Study(random.Random(seed), folder), options.engine)
        except Difference as difference:
            print("seed %d, files in %s: %s" % (seed, folder, difference))
            return 1
        shutil.rmtree(folder)
    print("%d random studies agree" % options.count)
    return 0


if __name__ == "__main__":
    sys.exit(main())
