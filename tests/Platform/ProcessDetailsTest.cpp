#include "Platform/Linux/LinuxProcessDetails.h"

#include "Platform/Child.h"
#include "support/TemporaryFolder.h"

#include <QTest>

#include <gtest/gtest.h>

#include <unistd.h>

TEST(ProcessDetailsTest, AChildIsReadAsItWasStarted) {
    const TemporaryFolder folder;
    const std::string file = folder.makeFile(QStringLiteral("open")).toStdString();
    const Child child(
        "/bin/sh",
        {"/bin/sh", "-c", "cd " + folder.path().toStdString() + " && exec 7<open && MARK=x=y exec sleep 60"});
    LinuxProcessDetails details;
    for (int i = 0; i < 400 && details.commandLine(child.pid()).value(0) != "sleep"; ++i)
        usleep(10'000);
    EXPECT_EQ(details.commandLine(child.pid()), (QByteArrayList{"sleep", "60"}));
    EXPECT_EQ(details.workingDirectory(child.pid()), folder.path().toUtf8());
    EXPECT_TRUE(details.environment(child.pid()).value().contains("MARK=x=y"));
    const auto files = details.openFiles(child.pid(), 100).value();
    EXPECT_TRUE(files.first.contains(QByteArray::fromStdString(file)));
    EXPECT_EQ(files.count, files.first.size());
    EXPECT_EQ(details.openFiles(child.pid(), 1).value().first.size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { // it opens and closes files while it starts
        return details.openFiles(child.pid(), 1)->count == details.openFiles(child.pid(), 100)->count;
    }));
    EXPECT_TRUE(details.disk(child.pid()));
    EXPECT_EQ(details.userName(0), QStringLiteral("root"));
    EXPECT_EQ(details.userName(4'000'000'001), QString());
}

TEST(ProcessDetailsTest, WhatIsGoneOrMissingIsUnknown) {
    const TemporaryFolder root;
    root.makeFile(QStringLiteral("5/io"),
                  "rchar: 99\nread_bytes: 4096\nwrite_bytes: 512\ncancelled_write_bytes: 0\n");
    root.makeFile(QStringLiteral("6/io"), "rchar: 99\n");
    root.makeFile(QStringLiteral("5/cgroup"), "1:name=systemd:/old\n0::/user.slice/app.scope\n");
    LinuxProcessDetails details(root.path().toStdString());
    EXPECT_EQ(details.disk(5), (DiskCounters{.readBytes = 4096, .writtenBytes = 512}));
    EXPECT_EQ(details.disk(6), std::nullopt);
    EXPECT_EQ(details.disk(7), std::nullopt);
    EXPECT_EQ(details.controlGroup(5), "/user.slice/app.scope");
    EXPECT_EQ(details.controlGroup(7), QByteArray());
    EXPECT_EQ(details.environment(7), std::nullopt);
    EXPECT_EQ(details.openFiles(7, 100), std::nullopt);
    EXPECT_EQ(details.commandLine(7), QByteArrayList());
}
