#include "Core/Log.h"
#include "Core/Announcements/MessageCenter.h"
#include "Core/Cleanup/Cleaner.h"
#include "Core/Mcp/ServerToml.h"
#include "Core/SettingsFile.h"
#include "Platform/Freedesktop/DesktopEntries.h"
#include "Platform/Freedesktop/FreedesktopPlaces.h"
#include "Platform/Linux/LinuxRelief.h"
#include "Platform/Linux/ThermalZones.h"
#include "support/ScriptedFeed.h"
#include "support/ScriptedTools.h"
#include "support/TemporaryHome.h"
#include "support/TemporarySettings.h"

#include <QCoroTask>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

/// Records the program's own messages under these filter rules.
class Trace {
public:
    explicit Trace(const QString& rules) {
        messages.clear();
        QLoggingCategory::setFilterRules(rules);
        m_before = qInstallMessageHandler(take);
    }
    ~Trace() {
        qInstallMessageHandler(m_before);
        QLoggingCategory::setFilterRules({});
    }
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    static inline QList<std::pair<QString, QString>> messages; ///< category and text
    static QSet<QString> categories() {
        QSet<QString> all;
        for (const auto& [category, text] : messages)
            all.insert(category);
        return all;
    }
    static bool mentions(const QString& word) {
        return std::ranges::any_of(messages, [&](const auto& each) { return each.second.contains(word); });
    }

private:
    static void take(QtMsgType, const QMessageLogContext& context, const QString& text) {
        if (QByteArrayView(context.category).startsWith("tavrin."))
            messages.append({QString::fromLatin1(context.category), text});
    }

    QtMessageHandler m_before;
};

/// Causes one failure in every logging category.
void failEverywhere(const TemporaryHome& home) {
    TemporarySettings settings;
    const auto tools = std::make_shared<ScriptedTools>();
    tools->answer = [&home](const ToolRequest&) {
        return ToolResult{.launched = true, .exitStatus = 1, .errorLine = home.path()};
    };
    SettingsFile(home.makeFile(u"file"_s) + u"/below.ini"_s).store(u"key"_s, home.path());
    QCoro::waitFor(LinuxRelief(tools).quitApplication(home.path(), false));
    QCoro::waitFor(Cleaner::list({}, home.path(), {}, tools));
    std::stringbuf twice("x = 1\nx = '" + home.path().toStdString() + "'\n");
    ServerToml::read(twice, home.path());
    auto feed = std::make_unique<ScriptedFeed>();
    feed->answer = home.path().toUtf8();
    MessageCenter center(std::move(feed), settings.preferences.file());
    QCoro::waitFor(center.refresh());
    home.makeFile(u"menu/huge.desktop"_s, QByteArray(300 << 10, 'x'));
    DesktopEntries({home.path(u"menu"_s)}).withId(u"huge"_s);
    FreedesktopPlaces(home.path(u"mounts"_s).toStdString()).locate(u"~/.cache"_s);
    const ThermalZones zones(home.path());
}

} // namespace

TEST(Log, IsSilentByDefaultAndMentionsUserDataOnlyForDebugging) {
    const TemporaryHome home;
    const QSet<QString> all = {u"tavrin.platform"_s, u"tavrin.relief"_s, u"tavrin.cleanup"_s, u"tavrin.mcp"_s,
                               u"tavrin.feed"_s};
    {
        const Trace trace({});
        failEverywhere(home);
        EXPECT_TRUE(Trace::messages.isEmpty());
    }
    {
        const Trace trace(u"tavrin.*=true\ntavrin.*.debug=false"_s);
        failEverywhere(home);
        EXPECT_EQ(Trace::categories(), all);
        for (const QString& text : {u"a desktop entry is left out"_s, u"mounts"_s, u"thermal zone"_s})
            EXPECT_TRUE(Trace::mentions(text)) << qPrintable(text);
        EXPECT_FALSE(Trace::mentions(home.path()));
    }
    const Trace trace(u"tavrin.*=true"_s);
    failEverywhere(home);
    EXPECT_TRUE(Trace::mentions(home.path()));
}
