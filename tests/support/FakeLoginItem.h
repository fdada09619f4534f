#pragma once

#include "Platform/LoginItem.h"

#include <QStringList>

#include <functional>

/// A login item that only remembers what it was asked for, and fails for the reason the test gives.
class FakeLoginItem : public LoginItem {
public:
    QStringList requests; ///< "register" and "unregister"
    Outcome outcome = Outcome::success();
    bool installed = true;
    std::function<void()> whenAsked = [] {};

    Outcome registerItem() override { return ask(QStringLiteral("register")); }
    Outcome unregisterItem() override { return ask(QStringLiteral("unregister")); }

    bool isInstalled() const override { return installed; }
    void replaceGoneProgram() override { requests.append(QStringLiteral("replace")); }

private:
    Outcome ask(const QString& request) {
        requests.append(request);
        whenAsked();
        return outcome;
    }
};
