#pragma once

#include "Core/Alerts/Alert.h"
#include "UI/Style/Theme.h"

/// The colour in which every view shows an alert of that severity.
constexpr Theme::Role severityRole(Alert::Severity severity) {
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
