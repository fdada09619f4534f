#pragma once

#include "Core/Alerts/Alert.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/RowPool.h"

class PushButton;
class QVBoxLayout;
class SymbolView;
class TextLabel;

/// One alert on a card in its severity's colour.
class AlertCard : public Card {
    Q_OBJECT

public:
    explicit AlertCard(QWidget* parent = nullptr);

    void set(const Alert& alert);

Q_SIGNALS:
    /// Emitted with the process that the alert named when the button was pressed.
    void quitRequested(qint32 pid);

private:
    SymbolView* m_symbol;
    TextLabel* m_title;
    TextLabel* m_detail;
    PushButton* m_quit;
    qint32 m_actionPid = 0;
};

/// A card for each alert, or one that says that there is none.
class AlertStripView : public QWidget {
    Q_OBJECT

public:
    explicit AlertStripView(QWidget* parent = nullptr);

    void set(const QList<Alert>& alerts);

Q_SIGNALS:
    void quitRequested(qint32 pid);

private:
    QVBoxLayout* m_column;
    QWidget* m_healthy; ///< shown while nothing is wrong
    RowPool<AlertCard> m_cards;
};
