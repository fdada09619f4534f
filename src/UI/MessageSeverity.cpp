#include "UI/MessageSeverity.h"

using Severity = Message::Severity;

namespace MessageSeverity {

QString symbol(Severity severity) {
    switch (severity) {
    case Severity::info:
        return QStringLiteral("info.circle.fill");
    case Severity::warn:
        return QStringLiteral("exclamationmark.triangle.fill");
    case Severity::update:
        return QStringLiteral("arrow.down.circle.fill");
    case Severity::upgrade:
        return QStringLiteral("sparkles");
    }
    return {};
}

Theme::Role role(Severity severity) {
    switch (severity) {
    case Severity::info:
        return Theme::Role::blue;
    case Severity::warn:
        return Theme::Role::orange;
    case Severity::update:
        return Theme::Role::accent;
    case Severity::upgrade:
        return Theme::Role::lime;
    }
    return Theme::Role::blue;
}

bool isSolid(Severity severity) {
    return severity == Severity::upgrade;
}

QColor buttonFill(Severity severity) {
    return Theme::color(role(severity), isSolid(severity) ? 1 : 0.18);
}

QColor buttonOutline(Severity severity) {
    return isSolid(severity) ? QColor(Qt::transparent) : Theme::color(role(severity), 0.45);
}

QColor actionLabelColor(Severity severity) {
    return isSolid(severity) ? QColor(Qt::black) : Theme::color(role(severity));
}

} // namespace MessageSeverity
