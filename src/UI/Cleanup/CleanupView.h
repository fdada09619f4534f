#pragma once

#include "Core/Cleanup/CacheTarget.h"
#include "UI/Kit/RowPool.h"

#include <QWidget>

class AppModel;
class CacheCard;
class ClampedLabel;
class FlowGrid;
class Preferences;
class QCheckBox;
class PushButton;
class Spinner;
class TextLabel;

/// The fourth section of the main window: every cleanup target with its size, and the buttons that measure
/// and clean them.
class CleanupView : public QWidget {
    Q_OBJECT

public:
    CleanupView(AppModel& model, Preferences& preferences, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLayout* makeHeader();
    QWidget* makeCleanAll();
    QLayout* makeProgress();
    QWidget* makeGrid();
    void refresh();
    void refreshCards();
    void refreshResult();
    void refreshProgress();
    void open(const CacheTarget& target);
    void openLeftovers();
    void confirmCleanAll();
    void cleanAll(const QList<CacheTarget>& targets);
    void stop();

    AppModel& m_model;
    Preferences& m_preferences;
    QString m_selected; ///< the target whose drawer is open
    bool m_cleaningAll = false;
    QString m_lastCleanResult;
    bool m_wasCancelled = false; ///< the run of the last result

    TextLabel* m_total;
    ClampedLabel* m_result;
    QCheckBox* m_showAll;
    PushButton* m_rescan;
    PushButton* m_cleanAll;
    Spinner* m_cleaning;
    Spinner* m_spinner;
    TextLabel* m_progress;
    TextLabel* m_unfinished;
    PushButton* m_cancel;
    FlowGrid* m_grid = nullptr;
    RowPool<CacheCard> m_cards;
    CacheCard* m_leftovers; ///< of projects, behind the cards of the targets
};
