"""What all rows of the soak share: the programs, a home of their own for them, and the comparison of folders."""

import contextlib
import ctypes
import json
import os
import pathlib
import stat
import subprocess
from dataclasses import dataclass

patience = 120  # seconds that a program may take before it counts as hanging
canary_count = 10_000


class Wrong(Exception):
    """The program did something that it must never do."""


def expect(holds, text):
    if not holds:
        raise Wrong(text)


@dataclass(frozen=True)
class Programs:
    """The programs of one build."""

    build: pathlib.Path

    @property
    def companion(self):
        return self.build / "src/cli/sweepwise-cli"

    @property
    def failing_calls(self):
        return self.build / "tests/support/libsweepwise_failingcalls.so"

    @property
    def is_sanitized(self):
        return "SWEEPWISE_SANITIZE:STRING=\n" not in (self.build / "CMakeCache.txt").read_text()

    def preload(self, **variables):
        """The variables that put the library of failing calls before the system's own."""
        libraries = [str(self.failing_calls)]
        if self.is_sanitized:  # the sanitizer insists on being the first library
            linked = subprocess.run(["ldd", self.companion], check=True, capture_output=True, text=True).stdout
            libraries[:0] = [line.split()[2] for line in linked.splitlines() if "libasan" in line]
        return {"LD_PRELOAD": ":".join(libraries)} | variables


@dataclass
class Run:
    """How a program ended. The status is negative after a signal."""

    status: int
    output: str
    error: str

    @property
    def json(self):
        try:
            return json.loads(self.output)
        except ValueError as fault:
            raise Wrong(f"the output is no JSON ({fault}): {self.output[-300:]!r} {self.error[-300:]!r}") from None

    def check_end(self, allowed=(0, 1, 2)):
        """The program ended by itself, and no sanitizer complained."""
        text = f"status {self.status}: {self.error[-2000:]}"
        expect(self.status in allowed, text)
        for word in ("Sanitizer", "runtime error:", "terminate called", "ASSERT"):
            expect(word not in self.error, text)


class Home:
    """A home in a temporary folder: settings, data, a Wine prefix and temporary files are below it."""

    def __init__(self, folder, programs):
        self.folder = pathlib.Path(folder)
        self.programs = programs
        self.prefix = self.folder / "prefix"
        self.drive = self.prefix / "drive_c"
        self.temporary = self.folder / "temp"
        self.fence = self.folder / "fence"
        for path in (self.temporary, self.drive / "windows", self.drive / "users/jane", self.prefix / "dosdevices"):
            path.mkdir(parents=True, exist_ok=True)
        with contextlib.suppress(FileExistsError):
            (self.prefix / "dosdevices/c:").symlink_to("../drive_c")
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "USER": "jane",
            "HOME": str(self.folder / "home"),
            "XDG_CONFIG_HOME": str(self.folder / "config"),
            "XDG_DATA_HOME": str(self.folder / "data"),
            "XDG_CACHE_HOME": str(self.folder / "cache"),
            "WINEPREFIX": str(self.prefix),
            "TMPDIR": str(self.temporary),
        }
        for name in ("home", "config", "data", "cache"):
            (self.folder / name).mkdir(exist_ok=True)

    def start(self, *arguments, **variables):
        """Starts the companion with an ordinary user's rights, even for an administrator."""
        return subprocess.Popen(
            [*ordinary_rights(), self.programs.companion, *map(str, arguments)],
            env=self.environment | variables,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )

    def run(self, *arguments, **variables):
        """Runs the companion to its end."""
        return finish(self.start(*arguments, **variables))


def finish(process):
    try:
        output, error = process.communicate(timeout=patience)
    except subprocess.TimeoutExpired:
        process.kill()
        _, error = process.communicate()
        raise Wrong(f"it hangs: {error.decode(errors='replace')[-500:]}") from None
    return Run(process.returncode, output.decode(errors="replace"), error.decode(errors="replace"))


def ordinary_rights():
    """The start of a command line that takes the rights of an administrator from the program."""
    return ["setpriv", "--bounding-set=-all", "--inh-caps=-all"] if os.geteuid() == 0 else []


def drop_rights():
    """Takes the rights of an administrator from this process: it then meets permissions as everybody does."""
    if os.geteuid() != 0:
        return
    header = (ctypes.c_uint32 * 2)(0x20080522, 0)  # the third version of the call's structure
    _check(_library.capset(header, (ctypes.c_uint32 * 6)()))


# The values are those of Linux on all processors.
clone_newns = 0x00020000
clone_newuser = 0x10000000
ms_bind = 4096
ms_rec = 16384
ms_private = 1 << 18
mnt_detach = 2
_library = ctypes.CDLL(None, use_errno=True)


def _check(result):
    if result != 0:
        error = ctypes.get_errno()
        raise OSError(error, os.strerror(error))


def enter_namespaces():
    """Gives this process mounts of its own. Returns False where the system does not allow it."""
    user, group = os.geteuid(), os.getegid()
    try:
        _check(_library.unshare(clone_newuser | clone_newns))
        pathlib.Path("/proc/self/setgroups").write_text("deny")
        pathlib.Path("/proc/self/uid_map").write_text(f"0 {user} 1")
        pathlib.Path("/proc/self/gid_map").write_text(f"0 {group} 1")
        _check(_library.mount(b"none", b"/", None, ms_rec | ms_private, None))
    except OSError:
        return False
    return True


def bind(source, target):
    _check(_library.mount(os.fsencode(source), os.fsencode(target), None, ms_bind, None))


def mount_memory(target):
    _check(_library.mount(b"none", os.fsencode(target), b"tmpfs", 0, None))


def unmount(target):
    _check(_library.umount2(os.fsencode(target), mnt_detach))


@dataclass(frozen=True)
class Entry:
    """What a comparison of two moments looks at."""

    mode: int
    number: int
    size: int
    modified: int
    changed: int
    target: bytes = b""


def snapshot(folder, leave_out=()):
    """The entries below a folder by their path (bytes). Follows no link, and reads folders with paths of any length."""
    entries = {}
    left_out = {os.fsencode(path) for path in leave_out}

    def look(handle, path):
        for name in os.listdir(handle):
            name = os.fsencode(name)
            full = path + b"/" + name
            if full in left_out:
                continue
            status = os.stat(name, dir_fd=handle, follow_symlinks=False)
            entries[full] = _entry(status, name, handle)
            if stat.S_ISDIR(status.st_mode):
                below = os.open(name, os.O_RDONLY | os.O_DIRECTORY | os.O_NOFOLLOW, dir_fd=handle)
                try:
                    look(below, full)
                finally:
                    os.close(below)

    top = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    try:
        look(top, os.fsencode(folder))
    finally:
        os.close(top)
    return entries


def _entry(status, name, handle):
    if stat.S_ISDIR(status.st_mode):  # its times change with what is removed in it
        return Entry(status.st_mode, status.st_ino, 0, 0, 0)
    target = os.readlink(name, dir_fd=handle) if stat.S_ISLNK(status.st_mode) else b""
    # The removal of one of several names changes this time of the others.
    changed = 0 if status.st_nlink > 1 else status.st_ctime_ns
    return Entry(status.st_mode, status.st_ino, status.st_size, status.st_mtime_ns, changed, target)


def find_removed(before, after):
    """The paths that are gone. Everything else must be as it was."""
    for path, entry in after.items():
        expect(path in before, f"{path!r} is new")
        old = before[path]
        if old == entry:
            continue
        # A file that had a second name has one now.
        only_name = old.changed == 0 and Entry(**{**entry.__dict__, "changed": 0}) == old
        expect(only_name and stat.S_ISREG(entry.mode), f"{path!r} has changed: {old} {entry}")
    return before.keys() - after.keys()


class Fence:
    """Files beside the clutter that nothing may touch."""

    def __init__(self, folder, count=canary_count):
        self.folder = pathlib.Path(folder)
        self.folder.mkdir(parents=True, exist_ok=True)
        for number in range(count):
            parent = self.folder / f"{number % 50}"
            parent.mkdir(exist_ok=True)
            path = parent / f"{number}.log"
            path.write_text(f"canary {number}")
            path.chmod(0o600 if number % 3 else 0o644)
            os.utime(path, (1_600_000_000 + number,) * 2)
        self._entries = snapshot(self.folder)
        for path in self.linkable:  # a second name changes the time of the last change
            entry = self._entries[os.fsencode(path)]
            self._entries[os.fsencode(path)] = Entry(entry.mode, entry.number, entry.size, entry.modified, 0)

    @property
    def linkable(self):
        """The files that a round may give second names."""
        return [self.folder / f"{number}" / f"{number}.log" for number in range(50)]

    def check(self):
        now = snapshot(self.folder)
        lost = find_removed(self._entries, now)
        expect(not lost, f"lost: {sorted(lost)[:3]}")

    def check_contents(self):
        for path in self.folder.glob("*/*.log"):
            expect(path.read_text() == f"canary {path.stem}", f"{path} has another content")


def remove_tree(folder):
    """Removes a folder, even below folders without permissions and with paths of any length."""

    def clear(handle):
        for name in os.listdir(handle):
            status = os.stat(name, dir_fd=handle, follow_symlinks=False)
            if not stat.S_ISDIR(status.st_mode):
                os.unlink(name, dir_fd=handle)
                continue
            os.chmod(name, 0o700, dir_fd=handle)
            below = os.open(name, os.O_RDONLY | os.O_DIRECTORY | os.O_NOFOLLOW, dir_fd=handle)
            try:
                clear(below)
            finally:
                os.close(below)
            os.rmdir(name, dir_fd=handle)

    if not os.path.lexists(folder):
        return
    os.chmod(folder, 0o700)
    handle = os.open(folder, os.O_RDONLY | os.O_DIRECTORY | os.O_NOFOLLOW)
    try:
        clear(handle)
    finally:
        os.close(handle)
    os.rmdir(folder)
