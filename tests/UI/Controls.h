#pragma once

#include "UI/Kit/Stepper.h"
#include "UI/Kit/StepperRow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

// Finding and working the controls of a form the way a person does, by what they are called.

/// The control of that kind that can be seen and whose name begins so; null when there is none.
template <typename T> T* control(const QWidget& parent, const QString& name) {
    for (T* each : parent.findChildren<T*>()) {
        const auto* button = qobject_cast<QAbstractButton*>(each);
        const QString called =
            button && each->accessibleName().isEmpty() ? button->text() : each->accessibleName();
        if (each->isVisibleTo(&parent) && called.startsWith(name))
            return each;
    }
    return nullptr;
}

inline void click(const QWidget& parent, const QString& name) {
    auto* button = control<QAbstractButton>(parent, name);
    ASSERT_TRUE(button) << qPrintable(name);
    QTest::mouseClick(button, Qt::LeftButton);
    QCoreApplication::sendPostedEvents();
}

/// Takes a picker to the choice of that text, by keyboard.
inline void choose(const QWidget& parent, const QString& name, const QString& choice) {
    auto* picker = control<QComboBox>(parent, name);
    ASSERT_TRUE(picker) << qPrintable(name);
    QTest::keyClick(picker, Qt::Key_Home);
    for (int i = 0; picker->currentText() != choice && i < picker->count(); ++i)
        QTest::keyClick(picker, Qt::Key_Down);
    EXPECT_EQ(picker->currentText(), choice);
    QCoreApplication::sendPostedEvents();
}

/// Presses one half of a stepper: "More" or "Less".
inline void step(const QWidget& parent, const QString& half, const QString& name) {
    click(parent, half + QStringLiteral(": ") + name);
}
