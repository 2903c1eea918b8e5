#pragma once

#include "largefileinfo.h"

#include <QList>
#include <QScrollArea>
#include <QTimer>

class FileCard;

/// A scrolling list of any number of file cards that never keeps the window waiting: cards are made
/// and deleted a few at a time while nothing else is to be done, and only those near the visible
/// part are built, placed and shown. A layout would measure all of them for each that comes.
class FileCardList final : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCardList)
public:
    explicit FileCardList(QWidget *parent = nullptr);
    ~FileCardList() override;

    /// Replaces all cards by one for each of @p files, in this order. The first screen is there at
    /// once.
    void setFiles(const QList<LargeFileInfo> &files);
    /// Takes a card out of the list; it is deleted later.
    void discard(FileCard *card);

    /// The cards made so far, from top to bottom.
    [[nodiscard]] const QList<FileCard *> &cards() const { return m_cards; }
    /// Whether there is neither a card nor a file that waits for one.
    [[nodiscard]] bool isEmpty() const { return m_cards.isEmpty() && !isFilling(); }
    [[nodiscard]] bool isFilling() const { return m_next < m_files.size(); }
    /// Whether cards that are no longer in the list wait for their end.
    [[nodiscard]] bool isDeleting() const { return !m_discarded.isEmpty(); }

Q_SIGNALS:
    void cardAdded(FileCard *card);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void work();
    void addCard();
    void updateHeight();
    void showNearest();

    QList<LargeFileInfo> m_files;
    qsizetype m_next = 0; ///< of the files, the first without a card
    QList<FileCard *> m_cards;
    QList<FileCard *> m_shown;
    QList<FileCard *> m_built; ///< shown or not; what was shown last comes last
    QList<FileCard *> m_discarded; ///< still to be deleted
    QTimer m_timer;
};
