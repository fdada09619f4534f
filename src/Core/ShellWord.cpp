#include "Core/ShellWord.h"

#include <algorithm>

bool isPlainShellWord(QStringView text) {
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar character) {
        return character.isLetterOrNumber() || QStringView(u"_@%+=:,./-").contains(character);
    });
}

QString shellWord(const QString& text) {
    if (isPlainShellWord(text))
        return text;
    return u'\'' + QString(text).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}
