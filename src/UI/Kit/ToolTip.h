#pragma once

#include <QString>

/// Any text as a tool tip that shows just that, wrapped where it is long. A bare text that looks like markup
/// would be taken for it; one that is merely escaped and does not look so would show its escapes.
inline QString plainToolTip(const QString& text) {
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}
