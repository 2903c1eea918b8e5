#include "elidedlabel.h"

#include "text.h"
#include "tooltip.h"

namespace {

// The time to measure a text grows with its length. No screen shows more characters than this, so
// only both ends of a longer text are kept.
constexpr qsizetype maxMeasuredLength = 1024;

} // namespace

ElidedLabel::ElidedLabel(const QString &fullText, QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFullText(fullText);
}

void ElidedLabel::setFullText(const QString &fullText)
{
    m_fullText = singleLine(fullText);
    setAccessibleName(m_fullText);
    setToolTip(plainToolTip(m_fullText.left(maxMeasuredLength)));
    if (m_fullText.size() > maxMeasuredLength)
        m_fullText =
            m_fullText.left(maxMeasuredLength / 2) + u'…' + m_fullText.right(maxMeasuredLength / 2);
    setText(m_fullText);
}

void ElidedLabel::setRemark(const QString &remark)
{
    setToolTip(plainToolTip(accessibleName().left(maxMeasuredLength), remark));
}

void ElidedLabel::elideTo(int width)
{
    ensurePolished();
    setText(fontMetrics().elidedText(m_fullText, Qt::ElideMiddle, qMax(width, 0)));
}
