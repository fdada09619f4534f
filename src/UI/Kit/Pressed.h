#pragma once

#include <QAbstractButton>

#include <memory>

/// Calls `act` when the button is clicked, with the value that `shown` had when it was pressed: lists move
/// between press and release. `shown` is what the button's widget shows, and lives as long as the button.
template <typename Shown, typename Act>
void actOnPressed(QAbstractButton* button, const Shown& shown, Act act) {
    const auto pressed = std::make_shared<Shown>();
    QObject::connect(button, &QAbstractButton::pressed, button, [pressed, &shown] { *pressed = shown; });
    QObject::connect(button, &QAbstractButton::clicked, button, [pressed, act] { act(*pressed); });
}
