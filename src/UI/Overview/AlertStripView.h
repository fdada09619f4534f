#pragma once

#include "Core/Alerts/Alert.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/RowPool.h"

#include <functional>

class PushButton;
class QVBoxLayout;
class SymbolView;
class ClampedLabel;
class TextLabel;

/// One alert on a card in its severity's colour.
class AlertCard : public Card {
    Q_OBJECT

public:
    explicit AlertCard(QWidget* parent = nullptr);

    /// With `hasDetails` it offers to tell what went on before.
    void set(const Alert& alert, bool hasDetails);

Q_SIGNALS:
    /// Emitted with the alert that the card showed when the button was pressed.
    void actionRequested(const Alert& alert);
    void detailsRequested(const QString& alertId);

private:
    SymbolView* m_symbol;
    ClampedLabel* m_title;
    TextLabel* m_detail;
    PushButton* m_details;
    PushButton* m_action;
    Alert m_alert;
};

/// A card for each alert, or one that says that there is none.
class AlertStripView : public QWidget {
    Q_OBJECT

public:
    explicit AlertStripView(QWidget* parent = nullptr);

    /// `hasDetails` tells of which alerts more is known.
    void set(const QList<Alert>& alerts, const std::function<bool(const QString& alertId)>& hasDetails);

Q_SIGNALS:
    void actionRequested(const Alert& alert);
    void detailsRequested(const QString& alertId);

private:
    QVBoxLayout* m_column;
    QWidget* m_healthy; ///< shown while nothing is wrong
    RowPool<AlertCard> m_cards;
};
