#pragma once

#include "Cli/Program.h"
#include "Core/SessionsFixture.h"
#include "Platform/RunningProgram.h"
#include "support/ScriptedTerminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The running program's documents as the test gives them.
class ScriptedProgram : public RunningProgram {
public:
    QHash<QString, QByteArray> documents;
    QStringList asked;

    std::optional<QByteArray> report(const QString& kind) override {
        asked.append(kind);
        const auto found = documents.constFind(kind);
        return found == documents.cend() ? std::nullopt : std::optional(*found);
    }
};

/// Runs commands on a scripted machine.
struct CliTest : SessionsTest {
    ScriptedTerminal terminal;
    ScriptedProgram running;

    /// Returns the exit status. What was written before is forgotten.
    int run(const QStringList& arguments) {
        terminal.output.clear();
        terminal.errors.clear();
        const Environment environment{.platform = fakes.platform(),
                                      .preferences = settings.preferences,
                                      .terminal = terminal,
                                      .running = running,
                                      .betweenReadings = std::chrono::milliseconds(1),
                                      .version = QStringLiteral("1.2.3"),
                                      .adjust = withoutDelays};
        return Program::run(environment, arguments);
    }
    static void withoutDelays(AppModel& model) {
        model.actions().setFreeRAMDelays({.beforeSecondPass = {}, .beforeMeasuring = {}});
        model.actions().setSessionDelays({.forHost = std::chrono::milliseconds(2),
                                          .forOthers = std::chrono::milliseconds(2),
                                          .betweenLooks = std::chrono::milliseconds(1),
                                          .beforeMeasuring = {}});
    }
    int run(const QString& arguments) { return run(arguments.split(u' ')); }
    QJsonObject document() const { return QJsonDocument::fromJson(terminal.output).object(); }
    QJsonArray list(const QString& name) const { return document().value(name).toArray(); }
    QStringList lines() const { return QString::fromUtf8(terminal.output).split(u'\n', Qt::SkipEmptyParts); }
    /// Adds a process of this size.
    FakeProcess& addSized(qint32 pid, const QByteArray& name, quint64 bytes, qint32 parent = 1) {
        FakeProcess& process = add(pid, parent, name);
        process.task->residentBytes = bytes;
        return process;
    }
};
