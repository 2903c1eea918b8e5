#include "unix/registryfile.h"

#include "unix/registrytext.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

using namespace registrytext;

namespace {

// The start of the next section at or after @p from, which is the start of a line.
qsizetype nextSection(const QByteArray &text, qsizetype from)
{
    if (from < text.size() && text.at(from) == '[')
        return from;
    const qsizetype found = text.indexOf("\n[", from);
    return found < 0 ? text.size() : found + 1;
}

qsizetype lineEnd(QByteArrayView text, qsizetype from)
{
    const qsizetype found = text.indexOf('\n', from);
    return found < 0 ? text.size() : found + 1;
}

QByteArray slice(const QByteArray &text, qsizetype from, qsizetype end)
{
    return QByteArray::fromRawData(text.constData() + from, end - from);
}

// The offset of the "=" in a value's line; negative for a line that is no value. Sets @p name.
qsizetype valueStart(QByteArrayView line, QString &name)
{
    if (line.startsWith("@="))
        return 1;
    if (!line.startsWith('"'))
        return -1;
    qsizetype length = 0;
    const std::optional<QString> decoded = decodeName(line.sliced(1), '"', length);
    if (!decoded || length + 2 >= line.size() || line[length + 2] != '=')
        return -1;
    name = *decoded;
    return length + 2;
}

QByteArray sectionHead(const QString &path)
{
    return '[' + encodeName(path, "[]") + "] "
        + QByteArray::number(QDateTime::currentSecsSinceEpoch()) + '\n';
}

} // namespace

std::optional<RegistryFile> RegistryFile::parse(const QByteArray &text)
{
    if (!text.startsWith("WINE REGISTRY Version 2"))
        return std::nullopt;
    RegistryFile file;
    file.m_text = text;
    file.indexSections();
    return file;
}

void RegistryFile::indexSections()
{
    m_nodes.emplace_back();
    qsizetype begin = nextSection(m_text, 0);
    m_prologue = slice(m_text, 0, begin);
    while (begin < m_text.size()) {
        const qsizetype headEnd = lineEnd(m_text, begin);
        const qsizetype end = nextSection(m_text, headEnd);
        addSection(slice(m_text, begin, headEnd), slice(m_text, headEnd, end));
        begin = end;
    }
}

void RegistryFile::addSection(const QByteArray &head, const QByteArray &body)
{
    Section section{none, head, body};
    qsizetype length = 0;
    const std::optional<QString> path = decodeName(QByteArrayView(head).sliced(1), ']', length);
    if (path) {
        Key key = root;
        const QStringList names = path->split(u'\\', Qt::SkipEmptyParts);
        for (const QString &name : names) {
            const Key child = childOf(key, name);
            key = child == none ? addChild(key, name, false) : child;
        }
        node(key).sections.push_back(static_cast<qsizetype>(m_sections.size()));
        // The lines that describe the key itself come first.
        for (qsizetype at = 0; at < body.size() && body.at(at) == '#'; at = lineEnd(body, at)) {
            if (slice(body, at, lineEnd(body, at)).trimmed() == "#link")
                node(key).isLink = true;
        }
        section.key = key;
    }
    m_sections.push_back(section);
}

RegistryFile::Key RegistryFile::childOf(Key parent, const QString &name) const
{
    return m_children.value({parent, folded(name)}, none);
}

// A file lists the keys in the registry's order. A key that is created here is inserted in sorted
// order.
RegistryFile::Key RegistryFile::addChild(Key parent, const QString &name, bool isSorted)
{
    const auto key = static_cast<Key>(m_nodes.size());
    const QString foldedName = folded(name);
    m_nodes.emplace_back();
    node(key).name = name;
    node(key).parent = parent;
    std::vector<Key> &children = node(parent).children;
    auto position = children.end();
    if (isSorted) {
        position = std::find_if(children.begin(), children.end(),
                                [&](Key child) { return folded(node(child).name) > foldedName; });
    }
    children.insert(position, key);
    m_children.insert({parent, foldedName}, key);
    return key;
}

RegistryFile::Key RegistryFile::find(const QString &path) const
{
    Key key = root;
    if (path.isEmpty())
        return key;
    const QStringList names = path.split(u'\\');
    for (const QString &name : names) {
        key = childOf(key, name);
        if (key == none)
            return none;
    }
    return key;
}

QStringList RegistryFile::subkeys(Key key) const
{
    QStringList names;
    names.reserve(static_cast<qsizetype>(node(key).children.size()));
    for (const Key child : node(key).children)
        names.append(node(child).name);
    return names;
}

QList<RegistryFile::Line> &RegistryFile::lines(Key key) const
{
    const Node &owner = node(key);
    if (owner.lines)
        return *owner.lines;
    owner.lines.emplace();
    for (const qsizetype index : owner.sections) {
        const QByteArray &body = m_sections[static_cast<size_t>(index)].body;
        for (qsizetype at = 0; at < body.size();) {
            qsizetype end = lineEnd(body, at);
            Line line;
            const qsizetype equals = valueStart(slice(body, at, end), line.name);
            if (equals > 0) {
                line.dataStart = equals + 1;
                const bool isHex = slice(body, at + equals + 1, end).startsWith("hex");
                while (isHex && end < body.size() && slice(body, at, end).trimmed().endsWith('\\'))
                    end = lineEnd(body, end);
                line.isValue = decodeData(slice(body, at + line.dataStart, end)).has_value();
            }
            line.raw = slice(body, at, end);
            owner.lines->append(line);
            at = end;
        }
    }
    indexValues(key);
    return *owner.lines;
}

void RegistryFile::indexValues(Key key) const
{
    const Node &owner = node(key);
    owner.values.clear();
    for (qsizetype i = 0; i < owner.lines->size(); ++i) {
        if (owner.lines->at(i).isValue)
            owner.values.insert(folded(owner.lines->at(i).name), i);
    }
}

QStringList RegistryFile::valueNames(Key key) const
{
    QStringList names;
    QSet<QString> seen;
    for (const Line &line : std::as_const(lines(key))) {
        if (!line.isValue)
            continue;
        const QString name = folded(line.name);
        if (!seen.contains(name))
            names.append(line.name);
        seen.insert(name);
    }
    return names;
}

// If a name occurs twice, the last line counts.
std::optional<RegistryValue> RegistryFile::value(Key key, const QString &name) const
{
    const QList<Line> &all = lines(key);
    const qsizetype found = node(key).values.value(folded(name), -1);
    if (found < 0)
        return std::nullopt;
    std::optional<RegistryValue> value =
        decodeData(QByteArrayView(all.at(found).raw).sliced(all.at(found).dataStart));
    if (value)
        value->name = all.at(found).name;
    return value;
}

void RegistryFile::removeTree(Key key)
{
    const Key parent = node(key).parent;
    std::vector<Key> &siblings = node(parent).children;
    siblings.erase(std::find(siblings.begin(), siblings.end(), key));
    // The parent existed only because of this key.
    if (siblings.empty() && node(parent).sections.empty() && parent != root)
        node(parent).needsSection = true;
    markRemoved(key);
    m_isChanged = true;
}

void RegistryFile::markRemoved(Key top)
{
    std::vector<Key> pending{top};
    while (!pending.empty()) {
        const Key key = pending.back();
        pending.pop_back();
        m_children.remove({node(key).parent, folded(node(key).name)});
        node(key).isRemoved = true;
        pending.insert(pending.end(), node(key).children.begin(), node(key).children.end());
    }
}

bool RegistryFile::removeValue(Key key, const QString &name)
{
    if (!value(key, name))
        return false;
    removeLines(key, folded(name));
    return true;
}

void RegistryFile::removeLines(Key key, const QString &name)
{
    lines(key).removeIf(
        [&](const Line &line) { return line.isValue && folded(line.name) == name; });
    indexValues(key);
    node(key).isChanged = true;
    m_isChanged = true;
}

RegistryFile::Key RegistryFile::create(const QString &path)
{
    Key key = root;
    const QStringList names = path.split(u'\\', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        Key child = childOf(key, name);
        if (child == none) {
            child = addChild(key, name, true);
            node(child).needsSection = true;
            m_isChanged = true;
        }
        key = child;
    }
    return key;
}

void RegistryFile::setValue(Key key, const RegistryValue &value)
{
    QList<Line> &all = lines(key);
    const QString foldedName = folded(value.name);
    RegistryValue written = value;
    // The new value goes behind the lines that describe the key itself. At the end of the section
    // it could follow a broken line, which would take it for its continuation.
    const auto isNoComment = [](const Line &line) { return !line.raw.startsWith('#'); };
    auto position = std::find_if(all.cbegin(), all.cend(), isNoComment) - all.cbegin();
    if (node(key).values.contains(foldedName)) {
        const auto isSame = [&](const Line &line) {
            return line.isValue && folded(line.name) == foldedName;
        };
        const auto old = std::find_if(all.cbegin(), all.cend(), isSame);
        position = old - all.cbegin();
        written.name = old->name;
        removeLines(key, foldedName);
    }
    Line line;
    line.isValue = true;
    line.name = written.name;
    line.raw = encodeValue(written);
    line.dataStart = valueStart(line.raw, line.name) + 1;
    all.insert(position, line);
    indexValues(key);
    node(key).isChanged = true;
    m_isChanged = true;
}

QString RegistryFile::path(Key key) const
{
    QStringList names;
    for (; key != root; key = node(key).parent)
        names.prepend(node(key).name);
    return names.join(u'\\');
}

void RegistryFile::writeLines(Key key, QByteArray &text) const
{
    for (const Line &line : std::as_const(lines(key))) {
        text += line.raw;
        if (!text.endsWith('\n'))
            text += '\n';
    }
}

QByteArray RegistryFile::text() const
{
    QByteArray text = m_prologue;
    text.reserve(m_text.size() + 4096);
    for (qsizetype i = 0; i < static_cast<qsizetype>(m_sections.size()); ++i) {
        const Section &section = m_sections[static_cast<size_t>(i)];
        if (section.key == none) {
            text += section.head + section.body;
            continue;
        }
        const Node &owner = node(section.key);
        if (owner.isRemoved)
            continue;
        if (!owner.isChanged) {
            text += section.head + section.body;
        } else if (owner.sections.front() == i) {
            text += section.head;
            if (!text.endsWith('\n')) // the file ends without a line end
                text += '\n';
            writeLines(section.key, text);
        }
    }
    for (Key key = 1; key < static_cast<Key>(m_nodes.size()); ++key) {
        const Node &owner = node(key);
        if (owner.isRemoved || !owner.sections.empty() || (!owner.needsSection && !owner.isChanged))
            continue;
        text += (text.endsWith('\n') ? "\n" : "\n\n") + sectionHead(path(key));
        writeLines(key, text);
    }
    return text;
}

} // namespace platform
