#include "UI/Cleanup/ProjectLeftoversSheet.h"

#include "UI/Cleanup/LeftoverRow.h"
#include "UI/Kit/ConfirmDialog.h"
#include "UI/Kit/SearchField.h"
#include "UI/ModelFixture.h"

#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// Returns a project as `project_leftovers` prints it, with one leftover of so many bytes.
QByteArray projectText(const QByteArray& path, const QByteArray& leftover, quint64 bytes,
                       const QByteArrayList& users = {}) {
    QByteArray text = "project 1699999700 " + path + '\0';
    for (const QByteArray& user : users)
        text += "user " + user + '\0';
    return text + "folder " + path + '\0' + "64:7 0 1" + '\0' + "9 " + QByteArray::number(bytes) + " 0 d " +
           leftover + '\0';
}

struct LeftoversSheetTest : ModelFixture {
    QByteArray report = projectText("/src/small", "dist", 1 << 20) +
                        projectText("/src/big\nshop", "node_modules", 5 << 20) +
                        projectText("/src/busy", "target", 3 << 20, {"cargo", "user folder x"});
    QByteArray users; ///< the answer when it is asked again
    QWidget window;
    QPointer<ProjectLeftoversSheet> sheet;

    LeftoversSheetTest() {
        fakes.tools->answer = [this](const ToolRequest& request) {
            if (request.launchPath == u"git")
                return ScriptedTools::exited(0, request.arguments[1].endsWith(u"small") ? " M a.c\n" : "");
            if (request.launchPath == u"project_leftovers")
                return ScriptedTools::exited(0, request.arguments[0] == u"find" ? report : users);
            return ScriptedTools::exited(0, "9 3\nvolume 50 1048626\n");
        };
        tick();
    }
    void open() {
        sheet = new ProjectLeftoversSheet(model, prefs, &window);
        sheet->show();
        for (int i = 0; i < 10; ++i)
            settle();
    }
    QStringList rows() { return shownNames<LeftoverRow>(*sheet); }
    QPointer<ConfirmDialog> question() { return sheet->findChild<ConfirmDialog*>(); }
    QList<ToolRequest> removals() {
        QList<ToolRequest> found;
        for (const ToolRequest& request : std::as_const(fakes.tools->requests)) {
            if (request.launchPath == u"cleanup")
                found.append(request);
        }
        return found;
    }
};

const auto bigRow = u"/src/big␊shop, node_modules, 5 MB, 5 minutes ago"_s;
const auto busyRow = u"/src/busy, target, 3 MB, 5 minutes ago, in use by cargo, user folder x"_s;
const auto smallRow = u"/src/small, dist, 1 MB, 5 minutes ago, uncommitted changes"_s;

} // namespace

TEST_F(LeftoversSheetTest, ListsTheLargestFirstWithWhatIsKnownOfThem) {
    open();
    EXPECT_EQ(rows(), QStringList({bigRow, busyRow, smallRow}));
    EXPECT_EQ(fakes.tools->requests.first().arguments, QStringList({u"find"_s, home.path()}));
    EXPECT_EQ(fakes.tools->commandLines().filter(u" status "_s).size(), 3);
    sheet->findChild<SearchField*>()->setText(u"UNCOMM"_s);
    settle();
    EXPECT_EQ(rows(), QStringList(smallRow));
    sheet->findChild<SearchField*>()->setText(u"no such thing"_s);
    settle();
    EXPECT_TRUE(showsText(*sheet, u"No projects match"_s));
    press(*sheet, u"Clear search"_s);
    EXPECT_EQ(rows().size(), 3);

    delete sheet;
    prefs.projectFolders.set({u"/src"_s, u"relative"_s});
    open();
    EXPECT_EQ(fakes.tools->commandLines().filter(u"find"_s).size(), 1) << "what is known is shown again";
    press(*sheet, u"Search again"_s);
    EXPECT_EQ(fakes.tools->requests.last().arguments, QStringList({u"find"_s, u"/src"_s}));
}

TEST_F(LeftoversSheetTest, RemovesAfterAQuestionWhatWasTicked) {
    open();
    EXPECT_FALSE(buttonNamed(*sheet, u"Remove…"_s)->isEnabled());
    for (auto* row : sheet->findChildren<LeftoverRow*>())
        QTest::mouseClick(row, Qt::LeftButton);
    settle();
    press(*sheet, u"Remove 2 folders (6 MB)…"_s);
    ASSERT_TRUE(question());
    EXPECT_TRUE(shownNames<QWidget>(*question()).contains(u"/src/big␊shop/node_modules, 5 MB"_s));
    QTest::keyClick(question(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(removals().isEmpty()) << "the safe answer";

    press(*sheet, u"Remove 2 folders (6 MB)…"_s);
    press(*question(), u"Remove 6 MB"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.projectLeftovers().lastRemoval().has_value(); }));
    settle();
    ASSERT_EQ(removals().size(), 2);
    EXPECT_EQ(removals().first().arguments.last(), u"/src/big\nshop"_s);
    EXPECT_EQ(removals().first().input, QByteArray("64:7 0 1\0009 5242880 0 d node_modules\0", 36));
    EXPECT_EQ(rows(), QStringList(busyRow));
    EXPECT_TRUE(showsText(*sheet, u"Removed 2 folders, freed ~6 MB • 2 MB came back on the disk"_s));
    EXPECT_EQ(logged(),
              QStringList({u"clean /src/small/dist ok"_s, u"clean /src/big␊shop/node_modules ok"_s}));
}

TEST_F(LeftoversSheetTest, LeavesAloneWhatAProgramWorksInByNow) {
    open();
    QTest::mouseClick(sheet->findChildren<LeftoverRow*>().first(), Qt::LeftButton);
    settle();
    users = QByteArray("user node\0", 10);
    press(*sheet, u"Remove 1 folder (5 MB)…"_s);
    press(*question(), u"Remove 5 MB"_s);
    for (int i = 0; i < 10; ++i)
        settle();
    EXPECT_TRUE(removals().isEmpty());
    EXPECT_TRUE(showsText(*sheet, u"Not finished: /src/big␊shop/node_modules (in use by node)"_s));
    EXPECT_EQ(logged(), QStringList(u"clean /src/big␊shop/node_modules fail"_s));
    EXPECT_EQ(rows().first(), bigRow);
}

TEST_F(LeftoversSheetTest, ShowsHowFarARemovalIs) {
    open();
    QTest::mouseClick(sheet->findChildren<LeftoverRow*>().first(), Qt::LeftButton);
    settle();
    press(*sheet, u"Remove 1 folder (5 MB)…"_s);
    fakes.tools->suspended = true;
    press(*question(), u"Remove 5 MB"_s);
    EXPECT_TRUE(showsText(*sheet, u"0 bytes of 5 MB"_s));
    fakes.tools->release(u"users"_s);
    fakes.tools->requests.last().onOutput("3145728 200");
    settle();
    EXPECT_TRUE(showsText(*sheet, u"3 MB of 5 MB • Removing /src/big␊shop/node_modules"_s));
    fakes.tools->release(u"/src/big\nshop"_s);
    const QString done = u"Removed 1 folder, freed ~5 MB • 1 MB came back on the disk"_s;
    EXPECT_TRUE(QTest::qWaitFor([&] { return showsText(*sheet, done); }));
}

TEST_F(LeftoversSheetTest, ASearchSaysWhereItIsAndCanBeStopped) {
    fakes.tools->suspended = true;
    open();
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_TRUE(showsText(*sheet, u"0 projects found"_s));
    for (const char* record : {"at /src/big\nshop", "project 5 /src/big\nshop", "at /src/caf\xc3\xa9"})
        fakes.tools->requests.first().onOutput(record);
    settle();
    EXPECT_TRUE(showsText(*sheet, u"1 project found • Looking in /src/café"_s));
    press(*sheet, u"Stop searching or removing"_s);
    EXPECT_TRUE(fakes.tools->requests.first().stop.stop_requested());
    fakes.tools->suspended = false;
    fakes.tools->answer = [](const ToolRequest&) { return ToolResult{.launched = true}; };
    fakes.tools->release(u"find"_s);
    settle();
    EXPECT_TRUE(showsText(*sheet, u"Not finished: the search (cancelled)"_s));
    EXPECT_TRUE(showsText(*sheet, u"The search did not finish"_s));
    EXPECT_FALSE(model.projectLeftovers().lastSearch());
    EXPECT_TRUE(buttonNamed(*sheet, u"Search again"_s)->isEnabled());

    fakes.tools->answer = [](const ToolRequest& request) {
        request.onOutput("at /net/away");
        return ToolResult{.launched = true};
    };
    press(*sheet, u"Search again"_s);
    settle();
    EXPECT_TRUE(showsText(*sheet, u"Not finished: the search (/net/away does not answer.)"_s));
}

TEST(LeftoverProject, ReadsWhatIsWellFormed) {
    const QByteArray good = projectText("/a", "target", 5) + projectText("/caf\xe9", "x y\nz", 7);
    const auto paths = [](const QByteArray& text) {
        QByteArrayList read;
        for (const LeftoverProject& project : LeftoverProject::parse(text))
            read.append(project.folders.first().path);
        return read;
    };
    EXPECT_EQ(paths(good).last(), QByteArray("/a/target"));
    const std::pair<QByteArray, qsizetype> cases[] = {
        {good, 2},
        {good.chopped(1), 1},
        {"Welcome\n" + good, 1},
        {QByteArray("project x /a\0", 13) + good, 2},
        {projectText("relative", "target", 5), 0},
        {"project 5", 0},
        {{}, 0},
    };
    for (const auto& [text, count] : cases)
        EXPECT_EQ(paths(text).size(), count) << text.toStdString();
}
