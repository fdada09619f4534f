#pragma once

#include "Core/RawValue.h"

#include <QString>

#include <array>
#include <optional>

/// One condition raised by the rules engine.
struct Alert {
    enum class Severity { info, warn, danger };

    QString id; ///< stays the same while the condition lasts
    Severity severity = Severity::info;
    QString title;
    QString detail;
    std::optional<qint32> actionPid = std::nullopt; ///< the process that the alert's action acts on
    std::optional<QString> actionTarget =
        std::nullopt; ///< the name of the thing that the alert's action acts on

    bool operator==(const Alert&) const = default;
};

template <>
inline constexpr std::array rawValueTable<Alert::Severity> = {
    RawValueRow<Alert::Severity>{Alert::Severity::info, u"info"},
    RawValueRow<Alert::Severity>{Alert::Severity::warn, u"warn"},
    RawValueRow<Alert::Severity>{Alert::Severity::danger, u"danger"},
};

/// Name of the severity's symbol, under resources/symbols.
QString severitySymbol(Alert::Severity severity);
