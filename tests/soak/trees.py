"""Random trees: what a clean removes is what the scan listed, and everything else stays as it was."""

import contextlib
import fnmatch
import os
import random
import stat

from machine import Fence, Home, bind, drop_rights, expect, find_removed, mount_memory, remove_tree, snapshot, unmount

# Where rules look, below the drive of the prefix, with the names that they take and whether they look below folders.
rule_folders = [
    ("windows/Temp", ["*"], True),
    ("windows/Prefetch", ["*.pf"], False),
    ("windows/Panther", ["*.log", "*.etl", "*.old"], True),
    ("windows/Minidump", ["*.dmp", "*.mdmp", "*.hdmp"], False),
    ("windows/SoftwareDistribution/Download", ["*"], True),
    ("users/jane/AppData/Local/Microsoft/Windows/Explorer", ["thumbcache_*.db", "iconcache_*.db"], False),
    ("users/jane/AppData/Local/D3DSCache", ["*"], True),
    ("users/jane/AppData/Local/Microsoft/FontCache", ["*.dat", "~fontcache-*"], True),
    ("users/jane/AppData/Local/Tencent/Logs", ["*.log", "*.txt"], True),
    ("ProgramData/Microsoft/Windows/WER", ["*"], True),
]
# The user ticks these first.
unticked_folders = [
    ("users/jane/AppData/Roaming/Norvak/Microsoft/Windows/Recent", ["*.lnk"], False),
    ("Windows.old", ["*"], True),
]
browser_folders = [
    "users/jane/AppData/Local/Google/Chrome/User Data/Default/Cache",
    "users/jane/AppData/Local/Google/Chrome/User Data/Default/Code Cache",
    "users/jane/AppData/Local/Google/Chrome/User Data/Profile 1/GPUCache",
    "users/jane/AppData/Local/Microsoft/Edge/User Data/Default/Service Worker/CacheStorage",
]

endings = [b".log", b".pf", b".etl", b".old", b".dmp", b".db", b".dat", b".txt", b".lnk", b".tmp", b"", b".LOG", b".Pf"]
stems = [
    b"a", b"setup", b"thumbcache_32", b"iconcache_16", b"~FontCache-1", b"MEMORY", b"-rf", b"--help", b" blank ", b"dot.", b"%1%TEMP%",
    b"new\nline", b"\t", b"\x1b[31m", b"quote\"'", b"back\\slash", b"CON", b"a:b", b"*", b"?", b"[a]", "名前🎉".encode(),
    "e\u0301".encode(), "\u202egpj".encode(), b"\xff\xfe", b"caf\xe9", b"x" * 250, b"...", b"&lt;b&gt;", b"$(touch x)",
]  # fmt: skip


def is_decodable(path):
    try:
        path.decode()
    except UnicodeDecodeError:
        return False
    return True


class TreeMaker:
    """Makes a random tree below a folder, with everything that leads out of it."""

    def __init__(self, dice, fence, has_mounts, depth=4):
        self.dice = dice
        self.fence = fence
        self.has_mounts = has_mounts
        self.depth = depth
        self.mounts = []
        self.closed = []  # folders whose permissions are taken away at the end

    def fill(self, folder, depth=0):
        for _ in range(self.dice.randrange(2, 9)):
            with contextlib.suppress(FileExistsError):
                self._make(folder, folder + b"/" + self._name(), depth)

    def close(self):
        """Takes permissions away. Inner folders come first: they can still be reached."""
        for path in reversed(self.closed):
            os.chmod(path, self.dice.choice([0o500, 0o300, 0o600, 0o000]))

    def _name(self):
        stem = self.dice.choice(stems)
        return (stem + self.dice.choice(endings))[:255] if self.dice.random() < 0.8 else stem

    def _canary(self):
        number = self.dice.randrange(1000)
        return os.fsencode(self.fence.folder / f"{number % 50}/{number}.log")

    def _make(self, folder, path, depth):
        roll = self.dice.random()
        if roll < 0.45:
            self._file(path)
        elif roll < 0.70 and depth < self.depth:
            os.mkdir(path)
            self.fill(path, depth + 1)
            if self.dice.random() < 0.1:
                self.closed.append(path)
        elif roll < 0.80:
            target = self.dice.choice(
                [self._canary(), os.fsencode(self.fence.folder), b"..", b"missing", b"/etc/passwd", b".", os.path.dirname(folder)]
            )
            os.symlink(target, path)
        elif roll < 0.86:
            os.link(self.dice.choice(self.fence.linkable), path)
        elif roll < 0.88:
            os.mkfifo(path)
        elif roll < 0.92 and self.has_mounts:
            self._mount(path)
        elif roll < 0.93 and depth < 2:
            self._deep(folder)
        else:
            self._file(path)

    def _file(self, path):
        handle = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, self.dice.choice([0o644, 0o600, 0o400, 0o000]))
        try:
            if self.dice.random() < 0.05:
                os.ftruncate(handle, self.dice.choice([1 << 20, 5 << 30]))
            else:
                os.write(handle, b"x" * self.dice.randrange(5000))
        finally:
            os.close(handle)

    def _mount(self, path):
        kind = self.dice.randrange(3)
        if kind == 0:
            self._file(path)
            bind(self._canary(), path)
        else:
            os.mkdir(path)
            if kind == 1:
                bind(os.path.dirname(self._canary()), path)
            else:
                mount_memory(path)
                with open(path + b"/inside.log", "wb") as file:
                    file.write(b"mounted")
        self.mounts.append(path)

    def _deep(self, folder):
        """A path that is longer than the system takes in one call."""
        handle = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
        try:
            for level in range(20):
                name = bytes([97 + level]) * 240
                with contextlib.suppress(FileExistsError):
                    os.mkdir(name, dir_fd=handle)
                below = os.open(name, os.O_RDONLY | os.O_DIRECTORY, dir_fd=handle)
                os.close(handle)
                handle = below
            file = os.open(b"deep.log", os.O_WRONLY | os.O_CREAT, 0o644, dir_fd=handle)
            os.write(file, b"deep")
            os.close(file)
        finally:
            os.close(handle)


def plain_files(folder, patterns, is_recursive, mounts):
    """The files that a scan has to list, found in the plainest way. Follows no link and leaves out what is mounted."""
    found = set()

    def look(handle, path):
        for name in map(os.fsencode, os.listdir(handle)):
            full = path + b"/" + name
            if name.startswith(b".") or not is_decodable(name) or full in mounts:
                continue
            try:
                status = os.stat(name, dir_fd=handle, follow_symlinks=False)
            except PermissionError:
                return  # the folder may be listed but not searched
            if stat.S_ISDIR(status.st_mode):
                if is_recursive:
                    enter(name, handle, full)
            elif is_file(name, handle, status):
                lowered = name.decode().lower()
                if any(fnmatch.fnmatchcase(lowered, pattern) for pattern in patterns):
                    found.add(full)

    def enter(name, handle, path):
        with contextlib.suppress(PermissionError):
            below = os.open(name, os.O_RDONLY | os.O_DIRECTORY | os.O_NOFOLLOW, dir_fd=handle)
            try:
                look(below, path)
            finally:
                os.close(below)

    enter(folder, None, folder)
    return found


def is_file(name, handle, status):
    """Whether a listing of files has it. A link to a file is one, and its removal leaves the target alone."""
    if not stat.S_ISLNK(status.st_mode):
        return stat.S_ISREG(status.st_mode)
    try:
        return stat.S_ISREG(os.stat(name, dir_fd=handle).st_mode)
    except OSError:
        return False


class Trees:
    """Random trees in the folders of the rules."""

    name = "trees"
    unit = "random trees"
    goal = "10,000 trees natively, 1,000 under the address sanitizer"
    share = 20

    def __init__(self, stage):
        self.stage = stage
        self.home = Home(stage.folder / "home", stage.programs)
        self.fence = Fence(self.home.fence)
        (self.home.prefix / "system.reg").write_text("WINE REGISTRY Version 2\n;; All keys relative to REGISTRY\\\\Machine\n\n#arch=win64\n")

    def play(self, seed):
        dice = random.Random(seed)
        maker = TreeMaker(dice, self.fence, self.stage.has_mounts)
        try:
            tops = self._fill(dice, maker)
            self._clean("junk", tops, maker.mounts)
            self._clean("browser", [], [])
            self.fence.check()
        finally:
            for path in reversed(maker.mounts):
                unmount(path)
            remove_tree(self.home.drive)
            remove_tree(self.home.temporary)
            (self.home.drive / "users/jane").mkdir(parents=True)
            (self.home.drive / "windows").mkdir()
            self.home.temporary.mkdir()
        return 1

    def close(self):
        self.fence.check_contents()

    def _fill(self, dice, maker):
        """Fills some of the folders. Returns those that the junk scan must look at whole."""
        places = [(os.fsencode(self.home.temporary), ["*"], True)]
        for folder, patterns, deep in dice.sample(rule_folders, 4) + dice.sample(unticked_folders, 1):
            path = self._cased(dice, folder)
            os.makedirs(path)
            places.append((path, patterns, deep))
        for place in places:
            maker.fill(place[0])
        for folder in dice.sample(browser_folders, 2):
            path = self._cased(dice, folder)
            os.makedirs(path)
            maker.fill(path)
        if dice.random() < 0.3:  # a rule's folder that leads elsewhere
            path = self._cased(dice, "ProgramData/NVIDIA Corporation")
            os.makedirs(path)
            os.symlink(os.fsencode(self.fence.folder), path + b"/NV_Cache")
        maker.close()
        return places

    def _cased(self, dice, folder):
        """The folder's path with names in any case, as far as it does not exist yet."""
        path = self.home.drive
        for name in folder.split("/"):
            present = {entry.name.lower(): entry.name for entry in path.iterdir()} if path.exists() else {}
            # The program's own folder is not looked for in other cases.
            cased = name if name == "Norvak" else dice.choice([name, name.upper(), name.lower()])
            path /= present.get(name.lower(), cased)
        return os.fsencode(path)

    def _look(self):
        # The log is the program's own, and the fence is looked at once a round.
        return snapshot(self.home.folder, [self.home.folder / "data", self.fence.folder])

    def _clean(self, engine, tops, mounts):
        before = self._look()
        expected = set().union(*(as_user(plain_files, *top, mounts) for top in tops)) if tops else set()
        scan = self.home.run("scan", engine, "--json", "--items")
        scan.check_end((0, 1))
        after_scan = self._look()
        expect(before == after_scan, "a scan changed something")
        answer = scan.json
        items = [item for category in answer["categories"] for item in category["items"]]
        listed = {item["path"].encode() for item in items}
        chosen = [item for category in answer["categories"] if category["checked"] for item in category["items"] if item["checked"]]
        entries = [item["path"].encode() for item in chosen]
        ticked = set(entries)
        check_listing(items, before, answer)
        missed = expected - listed
        expect(not missed, f"not listed: {sorted(missed)[:3]}")
        if engine == "junk":
            extra = listed - expected
            expect(not extra, f"listed, though no rule takes them: {sorted(extra)[:3]}")

        clean = self.home.run("clean", engine, "--json", "--yes")
        clean.check_end((0, 1))
        result = clean.json
        removed = find_removed(before, self._look())
        extra = {path for path in removed if not any(parent in ticked for parent in parents(path))}
        expect(not extra, f"removed but not ticked: {sorted(extra)[:3]}")
        gone = removed & ticked
        # Two rules may list the same file. A file that goes with its folder counts as cleaned, too.
        count = sum(path in gone for path in entries)
        expect(result["cleanedCount"] == count, f"{engine}: {result['cleanedCount']} reported, {count} gone")
        failed = len(entries) - count
        expect(result["failedCount"] == failed, f"{engine}: {result['failedCount']} failures of {len(entries)}, {failed} left")
        least, most = freed_bytes(before, removed)
        if engine == "browser" and failed:
            least = 0  # what goes with a part of a folder need not be counted
        expect(least <= result["cleanedSize"] <= most, f"{engine}: {result['cleanedSize']} B reported, {least} to {most} B gone")
        expect(clean.status == 1 or not result["failedCount"], "a failure without a status")
        for failure in result["failures"]:
            path = failure["path"].encode()
            expect(path in ticked and path not in gone, f"{path!r} is said to have failed")


def freed_bytes(before, removed):
    """The least and the most that a clean may report. Names that are no text do not count, and links count as files do or not."""
    files = links = 0
    for path in filter(is_decodable, removed):
        entry = before[path]
        files += entry.size if stat.S_ISREG(entry.mode) else 0
        links += entry.size if stat.S_ISLNK(entry.mode) else 0
    return files, files + links


def parents(path):
    """The path and all folders above it."""
    while path:
        yield path
        path = path.rpartition(b"/")[0]


def check_listing(items, before, answer):
    """Every item of a scan is there, is no link, and has its true size."""
    for item in items:
        path = item["path"].encode()
        entry = before.get(path)
        expect(entry is not None, f"{path!r} is listed, but is not there")
        if item["isDirectory"]:
            expect(stat.S_ISDIR(entry.mode) or stat.S_ISLNK(entry.mode), f"{path!r} is no folder: {entry}")
            continue
        expect(stat.S_ISREG(entry.mode) or stat.S_ISLNK(entry.mode), f"{path!r} is no file: {entry}")
        expect(item["size"] == entry.size, f"{path!r} has {entry.size} B, not {item['size']}")
    expect(answer["totalCount"] == len(items), "the count is not that of the items")
    expect(answer["totalSize"] == sum(item["size"] for item in items), "the size is not that of the items")


def as_user(function, *arguments):
    """Calls a function in a process without the rights of an administrator. Returns its set of paths."""
    reader, writer = os.pipe()
    child = os.fork()
    if child == 0:
        try:
            os.close(reader)
            drop_rights()
            with os.fdopen(writer, "wb") as pipe:
                pipe.write(b"\0".join(function(*arguments)))
            os._exit(0)
        finally:
            os._exit(1)
    os.close(writer)
    with os.fdopen(reader, "rb") as pipe:
        data = pipe.read()
    _, status = os.waitpid(child, 0)
    if status != 0:
        raise RuntimeError("the plain walk failed")
    return set(data.split(b"\0")) - {b""}
