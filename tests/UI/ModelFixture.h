#pragma once

#include "AppModel.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>
#include <QWidget>

#include <gtest/gtest.h>

/// A model on a scripted machine whose ticks the test fires, and the views' queued redraws with them.
struct ModelFixture : testing::Test {
    FakePlatform fakes;
    TemporarySettings settings;
    Preferences& prefs = settings.preferences;
    AppModel model{fakes.platform(), prefs};

    void tick() {
        QMetaObject::invokeMethod(&model, "tick");
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    void addProcesses(int count, const QByteArray& name, quint64 rss) {
        for (int i = 0; i < count; ++i) {
            fakes.processes->add(nextPid++, {.task = TaskInfo{.residentBytes = rss}, .name = name});
        }
    }

    qint32 nextPid = 100;
};

/// The accessible names of the widgets of a kind that a person could see, in the order they were made.
template <typename T> QStringList shownNames(const QWidget& parent) {
    QStringList names;
    for (const T* child : parent.findChildren<T*>()) {
        if (child->isVisibleTo(&parent))
            names.append(child->accessibleName());
    }
    return names;
}
