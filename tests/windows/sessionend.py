#!/usr/bin/env python3
"""Ends the session while the desktop program shows its window, and while it cleans.

The messages of the system reach native windows only, so this needs a display.

Usage: sessionend.py PROGRAM.exe TST_LEAVING.exe, with WINEPREFIX set to a prefix that the test may fill.
"""
import os
import subprocess
import sys
import tempfile

import desktopwindow


def end_with_window(program):
    """Ends the session in good order while the window is shown. The program must go by itself."""
    def end_session(process, environment):
        subprocess.run(["wine", "wineboot", "--end-session"], env=environment, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=desktopwindow.TIMEOUT)
        return process.wait(desktopwindow.TIMEOUT) == 0

    left, output = desktopwindow.open_window(program, after=end_session)
    if not left:
        sys.exit(f"the program did not end with the session:\n{output}")


def end_during_clean(test):
    with desktopwindow.display() as name, tempfile.TemporaryFile() as output:
        environment = {**os.environ, "DISPLAY": name, "WINEQT_QPA_PLATFORM": "windows:fontengine=freetype"}
        status = subprocess.run(["wine", test, "anItemThatTakesLongIsWaitedFor"], env=environment, check=False,
                                stdin=subprocess.DEVNULL, stdout=output, stderr=output).returncode
        output.seek(0)
        text = output.read().decode(errors="replace")
    if status != 0 or "Totals: 4 passed, 0 failed" not in text:
        sys.exit(f"the end of the session during a clean:\n{text}")


def main():
    program, test = sys.argv[1:]
    end_with_window(program)
    end_during_clean(test)
    print("the program ends with the session")


if __name__ == "__main__":
    main()
