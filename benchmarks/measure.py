"""Builds the library in several ways and measures each: bytes, stack, instructions and modelled cycles."""
import collections
import concurrent.futures
import os
import pathlib
import re
import subprocess

import count

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "build/report"
HEADER = (ROOT / "include/quvex.h").read_text()
OPERATION = r"QUVEX_\d{6}"
FIFTY = re.findall(rf"\b({OPERATION})\(", HEADER)
# The unit of an operation is that of its first string: tables show it in this column.
WIDE = {name for name in FIFTY if re.search(rf"\b{name}\([^)q]*quvex_wide", HEADER)}

GNU = "arm-none-eabi-"
CORE = ["-mcpu=cortex-m4", "-mthumb", "-mfloat-abi=soft"]
BUILDS = ("gcc size", "gcc speed", "clang size", "clang speed")
LIBRARIES = ("newlib", "newlib-nano", "picolibc")

Measured = collections.namedtuple("Measured", "instructions cycles")


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)
    if done.returncode:
        raise count.Failure(f"{' '.join(map(str, command))}\n{done.stdout}")
    return done.stdout


def folder_of(build):
    return FOLDER / build.replace(" ", "-")


def build(name, *targets):
    """One of BUILDS, by the library's own CMake target; the compiler also notes each function's stack."""
    folder = folder_of(name)
    compiler, kind = name.split()
    preset = {"size": "target", "speed": "target-speed"}[kind]
    other = ["--toolchain", ROOT / "cmake/cortex-m4-clang.cmake"] if compiler == "clang" else []
    run("cmake", "--preset", preset, *other, "-B", folder, "-DBUILD_TESTING=OFF", cwd=ROOT,
        env={**os.environ, "CXXFLAGS": "-fstack-usage"})
    run("cmake", "--build", folder, "--target", "quvex", *targets)


def sections(path):
    """Bytes of each section that an image loads or zeroes, by name, of an object, archive or image."""
    sizes = collections.Counter()
    for line in run(GNU + "readelf", "-SW", path).splitlines():
        found = re.match(r"\s*\[ *\d+\] (\S+)\s+(\S+)\s+\w+ \w+ (\w+) \w+\s+\w*A\w* ", line)
        if found:
            sizes[found[1]] += int(found[3], 16)
    return +sizes


def code_bytes(name):
    """Bytes of each operation's section, literals included, of the constants, and of anything else."""
    sizes = sections(folder_of(name) / "libquvex.a")
    bytes_of = {operation: sizes.pop(f".text.{operation}") for operation in FIFTY}
    bytes_of["constants"] = sum(size for section, size in sizes.items() if section.startswith(".rodata"))
    bytes_of["other"] = sum(sizes.values()) - bytes_of["constants"]
    return bytes_of


def linked_bytes(archive, symbol):
    """Bytes of code and of data that `symbol` and all that it refers to add to an image."""
    image = FOLDER / "linked.elf"
    run(GNU + "ld", "--gc-sections", "-e", symbol, "-u", symbol, "--unresolved-symbols=ignore-all", archive,
        "-o", image)
    unmeant = (".ARM", ".persistent", ".bss")  # unwinding, the linker script's rounding, and no flash
    sizes = {name: size for name, size in sections(image).items() if not name.startswith(unmeant)}
    code = sizes.pop(".text")
    return code, sum(sizes.values())


def stack_bytes(name):
    """The deepest stack of each operation, with what it calls: a call stands on the frame, a tail call replaces it."""
    own = {}
    for file in folder_of(name).glob("CMakeFiles/quvex.dir/src/**/*.su"):
        for line in file.read_text().splitlines():
            own[re.search(OPERATION, line)[0]] = int(line.split("\t")[1])
    calls, caller = collections.defaultdict(set), None
    for line in run(GNU + "objdump", "-dr", folder_of(name) / "libquvex.a").splitlines():
        if found := re.match(rf"\w+ <({OPERATION})>:", line):
            caller = found[1]
        elif found := re.search(rf"R_ARM_(THM_CALL|THM_JUMP\d+)\s+({OPERATION})", line):
            calls[caller].add((found[2], found[1] == "THM_CALL"))

    def deepest(operation):
        return max([own[operation]] + [deepest(callee) + (own[operation] if stacked else 0)
                                       for callee, stacked in calls[operation]])

    return {operation: deepest(operation) for operation in FIFTY}


def library_archive(library):
    """The C library's archive for the core."""
    variant = run(GNU + "gcc", *CORE, "-print-multi-directory").strip()
    return {"newlib": pathlib.Path("/usr/lib/arm-none-eabi/newlib", variant, "libc.a"),
            "newlib-nano": pathlib.Path("/usr/lib/arm-none-eabi/newlib", variant, "libc_nano.a"),
            "picolibc": pathlib.Path("/usr/lib/picolibc/arm-none-eabi/lib", variant, "libc.a")}[library]


def executed(name, library, *arguments):
    """{(case, function): {length: Measured}} of the cases' image with `library`, in the cases' order."""
    cases = collections.defaultdict(dict)
    for row in count.count(folder_of(name) / f"benchmarks/cases-{library}", arguments):
        case, function, length = row.name.split(" | ")
        cases[case, function][int(length)] = Measured(row.instructions, row.cycles)
    return dict(cases)


def executed_all(runs):
    """`executed` of each (build, library), with its arguments, side by side."""
    with concurrent.futures.ProcessPoolExecutor(max_workers=os.cpu_count()) as pool:
        started = {pair: pool.submit(executed, *pair, *arguments) for pair, arguments in runs.items()}
        return {pair: run.result() for pair, run in started.items()}


def readable_names(cases):
    """The readable name of each operation, as the first of its cases gives it."""
    names = {}
    for case, function in cases:
        if re.match(OPERATION, function):
            names.setdefault(function, case.split(",")[0])
    return names
