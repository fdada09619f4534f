#pragma once

#include "AppModel.h"
#include "support/Bytes.h"
#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/Listing.h"
#include "support/Logged.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QLabel>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

/// A model on a scripted machine. The test fires its ticks, and with them the queued redraws of the views.
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

    QStringList logged() const { return loggedIn(model.actionLog()); }

    /// Puts 2 MiB in the npm folder until it is cleaned, and nothing anywhere else.
    void fillNpmFolder() {
        const QString npm = home.makeFolder(QStringLiteral(".npm"));
        for (const CacheTarget& target : CacheTarget::defaults()) {
            for (const QString& path : target.paths)
                fakes.places->elsewhere[path] = {path == u"~/.npm" ? npm : home.path(QStringLiteral("none"))};
        }
        fakes.tools->answer = [isCleaned = false](const ToolRequest& request) mutable {
            if (request.launchPath == u"/usr/bin/du")
                return ScriptedTools::exited(0, isCleaned ? "0 x" : "2048 x");
            isCleaned |= request.arguments.first() == u"remove";
            return ScriptedTools::exited(0, withTotal(listingOf({}), isCleaned ? 0 : 2 << 20));
        };
    }

    qint32 nextPid = 100;
};

/// Returns the visible button with that text, help or accessible name, null when there is none.
inline QAbstractButton* buttonNamed(const QWidget& parent, const QString& name) {
    for (auto* button : parent.findChildren<QAbstractButton*>()) {
        const QStringList names{button->text(), button->toolTip(), button->accessibleName()};
        if (button->isVisibleTo(&parent) && names.contains(name))
            return button;
    }
    return nullptr;
}

inline void press(const QWidget& parent, const QString& name) {
    auto* button = buttonNamed(parent, name);
    ASSERT_TRUE(button) << qPrintable(name);
    QTest::mouseClick(button, Qt::LeftButton);
}

/// Runs queued redraws and deletions.
inline void settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

inline QStringList columnOf(const QAbstractItemModel& table, int section) {
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
        texts.append(table.index(row, section).data().toString());
    return texts;
}

/// Returns the accessible name of the only widget of that kind, empty while it is hidden.
template <typename T> QString shownName(const QWidget& parent) {
    const auto* shown = parent.findChild<T*>();
    return shown->isVisibleTo(&parent) ? shown->accessibleName() : QString();
}

/// Returns whether a label with exactly that text is visible.
inline bool showsText(const QWidget& parent, const QString& text) {
    for (const auto* label : parent.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&parent) && label->text() == text)
            return true;
    }
    return false;
}

/// Returns the accessible names of the visible widgets of a kind, in the order of their creation.
template <typename T> QStringList shownNames(const QWidget& parent) {
    QStringList names;
    for (const T* child : parent.findChildren<T*>()) {
        if (child->isVisibleTo(&parent))
            names.append(child->accessibleName());
    }
    return names;
}
