#include "UI/Settings/QuickKillEditorSheet.h"

#include "Platform/Words.h"
#include "UI/Kit/FormSection.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/StepperRow.h"
#include "UI/Kit/SymbolView.h"
#include "UI/Kit/TextLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr Theme::Length sheetWidth{540};
constexpr Theme::Length fieldWidth{220};
constexpr Theme::Length editorSymbolSize{20};

} // namespace

QuickKillEditorSheet::QuickKillEditorSheet(const QString& title, const QuickKillPreset& preset,
                                           std::function<void(const QuickKillPreset&)> onSave,
                                           QWidget* parent)
    : QDialog(parent)
    , m_preset(preset)
    , m_onSave(std::move(onSave))
    , m_symbol(new SymbolView(editorSymbolSize, Theme::iconColumn))
    , m_save(new PushButton(tr("Save"), PushButton::Look::prominent)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    auto* heading = new TextLabel(Theme::TextStyle::title3, QFont::Bold);
    heading->setPlainText(title);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::sheetMargins);
    column->setSpacing(Theme::gridSpacing);
    column->addWidget(heading);
    column->addWidget(makeTexts());
    column->addWidget(makeConditions());
    column->addLayout(makeButtons());
    setFixedSize(column->sizeHint().expandedTo({sheetWidth, 0}));
    refresh();
}

QLineEdit* QuickKillEditorSheet::makeField(QString& text) {
    auto* field = new QLineEdit;
    field->setFixedWidth(fieldWidth);
    field->setText(text);
    field->setCursorPosition(0);
    connect(field, &QLineEdit::textChanged, this, [this, &text](const QString& typed) {
        text = typed;
        refresh();
    });
    return field;
}

QWidget* QuickKillEditorSheet::makeTexts() {
    auto* section = new FormSection(QString());
    section->addRow(tr("Name"), makeField(m_preset.name));
    section->addRow(tr("Process name pattern (substring match)"), makeField(m_preset.pattern));
    section->addRow(Words::native().symbol, makeField(m_preset.symbol), m_symbol);
    return section;
}

QWidget* QuickKillEditorSheet::makeConditions() {
    auto* section = new FormSection(QString());
    const auto addStepper = [this, section](const StepperRow::Look& look, const Stepper::Range& range,
                                            double& number) {
        auto* row = new StepperRow(look, range);
        row->setValue(number);
        section->addRow(row);
        connect(row, &StepperRow::stepped, this, [&number](double value) { number = value; });
    };
    addStepper({tr("Min idle minutes"), u"%1"_s}, {0, 120, 1}, m_preset.minIdleMinutes);
    addStepper({tr("Min RAM %1 MB"), {}}, {0, 4000, 50}, m_preset.minRSSMB);
    auto* force = new QCheckBox(tr("Use SIGKILL (force)"));
    force->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    force->setChecked(m_preset.force);
    section->addRow(force);
    connect(force, &QCheckBox::toggled, this, [this](bool on) { m_preset.force = on; });
    return section;
}

QLayout* QuickKillEditorSheet::makeButtons() {
    auto* cancel = new PushButton(tr("Cancel"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_save, &QPushButton::clicked, this, &QuickKillEditorSheet::save);
    m_save->setDefault(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(m_save);
    return row;
}

void QuickKillEditorSheet::refresh() {
    m_save->setEnabled(!m_preset.name.isEmpty() && !m_preset.pattern.isEmpty());
    m_symbol->set(m_preset.symbol, Theme::Role::secondaryText);
}

void QuickKillEditorSheet::save() {
    m_onSave(m_preset);
    accept();
}
