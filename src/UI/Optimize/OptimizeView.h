#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "Core/Relief/QuickKillPreset.h"

#include <QScrollArea>

#include <stop_token>

class AppModel;
class AutoOptimizeCard;
class CachesCard;
class MCPCard;
class MemoryCard;
class Notice;
class Preferences;
class QuickKillsCard;

/// The second section of the main window: everything that gives memory and disk back, card by card.
class OptimizeView : public QScrollArea {
    Q_OBJECT

public:
    OptimizeView(AppModel& model, Preferences& preferences, QWidget* parent = nullptr);

    /// Returns what tells of outcomes. It stands beside the section's title, so that no card moves under the
    /// second press of a double click. Until it is placed there it belongs to this widget.
    Notice* notice() const { return m_notice; }

private:
    void connectCards();
    void refresh();
    void toast(const QString& message, const QString& failure = {});
    void nudge();
    void purge();
    void killPreset(const QuickKillPreset& preset);
    void killOrphans();
    void confirmCleanAll();
    void cleanAll(const QList<CacheTarget>& targets);

    AppModel& m_model;
    Preferences& m_preferences;
    Notice* m_notice;
    std::stop_source m_stopPurge; ///< of the last purge
    MemoryCard* m_memory;
    QuickKillsCard* m_quickKills;
    MCPCard* m_mcp;
    CachesCard* m_caches;
    AutoOptimizeCard* m_auto;
};
