#pragma once

#include "AppModel.h"
#include "Cli/Environment.h"
#include "Platform/RunningProgram.h"
#include "support/FakePlatform.h"
#include "support/ScriptedTerminal.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>

namespace Fuzz {

/// A running program that answers every question with the same text.
class AnsweringProgram : public RunningProgram {
public:
    explicit AnsweringProgram(const QByteArray& answer)
        : m_answer(answer) {}

    std::optional<QByteArray> report(const QString&) override { return m_answer; }

private:
    QByteArray m_answer;
};

/// What a command works with: three processes, a terminal where nobody can be asked, and a running program.
class ScriptedMachine {
public:
    explicit ScriptedMachine(const QByteArray& answerOfRunning)
        : m_running(answerOfRunning) {
        application();
        for (const auto& [pid, name] :
             {std::pair<qint32, QByteArray>{1, "systemd"}, {40, "node"}, {41, "claude"}}) {
            m_fakes.processes->add(pid,
                                   {.path = "/usr/bin/" + name,
                                    .name = name,
                                    .info = KernelProcessInfo{.start = Instant(std::chrono::seconds(pid)),
                                                              .uid = 1000,
                                                              .parentPid = pid == 1 ? 0 : 1,
                                                              .startTicks = quint64(pid)}});
            m_fakes.signalSender->start(pid);
        }
    }

    Environment environment() {
        return {.platform = m_fakes.platform(),
                .preferences = m_settings.preferences,
                .terminal = m_terminal,
                .running = m_running,
                .betweenReadings = std::chrono::milliseconds(0),
                .version = QStringLiteral("1.2.3"),
                .wantsColour = false,
                .adjust = withoutDelays};
    }
    const QByteArray& output() const { return m_terminal.output; }
    const QByteArray& errors() const { return m_terminal.errors; }
    qsizetype signalsSent() const { return m_fakes.signalSender->sent().size(); }

private:
    static void application() {
        static int count = 1;
        static char name[] = "fuzz";
        static char* arguments[] = {name, nullptr};
        static const QCoreApplication application(count, arguments);
    }
    static void withoutDelays(AppModel& model) {
        model.actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}});
        model.actions().setSessionDelays(
            {.forHost = {}, .forOthers = {}, .betweenLooks = {}, .beforeMeasuring = {}});
    }

    TemporaryHome m_home; // of the settings, and of the log that an action writes
    FakePlatform m_fakes;
    TemporarySettings m_settings;
    ScriptedTerminal m_terminal;
    AnsweringProgram m_running;
};

} // namespace Fuzz
