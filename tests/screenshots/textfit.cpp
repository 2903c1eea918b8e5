#include "textfit.h"

#include "elidedlabel.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString describe(const QWidget *widget, const QString &text, const QString &complaint)
{
    QString line = u"%1 %2: %3"_s.arg(QLatin1StringView(widget->metaObject()->className()),
                                      widget->objectName(), complaint);
    return line + ": \""_L1 + QString(text).replace(u'\n', u' ') + u'"';
}

QString sizeText(QSize needed, QSize given)
{
    return u"needs %1 x %2, has %3 x %4"_s.arg(
        QString::number(needed.width()), QString::number(needed.height()),
        QString::number(given.width()), QString::number(given.height()));
}

bool fits(QSize needed, QSize given)
{
    return needed.width() <= given.width() && needed.height() <= given.height();
}

/// The size of the text without any line breaks but its own.
QSize textSize(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

/// The width of the longest word of a label with word wrap. Chinese and Japanese texts break
/// anywhere. 0 for rich text, whose words are not known.
int longestWord(const QLabel *label)
{
    if (label->textFormat() == Qt::RichText || Qt::mightBeRichText(label->text()))
        return 0;
    static const QRegularExpression breaks(u"[\\s-]|[\\p{Han}\\p{Hiragana}\\p{Katakana}ー]"_s);
    int width = 0;
    const QStringList words = label->text().split(breaks);
    for (const QString &word : words)
        width = qMax(width, label->fontMetrics().horizontalAdvance(word));
    return width;
}

/// Complains when a label has less room for its text than the text needs.
QStringList checkLabel(const QLabel *label)
{
    if (label->text().isEmpty() || qobject_cast<const ElidedLabel *>(label))
        return {};
    const QSize hint = label->sizeHint();
    QSize needed = hint;
    if (label->wordWrap())
        needed = {longestWord(label), label->heightForWidth(label->width())};
    // A label of fixed size has no room to grow: its text may use the margins.
    if (label->minimumSize() == label->maximumSize())
        needed = label->fontMetrics().size(0, label->text());
    if (fits(needed, label->size()))
        return {};
    return {describe(label, label->text(), sizeText(needed, label->size()))};
}

QStringList checkButton(const QAbstractButton *button, QStyle::SubElement contents)
{
    if (button->text().isEmpty())
        return {};
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    const QSize given = button->style()->subElementRect(contents, &option, button).size();
    QSize needed = textSize(button, button->text());
    if (!button->icon().isNull())
        needed.rwidth() += button->iconSize().width() + 4;
    // Emoji are higher than the line, which does not matter.
    needed.setHeight(button->fontMetrics().height());
    if (fits(needed, given))
        return {};
    return {describe(button, button->text(), sizeText(needed, given))};
}

QStringList checkCombo(const QComboBox *combo)
{
    QStyleOptionComboBox option;
    option.initFrom(combo);
    option.editable = combo->isEditable();
    const QRect field = combo->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                       QStyle::SC_ComboBoxEditField, combo);
    QStringList complaints;
    for (int i = 0; i < combo->count(); ++i) {
        if (const QSize needed = textSize(combo, combo->itemText(i));
            needed.width() > field.width())
            complaints.append(describe(combo, combo->itemText(i), sizeText(needed, field.size())));
    }
    return complaints;
}

QStringList checkOne(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return checkLabel(label);
    if (const auto *box = qobject_cast<const QCheckBox *>(widget))
        return checkButton(box, QStyle::SE_CheckBoxContents);
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return checkButton(button, QStyle::SE_PushButtonContents);
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return checkCombo(combo);
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        const QSize needed = textSize(group, group->title());
        if (needed.width() + 24 > group->width())
            return {describe(group, group->title(), sizeText(needed, group->size()))};
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        const QString text = edit->placeholderText();
        const QSize needed = textSize(edit, text);
        QStyleOptionFrame option;
        option.initFrom(edit);
        const QSize given =
            edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit).size();
        if (needed.width() > given.width())
            return {describe(edit, text, sizeText(needed, given))};
    }
    return {};
}

/// Whether the text has letters or digits. Symbols without them may overlap.
bool hasLetters(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

bool hasText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return hasLetters(label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty() || !button->icon().isNull();
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget);
}

bool isScrolled(const QWidget *widget)
{
    const auto *area = widget->parentWidget()
        ? qobject_cast<const QAbstractScrollArea *>(widget->parentWidget()->parentWidget())
        : nullptr;
    return area && area->viewport() == widget->parentWidget();
}

/// Whether the children of one parent lie within it and beside one another.
QStringList checkChildren(const QWidget *parent)
{
    QStringList complaints;
    QList<const QWidget *> texts;
    const auto children = parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (!child->isVisible() || child->isWindow())
            continue;
        const QRect rect = child->geometry();
        const bool isOutside = isScrolled(child) ? rect.right() > parent->rect().right()
                                                 : !parent->rect().contains(rect);
        if (isOutside && (hasText(child) || isScrolled(child))
            && !qobject_cast<const QAbstractScrollArea *>(parent))
            complaints.append(describe(child, {}, u"reaches beyond its parent"_s));
        if (!hasText(child))
            continue;
        for (const QWidget *other : std::as_const(texts)) {
            if (other->geometry().intersects(rect))
                complaints.append(
                    describe(child, {}, u"lies on %1"_s.arg(describe(other, {}, QString()))));
        }
        texts.append(child);
    }
    return complaints;
}

} // namespace

QStringList unreadableTexts(const QWidget *window)
{
    QStringList complaints;
    QList<const QWidget *> pending{window};
    while (!pending.isEmpty()) {
        const QWidget *widget = pending.takeLast();
        complaints += checkOne(widget);
        complaints += checkChildren(widget);
        const auto children = widget->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (const QWidget *child : children) {
            if (child->isVisible() && !child->isWindow())
                pending.append(child);
        }
    }
    return complaints;
}
