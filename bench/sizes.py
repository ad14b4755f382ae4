"""How large the two programs are, as they are delivered."""


def measure(bench):
    page = bench.page
    page.heading("Sizes of the programs")
    page.say("The files in `dist/KorvenTally/`; MB are millions of bytes.")
    programs = {"KorvenTallyWizard.exe": 1.0, "korventally.exe": 1.5}
    sizes = {name: (bench.installation / name).stat().st_size for name in programs}
    page.table(["Program", "bytes"], [("`%s`" % name, "{:,}".format(size)) for name, size in sizes.items()])
    for name, most in programs.items():
        page.aim("size of `%s`" % name, sizes[name] / 1e6, most, "MB")
