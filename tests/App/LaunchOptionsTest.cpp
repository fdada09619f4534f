#include "LaunchOptions.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

LaunchOptions parsed(const QString& arguments) {
    return LaunchOptions::parse(arguments.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(LaunchOptions, SayWhereToOpen) {
    EXPECT_EQ(parsed({}), LaunchOptions());
    EXPECT_EQ(parsed(u"--hidden"_s), LaunchOptions{.isHidden = true});
    EXPECT_EQ(parsed(u"--section Cleanup"_s).place, Destination::cleanup);
    EXPECT_EQ(parsed(u"--section=free-ram"_s).place, Destination::freeRAM);
    // What Qt and session managers pass.
    EXPECT_EQ(parsed(u"-session 10f00ba -style=fusion --platform xcb -reverse --section settings"_s),
              LaunchOptions{.place = Destination::settings});
    EXPECT_EQ(parsed(u"-session"_s), LaunchOptions());
    for (const auto& [arguments, text] : {std::pair{u"--help"_s, u"free-ram, settings"_s},
                                          std::pair{u"--hidden --version"_s, u"Tavrin "_s}}) {
        const auto answer = parsed(arguments).answer;
        ASSERT_TRUE(answer.has_value()) << qPrintable(arguments);
        EXPECT_EQ(answer->status, 0);
        EXPECT_TRUE(answer->text.contains(text)) << qPrintable(answer->text);
    }
    for (const QString& arguments :
         {u"--hiden"_s, u"-x"_s, u"--section"_s, u"--section nowhere"_s, u"file"_s}) {
        const auto answer = parsed(arguments).answer;
        ASSERT_TRUE(answer.has_value()) << qPrintable(arguments);
        EXPECT_EQ(answer->status, 2) << qPrintable(arguments);
        EXPECT_EQ(answer->text.indexOf(u'\n'), answer->text.size() - 1) << qPrintable(answer->text);
    }
}

TEST(LaunchOptions, ReachTheRunningProgram) {
    for (const LaunchOptions& options :
         {LaunchOptions(), LaunchOptions{.isHidden = true}, LaunchOptions{.place = Destination::sessions}})
        EXPECT_EQ(LaunchOptions::ofRequest(options.request()), options);
    EXPECT_EQ(LaunchOptions::ofRequest(QByteArray("\xff\x00rm", 4)), LaunchOptions());
}
