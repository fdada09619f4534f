#include "Cli/SeverityText.h"

#include "Cli/TextWidth.h"
#include "Core/Alerts/Alert.h"

using namespace Qt::StringLiterals;

namespace {

QString colourOf(const QString& severity) {
    switch (fromRawValue<Alert::Severity>(severity).value_or(Alert::Severity::info)) {
    case Alert::Severity::danger:
        return u"\033[31m"_s;
    case Alert::Severity::warn:
        return u"\033[33m"_s;
    case Alert::Severity::info:
        break;
    }
    return u"\033[34m"_s;
}

} // namespace

QString SeverityText::lines(const QJsonArray& alerts, const TableStyle& style) {
    QString text;
    for (const QJsonValue& value : alerts) {
        const QJsonObject alert = value.toObject();
        const QString severity = alert.value(u"severity"_s).toString();
        const QString line = Table::safe(u"%1: %2. %3"_s.arg(severity, alert.value(u"title"_s).toString(),
                                                             alert.value(u"detail"_s).toString()));
        const QString shown = style.width ? TextWidth::cut(line, *style.width) : line;
        const bool isColoured = style.hasColour && shown.startsWith(severity);
        text +=
            (isColoured ? colourOf(severity) + severity + u"\033[0m"_s + shown.mid(severity.size()) : shown) +
            u'\n';
    }
    return text;
}
