#pragma once

#include <QFrame>

#include <optional>

class ElidedLabel;
class QCheckBox;
class QIcon;
class QLabel;
struct StartupApp;

/// One installed program on the start-up page: a check box that switches its start-up entry, its
/// icon, name and path. Its properties "appName" and "appExePath" and those of the check box,
/// "displayName" and "exePath", say which program it is.
class StartupCard final : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StartupCard)
public:
    /// @p icon is the system's icon of the program, or null.
    StartupCard(const StartupApp &app, const QIcon &icon, QWidget *parent = nullptr);

    [[nodiscard]] QCheckBox *checkBox() const { return m_checkBox; }
    /// Shows whether the program starts with the session; the check box is left alone.
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
