#!/usr/bin/env python3
"""Tries to break the programs for a while, with fresh random numbers.

Prints one table: what was tried, how often, and how much went wrong. A round that went wrong is told with its number. The same
round is played again with --only ROW --round NUMBER.
"""

import argparse
import multiprocessing
import multiprocessing.connection
import os
import pathlib
import secrets
import sys
import tempfile
import time
import traceback
from dataclasses import dataclass

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import machine
from faults import FileFaults, Kills, RegistryFaults
from programs import Fuzzing, Leaving, Robot
from races import Races
from together import Restores, Together
from trees import Trees

rows = [Trees, Races, FileFaults, RegistryFaults, Kills, Together, Restores, Leaving, Robot, Fuzzing]
most_failures = 5  # of one row; then it ends


@dataclass(frozen=True)
class Stage:
    """What a row gets: the programs, a folder of its own, and whether it may mount."""

    programs: machine.Programs
    folder: pathlib.Path
    has_mounts: bool
    end: float  # the time when no other round begins


def play(row, programs, rounds, seconds):
    """Plays one row in a process of its own. Returns (how many, [(round, what went wrong)])."""
    folder = pathlib.Path(tempfile.mkdtemp(prefix=f"soak-{row.name}-"))
    has_mounts = machine.enter_namespaces()
    count = 0
    failures = []
    number = None
    try:
        end = time.monotonic() + seconds
        stage = Stage(programs, folder, has_mounts, end)
        player = row(stage)
        for number in rounds:
            if time.monotonic() >= end and count > 0:
                break
            try:
                count += player.play(number)
            except machine.Wrong as wrong:
                failures.append((number, str(wrong)))
                if len(failures) == most_failures:
                    break
        player.close()
    except Exception as error:  # a row that cannot go on has found something, too
        text = str(error) if isinstance(error, machine.Wrong) else traceback.format_exc()
        failures.append((number, text))
    finally:
        machine.remove_tree(folder)
    return count, failures


def play_into(pipe, *arguments):
    pipe.send(play(*arguments))
    pipe.close()


def play_all(chosen, programs, first, rounds, minutes):
    """Plays the rows side by side, as many at once as there are processors. Yields (row, count, failures, seconds)."""
    processors = min(len(chosen), os.cpu_count() or 1)
    seconds = 60 * minutes * processors / sum(row.share for row in chosen)
    waiting = list(chosen)
    running = []
    while waiting or running:
        while waiting and len(running) < processors:
            row = waiting.pop(0)
            reader, writer = multiprocessing.Pipe(duplex=False)
            numbers = rounds or range(first, first + (1 << 40))
            arguments = (writer, row, programs, numbers, seconds * row.share)
            process = multiprocessing.Process(target=play_into, args=arguments)
            process.start()
            writer.close()
            running.append((row, process, reader, time.monotonic()))
        ready = multiprocessing.connection.wait([reader for _, _, reader, _ in running])
        for job in [job for job in running if job[2] in ready]:
            running.remove(job)
            row, process, reader, start = job
            try:
                count, failures = reader.recv()
            except EOFError:
                count, failures = 0, [(None, "the row ended without a report")]
            process.join()
            yield row, count, failures, time.monotonic() - start


def shortened(text):
    return text if len(text) <= 3000 else text[:1500] + " ... " + text[-1500:]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", type=pathlib.Path, help="the folder of a build")
    parser.add_argument("--minutes", type=float, default=30)
    parser.add_argument("--first", type=int, help="the number of the first round; otherwise random")
    parser.add_argument("--only", action="append", choices=[row.name for row in rows], help="play only this row; may be repeated")
    parser.add_argument("--skip", action="append", choices=[row.name for row in rows], default=[], help="leave out this row; may be repeated")
    parser.add_argument("--round", type=int, dest="single", help="play only the round with this number")
    options = parser.parse_args()
    chosen = [row for row in rows if (not options.only or row.name in options.only) and row.name not in options.skip]
    first = secrets.randbelow(1 << 32) if options.first is None else options.first
    rounds = None if options.single is None else [options.single]
    programs = machine.Programs(options.build.resolve())

    faults = 0
    print("| what | how many | wrong | seconds |\n|---|---|---|---|")
    for row, count, failures, seconds in play_all(chosen, programs, first, rounds, options.minutes):
        print(f"| {row.unit} | {count:,} | {len(failures)} | {seconds:.0f} |", flush=True)
        faults += len(failures)
        for number, text in failures:
            again = f" (again: --only {row.name} --round {number})" if number is not None else ""
            print(f"{row.name}: {shortened(text)}{again}", file=sys.stderr, flush=True)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
