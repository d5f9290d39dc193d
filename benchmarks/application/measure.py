#!/usr/bin/python3
"""What an application gains: examples/gnss beside itself over C libraries, in bytes, stack and modelled cycles.

    benchmarks/application/measure.py [--check | --write]

Builds the application for size by GCC for a Cortex-M4: with this library, with string.h and stdlib.h of three C
libraries, and with their snprintf and sscanf. Each must answer the log as examples/gnss does, byte for byte. Prints
the flash of the image, the deepest stack and the cycles of benchmarks/count.py's model for the whole log, the waiting for
the UART left out.
  --check  builds and runs them, and measures nothing
  --write  also writes docs/application.md, docs/application.svg and the line in the README
"""
import collections
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "benchmarks"))
import count  # noqa: E402

CORE = ["-mcpu=cortex-m4", "-mthumb", "-mfloat-abi=soft"]
COMPILE = ["-Os", "-ffunction-sections", "-fdata-sections", "-fno-exceptions", "-fno-unwind-tables",
           "-fno-asynchronous-unwind-tables", f"-I{ROOT}/include", f"-I{ROOT}/platform", "-DBOARD_UART=0x40004000"]
LINK = ["-nostartfiles", "-nostdlib", "-Wl,--undefined=main", "-Wl,--gc-sections",
        "-Wl,--defsym=board_code_start=0,--defsym=board_code_size=4M",
        "-Wl,--defsym=board_data_start=0x20000000,--defsym=board_data_size=4M"]
LOG, EXPECTED = ROOT / "examples/gnss/log.nmea", ROOT / "examples/gnss/expected.txt"
OURS, FAST = "Quvex, for size", "Quvex, for speed"
WAYS = {"string.h, stdlib.h": "with_string.c", "snprintf, sscanf": "with_stdio.c"}
LIBRARIES = ("newlib", "newlib-nano", "picolibc")
Measured = collections.namedtuple("Measured", "bytes stack cycles")


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    if done.returncode:
        raise count.Failure(f"{' '.join(map(str, command))}\n{done.stdout.decode()}")
    return done.stdout


def library(name):
    """The include options and the archive of a C library."""
    variant = run("arm-none-eabi-gcc", *CORE, "-print-multi-directory").decode().strip()
    if name == "picolibc":
        folder = "/usr/lib/picolibc/arm-none-eabi"
        return ["-isystem", f"{folder}/include"], f"{folder}/lib/{variant}/libc.a"
    nano = name == "newlib-nano"
    return (["-isystem", "/usr/include/newlib/nano"] if nano else [],
            f"/usr/lib/arm-none-eabi/newlib/{variant}/libc{'_nano' * nano}.a")


def build(folder, way, name):
    """The image, and another that tells its stack; functions stand where they fall, as in anybody's image."""
    includes, archive = library(name) if name else ([], None)
    here = ROOT / "benchmarks/application"
    sources = [here / "gnss.c", here / WAYS[way]] if name else [*ROOT.glob("src/*/*.cpp"), *(
        ROOT / "examples/gnss").glob("*.cpp")]
    objects = []
    for index, source in enumerate([*sorted(sources), *(ROOT / "platform" / f"{part}.c" for part in (
            "start", "cortex_m", "uart_cmsdk")), here / "stack.c"]):
        objects.append(folder / f"{index}.o")
        # As examples/CMakeLists.txt: without a C library no loop may become a call of one.
        standard = ["-std=c++17", "-ffreestanding", "-fno-threadsafe-statics"] if source.suffix == ".cpp" else ["-std=gnu11"]
        if source.parent.name == "platform":
            standard.append("-ffreestanding")
        if way == FAST and source.is_relative_to(ROOT / "src"):
            standard.append("-O2")
        run("arm-none-eabi-gcc" if source.suffix == ".c" else "arm-none-eabi-g++", *CORE, *COMPILE, *standard, *includes,
            "-c", source, "-o", objects[-1])
    script = folder / "board.ld"
    script.write_text((ROOT / "platform/board.ld").read_text().replace("SUBALIGN(8)", ""))
    libraries = ["-Wl,--start-group", archive, "-lgcc", "-lnosys", "-Wl,--end-group"] if name else []
    for image, extra in (("image", objects[:-1]), ("stack", [*objects, "-Wl,--wrap=board_exit"])):
        run("arm-none-eabi-gcc", *CORE, *LINK, "-T", script, *extra, *libraries, "-o", folder / image)
    return folder / "image", folder / "stack"


def answer(image, fed):
    with open(fed, "rb") as stream:
        return run(ROOT / "scripts/emulate", "-M", count.BOARD, image, stdin=stream)


def flash(image):
    sizes = collections.Counter()
    for line in run("arm-none-eabi-size", "-A", image).decode().splitlines():
        if found := re.match(r"\.(text|data|ARM\.ex\w+|tdata)\s+(\d+)", line):
            sizes[found[1]] += int(found[2])
    return sum(sizes.values())


def cycles(image, fed):
    code = count.disassemble(image)
    ranges = count.traced_ranges(code, "^board_(read|write)$")  # how long they wait is the emulator's host's
    steps, before, address = collections.Counter(), b"", b""
    with open(os.memfd_create("output"), "w+b") as output, open(fed, "rb") as stream:
        for after in count.trace(image, (), count.BOARD, ranges, output, stream):
            if after != address:  # traced again when the UART's input interrupted it
                steps[before, address, after] += 1
                before, address = address, after
    return sum(times * count.cycles(code, *step) for step, times in steps.items() if step[1])


def measured(way, name, is_check):
    with tempfile.TemporaryDirectory() as temporary:
        folder = pathlib.Path(temporary)
        fed = folder / "fed"
        with open(LOG, "rb") as log:
            fed.write_bytes(run(ROOT / "scripts/feed", stdin=log))
        image, told = build(folder, way, name)
        expected = EXPECTED.read_bytes()
        if answer(image, fed).replace(b"\r", b"") != expected:
            raise count.Failure(f"{way}, {name}: another output than examples/gnss/expected.txt")
        if is_check:
            return None
        stack = int(answer(told, fed).replace(b"\r", b"").removeprefix(expected))
        return Measured(flash(image), stack, cycles(image, fed))


def all_measured(is_check=False):
    """{(way, library): Measured}, ours first."""
    ways = [(OURS, None), (FAST, None), *((way, name) for way in WAYS for name in LIBRARIES)]
    with concurrent.futures.ProcessPoolExecutor(os.cpu_count()) as pool:
        runs = {pair: pool.submit(measured, *pair, is_check) for pair in ways}
        return {(way, name or ""): each.result() for (way, name), each in runs.items()}


def table(rows):
    ours = rows[OURS, ""]
    yield "| the text by | over | bytes of flash | deepest stack | modelled cycles |\n|---|---|---:|---:|---:|\n"
    for (way, name), row in rows.items():
        cells = [f"{value:,}" + ("" if row is ours else f" ({value / mine:.2f})") for value, mine in zip(row, ours)]
        bold = "" if name else "**"
        yield f"| {bold}{way}{bold} | {name or '–'} | {' | '.join(cells)} |\n"


def ahead(rows):
    """Where another way is better than ours."""
    ours = rows[OURS, ""]
    for what in Measured._fields:
        for (way, name), row in rows.items():
            if name and getattr(row, what) < getattr(ours, what):
                yield f"- {way} over {name}: {getattr(row, what):,} {what if what != 'stack' else 'bytes of stack'}, ours {getattr(ours, what):,}.\n"


def document(rows):
    yield """# What it gains an application

`benchmarks/application/measure.py --write` wrote this file.

The firmware of `examples/gnss`, which checks, cuts up and prints a GNSS receiver's sentences and keeps events as 16-bit
text, and the same written twice over a C library: with the functions of `string.h` and `stdlib.h` (`strsep`, `strspn`,
`strtol`, `strlcpy`, `itoa`), and with `snprintf` and `sscanf` wherever they serve. Every image answers the example's
log with the same bytes.

GCC, Cortex-M4, for size; but "for speed" has the operations built with -O2. Flash is that of the whole image, start-up
and application included; the stack is what was found overwritten after the log, start-up included; cycles are those of
the model of `benchmarks/count.py` for the whole log, never seconds, without the waiting for the UART. In brackets:
relative to the first row.

"""
    yield from table(rows)
    yield "\n![The application in flash, stack and cycles, by what its text is written with](application.svg)\n"
    yield "\n## Where a peer is ahead\n\n"
    better = list(ahead(rows))
    yield "".join(better) or "Nowhere.\n"
    if any("cycles" in one and "newlib" in one for one in better):
        yield ("\nNewlib is built for speed, whatever the application: its `strlen`, `strcpy` and `strcmp` read whole words, past a\n"
               "terminator too, which these operations never do.\n")


def picture(path, rows):
    import matplotlib
    matplotlib.use("svg")
    matplotlib.rcParams.update({"svg.hashsalt": "quvex", "font.family": "DejaVu Sans", "font.size": 10})
    import matplotlib.pyplot as plot
    names = [f"{way}, {name}" if name else way for way, name in rows]
    figure, panels = plot.subplots(1, 3, figsize=(10, 3.4), sharey=True)
    for panel, what, title in zip(panels, Measured._fields, ("bytes of flash", "bytes of stack", "modelled cycles")):
        values = [getattr(row, what) for row in rows.values()]
        panel.barh(names, values, color=["#0b5cad", "#7db4e6"] + ["#e08a2e"] * 3 + ["#8a8f98"] * 3)
        for place, value in enumerate(values):
            panel.annotate(f" {value:,}", (value, place), va="center", size=9)
        panel.set_title(title, size=10)
        panel.set_xlim(0, max(values) * 1.3)
        panel.set_xticks([])
        panel.spines[:].set_visible(False)
        panel.tick_params(length=0)
    panels[0].invert_yaxis()
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None, "Creator": None})


def line(rows):
    ours = rows[OURS, ""]
    best = {way: min((row for (kind, _), row in rows.items() if kind == way), key=lambda row: row.bytes) for way in WAYS}
    strings, stdio = best.values()
    return (f"A whole application, the firmware of `examples/gnss`: **{ours.bytes:,} bytes** of flash and {ours.stack:,} of stack. "
            f"The same text work takes at least {strings.bytes:,}\nand {strings.stack:,} over a C library's `string.h`, "
            f"{stdio.bytes:,} and {stdio.stack:,} with `snprintf` and `sscanf`; [each library, and cycles](docs/application.md).\n\n"
            "![The application in flash, stack and cycles, by what its text is written with](docs/application.svg)\n")


def write(rows):
    (ROOT / "docs/application.md").write_text("".join(document(rows)))
    picture(ROOT / "docs/application.svg", rows)
    readme = ROOT / "README.md"
    text = readme.read_text()
    block = f"<!-- application -->\n{line(rows)}<!-- /application -->"
    readme.write_text(re.sub(r"<!-- application -->.*?<!-- /application -->", lambda _: block, text, flags=re.S))


def main():
    if sys.argv[1:] in (["-h"], ["--help"]):
        print(__doc__, end="")
        return
    if sys.argv[1:] not in ([], ["--check"], ["--write"]):
        print(__doc__, end="", file=sys.stderr)
        sys.exit(2)
    try:
        rows = all_measured(sys.argv[1:] == ["--check"])
        if sys.argv[1:] == ["--check"]:
            print(f"{len(rows)} images give one output")
            return
        print("".join(table(rows)), end="")
        if sys.argv[1:]:
            write(rows)
    except (count.Failure, OSError) as failure:
        sys.exit(f"measure.py: {failure}")


if __name__ == "__main__":
    main()
