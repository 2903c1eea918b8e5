// A library that tst_program puts before the system's own (LD_PRELOAD). In the first turn of the
// program's event loop it tells what the start has set up, in lines that begin with "probe".

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QMetaEnum>
#include <QMetaObject>
#include <QPushButton>
#include <QStringList>
#include <QWidget>

#include <cstdio>

namespace {

void tell(const char *what, const QString &value)
{
    std::fprintf(stderr, "probe %s: %s\n", what, qPrintable(value));
}

void tellAll()
{
    tell("application",
         QCoreApplication::organizationName() + u' ' + QCoreApplication::applicationName() + u' '
             + QCoreApplication::applicationVersion());
    const QFont font = QApplication::font();
    tell("font",
         QStringLiteral("%1, %2 points, weight %3, italic %4, antialiased %5")
             .arg(font.family(), QString::number(font.pointSizeF()), QString::number(font.weight()),
                  QString::number(font.italic()),
                  QString::number((font.styleStrategy() & QFont::PreferAntialias) != 0)));
    tell("rounding",
         QString::fromLatin1(QMetaEnum::fromType<Qt::HighDpiScaleFactorRoundingPolicy>().valueToKey(
             static_cast<int>(QGuiApplication::highDpiScaleFactorRoundingPolicy()))));
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        tell("window",
             QString::fromLatin1(window->metaObject()->className()) + u' ' + window->windowTitle());
        for (const QPushButton *button : window->findChildren<QPushButton *>()) {
            if (button->isVisible() && !button->text().isEmpty())
                tell("button", button->text().trimmed());
        }
    }
    tell("end", {});
}

void waitForTheEventLoop()
{
    QMetaObject::invokeMethod(qApp, tellAll, Qt::QueuedConnection);
}
Q_COREAPP_STARTUP_FUNCTION(waitForTheEventLoop)

} // namespace
