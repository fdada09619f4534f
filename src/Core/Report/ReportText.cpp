#include "Core/Report/Report.h"

#include "Core/Formatters.h"
#include "Core/Iso8601.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// Returns whether a terminal may take the character for an order. QJsonDocument escapes those below U+0020.
bool actsOnTerminal(QChar character) {
    return character.unicode() >= 0x20 && Formatters::isInvisible(character);
}

} // namespace

QJsonObject Report::head(Kind kind, const Origin& origin) {
    return {{u"schema"_s, schema},
            {u"kind"_s, rawValue(kind)},
            {u"source"_s, origin.isRunning ? u"program"_s : u"direct"_s},
            {u"sampled_at"_s, time(origin.sampledAt)}};
}

QJsonValue Report::time(Instant instant) {
    return QString::fromLatin1(Iso8601::format(instant));
}

QByteArray Report::text(const QJsonObject& document, bool isIndented) {
    const QByteArray json =
        QJsonDocument(document).toJson(isIndented ? QJsonDocument::Indented : QJsonDocument::Compact);
    // Outside of a string there are none of them.
    QString result;
    const QString plain = QString::fromUtf8(json);
    result.reserve(plain.size());
    for (const QChar character : plain) {
        if (actsOnTerminal(character))
            result += u"\\u%1"_s.arg(character.unicode(), 4, 16, QChar(u'0'));
        else
            result += character;
    }
    return result.toUtf8();
}
