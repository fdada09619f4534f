#pragma once

#include "Platform/Places.h"

#include <QHash>
#include <QStringList>

/// Returns every path as its own place, unless the test says otherwise.
class FakePlaces : public Places {
public:
    QHash<QString, QStringList> elsewhere;
    QHash<QString, QString> objections; ///< by place
    QStringList impossible;             ///< paths that only other systems have

    QList<Place> locate(const QString& path) const override {
        QList<Place> places;
        for (const QString& place : elsewhere.value(path, {path}))
            places.append({place, objections.value(place)});
        return places;
    }
    bool canExist(const QString& path) const override { return !impossible.contains(path); }
};
