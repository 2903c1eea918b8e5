#include "language.h"

#include "appinfo.h"
#include "languages.h"
#include "options.h"
#include "settingsfile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

QString catalogueFor(const QString &language)
{
    // All Chinese locales get the code of a catalogue that does not exist, so the source texts are
    // shown.
    if (language == "zh"_L1)
        return u"zh_TW"_s;
    return languages::contains(language) ? language : u"en"_s;
}

} // namespace

namespace language {

QString choose(const QString &stored, const QString &systemLocale)
{
    if (!stored.isEmpty()) {
        qDebug() << "[Main] Using user language:" << stored;
        return stored;
    }
    const QString system = systemLocale.left(2);
    qDebug() << "[Main] System language:" << system;
    const QString code = catalogueFor(system);
    qDebug() << "[Main] Auto-detected:" << code;
    return code;
}

void install(QTranslator &translator)
{
    qDebug() << "========== Translation Init ==========";
    const std::unique_ptr<QSettings> store = settingsfile::openLanguage();
    const QString stored = store->value(options::language).toString();
    qDebug() << "[Main] Settings path:" << store->fileName();
    qDebug() << "[Main] User language from settings:" << stored;

    const QString code = choose(stored, QLocale::system().name());
    const QString path = u":/translations/Sweepwise_%1.qm"_s.arg(code);
    qDebug() << "[Main] Translation file:" << path;
    qDebug() << "[Main] File exists:" << QFile::exists(path);
    if (!translator.load(path))
        qDebug() << "[Main] ✗ Failed to load translation file:" << path;
    else if (QCoreApplication::installTranslator(&translator))
        qDebug() << "[Main] ✓ Translation loaded successfully:" << code;
    else
        qDebug() << "[Main] ✗ Failed to install translator";
    qDebug() << "=======================================";
}

} // namespace language
