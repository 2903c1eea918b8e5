#include "fuzzing.h"

#include "linkmanager.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

// A table of any content gives a link or none, and a language that it has.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const bool isReady = qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    static const bool isQuiet = [] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        return true;
    }();
    fuzzing::expect(isReady && isQuiet, "the process is set up");
    const QString path = folder.filePath(u"links.json"_s);
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    QFile file(path);
    fuzzing::expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                    "the file is written");
    file.close();
    const LinkManager manager(path, u"pt_BR"_s);
    (void)manager.getLink(u"help"_s, u"home"_s);
    (void)manager.getLink({}, {});
    const QStringList languages = manager.supportedLanguages();
    fuzzing::expect(languages.isEmpty() || !manager.currentLanguage().isEmpty(),
                    "a language is chosen");
    return 0;
}
