#pragma once

#include <QString>

/// Returns a tool tip that shows any text literally and wraps it. Qt renders a plain text that looks like
/// markup, and shows the escapes of an escaped one that does not.
inline QString plainToolTip(const QString& text) {
    if (text.isEmpty())
        return {};
    return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(text.toHtmlEscaped());
}
