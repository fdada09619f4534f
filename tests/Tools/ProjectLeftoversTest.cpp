#include "Tools/ProjectLeftovers.h"

#include "Tools/GitRepository.h"
#include "Tools/ToolProcess.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;
using namespace Tools;

namespace {

/// Runs git in the folder, without the user's settings.
void git(const QString& folder, const QStringList& arguments) {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"GIT_CONFIG_GLOBAL"_s, u"/dev/null"_s);
    environment.insert(u"GIT_CONFIG_NOSYSTEM"_s, u"1"_s);
    process.setProcessEnvironment(environment);
    process.start(u"git"_s,
                  QStringList{u"-C"_s, folder, u"-c"_s, u"user.name=a"_s, u"-c"_s, u"user.email=a@b"_s} +
                      arguments);
    ASSERT_TRUE(process.waitForFinished());
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

struct LeftoversTest : testing::Test {
    TemporaryHome home;
    Excludes excludes;
    std::string top = std::filesystem::canonical(home.path().toStdString()).string();

    ~LeftoversTest() {
        for (const auto& entry : std::filesystem::directory_iterator(top)) // of names that Qt cannot remove
            std::filesystem::remove_all(entry.path());
    }
    void make(const std::string& file, const std::string& content = "x") {
        const auto path = std::filesystem::path(top) / file;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << content;
    }
    std::vector<LeftoverProject> search(const std::string& procFolder = "/no/processes") {
        std::vector<LeftoverProject> found;
        findLeftovers({top}, ProcessPaths(procFolder, {top}), excludes,
                      [&found](const LeftoverProject& project) { found.push_back(project); });
        return found;
    }
    /// Returns "PROJECT: LEFTOVER LEFTOVER" of each project, both sorted.
    std::vector<std::string> found() {
        std::vector<std::string> lines;
        for (const LeftoverProject& project : search()) {
            std::vector<std::string> names;
            for (const CleanupListing::Entry& entry : project.listing.entries)
                names.push_back(entry.path);
            std::ranges::sort(names);
            lines.push_back(project.path.substr(std::min(top.size() + 1, project.path.size())) + ':');
            for (const std::string& name : names)
                lines.back() += ' ' + name;
        }
        std::ranges::sort(lines);
        return lines;
    }
    void commit(const std::string& folder) {
        const QString path = QString::fromStdString(top + '/' + folder);
        git(path, {u"init"_s, u"-q"_s});
        git(path, {u"add"_s, u"-A"_s});
        git(path, {u"commit"_s, u"-q"_s, u"-m"_s, u"x"_s});
    }
};

using Lines = std::vector<std::string>;

} // namespace

TEST_F(LeftoversTest, TellsAgainOfAFolderWhileItIsMeasured) {
    make("app/package.json");
    for (const char* package : {"one", "two", "three"})
        make(std::string("app/node_modules/") + package + "/index.js");
    std::atomic<int> times = 0;
    findLeftovers(
        {top}, ProcessPaths("/no/processes", {top}), excludes, [](const LeftoverProject&) {},
        [&](const std::string& folder) { times += folder == top + "/app/node_modules"; });
    EXPECT_EQ(times, 5) << "once before, and once for each folder in it";
}

TEST_F(LeftoversTest, FindsWhatEachMakerLeaves) {
    for (const char* file :
         {"js/package.json", "js/src/a.js", "rust/Cargo.toml", "py/a.py", "gradle/build.gradle.kts",
          "tox/tox.ini", "cmake/CMakeLists.txt", "go/go.mod", "php/composer.json"})
        make(file);
    commit("js");
    commit("go");
    for (const char* file :
         {"js/node_modules/a/package.json", "js/node_modules/a/node_modules/b/package.json", "js/.next/x",
          "js/.nuxt/x", "js/.turbo/x", "js/dist/x", "js/build/x", "rust/target/debug/x",
          "py/.venv/pyvenv.cfg", "py/venv/pyvenv.cfg", "py/__pycache__/a.pyc", "gradle/.gradle/x",
          "tox/.tox/x", "cmake/build/CMakeCache.txt", "go/vendor/x", "other/target/CACHEDIR.TAG"})
        make(file);
    EXPECT_EQ(found(), (Lines{"cmake: build", "go: vendor", "gradle: .gradle",
                              "js: .next .nuxt .turbo build dist node_modules", "other: target",
                              "py: .venv __pycache__ venv", "rust: target", "tox: .tox"}));
}

TEST_F(LeftoversTest, LeavesAloneWhatMayBeSomebodysWork) {
    for (const char* file : {"tracked/package.json",
                             "tracked/build/script.js",
                             "tracked/vendor/lib.go",
                             "tracked/go.mod",
                             "tracked/node_modules/mine/a.js",
                             "plain/target/report.txt",
                             "plain/node_modules/a.js",
                             "nogit/package.json",
                             "nogit/build/mine.txt",
                             "nogit/dist/mine.txt",
                             "nogit/go.mod",
                             "nogit/vendor/mine.go",
                             "venvs/venv/notes.txt",
                             "docs/__pycache__/letter.txt",
                             "elsewhere/big/x",
                             ".hidden/package.json",
                             ".hidden/node_modules/x",
                             "linked/package.json",
                             "file/package.json",
                             "file/node_modules"})
        make(file);
    commit("tracked");
    std::filesystem::create_symlink(top + "/elsewhere/big", top + "/linked/node_modules");
    std::filesystem::create_symlink(top + "/.hidden", top + "/shown");
    EXPECT_EQ(found(), Lines());
    git(home.path(), {u"init"_s, u"-q"_s});
    EXPECT_EQ(found(), Lines()) << "a home folder in git does not know the projects below it";

    std::ofstream(top + "/tracked/.git/index") << "DIRC, but no index";
    make("tracked/dist/x");
    EXPECT_EQ(found(), Lines()) << "an index that cannot be read says nothing";
}

TEST_F(LeftoversTest, AWorkspaceIsOneProjectAndARepositoryInsideAnother) {
    for (const char* file : {"mono/package.json", "mono/node_modules/x", "mono/packages/a/package.json",
                             "mono/packages/a/node_modules/x", "mono/packages/a/Cargo.toml",
                             "mono/packages/a/target/x", "mono/sub/Cargo.toml", "mono/sub/target/x"})
        make(file);
    git(QString::fromStdString(top + "/mono/sub"), {u"init"_s, u"-q"_s});
    const Lines expected = {"mono/sub: target",
                            "mono: node_modules packages/a/node_modules packages/a/target"};
    EXPECT_EQ(found(), expected);
    git(home.path(), {u"init"_s, u"-q"_s});
    EXPECT_EQ(found(), expected) << "the home folder is no project, though its settings are in git";

    std::vector<std::string> paths;
    findLeftovers({top + "/mono/packages", top, top + "/mono"}, ProcessPaths("/no/processes", {}), {},
                  [&](const LeftoverProject& project) { paths.push_back(project.path); });
    EXPECT_EQ(paths.size(), 2U) << "each folder is looked at once";
    excludes.add(top + "/mono/packages");
    excludes.add("target");
    EXPECT_EQ(found(), Lines{"mono: node_modules"});
    excludes = {};
    std::string deep = "deep";
    for (int i = 0; i < 14; ++i)
        deep += "/d";
    make(deep + "/package.json");
    make(deep + "/node_modules/x");
    EXPECT_EQ(found(), expected);
}

TEST_F(LeftoversTest, KnowsTheLastUse) {
    make("a/package.json");
    make("a/src/new.js");
    make("a/node_modules/x");
    const auto at = [](std::int64_t seconds) {
        return std::chrono::file_clock::from_sys(
            std::chrono::sys_time<std::chrono::seconds>(std::chrono::seconds(seconds)));
    };
    std::filesystem::last_write_time(top + "/a/package.json", at(1'000'000));
    std::filesystem::last_write_time(top + "/a/src/new.js", at(2'000'000));
    make("a/src/future.js");
    std::filesystem::last_write_time(top + "/a/src/future.js", at(std::time(nullptr) + 1000));
    EXPECT_EQ(search().at(0).lastUse, 2'000'000) << "what is in a leftover or of the future does not count";
    make("a/.git/logs/HEAD", "0 1 A > B <a@b> 1500000 +0100\tcommit\n1 2 A > B <a@b> 3000000 -0800\tx > 9\n");
    EXPECT_EQ(search().at(0).lastUse, 3'000'000);
    make("a/.git/logs/HEAD", "nothing");
    EXPECT_EQ(search().at(0).lastUse, 2'000'000);
}

TEST_F(LeftoversTest, SaysWhoWorksInAProject) {
    make("a/package.json");
    make("a/node_modules/x");
    make("ab/package.json");
    make("ab/node_modules/x");
    QProcess worker;
    worker.setWorkingDirectory(QString::fromStdString(top + "/a"));
    worker.start(u"sleep"_s, {u"60"_s});
    ASSERT_TRUE(worker.waitForStarted());
    for (const LeftoverProject& project : search("/proc")) {
        const bool isUsed = project.path.ends_with("/a");
        EXPECT_EQ(project.users, isUsed ? Lines{"sleep"} : Lines()) << project.path;
        EXPECT_EQ(project.listing.entries.at(0).isInUse, isUsed);
    }
    const QByteArray path = QByteArray::fromStdString(top + "/a");
    EXPECT_EQ(runTool(u"project_leftovers"_s, {u"users"_s}, path + '\0').output,
              QByteArray("user sleep\0", 11));
    worker.kill();
    worker.waitForFinished();
    EXPECT_EQ(runTool(u"project_leftovers"_s, {u"users"_s}, path + '\0').output, QByteArray());
    EXPECT_EQ(runTool(u"project_leftovers"_s, {u"users"_s}, path).status, 2);
    EXPECT_EQ(runTool(u"project_leftovers"_s, {u"find"_s, u"relative"_s}).status, 2);
    const QByteArray places = runTool(u"project_leftovers"_s, {u"find"_s, home.path()}).output;
    EXPECT_TRUE(places.startsWith("at " + QByteArray::fromStdString(top) + '\0')) << places.toStdString();
}

TEST_F(LeftoversTest, ItsListingRemovesExactlyTheLeftoversWhateverTheirNames) {
    const std::string names[] = {"plain", "two\nlines", "user x\tfolder y", "caf\xe9", "\xe2\x82", "-rf"};
    for (const std::string& name : names) {
        make(name + "/package.json");
        make(name + "/node_modules/deep/x");
        make(name + "/node_modules_of_mine/x");
    }
    const std::vector<LeftoverProject> projects = search();
    ASSERT_EQ(projects.size(), std::size(names));
    for (const LeftoverProject& project : projects) {
        EXPECT_GE(project.listing.bytes, 8192U);
        EXPECT_EQ(QFile::encodeName(QFile::decodeName(project.listed.c_str())).toStdString(), project.listed);
        std::ostringstream listing;
        project.listing.write(listing);
        const EndedTool removal = runTool(u"cleanup"_s, {u"remove"_s, QString::fromStdString(project.listed)},
                                          QByteArray::fromStdString(listing.str()));
        EXPECT_EQ(removal.status, 0) << removal.error.toStdString();
        EXPECT_FALSE(std::filesystem::exists(project.path + "/node_modules"));
        EXPECT_TRUE(std::filesystem::exists(project.path + "/package.json"));
        EXPECT_TRUE(std::filesystem::exists(project.path + "/node_modules_of_mine/x"));
    }
}

TEST_F(LeftoversTest, ReadsEveryKindOfIndex) {
    make("r/dir/sub/a");
    make("r/dir/sub/b");
    make("r/dir.c");
    make("r/name that is long enough for the padding of an entry/x");
    commit("r");
    const QString repository = QString::fromStdString(top + "/r");
    for (const char* version : {"2", "3", "4"}) {
        make("r/intended");
        git(repository, {u"update-index"_s, u"--index-version"_s, QString::fromUtf8(version)});
        git(repository, {u"add"_s, u"-N"_s, u"intended"_s}); // needs the flags of version 3
        GitRepository read(top + "/r");
        for (const char* path : {"dir", "dir/sub", "name that is long enough for the padding of an entry"})
            EXPECT_TRUE(read.tracks(path)) << version << path;
        for (const char* path : {"di", "sub", "dir/su", "build"})
            EXPECT_FALSE(read.tracks(path)) << version << path;
        git(repository, {u"rm"_s, u"-q"_s, u"--cached"_s, u"intended"_s});
    }
    git(repository, {u"worktree"_s, u"add"_s, u"-q"_s, u"../linked"_s});
    EXPECT_TRUE(GitRepository(top + "/linked").tracks("dir"));
    EXPECT_FALSE(GitRepository(top + "/linked").tracks("build"));
    EXPECT_GT(GitRepository(top + "/linked").lastMove(), 1'600'000'000);
    std::ifstream file(top + "/r/.git/index", std::ios::binary);
    const std::string index{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(GitIndex::parse(index, 20));
    for (std::size_t length = 0; length < index.size() / 2; ++length)
        EXPECT_FALSE(GitIndex::parse(std::string_view(index).substr(0, length), 20)) << length;
    git(repository, {u"update-index"_s, u"--split-index"_s});
    EXPECT_TRUE(GitRepository(top + "/r").tracks("build")) << "a part of an index says nothing";
}
