#pragma once

#include "Core/Alerts/Alert.h"
#include "Core/Sampling/SystemSample.h"
#include "UI/Style/Theme.h"

/// The colours of the machine's figures and alerts, the same on every screen. They follow unrounded values.
namespace Levels {

/// Returns red and orange from their thresholds on, green below.
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
    switch (state) {
    case ThermalState::nominal:
        return Theme::Role::green;
    case ThermalState::fair:
        return Theme::Role::yellow;
    case ThermalState::serious:
        return Theme::Role::orange;
    case ThermalState::critical:
        return Theme::Role::red;
    }
    return Theme::Role::green;
}

constexpr Theme::Role alert(Alert::Severity severity) {
    switch (severity) {
    case Alert::Severity::info:
        return Theme::Role::blue;
    case Alert::Severity::warn:
        return Theme::Role::orange;
    case Alert::Severity::danger:
        return Theme::Role::red;
    }
    return Theme::Role::blue;
}

} // namespace Levels
