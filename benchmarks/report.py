"""What scripts/report runs, which tells how to use it: measures, writes the documents, holds the budgets."""
import re
import statistics
import sys

import measure
from count import Failure

BUDGETS = measure.ROOT / "benchmarks/budgets.txt"
DOCUMENT = measure.ROOT / "docs/measurements.md"
README = measure.ROOT / "README.md"
GCC = ("gcc size", "gcc speed")
LONG = (256, 1024, 4096)

# Operations that may weigh more than 1.25 times picolibc's: what their contracts ask for beyond it.
ALLOWED = 1.25
EXPLAINED = {
    "copy": "null, and a copy onto itself, are answered",
    **dict.fromkeys(("compare", "compare_counted", "compare_folded", "compare_folded_counted"),
                    "the result tells the place as well as the order, and null strings have an order too"),
}

# What the runs execute: all of it would be the operations with each library, and the libraries with each build.
RUNS = {("gcc speed", "newlib"): (), ("gcc size", "newlib"): ("ours",),
        ("gcc speed", "newlib-nano"): ("theirs",), ("gcc speed", "picolibc"): ("theirs",)}
SHORT_RUNS = {(build, "newlib"): ("short", "ours") for build in GCC}


class Figures:
    """Everything measured: bytes, stack and cases by build, and what tables need to show them."""

    def __init__(self, builds, runs):
        for build in builds:
            measure.build(build, *(["benchmarks"] if build in GCC else []))
        self.bytes = {build: measure.code_bytes(build) for build in builds}
        self.stack = {build: measure.stack_bytes(build) for build in builds}
        self.runs = measure.executed_all(runs)
        self.cases = self.runs[next(iter(runs))]
        self.names = measure.readable_names(self.cases)

    def total(self, build):
        return sum(self.bytes[build].values())

    def label(self, operation):
        """Its readable name; with the width, where the operation has a twin."""
        name = self.names[operation]
        twins = [other for other in measure.FIFTY if self.names[other] == name]
        return name if len(twins) == 1 else f"{name}, {'wide' if operation in measure.WIDE else 'narrow'}"

    def in_order(self):
        """The fifty, a line of the table of cases after the other."""
        return sorted(measure.FIFTY, key=list(self.names).index)

    def rows(self):
        """Each case with its narrow, wide and library function, None where there is none."""
        table = {}
        for case, function in self.cases:
            if re.match(measure.OPERATION, function):
                column = 1 if function in measure.WIDE else 0
            else:
                column = 2
            table.setdefault(case, [None, None, None])[column] = function
        return table.items()


def fit(lengths, kind):
    """Intercept and slope over the long texts, or all the digits."""
    chosen = [n for n in lengths if n in LONG] or sorted(lengths)
    slope, intercept = statistics.linear_regression(chosen, [getattr(lengths[n], kind) for n in chosen])
    return round(intercept), round(slope, 2)


def formula(lengths, kind):
    if lengths is None:
        return "–"
    a, b = fit(lengths, kind)
    return f"{a}" if not b else f"{a} + {b:.2f}·n" if a >= 0 else f"{b:.2f}·n − {-a}"


def table(heads, rows):
    """Markdown behind an empty line; every column but the first is right-aligned."""
    lines = ["", "| " + " | ".join(heads) + " |", "|---|" + "---:|" * (len(heads) - 1)]
    return "\n".join(lines + ["| " + " | ".join(str(cell) for cell in row) + " |" for row in rows]) + "\n"


def counterparts(figures):
    """Each operation with one: case, narrow and wide bytes, counterpart, its code and data in each library."""
    size = figures.bytes["gcc size"]
    for case, (narrow, wide, library) in figures.rows():
        if library and "," not in case:
            linked = [measure.linked_bytes(measure.library_archive(name), library) for name in measure.LIBRARIES]
            yield case, size.get(narrow), size.get(wide), library, linked


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


def figures_block(figures):
    """What the README shows."""
    stack = figures.stack["gcc size"].values()
    size, speed = (figures.total(build) for build in GCC)
    ram = max(figures.bytes[build]["other"] for build in GCC)
    ram = f"{ram} bytes of RAM" if ram else "no RAM"
    return f"""All fifty operations take **{size:,} bytes** of flash with their constants when built for size (GCC,
Cortex-M4), {speed:,} when built for speed, and {ram}. The deepest stack is {max(stack)} bytes, calls
included; half of them need {statistics.median(stack):g} or less.
[Bytes, stack, instructions and cycles of every operation](docs/measurements.md), beside those of newlib and picolibc.
"""


def document(figures):
    total = [f"{figures.total(build):,}" for build in measure.BUILDS]
    yield f"""# Measurements

What the library weighs and costs on a Cortex-M4. `scripts/report` builds, measures and writes all of this; nothing here
is typed in. Instructions are counted in an emulator. Cycles are a model, from the core's published instruction timings
with memory that never waits (`benchmarks/count.py --help` states it): good for comparing two pieces of code, and never
seconds. Builds for size are CMake's `MinSizeRel` (`-Os`), builds for speed `-O2`.

## Totals
"""
    stacks = [figures.stack[build].values() for build in measure.BUILDS]
    yield table(["", *(build.replace("gcc", "GCC") for build in measure.BUILDS)], [
        ["All fifty, constants included: bytes of flash", *total],
        ["Data, zeroed memory, unwind tables: bytes", *(figures.bytes[build]["other"] for build in measure.BUILDS)],
        ["Deepest stack, calls included: bytes", *(max(each) for each in stacks)],
        ["Median of the operations' stacks: bytes", *(f"{statistics.median(each):g}" for each in stacks)]])
    yield """
![Flash beside other libraries](flash.svg)

![Modelled cycles for each unit beside other libraries](speed.svg)

## Flash and stack of each operation

Bytes of the operation's section, literals included; bytes of the deepest stack, with what the operation calls.
"""
    order = figures.in_order()
    rows = [[f"`{figures.label(operation)}`", *(figures.bytes[build][operation] for build in measure.BUILDS),
             *(figures.stack[build][operation] for build in measure.BUILDS)] for operation in order]
    rows.append(["constants", *(figures.bytes[build]["constants"] for build in measure.BUILDS), *["–"] * 4])
    yield table(["operation", *measure.BUILDS, *("stack: " + build for build in measure.BUILDS)], rows)
    yield f"""
## Flash beside other libraries

The operations built for size by GCC, and their counterparts in the C libraries of Debian: bytes of code that the
function brings into an image, and of tables and data, if any. The ratio is that of the narrow operation to the code of
picolibc's size build.
"""
    rows, reasons = [], []
    for case, narrow, wide, library, linked in counterparts(figures):
        times = ratio(narrow, wide, linked)
        if times > ALLOWED:
            reasons.append(f"- `{case}`: {EXPLAINED.get(case, 'NOT EXPLAINED')}.")
        rows.append([f"`{case}`", narrow or "–", wide or "–", f"`{library}`",
                     *(f"{code:,} + {data:,}" if data else f"{code:,}" for code, data in linked),
                     f"{times:.2f}"])
    yield table(["operation", "narrow", "wide", "counterpart", *measure.LIBRARIES, "ratio"], rows)
    if reasons:
        yield f"\nMore than {ALLOWED} times picolibc's, and why:\n\n" + "\n".join(reasons) + "\n"
    yield """
## Speed beside other libraries

Text of n units, `A` to `Z` repeating, the unit that decides at the end; the other cases are told in
`benchmarks/cases.cpp`. Figures are a + b·n over 256, 1,024 and 4,096 units, or over 1 to 10 digits, from the calling
instruction to the return, of the library built for speed and for size by GCC. Newlib moves whole words where it can,
and reads past a terminator to do so; these operations never do.
"""
    for kind, what in (("cycles", "Modelled cycles"), ("instructions", "Instructions")):
        yield f"\n### {what}\n"
        yield speed_table(figures, kind)
    yield """
## A short call, and cost in proportion

Modelled cycles of a call on 7 units, and for each unit of 256, 1,024 and 4,096: built for speed, then for size. A cost
that is in proportion to the work shows the same figure for each length.
"""
    rows = []
    for case, functions in figures.rows():
        for function in functions[:2]:
            runs = [figures.runs[build, "newlib"][case, function] for build in GCC[::-1]] if function else []
            if runs and 4096 in runs[0] and fit(runs[0], "cycles")[1]:
                rows.append([f"`{case}`" + (", wide" if function in measure.WIDE else ""),
                             *(cell for lengths in runs for cell in
                               [lengths[7].cycles, *(f"{lengths[n].cycles / n:.2f}" for n in LONG)])])
    yield table(["case", *(f"{build.split()[1]}: {what}" for build in GCC[::-1]
                           for what in ("7 units", "256", "1,024", "4,096"))], rows)


def speed_table(figures, kind):
    rows = []
    for case, (narrow, wide, library) in figures.rows():
        ours = [figures.runs[build, "newlib"].get((case, function))
                for build in GCC[::-1] for function in (narrow, wide)]
        theirs = [figures.runs["gcc speed", name].get((case, library)) for name in measure.LIBRARIES]
        rows.append([f"`{case}`", *(formula(lengths, kind) for lengths in ours), f"`{library}`" if library else "–",
                     *(formula(lengths, kind) for lengths in theirs)])
    return table(["case", "speed: narrow", "wide", "size: narrow", "wide", "counterpart", *measure.LIBRARIES], rows)


def budget_lines(figures):
    """One figure a line: build, kind, what, figure."""
    for build in GCC:
        yield f"{build}, bytes, all: {figures.total(build)}"
        for operation in figures.in_order():
            yield f"{build}, bytes, {figures.label(operation)}: {figures.bytes[build][operation]}"
            yield f"{build}, stack, {figures.label(operation)}: {figures.stack[build][operation]}"
        for (case, function), lengths in figures.runs[build, "newlib"].items():
            if re.match(measure.OPERATION, function):
                length = 512 if 512 in lengths else 10
                width = ", wide" if function in measure.WIDE else ""
                yield f"{build}, cycles of {length} units, {case}{width}: {lengths[length].cycles}"


def check(figures):
    """What has grown past its budget or beyond reason; also says what could be recorded."""
    wrong, better = [], 0
    budgets = dict(line.rsplit(": ", 1) for line in BUDGETS.read_text().splitlines())
    for line in budget_lines(figures):
        what, figure = line.rsplit(": ", 1)
        budget = budgets.pop(what, None)
        if budget is None:
            wrong.append(f"{what}: {figure}, but no budget")
        elif int(figure) > int(budget):
            wrong.append(f"{what}: {figure}, budget {budget}")
        better += budget is not None and int(figure) < int(budget)
    wrong += [f"{what}: a budget, but no figure" for what in budgets]
    for case, narrow, wide, library, linked in counterparts(figures):
        if ratio(narrow, wide, linked) > ALLOWED and case not in EXPLAINED:
            wrong.append(f"{case}: {ratio(narrow, wide, linked):.2f} times the {library} of picolibc")
    for line in wrong:
        print("FAILED", line)
    if better:
        print(f"{better} figures are below their budgets; scripts/report --record makes that the rule.")
    print(f"{len(wrong)} figures are past their budgets")
    return not wrong


def write(figures, record):
    import charts  # needs matplotlib, which --check does without
    DOCUMENT.parent.mkdir(exist_ok=True)
    DOCUMENT.write_text("".join(document(figures)))
    charts.flash(DOCUMENT.parent / "flash.svg", figures.total("gcc size"), [
        (case, library, narrow or wide, linked[0][0], linked[-1][0])
        for case, narrow, wide, library, linked in counterparts(figures)])
    charts.speed(DOCUMENT.parent / "speed.svg", list(units(figures)))
    written = [DOCUMENT, DOCUMENT.parent / "flash.svg", DOCUMENT.parent / "speed.svg"]
    if record:
        BUDGETS.write_text("".join(line + "\n" for line in budget_lines(figures)))
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
            sys.exit(not check(Figures(GCC, SHORT_RUNS)))
        write(Figures(measure.BUILDS, RUNS), option == "--record")
    except (Failure, OSError) as failure:
        sys.exit(f"report: {failure}")


if __name__ == "__main__":
    main(*sys.argv[1:])
