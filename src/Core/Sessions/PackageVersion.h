#pragma once

#include <QString>

/// Returns the version of the program at `path`, an absolute path: that of its package ("package.json" of the
/// nearest "node_modules/NAME"), or the folder or file below "versions". Empty when neither says one.
QString packageVersion(const QString& path);
