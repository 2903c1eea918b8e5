"""Runs Chromium as its users do and controls it through chromedriver."""
import hashlib
import http.client
import json
import os
import pathlib
import re
import subprocess

import pages
import processes

BROWSER = "/usr/lib/chromium/chromium"
LOGIN_PAGE = "chrome://password-manager/passwords"
SQLITE_BROKEN = {11, 26}  # malformed, not a database

# No network but loopback, no dialogs, no keyring. Everything else has its default.
ARGUMENTS = ["--headless=new", "--disable-gpu", "--disable-quic", "--disable-sync", "--disable-background-networking",
             "--disable-component-update", "--disable-domain-reliability", "--disable-dev-shm-usage",
             "--no-first-run", "--no-default-browser-check", "--no-service-autorun", "--password-store=basic",
             "--proxy-server=http://127.0.0.1:1", "--proxy-bypass-list=127.0.0.1", "--restore-last-session",
             "--remote-debugging-port=0", "--enable-logging=stderr",
             "--disable-features=DisableLoadExtensionCommandLineSwitch"]


class Driver:
    """A chromedriver process and its HTTP interface."""

    def __init__(self, environment):
        self._process = subprocess.Popen(["chromedriver", "--port=0"], env=environment, stdin=subprocess.DEVNULL,
                                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        text = processes.read_until(self._process.stdout, b"started successfully on port", "chromedriver")
        self._port = int(re.search(r"successfully on port (\d+)", text)[1])

    def close(self):
        self._process.terminate()
        self._process.wait(processes.PATIENCE)
        self._process.stdout.close()

    def send(self, method, path, body=None):
        connection = http.client.HTTPConnection("127.0.0.1", self._port, timeout=processes.PATIENCE)
        try:
            connection.request(method, path, None if body is None else json.dumps(body), {"Content-Type": "application/json"})
            value = json.loads(connection.getresponse().read())["value"]
        finally:
            connection.close()
        if isinstance(value, dict) and "error" in value:
            raise RuntimeError(f"{method} {path}: {value['error']}: {value['message']}")
        return value


class Chromium:
    name = "Chromium"

    def __init__(self, folders, extension):
        self._folders = folders
        self._data = folders.local / "Google" / "Chrome" / "User Data"
        self.profile = self._data / "Default"
        self._driver = Driver(folders.environment)
        self._extension = extension
        # The id that the browser gives to an unpacked extension: a digest of its path.
        digest = hashlib.sha256(os.fsencode(extension)).hexdigest()[:32]
        self._extension_id = digest.translate(str.maketrans("0123456789abcdef", "abcdefghijklmnop"))
        self._process = None
        self._session = ""
        self._log = None
        self._errors = []

    def start(self):
        port_file = self._data / "DevToolsActivePort"
        port_file.unlink(missing_ok=True)
        arguments = ARGUMENTS + [f"--user-data-dir={self._data}", f"--load-extension={self._extension}"]
        if os.geteuid() == 0:
            arguments.append("--no-sandbox")  # as root Chromium refuses to start with its sandbox
        self._log = self._folders.log("chromium")
        with open(self._log, "wb") as log:
            self._process = subprocess.Popen([BROWSER] + arguments, env=self._folders.environment, stdin=subprocess.DEVNULL,
                                             stdout=log, stderr=subprocess.STDOUT)

        def port():
            if self._process.poll() is not None:
                raise RuntimeError(f"Chromium ended with {self._process.returncode}: {self.output()}")
            lines = port_file.read_text(encoding="ascii").split("\n") if port_file.exists() else []
            return lines[0] if len(lines) > 1 else ""

        options = {"debuggerAddress": "127.0.0.1:" + processes.wait_for(port, "Chromium does not start")}
        answer = self._driver.send("POST", "/session", {"capabilities": {"alwaysMatch": {"goog:chromeOptions": options}}})
        self._session = "/session/" + answer["sessionId"]
        self._send("POST", "/timeouts", {"script": processes.PATIENCE * 1000 // 2})
        self.open_tab("about:blank")  # a new tab: the restored tabs must not change

    def quit(self):
        """Closes the browser as its menu does, and waits for the end of the process."""
        self._errors = self._counted_errors()
        try:
            self._command("Browser.close")
        except (RuntimeError, OSError, http.client.HTTPException):
            pass  # the browser may end before it answers
        code = self._process.wait(processes.PATIENCE)
        if code != 0:
            raise RuntimeError(f"Chromium ended with {code}: {self.output()}")
        exit_type = json.loads((self.profile / "Preferences").read_text(encoding="utf-8"))["profile"]["exit_type"]
        if exit_type != "Normal":
            raise RuntimeError(f"Chromium says of its last run: {exit_type}")

    def close(self):
        self._driver.close()

    def output(self):
        return self._log.read_text(encoding="utf-8", errors="replace")

    def _counted_errors(self):
        """The errors in the browser's own statistics. Among them are the reasons for the dialog about a damaged profile, which is not
        visible without a screen."""
        errors = []
        for name, bad in (("Profile.ProfileError", None), ("Sql.Database.Open.FailureReason", None),
                          ("Sql.Database.Open.FirstAttempt.Error", None), ("Sql.Database.Statement.Error", SQLITE_BROKEN)):
            for histogram in self._command("Browser.getHistograms", query=name)["histograms"]:
                codes = {bucket["low"] for bucket in histogram["buckets"]}
                if bad is None or codes & bad:
                    errors.append(f"counted as {histogram['name']}: {sorted(codes)}")
        return errors

    def complaints(self):
        """The signs of damage: in the output, in the counted errors and in the files that the browser has left."""
        bad = re.compile(r"corrupt|malformed|not a database|(failed|unable) to open|fatal|\bcrash(ed)?\b|check failed", re.I)
        lines = [line for line in self.output().splitlines() if bad.search(line)]
        leftovers = [*self._folders.root.rglob("*.dmp"), *self.profile.glob("*.bad")]
        return lines + self._errors + [str(path) for path in leftovers]

    def _send(self, method, path, body=None):
        return self._driver.send(method, self._session + path, body)

    def _command(self, command, **parameters):
        """Sends a command of the browser's own protocol, which has more commands than the driver's."""
        return self._send("POST", "/goog/cdp/execute", {"cmd": command, "params": parameters})

    def go(self, url):
        self._send("POST", "/url", {"url": url})

    def open_tab(self, url):
        self._send("POST", "/window", {"handle": self._send("POST", "/window/new", {"type": "tab"})["handle"]})
        self.go(url)

    def in_page(self, body):
        return pages.result_of(self._send("POST", "/execute/async", {"script": pages.in_page(body), "args": []}))

    def cookies(self):
        return {cookie["name"]: cookie for cookie in self._send("GET", "/cookie")}

    def extension_page(self):
        return f"chrome-extension://{self._extension_id}/page.html"

    def add_login(self, origin, user, password):
        """Saves a login through the page on which users manage their passwords. There is no other way: the browser itself has to
        encrypt and write it."""
        self.go(LOGIN_PAGE)
        self.in_page("await chrome.passwordsPrivate.addPassword(" + json.dumps(
            {"url": origin, "username": user, "password": password, "note": "", "useAccountStore": False}) + ")")

    def logins(self):
        """User and password of each saved login."""
        self.go(LOGIN_PAGE)
        return self.in_page("""
            const list = await chrome.passwordsPrivate.getSavedPasswordList();
            return Promise.all(list.map(async entry =>
                [entry.username, await chrome.passwordsPrivate.requestPlaintextPassword(entry.id, "VIEW")]));""")

    def has_only_in_write_ahead_file(self, mark):
        """For each kind of data: whether the mark is in files with the suffix .log and in no other file."""
        answer = {}
        for kind, folder in (("local storage", "Local Storage/leveldb"), ("IndexedDB", "IndexedDB"),
                             ("extension", "Local Extension Settings")):
            files = [path for path in (self.profile / folder).rglob("*") if path.is_file() and mark.encode() in path.read_bytes()]
            answer[kind] = bool(files) and all(path.suffix == ".log" for path in files)
        return answer

    def cache_files(self):
        return [path for path in (self.profile / "Cache").rglob("*") if path.is_file()]
