#include "Core/Alerts/Alert.h"

QString severitySymbol(Alert::Severity severity) {
    switch (severity) {
    case Alert::Severity::info:
        return QStringLiteral("info.circle.fill");
    case Alert::Severity::warn:
        return QStringLiteral("exclamationmark.triangle.fill");
    case Alert::Severity::danger:
        return QStringLiteral("exclamationmark.octagon.fill");
    }
    return {};
}
