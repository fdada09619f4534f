#pragma once

#include "Platform/CleanupTargets.h"

/// The caches and leftovers of programs on a Linux desktop, at the places that their own documents name.
class FreedesktopTargets : public CleanupTargets {
public:
    QList<PlatformTarget> all() const override;
    QStringList kept(const PlatformTarget& target) const override;
    QHash<QString, QString> namesIn(const QString& folder) const override;

    /// Returns the toolchains below the folder of rustup that its settings name, as the default or for a
    /// folder; all of them where the settings are unreadable.
    static QStringList usedToolchains(const QString& rustupHome);
};
