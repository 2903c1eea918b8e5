"""Waits for other programs, and ends all programs that were started."""
import ctypes
import os
import pathlib
import select
import signal
import time

PATIENCE = 60  # seconds; normally a wait takes only a few


def wait_for(condition, what, patience=PATIENCE):
    """Waits until the condition returns a true value, and returns that value."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise TimeoutError(f"waited {patience} s in vain: {what}")
        time.sleep(0.02)


def read_until(stream, mark, what, patience=PATIENCE):
    """Reads the output of a program up to the first line with the mark."""
    end = time.monotonic() + patience
    text = b""
    while mark not in text or not text.endswith(b"\n"):
        ready, _, _ = select.select([stream], [], [], max(0, end - time.monotonic()))
        data = os.read(stream.fileno(), 65536) if ready else b""
        if not data:
            raise TimeoutError(f"{what}: {'it ended' if ready else f'waited {patience} s in vain'}; it had printed {text.decode()!r}")
        text += data
    return text.decode()


def adopt_orphans():
    """Makes this process the parent of orphaned descendants, so that it can find and end them."""
    pr_set_child_subreaper = 36
    if ctypes.CDLL(None, use_errno=True).prctl(pr_set_child_subreaper, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl")


def descendants():
    """The running programs that this one has started, directly or not: process id to name."""
    parents, names = {}, {}
    for entry in pathlib.Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        try:
            stat = (entry / "stat").read_text(encoding="utf-8", errors="replace")
        except (FileNotFoundError, ProcessLookupError):
            continue
        name, rest = stat.split("(", 1)[1].rsplit(")", 1)
        state, parent = rest.split()[:2]
        if state not in "ZX":
            parents[int(entry.name)], names[int(entry.name)] = int(parent), name
    found, level = {}, {os.getpid()}
    while level:
        level = {process for process, parent in parents.items() if parent in level}
        found |= {process: names[process] for process in level}
    return found


def end_descendants():
    """Kills each descendant by its process id, and waits for their end."""
    def have_all_ended():
        for process in descendants():
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
        return not descendants()

    wait_for(have_all_ended, "the programs that the test started do not end")
    try:
        while os.waitpid(-1, os.WNOHANG)[0]:
            pass
    except ChildProcessError:
        pass
