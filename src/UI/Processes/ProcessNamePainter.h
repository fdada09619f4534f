#pragma once

#include "UI/Processes/ProcessTableModel.h"

#include <QRect>

class QPainter;

/// Draws the first cell of a row of the Processes section: the sign of a branch, the symbol of a group, the
/// name with what the search matched, and how many processes there are.
namespace ProcessNamePainter {

inline constexpr int cellPadding = 8;

/// The painter has the style of the text, and is mirrored as the layout is.
void paint(QPainter& painter, QRectF area, const ProcessTableModel& model, const ProcessTableRow& row);
/// Draws a line of text with a ground behind what the search matched.
void paintMarked(QPainter& painter, const QRectF& area, Qt::TextElideMode mode, const QString& text,
                 const SearchWords& words);
/// Returns where the sign stands that folds or opens the row's branch.
QRect signRect(const QRect& cell, const ProcessTableRow& row);

} // namespace ProcessNamePainter
