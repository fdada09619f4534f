#pragma once

#include <QTranslator>

/// A language that is written from right to left: the English texts in Hebrew letters. A text that stays in
/// Latin ones is not looked up.
class Mirrored : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        if (qstrcmp(context, "QGuiApplication") == 0 && qstrcmp(text, "QT_LAYOUT_DIRECTION") == 0)
            return QStringLiteral("RTL");
        QString result = QString::fromUtf8(text);
        for (qsizetype i = 0; i < result.size(); ++i) {
            const char16_t letter = result[i].toLower().unicode();
            const bool isPlaceholder = letter == u'n' && i > 0 && result[i - 1] == u'%';
            if (letter >= u'a' && letter <= u'z' && !isPlaceholder)
                result[i] = QChar(static_cast<char16_t>(u'\u05d0' + (letter - u'a')));
        }
        return result;
    }
    bool isEmpty() const override { return false; }
};
