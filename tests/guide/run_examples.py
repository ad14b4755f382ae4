#!/usr/bin/python3
"""Runs the examples of the guide, taken from its pages, and holds what they print against the pages.

Usage: run_examples.py native ENGINE FOLDER           the blocks for a shell, one after the other
       run_examples.py windows INSTALLATION FOLDER    the blocks for Windows, under Wine
FOLDER is made anew; the examples run in a copy of the sample study there.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import time

from pages import blocks

ROOT = pathlib.Path(__file__).parents[2]
CASES = {"naaqs-3h", "naaqs-24h", "psd-3h", "psd-24h"}


def run(command, folder, **options):
    return subprocess.run(command, cwd=folder, check=True, text=True, stdin=subprocess.DEVNULL, timeout=120,
                          stdout=subprocess.PIPE, **options).stdout


def page_text(kind, number=0, page="many-cases.md"):
    return [text for found, text in blocks(ROOT / "docs/guide" / page) if found == kind][number]


def run_shell_blocks(folder):
    """Each block knows what those before it have defined; a block of text says what the last one prints."""
    known = printed = ""
    for kind, text in blocks(ROOT / "docs/guide/many-cases.md"):
        if kind == "sh":
            printed = run(["bash", "-euc", known + text], folder)
            known += text[:text.find("\n}") + 3] if text.startswith("add_case()") else ""
        elif kind == "make":
            (folder / "Makefile").write_text(text + "\n")
        elif kind == "text":
            assert printed.replace("\r", "").strip() == text.strip(), printed


def native(engine, folder):
    os.environ["PATH"] = f"{engine.parent.resolve()}:{os.environ['PATH']}"
    run_shell_blocks(folder)
    assert {path.stem for path in folder.glob("*.lst")} == CASES
    listing = (folder / "psd-24h.lst").read_text()
    quoted = [text for kind, text in blocks(ROOT / "docs/guide/list-file.md") if kind == "text"]
    assert quoted and all(text in listing for text in quoted), "list-file.md quotes another list file"
    (folder / "bad.inp").write_text((folder / "psd-3h.inp").read_text().replace(":168", ":2").replace("psd-3h", "bad"))
    for command, leaves in (("make -k", False), ("printf '%s\\0' *.inp | xargs -0 -n 1 -P 4 korventally", True)):
        assert subprocess.run(command, shell=True, cwd=folder, capture_output=True).returncode != 0, command
        assert (folder / "bad.lst").exists() == leaves, command


def wait_for(found, what):
    deadline = time.monotonic() + 60
    while not found():
        assert time.monotonic() < deadline, what
        time.sleep(0.2)


def wine(command, folder, where=None):
    """What it prints goes into a file: processes of Wine's own would hold a pipe open."""
    with open(folder / "wine.txt", "w") as output:
        subprocess.run(["wine", "cmd", "/c", command], cwd=where or folder, check=True, timeout=120, stdin=subprocess.DEVNULL,
                       stdout=output, stderr=subprocess.STDOUT)
    return (folder / "wine.txt").read_text().replace("\r", "")


def completed(folder):
    return {path.stem for path in folder.glob("*.lst") if path.read_text().endswith("RUN COMPLETED\n")}


def windows(installation, folder):
    run(["bash", "-euc", page_text("sh")], folder)
    os.environ["WINEPATH"] = f"Z:{installation}"
    for number, name in enumerate(("run_cases.bat", "run_all.bat", "verdicts.bat")):
        (folder / name).write_text(page_text("bat", number) + "\n", newline="\r\n")
    wine("run_cases.bat *.inp", folder)
    assert completed(folder) == CASES, completed(folder)
    verdicts = wine("verdicts.bat", folder)
    assert verdicts.count("\nRUN COMPLETED") == len(CASES), verdicts
    for path in folder.glob("*.lst"):
        path.unlink()
    wine("run_all.bat", folder)
    wait_for(lambda: completed(folder) == CASES, "the cases that run side by side")
    (folder / "bad.inp").write_text((folder / "psd-3h.inp").read_text().replace(":168", ":2").replace("psd-3h", "bad"))
    try:
        wine("run_cases.bat *.inp", folder)
    except subprocess.CalledProcessError:
        pass
    else:
        raise AssertionError("run_cases.bat does not tell that a case failed")
    pathlib.Path(os.environ["WINEPREFIX"], "drive_c/Air").mkdir(exist_ok=True)
    wine(page_text("bat", page="from-model.md"), folder, installation)
    assert pathlib.Path(os.environ["WINEPREFIX"], "drive_c/Air/case/case.inp").exists()


if __name__ == "__main__":
    where, program, work = sys.argv[1:]
    work = pathlib.Path(work).resolve()
    shutil.rmtree(work, ignore_errors=True)
    shutil.copytree(ROOT / "samples", work, ignore=shutil.ignore_patterns("dispersion"))
    {"native": native, "windows": windows}[where](pathlib.Path(program).resolve(), work)
