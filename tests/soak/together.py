"""Two programs at once in one home, and what a backup brings back."""

import random

import hive
from machine import expect, finish
from worlds import JunkClean, RegistryClean, Restore, Switch, exported, missing_program, started_program


class Together:
    """A round is two runs at the same time."""

    name = "together"
    unit = "rounds of two at once"
    goal = "500"
    share = 4

    def __init__(self, stage):
        self.junk = JunkClean(stage.folder / "junk", stage.programs)
        self.registry = RegistryClean(stage.folder / "registry", stage.programs)
        self.restore = Restore(stage.folder / "restore", stage.programs)
        self.rounds = [self._clean_twice, self._clean_and_scan, self._clean_registry_twice, self._clean_and_switch, self._restore_and_switch]

    def play(self, seed):
        self.rounds[seed % len(self.rounds)](random.Random(seed))
        return 1

    def close(self):
        pass

    def _both(self, world, first, second):
        """Runs both at once. Returns how they have ended."""
        world.prepare()
        runs = [finish(process) for process in [world.home.start(*first), world.home.start(*second)]]
        for run in runs:
            run.check_end()
        return runs

    def _clean_twice(self, dice):
        runs = self._both(self.junk, self.junk.arguments, self.junk.arguments)
        self.junk.check()
        expect(self.junk.is_done(), "two cleans have left something")
        # A file that the other has removed has failed.
        count = sum(run.json["cleanedCount"] for run in runs)
        expect(count == len(self.junk.clutter), f"{count} removals reported of {len(self.junk.clutter)} files")

    def _clean_and_scan(self, dice):
        runs = self._both(self.junk, self.junk.arguments, ["scan", "junk", "--json"])
        self.junk.check()
        expect(self.junk.is_done(), "the clean has left something")
        expect(runs[0].json["cleanedCount"] == len(self.junk.clutter), "the clean has counted wrongly")
        expect(runs[1].json["totalCount"] <= len(self.junk.clutter), "the scan has listed too much")

    def _clean_registry_twice(self, dice):
        other = self.registry.home.folder / "other.reg"
        other.unlink(missing_ok=True)
        second = ["clean", "registry", "--yes", "--json", "--backup", other]
        self._both(self.registry, self.registry.arguments, second)
        self.registry.check()
        expect(self.registry.is_done(), "two cleans have left something")
        saved = {}
        for backup in (self.registry.backup, other):
            if backup.exists():
                saved |= hive.read_export(backup)
        gone = {entry: data for entry, data in self.registry.before.items() if entry not in self.registry.now}
        unsaved = [entry for entry, data in gone.items() if saved.get(exported(entry)) != data]
        expect(not unsaved, f"gone, but in neither backup: {unsaved[:3]}")

    def _clean_and_switch(self, dice):
        self._check_switch(self.registry, self._both(self.registry, self.registry.arguments, Switch.arguments))

    def _restore_and_switch(self, dice):
        self._check_switch(self.restore, self._both(self.restore, self.restore.arguments, Switch.arguments))

    def _check_switch(self, world, runs):
        """Both have written one file. Neither may have undone the other's work."""
        switched = {entry for entry in world.before if started_program in entry[2]}
        now = world.state()
        expect(runs[1].status != 0 or not switched & now.keys(), "the switch is reported, but undone")
        others = {entry: data for entry, data in now.items() if entry not in switched}
        allowed = [{entry: data for entry, data in state.items() if entry not in switched} for state in (world.before, world.after)]
        if runs[0].status == 0:
            expect(others == allowed[1], "the work is reported, but undone")
        else:
            expect(allowed[0].keys() & allowed[1].keys() <= others.keys(), "entries are lost")


class Restores:
    """A round cleans entries with random values, and puts them back."""

    name = "restores"
    unit = "values restored"
    goal = "2,000"
    share = 3

    def __init__(self, stage):
        self.world = Restore(stage.folder / "world", stage.programs)
        self.backup = self.world.backup

    def play(self, seed):
        dice = random.Random(seed)
        world = self.world
        keys = {}
        for number in range(20):
            key = f"{hive.version}App Paths\\{self._name(dice, number)}.exe"
            values = {self._name(dice, index): self._data(dice) for index in range(dice.randrange(12))}
            keys[key] = {"": hive.text_value(missing_program)} | values
        keys["Software\\Kept"] = {"value": "dword:00000001"}
        hive.write(world.machine, hive.machine, keys)
        hive.write(world.user, hive.user, {"Software\\Kept": {}})
        self.backup.unlink(missing_ok=True)
        before = world.state()
        home = world.home
        home.run("clean", "registry", "--yes", "--json", "--backup", self.backup).check_end((0,))
        left = world.state()
        expect(len(left) == 1, f"not everything was removed: {list(left)[:3]}")
        home.run("restore", self.backup, "--json").check_end((0,))
        after = world.state()
        expect(self._known(after) == self._known(before), f"{self._difference(before, after)}")
        return len(before) - 1

    def close(self):
        pass

    def _known(self, state):
        return {(exported(entry)): data for entry, data in state.items()}

    def _difference(self, before, after):
        old, new = self._known(before), self._known(after)
        return [(key, old.get(key), new.get(key)) for key in old.keys() | new.keys() if old.get(key) != new.get(key)][:3]

    def _text(self, dice, length):
        alphabet = "aZ09 %\\\"'=;[]{}@#,:/äß名\U0001f389\u202e\ue000"
        return "".join(dice.choice(alphabet) for _ in range(length))

    def _name(self, dice, number):
        text = self._text(dice, dice.randrange(1, 12)).replace("\\", "")
        return f"{text}{number}"

    def _data(self, dice):
        kind = dice.randrange(6)
        if kind == 0:
            return hive.text_value(self._text(dice, dice.randrange(200)))
        if kind == 1:
            return f"dword:{dice.randrange(1 << 32):08x}"
        if kind == 2:
            return f'str({dice.choice("27")}):{hive.text_value(self._text(dice, dice.randrange(50)))}'
        data = dice.randbytes(dice.choice([0, 1, 23, 24, 25, 70, 4000]))
        listed = ",".join(f"{byte:02x}" for byte in data)
        if kind == 3:
            return f"hex:{listed}"
        return f"hex({dice.choice([0, 2, 5, 6, 7, 8, 9, 10, 11, 12, 0x1234]):x}):{listed}"
