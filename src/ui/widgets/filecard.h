#pragma once

#include "largefileinfo.h"

#include <QFrame>

class ElidedLabel;
class QCheckBox;
class QLabel;

/// A large file in the result list: check box, icon, name, folder and size. A few cards serve any
/// number of files: FileCardList owns the cards and binds them to the visible files. GUI thread.
class FileCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCard)
public:
    static constexpr int cardHeight = 70;

    explicit FileCard(QWidget *parent = nullptr);

    /// Shows @p info with its check state. The check box emits no signal.
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
