#include "Platform/Freedesktop/DesktopEntry.h"

#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxNameCharacters = 200;

/// The keys of the group [Desktop Entry]; the first of a key counts.
using Keys = QHash<QByteArray, QString>;

/// Undoes the escapes of a value of type string.
QString unescaped(QByteArrayView value) {
    QByteArray bytes;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            bytes += value[i];
            continue;
        }
        const char next = value[++i];
        const char plain = next == 's'   ? ' '
                           : next == 'n' ? '\n'
                           : next == 't' ? '\t'
                           : next == 'r' ? '\r'
                                         : next;
        bytes += plain;
        if (plain == next && next != '\\') { // an escape of the key Exec
            bytes.chop(1);
            bytes.append('\\').append(next);
        }
    }
    return QString::fromUtf8(bytes);
}

Keys keysOf(QByteArrayView text) {
    Keys keys;
    bool isInside = false;
    for (const QByteArray& line : QByteArray::fromRawData(text.data(), text.size()).split('\n')) {
        const QByteArray content = line.trimmed();
        if (content.startsWith('[')) {
            isInside = content == "[Desktop Entry]";
        } else if (isInside && !content.startsWith('#')) {
            const qsizetype equals = content.indexOf('=');
            const QByteArray key = content.first(std::max<qsizetype>(equals, 0)).trimmed();
            if (!key.isEmpty() && !keys.contains(key))
                keys.insert(key, unescaped(content.sliced(equals + 1).trimmed()));
        }
    }
    return keys;
}

/// Returns the suffixes of a key for the locale "lang_COUNTRY.ENCODING@MODIFIER", the best first.
QList<QByteArray> suffixes(const QString& locale) {
    const QString modifier = locale.section(u'@', 1, 1);
    const QString place = locale.section(u'@', 0, 0).section(u'.', 0, 0);
    const QString language = place.section(u'_', 0, 0);
    QStringList forms;
    if (!modifier.isEmpty())
        forms = {place + u'@' + modifier, language + u'@' + modifier};
    forms.insert(modifier.isEmpty() ? 0 : 1, place);
    forms.append(language);
    QList<QByteArray> result;
    for (const QString& form : std::as_const(forms))
        result.append('[' + form.toUtf8() + ']');
    return result;
}

QString localized(const Keys& keys, const QByteArray& key, const QString& locale) {
    for (const QByteArray& suffix : suffixes(locale)) {
        if (const auto found = keys.constFind(key + suffix); found != keys.cend())
            return *found;
    }
    return keys.value(key);
}

bool isTrue(const Keys& keys, const QByteArray& key) {
    return keys.value(key) == u"true";
}

/// Removes "%f" and the like; "%%" becomes a percent sign.
QString withoutFieldCodes(const QString& argument) {
    QString result;
    for (qsizetype i = 0; i < argument.size(); ++i) {
        if (argument[i] != u'%')
            result += argument[i];
        else if (++i < argument.size() && argument[i] == u'%')
            result += u'%';
    }
    return result;
}

} // namespace

QStringList DesktopEntry::arguments(const QString& exec) {
    QStringList result;
    QString argument;
    bool isQuoted = false;
    bool isStarted = false;
    const auto end = [&] {
        const QString plain = withoutFieldCodes(argument);
        if (isStarted && (!plain.isEmpty() || argument.isEmpty()))
            result.append(plain);
        argument.clear();
        isStarted = false;
    };
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar character = exec[i];
        if (character == u'"') {
            isQuoted = !isQuoted;
            isStarted = true;
        } else if (character == u'\\' && isQuoted && i + 1 < exec.size()) {
            argument += exec[++i];
        } else if (character == u' ' && !isQuoted) {
            end();
        } else {
            argument += character;
            isStarted = true;
        }
    }
    end();
    return isQuoted ? QStringList() : result;
}

std::optional<DesktopEntry> DesktopEntry::parse(QByteArrayView text, const QString& locale) {
    const Keys keys = keysOf(text);
    const QString name = localized(keys, "Name", locale).simplified().left(maxNameCharacters);
    if (keys.value("Type") != u"Application" || name.isEmpty())
        return std::nullopt;
    DesktopEntry entry{.id = {},
                       .name = name,
                       .icon = localized(keys, "Icon", locale),
                       .command = arguments(keys.value("Exec")),
                       .tryProgram = keys.value("TryExec")};
    // A program in a terminal has no window of its own.
    entry.isListed = !isTrue(keys, "Hidden") && !isTrue(keys, "NoDisplay") && !isTrue(keys, "Terminal");
    return entry;
}
