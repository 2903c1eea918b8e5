"""The pages that the browsers visit, and the scripts that run in them."""
import http.server
import json
import threading

ENTRIES = 200
COOKIE_AGE = 30 * 24 * 3600  # seconds

# Stores 200 entries each in local storage and in IndexedDB; an extension stores the same ones. Some are not plain ASCII.
SCRIPT = """
const count = %d;
const value = (mark, i) => `${mark} ${i}` + (i %% 10 ? "" : " ü 页面 🧹");

function database() {
    return new Promise((resolve, reject) => {
        const request = indexedDB.open("kept", 1);
        request.onupgradeneeded = () => request.result.createObjectStore("records");
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

function finished(request) {
    return new Promise((resolve, reject) => {
        request.onsuccess = () => resolve(request.result);
        request.onerror = () => reject(request.error);
    });
}

async function fill(mark) {
    for (let i = 0; i < count; ++i)
        localStorage.setItem(`kept ${i}`, value(mark, i));
    document.cookie = `script=${mark}; max-age=%d; path=/; samesite=lax`;
    const db = await database();
    const transaction = db.transaction("records", "readwrite", {durability: "strict"});
    for (let i = 0; i < count; ++i)
        transaction.objectStore("records").put({text: value(mark, i)}, i);
    await new Promise((resolve, reject) => {
        transaction.oncomplete = resolve;
        transaction.onabort = () => reject(transaction.error);
    });
    db.close();
}

async function read() {
    const db = await database();
    const store = () => db.transaction("records").objectStore("records");
    const keys = await finished(store().getAllKeys());
    const records = await finished(store().getAll());
    db.close();
    return {
        "local storage": Object.entries(localStorage).sort(),
        "IndexedDB": keys.map((key, i) => [key, records[i].text]),
    };
}
""" % (ENTRIES, COOKIE_AGE)


def value(mark, i):
    """The same as value() in the script."""
    return f"{mark} {i}" + ("" if i % 10 else " ü 页面 🧹")


class _Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        if self.path == "/favicon.ico":
            self.send_error(404)
            return
        body = f"<!doctype html><meta charset='utf-8'><title>{self.path}</title><script>{SCRIPT}</script><p>{self.path}".encode()
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.send_header("Cache-Control", "max-age=3600")
        if self.path.startswith("/login/"):
            self.send_header("Set-Cookie", f"server={self.path[7:]}; Max-Age={COOKIE_AGE}; Path=/; HttpOnly")
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Site:
    """A web server on the loopback device that answers any path."""

    def __init__(self):
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), _Handler)
        self._server.daemon_threads = True
        self.origin = f"http://127.0.0.1:{self._server.server_address[1]}"
        self._thread = threading.Thread(target=self._server.serve_forever, args=(0.05,), daemon=True)
        self._thread.start()

    def close(self):
        self._server.shutdown()
        self._thread.join()
        self._server.server_close()


def in_page(body):
    """A WebDriver script that runs an async function with this body. Its result is JSON; an error is an object {failure}."""
    return ("const done = arguments[arguments.length - 1];"
            f"(async () => {{ {body} }})().then(result => done(JSON.stringify(result ?? null)),"
            "failure => done(JSON.stringify({failure: String(failure)})));")


def result_of(answer):
    result = json.loads(answer)
    if isinstance(result, dict) and set(result) == {"failure"}:
        raise RuntimeError(f"a script in the page failed: {result['failure']}")
    return result
