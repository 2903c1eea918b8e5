"""The registry files of a Wine prefix, written and read without the program's code."""

import re

machine = "REGISTRY\\\\Machine"
user = "REGISTRY\\\\User\\\\S-1-5-21-0-0-0-1000"
version = "Software\\Microsoft\\Windows\\CurrentVersion\\"
fonts = "Software\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"
mui_cache = "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"


def _escaped(text, quote):
    parts = []
    for unit in text.encode("utf-16-le", "surrogatepass").hex(" ", 2).split():
        code = int(unit[2:] + unit[:2], 16)
        character = chr(code)
        if character in "\\" + quote:
            parts.append("\\" + character)
        elif 0x20 <= code < 0x7F:
            parts.append(character)
        else:
            parts.append({"\n": "\\n", "\r": "\\r"}.get(character, f"\\x{code:04x}"))
    return "".join(parts)


def text_value(text):
    return f'"{_escaped(text, chr(34))}"'


def write(path, root, keys):
    """Writes {key: {name: data as in the file}}. The empty name is the default value."""
    lines = ["WINE REGISTRY Version 2", f";; All keys relative to {root}", "", "#arch=win64"]
    for key, values in keys.items():
        lines += ["", f"[{_escaped(key, '[]')}] 1700000000", "#time=1d94a5b6c7d8e90"]
        lines += [f"{text_value(name) if name else '@'}={data}" for name, data in values.items()]
    path.write_text("\n".join(lines) + "\n")


_head = re.compile(r"\[((?:[^\\\]]|\\.)+)\]( \d+)?")
_value = re.compile(r'(@|"(?:[^"\\]|\\.)*")=(.*)')
_data = re.compile(r'"(?:[^"\\]|\\.)*"|str\([0-9a-f]+\):"(?:[^"\\]|\\.)*"|dword:[0-9a-f]{8}|hex(\([0-9a-f]+\))?:([0-9a-f]{2}(,[0-9a-f]{2})*)?')


def read(path):
    """Returns {key as in the file, lower case: {name as in the file: data}}. Raises ValueError for a torn file."""
    text = path.read_text()
    if not text.startswith("WINE REGISTRY Version 2\n") or not text.endswith("\n"):
        raise ValueError(f"{path} is torn")
    keys = {}
    values = None
    for line in text.replace("\\\n  ", "").split("\n")[1:]:
        if not line or line.startswith((";;", "#")):
            continue
        if head := _head.fullmatch(line):
            values = keys.setdefault(head[1].lower(), {})
        elif (value := _value.fullmatch(line)) and values is not None and _data.fullmatch(value[2]):
            values[value[1]] = value[2]
        else:
            raise ValueError(f"{path} has the line {line[:200]!r}")
    return keys


def _unescaped(text):
    """The UTF-16 code units of a string in the file."""
    units = []
    at = 0
    while at < len(text):
        if text[at] != "\\":
            units.append(ord(text[at]))
            at += 1
            continue
        if digits := re.match(r"\\x([0-9a-f]{1,4})", text[at:]):
            units.append(int(digits[1], 16))
        elif digits := re.match(r"\\([0-7]{1,3})", text[at:]):
            units.append(int(digits[1], 8))
        else:
            digits = re.match(r"\\(.)", text[at:], re.DOTALL)
            units.append({"n": 10, "r": 13, "t": 9, "a": 7, "b": 8, "e": 27, "f": 12, "v": 11, "0": 0}.get(digits[1], ord(digits[1])))
        at += len(digits[0])
    return units


def _bytes_of(units):
    return b"".join(unit.to_bytes(2, "little") for unit in units)


def name_of(name):
    """The name of a value or key, as its UTF-16 code units."""
    return b"" if name == "@" else _bytes_of(_unescaped(name.strip('"')))


def decode(data):
    """The type and the bytes of a value, however the file spells them."""
    if data.startswith('"'):
        return 1, _bytes_of([*_unescaped(data[1:-1]), 0])
    if string := re.fullmatch(r'str\(([0-9a-f]+)\):"(.*)"', data):
        return int(string[1], 16), _bytes_of([*_unescaped(string[2]), 0])
    if data.startswith("dword:"):
        return 4, int(data[6:], 16).to_bytes(4, "little")
    kind, _, digits = data.partition(":")
    return int(kind[4:-1], 16) if "(" in kind else 3, bytes.fromhex(digits.replace(",", ""))


def key_of(key):
    """The path of a key in the file as text, lower case."""
    return name_of(key).decode("utf-16-le", "surrogatepass").lower()


_export_value = re.compile(r'(@|"(?:[^"\\]|\\.)*")=(.*)', re.DOTALL)


def read_export(path):
    """The values of a registry export: {(key, name as UTF-16 code units): (type, bytes)}. Keys are lower case."""
    text = path.read_bytes().decode("utf-16", "surrogatepass").replace("\\\r\n  ", "")
    values = {}
    key = None
    for line in text.split("\r\n"):
        if line.startswith("["):
            key = line[1:-1].lower()
        elif match := _export_value.fullmatch(line):
            name = b"" if match[1] == "@" else _plain(match[1])
            data = match[2]
            values[key, name] = (1, _plain(data) + b"\0\0") if data.startswith('"') else decode(data)
    return values


def _plain(text):
    return re.sub(r"\\(.)", r"\1", text[1:-1]).encode("utf-16-le", "surrogatepass")
