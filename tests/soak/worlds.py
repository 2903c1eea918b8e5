"""Small worlds for runs that are disturbed: what a command may change in them, and what it must have changed when it says so."""

import os

import hive
from machine import Home, expect

valid_program = "C:\\Apps\\there.exe"
missing_program = "C:\\Gone\\program.exe"
started_program = "Soak Player"
chrome_profile = "prefix/drive_c/users/jane/AppData/Local/Google/Chrome/User Data/Default"


class World:
    """The base of all worlds: a home, a command, and checks after any end of it."""

    arguments = []

    def __init__(self, folder, programs):
        self.home = Home(folder, programs)
        self.fence = self.home.folder / "outside"
        self.fence.mkdir()
        for number in range(5):
            (self.fence / f"canary {number}.log").write_text(f"canary {number}")

    def prepare(self):
        """Makes everything as it was before the first run."""

    def resume(self):
        """Called between a run that was ended and the next one."""

    def check(self):
        """Nothing is torn or lost. Holds after every end, also a violent one."""
        for number in range(5):
            path = self.fence / f"canary {number}.log"
            expect(path.read_text() == f"canary {number}", f"{path} is lost")

    def is_done(self):
        """Whether everything has been done that the command does when nothing goes wrong."""
        raise NotImplementedError

    def check_end(self, run):
        """The same as check(), where it matters how the run has ended."""
        self.check()

    def check_report(self, run):
        """What the run has said is true."""
        if run.status == 0:
            expect(self.is_done(), f"status 0, but it is not done: {run.output[-500:]} {run.error[-500:]}")
        else:
            answer = {} if run.error else run.json
            said = run.error or answer.get("incompleteCount") or answer.get("failedCount")
            expect(said, f"status {run.status} without a reason: {run.output[-500:]}")


class FileWorld(World):
    """Clutter in some folders. Others hold files that nothing may touch."""

    clutter = []
    kept = []

    def prepare(self):
        for path in map(self.home.folder.joinpath, self.clutter + self.kept):
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("x" * 100)

    def check(self):
        super().check()
        for path in map(self.home.folder.joinpath, self.kept):
            expect(path.exists(), f"{path} is lost")

    def count_left(self):
        return sum(map(os.path.lexists, map(self.home.folder.joinpath, self.clutter)))

    def is_done(self):
        return self.count_left() == 0

    def check_report(self, run):
        super().check_report(run)
        if run.status == 2 or not run.output:
            return
        result = run.json
        gone = len(self.clutter) - self.count_left()
        expect(result["cleanedCount"] == gone, f"{result['cleanedCount']} reported, {gone} gone")
        expect(result["cleanedSize"] == 100 * gone, f"{result['cleanedSize']} B reported, {100 * gone} gone")
        expect(run.status != 0 or not result["failedCount"], "a failure without a status")


class JunkClean(FileWorld):
    name = "junk clean"
    arguments = ["clean", "junk", "--yes", "--json"]
    clutter = [
        *(f"temp/{name}" for name in ("a.tmp", "b c.log", "one/two/three.txt", "one/four", "名前.log")),
        *(f"prefix/drive_c/windows/Temp/{number}.tmp" for number in range(4)),
        "prefix/drive_c/windows/Prefetch/APP.pf",
        "prefix/drive_c/users/jane/AppData/Local/D3DSCache/1/shader",
    ]
    kept = ["prefix/drive_c/windows/Prefetch/layout.ini", "prefix/drive_c/users/jane/Documents/letter.txt", "temp2/a.tmp"]


class BrowserClean(FileWorld):
    name = "browser clean"
    arguments = ["clean", "browser", "--yes", "--json"]
    clutter = [f"{chrome_profile}/{name}" for name in ("Cache/data_0", "Cache/data_1", "GPUCache/index", "Code Cache/index")]
    kept = [f"{chrome_profile}/{name}" for name in ("Bookmarks", "Login Data", "Preferences")]


class RegistryWorld(World):
    """Entries that lead nowhere beside valid twins."""

    invalid = 6  # of each kind

    def __init__(self, folder, programs):
        super().__init__(folder, programs)
        self.machine = self.home.prefix / "system.reg"
        self.user = self.home.prefix / "user.reg"
        self.backup = self.home.folder / "backup.reg"
        program = self.home.drive / "Apps/there.exe"
        program.parent.mkdir()
        program.write_text("")
        self._write()
        self.before = self.state()
        self._contents = self._read()
        self.after = self.before  # a world that differs sets it

    def _write(self):
        text = hive.text_value
        keys = {}
        for number in range(self.invalid):
            for word, target in (("gone", missing_program), ("there", valid_program)):
                keys[f"{hive.version}App Paths\\{word}{number}.exe"] = {"": text(target), "Path": text("C:\\Gone")}
                keys[f"{hive.version}Uninstall\\{word} {number}"] = {
                    "DisplayName": text(f"名前 {number}"),
                    "InstallLocation": text(target),
                    "Size": f"dword:{number:08x}",
                    "Blob": "hex:" + ",".join(f"{byte:02x}" for byte in range(60)),
                }
        keys[hive.fonts] = {
            f"{word} {number} (TrueType)": text(target)
            for number in range(self.invalid)
            for word, target in (("Gone", "gone.ttf"), ("There", valid_program))
        }
        hive.write(self.machine, hive.machine, keys)
        run = {f"gone {number}": text(missing_program) for number in range(self.invalid)}
        run |= {started_program: text(f'"{valid_program}"')}
        hive.write(
            self.user,
            hive.user,
            {
                f"{hive.version}Run": run,
                f"{hive.version}Uninstall\\Player": {"DisplayName": text(started_program), "DisplayIcon": text(valid_program)},
                "Software\\Product": {"setting": text("kept"), "": "hex(2):00,00"},
            },
        )

    def _read(self):
        return self.machine.read_bytes(), self.user.read_bytes()

    def prepare(self):
        self.machine.write_bytes(self._contents[0])
        self.user.write_bytes(self._contents[1])
        self.backup.unlink(missing_ok=True)

    def state(self):
        """All values of both files: {(file, key, name): (type, bytes)}."""
        values = {}
        for path in (self.machine, self.user):
            for key, names in hive.read(path).items():
                values |= {(path.name, key, name): hive.decode(data) for name, data in names.items()}
        return values

    def check(self):
        super().check()
        try:
            self.now = self.state()
        except (ValueError, OSError) as fault:
            expect(False, f"the registry is torn: {fault}")
        for entry, data in self.now.items():
            expect(self.before.get(entry, self.after.get(entry)) == data, f"{entry} has become {data}")
        lost = (self.before.keys() & self.after.keys()) - self.now.keys()
        expect(not lost, f"lost: {sorted(lost)[:3]}")

    def is_done(self):
        return self.now == self.after


class RegistryClean(RegistryWorld):
    name = "registry clean"

    def __init__(self, folder, programs):
        super().__init__(folder, programs)
        self.arguments = ["clean", "registry", "--yes", "--json", "--backup", self.backup]
        run = self.home.run(*self.arguments)
        run.check_end((0,))
        self.after = self.state()
        expect(len(self.before) - len(self.after) == self.invalid * 8, "the world has not the entries that it should have")
        self.resumed = False
        self.prepare()

    def prepare(self):
        super().prepare()
        self.resumed = False

    def resume(self):
        self.backup.unlink(missing_ok=True)  # the program writes over no file
        self.resumed = True

    def check(self):
        super().check()
        gone = {} if self.resumed else {entry: data for entry, data in self.before.items() if entry not in self.now}
        self.unsaved = gone.keys()
        if gone and self.backup.exists():
            saved = hive.read_export(self.backup)
            self.unsaved = {entry for entry, data in gone.items() if saved.get(exported(entry)) != data}

    def check_end(self, run):
        super().check_end(run)
        said = run.status == 1 and "the backup could not be written" in run.output
        expect(not self.unsaved or said, f"gone, but not in the backup: {sorted(self.unsaved)[:3]}")


def exported(entry):
    """The key and the name of an entry as a registry export has them."""
    file, key, name = entry
    root = "hkey_current_user" if file == "user.reg" else "hkey_local_machine"
    return f"{root}\\{hive.key_of(key)}", hive.name_of(name)


class Restore(RegistryWorld):
    name = "restore"

    def __init__(self, folder, programs):
        super().__init__(folder, programs)
        whole = self.before
        self.home.run("clean", "registry", "--yes", "--backup", self.backup).check_end((0,))
        self._saved = self.backup.read_bytes()
        self._contents = self._read()
        self.before = self.state()
        self.after = whole
        self.arguments = ["restore", self.backup, "--json"]

    def prepare(self):
        super().prepare()
        self.backup.write_bytes(self._saved)

    def check(self):
        super().check()
        expect(self.backup.read_bytes() == self._saved, "the backup has changed")


class Switch(RegistryWorld):
    name = "switch"
    arguments = ["startup", "disable", started_program, "--json"]

    def __init__(self, folder, programs):
        super().__init__(folder, programs)
        self.home.run(*self.arguments).check_end((0,))
        self.after = self.state()
        expect(len(self.before) - len(self.after) == 1, "the switch has not removed one value")
        self.prepare()


class Scan(World):
    """A command that changes nothing. What it finds without a fault is what it finds with one, or it says so."""

    def __init__(self, folder, programs, arguments):
        super().__init__(folder, programs)
        self.arguments = [*arguments, "--json"]
        self.junk = JunkClean(self.home.folder / "junk", programs)
        self.junk.prepare()
        self.registry = RegistryWorld(self.home.folder / "registry", programs)
        self.home = self.registry.home if arguments[1] in ("registry", "list") else self.junk.home
        whole = self.home.run(*self.arguments)
        whole.check_end((0,))
        self.found = findings(whole.json)
        self.run = None

    def check(self):
        super().check()
        self.registry.check()
        expect(self.registry.is_done() and self.junk.count_left() == len(self.junk.clutter), "a scan has changed something")

    def check_report(self, run):
        if run.status == 0:
            expect(findings(run.json) == self.found, "status 0, but something is missing")
        else:
            super().check_report(run)


def findings(answer):
    return {name: value for name, value in answer.items() if name != "scanTime"}


worlds = [
    JunkClean,
    BrowserClean,
    RegistryClean,
    Restore,
    Switch,
    *(
        lambda folder, programs, arguments=arguments: Scan(folder, programs, arguments)
        for arguments in (["scan", "junk"], ["scan", "browser"], ["scan", "registry"], ["startup", "list"])
    ),
]
file_worlds = [worlds[0], worlds[1], worlds[5], worlds[6]]
registry_worlds = [worlds[2], worlds[3], worlds[4], worlds[7], worlds[8]]
