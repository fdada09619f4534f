#pragma once

#include "Core/Relief/QuickKillPreset.h"

#include <QAbstractButton>

/// The button of one quick-kill preset, with the number of processes that a press would signal now.
class PresetTile : public QAbstractButton {
    Q_OBJECT

public:
    explicit PresetTile(QWidget* parent = nullptr);

    void set(const QuickKillPreset& preset, int matches);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted with the preset that was shown when the button was pressed.
    void killRequested(const QuickKillPreset& preset);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QuickKillPreset m_preset;
    int m_matches = 0;
};
