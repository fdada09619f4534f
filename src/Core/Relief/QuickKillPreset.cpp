#include "Core/Relief/QuickKillPreset.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QuickKillPreset preset(const QString& name, const QString& pattern, double minIdleMinutes, double minRSSMB,
                       bool force, const QString& symbol) {
    return {.id = QUuid::createUuid(),
            .name = name,
            .pattern = pattern,
            .minIdleMinutes = minIdleMinutes,
            .minRSSMB = minRSSMB,
            .force = force,
            .symbol = symbol};
}

QString idText(const QUuid& id) {
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> parseId(const QString& text) {
    const QUuid id = QUuid::fromString(text);
    return idText(id) == text.toUpper() ? std::optional(id) : std::nullopt;
}

std::optional<QuickKillPreset> parsePreset(const QJsonValue& value) {
    const QJsonObject object = value.toObject();
    const QJsonValue force = object["force"_L1];
    for (const auto key : {"id"_L1, "name"_L1, "pattern"_L1, "symbol"_L1}) {
        if (!object[key].isString())
            return std::nullopt;
    }
    for (const auto key : {"minIdleMinutes"_L1, "minRSSMB"_L1}) {
        if (!object[key].isDouble())
            return std::nullopt;
    }
    const auto id = parseId(object["id"_L1].toString());
    if (!id || !force.isBool())
        return std::nullopt;
    return QuickKillPreset{.id = *id,
                           .name = object["name"_L1].toString(),
                           .pattern = object["pattern"_L1].toString(),
                           .minIdleMinutes = object["minIdleMinutes"_L1].toDouble(),
                           .minRSSMB = object["minRSSMB"_L1].toDouble(),
                           .force = force.toBool(),
                           .symbol = object["symbol"_L1].toString()};
}

bool fitsJson(const QuickKillPreset& preset) {
    return std::isfinite(preset.minIdleMinutes) && std::isfinite(preset.minRSSMB);
}

QString whole(double value) {
    return QString::number(std::trunc(value), 'f', 0);
}

} // namespace

const QList<QuickKillPreset>& QuickKillPreset::defaults() {
    static const QList<QuickKillPreset> list = {
        preset(u"Chrome helpers"_s, u"Google Chrome Helper"_s, 0, 0, true, u"globe"_s),
        preset(u"Cursor helpers"_s, u"Cursor Helper"_s, 0, 0, false,
               u"chevron.left.forwardslash.chevron.right"_s),
        preset(u"VSCode helpers"_s, u"Code Helper"_s, 0, 0, false,
               u"chevron.left.forwardslash.chevron.right"_s),
        preset(u"Idle agents (>15m, >500MB)"_s, u"claude"_s, 15, 500, false, u"sparkles"_s),
        preset(u"Idle Ollama (>10m)"_s, u"ollama"_s, 10, 0, true, u"circle.hexagongrid"_s),
        preset(u"Idle Docker (>30m, >200MB)"_s, u"Docker"_s, 30, 200, true, u"shippingbox"_s),
    };
    return list;
}

QuickKillPreset QuickKillPreset::blank() {
    return preset({}, {}, 0, 0, false, u"xmark.circle"_s);
}

QByteArray QuickKillPreset::encode(const QList<QuickKillPreset>& presets) {
    if (!std::all_of(presets.begin(), presets.end(), fitsJson))
        return {};
    QJsonArray array;
    for (const QuickKillPreset& each : presets) {
        array.append(QJsonObject{{u"id"_s, idText(each.id)},
                                 {u"name"_s, each.name},
                                 {u"pattern"_s, each.pattern},
                                 {u"minIdleMinutes"_s, each.minIdleMinutes},
                                 {u"minRSSMB"_s, each.minRSSMB},
                                 {u"force"_s, each.force},
                                 {u"symbol"_s, each.symbol}});
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::optional<QList<QuickKillPreset>> QuickKillPreset::decode(const QByteArray& json) {
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return std::nullopt;
    QList<QuickKillPreset> presets;
    const QJsonArray array = document.array();
    for (const QJsonValue& value : array) {
        const auto read = parsePreset(value);
        if (!read)
            return std::nullopt;
        presets.append(*read);
    }
    return presets;
}

QString QuickKillPreset::summaryLine() const {
    QStringList pieces = {QCoreApplication::translate("QuickKillPreset", "pattern: %1").arg(pattern)};
    if (minIdleMinutes > 0)
        pieces.append(QCoreApplication::translate("QuickKillPreset", "idle≥%1m").arg(whole(minIdleMinutes)));
    if (minRSSMB > 0)
        pieces.append(QCoreApplication::translate("QuickKillPreset", "RAM≥%1MB").arg(whole(minRSSMB)));
    if (force)
        pieces.append(QCoreApplication::translate("QuickKillPreset", "force"));
    return pieces.join(u" • "_s);
}

QString QuickKillPreset::outcomeMessage(int matched, int killed) const {
    if (matched == 0)
        return QCoreApplication::translate("QuickKillPreset", "%1: nothing matched").arg(name);
    return QCoreApplication::translate("QuickKillPreset", "%1: killed %2/%3")
        .arg(name, QString::number(killed), QString::number(matched));
}
