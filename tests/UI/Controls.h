#pragma once

#include "UI/Kit/Stepper.h"
#include "UI/Kit/StepperRow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

// Finds and operates the controls of a form by their names, as a person does.

/// Returns the visible control of that kind whose name begins with `name`, null when there is none.
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

/// Selects the choice with that text in a picker, by keyboard.
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
