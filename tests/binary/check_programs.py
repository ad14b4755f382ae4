"""Reads the shipped programs as Windows' loader does: what they load, and how they are protected.

check_programs.py FOLDER: tells what is not as it should be. Each check is first seen to fail on a
copy in which what it guards is spoilt.
"""
import pathlib
import sys

import pefile

# What a program names in its import table is looked for beside the program before any code of ours
# runs. Windows takes these from its own folder whatever lies there: they are known to it, and its
# controls come from the folder that the manifest leads to.
KNOWN = {"advapi32", "comctl32", "gdi32", "kernel32", "msvcrt", "user32"}
# Loaded with the first call, when the search is limited to Windows' own folder.
DELAYED = {"comdlg32", "ole32", "shell32", "uxtheme"}
FLAGS = {"HIGH_ENTROPY_VA": 0x20, "DYNAMIC_BASE": 0x40, "NX_COMPAT": 0x100}
WRITE, EXECUTE, GUI, CONSOLE = 0x80000000, 0x20000000, 2, 3
PROGRAMS = {
    "KorvenTallyWizard.exe": (GUI, "1.2", [b"Common-Controls", b"PerMonitorV2", b"<longPathAware"]),
    "korventally.exe": (CONSOLE, "1.3", [b"<longPathAware"]),
}


def resource(program, kind):
    for entry in program.DIRECTORY_ENTRY_RESOURCE.entries:
        if entry.id == pefile.RESOURCE_TYPE[kind]:
            data = entry.directory.entries[0].directory.entries[0].data.struct
            return program.get_data(data.OffsetToData, data.Size)
    return b""


def faults(program, image, subsystem, version, manifest):
    optional = program.OPTIONAL_HEADER
    for name, flag in FLAGS.items():
        if not optional.DllCharacteristics & flag:
            yield name + " is off"
    if not optional.DATA_DIRECTORY[5].Size or program.FILE_HEADER.Characteristics & 1:
        yield "it cannot be moved"
    if optional.Subsystem != subsystem:
        yield "it is of the wrong subsystem"
    if program.FILE_HEADER.TimeDateStamp or b"\0/" + b"home" in image:
        yield "it tells when or where it was built"
    for section in program.sections:
        if section.Characteristics & WRITE and section.Characteristics & EXECUTE:
            yield "a section can be written and run"
    for library in program.DIRECTORY_ENTRY_IMPORT:
        name = library.dll.decode().lower().removesuffix(".dll")
        if name not in KNOWN:
            yield name + " would be looked for beside the program"
    if b"asInvoker" not in resource(program, "RT_MANIFEST"):
        yield "the manifest asks for other rights"
    for part in manifest:
        if part not in resource(program, "RT_MANIFEST"):
            yield "the manifest lacks " + part.decode()
    if ("ProductVersion\0" + version + "\0").encode("utf-16-le") not in resource(program, "RT_VERSION"):
        yield "it is not of version " + version


def of(image, wanted):
    return list(faults(pefile.PE(data=bytes(image)), image, *wanted))


def spoilt(image):
    """Copies in which one thing each is wrong."""
    header = int.from_bytes(image[60:64], "little")
    characteristics = header + 24 + 70
    first_section = header + 24 + int.from_bytes(image[header + 20:header + 22], "little")
    changes = [(characteristics, image[characteristics] ^ 0x20),
               (characteristics, image[characteristics] ^ 0x40),
               (characteristics + 1, image[characteristics + 1] ^ 1),
               (header + 22, image[header + 22] | 1), (header + 24 + 68, 1), (header + 8, 1),
               (first_section + 39, image[first_section + 39] | 0x80),
               (image.rindex(b"KERNEL32.dll\0"), ord("X")),
               (image.index(b"asInvoker"), ord("X")), (image.index(b"<longPathAware"), ord("X")),
               (image.index("ProductVersion\0".encode("utf-16-le")) + 32, ord("9"))]
    for at, byte in changes:
        copy = bytearray(image)
        copy[at] = byte
        yield copy


def main():
    good = True
    for name, wanted in PROGRAMS.items():
        image = (pathlib.Path(sys.argv[1]) / name).read_bytes()
        found = of(image, wanted)
        found += ["change %d is not noticed" % number
                  for number, copy in enumerate(spoilt(image)) if not of(copy, wanted)]
        for fault in found:
            print(name + ": " + fault)
        good = good and not found
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
