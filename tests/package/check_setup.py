#!/usr/bin/python3
"""Plays what a user does with the installer, under Wine: scripts/test calls one step after the other.

Usage: check_setup.py STEP FOLDER    FOLDER is what scripts/test makes
"""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import time

DRIVE = pathlib.Path(os.environ["WINEPREFIX"], "drive_c")
FOLDER = pathlib.Path(sys.argv[2]).resolve()
PROGRAM = FOLDER / "program"
NEW, OLD = next(FOLDER.glob("new/*-setup.exe")), FOLDER / "KorvenTally-1.1-setup.exe"
# A path with blanks, and with what the command interpreter would take for its own.
PLACE = DRIVE / "My programs & more/Korven Tally"
WINDOWS_PLACE = r"C:\My programs & more\Korven Tally"
WIZARD = WINDOWS_PLACE + r"\KorvenTallyWizard.exe"
UNINSTALL = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\KorvenTally"
VERBS = r"HKCU\Software\Classes\SystemFileAssociations\.inp\shell"
COMMAND = VERBS + r"\KorvenTally\command"
# What a user adds to the folder, and what he puts into the place of a file.
ADDED = {"Movrix.cfg": b"= C:\\Air\r\n", "samples/my.lst": b"RUN COMPLETED\r\n", "notes/why.txt": b"why"}
OWN_ENGINE = b"an engine of the user's own"
IN_USE = 3
# Keys that Wine and its editor write meanwhile.
OF_OTHERS = r"\Wine\Temporary System Parameters", r"\Microsoft\Notepad"


def wine(*arguments):
    """The exit code and the output, which goes into a file: processes of Wine's own hold a pipe open."""
    with open(FOLDER / "wine.txt", "w+") as output:
        code = subprocess.run(["wine", *map(str, arguments)], stdin=subprocess.DEVNULL, stdout=output,
                              stderr=subprocess.STDOUT, timeout=60).returncode
        output.seek(0)
        return code, output.read()


def command_line(text):
    """Has it run as it stands, as the system runs what the registry says."""
    script = FOLDER / "command.bat"
    script.write_text(f"@{text}\r\n", newline="")
    return wine("cmd", "/c", script)[0]


def set_up(setup, options=""):
    path = "Z:" + str(setup).replace("/", "\\")
    return command_line(f'"{path}" /S {options}')


def value(key, name=None):
    lines = wine("reg", "query", key, *(["/v", name] if name else ["/ve"]))[1].splitlines()
    return next((line.split("    ")[3] for line in lines if "    REG_" in line), None)


def registry():
    export = FOLDER / "registry.txt"
    export.unlink(missing_ok=True)
    assert wine("reg", "export", "HKCU", export)[0] == 0
    keys = export.read_text("utf-16").split("\n\n[")
    return [[key.partition("]")[0], line] for key in keys for line in key.splitlines()
            if not any(other in key for other in OF_OTHERS)]


def files(folder):
    """Every file with its size, and every folder, but for Windows' own and what is temporary."""
    return {str(path.relative_to(folder)): path.stat().st_size if path.is_file() else "folder"
            for path in folder.rglob("*")
            if not {"windows", "Temp"} & set(path.relative_to(folder).parts)}


def expect_same(found, expected, what):
    lacks, more = [item for item in expected if item not in found], [item for item in found if item not in expected]
    assert not lacks and not more, f"{what}: lacks {lacks[:9]}, has besides {more[:9]}"


def remember():
    (FOLDER / "known.json").write_text(json.dumps([files(DRIVE), registry()]))


def expect_unchanged(but=()):
    """All is as it was remembered, but that these are there."""
    known, keys = json.loads((FOLDER / "known.json").read_text())
    expect_same(files(DRIVE).items(), (known | dict(but)).items(), "files")
    expect_same(registry(), keys, "registry")


def default_places():
    return DRIVE.glob("users/*/AppData/Local/Programs/KorvenTally")


def menus():
    return DRIVE.glob("users/*/AppData/Roaming/*/Windows/Start Menu/Programs/KorvenTally")


def expect_installed(place, version, but=()):
    expected = files(PROGRAM) | {"uninstall.exe": (place / "uninstall.exe").stat().st_size} | dict(but)
    expect_same(files(place).items(), expected.items(), "installed")
    for path in PROGRAM.rglob("*.*"):
        assert path.read_bytes() == (place / path.relative_to(PROGRAM)).read_bytes(), path
    links = [path.name for menu in menus() for path in menu.iterdir()]
    assert sorted(links) == ["KorvenTally guide.lnk", "KorvenTally.lnk"], links
    shown = [value(UNINSTALL, name) for name in ("DisplayName", "DisplayVersion", "Publisher")]
    assert shown == ["KorvenTally", version, None], shown


def uninstall():
    """The uninstaller goes on as a copy of itself; what Windows shows of the program goes last."""
    assert command_line(value(UNINSTALL, "QuietUninstallString")) == 0
    deadline = time.monotonic() + 30
    while value(UNINSTALL, "DisplayName"):
        assert time.monotonic() < deadline, "the uninstaller did not come to its end"
        time.sleep(0.2)


def added():
    return {name: len(content) for name, content in ADDED.items()} | {"notes": "folder"}


def clean():
    """What an earlier, broken run may have left."""
    for folder in (PLACE.parent, *DRIVE.glob("users/*/AppData/Local/Programs"), *menus()):
        shutil.rmtree(folder, ignore_errors=True)
    for key in (UNINSTALL.rpartition("\\")[0], VERBS.split(r"\.inp")[0]):
        wine("reg", "delete", key, "/f")


def default():
    """Into the folder that is offered, and away without a trace."""
    clean()
    remember()
    assert set_up(NEW) == 0
    expect_installed(next(default_places()), NEW.name.split("-")[1])
    assert value(COMMAND) is None, "a verb that nobody chose"
    uninstall()
    expect_unchanged()


def old():
    """An older version, its verb beside that of another program, and what the user then adds. It takes
    the place of the one in another folder."""
    wine("reg", "add", VERBS + r"\Other", "/ve", "/d", "Of another program", "/f")
    PLACE.parent.mkdir(exist_ok=True)
    remember()
    assert set_up(NEW) == 0
    assert set_up(OLD, "/CONTROLFILES /D=" + WINDOWS_PLACE.replace("&", "^&")) == 0
    assert value(COMMAND) == f'"{WIZARD}" "%1"', value(COMMAND)
    assert (PLACE / "samples/gone.txt").exists() and not list(default_places())
    for name, content in (ADDED | {"korventally.exe": OWN_ENGINE}).items():
        (PLACE / name).parent.mkdir(exist_ok=True)
        (PLACE / name).write_bytes(content)


def busy():
    """Neither replaced nor removed while the wizard runs."""
    before = files(PLACE)
    assert command_line(f'start "" "{WIZARD}"') == 0
    assert set_up(NEW) == IN_USE
    assert command_line(f'"{WINDOWS_PLACE}\\uninstall.exe" /S _?={WINDOWS_PLACE.replace("&", "^&")}') == IN_USE
    wine("taskkill", "/f", "/im", "KorvenTallyWizard.exe")
    expect_same(files(PLACE).items(), before.items(), "files of a program in use")


def upgrade():
    """The folder and the verb are those chosen once; a file that is no longer part of it has gone."""
    assert set_up(NEW) == 0
    expect_installed(PLACE, NEW.name.split("-")[1], added() | {"korventally.exe.old1": len(OWN_ENGINE)})
    assert value(COMMAND) == f'"{WIZARD}" "%1"', value(COMMAND)


def model():
    """What was installed makes a case of the model files that were installed with it."""
    folder = WINDOWS_PLACE + r"\samples\dispersion\plot"
    case = "Z:" + str(FOLDER / "a case").replace("/", "\\")
    assert command_line(f'"{WINDOWS_PLACE}\\korventally.exe" import --calms "{folder}\\ERRORS.OUT" '
                        f'--out "{case}" "{folder}\\*.pst" >nul') == 0
    assert (FOLDER / "a case/case.inp").exists()


def remove():
    """Nothing is left but what the user made, and what is not this program's."""
    receptors = PLACE / "samples/receptors.dat"
    receptors.write_bytes(receptors.read_bytes().replace(b"1", b"2"))
    uninstall()
    kept = added() | {"korventally.exe.old1": len(OWN_ENGINE), "samples": "folder",
                      "samples/receptors.dat": receptors.stat().st_size}
    place = str(PLACE.relative_to(DRIVE))
    expect_unchanged({place: "folder"} | {f"{place}/{name}": what for name, what in kept.items()})


{step.__name__: step for step in (default, old, busy, upgrade, model, remove)}[sys.argv[1]]()
