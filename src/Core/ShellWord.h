#pragma once

#include <QString>

/// Returns whether a shell takes the text as one word, as it stands.
bool isPlainShellWord(QStringView text);

/// Returns the text as one word of a shell, in single quotes unless it is plain.
QString shellWord(const QString& text);
