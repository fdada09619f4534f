#pragma once

#include "Platform/Places.h"

#include <QHash>
#include <QSet>

/// Every path is where it says, unless the test says otherwise.
class FakePlaces : public Places {
public:
    QHash<QString, QStringList> elsewhere;
    QSet<QString> mountsInside;

    QStringList locate(const QString& path) const override { return elsewhere.value(path, {path}); }
    bool reachesMount(const QString& folder) const override { return mountsInside.contains(folder); }
};
