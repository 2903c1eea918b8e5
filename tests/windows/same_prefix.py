#!/usr/bin/env python3
"""Scans one Wine prefix with the native and with the Windows companion. Both must find the same items, sizes and ticks, and the
same registry entries with the same descriptions.

Usage: same_prefix.py NATIVE_CLI WINDOWS_CLI, with WINEPREFIX set to a prefix that the test may fill.
"""
import collections
import json
import os
import pathlib
import subprocess
import sys
import tempfile

native_cli, windows_cli = sys.argv[1:3]
drive = pathlib.Path(os.environ["WINEPREFIX"]).resolve() / "drive_c"


def output_of(command, environment=None):
    """The output goes through a file. The first program of a prefix starts services, which would keep a pipe open."""
    with tempfile.TemporaryFile() as output:
        subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.DEVNULL,
                       env=environment)
        output.seek(0)
        return output.read().decode()


def variable(name):
    """The value of a variable for the programs of the prefix."""
    return output_of(["wine", "cmd", "/c", f"echo %{name}%"]).strip()


def folder(name):
    return drive / variable(name)[3:].replace("\\", "/")


user = folder("USERPROFILE")
local = user / "AppData" / "Local"
windows = drive / "windows"
temporary = variable("TEMP")


def fill():
    """Makes files for the rules, some with odd names and places. Returns the least number of items of each category."""
    def write(path, size):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"x" * size)

    temp = folder("TEMP")
    names = ["plain.tmp", "with blank.tmp", "ümlaut.tmp", "文件.tmp", "🧹.tmp", "UPPER.TMP", "no ending", "%1.tmp", "a" * 120]
    for i, name in enumerate(names):
        write(temp / "sub folder" / name, i * 100)
    deep = temp
    for _ in range(12):
        deep = deep / ("deep folder " * 3).strip()
    write(deep / "far down.tmp", 77)
    (temp / "empty").mkdir(parents=True)
    (temp / "link").symlink_to("/etc")
    write(temp / ".hidden.tmp", 9)
    # Hidden and system files and folders. The server stores that in an attribute. One file is no longer hidden.
    for name, value in (("hidden.tmp", b"0x2"), ("system.tmp", b"0x4"), ("shown again.tmp", b"0x0")):
        write(temp / "marked" / name, 50)
        os.setxattr(temp / "marked" / name, "user.DOSATTRIB", value)
    write(temp / "marked" / "hidden folder" / "inside.tmp", 60)
    os.setxattr(temp / "marked" / "hidden folder", "user.DOSATTRIB", b"0x2")
    for i in range(7):
        write(windows / "Prefetch" / f"APP{i}.PF", 10 + i)
    write(windows / "Prefetch" / "HIDDEN.PF", 1)
    os.setxattr(windows / "Prefetch" / "HIDDEN.PF", "user.DOSATTRIB", b"0x26")
    write(windows / "Prefetch" / "sub" / "not.pf", 1)
    for i in range(5):
        write(windows / "Logs" / "CBS" / f"cbs{i}.LOG", 20 + i)
    write(windows / "memory.dmp", 1234)
    write(drive / "crash.MDMP", 5)
    for i in range(6):
        write(local / "D3DSCache" / f"{i}" / "shader", 300 + i)
    write(user / "AppData" / "Roaming" / "Norvak" / "Tencent" / "Logs" / "t.txt", 3)
    write(drive / "ProgramData" / "Microsoft" / "Windows" / "WER" / "r" / "Report.wer", 8)
    write(drive / "Windows.old" / "x.dll", 6)
    return {"temp_files": len(names) + 2, "prefetch": 7, "log_files": 10, "memory_dumps": 2, "directx_cache": 6,
            "tencent_logs": 1, "windows_old": 1, "error_reports": 1}


def fill_browsers():
    """Makes profiles of a browser of each family. Returns the least number of items of some categories."""
    def write(path, size):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"x" * size)

    chrome = local / "Google" / "Chrome" / "User Data"
    for profile in ("Default", "Profile 1", "Profile 文件"):
        for i in range(4):
            write(chrome / profile / "Cache" / "Cache_Data" / f"f_{i}", 10 + i)
            write(chrome / profile / "Code Cache" / "js" / "sub folder" / f"ümlaut {i}", 5)
        for name in ("Cookies", "Cookies-journal", "History", "Login Data", "Web Data", "Preferences"):
            write(chrome / profile / name, 30)
        for name in ("CURRENT", "MANIFEST-000001", "000003.log"):
            write(chrome / profile / "Local Storage" / "leveldb" / name, 7)
        write(chrome / profile / "debug.log", 8)
        write(chrome / profile / "old.log" / "kept" / "CURRENT", 9)
        write(chrome / profile / "old.log" / "kept" / "MANIFEST-000001", 10)
    write(chrome / "Profile 7" / "Cache" / "Cache_Data" / "f_0", 10)
    os.setxattr(chrome / "Profile 7", "user.DOSATTRIB", b"0x2")
    (chrome / "Default" / "Cache" / "link").symlink_to("/etc")
    roaming = user / "AppData" / "Roaming" / "Mozilla" / "Firefox"
    write(roaming / "Profiles" / "abc.default" / "cookies.sqlite", 11)
    write(roaming / "Profiles" / "abc.default" / "cookies.sqlite-wal", 12)
    write(roaming / "Profiles" / "abc.default" / "places.sqlite", 13)
    (roaming / "profiles.ini").write_text("[Profile0]\nPath=Profiles/abc.default\nIsRelative=1\n")
    write(local / "Mozilla" / "Firefox" / "Profiles" / "abc.default" / "cache2" / "entries" / "E1", 9)
    return {"google_chrome_cache": 12, "google_chrome_cookies": 3, "google_chrome_logs": 9}


def fill_registry():
    """Makes valid and invalid entries of each kind that is checked. Returns the number of invalid ones of each category."""
    present = "C:\\windows\\system32\\kernel32.dll"
    missing = "C:\\Nowhere\\Sweepwise %s.exe"
    current = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion"
    machine, user, classes = "HKEY_LOCAL_MACHINE\\", "HKEY_CURRENT_USER\\", "HKEY_CLASSES_ROOT\\"
    mui = "SOFTWARE\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"
    entries = []
    for kind in ("present.exe", "ümlaut 文件 🧹.exe", "in %SystemRoot%.exe", "%UNKNOWN%.exe"):
        path = {"p": present.upper(), "i": "%SystemRoot%\\Sweepwise none.dll", "%": "%Unknown%\\x.dll"}.get(kind[0], missing % kind)
        entries += [(machine + current + "\\App Paths\\" + kind, "", path),
                    (machine + current + "\\Uninstall\\" + kind, "UninstallString", '"' + path + '" /S'),
                    (machine + current + "\\Uninstall\\" + kind, "DisplayName", kind + " \\ \"x\""),
                    (classes + ".sweep" + kind, "", "Sweepwise." + kind),
                    (classes + "Sweepwise." + kind + "\\shell\\open\\command", "", '"' + path + '" "%1"'),
                    (classes + "CLSID\\{0-" + kind + "}\\InprocServer32", "", path),
                    (classes + "CLSID\\{0-" + kind + "}\\LocalServer32", "", '"' + path + '" -x'),
                    (machine + "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts", kind, path),
                    (machine + "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts", kind + " bare", kind),
                    (machine + current + "\\Run", kind, '"' + path + '" -x'),
                    (user + current + "\\RunOnce", kind, path),
                    (machine + current + "\\SharedDLLs", path, "1"),
                    (user + mui, path + ".FriendlyAppName", "x")]

    # The system finds all of these commands but the last.
    entries += [(user + current + "\\Run", command, command) for command in ("notepad", "wmic.exe /x", "C:\\windows\\notepad",
                                                                            "sweepwise none -x")]

    def quoted(text):
        return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'

    lines = ["Windows Registry Editor Version 5.00", ""]
    for key, name, text in entries:
        lines += ["[" + key + "]", (quoted(name) if name else "@") + "=" + quoted(text), ""]
    with tempfile.NamedTemporaryFile(suffix=".reg") as file:
        file.write("\r\n".join(lines).encode("utf-16"))
        file.flush()
        subprocess.run(["wine", "reg", "import", "Z:" + file.name.replace("/", "\\")], check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    stop_server()
    return {"invalid_software": 4, "invalid_file_assoc": 2, "invalid_com": 4, "invalid_fonts": 5, "invalid_startup": 5,
            "invalid_shared_dll": 2, "mui_cache": 2}


def set_text(key, name, text):
    subprocess.run(["wine", "reg", "add", key, "/v", name, "/t", "REG_EXPAND_SZ", "/d", text, "/f"], check=True,
                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def set_temporary_folder(path):
    """Sets the temporary folder in the registry of the prefix, and waits until that is on the disk."""
    for name in ("TMP", "TEMP"):
        set_text("HKCU\\Environment", name, path)
    stop_server()


def stop_server():
    """Ends the server, which writes the registry files only then. The native build reads those files."""
    subprocess.run(["wineserver", "-k"], check=False)
    subprocess.run(["wineserver", "-w"], check=True)


def start_server():
    """Starts the services of the prefix first, because they keep the output of the program that starts them open."""
    subprocess.run(["wine", "cmd", "/c", "exit"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, check=False)


def scan(command, engine, environment):
    return json.loads(output_of(command + ["scan", engine, "--json", "--items"], environment))


def items(result, translate):
    return collections.Counter((category["id"], translate(item["path"]).lower(), item["size"], item["checked"], item["riskLevel"],
                                item["description"])
                               for category in result["categories"] for item in category["items"])


def entries(result):
    """The entries with their order. The order decides which part of a long list is checked."""
    return collections.Counter((category["id"], place, item["name"], item["path"], item["description"], item["registryRoot"],
                                item["registryKey"])
                               for category in result["categories"] for place, item in enumerate(category["items"]))


def compare(what, native, windows_items, expected):
    """Whether both are the same and contain at least the expected items."""
    for title, left, right in (("only native", native, windows_items), ("only Windows", windows_items, native)):
        for item in sorted((left - right).elements()):
            print(f"{title}: {item}")
    found = collections.Counter(item[0] for item in native.elements())
    too_few = {category: (count, found[category]) for category, count in expected.items() if found[category] < count}
    if too_few:
        print(f"not all was found (expected, found): {too_few}")
    print(f"{what}: {native.total()} items native, {windows_items.total()} Windows")
    return native == windows_items and not too_few


def main():
    expected = fill()
    expected_browsers = fill_browsers()
    expected_entries = fill_registry()
    plain = {name: value for name, value in os.environ.items()
             if name not in ("TMPDIR", "TEMP", "TMP", "LOCALAPPDATA", "APPDATA", "USERPROFILE", "PROGRAMDATA", "WINDIR",
                             "SYSTEMDRIVE")}
    native = items(scan([native_cli], "junk", plain), lambda path: path)
    native_browsers = items(scan([native_cli], "browser", plain), lambda path: path)
    native_entries = entries(scan([native_cli], "registry", plain))
    start_server()

    def local_path(path):
        return str((drive.parent / "dosdevices" / path[:2].lower()).resolve()) + path[2:] if path[1] == ":" else path

    windows_items = items(scan(["wine", windows_cli], "junk", plain), local_path)
    windows_browsers = items(scan(["wine", windows_cli], "browser", plain), local_path)
    windows_entries = entries(scan(["wine", windows_cli], "registry", plain))
    same = compare("junk", native, windows_items, expected)
    same = compare("browser", native_browsers, windows_browsers, expected_browsers) and same
    same = compare("registry", native_entries, windows_entries, expected_entries) and same

    def compare_junk(what, expected):
        native = items(scan([native_cli], "junk", plain), lambda path: path)
        start_server()
        windows_items = items(scan(["wine", windows_cli], "junk", plain), local_path)
        return compare(what, native, windows_items, expected), native

    # The name of the temporary folder has another case than on the disk.
    set_temporary_folder(temporary[:3] + temporary[3:].swapcase())
    is_same, again = compare_junk("junk, temporary folder in other case", expected)
    if again != native:
        print("the case of the temporary folder's name makes a difference")
    same = is_same and again == native and same

    # The temporary folder is a whole drive: neither build lists anything of it.
    with tempfile.TemporaryDirectory() as disk:
        letter = drive.parent / "dosdevices" / "d:"
        letter.symlink_to(disk)
        photographs = pathlib.Path(disk).resolve() / "photographs"
        photographs.mkdir()
        (photographs / "one.jpg").write_bytes(b"x")
        set_temporary_folder("D:\\")
        is_same, on_drive = compare_junk("junk, temporary folder is a drive", {"prefetch": 7})
        listed = [item[1] for item in on_drive if "photographs" in item[1]]
        if listed:
            print(f"would be deleted: {listed}")
        same = is_same and not listed and same

        # The temporary folder is the folder of the user's documents.
        documents = pathlib.Path(disk).resolve() / "Papers"
        documents.mkdir()
        (documents / "thesis.odt").write_bytes(b"x")
        (documents / "notes.txt").write_bytes(b"x")
        set_temporary_folder("D:\\Papers")
        is_same, _ = compare_junk("junk, temporary folder below a drive", {"temp_files": 2, "prefetch": 7})
        same = is_same and same
        set_text("HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders", "Personal", "D:\\Papers")
        set_temporary_folder("D:\\Papers")
        is_same, in_documents = compare_junk("junk, temporary folder is that of the documents", {"prefetch": 7})
        listed = [item[1] for item in in_documents if "Papers" in item[1]]
        if listed:
            print(f"would be deleted: {listed}")
        same = is_same and not listed and same
        set_temporary_folder(temporary)
        letter.unlink()
    return 0 if same else 1


sys.exit(main())
