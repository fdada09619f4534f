#include "Camera.h"
#include "Screens.h"
#include "Stage.h"

#include "Core/Translations.h"
#include "Platform/CleanupTargets.h"
#include "UI/Cleanup/CacheCard.h"
#include "UI/Cleanup/CleanupView.h"
#include "UI/Cleanup/LeftoverRow.h"
#include "UI/Cleanup/ProjectLeftoversSheet.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/MainWindow.h"
#include "UI/RootView.h"

#include <QCheckBox>
#include <QCoroTask>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

struct Build {
    const char* project;
    const char* folders; ///< with their MiB
    int daysAgo;
    const char* user = "";
};

constexpr Build builds[] = {
    {"work/shop", "node_modules 1480 .next 412 packages/api/node_modules 88", 3},
    {"work/engine", "target 9340", 41, "rust-analyzer"},
    {"src/paper-figures", ".venv 2210 __pycache__ 1", 190},
    {"src/a-project-with-quite-a-long-name-that-does-not-fit-into-its-column-at-all", "build 640 dist 12", 1},
    {"src/two\nlines", "target 320", 700},
    {"old/android/app", ".gradle 96 build 540", 1100},
};

/// Prints the builds as `project_leftovers` does.
QByteArray buildsOf(const QString& home, qint64 now) {
    QByteArray text;
    for (const Build& build : builds) {
        const QByteArray path = QFile::encodeName(home) + '/' + build.project;
        text += "project " + QByteArray::number(now - build.daysAgo * 86400) + ' ' + path + '\0';
        if (*build.user != '\0')
            text += QByteArray("user ") + build.user + '\0';
        text += "folder " + path + '\0' + "64:2 0 1" + '\0';
        const QByteArrayList words = QByteArray(build.folders).split(' ');
        for (qsizetype i = 0; i + 1 < words.size(); i += 2)
            text += "7 " + QByteArray::number(words[i + 1].toULongLong() << 20) + " 0 d " + words[i] + '\0';
    }
    return text;
}

/// Gives the machine targets of its own, with something in most of them.
void addSystemTargets(Stage& stage) {
    stage.fakes.cleanupTargets->targets = Platform::native().cleanupTargets->all();
    for (const PlatformTarget& target : std::as_const(stage.fakes.cleanupTargets->targets)) {
        for (const QString& path : target.paths) {
            const QString below = QString(path).remove(u'$').remove(u'~').replace(u'*', u"any"_s);
            const QString folder = stage.home.path(u"system/"_s + below);
            stage.fakes.places->elsewhere[path] = {folder};
            if (qHash(below, 5) % 3 > 0)
                QDir().mkpath(folder);
        }
    }
    stage.fakes.places->impossible = {u"~/Library/Developer/Xcode/DerivedData"_s,
                                      u"~/Library/Developer/CoreSimulator/Caches"_s};
}

void shootLeftovers(Camera& camera, MainWindow& window) {
    for (CacheCard* card : window.findChildren<CacheCard*>()) {
        if (card->accessibleName().startsWith(Translations::of(u"Project leftovers"_s)))
            card->click();
    }
    auto* sheet = window.findChild<ProjectLeftoversSheet*>();
    for (int i = 0; i < 20; ++i)
        settle();
    const QList<LeftoverRow*> rows = sheet->findChildren<LeftoverRow*>();
    for (const int row : {1, 2, 4})
        rows.at(row)->click();
    settle();
    camera.take(*sheet, u"cleanup-leftovers"_s);
    sheet->findChildren<PushButton*>().last()->click();
    camera.take(*sheet->findChild<ConfirmDialog*>(), u"cleanup-leftovers-confirm"_s);
    sheet->findChild<ConfirmDialog*>()->findChildren<PushButton*>().last()->click();
    for (int i = 0; i < 20; ++i)
        settle();
    camera.take(*sheet, u"cleanup-leftovers-removed"_s);
    sheet->reject();
    settle();
}

} // namespace

void shootCleanup(Camera& camera) {
    Stage stage;
    stage.fillCaches();
    addSystemTargets(stage);
    const auto caches = stage.fakes.tools->answer;
    stage.fakes.tools->answer = [&stage, caches](const ToolRequest& request) {
        const qint64 now =
            std::chrono::duration_cast<std::chrono::seconds>(stage.fakes.clock->wall.time_since_epoch())
                .count();
        const bool isSearch = request.arguments.value(0) == u"find";
        if (request.launchPath == u"project_leftovers")
            return ScriptedTools::exited(0, isSearch ? buildsOf(stage.home.path(), now) : QByteArray());
        if (request.launchPath == u"git")
            return ScriptedTools::exited(0, request.arguments.value(1).endsWith(u"shop") ? " M a.ts\n" : "");
        if (request.launchPath == u"/bin/sh" && request.arguments.last().contains(u"journalctl"))
            return ScriptedTools::exited(0, "1288490188");
        if (request.input.contains("target"))
            return ToolResult{.launched = true,
                              .exitStatus = 1,
                              .errorLine = u"2 entries are left, target for one: Permission denied"_s};
        return request.input.isEmpty() ? caches(request) : ScriptedTools::exited(0);
    };
    AppModel model(stage.fakes.platform(), stage.prefs);
    QMetaObject::invokeMethod(&model, "tick");
    MainWindow window(model, stage.prefs, stage.messages);
    window.resize(RootView::minimumContent);
    window.show();
    window.findChild<RootView*>()->select(RootView::Tab::cleanup);
    settle();
    camera.take(window, u"cleanup-system-unscanned"_s);
    QCoro::waitFor(model.cleanup().rescan());
    QMetaObject::invokeMethod(&model, "tick");
    settle();
    camera.take(window, u"cleanup-system"_s);
    const CleanupView& view = *window.findChild<CleanupView*>();
    view.findChild<QCheckBox*>()->click();
    settle();
    QScrollBar* scroll = view.findChild<QScrollArea*>()->verticalScrollBar();
    scroll->setValue(scroll->maximum());
    camera.take(window, u"cleanup-show-all"_s);
    shootLeftovers(camera, window);
}
