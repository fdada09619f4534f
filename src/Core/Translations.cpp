#include "Core/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Raw values and names of the fixed lists. Names of products are none of them.
constexpr std::array marked = {
    // groups of processes
    QT_TRANSLATE_NOOP("Translations", "Claude Code & Agents"),
    QT_TRANSLATE_NOOP("Translations", "IDEs"),
    QT_TRANSLATE_NOOP("Translations", "Terminals"),
    QT_TRANSLATE_NOOP("Translations", "Browsers"),
    QT_TRANSLATE_NOOP("Translations", "Docker & Containers"),
    QT_TRANSLATE_NOOP("Translations", "Other"),
    // formats of the menu bar, retentions
    QT_TRANSLATE_NOOP("Translations", "CPU% • RAM%"),
    QT_TRANSLATE_NOOP("Translations", "CPU%"),
    QT_TRANSLATE_NOOP("Translations", "RAM%"),
    QT_TRANSLATE_NOOP("Translations", "Icon only"),
    QT_TRANSLATE_NOOP("Translations", "5 min"),
    QT_TRANSLATE_NOOP("Translations", "25 min"),
    QT_TRANSLATE_NOOP("Translations", "1 hour"),
    // sections of the main window, tabs of the settings
    QT_TRANSLATE_NOOP("Translations", "Overview"),
    QT_TRANSLATE_NOOP("Translations", "Optimize"),
    QT_TRANSLATE_NOOP("Translations", "Processes"),
    QT_TRANSLATE_NOOP("Translations", "Cleanup"),
    QT_TRANSLATE_NOOP("Translations", "General"),
    QT_TRANSLATE_NOOP("Translations", "Sampling"),
    QT_TRANSLATE_NOOP("Translations", "Alerts"),
    QT_TRANSLATE_NOOP("Translations", "Quick Kills"),
    QT_TRANSLATE_NOOP("Translations", "History"),
    // cleanup targets
    QT_TRANSLATE_NOOP("Translations", "Claude Code plugin cache"),
    QT_TRANSLATE_NOOP("Translations", "npx cache"),
    QT_TRANSLATE_NOOP("Translations", "Playwright browsers"),
    QT_TRANSLATE_NOOP("Translations", "User caches"),
    QT_TRANSLATE_NOOP("Translations", "User logs"),
    QT_TRANSLATE_NOOP("Translations", "Trash"),
    QT_TRANSLATE_NOOP("Translations", "Old /tmp (>7d)"),
    QT_TRANSLATE_NOOP("Translations", "Old Downloads (>30d)"),
    QT_TRANSLATE_NOOP("Translations", "Old Desktop screenshots (>30d)"),
};

} // namespace

void Translations::install() {
    auto* texts = new QTranslator(QCoreApplication::instance());
    const QString folder = u":/translations"_s;
    if (texts->load(QLocale(), u"tavrin"_s, u"_"_s, folder) || texts->load(u"tavrin_en"_s, folder))
        QCoreApplication::installTranslator(texts);
}

QString Translations::of(const QString& stored) {
    const auto found = std::find(marked.begin(), marked.end(), stored.toUtf8());
    return found == marked.end() ? stored : QCoreApplication::translate("Translations", *found);
}
