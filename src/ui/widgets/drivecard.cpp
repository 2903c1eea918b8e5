#include "drivecard.h"

#include "drives.h"
#include "parts.h"
#include "scanresult.h"
#include "text.h"
#include "theme.h"
#include "tooltip.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSet>
#include <QStorageInfo>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int textWidth = 112; ///< pixels, of the card without border and margins

constexpr int nearlyFullPercent = 71; // percent; from here the bar has the warning colour
constexpr int fullPercent = 91;

QString shortName(const DriveInfo &drive)
{
    const QString name = singleLine(drive.name);
    const QString shown = name.size() > 10 ? name.left(8) + u"..."_s : name;
    return drive.isRemovable ? shown + u" 📱"_s : shown;
}

} // namespace

QList<DriveInfo> mountedDrives()
{
    QList<DriveInfo> drives;
    QSet<QString> roots; // a path counts once: an upper mount hides a lower one
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (!volume.isValid() || !volume.isReady() || volume.bytesTotal() == 0
            || roots.contains(volume.rootPath()))
            continue;
        roots.insert(volume.rootPath());
        drives.append({volume.rootPath(), volume.displayName(),
                       platform::driveKind(volume.rootPath()) != platform::DriveKind::Fixed,
                       volume.bytesTotal(), volume.bytesFree()});
    }
    return drives;
}

DriveCard::DriveCard(const DriveInfo &drive, QWidget *parent)
    : QFrame(parent)
    , m_checkBox(new QCheckBox(this))
{
    setObjectName("driveCard"_L1);
    setFixedSize(140, 110);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(theme::card({.objectName = objectName(), .borderWidth = 2}));
    setProperty("checkBox", QVariant::fromValue<QWidget *>(m_checkBox));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->addLayout(buildTopRow(drive));

    const DriveInfo namedDrive{drive.rootPath, drive.name.isEmpty() ? tr("Local Disk") : drive.name,
                               drive.isRemovable, drive.totalBytes, drive.freeBytes};
    auto *name = parts::label(shortName(namedDrive), theme::label(theme::muted, 12), this);
    name->setObjectName("driveName"_L1);
    const QString fullName =
        namedDrive.isRemovable ? tr("%1 (Removable)").arg(namedDrive.name) : namedDrive.name;
    name->setToolTip(plainToolTip(fullName));
    layout->addWidget(name);
    m_checkBox->setAccessibleName(
        tr("%1 %2").arg(singleLine(drive.rootPath), singleLine(fullName)));
    addUsage(namedDrive, layout);
}

QLayout *DriveCard::buildTopRow(const DriveInfo &drive)
{
    auto *row = new QHBoxLayout;
    row->addWidget(m_checkBox);
    row->addWidget(
        parts::label(drive.isRemovable ? u"🔌"_s : u"💾"_s, theme::uncolouredLabel(16), this));
    row->addWidget(parts::label(drive.rootPath.left(2), theme::label(theme::text, 14, 600), this));
    row->addStretch();
    return row;
}

void DriveCard::addUsage(const DriveInfo &drive, QLayout *layout)
{
    const qint64 used = drive.totalBytes - drive.freeBytes;
    auto *usage = parts::label(tr("%1/%2").arg(formatSize(used), formatSize(drive.totalBytes)),
                               theme::label(theme::faint, 11), this);
    usage->setObjectName("driveUsage"_L1);
    usage->ensurePolished();
    if (usage->sizeHint().width() > textWidth) // a drive above one terabyte has a long text
        usage->setStyleSheet(theme::label(theme::faint, 10));
    usage->setToolTip(usage->text());
    m_checkBox->setAccessibleDescription(usage->text());
    layout->addWidget(usage);
    if (drive.totalBytes <= 0)
        return;
    const int percent = static_cast<int>(used * 100 / drive.totalBytes);
    auto *bar = new QProgressBar(this);
    bar->setRange(0, 100);
    bar->setValue(percent);
    bar->setFixedHeight(4);
    bar->setTextVisible(false);
    bar->setAccessibleName(tr("Used: %1%").arg(percent));
    bar->setStyleSheet(theme::thinProgressBar(percent < nearlyFullPercent ? theme::accent
                                                  : percent < fullPercent ? theme::warning
                                                                          : theme::danger,
                                              2));
    layout->addWidget(bar);
}
