"""Builds the library in several ways and measures each: bytes, stack, instructions and modelled cycles."""
import collections
import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess

import count

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "build/report"
HEADER = (ROOT / "include/quvex.h").read_text()
OPERATION = r"QUVEX_\d{6}"
LINK_NAMES = re.findall(rf"\b({OPERATION})\(", HEADER)
# The unit of an operation is that of its first string: tables show it in this column.
WIDE = {name for name in LINK_NAMES if re.search(rf"\b{name}\([^)q]*quvex_wide", HEADER)}

GNU = "arm-none-eabi-"
CORE = ["-mcpu=cortex-m4", "-mthumb", "-mfloat-abi=soft"]
CLANG = ["--target=thumbv7em-none-eabi", *CORE, "-isystem", "/usr/lib/arm-none-eabi/include"]
COMPILERS = {"gcc": [GNU + "g++", *CORE], **{f"clang-{number}": [f"clang++-{number}", *CLANG] for number in (14, 19)}}
BUILDS = tuple(f"{compiler} {kind}" for kind in ("size", "speed") for compiler in COMPILERS)
LIBRARIES = ("newlib", "newlib-nano", "picolibc")

# What CMake is told beside the compiler: its two builds that are measured, and the others that a project may ask for.
PRESETS = {"size": ["target"], "speed": ["target-speed"], "release": ["target", "-DCMAKE_BUILD_TYPE=Release"],
           "release-small": ["target", "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-Os"]}
BARE = "-ffunction-sections -fno-exceptions -fno-unwind-tables -fno-asynchronous-unwind-tables"
# Doors whose flags stand in a file of the library.
FILES = {"Zephyr": "zephyr/CMakeLists.txt", "PlatformIO": "library.json", "ESP-IDF": "cmake/esp_idf.cmake"}

Measured = collections.namedtuple("Measured", "instructions cycles")


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)
    if done.returncode:
        raise count.Failure(f"{' '.join(map(str, command))}\n{done.stdout}")
    return done.stdout


def in_parallel(function, *lists):
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(pool.map(function, *lists))


def version(compiler):
    """As a reader names it: GCC 12.2, clang 14.0."""
    number = run(COMPILERS[compiler][0], "-dumpfullversion" if compiler == "gcc" else "-dumpversion")
    return ("GCC " if compiler == "gcc" else "clang ") + number.strip()


def folder_of(build):
    return FOLDER / build.replace(" ", "-")


def build(name):
    """`gcc size`: by the library's own CMake target; the compiler also notes each function's stack."""
    compiler, kind = name.split()
    options = [] if compiler == "gcc" else ["--toolchain", ROOT / "cmake/cortex-m4-clang.cmake",
                                            f"-DCMAKE_CXX_COMPILER={COMPILERS[compiler][0]}"]
    run("cmake", "--preset", *PRESETS[kind], *options, "-B", folder_of(name), "-DBUILD_TESTING=OFF", cwd=ROOT,
        env={**os.environ, "CXXFLAGS": "-fstack-usage"})
    run("cmake", "--build", folder_of(name), "--target", "quvex")


def build_images(archives):
    """The cases with each C library and the library as GCC builds it for speed, and with each archive."""
    run("cmake", f"-DMEASURED_ARCHIVES={';'.join(map(str, archives))}", folder_of("gcc speed"))
    run("cmake", "--build", folder_of("gcc speed"), "--target", "benchmarks")


def build_by_meson(compiler):
    folder = FOLDER / f"{compiler}-meson"
    shutil.rmtree(folder, ignore_errors=True)
    cross = FOLDER / f"{compiler}.ini"
    cross.write_text(f"""[binaries]
cpp = {COMPILERS[compiler]}
ar = '{GNU}ar'
[host_machine]
system = 'none'
cpu_family = 'arm'
cpu = 'cortex-m4'
endian = 'little'
[properties]
skip_sanity_check = true
""")
    run("meson", "setup", "--cross-file", cross, folder, ROOT)
    run("ninja", "-C", folder)
    return [folder / "libquvex.a"]


def build_bare(compiler, flags, *sources):
    """The files alone, or others in their place, copied into a project with these flags."""
    folder = FOLDER / re.sub(r"\W+", "-", " ".join([compiler, flags, *(source.name for source in sources)]))
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    run(*COMPILERS[compiler], *([] if "-std" in flags else ["-std=c++17"]), *flags.split(), f"-I{ROOT}/include", "-c",
        *(sources or ROOT.glob("src/*/*.cpp")), cwd=folder)
    return list(folder.glob("*.o"))


def doors():
    """Each way to build the library, with the function of a compiler that does and gives what it made."""
    def by_cmake(kind):
        def door(compiler):
            build(f"{compiler} {kind}")
            return [folder_of(f"{compiler} {kind}") / "libquvex.a"]
        return door

    def by_flags(flags, *sources):
        return lambda compiler: build_bare(compiler, flags, *sources)

    def in_file(name):
        flags = re.findall(r"(?<![\w-])-f[\w-]+", (ROOT / FILES[name]).read_text())
        return " ".join(["-Os", "-ffunction-sections", *flags])

    yield "CMake, `MinSizeRel`", by_cmake("size")
    yield "CMake, `Release` (`-O3`)", by_cmake("release")
    yield "CMake, `Release` with `-O2`", by_cmake("speed")
    yield "CMake, `Release` with `-Os`", by_cmake("release-small")
    yield "Meson", build_by_meson
    for name in FILES:
        yield f"{name}, flags of `{FILES[name]}`", by_flags(in_file(name))
    yield f"files copied: `-Os {BARE}`", by_flags(f"-Os {BARE}")
    amalgamated = FOLDER / "amalgamated"
    run(ROOT / "scripts/amalgamate", amalgamated)
    for name, flags in (("quvex.cpp", BARE), ("quvex.c", "-x c -std=c99 " + BARE)):
        yield f"`{name}` of `scripts/amalgamate`, likewise", by_flags(f"-Os {flags}", amalgamated / name)
    for level in ("-Os", "-Oz", "-O2", "-O3"):
        yield f"files copied, make: `{level}`", by_flags(level)


def through_doors():
    """Each door, and for each compiler the bytes of code and constants, and of unwind tables."""
    def weigh(door, compiler):
        sizes = sum(map(sections, door(compiler)), collections.Counter())
        tables = sum(size for name, size in sizes.items() if name.startswith(".ARM.ex"))
        return sum(sizes.values()) - tables, tables

    for name, door in doors():
        yield name, in_parallel(weigh, [door] * len(COMPILERS), COMPILERS)


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
    bytes_of = {operation: sizes.pop(f".text.{operation}") for operation in LINK_NAMES}
    bytes_of["constants"] = sum(size for section, size in sizes.items() if section.startswith(".rodata"))
    bytes_of["other"] = sum(sizes.values()) - bytes_of["constants"]
    return bytes_of


def composed_bytes(compiler, level):
    """Bytes of what the headers compose, narrow and wide, by name: without the operations that it calls."""
    source = ROOT / "benchmarks/composed.c"
    (made,) = build_bare(compiler, f"-x c -std=c11 {level} {BARE}", source)
    sizes = sections(made)
    return {name: [sizes[f".text.quvex_{name}_{width}"] for width in ("narrow", "wide")]
            for name in re.findall(r"^KEEP\((\w+)\)", source.read_text(), re.M)}


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

    return {operation: deepest(operation) for operation in LINK_NAMES}


def application_bytes(compiler, level, linking):
    """Flash of benchmarks/linked.cpp and what it needs: linked as "compiled", "optimized" or also "inlined"."""
    folder = FOLDER / re.sub(r"\W+", "-", f"linked {compiler} {level} {linking}")
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(ROOT / "src", folder / "src")
    if linking == "inlined":
        header = folder / "src/quvex_compiler.h"
        text = header.read_text()
        header.write_text(re.sub(r"(EXPORT) QUVEX_NO_CANARY|noinline, no_builtin,?", r"\1", text))
        if header.read_text() == text:
            raise count.Failure("src/quvex_compiler.h keeps no compiler from inlining, or says it in other words")
    flags = [level, *BARE.split()] + (["-flto"] if linking != "compiled" else [])
    run(*COMPILERS[compiler], "-std=c++17", *flags, f"-I{ROOT}/include", "-c", ROOT / "benchmarks/linked.cpp",
        *folder.glob("src/*/*.cpp"), cwd=folder)
    link = [*COMPILERS[compiler], *flags, "-nostdlib", "-Wl,--gc-sections,-e,start"] if compiler == "gcc" else [
        COMPILERS[compiler][0].replace("clang++", "ld.lld"), "--gc-sections", "-e", "start"]
    run(*link, *folder.glob("*.o"), "-o", folder / "linked.elf")
    sizes = sections(folder / "linked.elf")
    return sum(size for name, size in sizes.items() if not name.startswith((".bss", ".ARM")))


def library_archive(library):
    """The C library's archive for the core."""
    variant = run(GNU + "gcc", *CORE, "-print-multi-directory").strip()
    return {"newlib": pathlib.Path("/usr/lib/arm-none-eabi/newlib", variant, "libc.a"),
            "newlib-nano": pathlib.Path("/usr/lib/arm-none-eabi/newlib", variant, "libc_nano.a"),
            "picolibc": pathlib.Path("/usr/lib/picolibc/arm-none-eabi/lib", variant, "libc.a")}[library]


def executed(name, library, *arguments):
    """{(case, function): {length: Measured}} of the cases' image with `library`, in the cases' order."""
    cases = collections.defaultdict(dict)
    image = f"cases-{library}" if name == "gcc speed" else f"cases-{folder_of(name).name}"
    for row in count.count(folder_of("gcc speed") / "benchmarks" / image, arguments):
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
