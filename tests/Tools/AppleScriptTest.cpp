#include "Tools/AppleScript.h"

#include <gtest/gtest.h>

#include <regex>

using Tools::AppleScript;
using Tools::parseAppleScript;
using Verb = AppleScript::Verb;

TEST(AppleScript, RefusesEverythingButItsThreeForms) {
    for (const std::string source :
         {"", "beep", "tell application \"Notes\"", "tell application \"Notes\" to quit ",
          " tell application \"Notes\" to quit", "tell application \"Notes\" to activate",
          "tell application \"Notes\" to quit saving yes", "tell application Notes to quit",
          "Tell application \"Notes\" to quit", "tell application \"\" to quit",
          "tell application \"a\"b\" to quit",
          "tell application \"a\" to quit\ntell application \"b\" to quit",
          "tell application \"a\nb\" to quit", "tell application \"a/../b\" to quit",
          "tell application \"\x7f\" to quit saving no", "do shell script \"/usr/sbin/purge\"",
          "do shell script \"/usr/sbin/purge \" with administrator privileges",
          "do shell script \"/bin/sh\" with administrator privileges",
          "do shell script \"/usr/sbin/purge\" with administrator privileges\n"})
        EXPECT_FALSE(parseAppleScript(source)) << source;
}

TEST(AppleScript, ReadsBackEveryNameAsItWasWritten) {
    for (const std::string name : {"Google Chrome", "a\"b", "\"", "\"\"", "a\\b", "a\\", "a\\\"b", "\\\\\"",
                                   "$(touch x)", "'; rm -rf ~ #", "x\" to quit", "Zoë", "\xff\xfe"}) {
        const std::string escaped = std::regex_replace(name, std::regex("\""), "\\\"");
        for (const auto& [end, verb] : {std::pair("", Verb::Quit), {" saving no", Verb::QuitWithoutSaving}}) {
            const auto script = parseAppleScript("tell application \"" + escaped + "\" to quit" + end);
            ASSERT_TRUE(script) << name;
            EXPECT_EQ(script->application, name);
            EXPECT_EQ(script->verb, verb);
        }
    }
}

TEST(AppleScript, ReadsTheAdministratorsPurge) {
    const auto purge = parseAppleScript("do shell script \"/usr/sbin/purge\" with administrator privileges");
    ASSERT_TRUE(purge);
    EXPECT_EQ(purge->verb, Verb::Purge);
}
