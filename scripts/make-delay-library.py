#!/usr/bin/env python3
"""Makes an import library whose functions are loaded by their first call, from the compiler's import library of the same name.

Usage: make-delay-library.py COMPILER NM DLLTOOL NAME OUT.a

Functions that kernel32 has too are left out: every program imports it anyway.
"""
import pathlib
import subprocess
import sys

# Import libraries that name several API sets, and the one DLL that has all their functions.
DLLS = {"runtimeobject": "combase.dll"}


def output_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout


def main():
    compiler, nm, dlltool, name, library = sys.argv[1:]

    def import_library(of):
        return output_of(compiler, f"-print-file-name=lib{of}.a").strip()

    def functions(of):
        # Data has no "T" symbol: it cannot be imported late, so its use is an error of the linker.
        fields = [line.split() for line in output_of(nm, import_library(of)).splitlines()]
        return {field[2] for field in fields if len(field) == 3 and field[1] == "T"}

    dll = DLLS.get(name) or output_of(dlltool, "--identify-strict", "--identify", import_library(name)).strip()
    names = sorted(functions(name) - functions("kernel32"))
    definition = pathlib.Path(library).with_suffix(".def")
    definition.write_text(f"LIBRARY {dll}\nEXPORTS\n" + "".join(f"{function}\n" for function in names), encoding="ascii")
    subprocess.run([dlltool, "-m", "i386:x86-64", "--input-def", definition, "--output-delaylib", library], check=True)


main()
