#pragma once

#include "UI/Kit/Theme.h"

#include <QLabel>

/// A short bold text in white on a capsule.
class Badge : public QLabel {
    Q_OBJECT

public:
    explicit Badge(Theme::Role role, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme::Role m_role;
};
