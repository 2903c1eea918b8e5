#pragma once

#include "cleanengine.h"

#include <QThread>

#include <atomic>
#include <functional>

/// An engine that finds what the test sets, and removes nothing real. The test can hold it in the
/// middle of a run. The atomic members may be set while its worker runs, `found` may not.
class ScriptedEngine final : public CleanEngine
{
public:
    ~ScriptedEngine() override
    {
        hold = false;
        stopAndWait();
    }

    QList<CleanCategory> found; ///< the categories that a scan finds
    std::atomic_bool hold = false; ///< while set, a run does not end unless it is cancelled
    std::atomic_bool canCancel = true; ///< if not set, a held run ignores a cancel
    std::atomic_int progress = 1; ///< steps of 4 that a scan reports before it is held
    std::atomic_bool failsCleans = false; ///< while set, a clean ends with an error
    std::atomic_int scans = 0;
    std::atomic_int cleans = 0;

    std::atomic<qint64> steps = 0; ///< of a scan that works within one step of its progress
    mutable std::atomic_int questions = 0; ///< for the steps

    [[nodiscard]] qint64 activity() const override
    {
        ++questions;
        return steps;
    }
    void fail(const QString &error) { Q_EMIT errorOccurred(error); }

protected:
    void doScan() override
    {
        ++scans;
        Q_EMIT scanProgress(progress, 4, QStringLiteral("Some Files"));
        wait();
        if (!isStopRequested())
            result().categories = found;
    }

    void doClean() override
    {
        ++cleans;
        if (failsCleans) {
            endClean(State::Error);
            fail(QStringLiteral("broken"));
            return;
        }
        wait(); // also when the cancel comes before the worker has begun
        reportClean(cleanSelection([this](const CleanItem &item) -> Removal {
            wait();
            if (isStopRequested())
                return {Removal::NotCounted, 0, {}};
            return {Removal::Cleaned, item.size, {}};
        }));
    }

private:
    void wait() const
    {
        // In this order: a test forbids the cancel first and then cancels.
        while (hold && !(isStopRequested() && canCancel))
            QThread::msleep(1);
    }
};

/// A category of @p count items of 1 KiB each.
inline CleanCategory scriptedCategory(const QString &id, int count)
{
    CleanCategory category(id, QStringLiteral("Category ") + id, QStringLiteral("Description"));
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("item %1").arg(i);
        category.items.append(
            CleanItem(name, QStringLiteral("/folder/of/") + id + u'/' + name, 1024));
    }
    return category;
}
