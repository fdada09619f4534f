#pragma once

#include <QIcon>
#include <QObject>
#include <QRect>
#include <QString>

class QMenu;

/// What a status item shows. Where there is room for text the title stands there, or the symbol when the
/// title is empty; where there is room for an icon only, `compact` does, with `toolTip` for the rest.
struct StatusContent {
    QString title;
    QIcon symbol;  ///< shown instead of an empty title
    QIcon compact; ///< carries the figures by itself
    QString toolTip;
};

/// The program's place in the status area.
class StatusItem : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void show(const StatusContent& content) = 0;
    /// Opened by a secondary click; not owned.
    virtual void setMenu(QMenu* menu) = 0;
    /// Where it is on screen, in device-independent pixels; empty when the system does not tell.
    virtual QRect geometry() const = 0;

Q_SIGNALS:
    void clicked();
};
