#pragma once

#include "Platform/LoginItem.h"

#include <QStringList>

#include <functional>

/// A login item that records the requests and answers with `outcome`.
class FakeLoginItem : public LoginItem {
public:
    QStringList requests; ///< "register", "unregister" and "replace"
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
