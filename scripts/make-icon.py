#!/usr/bin/env python3
"""Draws an SVG file in all sizes of a Windows program icon and writes one icon file.

Usage: make-icon.py RSVG_CONVERT IN.svg OUT.ico
"""
import pathlib
import struct
import subprocess
import sys

SIZES = (16, 20, 24, 32, 40, 48, 64, 128, 256)
HEADER = struct.Struct("<HHH")  # reserved, type (1 is an icon), number of images
ENTRY = struct.Struct("<BBBBHHII")  # width, height, colours, reserved, planes, bits a pixel, length, offset


def draw(converter, svg, size):
    command = [converter, "--format=png", f"--width={size}", f"--height={size}", svg]
    image = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout
    # The first chunk of a PNG file has its size.
    if struct.unpack(">II", image[16:24]) != (size, size):
        sys.exit(f"make-icon: {svg} is not square")
    return image


def main():
    converter, svg, icon = sys.argv[1:]
    images = [draw(converter, svg, size) for size in SIZES]
    offset = HEADER.size + ENTRY.size * len(images)
    entries = b""
    for size, image in zip(SIZES, images):
        edge = size % 256  # 0 stands for 256
        entries += ENTRY.pack(edge, edge, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    pathlib.Path(icon).write_bytes(HEADER.pack(0, 1, len(images)) + entries + b"".join(images))


main()
