#include "registryfixture.h"

#include "testhome.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

QString escaped(QString text)
{
    return text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
}

// The text as the registry files of a Wine prefix store it.
QString textInFile(const QString &text)
{
    QString inFile;
    for (const QChar c : text) {
        if (c == u'\n')
            inFile += "\\n"_L1;
        else if (c == u'\r')
            inFile += "\\r"_L1;
        else if (c.unicode() < 0x80)
            inFile += escaped(QString(c));
        else
            inFile += "\\x"_L1 + QString::number(c.unicode(), 16).rightJustified(4, u'0');
    }
    return u'"' + inFile + u'"';
}

#ifdef Q_OS_WIN
QString exportedName(const QString &name)
{
    return name.isEmpty() ? u"@"_s : u'"' + escaped(name) + u'"';
}
#else
QString nameInFile(const QString &name)
{
    return name.isEmpty() ? u"@"_s : textInFile(name);
}

// In the name of a key a quote is not escaped.
QString keyInFile(const QString &key)
{
    return textInFile(key).sliced(1).chopped(1).replace("\\\""_L1, "\""_L1);
}
#endif

} // namespace

RegistryFixture::RegistryFixture(const TestHome &home)
    : m_folder(home.folder(u"prefix"_s))
{
#ifndef Q_OS_WIN
    QDir().mkpath(m_folder + "/drive_c/windows"_L1);
    QDir().mkpath(m_folder + "/dosdevices"_L1);
    QFile::link(u"../drive_c"_s, m_folder + "/dosdevices/c:"_L1);
    for (const auto &[hive, title] :
         {std::pair(u"HKEY_LOCAL_MACHINE"_s, "REGISTRY\\\\Machine"),
          std::pair(u"HKEY_CURRENT_USER"_s, "REGISTRY\\\\User\\\\S-1-5-21-0-0-0-1000")}) {
        QFile hiveFile(file(hive));
        if (!hiveFile.open(QIODevice::WriteOnly))
            qFatal("cannot write the registry of the test");
        hiveFile.write(QByteArray("WINE REGISTRY Version 2\n;; All keys relative to ") + title
                       + "\n\n#arch=win64\n");
    }
#endif
}

QString RegistryFixture::file(const QString &hive) const
{
#ifdef Q_OS_WIN
    Q_UNUSED(hive)
    return {};
#else
    return m_folder + (hive == "HKEY_CURRENT_USER"_L1 ? "/user.reg"_L1 : "/system.reg"_L1);
#endif
}

void RegistryFixture::append(const Entry &entry)
{
    m_pending.append(entry);
}

void RegistryFixture::addKey(const QString &key)
{
    append({key, {}, {}, {}, true});
}

void RegistryFixture::addText(const QString &key, const QString &name, const QString &text)
{
    append({key, name, u'"' + escaped(text) + u'"', textInFile(text)});
}

void RegistryFixture::addBytes(const QString &key, const QString &name, quint32 type,
                               const QByteArray &data)
{
    const bool isNumber = type == 4 && data.size() == 4;
    const QString list = isNumber
        ? u"dword:%1"_s.arg(qFromLittleEndian<quint32>(data.constData()), 8, 16, QChar(u'0'))
        : (type == 3 ? u"hex:"_s : u"hex(%1):"_s.arg(type, 0, 16))
            + QString::fromLatin1(data.toHex(','));
    const bool isText = type == 1 && data.size() >= 2 && data.size() % 2 == 0
        && data.last(2) == QByteArray(2, '\0');
    const QString text(reinterpret_cast<const QChar *>(data.constData()), data.size() / 2);
    append({key, name, list, isText ? textInFile(text.chopped(1)) : list});
}

#ifdef Q_OS_WIN

namespace {

/// What the system's registry command returned.
struct CommandResult {
    int exitCode;
    QString output;
};

CommandResult runReg(const QStringList &arguments)
{
    QProcess process;
    process.start(u"reg"_s, arguments);
    if (!process.waitForFinished(60'000))
        qFatal("the registry command did not end");
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput())};
}

// Imports the lines as a registry export; true if the system's command succeeds.
bool importLines(const QString &folder, const QString &lines)
{
    const QString path = folder + "/import.reg"_L1;
    QFile file(path);
    const QString text =
        QChar(QChar::ByteOrderMark) + u"Windows Registry Editor Version 5.00\r\n\r\n"_s + lines;
    if (!file.open(QIODevice::WriteOnly)
        || file.write(reinterpret_cast<const char *>(text.utf16()), text.size() * 2) < 0)
        qFatal("cannot write the registry entries of the test");
    file.close();
    return runReg({u"import"_s, QDir::toNativeSeparators(path)}).exitCode == 0;
}

// The outermost key that belongs to the test. Empty when the key is the system's and only its
// values belong to the test.
QString findOutermostOwnKey(const QString &key)
{
    const qsizetype at = key.indexOf("Sweepwise"_L1);
    if (at < 0)
        return {};
    const qsizetype end = key.indexOf(u'\\', at);
    return end < 0 ? key : key.first(end);
}

} // namespace

void RegistryFixture::write()
{
    QString lines;
    for (const Entry &entry : std::as_const(m_pending)) {
        lines += u"["_s + entry.key + "]\r\n"_L1;
        if (!entry.isKeyOnly)
            lines += exportedName(entry.name) + u'=' + entry.data + "\r\n"_L1;
        lines += "\r\n"_L1;
    }
    if (!importLines(m_folder, lines))
        qFatal("the registry entries of the test were not imported");
    m_written += m_pending;
    m_pending.clear();
}

RegistryFixture::~RegistryFixture()
{
    QString lines;
    QSet<QString> keys;
    for (const Entry &entry : std::as_const(m_written)) {
        const QString ownKey = findOutermostOwnKey(entry.key);
        if (ownKey.isEmpty())
            lines += u"["_s + entry.key + "]\r\n"_L1 + exportedName(entry.name) + "=-\r\n\r\n"_L1;
        else if (!keys.contains(ownKey))
            lines += u"[-"_s + ownKey + "]\r\n\r\n"_L1;
        keys.insert(ownKey);
    }
    if (!lines.isEmpty())
        importLines(m_folder, lines);
}

bool RegistryFixture::hasKey(const QString &key) const
{
    return runReg({u"query"_s, key}).exitCode == 0;
}

bool RegistryFixture::hasValue(const QString &key, const QString &name) const
{
    return runReg(name.isEmpty() ? QStringList{u"query"_s, key, u"/ve"_s}
                                 : QStringList{u"query"_s, key, u"/v"_s, name})
               .exitCode
        == 0;
}

QStringList RegistryFixture::exported(const QString &key) const
{
    const QString path = m_folder + "/export.reg"_L1;
    QFile::remove(path);
    if (runReg({u"export"_s, key, QDir::toNativeSeparators(path), u"/y"_s}).exitCode != 0)
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray data = file.readAll();
    QString text(reinterpret_cast<const QChar *>(data.constData()), data.size() / 2);
    text.remove("\\\r\n  "_L1); // a list of bytes on one line
    return text.split(u"\r\n"_s, Qt::SkipEmptyParts).mid(1);
}

#else

void RegistryFixture::write()
{
    for (const Entry &entry : std::as_const(m_pending)) {
        const qsizetype separator = entry.key.indexOf(u'\\');
        QString hive = entry.key.first(separator);
        QString path = entry.key.mid(separator + 1);
        if (hive == "HKEY_CLASSES_ROOT"_L1) {
            hive = u"HKEY_LOCAL_MACHINE"_s;
            path.prepend("Software\\Classes\\"_L1);
        }
        // One section per entry: several sections of one key are merged when they are read.
        QString text = u"\n["_s + keyInFile(path) + "] 1700000000\n"_L1;
        if (!entry.isKeyOnly)
            text += nameInFile(entry.name) + u'=' + entry.fileData + u'\n';
        QFile hiveFile(file(hive));
        if (!hiveFile.open(QIODevice::Append) || hiveFile.write(text.toUtf8()) < 0)
            qFatal("cannot write the registry of the test");
    }
    m_written += m_pending;
    m_pending.clear();
}

RegistryFixture::~RegistryFixture() = default;

QStringList RegistryFixture::exported(const QString &key) const
{
    const qsizetype separator = key.indexOf(u'\\');
    const bool isClass = key.startsWith("HKEY_CLASSES_ROOT"_L1);
    QString path = (isClass ? u"Software\\Classes\\"_s : QString()) + key.mid(separator + 1);
    QFile hiveFile(file(key.first(separator)));
    if (!hiveFile.open(QIODevice::ReadOnly))
        return {};
    path = keyInFile(path).toLower();
    QString text = QString::fromUtf8(hiveFile.readAll());
    text.remove("\\\n  "_L1); // a list of bytes on one line
    QStringList lines;
    bool isInside = false;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'[')) {
            const QString section = line.mid(1, line.lastIndexOf(u']') - 1);
            const QString folded = section.toLower();
            isInside = folded == path || folded.startsWith(path + "\\\\"_L1);
            if (isInside && !lines.contains(u'[' + section + u']'))
                lines.append(u'[' + section + u']');
        } else if (isInside && !line.startsWith(u'#')) {
            lines.append(line);
        }
    }
    return lines;
}

bool RegistryFixture::hasKey(const QString &key) const
{
    return !exported(key).isEmpty();
}

bool RegistryFixture::hasValue(const QString &key, const QString &name) const
{
    const QStringList lines = exported(key);
    // The lines of the key itself end where the next key begins.
    for (const QString &line : lines.mid(1)) {
        if (line.startsWith(u'['))
            break;
        if (line.startsWith(nameInFile(name) + u'='))
            return true;
    }
    return false;
}

#endif
