#pragma once

#include "largefileinfo.h"

#include <QFrame>

class ElidedLabel;
class QCheckBox;
class QHBoxLayout;
class QLabel;

/// One large file in the list of results: a check box and, while it is built, icon, names and size.
///
/// A list may hold tens of thousands of cards of which a screen shows ten. So a card starts as its
/// check box alone, and the list has the rest built when the card comes into view.
class FileCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FileCard)
public:
    static constexpr int cardHeight = 70;

    explicit FileCard(const LargeFileInfo &info, QWidget *parent = nullptr);

    [[nodiscard]] QCheckBox *checkBox() const { return m_checkBox; }
    [[nodiscard]] const LargeFileInfo &info() const { return m_info; }
    /// Builds or drops everything but the check box.
    void setBuilt(bool on);
    [[nodiscard]] bool isBuilt() const { return m_content; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] QWidget *buildContent();
    void elideName();

    const LargeFileInfo m_info;
    QHBoxLayout *m_layout;
    QCheckBox *m_checkBox;
    QWidget *m_content = nullptr;
    ElidedLabel *m_name = nullptr; ///< these two while it is built
    QLabel *m_badge = nullptr;
};
