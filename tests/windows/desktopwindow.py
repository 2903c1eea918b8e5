#!/usr/bin/env python3
"""Starts the desktop program on a display of its own and waits for its window.

Usage: desktopwindow.py PROGRAM.exe, with WINEPREFIX set. Other tests import open_window().
"""
import contextlib
import os
import subprocess
import sys
import tempfile
import time

TITLE = '"Sweepwise"'
TIMEOUT = 60  # seconds


def stop_prefix():
    subprocess.run(["wineserver", "-k"], check=False)
    subprocess.run(["wineserver", "-w"], check=True)


@contextlib.contextmanager
def display():
    """A display. The first program of a prefix decides for all whether there is one, so the prefix is stopped before and after."""
    stop_prefix()
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with os.fdopen(reader) as number:
            yield ":" + number.readline().strip()
    finally:
        stop_prefix()
        server.terminate()
        server.wait()


def has_window(environment):
    # A window that is destroyed while the tree is read makes the query fail. The next one finds what is left.
    query = subprocess.run(["xwininfo", "-root", "-tree"], env=environment, check=False, stdout=subprocess.PIPE, text=True)
    return query.returncode == 0 and TITLE in query.stdout


def is_running(process, _environment):
    return process.poll() is None


def open_window(program, folder=None, variables=None, after=is_running):
    """Starts the program, waits for its window and ends it. Returns whether the window came, and what the program printed.

    after(process, environment) is asked for one more condition once the window is shown."""
    with display() as name, tempfile.TemporaryFile() as output:
        environment = {**os.environ, "DISPLAY": name, **(variables or {})}
        # The other plugins of the platform are in the tests' programs alone.
        environment.pop("WINEQT_QPA_PLATFORM", None)
        process = subprocess.Popen(["wine", program, "-platform", "windows:fontengine=freetype"], cwd=folder, env=environment,
                                   stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        deadline = time.monotonic() + TIMEOUT
        shown = False
        while not shown and process.poll() is None and time.monotonic() < deadline:
            time.sleep(0.2)
            shown = has_window(environment)
        if shown:
            time.sleep(1)  # for what the first events load
            shown = after(process, environment)
        process.terminate()
        process.wait()
        output.seek(0)
        return shown, output.read().decode(errors="replace")


def main():
    shown, output = open_window(sys.argv[1])
    if not shown:
        sys.exit(f"there is no window:\n{output}")
    print("the window is shown")


if __name__ == "__main__":
    main()
