#pragma once

#include "Preferences.h"
#include "UI/Kit/StepperRow.h"

#include <QScrollArea>

#include <functional>

class FormSection;
class QCheckBox;
class QVBoxLayout;

/// A tab of settings: sections of controls, each tied to one property. What the user changes is stored at
/// once; what changes elsewhere shows at once.
class SettingsForm : public QScrollArea {
    Q_OBJECT

public:
    SettingsForm(Preferences& preferences, const QString& name, QWidget* parent = nullptr);

protected:
    FormSection* addSection(const QString& title);
    QCheckBox* addToggle(FormSection* section, const QString& text, Property<bool>& property);
    /// Adds a stepper that is enabled while `condition` is on.
    void addStepper(FormSection* section, const StepperRow::Look& look, const Stepper::Range& range,
                    Property<double>& property, const Property<bool>& condition);
    /// Adds a choice for each value. None is selected while another value is stored.
    template <typename T>
    void addPicker(FormSection* section, const QString& label, const QList<T>& values,
                   const std::function<QString(const T&)>& text, Property<T>& property) {
        QStringList choices;
        for (const T& value : values)
            choices.append(text(value));
        addPicker(
            section, label, choices, [values, &property] { return values.indexOf(property()); },
            [values, &property](int index) { property.set(values[index]); });
    }
    /// Calls `show` now, and whenever the preferences have changed.
    void addDisplay(std::function<void()> show);

private:
    void addPicker(FormSection* section, const QString& label, const QStringList& choices,
                   const std::function<qsizetype()>& selected, const std::function<void(int)>& select);

    QVBoxLayout* m_column;
    QList<std::function<void()>> m_displays;
};
