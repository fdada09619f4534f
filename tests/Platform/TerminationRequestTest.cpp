#include "Platform/TerminationRequest.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <csignal>

TEST(TerminationRequest, HearsWhatWasNotIgnoredAtTheStart) {
    const auto hangUpBefore = std::signal(SIGHUP, SIG_IGN); // as nohup(1) does
    int received = 0;
    {
        const TerminationRequest termination;
        QObject::connect(&termination, &TerminationRequest::received, [&received] { ++received; });
        std::raise(SIGHUP);
        QCoreApplication::processEvents();
        EXPECT_EQ(received, 0);
        std::raise(SIGTERM);
        QCoreApplication::processEvents();
        EXPECT_EQ(received, 1);
    }
    std::signal(SIGHUP, hangUpBefore);
    std::signal(SIGINT, SIG_DFL);
}
