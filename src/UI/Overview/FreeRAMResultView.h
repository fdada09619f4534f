#pragma once

#include "Core/Relief/FreeRAM.h"
#include "UI/Kit/Card.h"

class OutcomeList;
class TextLabel;

/// What a run freed, and the outcome for each process. Hidden at first.
class FreeRAMResultView : public Card {
    Q_OBJECT

public:
    explicit FreeRAMResultView(QWidget* parent = nullptr);

    void set(const FreeRAMResult& result);

private:
    TextLabel* m_freed;
    TextLabel* m_nudged;
    TextLabel* m_promised;
    OutcomeList* m_outcomes;
};
