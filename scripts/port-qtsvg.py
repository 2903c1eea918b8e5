#!/usr/bin/env python3
"""Changes the SVG module of Qt 5.15 so that it builds with Qt 6. The distribution has no source of a newer one.

Usage: port-qtsvg.py SOURCE_FOLDER QT_VERSION

Qt 6 has removed a few classes, above all string references and the old matrix. Every edit of a single file fails when the text to
replace is missing. So another source version is noticed and not changed in part.
"""
import pathlib
import re
import sys

# A string with members, such as "value" or "d.text".
STRING = r"(\w+(?:\.\w+)*)"

# Parts of strings, in every source file: QStringRef(text, position, length) is QStringView(text).mid(position, length).
STRING_PARTS = (
    (rf"QStringRef\({STRING}\.string\(\), \1\.position\(\) \+ (\w+), ([^;]*?)\) ==", r"QStringView(\1).mid(\2, \3) =="),
    (rf"QStringRef\({STRING}\.string\(\), \1\.position\(\), (\d+)\) ==", r"QStringView(\1).mid(0, \2) =="),
    (rf"QStringRef (\w+)\({STRING}\.string\(\), \2\.position\(\) \+ (\d+), [^;]*?\);", r"QStringView \1 = \2.mid(\3);"),
    (r"str\.string\(\)->constData\(\) \+ str\.position\(\)", "str.constData()"),
    (r"return QStringRef\(str\.string\(\), str\.position\(\) \+ start, l\);", "return str.mid(start, l);"),
    (r"QStringRef\(&(\w+), 0, \1\.length\(\)\)", r"QStringView(\1)"),
    (r"QStringRef\(&sym\.text, sym\.start, (\w+(?:\.\w+)?)\)", r"QStringView(sym.text).mid(sym.start, \1)"),
    (r"QStringRef\(&(\w+)\)", r"QStringView(\1)"),
    (r"QStringRef (\w+)\(&(\w+)\);", r"QStringView \1(\2);"),
    (r"QXmlStreamStringRef\((QStringView\([^;]*?)\);", r"\1;"),
    (r"QStringRef", "QStringView"),
    (r"color\.midRef\(1\)", "color.mid(1)"),
)

# Further edits of single files, made after the ones above: text and replacement.
EDITS = {
    "qsvgfont.cpp": (("unicode = 0;", "unicode = QChar(0);"),),
    "qsvggenerator.cpp": (
        ('#include "qtextcodec.h"\n', ""),
        ('setCodec(QTextCodec::codecForName("UTF-8"))', "setEncoding(QStringConverter::Utf8)"),
    ),
    "qsvghandler.cpp": (
        ("QString attribute(NodePtr node, const QString &name) const override\n    {\n",
         "QString attributeValue(NodePtr node, const QCss::AttributeSelector &selector) const override\n    {\n"
         "        const QString &name = selector.name;\n"),
        ("colorStrTr.unicode()", "colorStrTr.data()"),
        ("(uncStr.isEmpty()) ? 0 : uncStr.at(0)", "(uncStr.isEmpty()) ? QChar(0) : uncStr.at(0)"),
        ("*const_cast<QChar *>(end) = 0;", "*const_cast<QChar *>(end) = QChar(0);"),
        ("QXmlStreamStringRef(name)", "name.toString()"),
        ("attribute.value = QStringView(sym.text).mid(sym.start, len);", "attribute.value = sym.text.mid(sym.start, len);"),
        ("attribute.value = QStringView(value);", "attribute.value = value;"),
        ("QStringView ref(&name, 1, name.length() - 1);", "QStringView ref = QStringView(name).mid(1);"),
    ),
    "qsvghandler_p.h": (("QXmlStreamStringRef", "QString"),),
    "qsvgrenderer.h": (("#include <QtGui/qmatrix.h>", "#include <QtGui/qtransform.h>"),),
    "qsvgstyle.cpp": (
        ("font.setWeight(SVGToQtWeight(states.fontWeight));",
         "font.setWeight(QFont::Weight(SVGToQtWeight(states.fontWeight)));"),
    ),
}

# A function that returns the old matrix. It already has a replacement.
REMOVED = {
    "qsvgrenderer.h": r".*QMatrix matrixForElement.*\n",
    "qsvgrenderer.cpp": r"(?s)QMatrix QSvgRenderer::matrixForElement\(const QString &id\) const\n\{.*?\n\}\n",
}

# Sources of the module with SVG widgets, which is not built.
WIDGET_SOURCES = ("qgraphicssvgitem", "qsvgwidget")

PROJECT = """cmake_minimum_required(VERSION 3.16)
include(.cmake.conf)
project(QtSvg VERSION "${QT_REPO_MODULE_VERSION}" LANGUAGES CXX C)
find_package(Qt6 ${PROJECT_VERSION} CONFIG REQUIRED COMPONENTS BuildInternals Core Gui)
qt_build_repo()
"""
FOLDERS = """add_subdirectory(svg)
add_subdirectory(plugins)
"""
MODULE = """qt_internal_add_module(Svg
    PLUGIN_TYPES iconengines imageformats
    SOURCES
        SOURCE_LIST
    LIBRARIES Qt::CorePrivate Qt::GuiPrivate Qt::ZlibPrivate
    PUBLIC_LIBRARIES Qt::Core Qt::Gui)
"""
PLUGINS = """qt_internal_add_plugin(QSvgIconPlugin
    OUTPUT_NAME qsvgicon
    PLUGIN_TYPE iconengines
    SOURCES
        iconengines/svgiconengine/main.cpp
        iconengines/svgiconengine/qsvgiconengine.cpp
        iconengines/svgiconengine/qsvgiconengine.h
    LIBRARIES Qt::Core Qt::CorePrivate Qt::Gui Qt::GuiPrivate Qt::Svg)
qt_internal_add_plugin(QSvgPlugin
    OUTPUT_NAME qsvg
    PLUGIN_TYPE imageformats
    SOURCES
        imageformats/svg/main.cpp
        imageformats/svg/qsvgiohandler.cpp
        imageformats/svg/qsvgiohandler.h
    LIBRARIES Qt::Core Qt::Gui Qt::GuiPrivate Qt::Svg)
"""


def rewrite(path, change):
    path.write_text(change(path.read_text(encoding="utf-8")), encoding="utf-8")


def replace_parts(text):
    for pattern, replacement in STRING_PARTS:
        text = re.sub(pattern, replacement, text)
    return text


def edit(name, text):
    for old, new in EDITS.get(name, ()):
        if old not in text:
            sys.exit(f"port-qtsvg: {name} does not hold {old.strip()[:60]!r}")
        text = text.replace(old, new)
    if name in REMOVED:
        text, count = re.subn(REMOVED[name], "", text)
        if count != 1:
            sys.exit(f"port-qtsvg: {name} does not hold matrixForElement once")
    return text


def main():
    root, version = pathlib.Path(sys.argv[1]), sys.argv[2]
    module = root / "src" / "svg"
    sources = sorted(path for path in module.iterdir() if path.suffix in (".cpp", ".h"))
    missing = (EDITS.keys() | REMOVED.keys()) - {path.name for path in sources}
    if missing:
        sys.exit(f"port-qtsvg: there is no {', '.join(sorted(missing))}")
    for path in sources:
        rewrite(path, lambda text, name=path.name: edit(name, replace_parts(text)))

    wanted = [path.name for path in sources if not path.stem.removesuffix("_p").startswith(WIDGET_SOURCES)]
    (root / ".cmake.conf").write_text(f'set(QT_REPO_MODULE_VERSION "{version}")\n')
    (root / "CMakeLists.txt").write_text(PROJECT)
    (root / "src" / "CMakeLists.txt").write_text(FOLDERS)
    (module / "CMakeLists.txt").write_text(MODULE.replace("SOURCE_LIST", "\n        ".join(wanted)))
    (root / "src" / "plugins" / "CMakeLists.txt").write_text(PLUGINS)


main()
