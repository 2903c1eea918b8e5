#pragma once

#include "resultwidget.h"

#include <QList>
#include <QPointer>

class CleanItemWidget;
class ItemDetailDialog;
class QCheckBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// One category of a scan result: a header with a tri-state check box and, when expanded, its items
/// in pages of ten. The list of the page owns it. GUI thread.
///
/// Bound to a record inside the result of the engine. The record outlives the widget, and the check
/// states are written into it.
class CategoryWidget final : public ResultWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CategoryWidget)
public:
    explicit CategoryWidget(CleanCategory *category, QWidget *parent = nullptr);
    ~CategoryWidget() override;

    void setShowSizes(bool show) override;
    /// Checks or unchecks the category with all its items.
    void setChecked(bool checked);

    [[nodiscard]] QList<QWidget *> focusChain() const override;
    [[nodiscard]] Selection selection() const override { return m_selection; }

public Q_SLOTS:
    /// Opens the dialog that lists all items of the category.
    void showDetails();

Q_SIGNALS:
    void expandedChanged(bool expanded);

protected:
    void showExpanded(bool expanded) override;

private:
    void buildHeader();
    void loadMore();
    void showRemaining();
    void onItemCheckChanged();
    void refreshHeader();
    void showSelection();
    void orderFocus() const;

    CleanCategory *m_category;
    Selection m_selection; ///< as in the header; there may be a million items to look at
    qsizetype m_loadedCount = 0;
    bool m_showSizes = true;
    QWidget *m_header;
    QWidget *m_content;
    QVBoxLayout *m_contentLayout;
    QLabel *m_name = nullptr;
    QPushButton *m_count = nullptr;
    QLabel *m_size = nullptr;
    QCheckBox *m_checkBox = nullptr;
    QPushButton *m_expandButton = nullptr;
    QPushButton *m_loadMoreButton = nullptr;
    QList<CleanItemWidget *> m_itemWidgets;
    QPointer<ItemDetailDialog> m_details;
};
