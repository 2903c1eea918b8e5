#include "unix/registryfile.h"

#include "readfile.h"
#include "registry_p.h"
#include "unix/openfolder.h"
#include "unix/registrytext.h"

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace platform {

using namespace registrytext;

namespace {

constexpr qint64 maximumSize = 1 << 30; // bytes; the largest known ones have some ten million

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

/// What the beginnings and ends of the lines in a section's body tell. Whether a value can be
/// decoded shows when it is asked for.
struct BodyOutline {
    /// Each line begins like a value, the continuation of one, a remark or an empty line, and no
    /// value lacks its continuation: that would swallow the line that is written behind it.
    bool isPlausible = true;
    bool isLink = false; ///< the key is a symbolic link
};

BodyOutline outlineOf(const QByteArray &body)
{
    BodyOutline outline;
    bool isContinued = false; // the line is one of a value that began above
    for (qsizetype at = 0; at < body.size();) {
        const qsizetype end = lineEnd(body, at);
        const QByteArrayView line = QByteArrayView(body).sliced(at, end - at).trimmed();
        const char first = body.at(at);
        const bool isIndented = (first == ' ' || first == '\t') && !line.isEmpty();
        if (!std::strchr("\"@ \t#;\r\n", first) || (isContinued && !isIndented))
            outline.isPlausible = false;
        outline.isLink = outline.isLink || (first == '#' && line == "#link");
        const bool isHex = (first == '"' || first == '@') && line.contains("=hex");
        isContinued = (isHex || (isContinued && isIndented)) && line.endsWith('\\');
        at = end;
    }
    outline.isPlausible = outline.isPlausible && !isContinued;
    return outline;
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

std::optional<RegistryFile> RegistryFile::read(const QString &path, QString &error, bool *isDamaged)
{
    error.clear();
    const std::optional<FileStatus> status = examineFile(path, error);
    if (!status)
        return std::nullopt;
    // A file that was read in part would be written back as a whole, so readFile() gives all or
    // nothing.
    const std::optional<QByteArray> text =
        S_ISREG(status->st_mode) ? readFile(path, maximumSize, error) : QByteArray();
    if (!text)
        return std::nullopt;
    std::optional<RegistryFile> content = parse(*text);
    if (!content)
        error = RegistryTexts::tr("It is not a registry file");
    else if (!text->endsWith('\n') || text->contains('\0') || content->isDamaged())
        error = RegistryTexts::tr("It is damaged");
    if (isDamaged)
        *isDamaged = !error.isEmpty();
    return error.isEmpty() ? std::move(content) : std::nullopt;
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
    const BodyOutline outline = outlineOf(body);
    m_isDamaged = m_isDamaged || !path || !outline.isPlausible;
    if (path) {
        Key key = root;
        const QStringList names = path->split(u'\\', Qt::SkipEmptyParts);
        for (const QString &name : names) {
            const Key child = childOf(key, name);
            key = child == none ? addChild(key, name) : child;
        }
        node(key).sections.push_back(static_cast<qsizetype>(m_sections.size()));
        node(key).isLink = node(key).isLink || outline.isLink;
        section.key = key;
    }
    m_sections.push_back(section);
}

RegistryFile::Key RegistryFile::childOf(Key parent, const QString &name) const
{
    return m_children.value({parent, folded(name)}, none);
}

RegistryFile::Key RegistryFile::addChild(Key parent, const QString &name)
{
    const auto key = static_cast<Key>(m_nodes.size());
    m_nodes.emplace_back();
    node(key).name = name;
    node(key).parent = parent;
    node(parent).children.push_back(key);
    ++node(parent).childCount;
    m_children.insert({parent, folded(name)}, key);
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
    names.reserve(node(key).childCount);
    for (const Key child : node(key).children) {
        if (!node(child).isRemoved)
            names.append(node(child).name);
    }
    return names;
}

RegistryFile::Lines &RegistryFile::lines(Key key) const
{
    const Node &owner = node(key);
    if (owner.lines)
        return *owner.lines;
    Lines &result = owner.lines.emplace(Lines());
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
            const bool isMeant = body.at(at) == '"' || body.at(at) == '@';
            result.hasUnreadableValues = result.hasUnreadableValues || (isMeant && !line.isValue);
            line.raw = slice(body, at, end);
            addLine(result, std::move(line));
            at = end;
        }
    }
    result.newBegin = static_cast<qsizetype>(result.all.size());
    return result;
}

void RegistryFile::addLine(Lines &lines, Line &&line)
{
    if (line.isValue) {
        const auto index = static_cast<qsizetype>(lines.all.size());
        const QString name = folded(line.name);
        line.previous = lines.values.value(name, none);
        lines.values.insert(name, index);
    }
    lines.all.push_back(std::move(line));
}

bool RegistryFile::hasUnreadableValues(Key key) const
{
    return lines(key).hasUnreadableValues;
}

QStringList RegistryFile::valueNames(Key key) const
{
    QStringList names;
    QSet<QString> seen;
    for (const Line &line : std::as_const(lines(key).all)) {
        if (!line.isValue || line.raw.isNull())
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
    const Lines &all = lines(key);
    const qsizetype found = all.values.value(folded(name), none);
    if (found == none)
        return std::nullopt;
    const Line &line = all.all[static_cast<size_t>(found)];
    std::optional<RegistryValue> value =
        decodeData(QByteArrayView(line.raw).sliced(line.dataStart));
    if (value)
        value->name = line.name;
    return value;
}

void RegistryFile::removeTree(Key key)
{
    const Key parent = node(key).parent;
    // The parent existed only because of this key.
    if (--node(parent).childCount == 0 && node(parent).sections.empty() && parent != root)
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
    Lines &all = lines(key);
    const QString foldedName = folded(name);
    qsizetype index = all.values.value(foldedName, none);
    if (index == none)
        return false;
    all.values.remove(foldedName);
    while (index != none) {
        Line &line = all.all[static_cast<size_t>(index)];
        line.raw.clear();
        index = line.previous;
    }
    node(key).isChanged = true;
    m_isChanged = true;
    return true;
}

bool RegistryFile::leadsThroughLink(const QString &path) const
{
    Key key = root;
    const QStringList names = path.split(u'\\');
    for (const QString &name : names) {
        key = childOf(key, name);
        if (key == none)
            return false;
        if (isLink(key))
            return true;
    }
    return false;
}

RegistryFile::Key RegistryFile::create(const QString &path)
{
    Key key = root;
    const QStringList names = path.split(u'\\', Qt::SkipEmptyParts);
    for (const QString &name : names) {
        Key child = childOf(key, name);
        if (child == none) {
            child = addChild(key, name);
            node(child).needsSection = true;
            m_isChanged = true;
        }
        key = child;
    }
    return key;
}

void RegistryFile::setValue(Key key, const RegistryValue &value)
{
    Lines &all = lines(key);
    const QString foldedName = folded(value.name);
    // The first line of the name is replaced, the others are removed.
    qsizetype first = none;
    for (qsizetype index = all.values.value(foldedName, none); index != none;
         index = all.all[static_cast<size_t>(index)].previous) {
        all.all[static_cast<size_t>(index)].raw.clear();
        first = index;
    }
    RegistryValue written = value;
    if (first != none)
        written.name = all.all[static_cast<size_t>(first)].name;
    Line line;
    line.isValue = true;
    line.name = written.name;
    line.raw = encodeValue(written);
    line.dataStart = valueStart(line.raw, line.name) + 1;
    if (first != none) {
        all.all[static_cast<size_t>(first)] = std::move(line);
        all.values.insert(foldedName, first);
    } else {
        addLine(all, std::move(line));
    }
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
    const Lines &all = lines(key);
    const auto write = [&text](auto begin, auto end) {
        for (auto line = begin; line != end; ++line) {
            text += line->raw;
            if (!text.endsWith('\n'))
                text += '\n';
        }
    };
    // The new values go behind the lines that describe the key itself. At the end of the section
    // they could follow a broken line, which would take them for its continuation.
    const auto newBegin = all.all.cbegin() + all.newBegin;
    const auto described = std::find_if(all.all.cbegin(), newBegin,
                                        [](const Line &line) { return !line.raw.startsWith('#'); });
    write(all.all.cbegin(), described);
    write(newBegin, all.all.cend());
    write(described, newBegin);
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
