#pragma once

#include <QString>
#include <QStringList>

/// Collects the log messages of all threads as long as the object exists. Only one object may exist
/// at a time.
class LogCapture final
{
    Q_DISABLE_COPY_MOVE(LogCapture)
public:
    LogCapture();
    ~LogCapture();

    [[nodiscard]] QStringList lines() const;
    /// Whether any line contains @p text.
    [[nodiscard]] bool contains(const QString &text) const;
    [[nodiscard]] qsizetype count(const QString &text) const;
};
