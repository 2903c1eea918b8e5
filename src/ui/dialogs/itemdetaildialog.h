#pragma once

#include "framelessdialog.h"

class QLabel;
class QScrollArea;
class QVBoxLayout;
struct CleanCategory;

/// Lists all items of a category in batches of fifty as the user scrolls. It only reads the
/// category, which outlives the dialog. GUI thread.
class ItemDetailDialog final : public FramelessDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ItemDetailDialog)
public:
    explicit ItemDetailDialog(const CleanCategory *category, QWidget *parent = nullptr);

    [[nodiscard]] qsizetype loadedCount() const { return m_loadedCount; }

public Q_SLOTS:
    void loadMoreItems();
    void onScrollChanged(int value);
    void onOpenLocation(const QString &path);

protected:
    [[nodiscard]] bool isDragArea(QPoint position) const override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *buildTitleBar();
    QWidget *buildColumnHeader();
    [[nodiscard]] bool hasFiles() const;
    void fillViewport();

    const CleanCategory *m_category;
    qsizetype m_loadedCount = 0;
    bool m_isLoading = false;
    QWidget *m_titleBar = nullptr;
    QScrollArea *m_scrollArea = nullptr;
    QVBoxLayout *m_rows = nullptr;
};
