#pragma once

#include "Platform/Desktop/DesktopApplication.h"

#include <QObject>

/// Windows through Qt, task bar entries through the window manager. Wayland compositors alone decide on both
/// task bar and activation; a window that they do not activate is reopened.
class FreedesktopDesktopApplication : public QObject, public DesktopApplication {
    Q_OBJECT

public:
    FreedesktopDesktopApplication();

    QList<QWidget*> windows() const override;
    void bringForward(QWidget* window) override;
    ActivationPolicy activationPolicy() const override { return m_policy; }
    void setActivationPolicy(ActivationPolicy policy) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ActivationPolicy m_policy = ActivationPolicy::regular;
};
