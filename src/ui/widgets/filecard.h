#pragma once

#include "largefileinfo.h"

#include <QFrame>

class ElidedLabel;
class QCheckBox;
class QLabel;

/// One large file in the list of results: check box, icon, names and size. A handful of cards
/// serves any number of files: each is bound to one file after the other.
class FileCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCard)
public:
    static constexpr int cardHeight = 70;

    explicit FileCard(QWidget *parent = nullptr);

    /// Shows @p info from now on, ticked or not; the check box does not signal that.
    void bind(const LargeFileInfo &info, bool ticked);
    [[nodiscard]] const LargeFileInfo &info() const { return m_info; }
    [[nodiscard]] QCheckBox *checkBox() const { return m_checkBox; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void elideName();

    LargeFileInfo m_info;
    bool m_isHuge = false;
    QCheckBox *m_checkBox;
    QLabel *m_icon;
    ElidedLabel *m_name;
    QLabel *m_folder;
    QLabel *m_badge;
};
