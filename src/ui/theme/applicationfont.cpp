#include "applicationfont.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>

using namespace Qt::StringLiterals;

namespace theme {

void installApplicationFont()
{
    QFont font(u"Segoe UI"_s, 10);
    font.setStyleStrategy(QFont::PreferAntialias);
    // Where the font is missing, the toolkit tries all fonts of the system for each emoji, in every
    // size that shows one, and takes a black and white one if it comes first.
    const QString emoji = u"Noto Color Emoji"_s;
    const QString standIn = QFontInfo(font).family();
    if (standIn != font.family() && QFontDatabase::hasFamily(emoji))
        QFont::insertSubstitutions(font.family(), {standIn, emoji});
    QApplication::setFont(font);
}

} // namespace theme
