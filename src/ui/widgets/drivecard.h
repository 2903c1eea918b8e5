#pragma once

#include <QFrame>
#include <QList>
#include <QString>

class QCheckBox;

/// A mounted volume that can be scanned.
struct DriveInfo {
    QString rootPath; ///< such as "C:/"
    QString name; ///< for display
    bool isRemovable = false;
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;
};

/// The volumes that are mounted and hold anything, in the system's order.
[[nodiscard]] QList<DriveInfo> mountedDrives();

/// One volume with how full it is and a check box. Whoever shows it watches it for clicks.
class DriveCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DriveCard)
public:
    explicit DriveCard(const DriveInfo &drive, QWidget *parent = nullptr);

    [[nodiscard]] QCheckBox *checkBox() const { return m_checkBox; }

private:
    QLayout *buildTopRow(const DriveInfo &drive);
    void addUsage(const DriveInfo &drive, QLayout *layout);

    QCheckBox *m_checkBox;
};
