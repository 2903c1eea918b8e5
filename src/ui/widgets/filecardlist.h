#pragma once

#include <QAbstractScrollArea>
#include <QList>

class FileCard;
class LargeFileModel;
class QKeyEvent;

/// Shows the rows of a model as cards, of which there are only as many as have room: they are bound
/// to the rows in view, and bound anew as the list scrolls. It scrolls by rows, so that any number
/// of them can be reached.
///
/// The list is one stop of the tabulator key; the arrow and page keys lead from row to row. The
/// focus belongs to a row: its card keeps it, out of sight, while the list is scrolled elsewhere.
class FileCardList final : public QAbstractScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCardList)
public:
    /// @p model must outlive the list.
    explicit FileCardList(LargeFileModel *model, QWidget *parent = nullptr);
    ~FileCardList() override;

    /// Those with a row in view, from top to bottom; the last may be cut off.
    [[nodiscard]] QList<FileCard *> cards() const;
    /// The row that a card shows, or that has the card's check box; below 0 for none.
    [[nodiscard]] int rowOf(const QObject *cardOrCheckBox) const;
    /// What the tabulator key comes to: the check box of the row that had the focus last, or of the
    /// first one if that is not in view. Null without rows.
    [[nodiscard]] QWidget *tabStop() const;
    /// Scrolls as far as it takes to show the whole row.
    void scrollToRow(int row);
    /// Scrolls to the row and gives it the focus.
    void focusRow(int row, Qt::FocusReason reason);

Q_SIGNALS:
    /// One more card; it serves the list from now on.
    void cardCreated(FileCard *card);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct BoundCard {
        FileCard *card = nullptr;
        int row = -1; ///< -1 while it waits for one
    };

    void onFilesReplaced();
    void onRowsRemoved(const QList<int> &rows);
    void rebindCards(int top, int current);
    void updateRange();
    [[nodiscard]] int fullRowCount() const;
    [[nodiscard]] int rowCountInView() const;
    [[nodiscard]] int topRow() const;
    [[nodiscard]] bool isInView(int row) const;
    /// Binds the cards to the rows in view and puts them there.
    void arrangeCards();
    void placeCard(const BoundCard &bound);
    [[nodiscard]] BoundCard &takeFreeCard();
    [[nodiscard]] FileCard *cardOf(int row) const;
    void updateTabStop() const;
    /// Whether the key leads from the row to another one.
    bool moveByKey(int row, const QKeyEvent &event);

    LargeFileModel *m_model;
    QList<BoundCard> m_cards;
    int m_currentRow = 0; ///< the row that has the focus or had it last
    bool m_isArranging = false;
};
