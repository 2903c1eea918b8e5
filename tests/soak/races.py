"""Races: another process exchanges files and folders while a clean removes what its scan has listed."""

import ctypes
import os
import random
import signal
import time

from machine import Home, expect, find_removed, finish, remove_tree, snapshot

exchange = 2  # of Linux
at_fdcwd = -100
file_count = 2000
# How many files a clean may still remove from a folder after it was moved. It looks where the folder is once in so many.
removed_after_move = 32
_library = ctypes.CDLL(None, use_errno=True)


def rename(first, second, flags=0):
    return _library.renameat2(at_fdcwd, os.fsencode(first), at_fdcwd, os.fsencode(second), flags) == 0


class Races:
    """A round is one clean of one folder, while one kind of entry is exchanged all the time."""

    name = "races"
    unit = "files removed in races"
    goal = "1,000,000, at least 100,000 of each kind"
    share = 14
    kinds = ["file and link", "parent and link", "grandparent and link", "parent and folder", "file and folder", "folder moved away"]

    def __init__(self, stage):
        self.programs = stage.programs
        self.home = Home(stage.folder / "home", stage.programs)
        self.outside = self.home.folder / "outside"
        self.aside = self.home.folder / "aside"
        self.grandparent = self.home.temporary / "grandparent"
        self.parent = self.grandparent / "parent"
        self._fill(self.outside / "grandparent/parent")
        self.before = snapshot(self.outside)
        self.swaps = dict.fromkeys(self.kinds, 0)
        self.rounds = 0

    def play(self, seed):
        dice = random.Random(seed)
        kind = self.kinds[seed % len(self.kinds)]
        self.rounds += 1
        variables = self.programs.preload(OLD_SYSTEM="1") if seed // len(self.kinds) % 2 else {}
        self._fill(self.parent)
        self.aside.mkdir()
        self.log_size = sum(log.stat().st_size for log in (self.home.folder / "data").rglob("*.log"))
        try:
            swap = self._swapper(kind, dice)
            child, reader = self._start(swap, dice.choice([0, 0, 1e-5, 1e-4, 1e-3]))
            try:
                run = finish(self.home.start("clean", "junk", "--yes", "--json", **variables))
            finally:
                os.kill(child, signal.SIGTERM)
                with os.fdopen(reader, "rb") as pipe:
                    self.swaps[kind] += int(pipe.read() or b"0")
                os.waitpid(child, 0)
            run.check_end((0, 1))
            lost = find_removed(self.before, snapshot(self.outside))
            expect(not lost, f"{kind}: lost outside: {sorted(lost)[:3]}")
            if kind == "parent and folder":
                self._check_both(run.json["cleanedCount"])
            if kind == "folder moved away":
                self._check_moved()
            return run.json["cleanedCount"]
        finally:
            remove_tree(self.aside)
            remove_tree(self.home.temporary)
            self.home.temporary.mkdir()

    def close(self):
        # A busy machine may let a clean end before anything is exchanged, but not each time.
        for kind, count in self.swaps.items():
            expect(count or self.rounds < 100, f"nothing was exchanged: {kind}")

    def _fill(self, folder):
        folder.mkdir(parents=True)
        handle = os.open(folder, os.O_RDONLY)
        for number in range(file_count):
            os.close(os.open(f"{number}.log", os.O_WRONLY | os.O_CREAT, 0o644, dir_fd=handle))
        os.close(handle)

    def _swapper(self, kind, dice):
        """Returns the function that exchanges something once."""
        if kind in ("parent and link", "grandparent and link"):
            real = self.parent if kind.startswith("parent") else self.grandparent
            link = self.aside / "link"
            target = self.outside / real.relative_to(self.home.temporary)
            link.symlink_to(target if dice.random() < 0.5 else os.path.relpath(target, real.parent))
            return lambda: rename(real, link, exchange)
        if kind == "parent and folder":
            other = self.aside / "other"
            self._fill(other)
            return lambda: self._is_cleaning() and rename(self.parent, other, exchange)
        if kind == "folder moved away":
            delay = dice.random() * 0.01  # seconds
            state = []

            def move():
                if not state and self._is_cleaning():
                    time.sleep(delay)
                    state.append(rename(self.parent, self.aside / "moved"))
                    # How many were there when it had arrived.
                    (self.aside / "count").write_text(str(len(os.listdir(self.aside / "moved"))))
                    return True
                return False

            return move
        others = []
        for number in range(20):
            other = self.aside / f"other {number}"
            if kind == "file and link":
                other.symlink_to(self.outside / f"grandparent/parent/{number}.log")
            else:
                other.mkdir()
                (other / "out").symlink_to(self.outside)
                (other / "below").mkdir()
                (other / "below/out").symlink_to(self.outside / "grandparent")
            others.append((other, self.parent / f"{number * (file_count // 20)}.log"))

        def swap():
            other, file = others[time.perf_counter_ns() % len(others)]
            return rename(other, file, exchange)

        return swap

    def _start(self, swap, pause):
        """Starts a process that swaps until it is ended. Returns its number and a pipe for the number of its swaps."""
        reader, writer = os.pipe()
        child = os.fork()
        if child:
            os.close(writer)
            return child, reader
        count = 0
        is_ended = []
        signal.signal(signal.SIGTERM, lambda *_: is_ended.append(True))
        try:
            while not is_ended:
                count += bool(swap())
                if pause:
                    time.sleep(pause)
            os.write(writer, str(count).encode())
        finally:
            os._exit(0)

    def _is_cleaning(self):
        """Whether the scan is over: what is at the path now has not been listed."""
        log = next((self.home.folder / "data/Norvak/Sweepwise/logs").glob("*.log"), None)
        if not log:
            return False
        with open(log, "rb") as file:
            file.seek(self.log_size)
            return b"Starting junk clean" in file.read()

    def _check_both(self, removed):
        """One of the two folders was listed. All removed files are from that one."""
        left = [len(os.listdir(folder)) for folder in (self.parent, self.aside / "other")]
        expect(max(left) == file_count, f"parent and folder: {left} of {file_count} files are left")
        expect(sum(left) == 2 * file_count - removed, f"{left} files are left, {removed} removals reported")

    def _check_moved(self):
        moved = self.aside / "moved"
        if not (self.aside / "count").exists():
            return  # the clean was quicker
        lost = int((self.aside / "count").read_text()) - len(os.listdir(moved))
        expect(lost <= removed_after_move, f"{lost} files were removed after their folder was moved away")
