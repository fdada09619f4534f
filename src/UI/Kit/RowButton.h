#pragma once

#include <QAbstractButton>
#include <QCoreApplication>

/// Names a button of a row for screen readers: what it does, and to what. All rows have the same buttons.
inline void nameRowButton(QAbstractButton* button, const QString& action, const QString& subject) {
    button->setAccessibleName(
        QCoreApplication::translate("RowButton", "%1: %2", "an action, and what it is about")
            .arg(action, subject));
}
