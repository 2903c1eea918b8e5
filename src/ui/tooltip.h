#pragma once

#include "text.h"

#include <QString>
#include <QTextDocument>

/// A tool tip that shows @p text as it is, on one line: a tool tip that looks like markup would be
/// taken for it.
[[nodiscard]] inline QString plainToolTip(const QString &text)
{
    const QString line = singleLine(text);
    return Qt::mightBeRichText(line) ? line.toHtmlEscaped() : line;
}

/// The same for what an item is and, on a line below, what else is to be said of it, if anything.
[[nodiscard]] inline QString plainToolTip(const QString &text, const QString &remark)
{
    return remark.isEmpty() ? plainToolTip(text)
                            : plainToolTip(text) + u'\n' + plainToolTip(remark);
}
