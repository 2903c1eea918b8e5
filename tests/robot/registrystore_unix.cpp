#include "registrystore.h"

#include "actionlog.h"
#include "registryfixture.h"

#include <QFile>
#include <QStringList>

#include <cctype>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString machine = u"HKEY_LOCAL_MACHINE"_s;
const QString user = u"HKEY_CURRENT_USER"_s;

/// Decodes a text of a registry file: "\n", "\xe9" and so on stand for one character each.
QString decoded(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'\\' || ++i >= text.size()) {
            plain += text.at(i);
        } else if (text.at(i) == u'n') {
            plain += u'\n';
        } else if (text.at(i) == u'x') {
            qsizetype end = i + 1;
            while (end < text.size() && end < i + 5 && std::isxdigit(text.at(end).toLatin1()))
                ++end;
            plain += QChar(text.sliced(i + 1, end - i - 1).toUShort(nullptr, 16));
            i = end - 1;
        } else {
            plain += text.at(i);
        }
    }
    return plain;
}

} // namespace

/// The store on Linux: the registry files of a Wine prefix.
class RegistryStore::Private
{
public:
    explicit Private(const TestHome &home)
        : fixture(home)
    {
    }

    void readHive(const QString &hive);

    RegistryFixture fixture;
    RegistryState state;
    /// Inode, size and time of the files when the state was read; the state is read again only
    /// after a change.
    QString stamp;
};

RegistryStore::RegistryStore(const TestHome &home)
    : d(std::make_unique<Private>(home))
{
}

RegistryStore::~RegistryStore() = default;

void RegistryStore::add(const QString &hive, const QString &key, const QString &name,
                        const QString &text)
{
    d->fixture.addText(hive + u'\\' + key, name, text);
}

void RegistryStore::write()
{
    d->fixture.write();
}

const RegistryState &RegistryStore::state() const
{
    QString stamp;
    for (const QString &hive : {machine, user}) {
        struct stat data {
        };
        ::stat(QFile::encodeName(d->fixture.file(hive)).constData(), &data);
        stamp += u"%1 %2 %3.%4 "_s.arg(QString::number(data.st_ino), QString::number(data.st_size),
                                       QString::number(data.st_mtim.tv_sec),
                                       QString::number(data.st_mtim.tv_nsec));
    }
    if (stamp != d->stamp) {
        d->state.clear();
        d->readHive(machine);
        d->readHive(user);
        d->stamp = stamp;
    }
    return d->state;
}

void RegistryStore::Private::readHive(const QString &hive)
{
    QFile file(fixture.file(hive));
    expect(file.open(QIODevice::ReadOnly), [&] { return file.errorString(); });
    QMap<QString, QString> *values = nullptr;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(u'[')) {
            const QString key =
                folded(hive, decoded(QStringView(line).mid(1, line.lastIndexOf(u']') - 1)));
            // A key may exist only through the keys below it: the file need not name it.
            for (qsizetype end = key.indexOf(u'\\'); end > 0; end = key.indexOf(u'\\', end + 1))
                state[key.first(end)];
            values = &state[key];
        }
        if (!values || !(line.startsWith(u'"') || line.startsWith(u'@')))
            continue;
        // The name ends at the first quote without a backslash before it.
        qsizetype end = 1;
        while (line.startsWith(u'"') && line.at(end) != u'"')
            end += line.at(end) == u'\\' ? 2 : 1;
        const QStringView name = QStringView(line).mid(1, end - 1);
        values->insert(decoded(name).toLower(), line.mid(line.indexOf(u'=', end) + 1));
    }
}

QString RegistryStore::textOf(const QString &data)
{
    return decoded(QStringView(data).mid(1, data.size() - 2));
}

QString RegistryStore::folded(const QString &hive, const QString &key)
{
    return (hive == user ? u"hkcu\\"_s : u"hklm\\"_s) + key.toLower();
}
