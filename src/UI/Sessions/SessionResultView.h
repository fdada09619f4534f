#pragma once

#include "Core/Sessions/SessionEnding.h"
#include "UI/Kit/Card.h"

/// How the processes of an end ended, what came back, and the command that takes the conversation up again.
class SessionResultView : public Card {
    Q_OBJECT

public:
    explicit SessionResultView(const SessionEndResult& result, QWidget* parent = nullptr);

Q_SIGNALS:
    void dismissed();

private:
    QLayout* makeHead(const SessionEndResult& result);
    QLayout* makeResume(const QString& command);
};
