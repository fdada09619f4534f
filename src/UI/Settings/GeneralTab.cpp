#include "UI/Settings/GeneralTab.h"

#include "Platform/LoginItem.h"
#include "Platform/Words.h"
#include "UI/Kit/FormSection.h"
#include "UI/Kit/TextLabel.h"

#include <QCheckBox>

GeneralTab::GeneralTab(Preferences& preferences, LoginItem& loginItem, QWidget* parent)
    : SettingsForm(preferences, QStringLiteral("General"), parent)
    , m_loginItem(loginItem)
    , m_loginError(new TextLabel(Theme::TextStyle::caption)) {
    auto* startup = addSection(QStringLiteral("Startup"));
    auto* startAtLogin = addToggle(startup, QStringLiteral("Start at login"), preferences.startAtLogin);
    startup->addNote(m_loginError->tinted(Theme::Role::red)->wrapped());
    m_loginError->hide();
    addToggle(startup, QStringLiteral("Show floating widget on launch"), preferences.showWidgetOnLaunch);
    addToggle(startup, QStringLiteral("Show in %1").arg(Words::native().taskBar), preferences.showInDock);
    connect(startAtLogin, &QCheckBox::toggled, this, &GeneralTab::applyLoginItem);

    const auto formats = allCases<MenuBarFormat>();
    addPicker<MenuBarFormat>(addSection(Words::native().statusArea), QStringLiteral("Display"),
                             {formats.begin(), formats.end()}, rawValue<MenuBarFormat>,
                             preferences.menuBarFormat);

    auto* cleanup = addSection(QStringLiteral("Cleanup"));
    addToggle(cleanup, QStringLiteral("Ask before cleaning everything"), preferences.askBeforeCleaningAll);
    auto* note = (new TextLabel(Theme::TextStyle::caption))->secondary()->wrapped();
    note->setPlainText(QStringLiteral("When off, “Clean All” in Optimize starts at once."));
    cleanup->addNote(note);
}

void GeneralTab::applyLoginItem(bool enabled) {
    const Outcome outcome = enabled ? m_loginItem.registerItem() : m_loginItem.unregisterItem();
    m_loginError->setVisible(!outcome.done);
    m_loginError->setPlainText(
        QStringLiteral("Couldn't %1: %2")
            .arg(enabled ? QStringLiteral("register") : QStringLiteral("unregister"), outcome.reason));
}
