#!/usr/bin/env python3
"""Builds a small program with all protections, then without each one, and sees that the check of the programs finds the difference.

Usage: protections.py CHECK_SCRIPT [ARGUMENT...] -- COMPILER
"""
import pathlib
import subprocess
import sys
import tempfile

separator = sys.argv.index("--")
check, compiler = sys.argv[1:separator], sys.argv[separator + 1]

# It has what the checks look for: an array on the stack, a large frame, a copy and an index that can be checked.
SOURCE = r"""
#include <cstring>
#include <vector>
#ifdef WRITABLE_CODE
__asm__(".section .changes,\"awx\"\n.byte 0\n.text");
#endif
__attribute__((noinline)) int copy(const char *text, std::size_t size)
{
    char local[20000];
    std::memcpy(local, text, size);
    return local[size / 2];
}
int main(int argc, char *argv[])
{
    const std::vector<int> numbers(std::size_t(argc), 1);
    return copy(argv[0], std::strlen(argv[0])) * numbers[std::size_t(argc - 1)] == 0;
}
"""
# Protection, what takes it away, what the check must say.
BOTH = [
    ("-fstack-protector-strong", "-fno-stack-protector", "the stack is not guarded"),
    ("-D_GLIBCXX_ASSERTIONS", "-U_GLIBCXX_ASSERTIONS", "the checks of the C++ library are off"),
]
LINUX = [
    ("-D_FORTIFY_SOURCE=3", "-U_FORTIFY_SOURCE", "calls of the C library are not checked"),
    ("-fstack-clash-protection", "-fno-stack-clash-protection", "large stack frames are not probed"),
    ("-pie", "-no-pie", "it cannot be loaded at a random address"),
    ("-Wl,-z,now", "-Wl,-z,lazy", "its imports are resolved late"),
    ("-Wl,-z,relro", "-Wl,-z,norelro", "its tables of addresses stay writable"),
    ("-Wl,-z,noexecstack", "-Wl,-z,execstack", "the stack is executable"),
    ("-UWRITABLE_CODE", "-DWRITABLE_CODE", "a segment is both writable and executable"),
]
WINDOWS = [
    ("-Wl,--high-entropy-va", "-Wl,--disable-high-entropy-va", "the flag HIGH_ENTROPY_VA is missing"),
    # Behind the option above, which would switch it on again.
    ("-Wl,--dynamicbase", "-Wl,--disable-dynamicbase", "the flag DYNAMIC_BASE is missing"),
    ("-Wl,--nxcompat", "-Wl,--disable-nxcompat", "the flag NX_COMPAT is missing"),
    ("-Wl,--enable-reloc-section", "-Wl,--disable-reloc-section", "there are no relocations"),
    ("-static", "-shared-libgcc", "imports libgcc_s_seh-1.dll"),
    ("-Wl,-n", "-Wl,--omagic", "a section is both writable and executable"),
]
for_windows = "mingw" in compiler
protections = BOTH + (WINDOWS if for_windows else LINUX)


def findings(folder, options):
    """What the check finds in the program that these options make."""
    program = folder / "small.exe"
    subprocess.run([compiler, "-O2", *([] if for_windows else ["-fPIC", "-U_FORTIFY_SOURCE"]), *options, folder / "small.cpp",
                    "-o", program, *(["-s"] if for_windows else [])], check=True)
    result = subprocess.run([*check, program], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    lines = set(result.stderr.splitlines())
    assert (result.returncode != 0) == bool(lines), result
    return lines


def main():
    with tempfile.TemporaryDirectory() as base:
        folder = pathlib.Path(base)
        (folder / "small.cpp").write_text(SOURCE, encoding="ascii")
        all_on = [protection for protection, _, _ in protections]
        # A small Windows program has no load configuration, and imports what the compiler's libraries need.
        usual = findings(folder, all_on)
        failures = 0
        if usual and not for_windows:
            failures += 1
            print(f"with all protections: {usual}")
        for protection, without, expected in protections:
            found = findings(folder, [without if option == protection else option for option in all_on]) - usual
            if not any(expected in line for line in found):
                failures += 1
                print(f"{without}: expected '{expected}', found {found}")
    return 1 if failures else 0


sys.exit(main())
