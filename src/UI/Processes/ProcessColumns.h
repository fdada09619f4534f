#pragma once

#include "Core/Memory/SummedMemory.h"
#include "UI/Style/Theme.h"

#include <QList>
#include <QStringList>

#include <limits>

/// One row of the flat or the grouped table: one process, or all of one name.
struct ProcessTableRow {
    ProcSample first;                 ///< the process, or the first of the name
    QList<ProcSample> processes = {}; ///< empty for one process
    SummedMemory memory = {};         ///< of all of the name
    double cpuPercent = 0;
    int sameName = 1; ///< the number of processes of that name: on the machine, or in the row
};

/// One column of the Processes section: its header, its cells, its width and its order.
struct ProcessColumn {
    enum class Kind { plain, name, actions };

    static constexpr int buttonSide = 26; ///< of an action

    struct Order {
        void (*sort)(QList<ProcSample>&) = nullptr;  ///< stable; null when it cannot be sorted by
        int place = std::numeric_limits<int>::max(); ///< in the sort picker; at its end unless set
        const char* label = nullptr;                 ///< there; the title unless set
    };

    QStringView id; ///< what its width is stored under and what a query names it by
    const char* title;
    QString (*text)(const ProcessTableRow&) = nullptr;
    Kind kind = Kind::plain;
    Qt::Alignment alignment = Qt::AlignRight; ///< right for a figure
    int width = 62;                           ///< until the user changes it; 0 for the remaining width
    Theme::Role role = Theme::Role::secondaryText;
    bool isInFlat = true; ///< the table with a row for each process
    bool isInGrouped = false;
    bool isOptional = false; ///< shown when the user chose it
    QString (*toolTip)(const ProcessTableRow&) = nullptr;
    Order order = {};

    bool isFigure() const { return alignment == Qt::AlignRight; }
};

/// The table of all columns.
namespace ProcessColumns {

/// Returns the columns of the flat or of the grouped table, from left to right, with the optional ones whose
/// ids are `chosen`.
QList<const ProcessColumn*> shown(bool isGrouped, const QStringList& chosen);
/// Returns the optional columns.
QList<const ProcessColumn*> optional();
/// Returns the columns to sort by, in the order of the picker.
QList<const ProcessColumn*> sortable();
/// Returns null when there is none.
const ProcessColumn* withId(QStringView id);

} // namespace ProcessColumns
