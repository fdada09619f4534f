#include "Tools/AppleScript.h"

#include <gtest/gtest.h>

using Tools::AppleScript;
using Tools::parseAppleScript;
using Verb = AppleScript::Verb;

TEST(AppleScript, RefusesEverythingButItsThreeForms) {
    for (const std::string source : {
             "",
             "beep",
             "tell application \"Notes\"",
             "tell application \"Notes\" to quit ",
             " tell application \"Notes\" to quit",
             "tell application \"Notes\" to activate",
             "tell application \"Notes\" to quit saving yes",
             "tell application Notes to quit",
             "Tell application \"Notes\" to quit",
             "tell application \"\" to quit",
             "tell application \"a\"b\" to quit",
             "tell application \"a\" to quit\ntell application \"b\" to quit",
             "tell application \"a\nb\" to quit",
             "tell application \"a/../b\" to quit",
             "tell application \"\x7f\" to quit saving no",
             "do shell script \"/usr/sbin/purge\"",
             "do shell script \"/usr/sbin/purge \" with administrator privileges",
             "do shell script \"/bin/sh\" with administrator privileges",
             "do shell script \"/usr/sbin/purge\" with administrator privileges\n",
         })
        EXPECT_FALSE(parseAppleScript(source)) << source;
}

TEST(AppleScript, ReadsBackEveryNameAsItWasWritten) {
    const auto escaped = [](const std::string& name) {
        std::string text;
        for (const char character : name)
            text += character == '"' ? std::string("\\\"") : std::string(1, character);
        return text;
    };
    for (const std::string name : {"Google Chrome", "a\"b", "\"", "\"\"", "a\\b", "a\\", "a\\\"b", "\\\\\"",
                                   "$(touch x)", "'; rm -rf ~ #", "x\" to quit", "Zoë", "\xff\xfe"}) {
        const std::string start = "tell application \"" + escaped(name);
        const auto plain = parseAppleScript(start + "\" to quit");
        ASSERT_TRUE(plain) << name;
        EXPECT_EQ(plain->application, name);
        EXPECT_EQ(plain->verb, Verb::Quit);
        const auto forced = parseAppleScript(start + "\" to quit saving no");
        ASSERT_TRUE(forced) << name;
        EXPECT_EQ(forced->application, name);
        EXPECT_EQ(forced->verb, Verb::QuitWithoutSaving);
    }
}

TEST(AppleScript, ReadsTheAdministratorsPurge) {
    const auto purge = parseAppleScript("do shell script \"/usr/sbin/purge\" with administrator privileges");
    ASSERT_TRUE(purge);
    EXPECT_EQ(purge->verb, Verb::Purge);
}
