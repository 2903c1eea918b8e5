#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

class QUrl;
class QWidget;

/// Knows the web address of each help page in the user's language and opens it in the browser.
///
/// The pages exist in other languages than the interface, so their language is chosen separately.
/// Messages go to the debug output, never to the log. GUI thread; instance() is never deleted.
class LinkManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LinkManager)
public:
    /// The object of the program. Made on first use and never deleted.
    static LinkManager *instance();

    /// Reads the table @p tablePath and chooses the language: the stored one if it has pages,
    /// otherwise the one for @p systemLocale (such as "pt_BR"). Without a readable table there are
    /// no links.
    LinkManager(const QString &tablePath, const QString &systemLocale, QObject *parent = nullptr);

    [[nodiscard]] QString currentLanguage() const { return m_currentLanguage; }
    [[nodiscard]] QStringList supportedLanguages() const { return m_supportedLanguages; }

    /// The address of @p key in the current language, otherwise in the fallback language, otherwise
    /// empty.
    [[nodiscard]] QString getLink(const QString &category, const QString &key) const;
    /// Opens the address of @p key in the browser. Returns false when there is no address or no
    /// browser was started. A message box over @p parent then tells the user; without a parent
    /// there is none.
    bool openLink(const QString &category, const QString &key, QWidget *parent = nullptr);
    /// Uses @p code from now on and stores it. A language without pages is refused.
    void setLanguage(const QString &code);

Q_SIGNALS:
    void languageChanged(QString newLanguage);

protected:
    /// Passes @p url to the system. Returns false when the system cannot open it.
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
