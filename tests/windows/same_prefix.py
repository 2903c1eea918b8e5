#!/usr/bin/env python3
"""Scans one Wine prefix with the native companion and with the Windows one, and requires the same items and sizes.

Usage: same_prefix.py NATIVE_CLI WINDOWS_CLI, with WINEPREFIX set to a prefix that the test may fill.
"""
import collections
import json
import os
import pathlib
import subprocess
import sys
import tempfile

native_cli, windows_cli = sys.argv[1:3]
drive = pathlib.Path(os.environ["WINEPREFIX"]).resolve() / "drive_c"


def output_of(command, environment=None):
    """Through a file: a pipe would stay open for as long as the services that the first program of a prefix starts."""
    with tempfile.TemporaryFile() as output:
        subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.DEVNULL,
                       env=environment)
        output.seek(0)
        return output.read().decode()


def folder(variable):
    """Where the prefix's own programs have it."""
    answer = output_of(["wine", "cmd", "/c", f"echo %{variable}%"]).strip()
    return drive / answer[3:].replace("\\", "/")


user = folder("USERPROFILE")
local = user / "AppData" / "Local"
windows = drive / "windows"



def fill():
    """Files where the rules look, odd names and places among them. Returns how many of each category are to be found."""
    def write(path, size):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"x" * size)

    temp = folder("TEMP")
    names = ["plain.tmp", "with blank.tmp", "ümlaut.tmp", "文件.tmp", "🧹.tmp", "UPPER.TMP", "no ending", "%1.tmp", "a" * 120]
    for i, name in enumerate(names):
        write(temp / "sub folder" / name, i * 100)
    deep = temp
    for _ in range(12):
        deep = deep / ("deep folder " * 3).strip()
    write(deep / "far down.tmp", 77)
    (temp / "empty").mkdir(parents=True)
    (temp / "link").symlink_to("/etc")
    write(temp / ".hidden.tmp", 9)
    for i in range(7):
        write(windows / "Prefetch" / f"APP{i}.PF", 10 + i)
    write(windows / "Prefetch" / "sub" / "not.pf", 1)
    for i in range(5):
        write(windows / "Logs" / "CBS" / f"cbs{i}.LOG", 20 + i)
    write(windows / "memory.dmp", 1234)
    write(drive / "crash.MDMP", 5)
    for i in range(6):
        write(local / "D3DSCache" / f"{i}" / "shader", 300 + i)
    write(user / "AppData" / "Roaming" / "Norvak" / "Tencent" / "Logs" / "t.txt", 3)
    write(drive / "ProgramData" / "Microsoft" / "Windows" / "WER" / "r" / "Report.wer", 8)
    write(drive / "Windows.old" / "x.dll", 6)
    return {"temp_files": len(names) + 1, "prefetch": 7, "log_files": 10, "memory_dumps": 2, "directx_cache": 6,
            "tencent_logs": 1, "windows_old": 1, "error_reports": 1}


def scan(command, environment):
    return json.loads(output_of(command + ["scan", "junk", "--json", "--items"], environment))


def items(result, translate):
    return collections.Counter((category["id"], translate(item["path"]).lower(), item["size"])
                               for category in result["categories"] for item in category["items"])


def main():
    expected = fill()
    plain = {name: value for name, value in os.environ.items()
             if name not in ("TMPDIR", "TEMP", "TMP", "LOCALAPPDATA", "APPDATA", "USERPROFILE", "PROGRAMDATA", "WINDIR",
                             "SYSTEMDRIVE")}
    native = items(scan([native_cli], plain), lambda path: path)
    foreign = items(scan(["wine", windows_cli], plain), lambda path: str(drive) + path[2:] if path[1] == ":" else path)
    for title, left, right in (("only native", native, foreign), ("only Windows", foreign, native)):
        for item in sorted((left - right).elements()):
            print(f"{title}: {item}")
    found = collections.Counter(category for category, _, _ in native.elements())
    short = {category: (count, found[category]) for category, count in expected.items() if found[category] < count}
    if short:
        print(f"not all was found (expected, found): {short}")
    print(f"{native.total()} items native, {foreign.total()} Windows")
    return 1 if native != foreign or short else 0


sys.exit(main())
