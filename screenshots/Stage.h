#pragma once

#include "Core/Announcements/MessageCenter.h"
#include "UI/ModelFixture.h"
#include "support/ScriptedFeed.h"

/// A machine that has been busy for a while.
struct Stage : ModelFixture {
    ScriptedFeed* feed = new ScriptedFeed;
    MessageCenter messages{std::unique_ptr<FeedSource>(feed), prefs.file()};

    Stage();
    void TestBody() override {}

    /// Fires `ticks` ticks, with a load about `load` percent and `usedGB` of memory in use at the end.
    void play(int ticks, double load, double usedGB);
    /// Lets `du` find something in most caches.
    void fillCaches();
    void addServers();

private:
    void playCores(double load);

    QHash<QByteArray, quint64> m_cpuTimePerTick;
    int m_played = 0; ///< ticks
};
