#include "UI/Settings/SettingsForm.h"

#include "UI/Kit/FormSection.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PopUpButton.h"
#include "UI/Kit/ScrollingPage.h"
#include "UI/Style/Theme.h"

#include <QCheckBox>
#include <QVBoxLayout>

SettingsForm::SettingsForm(Preferences& preferences, const QString& name, QWidget* parent)
    : QScrollArea(parent)
    , m_column(makeScrollingPage(this, Theme::pageMargins, Theme::gridSpacing)) {
    m_column->addStretch();
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(name);
    refreshOnScreen(this, {&preferences}, [this] {
        for (const auto& show : std::as_const(m_displays))
            show();
    });
}

void SettingsForm::addDisplay(std::function<void()> show) {
    show();
    m_displays.append(std::move(show));
}

FormSection* SettingsForm::addSection(const QString& title) {
    auto* section = new FormSection(title);
    m_column->insertWidget(m_column->count() - 1, section);
    return section;
}

QCheckBox* SettingsForm::addToggle(FormSection* section, const QString& text, Property<bool>& property) {
    auto* toggle = new QCheckBox(text);
    toggle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    section->addRow(toggle);
    addDisplay([toggle, &property] { toggle->setChecked(property()); });
    connect(toggle, &QCheckBox::toggled, this, [&property](bool on) {
        if (property() != on)
            property.set(on);
    });
    return toggle;
}

void SettingsForm::addStepper(FormSection* section, const StepperRow::Look& look, const Stepper::Range& range,
                              Property<double>& property, const Property<bool>& condition) {
    auto* row = new StepperRow(look, range);
    section->addRow(row);
    addDisplay([row, &property, &condition] {
        row->setValue(property());
        row->setEnabled(condition());
    });
    connect(row, &StepperRow::stepped, this, [&property](double value) { property.set(value); });
}

void SettingsForm::addPicker(FormSection* section, const QString& label, const QStringList& choices,
                             const std::function<qsizetype()>& selected,
                             const std::function<void(int)>& select) {
    auto* picker = new PopUpButton(QString());
    picker->addItems(choices);
    section->addRow(label, picker);
    addDisplay([picker, selected] { picker->setCurrentIndex(static_cast<int>(selected())); });
    connect(picker, &QComboBox::activated, this, select);
}
