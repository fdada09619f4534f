#pragma once

#include <QString>

/// The width of texts in the columns of a terminal.
namespace TextWidth {

int of(const QString& text);

/// Returns the text, cut with "…" where it is wider.
QString cut(const QString& text, int width);

/// Returns the text with spaces up to the width.
QString padded(const QString& text, int width, bool isRight);

} // namespace TextWidth
