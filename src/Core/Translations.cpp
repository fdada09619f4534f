#include "Core/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// Returns the system's own locale, with the formats that the user chose there, where it has that language.
QLocale localeOf(Language language) {
    const QLocale system = QLocale::system();
    const QLocale chosen(rawValue(language));
    const bool isSystems = language == Language::system ||
                           (system.language() == chosen.language() && system.script() == chosen.script());
    return isSystems ? system : chosen;
}

/// Loads FOLDER/BASE_LANGUAGE.qm. Returns false where there is none.
bool load(Language language, const QString& base, const QString& folder) {
    auto* texts = new QTranslator(QCoreApplication::instance());
    const bool isLoaded = language == Language::system
                              ? texts->load(QLocale::system(), base, u"_"_s, folder)
                              : texts->load(base + u'_' + rawValue(language), folder);
    return isLoaded && QCoreApplication::installTranslator(texts);
}

} // namespace

void Translations::install(Language language) {
    QLocale::setDefault(localeOf(language));
    const QString folder = u":/translations"_s;
    // Without our texts Qt's would be the only ones in that language, and the only ones that mirror the
    // layout.
    if (load(language, u"tavrin"_s, folder))
        load(language, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    else
        load(Language::english, u"tavrin"_s, folder);
}

QString Translations::nameOf(Language language) {
    constexpr std::array names = {QT_TRANSLATE_NOOP("Translations", "System"),
                                  "English",
                                  "Deutsch",
                                  "Français",
                                  "Español",
                                  "简体中文",
                                  "日本語"};
    return of(QString::fromUtf8(names[static_cast<std::size_t>(language)]));
}

QString Translations::of(const QString& stored) {
    return QCoreApplication::translate("Translations", stored.toUtf8());
}
