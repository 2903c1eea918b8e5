#!/usr/bin/env python3
"""Installs a product with a real installer and switches its start-up entry on and off with both builds of the companion. Checks
at the next starts of the prefix whether the program runs.

Usage: installed_program.py NATIVE_CLI WINDOWS_CLI PLAYER SCRIPT, with WINEPREFIX set to a prefix that the test may fill.
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

native_cli, windows_cli, player, script = sys.argv[1:5]
drive = pathlib.Path(os.environ["WINEPREFIX"]).resolve() / "drive_c"
log = drive / "player.log"
name = "Sample Player"


def run(command, check=True):
    """The output goes through a file. The first program of a prefix starts services, which would keep a pipe open."""
    with tempfile.TemporaryFile() as output:
        result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.DEVNULL, check=False)
        output.seek(0)
        text = output.read().decode()
    if check and result.returncode != 0:
        sys.exit(f"{command} ended with {result.returncode}: {text}")
    return text


def stop():
    """Ends the server, which writes the registry files only then. The native build reads and writes those files."""
    subprocess.run(["wineserver", "-k"], check=False)
    subprocess.run(["wineserver", "-w"], check=True)


def boot(timeout=20):
    """Starts the prefix as a user's session does. Waits up to timeout seconds for the program and returns how often it ran."""
    before = log.read_text().count("started") if log.exists() else 0
    stop()
    run(["wineboot"])
    deadline = time.monotonic() + timeout
    count = 0
    while time.monotonic() < deadline and count == 0:
        time.sleep(0.5)
        count = (log.read_text().count("started") if log.exists() else 0) - before
    stop()
    return count


def listed(cli):
    apps = json.loads(run(cli + ["startup", "list", "--json"]))["apps"]
    found = [app for app in apps if app["name"] == name]
    assert len(found) <= 1, found
    return found[0] if found else None


def run_value():
    return run(["wine", "reg", "query", r"HKCU\Software\Microsoft\Windows\CurrentVersion\Run", "/v", name], check=False)


def main():
    native, windows = [native_cli], ["wine", windows_cli]
    stop()
    assert listed(native) is None
    with tempfile.TemporaryDirectory() as folder:
        installer = os.path.join(folder, "installer.exe")
        run(["makensis", "-V1", f"-DPROGRAM={player}", f"-DOUTPUT={installer}", script])
        run(["wine", installer, "/S"])
    stop()
    for cli in (native, windows):
        app = listed(cli)
        assert app, "the installed program is not listed"
        assert app["exePath"] == r"C:\Program Files\Sample Player\bin\player.exe", app
        assert app["publisher"] == "Samples" and not app["isStartup"], app
        stop()
    assert boot() == 0, "it runs without having been switched on"

    for switch in (native, windows):
        stop()
        run(switch + ["startup", "enable", name])
        assert r'"C:\Program Files\Sample Player\bin\player.exe"' in run_value()
        stop()
        assert listed(native)["isStartup"] and listed(windows)["isStartup"]
        assert boot(timeout=90) >= 1, "it was switched on and did not run"
        run(switch + ["startup", "disable", name])
        assert name not in run_value()
        stop()
        assert not listed(native)["isStartup"] and not listed(windows)["isStartup"]
        assert boot() == 0, "it was switched off and ran"

    # The uninstaller starts a copy of itself. That takes a moment, and the entry is removed last.
    run(["wine", str(drive / "Program Files" / "Sample Player" / "uninstall.exe"), "/S"])
    deadline = time.monotonic() + 60
    while time.monotonic() < deadline and listed(windows):
        time.sleep(0.5)
    stop()
    assert listed(native) is None
    print("installed, switched on and off by both builds, started and not started, uninstalled")


main()
