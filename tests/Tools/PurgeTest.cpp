#include "Tools/Purge.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Writes an executable script and returns its path.
std::string script(TemporaryFolder& tree, const QString& name, const QByteArray& text) {
    QFile file(tree.makeFile(name, "#!/bin/sh\n" + text));
    file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    return file.fileName().toStdString();
}

[[noreturn]] void dropAsAnotherUser(const std::string& dropFile) {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setuid(nobody) != 0)
        _exit(99);
    _exit(Tools::dropCleanCaches(dropFile));
}

} // namespace

TEST(PurgeDeathTest, IsRefusedToAnotherUser) {
    EXPECT_EXIT(dropAsAnotherUser("/dev/null"), testing::ExitedWithCode(1), "only the administrator");
}

TEST(Purge, AsksForCleanCachesAlone) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root gets as far as the file";
    TemporaryFolder tree;
    tree.makeFile(u"drop_caches"_s, {});
    EXPECT_EQ(Tools::dropCleanCaches(tree.path().toStdString() + "/drop_caches"), 0);
    EXPECT_EQ(contentOf(tree.path() + u"/drop_caches"_s), "1");
    EXPECT_EQ(Tools::dropCleanCaches(tree.path().toStdString() + "/missing"), 1);
    EXPECT_EQ(Tools::dropCleanCaches("/dev/full"), 1);
}

TEST(PurgeDeathTest, TheAdministratorsPromptGetsTheProgramAndGivesTheStatus) {
    TemporaryFolder tree;
    const std::string prompt = script(tree, u"pkexec"_s, "echo \"asked for $*\" >&2; exit 126\n");
    EXPECT_EXIT(_exit(Tools::runAsAdministrator("/bin/true", prompt)), testing::ExitedWithCode(126),
                "asked for --disable-internal-agent /bin/true\n");
}

TEST(PurgeDeathTest, TheAdministratorIsNeverAskedForWhatOthersCanChange) {
    TemporaryFolder tree; // owned by the user, or in a folder that all may write
    const std::string program = script(tree, u"purge"_s, "exit 0\n");
    EXPECT_EXIT(_exit(Tools::runAsAdministrator(program, "/bin/true")), testing::ExitedWithCode(1),
                "nothing that others can change: .*/");
    EXPECT_EQ(Tools::whyUntrusted("/bin/true"), "");
    EXPECT_NE(Tools::whyUntrusted("/missing"), "");
}

TEST(PurgeDeathTest, AMissingPartIsAMessageAndAFailure) {
    TemporaryFolder tree;
    const std::string missing = tree.path().toStdString() + "/missing";
    EXPECT_EXIT(_exit(Tools::runAsAdministrator("/bin/true", missing)), testing::ExitedWithCode(1),
                "missing: No such file");
    EXPECT_EXIT(_exit(Tools::runAsAdministrator(missing, "/bin/true")), testing::ExitedWithCode(1),
                "missing: No such file");
}
