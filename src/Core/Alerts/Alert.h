#pragma once

#include "Core/RawValue.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <optional>

/// One condition raised by the rules engine.
struct Alert {
    enum class Severity { info, warn, danger };

    QString id; ///< constant while the condition lasts
    Severity severity = Severity::info;
    QString title;
    QString detail;
    std::optional<qint32> actionPid = std::nullopt;     ///< the process that the action acts on
    std::optional<QString> actionTarget = std::nullopt; ///< the name of the thing that the action acts on

    bool operator==(const Alert&) const = default;

    /// Returns the first of the gravest alerts, null when there is none.
    static const Alert* worstOf(const QList<Alert>& alerts);
};

template <>
inline constexpr std::array rawValueTable<Alert::Severity> = {
    RawValueRow{Alert::Severity::info, u"info"},
    RawValueRow{Alert::Severity::warn, u"warn"},
    RawValueRow{Alert::Severity::danger, u"danger"},
};

inline const Alert* Alert::worstOf(const QList<Alert>& alerts) {
    const auto worst = std::ranges::max_element(alerts, {}, &Alert::severity);
    return worst == alerts.end() ? nullptr : &*worst;
}

/// Returns the name of the severity's symbol under resources/symbols.
inline QString severitySymbol(Alert::Severity severity) {
    constexpr QStringView symbols[] = {u"info.circle.fill", u"exclamationmark.triangle.fill",
                                       u"exclamationmark.octagon.fill"};
    return symbols[static_cast<int>(severity)].toString();
}
