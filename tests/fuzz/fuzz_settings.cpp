#include "fuzzing.h"

#include "options.h"
#include "settingsfile.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

// Settings of any content can be read, and what is switched is kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    static const bool isReady = qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    static const QString path = [] {
        QStringList problems;
        return settingsfile::openOptions(problems)->fileName();
    }();
    fuzzing::expect(isReady && path.startsWith(folder.path()), "the settings are in the folder");
    const std::uint8_t choice = fuzzing::takeByte(data, size);
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    QFile file(path);
    fuzzing::expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                    "the file is written");
    file.close();
    QStringList problems;
    const std::unique_ptr<QSettings> settings = settingsfile::openOptions(problems);
    unsigned bit = 1;
    for (const options::Option &option : {options::autoStart, options::minimizeToTray,
                                          options::confirmClean, options::backupRegistry}) {
        (void)options::isOn(*settings, option);
        options::set(*settings, option, (choice & bit) != 0);
        fuzzing::expect(options::isOn(*settings, option) == ((choice & bit) != 0),
                        "what is set is read");
        bit <<= 1U;
    }
    fuzzing::expect(options::save(*settings), "the settings are saved");
    return 0;
}
