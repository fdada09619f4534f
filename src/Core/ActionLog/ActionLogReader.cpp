#include "Core/ActionLog/ActionLogReader.h"

#include "Core/ActionLog/ActionLogFile.h"
#include "Core/Iso8601.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype fieldsBeforeDetail = 4;
/// A time, four fields of one character each, and the separators.
constexpr qsizetype minLineLength = 29;

/// Cuts the next field off the front of `line` and returns it. TABs in a row count as one separator. Returns
/// an empty field when no TAB ends it.
QByteArrayView takeField(QByteArrayView& line) {
    qsizetype begin = 0;
    while (begin < line.size() && line[begin] == '\t')
        ++begin;
    const qsizetype end = line.indexOf('\t', begin);
    if (end < 0)
        return {};
    const QByteArrayView field = line.sliced(begin, end - begin);
    line = line.sliced(end + 1);
    return field;
}

std::optional<quint64> parseCount(QByteArrayView text) {
    if (text.startsWith('+'))
        text = text.sliced(1);
    if (text.isEmpty())
        return std::nullopt;
    constexpr quint64 max = std::numeric_limits<quint64>::max();
    quint64 value = 0;
    for (const char character : text) {
        const auto digit = static_cast<quint64>(character - '0');
        if (character < '0' || character > '9' || value > (max - digit) / 10)
            return std::nullopt;
        value = value * 10 + digit;
    }
    return value;
}

/// Returns one shared text for each known kind, which saves a quarter of the memory of a long log.
QString kindText(QByteArrayView kind) {
    static const auto known = [] {
        QList<std::pair<QByteArray, QString>> words;
        for (const auto each : allCases<ActionLogEntry::Kind>())
            words.append({rawValue(each).toUtf8(), rawValue(each)});
        return words;
    }();
    for (const auto& [bytes, text] : known) {
        if (kind == bytes)
            return text;
    }
    return QString::fromUtf8(kind);
}

std::optional<LoggedAction> parseLine(QByteArrayView line) {
    std::array<QByteArrayView, fieldsBeforeDetail> fields;
    for (QByteArrayView& field : fields) {
        field = takeField(line);
        if (field.isEmpty())
            return std::nullopt;
    }
    const auto timestamp = Iso8601::parse(fields[0]);
    const auto freed = parseCount(fields[3]);
    if (!timestamp || !freed || line.isEmpty())
        return std::nullopt;
    return LoggedAction{.timestamp = *timestamp,
                        .kind = kindText(fields[1]),
                        .success = fields[2] == "ok",
                        .freedBytes = *freed,
                        .detail = QString::fromUtf8(line)};
}

QList<LoggedAction> linesOf(const QByteArray& bytes) {
    QList<LoggedAction> actions;
    actions.reserve(std::min(bytes.count('\n') + 1, bytes.size() / minLineLength + 1));
    const QByteArrayView text(bytes);
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype found = text.indexOf('\n', begin);
        const qsizetype end = found < 0 ? text.size() : found;
        if (auto action = parseLine(text.sliced(begin, end - begin)))
            actions.append(std::move(*action));
        begin = end + 1;
    }
    return actions;
}

} // namespace

QString LoggedAction::id() const {
    const double seconds = std::chrono::duration<double>(timestamp.time_since_epoch()).count();
    return QString::number(seconds, 'f', 1) + u'-' + detail;
}

QString ActionLogReader::path() {
    return ActionLogFile::path();
}

QList<LoggedAction> ActionLogReader::parse(const QByteArray& bytes) {
    if (!QUtf8StringView(bytes).isValidUtf8())
        return {};
    QList<LoggedAction> actions = linesOf(bytes);
    std::ranges::stable_sort(actions, std::ranges::greater(), &LoggedAction::timestamp);
    return actions;
}

QList<LoggedAction> ActionLogReader::read() {
    QFile file(path());
    const bool isReadable = !ActionLogFile::isObstructed() && file.open(QIODevice::ReadOnly);
    return isReadable ? parse(file.readAll()) : QList<LoggedAction>();
}

QString ActionLogReader::csv(const QList<LoggedAction>& actions) {
    QString text = u"timestamp,kind,success,freed_bytes,detail\n"_s;
    for (const LoggedAction& action : actions) {
        const QString detail = QString(action.detail).replace(u'"', u"\"\""_s);
        text += QString::fromLatin1(Iso8601::format(action.timestamp)) + u',' + action.kind + u',' +
                (action.success ? u"true"_s : u"false"_s) + u',' + QString::number(action.freedBytes) +
                u",\""_s + detail + u"\"\n"_s;
    }
    return text;
}

QString ActionLogReader::exportCSV() {
    return csv(read());
}

void ActionLogReader::clear() {
    QFile file(path());
    if (!ActionLogFile::isObstructed())
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}
