#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "UI/Inspector/InspectorPanel.h"
#include "UI/Kit/PushButton.h"
#include "UI/MainWindow.h"
#include "UI/Processes/ProcessTableView.h"
#include "UI/Processes/ProcessesView.h"
#include "UI/RootView.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

/// Lets one process have everything that the panel shows. Returns its PID.
qint32 addInspected(Stage& stage) {
    constexpr qint32 pid = 41200;
    stage.fakes.processes->add(
        pid, {.task = TaskInfo{.residentBytes = 2600 * MiB, .threads = 23},
              .path = "/opt/google/chrome/chrome",
              .name = "chrome",
              .arguments = QByteArray("chrome\0--type=renderer\0--lang=en\0", 32),
              .info = KernelProcessInfo{.uid = stage.fakes.identity->uid, .parentPid = 1663}});
    stage.fakes.processMemory->all[pid] = {
        .uniqueBytes = 1900 * MiB, .anonymousBytes = 1800 * MiB, .swapBytes = 210 * MiB};
    FakeProcessDetails& details = *stage.fakes.processDetails;
    details.commandLines[pid] = {"/opt/google/chrome/chrome", "--type=renderer", "--lang=en",
                                 "--user-data-dir=/home/ana/.config/a folder/google-chrome"};
    details.folders[pid] = "/home/ana/src/shop";
    details.groups[pid] = "/user.slice/user-1000.slice/user@1000.service/app.slice/app-chrome-812.scope";
    details.files[pid] = {.count = 143,
                          .first = {"/dev/null", "socket:[88211]",
                                    "/home/ana/.config/google-chrome/Default/History", "pipe:[90114]",
                                    "anon_inode:[eventfd]"}};
    details.environments[pid] = {"HOME=/home/ana", "API_KEY=abc", "LANG=en_GB.UTF-8"};
    details.users[stage.fakes.identity->uid] = u"ana"_s;
    stage.fakes.listeningPorts->listening = {{.id = 7, .uid = stage.fakes.identity->uid, .port = 9222}};
    stage.fakes.listeningPorts->byProcess = {{pid, {7}}};
    stage.fakes.applications->byProcess[pid] = {u"chrome"_s, u"Chrome"_s, u":/icons/tavrin.svg"_s};
    return pid;
}

/// Plays on with a load and a memory that change from tick to tick.
void playOn(Stage& stage, qint32 pid, int ticks) {
    for (int i = 0; i < ticks; ++i) {
        FakeProcess& process = stage.fakes.processes->processes[pid];
        process.task->cpuTimeNs += static_cast<quint64>(4e8 + 3e8 * (i * 7 % 11) / 10);
        process.task->residentBytes = (2300 + i * 5 + i * 13 % 40) * MiB;
        stage.play(1, 24, 8.1);
    }
}

} // namespace

void shootInspector(Camera& camera) {
    Stage stage;
    const qint32 pid = addInspected(stage);
    stage.play(2, 24, 8.1);
    MainWindow window(stage.model, stage.prefs, stage.messages);
    window.resize(RootView::minimumContent);
    window.findChild<RootView*>()->select(RootView::Tab::processes);
    window.show();
    auto* table = window.findChild<ProcessTableView*>();
    auto* panel = window.findChild<InspectorPanel*>();
    settle();
    QTest::keyClick(table, Qt::Key_Return);
    camera.take(window, u"inspector-none"_s);
    table->select(*stage.model.process(pid));
    if (!QTest::qWaitFor([&] { return showsText(*panel, u"/home/ana/src/shop"_s); }))
        qFatal("the process is not read");
    playOn(stage, pid, 60);
    camera.take(window, u"inspector"_s);
    press(*panel, InspectorPanel::tr("Show files"));
    press(*panel, InspectorPanel::tr("Show environment"));
    QTest::qWait(100);
    panel->verticalScrollBar()->setValue(panel->verticalScrollBar()->maximum());
    camera.take(window, u"inspector-end"_s);
    panel->verticalScrollBar()->setValue(0);
    stage.fakes.processes->remove(pid);
    stage.play(1, 24, 8.1);
    window.resize(1600, 1000);
    camera.take(window, u"inspector-ended"_s);
}
