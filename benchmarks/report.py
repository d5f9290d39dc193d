"""What scripts/report runs, which tells how to use it: measures, writes the documents, holds the budgets."""
import functools
import re
import statistics
import sys

import measure
from count import Failure

BUDGETS = measure.ROOT / "benchmarks/budgets.txt"
DOCUMENT = measure.ROOT / "docs/measurements.md"
README = measure.ROOT / "README.md"
GCC = ("gcc size", "gcc speed")
LONG = (256, 512, 1024)

# Times their counterpart in picolibc's size build that operations built for size by GCC may weigh, and take at 512 units
# or 10 digits; and the reason of each that is beyond.
BOUNDS = {"bytes": 1.25, "cycles": 1.01}
TELLS_MORE = "the result tells the place as well as the order, and null strings have an order too"
TESTED_FIRST = "the loop tests at its top, with one branch more for each unit, for fewer bytes"
REASONS = {
    "bytes": {
        "copy": "null, and a copy onto itself, are answered",
        **dict.fromkeys(("compare", "compare_counted"), TELLS_MORE),
        "next_token": "a filter made of the set passes over most units with one test",
    },
    "cycles": {"compare": TELLS_MORE, **dict.fromkeys(("append", "copy_counted", "find_character"), TESTED_FIRST)},
}

# What the runs execute: the operations of each build, and beside those of one the C libraries.
RUNS = {**{(build, "newlib"): ("ours",) for build in measure.BUILDS},
        ("gcc speed", "newlib"): (), ("gcc speed", "picolibc"): ("theirs",)}
SHORT_RUNS = {**{(build, "newlib"): ("short", "ours") for build in measure.BUILDS},
              ("gcc speed", "picolibc"): ("short", "theirs")}


class Figures:
    """Everything measured: bytes, stack and cases by build, and what tables need to show them."""

    def __init__(self, runs):
        measure.in_parallel(measure.build, measure.BUILDS)
        others = [build for build in measure.BUILDS if build != "gcc speed"]
        measure.build_images([measure.folder_of(build) / "libquvex.a" for build in others])
        self.bytes = {build: measure.code_bytes(build) for build in measure.BUILDS}
        self.stack = {build: measure.stack_bytes(build) for build in measure.BUILDS}
        self.runs = measure.executed_all(runs)
        self.cases = self.runs["gcc size", "newlib"]
        self.names = measure.readable_names(self.cases)

    def total(self, build):
        return sum(self.bytes[build].values())

    def label(self, operation):
        """Its readable name; with the width, where the operation has a twin."""
        name = self.names[operation]
        twins = [other for other in measure.LINK_NAMES if self.names[other] == name]
        return name if len(twins) == 1 else f"{name}, {'wide' if operation in measure.WIDE else 'narrow'}"

    def in_order(self):
        """The link names in the order of the table of cases."""
        return sorted(measure.LINK_NAMES, key=list(self.names).index)

    def rows(self):
        """Each case with its narrow, wide and library function, None where there is none."""
        table = {}
        for case, function in [*self.cases, *self.runs["gcc speed", "picolibc"]]:
            if re.match(measure.OPERATION, function):
                column = 1 if function in measure.WIDE else 0
            else:
                column = 2
            table.setdefault(case, [None, None, None])[column] = function
        return table.items()


def fit(lengths, kind):
    """Intercept and slope over the long texts, or all the digits."""
    chosen = [n for n in lengths if n in LONG] or sorted(lengths)
    costs = [getattr(lengths[n], kind) for n in chosen]
    slope, intercept = statistics.linear_regression(chosen, costs)
    if any(abs(intercept + slope * n - cost) > cost / 50 for n, cost in zip(chosen, costs) if n in LONG):
        raise Failure(f"{costs} {kind} for {chosen} units are not in proportion")
    return round(intercept), round(slope, 2)


def formula(lengths, kind):
    if lengths is None:
        return "–"
    a, b = fit(lengths, kind)
    return f"{a}" if not b else f"{a} + {b:g}·n" if a >= 0 else f"{b:g}·n − {-a}"


def table(heads, rows):
    """Markdown after an empty line; every column but the first is right-aligned."""
    lines = ["", "| " + " | ".join(heads) + " |", "|---|" + "---:|" * (len(heads) - 1)]
    return "\n".join(lines + ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]) + "\n"


@functools.cache
def counterparts(figures):
    """Each operation with one: case, narrow and wide bytes, counterpart, its code and data in each library."""
    size = figures.bytes["gcc size"]
    return [(case, size.get(narrow), size.get(wide), library,
             [measure.linked_bytes(measure.library_archive(name), library) for name in measure.LIBRARIES])
            for case, (narrow, wide, library) in figures.rows() if library and "," not in case]


def units(figures):
    """Each case whose cost grows with the text: cycles a unit built for speed and for size, and of the libraries."""
    for case, (narrow, wide, library) in figures.rows():
        fast, small = (fit(figures.runs[build, "newlib"][case, narrow or wide], "cycles")[1] for build in GCC[::-1])
        if fast:
            yield case, fast, small, {name: fit(figures.runs["gcc speed", name][case, library], "cycles")[1]
                                      for name in ("newlib", "picolibc") if library}


def ratio(narrow, wide, linked):
    """To the code of picolibc's, the last of the libraries."""
    return (narrow or wide) / linked[-1][0]


def longest(lengths):
    """Of those that the check runs, too."""
    return 512 if 512 in lengths else 10


def compared(figures):
    """Each case that has a counterpart: kind, case, times picolibc's."""
    for case, narrow, wide, _, linked in counterparts(figures):
        yield "bytes", case, ratio(narrow, wide, linked)
    for case, (narrow, wide, library) in figures.rows():
        if library:
            ours = figures.runs["gcc size", "newlib"][case, narrow or wide]
            theirs = figures.runs["gcc speed", "picolibc"][case, library]
            yield "cycles", case, ours[longest(ours)].cycles / theirs[longest(ours)].cycles


def explained(figures, kind):
    """A line for each case that is beyond the bound of its kind: what it is, and why."""
    return [f"- `{case}`, {times:.2f} times: {REASONS[kind].get(case, 'no reason')}."
            for what, case, times in compared(figures) if what == kind and times > BOUNDS[kind]]


def unexplained(figures):
    return [f"{case}: {times:.2f} times picolibc's {kind}, and no reason"
            for kind, case, times in compared(figures) if times > BOUNDS[kind] and case not in REASONS[kind]]


def short_call(figures, build):
    """Modelled cycles of a call on 7 units: the geometric mean of all cases, both widths."""
    return round(statistics.geometric_mean(
        lengths[7].cycles for (case, function), lengths in figures.runs[build, "newlib"].items()
        if re.match(measure.OPERATION, function)), 1)


def figures_block(figures):
    """What the README shows."""
    stack = figures.stack["gcc size"].values()
    size, clang_14, clang_19, speed = (figures.total(build) for build in measure.BUILDS[:4])
    ram = max(figures.bytes[build]["other"] for build in GCC)
    ram = f"{ram} bytes of RAM" if ram else "no RAM"
    return f"""All fifty operations take **{size:,} bytes** of flash with their constants when GCC builds them for size for
a Cortex-M4 (clang 14: {clang_14:,}, clang 19: {clang_19:,}), {speed:,} when built for speed, and {ram}. The deepest
stack is {max(stack)} bytes, calls included; half of them need {statistics.median(stack):g} or less.
[Bytes, stack, instructions and cycles of every operation](docs/measurements.md), for each compiler and build
system, beside those of newlib and picolibc.
"""


def document(figures):
    yield f"""# Measurements

What the library weighs and costs on a Cortex-M4. `scripts/report` builds, measures and writes all of this; nothing here
is typed in. Instructions are counted in an emulator. Cycles are a model, from the core's published instruction timings
with memory that never waits (`benchmarks/count.py --help` states it), of images whose functions are aligned: good for
comparing two pieces of code, and never seconds.

Builds for size are CMake's `MinSizeRel`, builds for speed its `Release` with `-O2`, by the compilers of Debian 12.

## Totals
"""
    stacks = [figures.stack[build].values() for build in measure.BUILDS]
    versions = [measure.version(compiler) for compiler in measure.COMPILERS]
    yield table(["", *(f"{kind}: {version}" for kind in ("size", "speed") for version in versions)], [
        ["All operations, constants included: bytes of flash", *(f"{figures.total(build):,}" for build in measure.BUILDS)],
        ["Data, zeroed memory, unwind tables: bytes", *(figures.bytes[build]["other"] for build in measure.BUILDS)],
        ["Deepest stack, calls included: bytes", *(max(each) for each in stacks)],
        ["Median of the operations' stacks: bytes", *(f"{statistics.median(each):g}" for each in stacks)],
        ["A call on 7 units, mean of all: modelled cycles", *(short_call(figures, build) for build in measure.BUILDS)]])
    yield """
The mean is the geometric mean of all the calls that are listed below, of both widths.

![Flash beside other libraries](flash.svg)

![Modelled cycles for each unit beside other libraries](speed.svg)

## Flash by build system

Bytes of all operations with their constants, as each build system compiles them, and after a plus those of unwind
tables (`.ARM.exidx`). Of Zephyr, PlatformIO and ESP-IDF these are the flags that the library's files for them
give, after `-Os -ffunction-sections`, which their own builds set.
"""
    yield table(["built by", *versions], [
        [door, *(f"{code:,} + {tables}" if tables else f"{code:,}" for code, tables in bytes_of)]
        for door, bytes_of in measure.through_doors()])
    yield """
Bytes of a small application, `benchmarks/linked.cpp`, with what it needs of the library: linked as compiled, and
with link-time optimization of both. Clang is kept from inlining the operations, whose stores it would take for other
memory than the application's `char16_t`; the last column is what it would weigh otherwise.
"""
    yield table(["", "as compiled", "link-time optimization", "if clang inlined"], [
        [f"{version}, `{level}`", *(
            measure.application_bytes(compiler, level, linking) if compiler != "gcc" or linking != "inlined" else "–"
            for linking in ("compiled", "optimized", "inlined"))]
        for compiler, version in zip(measure.COMPILERS, versions) for level in ("-Os", "-O2")])
    yield """
## Flash and stack of each operation

Bytes of the operation's section, literals included; bytes of the deepest stack, with what the operation calls.
"""
    order = figures.in_order()
    rows = [[f"`{figures.label(operation)}`", *(figures.bytes[build][operation] for build in measure.BUILDS),
             *(figures.stack[build][operation] for build in GCC)] for operation in order]
    rows.append(["constants", *(figures.bytes[build]["constants"] for build in measure.BUILDS), "–", "–"])
    yield table(["operation", *measure.BUILDS, *("stack: " + build for build in GCC)], rows)
    yield """
What no operation bounds, and what `quvex_line.h` adds, is composed of operations in the headers: bytes of each where it
is a function of its own, compiled with `-Os`, without the operations, or others of this table, that it calls.
"""
    yield composed()
    yield f"""
## Flash beside other libraries

The operations built for size by GCC, and their counterparts in the C libraries of Debian: bytes of code that the
function brings into an image, and of tables and data, if any. The ratio is that of the narrow operation to the code of
picolibc's size build.
"""
    yield table(["operation", "narrow", "wide", "counterpart", *measure.LIBRARIES, "ratio"], [
        [f"`{case}`", narrow or "–", wide or "–", f"`{library}`",
         *(f"{code:,} + {data:,}" if data else f"{code:,}" for code, data in linked),
         f"{ratio(narrow, wide, linked):.2f}"]
        for case, narrow, wide, library, linked in counterparts(figures)])
    heavier = explained(figures, "bytes")
    yield "\n".join(["", f"More than {BOUNDS['bytes']} times picolibc's, and why:", "", *heavier, ""])
    yield """
## Speed beside other libraries

Text of n units, `A` to `Z` repeating, the unit that decides at the end, a set of three for `next_token`;
`benchmarks/cases.cpp` tells the other cases. Figures are a + b·n over 256, 512 and 1,024 units, or over 1 to 10 digits,
from the calling instruction to the return. A wide operation has a row where a unit costs it otherwise than its narrow
twin. Newlib moves whole words where it can, and reads past a terminator to do so; these operations never do.

### Modelled cycles
"""
    yield cycles_table(figures, lambda lengths: formula(lengths, "cycles"), lambda lengths: fit(lengths, "cycles")[1])
    slower = explained(figures, "cycles")
    if slower:
        yield "\n".join(["", "Slower at 512 units, built for size by GCC, than picolibc's, and why:", "", *slower, ""])
    yield """
### Modelled cycles of a short call

On 7 units. A wide operation has a row where the call costs it otherwise.
"""
    yield cycles_table(figures, lambda lengths: lengths[7].cycles if 7 in lengths else "–",
                       lambda lengths: lengths[7].cycles)
    yield "\n### Instructions\n"
    yield table(["case", "speed: narrow", "wide", "size: narrow", "wide"], [
        [f"`{case}`", *(formula(figures.runs[build, "newlib"].get((case, function)), "instructions")
                        for build in GCC[::-1] for function in functions[:2])] for case, functions in figures.rows()])


def composed():
    """The table of what the headers compose, by each compiler for size."""
    bytes_of = [measure.composed_bytes(compiler, "-Os") for compiler in measure.COMPILERS]
    return table(["composed", *(f"{measure.version(compiler)}, {width}" for compiler in measure.COMPILERS
                                for width in ("narrow", "wide"))],
                 [[f"`{name}`", *(size for each in bytes_of for size in each[name])] for name in bytes_of[0]])


def cycles_table(figures, shown, differing):
    """A row a case, and one for its wide operation where `differing` gives another figure; `shown` makes the cells."""
    rows = []
    for case, (narrow, wide, library) in figures.rows():
        ours = [[figures.runs[build, "newlib"][case, function] for build in measure.BUILDS]
                for function in (narrow, wide) if function]
        theirs = [shown(figures.runs["gcc speed", name][case, library]) if library else "–"
                  for name in ("newlib", "picolibc")]
        rows.append([f"`{case}`", *map(shown, ours[0]), f"`{library}`" if library else "–", *theirs])
        if list(map(differing, ours[0])) != list(map(differing, ours[-1])):
            rows.append([f"`{case}`, wide", *map(shown, ours[1]), "–", "–", "–"])
    return table(["case", *measure.BUILDS, "counterpart", "newlib", "picolibc"], rows)


def budget_lines(figures):
    """What, and its figure in each of the builds."""
    def line(what, figure_of):
        return f"{what}: " + " ".join(str(figure_of(build)) for build in measure.BUILDS)

    yield line("bytes, all", figures.total)
    yield line("cycles of 7 units, mean", lambda build: short_call(figures, build))
    for operation in figures.in_order():
        yield line(f"bytes, {figures.label(operation)}", lambda build: figures.bytes[build][operation])
        yield line(f"stack, {figures.label(operation)}", lambda build: figures.stack[build][operation])
    for case, function in figures.cases:
        lengths = figures.cases[case, function]
        width = ", wide" if function in measure.WIDE else ""
        yield line(f"cycles of {longest(lengths)} units, {case}{width}",
                   lambda build: figures.runs[build, "newlib"][case, function][longest(lengths)].cycles)


def check(figures):
    """What has grown past its budget or beyond reason; also says what could be recorded."""
    wrong, better = [], 0
    budgets = dict(line.rsplit(": ", 1) for line in BUDGETS.read_text().splitlines()[1:])
    for line in budget_lines(figures):
        what, measured = line.rsplit(": ", 1)
        if what not in budgets:
            wrong.append(f"{what}: no budget")
            continue
        for build, figure, budget in zip(measure.BUILDS, measured.split(), budgets.pop(what).split()):
            if float(figure) > float(budget):
                wrong.append(f"{build}, {what}: {figure}, budget {budget}")
            better += float(figure) < float(budget)
    wrong += [f"{what}: a budget, but no figure" for what in budgets]
    wrong += unexplained(figures)
    for line in wrong:
        print("FAILED", line)
    if better:
        print(f"{better} figures are below their budgets; scripts/report --record makes that the rule.")
    print(f"{len(wrong)} figures are past their budgets")
    return not wrong


def write(figures, record):
    if wrong := unexplained(figures):
        raise Failure("\n".join(wrong))
    import charts  # needs matplotlib, which --check does without
    DOCUMENT.parent.mkdir(exist_ok=True)
    DOCUMENT.write_text("".join(document(figures)))
    charts.flash(DOCUMENT.parent / "flash.svg", figures.total("gcc size"), [
        (case, library, narrow or wide, linked[0][0], linked[-1][0])
        for case, narrow, wide, library, linked in counterparts(figures)])
    charts.speed(DOCUMENT.parent / "speed.svg", list(units(figures)))
    written = [DOCUMENT, DOCUMENT.parent / "flash.svg", DOCUMENT.parent / "speed.svg"]
    if record:
        BUDGETS.write_text("".join(line + "\n" for line in [", ".join(measure.BUILDS), *budget_lines(figures)]))
        written.append(BUDGETS)
    if README.exists():
        text = README.read_text()
        block = f"<!-- figures -->\n{figures_block(figures)}<!-- /figures -->"
        new = re.sub(r"<!-- figures -->.*?<!-- /figures -->", lambda _: block, text, flags=re.S)
        if new != text:
            README.write_text(new)
            written.append(README)
    for path in written:
        print(path.relative_to(measure.ROOT))


def main(option=""):
    try:
        if option == "--check":
            sys.exit(not check(Figures(SHORT_RUNS)))
        write(Figures(RUNS), option == "--record")
    except (Failure, OSError) as failure:
        sys.exit(f"report: {failure}")


if __name__ == "__main__":
    main(*sys.argv[1:])
