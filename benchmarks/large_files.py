"""Compares our scanner with other programs: each looks for large files in a warm tree of 500,000 files, in shuffled rounds."""
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 9
FOUND = 50


def ways(program, tree):
    fd = shutil.which("fdfind") or shutil.which("fd")
    return {
        "QDirIterator": [program, "qdiriterator", tree],
        "fd --threads 2": [fd, "--no-ignore", "--type", "f", "--size", "+100Mi", "--threads", "2", ".", tree],
        "gdu": ["gdu", "--non-interactive", "--no-progress", "--no-cross", tree],
        "find -type f -size +100M -printf": ["find", tree, "-type", "f", "-size", "+100M", "-printf", "%s %p\n"],
        "bare loop, one thread": [program, "bare-1", tree],
        "our scanner, one walker": [program, "scanner-1", tree],
        "bare loop, two threads": [program, "bare-2", tree],
        "our scanner, two walkers": [program, "scanner-2", tree],
    }


def run(name, command, expected):
    """Seconds and peak memory in MiB of one run."""
    with tempfile.TemporaryFile() as output:
        begin = time.perf_counter()
        process = subprocess.Popen(command, stdout=output, stderr=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.perf_counter() - begin
        process.returncode = os.waitstatus_to_exitcode(status)
        output.seek(0)
        text = output.read().decode()
    if name == "gdu":
        found = expected  # gdu prints the sizes of folders, not the number of files
    elif name.startswith(("find", "fd")):
        found = len(text.splitlines())
    else:
        found = int(text)
    if process.returncode != 0 or found != expected:
        sys.exit(f"bench: {name}: exit status {process.returncode}, found {found}")
    return seconds, usage.ru_maxrss / 1024


def measure(build, rounds, found):
    """The median seconds and the largest peak memory of every program."""
    program = build / "benchmarks" / "bench_largefiles"
    with tempfile.TemporaryDirectory() as tree:
        subprocess.run([program, "make", tree], check=True)
        commands = ways(program, tree)
        seconds, memory = {name: [] for name in commands}, {name: [] for name in commands}
        for round_number in range(rounds + 1):
            for name in random.sample(list(commands), len(commands)):
                elapsed, peak = run(name, commands[name], found)
                if round_number > 0:  # the first one warms up
                    seconds[name].append(elapsed)
                    memory[name].append(peak)
    return {name: statistics.median(values) for name, values in seconds.items()}, {name: max(values) for name, values in memory.items()}
