"""Measures sweepwise-cli on large inputs: registries of a prefix, files below one rule, the profiles of a browser.

Each measurement gives a row: its title, the figure, its unit, and the goal that it should not exceed. Ratios have their base in the same
rounds.
"""
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time

ROUNDS = 3
LONGEST = 120  # seconds of one run; an older commit may take hours for what the titles say
SMALL_DIVISOR = 50
FILES_PER_FOLDER = 200
VERSION_KEY = r"Software\\Microsoft\\Windows\\CurrentVersion"


def run(command, environment, statuses=(0,)):
    """Seconds and peak memory in MiB of one run."""
    begin = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL)
    is_too_long = threading.Event()
    limit = threading.Timer(LONGEST, lambda: (is_too_long.set(), process.kill()))
    limit.start()
    _, status, usage = os.wait4(process.pid, 0)
    limit.cancel()
    seconds = time.perf_counter() - begin
    if is_too_long.is_set():
        sys.exit(f"{command}: ended after {LONGEST} s")
    if os.waitstatus_to_exitcode(status) not in statuses:
        sys.exit(f"bench: {command}: exit status {os.waitstatus_to_exitcode(status)}")
    return seconds, usage.ru_maxrss / 1024


def median(*commands, environment, rounds, prepare=None):
    """For each command the median of the seconds and the largest peak memory, in rounds that take turns. The first one warms up."""
    seconds, peaks = [[] for _ in commands], [0] * len(commands)
    for number in range(rounds + 1):
        for index, command in enumerate(commands):
            if prepare:
                prepare()
            elapsed, peak = run(command, environment)
            if number > 0:
                seconds[index].append(elapsed)
                peaks[index] = max(peaks[index], peak)
    return [statistics.median(values) for values in seconds], peaks


def make_prefix(folder, user="", machine=""):
    drive = folder / "drive_c"
    drive.mkdir(parents=True)
    (folder / "dosdevices").mkdir()
    (folder / "dosdevices" / "c:").symlink_to("../drive_c")
    head = "WINE REGISTRY Version 2\n;; All keys relative to {}\n\n#arch=win64\n"
    (folder / "user.reg").write_text(head.format(r"\\User\\S-1-5-21-0-0-0-1000") + user)
    (folder / "system.reg").write_text(head.format(r"\\Machine") + machine)
    return drive


def make_files(folder, count, size=100):
    content = b"x" * size
    for number in range(count):
        if number % FILES_PER_FOLDER == 0:
            subfolder = folder / f"some folder {number // FILES_PER_FOLDER}"
            subfolder.mkdir(parents=True)
        (subfolder / f"a small file with a longer name {number}").write_bytes(content)


class Bench:
    """The measurements. Each method makes what it needs in a folder of its own and returns its rows."""

    def __init__(self, build, divisor, rounds):
        self.cli = build / "src" / "cli" / "sweepwise-cli"
        self.bare = [build / "benchmarks" / "bench_largefiles", "bare-1"]
        self.divisor = divisor
        self.rounds = rounds

    def environment(self, folder, temp=None, prefix=None):
        home = folder / "home"
        home.mkdir(exist_ok=True)
        return {"PATH": os.environ["PATH"], "HOME": str(home), "USER": "user", "TMPDIR": str(temp or home),
                "WINEPREFIX": str(prefix or home / "none")}

    def many_keys(self, folder):
        user = "".join(f"\n[Software\\\\Some maker\\\\Program {number}] 1500000000\n\"Setting\"=\"some value of the program\"\n"
                       for number in range(100_000 // self.divisor))
        make_prefix(folder / "prefix", user)
        environment = self.environment(folder, prefix=folder / "prefix")
        (seconds,), _ = median([self.cli, "scan", "junk"], environment=environment, rounds=self.rounds)
        return [("junk scan, nothing to find, registry of 100,000 keys", seconds, "s", 0.3)]

    def missing_files(self, folder):
        names = [f"C:\\\\folder {number % 5}\\\\library {number}.dll" for number in range(11_000 // self.divisor)]
        machine = f"\n[{VERSION_KEY}\\\\SharedDLLs] 1500000000\n" + "".join(f"\"{name}\"=dword:00000001\n" for name in names)
        drive = make_prefix(folder / "prefix", machine=machine)
        for number in range(5):
            (drive / f"folder {number}").mkdir()
            for file in range(2_500 // self.divisor):
                (drive / f"folder {number}" / f"present {file}.dll").touch()
        environment = self.environment(folder, prefix=folder / "prefix")
        (seconds,), _ = median([self.cli, "scan", "registry"], environment=environment, rounds=self.rounds)
        return [("registry scan, 11,000 missing files in 5 folders", seconds, "s", 0.5)]

    def many_values(self, folder):
        values = "".join(f"\"Program {number}\"=\"C:\\\\missing\\\\program {number}.exe\"\n" for number in range(100_000 // self.divisor))
        make_prefix(folder / "prefix", f"\n[{VERSION_KEY}\\\\Run] 1500000000\n{values}")
        environment = self.environment(folder, prefix=folder / "prefix")
        _, clean, restore = self.registry_run(folder, environment)
        return [("registry clean, 100,000 values of one key, beyond two scans", clean, "s", 1),
                ("  restoring them", restore, "s", 1)]

    def registry_run(self, folder, environment, file="user.reg"):
        """Seconds of a scan, of a clean beyond two scans, and of restoring what the clean has backed up."""
        registry, kept = folder / "prefix" / file, folder / "kept.reg"
        before = registry.read_bytes()
        times = {"scan": [], "clean": [], "restore": []}
        for _ in range(self.rounds + 1):
            registry.write_bytes(before)
            kept.unlink(missing_ok=True)
            times["scan"].append(run([self.cli, "scan", "registry"], environment)[0])
            times["clean"].append(run([self.cli, "clean", "registry", "--backup", kept, "--yes"], environment)[0])
            if registry.read_bytes() == before:
                sys.exit("bench: nothing was cleaned")
            times["restore"].append(run([self.cli, "restore", kept], environment)[0])
        scan, clean, restore = (statistics.median(values[1:]) for values in times.values())
        # A clean scans, looks again right before it removes anything, writes the backup, and removes.
        return scan, clean - 2 * scan, restore

    def long_text(self, folder):
        make_prefix(folder / "prefix", f"\n[{VERSION_KEY}\\\\Run] 1500000000\n\"Gone\"=\"C:\\\\{'x' * (30_000_000 // self.divisor)}.exe\"\n")
        environment = self.environment(folder, prefix=folder / "prefix")
        scan, clean, restore = self.registry_run(folder, environment)
        return [("registry scan, a text of 30,000,000 characters", scan, "s", 1),
                ("  cleaning that text, beyond two scans", clean, "s", 1),
                ("  restoring that text", restore, "s", 1)]

    def deep_key(self, folder):
        uninstall = f"{VERSION_KEY}\\\\Uninstall\\\\Gone"
        deepest = "\\\\".join([uninstall, *["a"] * (16_000 // self.divisor)])
        make_prefix(folder / "prefix", machine=f"\n[{uninstall}] 1500000000\n\"DisplayName\"=\"Gone\"\n\"InstallLocation\"=\"C:\\\\gone\"\n"
                                               f"\"UninstallString\"=\"C:\\\\gone\\\\uninstall.exe\"\n\n[{deepest}] 1500000000\n\"Value\"=\"1\"\n")
        environment = self.environment(folder, prefix=folder / "prefix")
        scan, clean, _ = self.registry_run(folder, environment, "system.reg")
        return [("registry scan, a key of 16,000 levels", scan, "s", 1), ("  cleaning that key, beyond two scans", clean, "s", 1)]

    def junk(self, folder):
        count = 500_000 // self.divisor
        temp = folder / "temporary files of a user"  # paths of about 110 characters
        for half in ("first half", "second half"):
            make_files(temp / half, count // 2)
        environment = self.environment(folder, temp=temp)
        scan = [self.cli, "scan", "junk"]
        (bare, ours), (_, peak) = median([*self.bare, temp], scan, environment=environment, rounds=self.rounds)
        _, (half_peak,) = median(scan, environment=self.environment(folder, temp=temp / "first half"), rounds=1)
        return [("junk scan, 500,000 files below one rule (bare loop, one thread = 1)", ours / bare, "", 0.9),
                ("memory of an item there", (peak - half_peak) * 2**20 / (count // 2), "B", 400)]

    def items(self, folder):
        temp = folder / "temp"
        make_files(temp, 1_000_000 // self.divisor)
        scan = [self.cli, "scan", "junk"]
        _, (peak, listed) = median(scan, [*scan, "--items", "--json"], environment=self.environment(folder, temp=temp), rounds=1)
        return [("peak memory with --items --json, 1,000,000 items (without = 1)", listed / peak, "", 1.1)]

    def clean(self, folder):
        count = 300_000 // self.divisor
        temp = folder / "temp"
        environment = self.environment(folder, temp=temp)
        commands = (["rm", "-rf", temp], [self.cli, "clean", "junk", "--yes"])

        def prepare():
            shutil.rmtree(temp, ignore_errors=True)
            make_files(temp, count)

        (remove, ours), _ = median(*commands, environment=environment, rounds=self.rounds, prepare=prepare)
        return [("scan and clean of 300,000 small files (rm -rf = 1)", ours / remove, "", 1.3)]

    def browser(self, folder):
        data = folder / "prefix" / "drive_c" / "users" / "user" / "AppData" / "Local" / "Google" / "Chrome" / "User Data"
        make_prefix(folder / "prefix")
        for number in range(20):
            make_files(data / ("Default" if number == 0 else f"Profile {number}") / "Cache" / "Cache_Data", 50_000 // self.divisor)
        scan = [self.cli, "scan", "browser"]
        in_prefix = self.environment(folder, prefix=folder / "prefix")
        outside = dict(self.environment(folder), LOCALAPPDATA=str(data.parents[2]))
        (bare, ours), _ = median([*self.bare, data], scan, environment=outside, rounds=self.rounds)
        # Below a prefix each entry costs one system call more, which tells whether Windows programs see it.
        (bare_again, below), _ = median([*self.bare, data], scan, environment=in_prefix, rounds=self.rounds)
        return [("browser scan, 20 profiles of 50,000 files (bare loop, one thread = 1)", ours / bare, "", 1.3),
                ("  the same in a prefix, with the attribute of each file", below / bare_again, "", 1.3)]



def measurements():
    """The measurements as functions of a build folder and of whether the input is to be small."""
    def alone(method):
        def rows(build, is_small):
            with tempfile.TemporaryDirectory() as folder:
                return method(Bench(build, SMALL_DIVISOR if is_small else 1, 1 if is_small else ROUNDS), pathlib.Path(folder))
        return rows
    return [alone(method) for method in (Bench.many_keys, Bench.missing_files, Bench.many_values, Bench.long_text, Bench.deep_key,
                                         Bench.junk, Bench.items, Bench.clean, Bench.browser)]
