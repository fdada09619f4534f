#pragma once

#include "Preferences.h"

#include <QTemporaryDir>

/// Preferences on a file of the test.
struct TemporarySettings {
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("settings.ini"));
    Preferences preferences{path};
};
