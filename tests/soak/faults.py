"""Faults: system calls that fail, and processes that end in the middle of their work."""

import errno
import random

import machine
from worlds import JunkClean, RegistryClean, Restore, Switch, file_worlds, registry_worlds

# Not those that mean a missing file or a link: they are answers.
errors = [errno.EIO, errno.EACCES, errno.ENOSPC, errno.EMFILE, errno.ENOMEM, errno.EPERM]
partly = -5
killed = -4


class Disturbed:
    """Runs of several worlds, each with one call that goes wrong. A round is one run."""

    makers = []

    def __init__(self, stage):
        self.programs = stage.programs
        self.worlds = [maker(stage.folder / str(number), stage.programs) for number, maker in enumerate(self.makers)]
        self.folder = stage.folder
        self.counts = {}

    def close(self):
        pass

    def disturb(self, call, error, skip="0", count="", where=None):
        """The variables that make calls go wrong for paths in the world."""
        return self.programs.preload(FAILING_CALL=f"{call}:{error}:{where or self.folder}:{skip}:{count}")

    def count_calls(self, world, call):
        """How many such calls an undisturbed run makes."""
        if (world, call) not in self.counts:
            world.prepare()
            file = self.folder / "count"
            world.home.run(*world.arguments, **self.disturb(call, -3), FAILING_CALL_FILE=str(file)).check_end((0,))
            self.counts[world, call] = int(file.read_text())
            if self.counts[world, call] < 3:
                raise RuntimeError(f"the calls of {world.arguments} are not seen")
        return self.counts[world, call]


class FailingCalls(Disturbed):
    def play(self, seed):
        dice = random.Random(seed)
        world = dice.choice(self.worlds)
        call = dice.choice(["any", "any", "changing"])
        skip = dice.randrange(self.count_calls(world, call) + 1)
        # An interrupted call is made again, for as long as it takes.
        error, count = dice.choice([*((error, dice.choice(["1", ""])) for error in errors), (errno.EINTR, "2"), (partly, "")])
        variables = self.disturb(call, error, skip, count)
        if dice.random() < 0.05:
            variables = self.disturb("pthread_create", errno.EAGAIN, dice.randrange(3))
            variables["FAILING_CALL"] = variables["FAILING_CALL"].replace(str(self.folder), "")
        world.prepare()
        run = world.home.run(*world.arguments, **variables)
        try:
            run.check_end()
            world.check_end(run)
            world.check_report(run)
        except machine.Wrong as wrong:
            raise machine.Wrong(f"{world.arguments} with {variables['FAILING_CALL']}: {wrong}") from None
        return 1


class FileFaults(FailingCalls):
    name = "file-faults"
    unit = "runs on files with failing calls"
    goal = "20,000"
    share = 12
    makers = file_worlds


class RegistryFaults(FailingCalls):
    name = "registry-faults"
    unit = "runs on the registry with failing calls"
    goal = "2,000"
    share = 6
    makers = registry_worlds


class Kills(Disturbed):
    name = "kills"
    unit = "killed runs"
    goal = "1,200"
    share = 6
    makers = [JunkClean, RegistryClean, Restore, Switch]

    def play(self, seed):
        dice = random.Random(seed)
        world = dice.choice(self.worlds)
        call = dice.choice(["changing", "changing", "any"])
        variables = self.disturb(call, killed, dice.randrange(self.count_calls(world, call)), "1")
        world.prepare()
        try:
            run = world.home.run(*world.arguments, **variables)
            run.check_end((-9, 0))
            world.check_end(run)
            world.resume()
            again = world.home.run(*world.arguments)
            again.check_end((0,))
            world.check()
            machine.expect(world.is_done(), f"the next run does not finish the work: {again.output}")
        except machine.Wrong as wrong:
            raise machine.Wrong(f"{world.arguments} with {variables['FAILING_CALL']}: {wrong}") from None
        return int(run.status == -9)
