#include "language.h"

#include "appinfo.h"
#include "settingsguard.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QHash>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace language {

QString choose(const QString &stored, const QString &systemLocale)
{
    if (!stored.isEmpty()) {
        qDebug() << "[Main] Using user language:" << stored;
        return stored;
    }
    // Every Chinese locale asks for the one catalogue that is not there, and so gets the source
    // texts.
    const QHash<QString, QString> codes{
        {u"en"_s, u"en"_s}, {u"fr"_s, u"fr"_s},    {u"de"_s, u"de"_s}, {u"ja"_s, u"ja"_s},
        {u"es"_s, u"es"_s}, {u"ko"_s, u"ko"_s},    {u"nl"_s, u"nl"_s}, {u"pt"_s, u"pt"_s},
        {u"it"_s, u"it"_s}, {u"zh"_s, u"zh_TW"_s},
    };
    const QString system = systemLocale.left(2);
    qDebug() << "[Main] System language:" << system;
    const QString code = codes.value(system, u"en"_s);
    qDebug() << "[Main] Auto-detected:" << code;
    return code;
}

void install(QTranslator &translator)
{
    qDebug() << "========== Translation Init ==========";
    setAsideDamagedSettings(appinfo::name + ".conf"_L1);
    const QSettings store(appinfo::organisation, appinfo::name);
    const QString stored = store.value("language"_L1).toString();
    qDebug() << "[Main] Settings path:" << store.fileName();
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
