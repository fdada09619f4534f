#pragma once

#include "AppModel.h"
#include "support/FakePlatform.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

/// A model on a scripted machine whose ticks the test fires, and the views' queued redraws with them.
struct ModelFixture : testing::Test {
    TemporaryHome home; ///< where actions are logged
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
            fakes.signalSender->start(nextPid);
            fakes.processes->add(nextPid++, {.task = TaskInfo{.residentBytes = rss},
                                             .name = name,
                                             .info = KernelProcessInfo{.uid = fakes.identity->uid}});
        }
    }

    /// "KIND DETAIL ok", newest first.
    QStringList logged() const {
        QStringList lines;
        for (const ActionLogEntry& entry : model.actionLog())
            lines.append(rawValue(entry.kind) + u' ' + entry.detail +
                         QString::fromLatin1(entry.success ? " ok" : " fail"));
        return lines;
    }

    qint32 nextPid = 100;
};

/// The button that a person could see with that text, tool tip or accessible name; null when there is none.
inline QAbstractButton* buttonNamed(const QWidget& parent, const QString& name) {
    for (auto* button : parent.findChildren<QAbstractButton*>()) {
        if (button->isVisibleTo(&parent) && (button->text() == name || button->accessibleName() == name))
            return button;
    }
    return nullptr;
}

/// Whether a label with exactly that text can be seen.
inline bool showsText(const QWidget& parent, const QString& text) {
    for (const auto* label : parent.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&parent) && label->text() == text)
            return true;
    }
    return false;
}

/// The accessible names of the widgets of a kind that a person could see, in the order they were made.
template <typename T> QStringList shownNames(const QWidget& parent) {
    QStringList names;
    for (const T* child : parent.findChildren<T*>()) {
        if (child->isVisibleTo(&parent))
            names.append(child->accessibleName());
    }
    return names;
}
