#pragma once

#include "Platform/Desktop/DesktopApplication.h"

#include <QObject>

/// Windows through Qt, their task bar entries through the window manager. A Wayland compositor decides for
/// itself what its task bar lists and what comes to the front; a window that it leaves behind is opened anew.
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
