#pragma once

#include "text.h"

#include <QString>
#include <QTextDocument>

/// A tool tip that shows what an item is, on one line, and below it what else is to be said of it,
/// if anything, as these texts are: a tool tip that looks like markup would be taken for it.
[[nodiscard]] inline QString plainToolTip(const QString &text, const QString &remark = {})
{
    const QString tip =
        remark.isEmpty() ? singleLine(text) : singleLine(text) + u'\n' + singleLine(remark);
    return Qt::mightBeRichText(tip) ? tip.toHtmlEscaped().replace(u'\n', QLatin1StringView("<br>"))
                                    : tip;
}
