// Prints which processes belong to which agent session, a block of lines for each tick of two seconds until
// it is ended:
//   session HOST AGENT FOLDER: PID:KIND[:PORT...] ...
//   left AGENT FOLDER: PID:KIND[:PORT...] ...
//   duplicate HOST: PID ...
//   end
// KIND is agent, server, dev, browser or command.

#include "AppModel.h"
#include "Preferences.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>

namespace {

constexpr const char* kinds[] = {"agent", "server", "dev", "browser", "command"};

void print(const QList<SessionProcess>& processes) {
    for (const SessionProcess& each : processes) {
        std::printf(" %d:%s", each.process.pid, kinds[static_cast<int>(each.part)]);
        for (const quint16 port : each.ports)
            std::printf(":%d", port);
    }
    std::printf("\n");
}

void print(const SessionReport& report) {
    for (const Session& session : report.sessions) {
        std::printf("session %d %s %s:", session.host.pid, qPrintable(session.agent),
                    qPrintable(session.folder));
        print(session.processes);
    }
    for (const LeftOver& left : report.leftOvers) {
        std::printf("left %s %s:", qPrintable(left.agent), qPrintable(left.folder));
        print(left.processes);
    }
    for (const DuplicateServers& duplicate : report.duplicates) {
        std::printf("duplicate %d:", duplicate.host.pid);
        print(duplicate.older);
    }
    std::printf("end\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    Preferences preferences(folder.filePath(QStringLiteral("truth.ini")));
    AppModel model(Platform::native(), preferences);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&model] {
        model.wantSessions();
        print(model.sessionReport());
    });
    model.start();
    timer.start(2000);
    return QCoreApplication::exec();
}
