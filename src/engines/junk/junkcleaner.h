#pragma once

#include "cleanengine.h"
#include "junkrule.h"
#include "listedfolders.h"

#include <QList>

#include <atomic>

namespace platform {
class FileRemover;
class ProtectedPlaces;
} // namespace platform

/// Finds and removes system junk: temporary files, caches, logs, dumps. A rule file says what to
/// look for.
///
/// One rule becomes one category, and every file that it matches becomes one item. The GUI thread
/// loads the rules before any scan; the worker only reads them. The listed folders belong to the
/// worker. For everything else see CleanEngine.
class JunkCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JunkCleaner)
public:
    explicit JunkCleaner(QObject *parent = nullptr);
    ~JunkCleaner() override;

    /// Replaces the rules with those of the JSON file at @p path. If the file cannot be opened or
    /// parsed or is not an object, an error is logged and the rules stay as they were.
    void loadRules(const QString &path) override;
    [[nodiscard]] const QList<JunkRule> &rules() const { return m_rules; }

    /// @p text with every known placeholder replaced and with native separators.
    [[nodiscard]] static QString expandPath(const QString &text);

protected:
    void doScan() override;
    void doClean() override;

private:
    void scanRule(const JunkRule &rule, platform::ProtectedPlaces &places);
    /// Appends the files of @p location to @p items. See expandPath() for its placeholders.
    void scanLocation(const QString &location, const JunkRule &rule,
                      platform::ProtectedPlaces &places, QList<CleanItem> &items);
    void scanDirectory(const QString &directory, const QStringList &patterns,
                       QList<CleanItem> &items, bool recursive);
    /// Removes one item. The reason of a failure is also written to the log.
    Removal removeItem(platform::FileRemover &remover, const CleanItem &item);

    QList<JunkRule> m_rules;
    platform::ListedFolders m_listed; ///< of the last scan
};
