#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Sampling/SystemSample.h"
#include "UI/Style/Theme.h"

/// The colours of the machine's figures and alerts, the same on every screen. A figure is given unrounded, so
/// it may have another colour than the rounded text suggests.
namespace Levels {

/// Returns red for a value of at least `redFrom`, orange for one of at least `orangeFrom`, else green.
constexpr Theme::Role role(double value, double orangeFrom, double redFrom) {
    if (value >= redFrom)
        return Theme::Role::red;
    return value >= orangeFrom ? Theme::Role::orange : Theme::Role::green;
}

constexpr Theme::Role cpu(double percent) {
    return role(percent, 60, 85);
}
constexpr Theme::Role memory(double percent) {
    return role(percent, 70, 88);
}
constexpr Theme::Role disk(double percent) {
    return role(percent, 80, 92);
}

constexpr Theme::Role thermal(ThermalState state) {
    constexpr Theme::Role roles[] = {Theme::Role::green, Theme::Role::yellow, Theme::Role::orange,
                                     Theme::Role::red};
    return roles[static_cast<int>(state)];
}

constexpr Theme::Role alert(Alert::Severity severity) {
    constexpr Theme::Role roles[] = {Theme::Role::blue, Theme::Role::orange, Theme::Role::red};
    return roles[static_cast<int>(severity)];
}

} // namespace Levels
