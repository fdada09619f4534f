#pragma once

#include "UI/Processes/ProcessTableRow.h"
#include "UI/Style/Theme.h"

#include <limits>

/// One column of the Processes section, whose heads, cells, widths and ways to sort all follow from it.
struct ProcessColumn {
    enum class Kind { plain, name, actions };

    static constexpr int buttonSide = 26; ///< of an action

    struct Order {
        void (*sort)(QList<ProcSample>&) = nullptr;  ///< stable; null when nobody sorts by the column
        int place = std::numeric_limits<int>::max(); ///< in the sort picker; at its end unless set
        const char* label = nullptr;                 ///< there; the title unless set
    };

    QStringView id; ///< what its width is stored under and what a query names it by
    const char* title;
    QString (*text)(const ProcessTableRow&) = nullptr;
    Kind kind = Kind::plain;
    Qt::Alignment alignment = Qt::AlignRight; ///< right for a figure
    int width = 62; ///< until the user gives it another; 0 for what the others leave
    Theme::Role role = Theme::Role::secondaryText;
    bool isInFlat = true; ///< the table with a row a process
    bool isInGrouped = false;
    QString (*toolTip)(const ProcessTableRow&) = nullptr;
    Order order = {};

    bool isFigure() const { return alignment == Qt::AlignRight; }
};

/// The table of all columns.
namespace ProcessColumns {

/// Those of the flat or of the grouped table, from left to right.
QList<const ProcessColumn*> shown(bool isGrouped);
/// Those to sort by, in the order of the picker.
QList<const ProcessColumn*> sortable();
/// Null when there is none.
const ProcessColumn* withId(QStringView id);

} // namespace ProcessColumns
