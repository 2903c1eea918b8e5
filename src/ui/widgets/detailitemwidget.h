#pragma once

#include <QWidget>

class ElidedLabel;
struct CleanItem;

/// One row of the detail dialog: a file's name, its size, and a button that shows where it lies.
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
    ElidedLabel *m_name;
};
