#!/usr/bin/python3
"""Holds the guide against the texts of the programs, read from their sources.

Usage: check_texts.py          at the root of the project; needs pandoc
Fails when a message of the wizard, the engine or the import is missing from docs/guide/messages.md, when the
page explains words that no program says, or when a caption of a window is missing from docs/guide/fields.md.
On the page a message is bold, and "…" stands for what the program puts in. Texts of the sources that are no
messages stand in no_messages.txt beside this file; one that is gone from the sources is a fault too.
"""
import glob
import pathlib
import re
import sys

from pages import nodes, tree, words

HERE = pathlib.Path(__file__).parent
MESSAGES = ["case/*", "limits/*", "run/*", "wizard/*.cpp", "platform/*", "platform/win32/*/*.cpp", "engine/*",
            "engine/import/*"]
# What stands in the list file and in the import's report, and what the summary shows, are no messages.
NOT_MESSAGES = re.compile(r"engine/(report_(?!hours)|import/import_report|exceedance_file|wall_time|calendar)"
                          r"|run/frmRunSummary.h")
CAPTIONS = ["wizard/*_step.h", "wizard/frmKORVENTALLY.h", "run/frmRunSummary.h"]
NO_CAPTIONS = ["Arial", "u00AE", "u00AC"]  # a font, and two arrows in another one
TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|#include[^\n]*|\'(?:[^\'\\\n]|\\.)\'|((?:"(?:[^"\\\n]|\\.)*"\s*)+)', re.S)


def literals(patterns):
    """Each text of the sources with the first file it is in; neighbours in the code are one text."""
    found = {}
    for path in sorted(path for pattern in patterns for path in glob.glob(pattern)):
        if NOT_MESSAGES.match(path) or not path.endswith((".cpp", ".h")):
            continue
        for match in TOKEN.finditer(pathlib.Path(path).read_text()):
            parts = re.findall(r'"((?:[^"\\\n]|\\.)*)"', match[1] or "")
            for text in "".join(parts).replace("\\r", "").replace("\\t", " ").split("\\n"):
                found.setdefault(plain(re.sub(r"\\(.)", r"\1", text)), path)
    found.pop("", None)
    return found


def plain(text):
    return " ".join(text.split())


def whole(text):
    """A single word counts only where it is no part of another one."""
    return re.escape(text) if " " in text or not text.isalnum() else rf"\b{re.escape(text)}\b"


def is_sentence(text):
    return " " in text and re.search("[a-z]", text)


def check_messages():
    said = literals(MESSAGES)
    exempt = [plain(line) for line in (HERE / "no_messages.txt").read_text().splitlines()]
    explained = [plain(words(node)) for node in nodes(tree("docs/guide/messages.md"), "Strong")]
    page = "\n".join(explained)
    for text, path in said.items():
        if is_sentence(text) and text not in page and text not in exempt:
            yield f"{path}: docs/guide/messages.md lacks: {text}"
    for text in exempt:
        if text not in said:
            yield f"no_messages.txt has what no source has: {text}"
        elif text in page:
            yield f"no_messages.txt has what the page explains: {text}"
    for message in explained:
        rest = message
        for text in sorted(said, key=len, reverse=True):
            rest = re.sub(whole(text), "…", rest)
        if re.search(r"\w", rest):
            yield f"docs/guide/messages.md explains what no program says: {message} (left: {rest})"


def check_fields():
    page = plain(words(tree("docs/guide/fields.md")))
    for text, path in literals(CAPTIONS).items():
        caption = text.replace("&", "").strip("<> ")
        if re.search("[A-Za-z]{2}", caption) and caption not in NO_CAPTIONS and caption not in page:
            yield f"{path}: docs/guide/fields.md lacks: {text}"


faults = [*check_messages(), *check_fields()]
print(*faults, sep="\n")
sys.exit(f"{len(faults)} faults" if faults else 0)
