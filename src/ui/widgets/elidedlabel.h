#pragma once

#include <QLabel>

/// A label for outside text of any length: shows one harmless line of it, shortened in the middle
/// to a given width. The whole line is its tool tip and its accessible name.
class ElidedLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ElidedLabel)
public:
    explicit ElidedLabel(const QString &fullText, QWidget *parent = nullptr);

    void setFullText(const QString &fullText);
    /// What else the tool tip says, on a line of its own.
    void setRemark(const QString &remark);
    /// Shortens the text to @p width pixels.
    void elideTo(int width);

private:
    QString m_fullText;
};
