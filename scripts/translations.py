#!/usr/bin/env python3
"""Updates and checks the nine catalogues in resources/translations.

Usage: translations.py update          adds new texts of the source and drops removed ones
       translations.py check           lists missing and wrong translations; exit status 1 if there are any
       translations.py counts          prints how many texts each catalogue has

A translation may be the same as its source ("OK", "%1 GB", a product's name). Then its translator's comment must be "same".
"""
import collections
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unicodedata
import xml.etree.ElementTree as ElementTree

project = pathlib.Path(__file__).resolve().parent.parent
folder = project / "resources" / "translations"
codes = [line.split()[0] for line in (folder / "languages.txt").read_text(encoding="utf-8").splitlines()
         if not line.startswith("#")]
# The texts of the toolkit in a language for which the toolkit has no catalogue.
toolkit = folder / "qt_pt.ts"

Message = collections.namedtuple("Message", "translation state comment")


def catalogue(code):
    return folder / f"Sweepwise_{code}.ts"


def tool(name):
    found = shutil.which(name, path="/usr/lib/qt6/bin") or shutil.which(f"{name}6") or shutil.which(name)
    return found or sys.exit(f"translations: {name} is not installed (qt6-l10n-tools)")


def rule_texts():
    """A C++ source file with the texts of the rule files, for the tool that collects texts."""
    lines = []
    for name, context in (("junk", "JunkRule"), ("browser", "BrowserRule")):
        rules = json.loads((project / f"resources/rules/{name}_rules.json").read_text(encoding="utf-8"))["rules"]
        lines += [f"QT_TRANSLATE_NOOP({json.dumps(context)}, {json.dumps(rule[key], ensure_ascii=False)})"
                  for rule in rules for key in ("name", "description")]
    return "const char *texts[] = {\n" + ",\n".join(lines) + "};\n"


def bring_up_to_date(files):
    with tempfile.TemporaryDirectory() as temporary:
        rules = pathlib.Path(temporary) / "rules.cpp"
        rules.write_text(rule_texts(), encoding="utf-8")
        result = subprocess.run([tool("lupdate"), "-silent", "-no-obsolete", "-locations", "none", "src", str(rules), "-ts", *map(str, files)],
                                cwd=project, check=False, text=True, capture_output=True)
        if result.returncode != 0:
            sys.exit(f"translations: {result.stderr}")


def read(file):
    """The messages of a catalogue: (context, source) to Message."""
    messages = {}
    for context in ElementTree.parse(file).getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            translation = message.find("translation")
            messages[name, message.findtext("source")] = Message(
                translation.text or "", translation.get("type", ""), message.findtext("translatorcomment", ""))
    return messages


def toolkit_texts():
    """(context, source) of the toolkit's texts, read from one of its own catalogues."""
    with tempfile.TemporaryDirectory() as temporary:
        texts = pathlib.Path(temporary) / "toolkit.ts"
        subprocess.run([tool("lconvert"), "-i", "/usr/share/qt6/translations/qtbase_de.qm", "-o", str(texts)], check=True)
        return read(texts).keys()


def is_chinese(text):
    return re.search(r"[\u3400-\u9fff]", text) is not None


def symbols(text):
    return sorted(c for c in text if unicodedata.category(c) == "So" or c in "·|•←")


def complaints_of(code, source, message):
    """The faults of one translation."""
    text = message.translation
    if message.state or not text.strip():
        yield message.state or "missing"
        return
    for what, pattern in (("placeholders", r"%\d"), ("tags", r"<[^>]*>|&\w+;"), ("line breaks", r"\n")):
        if sorted(re.findall(pattern, source)) != sorted(re.findall(pattern, text)):
            yield f"{what} differ"
    if symbols(source) != symbols(text):
        yield "emoji or marks differ"
    for what, pattern in (("leading", r"^\s*"), ("trailing", r"\s*$")):
        if re.search(pattern, source)[0] != re.search(pattern, text)[0]:
            yield f"{what} blanks differ"
    if source.endswith("...") != text.endswith("..."):
        yield "dots at the end differ"
    if code != "ja" and is_chinese(text):
        yield "Chinese is left"
    if code == "en":
        if not is_chinese(source) and text != source:
            yield "differs from the English source"
    elif (text == source) != (message.comment == "same"):
        yield "is the source's text" if text == source else 'is not the source\'s text, and says "same"'


def differences(code, current, messages):
    """The texts that only the source has or only a catalogue has."""
    yield from (f"{code}: {context}: missing: {source!r}" for context, source in current - messages)
    yield from (f"{code}: {context}: no longer in the source: {source!r}" for context, source in messages - current)


def check():
    complaints = []
    with tempfile.TemporaryDirectory() as temporary:
        fresh = pathlib.Path(temporary) / "fresh_en.ts"
        bring_up_to_date([fresh])
        current = read(fresh)
    for code in codes:
        if not catalogue(code).exists():
            complaints.append(f"{code}: there is no catalogue")
            continue
        messages = read(catalogue(code))
        complaints += differences(code, current.keys(), messages.keys())
        complaints += [f"{code}: {context}: {complaint}: {source!r} -> {message.translation!r}"
                       for (context, source), message in messages.items() for complaint in complaints_of(code, source, message)]
    ours = read(toolkit)
    contexts = {context for context, _ in ours} - {"QShortcut"}  # the catalogue has only the keys of a usual keyboard
    complaints += [f"{toolkit.name}: {context}: missing: {source!r}" for context, source in toolkit_texts() - ours.keys()
                   if context in contexts]
    for (context, source), message in ours.items():
        complaints += [f"{toolkit.name}: {context}: {complaint}: {source!r} -> {message.translation!r}"
                       for complaint in complaints_of("pt", source, message)]
    print("\n".join(sorted(complaints)) or f"{len(current)} texts in each of {len(codes)} catalogues, no complaint")
    return 1 if complaints else 0


def main():
    match sys.argv[1:]:
        case ["update"]:
            bring_up_to_date([catalogue(code) for code in codes])
        case ["check"]:
            return check()
        case ["counts"]:
            for code in codes:
                messages = read(catalogue(code))
                print(code, len(messages), "of them the same as the source:",
                      sum(message.translation == source for (_, source), message in messages.items()))
        case _:
            print(__doc__, file=sys.stderr)
            return 2
    return 0


if __name__ == "__main__":
    sys.exit(main())
