#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

class QUrl;
class QWidget;

/// Knows the web address of each help page in the user's language and opens it in the browser.
///
/// Its language is chosen apart from the one of the interface, since the pages exist in other
/// languages than the interface does. Tells the debug output what it does, never the log. GUI
/// thread.
class LinkManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkManager)
public:
    /// The program's own, made on first use and never deleted.
    static LinkManager *instance();

    /// Reads the table @p tablePath and chooses the language: the stored one if there are pages in
    /// it, else the one that fits @p systemLocale (such as "pt_BR"). A table that cannot be read
    /// leaves no links.
    LinkManager(const QString &tablePath, const QString &systemLocale, QObject *parent = nullptr);

    [[nodiscard]] QString currentLanguage() const { return m_currentLanguage; }
    [[nodiscard]] QStringList supportedLanguages() const { return m_supportedLanguages; }

    /// The address of @p key in the current language, else in the fallback language, else empty.
    [[nodiscard]] QString getLink(const QString &category, const QString &key) const;
    /// Opens that address in the browser; false when there is none or no browser was started. The
    /// user is told so in a box over @p parent, or not at all without one.
    bool openLink(const QString &category, const QString &key, QWidget *parent = nullptr);
    /// Takes @p code from now on and stores it; a language without pages is refused.
    void setLanguage(const QString &code);

Q_SIGNALS:
    void languageChanged(QString newLanguage);

protected:
    /// Hands @p url to the system; false when nothing there takes it.
    virtual bool openUrl(const QUrl &url);

private:
    bool loadTable(const QString &path);
    [[nodiscard]] QString chooseLanguage(const QString &systemLocale) const;
    [[nodiscard]] QString lookUp(const QString &category, const QString &key,
                                 const QString &language) const;

    QString m_currentLanguage;
    QString m_fallbackLanguage = QStringLiteral("en");
    QStringList m_supportedLanguages;
    QJsonObject m_links;
};
