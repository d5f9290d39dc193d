#!/usr/bin/env python3
"""Instructions and modelled Cortex-M4 cycles of every call that one function of an image makes.

    benchmarks/count.py IMAGE [--caller measured] [--untraced REGEX] [--functions] [ARGUMENT...]

The emulator runs IMAGE with the arguments and traces it, one instruction a step. Every call from the function named by
--caller is a row: what was executed from the calling instruction to the return, what it calls included. The image
prints one line for each call, its name. With --functions each row is followed by its instructions and cycles by
function. Functions that match --untraced run without a trace, much faster: what prepares the cases, and nothing that is
counted.

The emulator knows no pipeline: the cycles are a model, from the published instruction timings of the core with memory
that never waits. They are good for comparing two pieces of code, and are never seconds.

    data processing, multiply, compare, IT           1
    load                                             2, or 1 right after a load or store that does not produce its
                                                     address; in an IT block charged as if executed
    store                                            1
    load or store of n registers                     1 + n, and 2 more to load the program counter
    double word                                      load 3, store 2
    branch                                           not taken 1; taken, call, return 2, or 3 if its target is a
                                                     4-byte instruction across a word
    division                                         6 (the core takes 2 to 12)
"""
import argparse
import collections
import functools
import itertools
import os
import pathlib
import re
import subprocess
import sys

BOARD = "mps2-an386"
ROOT = pathlib.Path(__file__).resolve().parent.parent

Instruction = collections.namedtuple("Instruction", "function mnemonic operands size")
Row = collections.namedtuple("Row", "name instructions cycles functions")


class Failure(Exception):
    """Something the user can put right; the message says what."""


def disassemble(image, objdump="arm-none-eabi-objdump"):
    """Every instruction of `image` by its address, as the trace spells it."""
    done = subprocess.run([objdump, "-dC", image], capture_output=True, text=True)
    if done.returncode:
        raise Failure(done.stderr.strip())
    code, function = {}, None
    for line in done.stdout.splitlines():
        if found := re.match(r"[0-9a-f]+ <(.+)>:", line):
            function = found[1]
        elif found := re.match(r" *([0-9a-f]+):\t([0-9a-f ]+?)\s*\t(\S+)\s*([^;@]*)", line):
            size = len(found[2].replace(" ", "")) // 2
            code[b"%08x" % int(found[1], 16)] = Instruction(function, found[3], found[4], size)
    return code


def register_count(operands):
    count = 0
    for item in re.search(r"\{(.*)\}", operands)[1].split(","):
        bounds = [int(number) for number in re.findall(r"\d+", item)]
        count += bounds[-1] - bounds[0] + 1 if len(bounds) == 2 else 1
    return count


def cycles(code, before, address, after):
    """The model: what the instruction at `address` takes between the ones executed before and after it."""
    instruction = code[address]
    base = instruction.mnemonic.split(".")[0]
    operands = instruction.operands
    taken = int(after, 16) != int(address, 16) + instruction.size
    if re.match(r"pop|ldm", base):
        return 1 + register_count(operands) + (2 if re.search(r"\bpc\b", operands.split("{")[1]) else 0)
    if re.match(r"push|stm", base):
        return 1 + register_count(operands)
    if base.startswith("ldr"):
        if taken and operands.startswith("pc"):
            return 4
        if base.startswith("ldrd"):
            return 3
        previous = code.get(before)
        if not previous or not re.match(r"ldr|str", previous.mnemonic):
            return 2
        produced = previous.operands.split(",")[0] if previous.mnemonic.startswith("ldr") else None
        used = re.search(r"\[(.*?)\]", operands)
        return 2 if used and produced and re.search(rf"\b{produced}\b", used[1]) else 1
    if base.startswith("str"):
        return 2 if base.startswith("strd") else 1
    if re.match(r"[su]div", base):
        return 6
    if not taken:
        return 1
    target = code.get(after)
    return 3 if target and target.size == 4 and int(after, 16) % 4 else 2


def traced_ranges(code, untraced):
    """The emulator's filter: the address ranges of all functions but those that match `untraced`."""
    ranges = []
    for seen, addresses in itertools.groupby(code, lambda address: not re.search(untraced, code[address].function)):
        addresses = list(addresses)
        if seen:
            ranges.append(f"0x{addresses[0].decode()}..0x{addresses[-1].decode()}")
    return ",".join(ranges)


def trace(image, arguments, board, ranges, output, stdin=subprocess.DEVNULL):
    """The addresses of the executed instructions, streamed from the emulator; the image prints to `output`."""
    reader, writer = os.pipe()
    options = f"-singlestep -d exec,nochain -dfilter {ranges} -D /dev/fd/{writer}"
    command = [ROOT / "scripts" / "emulate", "-M", board, "-q", options, image, *arguments]
    try:
        emulator = subprocess.Popen(command, stdin=stdin, stdout=output, stderr=subprocess.STDOUT,
                                    pass_fds=[writer])
    finally:
        os.close(writer)
    rest = b""
    with open(reader, "rb", buffering=0) as stream:
        while chunk := stream.read(1 << 20):
            head, _, tail = (rest + chunk).rpartition(b"\n")
            yield from re.findall(rb"\[\w+/(\w+)/", head)
            rest = tail
    if emulator.wait():
        output.seek(0)
        printed = output.read().decode(errors="replace").splitlines()[-3:]
        raise Failure("\n".join([f"{image}: the emulated run ended with status {emulator.returncode}", *printed]))


def count(image, arguments=(), caller="measured", untraced="fill<", board=BOARD):
    """One Row for each call that `caller` makes, in the order of the calls."""
    code = disassemble(image)
    inside = {address for address, instruction in code.items() if instruction.function == caller}
    if not inside:
        raise Failure(f"{image}: no function {caller}")
    entry = min(inside)
    ranges = traced_ranges(code, untraced)
    cost = functools.lru_cache(maxsize=None)(functools.partial(cycles, code))
    rows, pending, call = [], None, None
    with open(os.memfd_create("output"), "w+b") as output:
        for within, addresses in itertools.groupby(trace(image, arguments, board, ranges, output), inside.__contains__):
            if not within:
                pending = list(addresses) if call else None
                continue
            first = next(addresses)
            if pending and first != entry:
                path = [call, *pending, first]
                instructions, cycle_sum = collections.Counter(), collections.Counter()
                steps = collections.Counter(zip([b"", *path], path, path[1:]))
                for (before, address, after), times in steps.items():
                    function = code[address].function
                    instructions[function] += times
                    cycle_sum[function] += times * cost(before, address, after)
                functions = {name: (instructions[name], cycle_sum[name]) for name in instructions}
                rows.append((sum(instructions.values()), sum(cycle_sum.values()), functions))
            for call in itertools.chain([first], addresses):
                pass
        output.seek(0)
        names = output.read().decode(errors="replace").replace("\r", "").splitlines()
    if len(names) != len(rows):
        raise Failure(f"{image}: {len(rows)} calls, but {len(names)} names printed:\n" + "\n".join(names[-5:]))
    return [Row(name, *row) for name, row in zip(names, rows)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("image", metavar="IMAGE")
    parser.add_argument("arguments", metavar="ARGUMENT", nargs="*", help="what the image is given")
    parser.add_argument("--caller", default="measured", help="the function whose calls are counted (%(default)s)")
    parser.add_argument("--untraced", default="fill<", metavar="REGEX", help="functions left out (%(default)s)")
    parser.add_argument("--board", default=BOARD, help="the emulated board (%(default)s)")
    parser.add_argument("--functions", action="store_true", help="tell the functions of each row apart")
    options = parser.parse_args()
    for row in count(options.image, options.arguments, options.caller, options.untraced, options.board):
        print(f"{row.name}: {row.instructions} instructions, {row.cycles} cycles")
        if options.functions:
            for name, (instructions, cycle_sum) in row.functions.items():
                print(f"    {name}: {instructions} instructions, {cycle_sum} cycles")


if __name__ == "__main__":
    try:
        main()
    except (Failure, OSError) as failure:
        sys.exit(f"count.py: {failure}")
