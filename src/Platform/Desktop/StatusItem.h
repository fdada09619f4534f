#pragma once

#include <QIcon>
#include <QObject>
#include <QRect>
#include <QString>

class QMenu;

/// The content of a status item: the title, or the symbol for an empty one. Where only an icon fits it is
/// `compact` with `toolTip`. A mark that is not null stands beside the title.
struct StatusContent {
    QString title;
    QIcon symbol;
    QIcon compact; ///< with the figures, and the mark, drawn in
    QString toolTip;
    QIcon mark = {};
};

/// The program's item in the status area.
class StatusItem : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual void show(const StatusContent& content) = 0;
    /// Sets the menu of a secondary click; the caller keeps ownership.
    virtual void setMenu(QMenu* menu) = 0;
    /// Returns its place on screen in device-independent pixels; an empty rectangle when unknown.
    virtual QRect geometry() const = 0;

Q_SIGNALS:
    void clicked();
};
