#pragma once

#include "drivecard.h"

#include <QList>
#include <QMap>
#include <QScrollArea>

class FileCardList;
class LargeFileModel;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

/// The first view of the large-file page: the choice of drives and of the minimum size.
/// LargeFilePage owns it and handles its controls. GUI thread.
class LargeFileSelectionView final : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileSelectionView)
public:
    /// The data of the "Custom..." item, in place of a size in bytes.
    static constexpr qint64 customItem = -1;
    static constexpr int defaultSizeIndex = 1;

    explicit LargeFileSelectionView(const QList<DriveInfo> &drives, QWidget *parent = nullptr);

    [[nodiscard]] const QList<DriveCard *> &driveCards() const { return m_driveCards; }
    /// The check boxes by root path of the drive.
    [[nodiscard]] const QMap<QString, QCheckBox *> &driveBoxes() const { return m_driveBoxes; }
    [[nodiscard]] QComboBox *sizeCombo() const { return m_sizeCombo; }
    [[nodiscard]] QPushButton *startButton() const { return m_startButton; }

private:
    [[nodiscard]] QLayout *buildDriveGrid(const QList<DriveInfo> &drives, QWidget *parent);
    [[nodiscard]] QLayout *buildSizeRow(QWidget *parent);

    QList<DriveCard *> m_driveCards;
    QMap<QString, QCheckBox *> m_driveBoxes;
    QComboBox *m_sizeCombo = nullptr;
    QPushButton *m_startButton = nullptr;
};

/// The second view: the files that were found, and the size of the selection. LargeFilePage owns
/// it. GUI thread.
class LargeFileResultsView final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LargeFileResultsView)
public:
    /// Shows the rows of @p model, which must outlive the view.
    explicit LargeFileResultsView(LargeFileModel *model, QWidget *parent = nullptr);

    void setSummary(qsizetype count, qint64 size);
    void setSelected(int count, qint64 size);

    [[nodiscard]] QPushButton *backButton() const { return m_backButton; }
    [[nodiscard]] QPushButton *deleteButton() const { return m_deleteButton; }
    [[nodiscard]] FileCardList *list() const { return m_list; }

private:
    QLabel *m_summary;
    QLabel *m_selected;
    QPushButton *m_backButton;
    QPushButton *m_deleteButton;
    FileCardList *m_list;
};
