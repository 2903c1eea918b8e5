"""Counts the calls that the Windows companion makes for each file, below Wine: seconds there would tell of Wine.

What a run on many files makes more than a run on few is divided by the number of files between them. So what a start and a rule cost
falls out.
"""
import collections
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FEW, MANY = 1000, 3000
CALL = re.compile(rb":Call (\w+)\.(\w+)\(.* ret=0*(\w+)")
PROGRAM = b"14"  # the addresses of a program begin so; those of the libraries are higher
LISTING = "NtQueryDirectoryFile"  # one for each buffer, made by FindNextFileW
NO_SYSTEM_CALLS = re.compile("FindNextFileW|CompareString|Heap|CriticalSection|SRWLock|Tls|GetLastError|SetLastError|GetProcAddress|"
                             "QueryPerformance|WaitForSingleObject|GetSystemTime|GetTickCount|Sleep|CurrentThread|CurrentProcess")


class Prefix:
    """A Wine prefix of its own, with its services running."""

    def __init__(self, folder):
        self.path = folder / "prefix"
        self.path.mkdir()
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(folder), "USER": "user", "WINEPREFIX": str(self.path),
                            "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree=;mshtml="}
        self.wine("wineboot", "-i")
        self.server("-w")
        self.server("-p")
        self.wine("cmd", "/c", "exit")  # starts the services, whose calls are not to be counted

    def wine(self, *command, log=subprocess.DEVNULL, debug="-all"):
        subprocess.run(["wine", *command], env=dict(self.environment, WINEDEBUG=debug), check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=log)

    def server(self, option):
        subprocess.run(["wineserver", option], env=self.environment, check=False)

    def temporary_folder(self):
        for folder in (self.path / "drive_c" / "users").rglob("Temp"):
            if "Public" not in folder.parts:
                return folder
        sys.exit("bench: the prefix has no temporary folder")


def count(prefix, program, command, files):
    """How often a run on so many files makes each call."""
    folder = prefix.temporary_folder() / "many files"
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    for number in range(files):
        (folder / f"a small file {number}.tmp").touch()
    calls = collections.Counter()
    with tempfile.TemporaryFile() as log:
        prefix.wine(program, *command, log=log, debug="+relay")
        log.seek(0)
        for line in log:
            if match := CALL.search(line):
                library, name, caller = match.groups()
                if name.decode() == LISTING or (library == b"KERNEL32" and caller.startswith(PROGRAM) and len(caller) == 9):
                    calls[name.decode()] += 1
    if "clean" in command and any(folder.iterdir()):
        sys.exit("bench: the Windows program has not cleaned")
    return calls


def rows(build):
    """The rows; without figures when there is no Windows program beside the build, or no Wine."""
    program = build.parent / "windows" / "src" / "cli" / "sweepwise-cli.exe"
    figures = {"scan": (None, None), "clean": (None, None)}
    if program.exists() and shutil.which("wine"):
        with tempfile.TemporaryDirectory() as folder:
            prefix = Prefix(pathlib.Path(folder))
            try:
                for command in figures:
                    arguments = [command, "junk"] + (["--yes"] if command == "clean" else [])
                    few, many = (count(prefix, program, arguments, files) for files in (FEW, MANY))
                    each = {name: (many[name] - few[name]) / (MANY - FEW) for name in many}
                    figures[command] = (each[LISTING],
                                        sum(value for name, value in each.items() if name != LISTING and not NO_SYSTEM_CALLS.search(name)))
            finally:
                prefix.server("-k")
                prefix.server("-w")
    (scan_listings, scan_calls), (_, clean_calls) = figures.values()
    return [("Windows: listing calls for each file of a scan", scan_listings, "", 0.03),
            ("  other calls for each file of a scan", scan_calls, "", 0.01),
            ("  calls for each file that is removed, beyond the listing", clean_calls, "", 3)]
