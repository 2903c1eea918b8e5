"""Runs Firefox as its users do and controls it through its own remote protocol, Marionette."""
import json
import re
import socket
import subprocess
import zipfile

import pages
import processes

BROWSER = "/usr/lib/firefox-esr/firefox-esr"
EXTENSION_ID = "keeper@browsers.test"

# No network but loopback, the last session is restored, unsigned extensions are allowed. Everything else has its default.
PREFERENCES = {
    "browser.startup.page": 3,
    "marionette.port": 0,
    "remote.prefs.recommended": False,
    "xpinstall.signatures.required": False,
    "network.proxy.type": 1,
    "network.proxy.http": "127.0.0.1",
    "network.proxy.http_port": 1,
    "network.proxy.ssl": "127.0.0.1",
    "network.proxy.ssl_port": 1,
    "network.dns.disabled": True,
    "datareporting.policy.dataSubmissionEnabled": False,
    "app.normandy.enabled": False,
    "browser.shell.checkDefaultBrowser": False,
}


class Marionette:
    """A connection by the protocol. A message is its length and a JSON text: [0, number, command, parameters] to the browser and
    [1, number, error, result] back."""

    def __init__(self, port):
        self._socket = socket.create_connection(("127.0.0.1", port), timeout=processes.PATIENCE)
        self._input = self._socket.makefile("rb")
        self._number = 0
        greeting = self._receive()
        if greeting.get("marionetteProtocol") != 3:
            raise RuntimeError(f"Marionette speaks another protocol: {greeting}")

    def close(self):
        self._input.close()
        self._socket.close()

    def _receive(self):
        length = b""
        while not length.endswith(b":"):
            byte = self._input.read(1)
            if not byte:
                raise RuntimeError("Marionette has hung up")
            length += byte
        return json.loads(self._input.read(int(length[:-1])))

    def send(self, command, **parameters):
        self._number += 1
        message = json.dumps([0, self._number, command, parameters]).encode()
        self._socket.sendall(b"%d:%s" % (len(message), message))
        _, number, error, result = self._receive()
        if number != self._number:
            raise RuntimeError(f"{command}: the answer to another question")
        if error:
            raise RuntimeError(f"{command}: {error['error']}: {error['message']}")
        return result["value"] if isinstance(result, dict) and set(result) == {"value"} else result


class Firefox:
    name = "Firefox"

    def __init__(self, folders, extension):
        self._folders = folders
        root = folders.user / "AppData" / "Roaming" / "Mozilla" / "Firefox"
        self.profile = root / "Profiles" / "xyz.default"
        self.profile.mkdir(parents=True)
        (root / "profiles.ini").write_text("[Profile0]\nName=default\nIsRelative=1\nPath=Profiles/xyz.default\nDefault=1\n",
                                           encoding="utf-8")
        (self.profile / "user.js").write_text(
            "".join(f"user_pref({json.dumps(key)}, {json.dumps(value)});\n" for key, value in PREFERENCES.items()), encoding="utf-8")
        self._package = folders.root / "keeper.xpi"
        with zipfile.ZipFile(self._package, "w") as package:
            for file in extension.iterdir():
                package.write(file, file.name)
        self._extension_host = ""
        self._process = None
        self._marionette = None
        self._log = None
        self._console = []

    def start(self):
        port_file = self.profile / "MarionetteActivePort"
        port_file.unlink(missing_ok=True)
        self._log = self._folders.log("firefox")
        with open(self._log, "wb") as log:
            self._process = subprocess.Popen(
                [BROWSER, "--headless", "--no-remote", "--marionette", "--remote-allow-system-access", "--profile", self.profile],
                env=self._folders.environment, stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT)

        def port():
            if self._process.poll() is not None:
                raise RuntimeError(f"Firefox ended with {self._process.returncode}: {self.output()}")
            return port_file.exists() and port_file.read_text(encoding="ascii").strip()

        self._marionette = Marionette(int(processes.wait_for(port, "Firefox does not start")))
        self._send("WebDriver:NewSession", capabilities={})
        self._send("WebDriver:SetTimeouts", script=processes.PATIENCE * 1000 // 2)
        if not self._extension_host:
            self._send("Addon:Install", path=str(self._package), temporary=False)
            self._extension_host = self._in_browser(f"return WebExtensionPolicy.getByID({EXTENSION_ID!r}).mozExtensionHostname")
        self.open_tab("about:blank")  # a new tab: the restored tabs must not change

    def quit(self):
        """Closes the browser as its menu does, and waits for the end of the process."""
        self._console = self._in_browser("return Services.console.getMessageArray().map(message => message.message)")
        self._send("Marionette:Quit", flags=["eAttemptQuit"])
        self._marionette.close()
        code = self._process.wait(processes.PATIENCE)
        if code != 0:
            raise RuntimeError(f"Firefox ended with {code}: {self.output()}")

    def close(self):
        if self._marionette:
            self._marionette.close()

    def output(self):
        return self._log.read_text(encoding="utf-8", errors="replace")

    def complaints(self):
        """The signs of damage: in the output, in the console and in the files that the browser has left."""
        bad = re.compile(r"corrupt|malformed|not a database|fatal|\bcrash(ed)?\b", re.I)
        lines = [line for line in self.output().splitlines() + self._console if bad.search(line)]
        leftovers = [*self._folders.root.rglob("*.dmp"), *self.profile.glob("*.corrupt*")]
        return lines + [str(path) for path in leftovers]

    def _send(self, command, **parameters):
        return self._marionette.send(command, **parameters)

    def _in_browser(self, body):
        """Like in_page(), but with the rights of the browser itself."""
        self._send("Marionette:SetContext", value="chrome")
        try:
            return self.in_page(body)
        finally:
            self._send("Marionette:SetContext", value="content")

    def go(self, url):
        self._send("WebDriver:Navigate", url=url)

    def open_tab(self, url):
        self._send("WebDriver:SwitchToWindow", handle=self._send("WebDriver:NewWindow", type="tab")["handle"])
        self.go(url)

    def in_page(self, body):
        return pages.result_of(self._send("WebDriver:ExecuteAsyncScript", script=pages.in_page(body), args=[]))

    def cookies(self):
        return {cookie["name"]: cookie for cookie in self._send("WebDriver:GetCookies")}

    def extension_page(self):
        return f"moz-extension://{self._extension_host}/page.html"

    def add_login(self, origin, user, password):
        self._in_browser(f"""
            const [origin, user, password] = {json.dumps([origin, user, password])};
            const login = Cc["@mozilla.org/login-manager/loginInfo;1"].createInstance(Ci.nsILoginInfo);
            login.init(origin, origin, null, user, password, "user", "password");
            await Services.logins.addLoginAsync(login);""")

    def logins(self):
        return self._in_browser("return (await Services.logins.getAllLogins()).map(login => [login.username, login.password])")

    def cache_files(self):
        return [path for path in (self.profile / "cache2" / "entries").rglob("*") if path.is_file()]
