#pragma once

#include "Platform/LoginItem.h"

#include <QByteArray>

/// An entry of the desktop's autostart folder, $XDG_CONFIG_HOME/autostart/tavrin.desktop.
class FreedesktopLoginItem : public LoginItem {
public:
    /// `program` is the absolute path of what to start; the running program unless a test says otherwise.
    explicit FreedesktopLoginItem(QString program = runningProgram());

    Outcome registerItem() override;
    Outcome unregisterItem() override;
    bool isInstalled() const override;
    void replaceGoneProgram() override;

    /// The text of the entry.
    static QByteArray entry(const QString& program);

private:
    static QString runningProgram();

    QString m_program;
};
