#include "Core/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

void Translations::install() {
    auto* texts = new QTranslator(QCoreApplication::instance());
    const QString folder = u":/translations"_s;
    if (texts->load(QLocale(), u"tavrin"_s, u"_"_s, folder) || texts->load(u"tavrin_en"_s, folder))
        QCoreApplication::installTranslator(texts);
}

QString Translations::of(const QString& stored) {
    return QCoreApplication::translate("Translations", stored.toUtf8());
}
