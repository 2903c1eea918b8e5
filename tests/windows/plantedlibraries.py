#!/usr/bin/env python3
"""Plants a library for each one that the programs use and sees that none of them runs.

Usage: plantedlibraries.py PROGRAM.exe CLI_PROGRAM.exe PLANTED.dll LATE_CALL.exe, with WINEPREFIX set.

Wine by itself prefers its own libraries to those beside a program. Windows does so for the ones that it keeps as known. So all
others get an override here, and then Wine takes the planted one wherever it looks before the system folder.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import desktopwindow

# Windows keeps these as known. The programs import kernel32 and msvcrt. Libraries of Wine load the others late, and then Wine looks
# beside the program first, whatever the program has asked for.
KNOWN = {"ntdll", "kernel32", "kernelbase", "msvcrt", "combase", "ole32", "rpcrt4", "setupapi"}
# Names that programs of this kind were attacked with, and those that the toolkit asks for at run time.
ASKED_FOR = ("bcrypt bcryptprimitives cfgmgr32 comctl32 cryptbase cryptsp dbghelp dcomp dwmapi dxgi edputil gdiplus iphlpapi iertutil "
             "msasn1 msimg32 ntmarta oleacc opengl32 powrprof profapi propsys rsaenh secur32 sspicli textshaping uiautomationcore "
             "uxtheme version wininet winmm winspool.drv wintab32 wldp wtsapi32").split()

program, cli_program, planted, late_call = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
findings = []


def run(command, folder, variables, status=0):
    """Runs a program that ends by itself. The output goes through a file: services that it starts would keep a pipe open."""
    with tempfile.TemporaryFile() as output:
        result = subprocess.run(["wine", *command], cwd=folder, env={**os.environ, **variables}, stdin=subprocess.DEVNULL,
                                stdout=output, stderr=subprocess.STDOUT, check=False)
        output.seek(0)
        text = output.read().decode(errors="replace")
    if result.returncode != status:
        findings.append(f"{' '.join(map(str, command))} ended with {result.returncode}: {text[-500:]}")
    return text


def named_in(path):
    """The libraries that a program names anywhere, in one or two bytes a character."""
    image = path.read_bytes()
    name = rb"[\w.-]{2,40}\.(?:dll|drv)"
    narrow = re.findall(name, image, re.IGNORECASE)
    wide = re.findall(rb"(?:[\w.-]\0){2,40}\.\0(?:d\0l\0l|d\0r\0v)\0", image, re.IGNORECASE)
    return {text.replace(b"\0", b"").decode("ascii").lower() for text in narrow + wide}


def loaded_by(output):
    """The libraries that Wine loaded, by its own log."""
    return {name.lower() for name in re.findall(r'Loaded L"[^"]*\\\\([^"\\]+\.(?:dll|drv))"', output, re.IGNORECASE)}


def companion(path, folder, variables, large):
    for arguments in (["--version"], ["scan", "junk"], ["scan", "browser"], ["scan", "registry"], ["startup", "list"],
                      ["large-files", large, "--min-size", "1M"]):
        yield run([path, *arguments], folder, variables)


def plant(folder, names):
    for name in names:
        shutil.copy(planted, folder / name)


def ran(folder):
    return sorted(path.name.removesuffix(".ran") for path in folder.glob("*.ran"))


def report(where, folder):
    if ran(folder):
        findings.append(f"{where}: these planted libraries ran: {' '.join(ran(folder))}")
    for path in folder.glob("*.ran"):
        path.unlink()


def check_missing(path, folder, crowded):
    """A program that calls a function which there is not says so and ends, and a planted library of that name does not run."""
    for which, status, expected in (("present", 0, ""),
                                    ("library", 126, "The system library sweepwise-nothing.dll cannot be loaded."),
                                    ("function", 126, "The system library version.dll lacks the function functionThatVersionLacks.")):
        output = run([path / late_call.name, which], folder, {}, status)
        if expected not in output:
            findings.append(f"late call, {which}: {output[-500:]}")
    report("late call", crowded)


def check_that_planted_libraries_run(folder, variables):
    """Without this the test would pass with libraries that cannot run at all."""
    run([folder / late_call.name, "careless", "d3d9.dll"], folder, variables)
    if ran(folder) != ["d3d9.dll"]:
        findings.append(f"a careless program does not run the planted library, but {ran(folder)}")
    (folder / "d3d9.dll.ran").unlink(missing_ok=True)


def main():
    with tempfile.TemporaryDirectory() as base:
        clean, crowded, elsewhere = (pathlib.Path(base) / name for name in ("clean", "crowded", "elsewhere"))
        for folder in (clean, crowded, elsewhere):
            folder.mkdir()
        for folder in (clean, crowded):
            for path in (program, cli_program, late_call):
                shutil.copy(path, folder)
        large = str(elsewhere)

        log = {"WINEDEBUG": "+loaddll"}
        names = {"sweepwise-nothing.dll", "api-ms-win-core-synch-l1-2-0.dll"} | named_in(program) | named_in(cli_program)
        names |= {name if "." in name else f"{name}.dll" for name in ASKED_FOR}
        for output in companion(clean / cli_program.name, elsewhere, log, large):
            names |= loaded_by(output)
        shown, output = desktopwindow.open_window(clean / program.name, elsewhere, log)
        names |= loaded_by(output)
        if not shown or len(loaded_by(output)) < 20:
            findings.append(f"the desktop program does not run without planted libraries: {output[-500:]}")

        plant(crowded, names)
        free = sorted(name.removesuffix(".dll") for name in names if name.removesuffix(".dll") not in KNOWN)
        variables = {"WINEDLLOVERRIDES": f"{','.join(free)}=n,b"}
        check_that_planted_libraries_run(crowded, variables)
        for where, path, folder in (("beside", crowded, elsewhere), ("current folder", clean, crowded)):
            for _ in companion(path / cli_program.name, folder, variables, large):
                pass
            report(f"{where}, companion", crowded)
            shown, output = desktopwindow.open_window(path / program.name, folder, variables)
            report(f"{where}, desktop program", crowded)
            if not shown:
                findings.append(f"{where}: the desktop program shows no window: {output[-500:]}")

            check_missing(path, folder, crowded)
        for finding in findings:
            print(finding)
        print(f"planted {len(names)}: {' '.join(sorted(names))}")
        return 1 if findings else 0


sys.exit(main())
