#include "UI/Style/MessageSeverity.h"

using Severity = Message::Severity;

namespace MessageSeverity {

namespace {

struct SeverityLook {
    QStringView symbol;
    Theme::Role role;
};

/// In the order of Severity.
constexpr SeverityLook looks[] = {{u"info.circle.fill", Theme::Role::blue},
                                  {u"exclamationmark.triangle.fill", Theme::Role::orange},
                                  {u"arrow.down.circle.fill", Theme::Role::accent},
                                  {u"sparkles", Theme::Role::lime}};

/// Returns whether the action button is filled with the severity's colour in full.
bool isSolid(Severity severity) {
    return severity == Severity::upgrade;
}

} // namespace

QString symbol(Severity severity) {
    return looks[static_cast<std::size_t>(severity)].symbol.toString();
}

Theme::Role role(Severity severity) {
    return looks[static_cast<std::size_t>(severity)].role;
}

QColor buttonFill(Severity severity) {
    return Theme::color(role(severity), isSolid(severity) ? 1 : 0.18);
}

QColor buttonOutline(Severity severity) {
    return isSolid(severity) ? QColor(Qt::transparent) : Theme::color(role(severity), 0.45);
}

QColor actionLabelColor(Severity severity) {
    return isSolid(severity) ? QColor(Qt::black) : Theme::textOnTint(role(severity));
}

} // namespace MessageSeverity
