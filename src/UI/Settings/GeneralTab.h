#pragma once

#include "UI/Settings/SettingsForm.h"

class LoginItem;
class TextLabel;

/// What happens at start, what the status item shows, and the language.
class GeneralTab : public SettingsForm {
    Q_OBJECT

public:
    GeneralTab(Preferences& preferences, LoginItem& loginItem, QWidget* parent = nullptr);

private:
    void addLanguages(Preferences& preferences);
    void applyLoginItem(bool enabled);

    LoginItem& m_loginItem;
    TextLabel* m_loginError;
};
