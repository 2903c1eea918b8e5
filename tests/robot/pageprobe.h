#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <optional>

class QAbstractScrollArea;
class QWidget;

/// A row of a list, with what a click in it means.
struct Row {
    enum class Meaning {
        Nothing, ///< a click changes no tick
        Box, ///< a click on the box turns the record over
        Anywhere, ///< a click anywhere does
        All, ///< a click on the box ticks all of the records, or none when all are ticked
    };

    QWidget *widget = nullptr;
    Meaning meaning = Meaning::Nothing;
    int first = 0; ///< of the records that it stands for
    int count = 0;
    QWidget *box = nullptr; ///< null when it has none
    QRect rect{}; ///< of what is seen of it, in coordinates of the window
};

/// The ticks of a page's records.
struct Ticks {
    int listing = 0; ///< another number when the records are other ones
    QStringList keys; ///< tell the records apart
    QList<bool> values;
};

/// One page of the window as the robot knows it: what the program keeps of what the page lists, and
/// what is seen of it. Everything that looks at a page fails when something is wrong with it.
class PageProbe
{
    Q_DISABLE_COPY_MOVE(PageProbe)
public:
    PageProbe() = default;
    virtual ~PageProbe() = default;

    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QWidget *page() const = 0;
    /// The controls to click beside those in rows, by object name, each as often as it is to come
    /// up.
    [[nodiscard]] virtual QStringList controls() const = 0;
    /// What to click when there is no list.
    [[nodiscard]] virtual QStringList startControls() const { return controls(); }

    /// Whether it does something whose end is to be waited for.
    [[nodiscard]] virtual bool isBusy() const { return false; }
    /// The list that is shown; null when none is.
    [[nodiscard]] virtual QAbstractScrollArea *list() const = 0;

    [[nodiscard]] virtual Ticks ticks() const { return {}; }
    /// The rows of the shown list that are seen, compared with the records.
    [[nodiscard]] virtual QList<Row> visibleRows() const { return {}; }
    /// The row of the whole list, in sight or not, that has this box.
    [[nodiscard]] virtual std::optional<Row> rowWith(const QWidget *box) const
    {
        Q_UNUSED(box)
        return std::nullopt;
    }
    /// Whether a change of one record's tick may change the other one's.
    [[nodiscard]] virtual bool canAffect(int record, int other) const
    {
        Q_UNUSED(record)
        Q_UNUSED(other)
        return false;
    }
    /// Compares every sum, count and button that the page shows with the records, and what was
    /// listed since the last call with what there is to list.
    virtual void check() { }

    /// Compares what a dialog that lists records of this page shows with them.
    virtual void checkDetails(const QWidget *dialog) const { Q_UNUSED(dialog) }
    /// How many deletions have begun.
    [[nodiscard]] virtual int deletions() const { return 0; }
    /// What a deletion that begins now must remove: paths of files, or registry entries as
    /// "root\key".
    [[nodiscard]] virtual QStringList chosen() const { return {}; }
};
