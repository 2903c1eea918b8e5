#include "eyes.h"

#include "actionlog.h"
#include "text.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace eyes {

namespace {

/// The row that contains @p position; null where there is none.
QWidget *rowAt(QWidget *window, QPoint position, const QWidget *viewport,
               const QList<QString> &names)
{
    QWidget *widget = topmostAt(window, position);
    while (widget && widget != viewport) {
        if (names.contains(widget->objectName()))
            return widget;
        widget = widget->parentWidget();
    }
    return nullptr;
}

} // namespace

QRect visibleRect(const QWidget *widget)
{
    if (!widget->isVisible())
        return {};
    QRect rect = widget->rect();
    while (!widget->isWindow()) {
        rect.translate(widget->pos());
        widget = widget->parentWidget();
        rect &= widget->rect();
    }
    return rect;
}

QWidget *topmostAt(QWidget *window, QPoint position)
{
    QWidget *child = window->childAt(position);
    return child ? child : window;
}

bool isDrawn(const QWidget *widget)
{
    const QRect rect = visibleRect(widget);
    if (rect.isEmpty())
        return false;
    const QWidget *top = topmostAt(widget->window(), rect.center());
    expect(top == widget || widget->isAncestorOf(top),
           [&] { return u"%1 lies over %2"_s.arg(describe(top), describe(widget)); });
    return true;
}

std::optional<QString> drawnText(const QWidget *row, const QString &name)
{
    const auto *widget = row->findChild<QWidget *>(name);
    if (!widget || !isDrawn(widget))
        return std::nullopt;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button ? std::optional(button->text()) : std::nullopt;
}

bool isShortenedText(const QString &drawn, const QString &full)
{
    const QString line = singleLine(full);
    if (drawn == line)
        return true;
    for (const QString &gap : {u"…"_s, u"..."_s}) {
        const qsizetype first = drawn.indexOf(gap);
        const qsizetype last = drawn.lastIndexOf(gap);
        if (first >= 0 && drawn.size() <= line.size()
            && line.startsWith(QStringView(drawn).first(first))
            && line.endsWith(QStringView(drawn).mid(last + gap.size())))
            return true;
    }
    return false;
}

QList<QWidget *> findRows(const QAbstractScrollArea *area, int x, const QList<QString> &names)
{
    QList<QWidget *> rows;
    const QWidget *viewport = area->viewport();
    QWidget *window = area->window();
    const QRect visible = visibleRect(viewport);
    int y = visible.top();
    while (y <= visible.bottom()) {
        QWidget *row = rowAt(window, {visible.left() + x, y}, viewport, names);
        if (!row) {
            y += 2;
            continue;
        }
        const QRect rect = visibleRect(row);
        // Between two rows the search goes on in steps of two: a row may begin one pixel earlier.
        expect(rect.top() >= y - 1,
               [&] { return u"%1 goes on below what lies over it"_s.arg(describe(row)); });
        expect(!rows.contains(row), [&] { return u"%1 is drawn twice"_s.arg(describe(row)); });
        const QWidget *end = rowAt(window, {visible.left() + x, rect.bottom()}, viewport, names);
        expect(end == row, [&] {
            return u"%1 lies over the end of %2"_s.arg(end ? describe(end) : u"nothing"_s,
                                                       describe(row));
        });
        rows.append(row);
        y = rect.bottom() + 1;
    }
    return rows;
}

QAbstractScrollArea *scrollAreaAround(QWidget *widget)
{
    while (widget && !widget->isWindow()) {
        widget = widget->parentWidget();
        if (auto *area = qobject_cast<QAbstractScrollArea *>(widget);
            area && !area->inherits("QComboBoxListView"))
            return area;
    }
    return nullptr;
}

QString describe(const QWidget *widget)
{
    if (!widget)
        return u"nothing"_s;
    QString text = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        text += u" '%1'"_s.arg(widget->objectName());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        text += u" \"%1\""_s.arg(button->text().isEmpty() ? button->accessibleName().left(40)
                                                          : button->text());
    else if (const auto *label = qobject_cast<const QLabel *>(widget))
        text += u" \"%1\""_s.arg(label->text().left(40));
    else if (const QVariant path = widget->property("filePath"); path.isValid())
        text += u" of %1"_s.arg(path.toString().section(u'/', -1));
    return singleLine(text);
}

} // namespace eyes
