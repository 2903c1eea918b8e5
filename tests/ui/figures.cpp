#include "figures.h"

#include "navbutton.h"
#include "styletemplate.h"
#include "svgicon.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QDirIterator>
#include <QFile>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QRegularExpression>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->title();
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    const auto *entry = qobject_cast<const NavButton *>(widget);
    return entry ? entry->text() : QString();
}

bool isMeant(const QWidget *widget, const QString &step)
{
    const QString rest = step.mid(1);
    switch (step.at(0).unicode()) {
    case u'#':
        return widget->objectName() == rest;
    case u'.':
        return widget->inherits(rest.toLatin1().constData());
    default:
        return textOf(widget) == rest;
    }
}

QWidget *find(QWidget *window, const QString &path)
{
    QWidget *widget = window;
    for (QString step : path.split(u" > "_s, Qt::SkipEmptyParts)) {
        if (step == ".."_L1 && widget->parentWidget()) {
            widget = widget->parentWidget();
            continue;
        }
        int number = 0;
        static const QRegularExpression numbered(u"@(\\d+)$"_s);
        if (const auto match = numbered.match(step); match.hasMatch()) {
            number = match.captured(1).toInt();
            step.chop(match.capturedLength());
        }
        QWidget *next = nullptr;
        for (QWidget *candidate : widget->findChildren<QWidget *>()) {
            if (isMeant(candidate, step) && number-- == 0) {
                next = candidate;
                break;
            }
        }
        if (!next)
            return nullptr;
        widget = next;
    }
    return widget;
}

QLayout *layoutWith(QLayout *layout, const QWidget *widget)
{
    if (!layout || layout->indexOf(widget) >= 0)
        return layout;
    for (int i = 0; i < layout->count(); ++i) {
        if (QLayout *inner = layout->itemAt(i)->layout()) {
            if (QLayout *found = layoutWith(inner, widget); found && found->indexOf(widget) >= 0)
                return found;
        }
    }
    return nullptr;
}

QString sizeText(QSize size)
{
    return u"%1 x %2"_s.arg(size.width()).arg(size.height());
}

QString marginText(const QLayout *layout)
{
    const QMargins margins = layout->contentsMargins();
    return u"%1 %2 %3 %4"_s.arg(margins.left())
        .arg(margins.top())
        .arg(margins.right())
        .arg(margins.bottom());
}

enum class Spaces { Named, LeftOut };

QString widgetText(const QWidget *widget)
{
    const QString text = textOf(widget).section(u'\n', 0, 0);
    if (!text.isEmpty())
        return text;
    return widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className())
                                          : u'#' + widget->objectName();
}

QString spaceText(QSpacerItem &space, int stretch)
{
    if (stretch > 0 || space.expandingDirections() != Qt::Orientations())
        return u"stretch"_s;
    return QString::number(qMax(space.sizeHint().width(), space.sizeHint().height()));
}

// "Settings | (About | stretch | Cancel)": the texts or names in a layout, inner layouts in
// brackets.
QString orderText(const QLayout *layout, Spaces spaces)
{
    const auto *box = qobject_cast<const QBoxLayout *>(layout);
    QStringList parts;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget())
            parts.append(widgetText(item->widget()));
        else if (item->layout())
            parts.append(u'(' + orderText(item->layout(), spaces) + u')');
        else if (item->spacerItem() && spaces == Spaces::Named)
            parts.append(spaceText(*item->spacerItem(), box ? box->stretch(i) : 0));
    }
    return parts.join(u" | "_s);
}

QString alignmentText(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignHCenter)
        return u"centre"_s;
    if (alignment & Qt::AlignRight)
        return u"right"_s;
    return alignment & Qt::AlignLeft ? u"left"_s : u"any"_s;
}

QString placeText(const QLayout *layout, const QWidget *widget)
{
    return alignmentText(layout->itemAt(layout->indexOf(widget))->alignment());
}

QString plain(const QString &style)
{
    static const QRegularExpression white(u"\\bwhite\\b"_s);
    return style.toLower().replace(white, u"#ffffff"_s).simplified();
}

using Declarations = QHash<QString, QString>;

Declarations declarations(const QString &block)
{
    Declarations found;
    for (const QString &line : plain(block).split(u';', Qt::SkipEmptyParts)) {
        if (line.contains(u':'))
            found.insert(line.section(u':', 0, 0).trimmed(), line.section(u':', 1).trimmed());
    }
    return found;
}

// What a style sheet declares for a selector. A later rule wins.
Declarations declarationsFor(const QString &style, const QString &selector)
{
    if (selector.isEmpty())
        return style.contains(u'{') ? Declarations() : declarations(style);
    static const QRegularExpression rule(u"([^{}]+)\\{([^{}]*)\\}"_s);
    Declarations found;
    auto rules = rule.globalMatch(style);
    while (rules.hasNext()) {
        const auto match = rules.next();
        bool isMeant = false;
        for (const QString &one : match.captured(1).split(u','))
            isMeant |= one.simplified() == selector;
        if (isMeant)
            found.insert(declarations(match.captured(2)));
    }
    return found;
}

// The declarations that are expected, as the widget has them.
QString styleText(const QWidget *widget, const QString &selector, const QString &expected)
{
    const Declarations has = declarationsFor(widget->styleSheet(), selector);
    QStringList found;
    for (const QString &line : expected.split(u';', Qt::SkipEmptyParts)) {
        const QString name = plain(line).section(u':', 0, 0).trimmed();
        found.append(name + u": "_s + has.value(name, u"nothing"_s));
    }
    return found.join(u"; "_s);
}

QString plainDeclarations(const QString &block)
{
    QStringList list;
    for (const QString &line : plain(block).split(u';', Qt::SkipEmptyParts))
        list.append(line.section(u':', 0, 0).trimmed() + u": "_s + line.section(u':', 1).trimmed());
    return list.join(u"; "_s);
}

QImage shape(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_Alpha8);
}

// The icon of which the picture has the shape, in any colour.
QString pictureText(const QWidget *widget, const QString &expected)
{
    QPixmap pixmap;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        pixmap = label->pixmap();
    else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        pixmap = button->icon().pixmap(button->iconSize(), widget->devicePixelRatioF());
    if (pixmap.isNull())
        return u"nothing"_s;
    const auto isShown = [&](const QString &name) {
        const QSize size = pixmap.deviceIndependentSize().toSize();
        return shape(svgPixmap(u":/icons/"_s + name, size, pixmap.devicePixelRatio()))
            == shape(pixmap);
    };
    if (isShown(expected))
        return expected;
    QDirIterator names(u":/icons"_s, {u"*.svg"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (names.hasNext()) {
        const QString name = names.next().mid(8);
        if (isShown(name))
            return name;
    }
    return u"something else"_s;
}

QString cursorText(const QWidget *widget)
{
    return widget->cursor().shape() == Qt::PointingHandCursor ? u"hand"_s : u"usual"_s;
}

QString stateText(const QWidget *widget)
{
    QStringList words;
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget);
        button && button->isCheckable())
        words.append(button->isChecked() ? u"checked"_s : u"unchecked"_s);
    words.append(widget->isEnabled() ? u"enabled"_s : u"disabled"_s);
    words.append(widget->isHidden() ? u"hidden"_s : u"shown"_s);
    return words.join(u' ');
}

QString rangeText(const QWidget *widget)
{
    return u"%1 to %2"_s.arg(widget->property("minimum").toInt())
        .arg(widget->property("maximum").toInt());
}

QString fontText(const QWidget *widget)
{
    return u"%1px %2"_s.arg(widget->font().pixelSize()).arg(widget->font().weight());
}

QString colourText(const QWidget *widget, QPalette::ColorRole role)
{
    const QColor colour = widget->palette().color(role);
    return colour.name(colour.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

using Reader = std::function<QString(const QWidget *)>;

const QHash<QString, Reader> &readers()
{
    static const QHash<QString, Reader> all{
        {u"text"_s, textOf},
        {u"title"_s, [](const QWidget *widget) { return widget->windowTitle(); }},
        {u"tip"_s, [](const QWidget *widget) { return widget->toolTip(); }},
        {u"placeholder"_s,
         [](const QWidget *widget) { return widget->property("placeholderText").toString(); }},
        {u"cursor"_s, cursorText},
        {u"state"_s, stateText},
        {u"range"_s, rangeText},
        {u"value"_s, [](const QWidget *widget) { return widget->property("value").toString(); }},
        {u"text on bar"_s,
         [](const QWidget *widget) {
             return widget->property("textVisible").toBool() ? u"shown"_s : u"hidden"_s;
         }},
        {u"lines"_s,
         [](const QWidget *widget) {
             return widget->property("wordWrap").toBool() ? u"many"_s : u"one"_s;
         }},
        {u"text at"_s,
         [](const QWidget *widget) {
             return alignmentText(Qt::Alignment(widget->property("alignment").toInt()));
         }},
        {u"size"_s,
         [](const QWidget *widget) {
             return widget->minimumSize() == widget->maximumSize() ? sizeText(widget->maximumSize())
                                                                   : u"not fixed"_s;
         }},
        {u"width"_s,
         [](const QWidget *widget) {
             return widget->minimumWidth() == widget->maximumWidth()
                 ? QString::number(widget->maximumWidth())
                 : u"not fixed"_s;
         }},
        {u"height"_s,
         [](const QWidget *widget) {
             return widget->minimumHeight() == widget->maximumHeight()
                 ? QString::number(widget->maximumHeight())
                 : u"not fixed"_s;
         }},
        {u"now"_s, [](const QWidget *widget) { return sizeText(widget->size()); }},
        {u"least"_s, [](const QWidget *widget) { return sizeText(widget->minimumSize()); }},
        {u"font"_s, fontText},
        {u"colour"_s,
         [](const QWidget *widget) { return colourText(widget, widget->foregroundRole()); }},
        {u"background"_s,
         [](const QWidget *widget) { return colourText(widget, widget->backgroundRole()); }},
    };
    return all;
}

using LayoutReader = std::function<QString(const QLayout *)>;

const QHash<QString, LayoutReader> &layoutReaders()
{
    static const QHash<QString, LayoutReader> all{
        {u"margins"_s, marginText},
        {u"spacing"_s, [](const QLayout *layout) { return QString::number(layout->spacing()); }},
        {u"order"_s, [](const QLayout *layout) { return orderText(layout, Spaces::Named); }},
        {u"widgets"_s, [](const QLayout *layout) { return orderText(layout, Spaces::LeftOut); }},
        {u"content at"_s, [](const QLayout *layout) { return alignmentText(layout->alignment()); }},
    };
    return all;
}

QString found(QWidget *widget, const QString &property, const QString &expected)
{
    widget->ensurePolished();
    if (readers().contains(property))
        return readers().value(property)(widget);
    if (property == "picture"_L1)
        return pictureText(widget, expected);
    if (property.startsWith("style"_L1))
        return styleText(widget, property.mid(6), expected);
    const bool isRow = property.startsWith("row "_L1);
    const bool isOfParent = isRow || property == "place"_L1;
    QLayout *layout = widget->layout();
    if (isOfParent)
        layout =
            widget->parentWidget() ? layoutWith(widget->parentWidget()->layout(), widget) : nullptr;
    if (!layout)
        return u"no layout"_s;
    if (property == "place"_L1)
        return placeText(layout, widget);
    const QString name = isRow ? property.mid(4) : property;
    if (!layoutReaders().contains(name))
        qFatal("no such property: %s", qPrintable(property));
    return layoutReaders().value(name)(layout);
}

} // namespace

QStringList differences(QWidget &window, const Figures &figures)
{
    QStringList list;
    for (const Figure &figure : figures) {
        const QString path = QString::fromUtf8(figure.widget);
        const QString property = QString::fromUtf8(figure.property);
        QString expected = QString::fromUtf8(figure.expected);
        QWidget *widget = find(&window, path);
        const QString actual = widget ? found(widget, property, expected) : u"no such widget"_s;
        if (property.startsWith("style"_L1))
            expected = plainDeclarations(expected);
        if (actual != expected)
            list.append(u"%1 %2: '%3', expected '%4'"_s.arg(path, property, actual, expected));
    }
    return list;
}

StyledParent::StyledParent()
{
    QFile file(u":/styles/style.qss"_s);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("no style sheet");
    setStyleSheet(theme::fill(QString::fromUtf8(file.readAll())));
    resize(970, 670);
}
