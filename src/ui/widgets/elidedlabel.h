#pragma once

#include <QLabel>

/// A label for text of any length from outside the program. It shows a single line without control
/// characters, shortened in the middle to a given width. The tool tip and the accessible name have
/// the full line. GUI thread.
class ElidedLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ElidedLabel)
public:
    explicit ElidedLabel(const QString &fullText, QWidget *parent = nullptr);

    void setFullText(const QString &fullText);
    /// Adds @p remark to the tool tip, on a line of its own.
    void setRemark(const QString &remark);
    /// Shortens the text to @p width pixels.
    void elideTo(int width);

private:
    QString m_fullText;
};
