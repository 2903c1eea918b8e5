#pragma once

#include "cleanengine.h"
#include "junkrule.h"
#include "listedfolders.h"

#include <QList>

namespace platform {
class FileRemover;
}

/// Finds and removes system junk: temporary files, caches, logs, dumps. What it looks for stands in
/// a rule file.
///
/// One rule becomes one category, every file that it matches one item. The rules are read on the
/// GUI thread before any scan and only read by the worker, to which the listed folders belong; for
/// everything else see CleanEngine.
class JunkCleaner final : public CleanEngine
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JunkCleaner)
public:
    explicit JunkCleaner(QObject *parent = nullptr);
    ~JunkCleaner() override;

    /// Replaces the rules by those of the JSON file at @p path. A file that cannot be opened,
    /// parsed or is not an object is logged as an error and leaves the rules as they were.
    void loadRules(const QString &path) override;
    [[nodiscard]] const QList<JunkRule> &rules() const { return m_rules; }

    /// @p text with every placeholder replaced and native separators.
    [[nodiscard]] static QString expandPath(const QString &text);

protected:
    void doScan() override;
    void doClean() override;

private:
    void scanRule(const JunkRule &rule);
    /// Adds what @p location holds; see expandPath() for its placeholders.
    void scanLocation(const QString &location, const JunkRule &rule, QList<CleanItem> &items);
    void scanDirectory(const QString &directory, const QStringList &patterns,
                       QList<CleanItem> &items, bool recursive);
    /// Why an item could not be removed is in the log as well.
    Removal removeItem(platform::FileRemover &remover, const CleanItem &item);

    QList<JunkRule> m_rules;
    platform::ListedFolders m_listed; ///< by the last scan
};
