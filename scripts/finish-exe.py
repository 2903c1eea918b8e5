#!/usr/bin/env python3
"""Enters the load configuration of a Windows program, its section ".loadcfg", in the program's header. The linker does not.

Usage: finish-exe.py PROGRAM.exe
"""
import pathlib
import struct
import sys

SECTION = b".loadcfg"
LOAD_CONFIGURATION = 10  # number of its entry among the data directories
WRITABLE = 0x80000000


def main():
    program = pathlib.Path(sys.argv[1])
    image = bytearray(program.read_bytes())
    header = struct.unpack_from("<I", image, 0x3C)[0]
    if image[header:header + 4] != b"PE\0\0":
        sys.exit(f"finish-exe: {program} is no Windows program")
    section_count, options_size = struct.unpack_from("<H12xH", image, header + 6)
    options = header + 24
    if struct.unpack_from("<H", image, options)[0] != 0x20B:
        sys.exit(f"finish-exe: {program} is no 64-bit program")
    for number in range(section_count):
        section = options + options_size + number * 40
        name, address, offset, flags = struct.unpack_from("<8s4xI4xI12xI", image, section)
        if name == SECTION:
            break
    else:
        sys.exit(f"finish-exe: {program} has no load configuration")
    if flags & WRITABLE:
        sys.exit(f"finish-exe: the load configuration of {program} is writable")
    size = struct.unpack_from("<I", image, offset)[0]
    struct.pack_into("<II", image, options + 112 + LOAD_CONFIGURATION * 8, address, size)
    struct.pack_into("<I", image, options + 64, 0)  # the checksum, which programs need not have
    program.write_bytes(image)


main()
