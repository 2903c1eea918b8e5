#pragma once

#include <QWidget>

class ElidedLabel;
struct CleanItem;

/// A row of the detail dialog. For a file: name, size, and a button that opens its folder. For a
/// registry entry: name and problem. ItemDetailDialog owns it. GUI thread.
class DetailItemWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DetailItemWidget)
public:
    DetailItemWidget(const CleanItem &item, bool striped, QWidget *parent = nullptr);

    [[nodiscard]] QString path() const { return m_path; }

Q_SIGNALS:
    void openLocationRequested(QString path);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QString m_path;
    void addFileColumns(const CleanItem &item);

    ElidedLabel *m_name;
    ElidedLabel *m_description = nullptr; ///< null for a file
};
