#!/usr/bin/env python3
"""Strings of more than 2^31 bytes, through a shared library."""
import argparse, ctypes, mmap, os, sys

parser = argparse.ArgumentParser(description=__doc__)
parser.add_argument("library")
options = parser.parse_args()
library = ctypes.CDLL(os.path.abspath(options.library))
if os.sysconf("SC_AVPHYS_PAGES") * os.sysconf("SC_PAGE_SIZE") < 8 << 30:
    print("skipped: 8 GiB of memory are not free")
    sys.exit()

GREATEST = 2**31 - 1
failed = 0


def string(unit, length, size):
    """The address of a string of one unit, and the memory that holds it."""
    memory = mmap.mmap(-1, (length + 3) * size)
    block = unit.to_bytes(size, "little") * (1 << 16)
    for start in range(0, length * size, len(block)):
        memory[start:min(start + len(block), length * size)] = block[:length * size - start]
    return ctypes.addressof(ctypes.c_char.from_buffer(memory)), memory


def put(memory, index, unit, size):
    memory[index * size:(index + 1) * size] = unit.to_bytes(size, "little")


def call(number, *arguments, result=ctypes.c_int32):
    function = library[f"QUVEX_{number:06}"]
    function.restype = result
    return function(*(ctypes.c_void_p(a) if isinstance(a, int) and a > 2**32 else a for a in arguments))


def expect(what, is_, wanted):
    global failed
    if is_ != wanted:
        print(f"{what}: {is_}, not {wanted}")
        failed += 1


A, B = ord("a"), ord("b")
address = ctypes.c_void_p
length = (1 << 30) + 5
b, ab = (string(A, 2, 2) for _ in range(2))
put(b[1], 0, B, 2), put(b[1], 1, 0, 2), put(ab[1], 1, B, 2)
wide, wide_memory = string(A, length, 2)
other, other_memory = string(A, length, 2)
put(other_memory, length - 1, B, 2)
expect("length", call(2039, wide), length)
expect("compare", call(2033, wide, other), -length)
expect("compare_folded_counted", call(2046, other, wide, GREATEST), length)
expect("find_character", call(2032, other, B, result=address), other + 2 * (length - 1))
expect("find", call(2049, other, ab[0], result=address), other + 2 * (length - 2))
expect("replace", call(2047, other, b[0], ab[0], None), length + 1)
expect("replace the whole", call(2047, other, other, b[0], None), 1)
expect("replace by much", call(2047, b[0], b[0], wide, None), length)
expect("replace nothing", call(2047, wide, b[0], ab[0], None), length)
call(2031, wide, length + 2, other)
expect("append_bounded", call(2039, wide), length + 1)
expect("trim", call(2051, other, b[0]), length - 1)

comma, comma_memory = string(ord(","), 1, 1)
far = 1 << 31  # A cursor is no signed number.
narrow, narrow_memory = string(ord(","), far + 9, 1)
put(narrow_memory, far + 2, ord("x"), 1)
cursor = ctypes.c_uint32(far)
expect("next_token", call(2023, narrow, ctypes.byref(cursor), comma, result=address), narrow + far + 2)
expect("cursor", cursor.value, far + 4)
put(narrow_memory, far - 1, 0, 1)
expect("longest length", call(2014, narrow), far - 1)
print(f"strings of {length} units, {failed} wrong")
sys.exit(failed > 0)
