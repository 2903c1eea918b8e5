#pragma once

#include <QAbstractScrollArea>
#include <QList>

class FileCard;
class LargeFileModel;
class QKeyEvent;

/// Shows the rows of a model as cards. There are only as many cards as fit: they are bound to the
/// visible rows, and bound again when the list scrolls. The list scrolls by rows, so that any
/// number of rows can be reached. LargeFileResultsView owns it. GUI thread.
///
/// The list is one stop of the Tab key. The arrow keys and page keys move between rows. The focus
/// belongs to a row: when the row scrolls out of view, its card stays bound and keeps the focus.
class FileCardList final : public QAbstractScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCardList)
public:
    /// @p model must outlive the list.
    explicit FileCardList(LargeFileModel *model, QWidget *parent = nullptr);
    ~FileCardList() override;

    /// The cards of the visible rows, from top to bottom. The last one may be cut off.
    [[nodiscard]] QList<FileCard *> cards() const;
    /// The row of a card or of its check box; below 0 when it has none.
    [[nodiscard]] int rowOf(const QObject *cardOrCheckBox) const;
    /// The control that the Tab key focuses: the check box of the row that had the focus last, or
    /// of the first visible row. Null when there are no rows.
    [[nodiscard]] QWidget *tabStop() const;
    /// Scrolls until the whole row is visible.
    void scrollToRow(int row);
    /// Scrolls to the row and gives it the focus.
    void focusRow(int row, Qt::FocusReason reason);

Q_SIGNALS:
    /// A new card exists. The list keeps it for its lifetime.
    void cardCreated(FileCard *card);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// A card and the row that it shows.
    struct BoundCard {
        FileCard *card = nullptr;
        int row = -1; ///< -1 for a free card
    };

    void onFilesReplaced();
    void onRowsRemoved(const QList<int> &rows);
    void rebindCards(int top, int current);
    void updateRange();
    [[nodiscard]] int fullRowCount() const;
    [[nodiscard]] int rowCountInView() const;
    [[nodiscard]] int topRow() const;
    [[nodiscard]] bool isInView(int row) const;
    /// Binds cards to the visible rows and positions them.
    void arrangeCards();
    void placeCard(const BoundCard &bound);
    [[nodiscard]] BoundCard &takeFreeCard();
    [[nodiscard]] FileCard *cardOf(int row) const;
    void updateTabStop() const;
    /// Moves the focus from @p row when @p event is a navigation key. Returns whether it is one.
    bool moveByKey(int row, const QKeyEvent &event);

    LargeFileModel *m_model;
    QList<BoundCard> m_cards;
    int m_currentRow = 0; ///< the row that has the focus, or had it last
    bool m_isArranging = false;
};
