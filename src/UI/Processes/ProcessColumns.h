#pragma once

#include "Core/Memory/SummedMemory.h"
#include "UI/Processes/ColumnFacts.h"
#include "UI/Style/Theme.h"

#include <QList>
#include <QStringList>

#include <limits>

/// One row of the table: a process, all of one name, or a branch of the tree.
struct ProcessTableRow {
    enum class Branch { none, open, folded }; ///< whether a row of the tree has others below it

    ProcSample first;                 ///< the process, the first of the name, or the root of the branch
    QList<ProcSample> processes = {}; ///< those that the figures are sums of; empty for one process
    SummedMemory memory = {};         ///< of these
    double cpuPercent = 0;
    int sameName = 1; ///< the number of processes of that name: on the machine, or in the row
    int depth = 0;    ///< in the tree
    Branch branch = Branch::none;
    bool isLeaving = false; ///< it was asked to end
    bool isGone = false;    ///< it has ended, and the row holds its place
};

/// One column of the Processes section: its header, its cells, its width and its order.
struct ProcessColumn {
    enum class Kind { plain, name, command, actions };
    /// What has to be known besides the records.
    enum class Need { nothing, names, sessions, disk };

    static constexpr int buttonSide = 28; ///< of an action

    using Row = ProcessTableRow;
    /// The order by a column. Rows that compare equal keep theirs; what is unknown stands last.
    struct Order {
        double (*figure)(const Row&, const ColumnFacts&) = nullptr; ///< NaN when unknown
        QString (*words)(const Row&,
                         const ColumnFacts&) = nullptr; ///< alphabetical; without both by the text
        bool isAscending = false;                       ///< at first, as a text always is
        int place = std::numeric_limits<int>::max();    ///< in the sort picker, where it has one
        const char* label = nullptr;                    ///< there; the title unless set
    };

    QStringView id; ///< what its width is stored under and what a query names it by
    const char* title;
    QString (*text)(const Row&, const ColumnFacts&) = nullptr;
    Kind kind = Kind::plain;
    Qt::Alignment alignment = Qt::AlignRight; ///< right for a figure
    int width = 62;                           ///< until the user changes it; 0 for the remaining width
    Theme::Role role = Theme::Role::secondaryText;
    bool isInFlat = true; ///< the table with a row for each process, and the tree
    bool isInGrouped = false;
    bool isOptional = false; ///< hidden until the user shows it
    bool isFixed = false;    ///< cannot be hidden
    Need need = Need::nothing;
    QString (*toolTip)(const Row&, const ColumnFacts&) = nullptr;
    Order order = {};

    bool isFigure() const { return alignment == Qt::AlignRight; }
    bool isSortable() const { return kind != Kind::actions; }
    bool isInPicker() const { return order.place != std::numeric_limits<int>::max(); }
};

/// The table of all columns.
namespace ProcessColumns {

/// Returns the columns of the table with a row for each process, or for each name, from left to right.
/// `toggled` has the ids of those whose visibility the user has changed.
QList<const ProcessColumn*> shown(bool isGrouped, const QStringList& toggled);
/// Returns the columns that can be shown and hidden there.
QList<const ProcessColumn*> choices(bool isGrouped);
/// Returns the columns of the sort picker, in its order.
QList<const ProcessColumn*> inPicker();
/// Returns null when there is none.
const ProcessColumn* withId(QStringView id);
/// Returns the title in the user's language.
QString title(const ProcessColumn& column);

/// Sorts by a column; `turned` is the other way round than at first.
void sort(QList<ProcessTableRow>& rows, const ProcessColumn& column, bool turned, const ColumnFacts& facts);

} // namespace ProcessColumns
