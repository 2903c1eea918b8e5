#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <optional>

class QAbstractScrollArea;
class QWidget;

/// A row of a list, with what a click on it does.
struct Row {
    enum class Meaning {
        Nothing, ///< a click changes no tick
        Box, ///< a click on the box toggles the record's tick
        Anywhere, ///< a click anywhere toggles the record's tick
        All, ///< a click on the box ticks all records; when all are ticked, it unticks them
    };

    QWidget *widget = nullptr;
    Meaning meaning = Meaning::Nothing;
    int first = 0; ///< index of the row's first record
    int count = 0; ///< number of its records
    QWidget *box = nullptr; ///< null when the row has none
    QRect rect{}; ///< the visible part, in coordinates of the window
};

/// The ticks of a page's records.
struct Ticks {
    int listing = 0; ///< changes when the page gets other records
    QStringList keys; ///< a unique name of each record
    QList<bool> values; ///< whether each record is ticked
};

/// What the robot knows of one page: the records behind its list and what is drawn of them.
///
/// A function that compares the two ends the program when they differ. Probes live in main() and
/// work on the GUI thread.
class PageProbe
{
    Q_DISABLE_COPY_MOVE(PageProbe)
public:
    PageProbe() = default;
    virtual ~PageProbe() = default;

    [[nodiscard]] virtual QString name() const = 0;
    [[nodiscard]] virtual QWidget *page() const = 0;
    /// Object names of the controls outside of rows that the robot clicks. A name that stands there
    /// several times is clicked more often.
    [[nodiscard]] virtual QStringList controls() const = 0;
    /// The controls that the robot clicks while there is no list.
    [[nodiscard]] virtual QStringList startControls() const { return controls(); }

    /// Whether the page does work whose end the robot has to wait for.
    [[nodiscard]] virtual bool isBusy() const { return false; }
    /// The shown list; null when none is shown.
    [[nodiscard]] virtual QAbstractScrollArea *list() const = 0;

    [[nodiscard]] virtual Ticks ticks() const { return {}; }
    /// The visible rows of the shown list. Compares each of them with its records.
    [[nodiscard]] virtual QList<Row> visibleRows() const { return {}; }
    /// The row of the list with this box, visible or scrolled out of view.
    [[nodiscard]] virtual std::optional<Row> rowWith(const QWidget *box) const
    {
        Q_UNUSED(box)
        return std::nullopt;
    }
    /// Whether a change of the tick of @p record may change the tick of @p other.
    [[nodiscard]] virtual bool canAffect(int record, int other) const
    {
        Q_UNUSED(record)
        Q_UNUSED(other)
        return false;
    }
    /// Compares every sum, count and button of the page with the records. After a scan also
    /// compares the records with the files or entries that the scan should list.
    virtual void check() { }

    /// Compares a dialog that lists records of this page with these records.
    virtual void checkDetails(const QWidget *dialog) const { Q_UNUSED(dialog) }
    /// How many deletions have started.
    [[nodiscard]] virtual int deletions() const { return 0; }
    /// What a deletion that starts now must remove: paths of files, or registry entries as
    /// "root\key".
    [[nodiscard]] virtual QStringList chosen() const { return {}; }
};
