#include "UI/Settings/GeneralTab.h"

#include "Core/Translations.h"
#include "Platform/LoginItem.h"
#include "Platform/Words.h"
#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"

#include <QCheckBox>

GeneralTab::GeneralTab(Preferences& preferences, LoginItem& loginItem, QWidget* parent)
    : SettingsForm(preferences, tr("General"), parent)
    , m_loginItem(loginItem)
    , m_loginError(new TextLabel(Theme::TextStyle::caption)) {
    auto* startup = addSection(tr("Startup"));
    auto* startAtLogin = addToggle(startup, tr("Start at login"), preferences.startAtLogin);
    startup->addNote(m_loginError->tinted(Theme::Role::red)->wrapped());
    m_loginError->hide();
    addToggle(startup, tr("Show floating widget on launch"), preferences.showWidgetOnLaunch);
    addToggle(startup, tr("Show in %1").arg(Words::native().taskBar), preferences.showInDock);
    connect(startAtLogin, &QCheckBox::toggled, this, &GeneralTab::applyLoginItem);

    const auto formats = allCases<MenuBarFormat>();
    addPicker<MenuBarFormat>(addSection(Words::native().statusArea), tr("Display"),
                             {formats.begin(), formats.end()}, Translations::of<MenuBarFormat>,
                             preferences.menuBarFormat);
    addLanguages(preferences);
}

void GeneralTab::addLanguages(Preferences& preferences) {
    auto* section = addSection(tr("Language"));
    const auto languages = allCases<Language>();
    addPicker<Language>(section, tr("Texts, numbers and dates"), {languages.begin(), languages.end()},
                        Translations::nameOf, preferences.language);
    auto* note = (new TextLabel(Theme::TextStyle::caption))->secondary()->wrapped();
    note->setPlainText(tr("Takes effect at the next start."));
    section->addNote(note);
}

void GeneralTab::applyLoginItem(bool enabled) {
    const Outcome outcome = enabled ? m_loginItem.registerItem() : m_loginItem.unregisterItem();
    m_loginError->setVisible(!outcome.done);
    m_loginError->setPlainText(
        (enabled ? tr("Couldn't register: %1") : tr("Couldn't unregister: %1")).arg(outcome.reason));
}
