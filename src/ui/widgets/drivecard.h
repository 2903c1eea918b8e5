#pragma once

#include <QFrame>
#include <QList>
#include <QString>

class QCheckBox;

/// A mounted volume that can be scanned. Sizes are in bytes.
struct DriveInfo {
    QString rootPath; ///< such as "C:/"
    QString name; ///< the name to show
    bool isRemovable = false;
    qint64 totalBytes = 0;
    qint64 freeBytes = 0;
};

/// The mounted volumes with a size above 0, in the order of the system.
[[nodiscard]] QList<DriveInfo> mountedDrives();

/// A card with the name, the usage and a check box of a volume. LargeFileSelectionView owns it, and
/// LargeFilePage filters its clicks. GUI thread.
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
