#pragma once

#include <QFrame>

#include <optional>

class ElidedLabel;
class QCheckBox;
class QIcon;
class QLabel;
struct StartupApp;

/// An installed program on the start-up page: a check box for its start-up entry, its icon, name
/// and path. StartupPage owns it. GUI thread.
///
/// The properties "appName" and "appExePath" of the card identify the program. So do "displayName"
/// and "exePath" of the check box.
class StartupCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StartupCard)
public:
    /// @p icon is the file icon of the system. A null icon gives an emoji.
    StartupCard(const StartupApp &app, const QIcon &icon, QWidget *parent = nullptr);

    [[nodiscard]] QCheckBox *checkBox() const { return m_checkBox; }
    /// Shows whether the program starts with the session. Does not change the check box.
    void showState(bool isStartup);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *buildIcon(const QIcon &icon);
    QLayout *buildTexts(const StartupApp &app);

    QCheckBox *m_checkBox;
    std::optional<bool> m_shownState;
    QLabel *m_icon = nullptr;
    ElidedLabel *m_name = nullptr;
    QLabel *m_status = nullptr;
};
