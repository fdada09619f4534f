#include "Core/Formatters.h"
#include "Core/Translations.h"

#include "support/Bytes.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct TranslatedText {
    QString source;
    bool isCounted = false;
    bool isFinished = true;
    QStringList forms;
};

/// The texts of one file, by context, source and comment.
using TranslatedTexts = QMap<QString, TranslatedText>;

TranslatedText readMessage(QXmlStreamReader& xml, QString& key) {
    TranslatedText text{.isCounted = xml.attributes().value(u"numerus"_s) == u"yes"};
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            text.source = xml.readElementText();
            key += u'|' + text.source;
        } else if (xml.name() == u"comment") {
            key += u'|' + xml.readElementText();
        } else if (xml.name() == u"translation") {
            text.isFinished = !xml.attributes().hasAttribute(u"type"_s);
            if (!text.isCounted)
                text.forms.append(xml.readElementText());
            while (text.isCounted && xml.readNextStartElement())
                text.forms.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

TranslatedTexts textsOf(Language language) {
    QFile file(u"%1/resources/translations/tavrin_%2.ts"_s.arg(QStringLiteral(TAVRIN_SOURCE_DIR),
                                                               rawValue(language)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    QXmlStreamReader xml(&file);
    TranslatedTexts texts;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            QString key = context;
            const TranslatedText text = readMessage(xml, key);
            texts.insert(key, text);
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return texts;
}

/// Returns "%1", "%2", "%n" in a fixed order.
QStringList placeholders(const QString& text) {
    static const QRegularExpression placeholder(u"%(\\d+|n)"_s);
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

/// Installs a language, and at the end English and the locale of before.
struct InLanguage {
    explicit InLanguage(Language language) { change(language); }
    ~InLanguage() {
        change(Language::english);
        QLocale::setDefault(before);
    }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

    static void change(Language language) {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
        Translations::install(language);
    }

    const QLocale before;
};

} // namespace

TEST(Languages, EachFileHasEveryTextWithItsPlaceholdersAndPluralForms) {
    const QMap<Language, qsizetype> forms = {{Language::german, 2},
                                             {Language::french, 2},
                                             {Language::spanish, 2},
                                             {Language::chinese, 1},
                                             {Language::japanese, 1}};
    const QStringList keys = textsOf(Language::german).keys();
    EXPECT_GT(keys.size(), 600);
    for (auto each = forms.begin(); each != forms.end(); ++each) {
        const TranslatedTexts texts = textsOf(each.key());
        const std::string file = rawValue(each.key()).toStdString();
        EXPECT_EQ(texts.keys(), keys) << file;
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            const std::string place = file + ": " + text.key().toStdString();
            EXPECT_TRUE(text->isFinished) << place;
            EXPECT_EQ(text->forms.size(), text->isCounted ? each.value() : 1) << place;
            for (const QString& form : text->forms) {
                EXPECT_FALSE(form.isEmpty()) << place;
                EXPECT_EQ(placeholders(form), placeholders(text->source)) << place;
            }
        }
    }
}

TEST(Languages, FiguresFollowTheLanguageAndTheLogStaysEnglish) {
    struct Case {
        Language language;
        const char* size;
        const char* percent;
        const char* oneMinute;
        const char* twoMinutes;
        const char* list;
    };
    const Case cases[] = {
        {Language::english, "1.5 GB", "42%", "1 minute ago", "2 minutes ago", "a, b"},
        {Language::german, "1,5\u00a0GB", "42\u00a0%", "vor 1 Minute", "vor 2 Minuten", "a, b"},
        {Language::french, "1,5\u00a0Go", "42\u202f%", "il y a 1 minute", "il y a 2 minutes", "a, b"},
        {Language::spanish, "1,5\u00a0GB", "42\u00a0%", "hace 1 minuto", "hace 2 minutos", "a, b"},
        {Language::chinese, "1.5 GB", "42%", "1 分钟前", "2 分钟前", "a、b"},
        {Language::japanese, "1.5 GB", "42%", "1 分前", "2 分前", "a、b"},
    };
    for (const Case& each : cases) {
        const InLanguage language(each.language);
        EXPECT_EQ(Formatters::bytes(GiB * 3 / 2).toStdString(), each.size);
        EXPECT_EQ(Formatters::percent(42).toStdString(), each.percent);
        EXPECT_EQ(Formatters::ago(60).toStdString(), each.oneMinute);
        EXPECT_EQ(Formatters::ago(120).toStdString(), each.twoMinutes);
        EXPECT_EQ(Formatters::list({u"a"_s, u"b"_s}).toStdString(), each.list);
        EXPECT_EQ(Formatters::bytesForLog(GiB * 3 / 2).toStdString(), "1.5 GB");
        EXPECT_EQ(QLocale().language(), QLocale(rawValue(each.language)).language());
    }
}
