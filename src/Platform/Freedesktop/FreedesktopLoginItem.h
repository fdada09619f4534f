#pragma once

#include "Platform/LoginItem.h"

#include <QByteArray>
#include <QCoreApplication>

/// The autostart entry $XDG_CONFIG_HOME/autostart/tavrin.desktop.
class FreedesktopLoginItem : public LoginItem {
public:
    /// `program` is the absolute path of the program to start.
    explicit FreedesktopLoginItem(QString program = QCoreApplication::applicationFilePath());

    Outcome registerItem() override;
    Outcome unregisterItem() override;
    bool isInstalled() const override;
    void replaceGoneProgram() override;

    /// Returns the text of the entry.
    static QByteArray entry(const QString& program);

private:
    QString m_program;
};
