#pragma once

#include "AppModel.h"
#include "support/Bytes.h"
#include "support/Each.h"
#include "support/FakePlatform.h"
#include "support/Logged.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QCoroTask>

#include <gtest/gtest.h>

/// A model over scripted processes, signals and tools, without delays.
struct ReliefTest : testing::Test {
    TemporaryHome home;
    TemporarySettings settings;
    FakePlatform fakes;
    std::shared_ptr<FakeSignals> signalSender = fakes.signalSender;
    std::shared_ptr<ScriptedTools> tools = fakes.tools;
    std::unique_ptr<AppModel> model;

    ReliefTest() {
        model = std::make_unique<AppModel>(fakes.platform(), settings.preferences);
        model->actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}});
    }

    /// Adds a running process, of the user unless `info` says otherwise.
    void add(qint32 pid, const QByteArray& name, quint64 rssBytes, KernelProcessInfo info = {.uid = 1000},
             const QByteArray& path = {}, const QByteArray& arguments = {}) {
        fakes.processes->add(pid, {.task = TaskInfo{.residentBytes = rssBytes},
                                   .path = path,
                                   .name = name,
                                   .arguments = arguments,
                                   .info = info});
        signalSender->start(pid);
    }
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i)
            QMetaObject::invokeMethod(model.get(), "tick");
    }
    QStringList logged() const { return loggedIn(model->actionLog()); }
    QList<qint32> signalled() const { return each(signalSender->sent(), &FakeSignals::Sent::pid); }
};
