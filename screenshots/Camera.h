#pragma once

#include "UI/Style/Theme.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>

/// Saves pictures as FOLDER/NAME-light.png and FOLDER/NAME-dark.png.
class Camera {
public:
    explicit Camera(QString folder)
        : m_folder(std::move(folder)) {}

    void take(QWidget& widget, const QString& name) {
        widget.show();
        for (const bool dark : {false, true}) {
            Theme::apply({.dark = dark});
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
            save(widget.grab(), name, dark);
        }
    }

    void save(const QPixmap& picture, const QString& name, bool dark) {
        const QString file =
            QStringLiteral("%1/%2-%3.png").arg(m_folder, name, QLatin1String(dark ? "dark" : "light"));
        if (!picture.save(file))
            qFatal("cannot write %s", qPrintable(file));
    }

private:
    QString m_folder;
};
