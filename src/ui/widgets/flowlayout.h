#pragma once

#include <QLayout>
#include <QList>

#include <memory>
#include <vector>

/// Lays its items out in rows, like words in a text. An item that does not fit starts the next row.
/// GUI thread.
class FlowLayout final : public QLayout
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlowLayout)
public:
    explicit FlowLayout(QWidget *parent);
    ~FlowLayout() override;

    void setSpacing(int horizontal, int vertical);

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    [[nodiscard]] QLayoutItem *takeAt(int index) override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// The position of each item, and the height of all rows together.
    struct Places {
        QList<QRect> items;
        int height = 0;
    };
    [[nodiscard]] Places placesIn(const QRect &rect) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    int m_horizontal = 0;
    int m_vertical = 0;
};
