#pragma once

#include <QWidget>

class ElidedLabel;
struct CleanItem;

/// One row of the detail dialog: a file's name, its size, and a button that shows where it lies; of
/// a registry entry the name and what is wrong with it.
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
    ElidedLabel *m_description = nullptr; ///< of a registry entry
};
