#!/usr/bin/env python3
"""Tests what a clean leaves of a real browser profile. Chromium and Firefox each fill a profile, the engine cleans it, and the
browser starts with it again.

Usage: test_browsers.py CLEAN_BROWSERS [UNITTEST ARGUMENT...]

All files are below one temporary folder. The profiles are there where the rules look for them. The test uses no network but the
loopback device.
"""
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import chromium
import firefox
import pages
import processes

TABS = 3
VISITS = 5
BOOKMARKS = 4
USER, PASSWORD = "somebody", "pass-wörd 1"

cleaner = ""


class Folders:
    """A home folder for one browser, and the environment variables that select it."""

    def __init__(self):
        self._temporary = tempfile.TemporaryDirectory(prefix="sweepwise-")
        self.root = pathlib.Path(self._temporary.name).resolve()
        self.local = self.root / "Local"
        self.user = self.root / "User"
        self._logs = 0
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "LOCALAPPDATA": str(self.local),
                            "USERPROFILE": str(self.user), "WINEPREFIX": str(self.root / "no prefix")}
        for variable, name in (("HOME", "home"), ("TMPDIR", "tmp"), ("XDG_RUNTIME_DIR", "run"), ("XDG_CONFIG_HOME", "config"),
                               ("XDG_CACHE_HOME", "cache"), ("XDG_DATA_HOME", "data")):
            (self.root / name).mkdir(mode=0o700)
            self.environment[variable] = str(self.root / name)
        self.local.mkdir()
        self.user.mkdir()

    def log(self, name):
        self._logs += 1
        return self.root / f"{name} {self._logs}.log"

    def close(self):
        # A killed program may have added a file after rmtree has listed the folder: try again.
        def is_removed():
            shutil.rmtree(self.root, ignore_errors=True)
            return not self.root.exists()

        processes.wait_for(is_removed, f"{self.root} cannot be removed")
        self._temporary.cleanup()


class CleanedBrowser:
    """The test; a subclass for each browser sets `maker`."""

    maker = None

    def setUp(self):
        self.site = pages.Site()
        self.addCleanup(self.site.close)
        self.folders = Folders()
        self.addCleanup(self.folders.close)
        # Cleanups run in reverse order: the programs end before their folder is removed.
        self.addCleanup(processes.end_descendants)
        extension = self.folders.root / "keeper"
        shutil.copytree(pathlib.Path(__file__).resolve().parent / "extension", extension)
        self.browser = self.maker(self.folders, extension)
        self.addCleanup(self.browser.close)

    # --- actions of a user

    def fill(self, mark):
        browser, origin = self.browser, self.site.origin
        browser.go(f"{origin}/login/{mark}")
        browser.in_page(f"await fill({json.dumps(mark)})")
        for i in range(VISITS):
            browser.go(f"{origin}/visit/{mark}/{i}")
        browser.go(browser.extension_page())
        browser.in_page("await chrome.storage.local.set(" + json.dumps(
            {f"kept {i}": pages.value(mark, i) for i in range(pages.ENTRIES)}) + ")")
        browser.in_page(f"for (let i = 0; i < {BOOKMARKS}; ++i)"
                        f" await chrome.bookmarks.create({{title: `{mark} ${{i}}`, url: `{origin}/bookmark/{mark}/${{i}}`}});")
        browser.add_login(origin, mark, PASSWORD)
        for i in range(TABS):
            browser.open_tab(f"{origin}/tab/{mark}/{i}")

    def read_back(self, mark):
        """Reads the data of fill() back, by kind."""
        browser, origin = self.browser, self.site.origin
        browser.go(f"{origin}/read")
        found = browser.in_page("return read()")
        earliest_expiry = time.time() + pages.COOKIE_AGE / 2
        found["cookies"] = sorted([name, cookie["value"], cookie["httpOnly"]] for name, cookie in browser.cookies().items()
                                  if cookie.get("expiry", 0) > earliest_expiry)
        browser.go(browser.extension_page())
        found["extension"] = browser.in_page("return Object.entries(await chrome.storage.local.get()).sort()")
        found["bookmarks"] = browser.in_page(
            f"return (await chrome.bookmarks.search({{query: {json.dumps(mark)}}})).map(b => [b.title, b.url]).sort()")
        found["history"] = browser.in_page(
            "return (await chrome.history.search({text: '', startTime: 0, maxResults: 1000})).map(visit => visit.url)"
            f".filter(url => url.startsWith('{origin}/visit/{mark}/')).sort()")
        found["tabs"] = browser.in_page(
            f"return (await chrome.tabs.query({{}})).map(tab => tab.url).filter(url => url.startsWith('{origin}/tab/{mark}/')).sort()")
        found["login"] = browser.logins()
        return found

    def expected(self, mark):
        origin = self.site.origin
        entries = [[i, pages.value(mark, i)] for i in range(pages.ENTRIES)]
        named = sorted([f"kept {i}", text] for i, text in entries)
        return {
            "local storage": named,
            "IndexedDB": entries,
            "cookies": [["script", mark, False], ["server", mark, True]],
            "extension": named,
            "bookmarks": [[f"{mark} {i}", f"{origin}/bookmark/{mark}/{i}"] for i in range(BOOKMARKS)],
            "history": [f"{origin}/visit/{mark}/{i}" for i in range(VISITS)],
            "tabs": [f"{origin}/tab/{mark}/{i}" for i in range(TABS)],
            "login": [[mark, PASSWORD]],
        }

    def clean(self, what):
        result = subprocess.run([cleaner, what], env=self.folders.environment, stdin=subprocess.DEVNULL, capture_output=True,
                                timeout=processes.PATIENCE, check=False)
        self.assertEqual(result.returncode, 0, result.stderr.decode())
        outcome = json.loads(result.stdout)
        self.assertEqual(outcome["failed"], [])
        return outcome

    # --- checks

    def assert_kept(self, kinds, mark):
        """Checks all kinds, so that one message names all lost data. Waits, since a browser may read some data later."""
        expected, missing = self.expected(mark), {}

        def has_all():
            found = self.read_back(mark)
            missing.clear()
            missing.update({kind: f"{len(found[kind])} of {len(expected[kind])}" for kind in kinds if found[kind] != expected[kind]})
            return not missing

        try:
            processes.wait_for(has_all, "", patience=10)
        except TimeoutError:
            pass
        if missing:
            self.fail(f"{self.browser.name} has lost what the clean was to keep: {missing}")

    def assert_removed(self, kinds, mark):
        found = self.read_back(mark)
        self.assertEqual([kind for kind in kinds if found[kind]], [], "the clean left what it was to remove")

    def end_session(self):
        self.browser.quit()
        self.assertEqual(self.browser.complaints(), [], f"{self.browser.name} complains")

    def test_a_default_clean_keeps_data_and_a_full_one_leaves_a_working_browser(self):
        browser = self.browser
        browser.start()
        self.fill("first")
        self.end_session()
        self.assertTrue(browser.cache_files(), "the browser kept no cache that could be cleaned")
        self.check_before_default("first")

        outcome = self.clean("default")
        self.assertEqual(browser.cache_files(), [], "the default clean left the cache")
        deleted = [item for item in outcome["unticked"] if not os.path.exists(item["path"])]
        browser.start()
        self.assert_kept(self.expected("first"), "first")
        self.end_session()
        self.assertEqual(deleted, [], "the clean took what was not ticked")
        self.check_unticked(outcome["unticked"])

        self.clean("everything")
        browser.start()
        self.assert_removed(["local storage", "IndexedDB", "cookies", "history"], "first")
        self.fill("second")
        self.end_session()
        browser.start()
        self.assert_kept(["local storage", "IndexedDB", "cookies", "extension", "bookmarks", "history", "tabs"], "second")
        self.end_session()

    def check_before_default(self, mark):
        pass

    def check_unticked(self, unticked):
        self.assertEqual(unticked, [])


class TestChromium(CleanedBrowser, unittest.TestCase):
    maker = chromium.Chromium

    def check_before_default(self, mark):
        # Otherwise a clean that removes these files would not be noticed.
        self.assertEqual(self.browser.has_only_in_write_ahead_file(mark),
                         {"local storage": True, "IndexedDB": True, "extension": True})

    def check_unticked(self, unticked):
        self.assertTrue(unticked)
        for item in unticked:
            self.assertTrue(item["path"].endswith(".log") and item["riskLevel"] == 2 and item["description"], item)


class TestFirefox(CleanedBrowser, unittest.TestCase):
    maker = firefox.Firefox


def main():
    global cleaner
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    cleaner = str(pathlib.Path(sys.argv.pop(1)).resolve())
    # SIGTERM ends the test like Ctrl+C, so that it cleans up first. The folder is removed when the interpreter ends.
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    processes.adopt_orphans()
    try:
        unittest.main(verbosity=2)
    finally:
        processes.end_descendants()


if __name__ == "__main__":
    main()
