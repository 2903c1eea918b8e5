#pragma once

#include "text.h"

#include <QString>
#include <QTextDocument>

/// The tool tip of an item: @p text on one line and, below it, @p remark if there is one. Both are
/// shown without markup. The toolkit takes a tool tip that looks like markup for rich text, so such
/// a text is escaped.
[[nodiscard]] inline QString plainToolTip(const QString &text, const QString &remark = {})
{
    const QString tip =
        remark.isEmpty() ? singleLine(text) : singleLine(text) + u'\n' + singleLine(remark);
    return Qt::mightBeRichText(tip) ? tip.toHtmlEscaped().replace(u'\n', QLatin1StringView("<br>"))
                                    : tip;
}
