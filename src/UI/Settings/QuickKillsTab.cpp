#include "UI/Settings/QuickKillsTab.h"

#include "Preferences.h"
#include "UI/Kit/Card.h"
#include "UI/Kit/OnScreen.h"
#include "UI/Kit/PushButton.h"
#include "UI/Kit/TextLabel.h"
#include "UI/Settings/PresetTable.h"
#include "UI/Settings/QuickKillEditorSheet.h"

#include <QHBoxLayout>
#include <QShortcut>

#include <algorithm>

QuickKillsTab::QuickKillsTab(Preferences& preferences, QWidget* parent)
    : QWidget(parent)
    , m_preferences(preferences)
    , m_table(new PresetTable) {
    auto* card = new Card;
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(Theme::tableCardMargins);
    inside->addWidget(m_table);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::pagePadding, Theme::gridSpacing, Theme::pagePadding,
                               Theme::pagePadding);
    column->setSpacing(Theme::rowSpacing + Theme::textGap);
    column->addLayout(makeHeader());
    column->addWidget(card, 1);
    setAccessibleName(tr("Quick Kills"));

    auto* create = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_N), this);
    connect(create, &QShortcut::activated, this, &QuickKillsTab::add);
    connect(m_table, &PresetTable::editRequested, this, &QuickKillsTab::edit);
    connect(m_table, &PresetTable::deleteRequested, this, &QuickKillsTab::remove);
    refreshOnScreen(this, {&m_preferences}, [this] { m_table->show(m_preferences.quickKillPresets()); });
}

QLayout* QuickKillsTab::makeHeader() {
    auto* title = new TextLabel(Theme::TextStyle::headline);
    title->setPlainText(tr("Custom Quick Kill presets"));
    auto* create = new PushButton(tr("Add"), PushButton::Look::normal, QStringLiteral("plus"));
    auto* restore = new PushButton(tr("Reset to defaults"), PushButton::Look::normal,
                                   QStringLiteral("arrow.uturn.backward"));
    connect(create, &QPushButton::clicked, this, &QuickKillsTab::add);
    connect(restore, &QPushButton::clicked, this, &QuickKillsTab::reset);
    auto* row = new QHBoxLayout;
    row->setSpacing(Theme::rowSpacing);
    row->addWidget(title, 1);
    row->addWidget(create);
    row->addWidget(restore);
    return row;
}

void QuickKillsTab::add() {
    openEditor(tr("New preset"), QuickKillPreset::blank(), [this](const QuickKillPreset& preset) {
        m_preferences.storeQuickKillPresets(m_preferences.quickKillPresets() << preset);
    });
}

void QuickKillsTab::edit(const QuickKillPreset& preset) {
    openEditor(tr("Edit preset"), preset, [this](const QuickKillPreset& edited) {
        QList<QuickKillPreset> presets = m_preferences.quickKillPresets();
        const auto found = std::ranges::find(presets, edited.id, &QuickKillPreset::id);
        if (found == presets.end())
            return;
        *found = edited;
        m_preferences.storeQuickKillPresets(presets);
    });
}

void QuickKillsTab::remove(const QuickKillPreset& preset) {
    QList<QuickKillPreset> presets = m_preferences.quickKillPresets();
    presets.removeIf([id = preset.id](const QuickKillPreset& each) { return each.id == id; });
    m_preferences.storeQuickKillPresets(presets);
}

void QuickKillsTab::reset() {
    m_preferences.storeQuickKillPresets(QuickKillPreset::defaults());
}

void QuickKillsTab::openEditor(const QString& title, const QuickKillPreset& preset,
                               std::function<void(const QuickKillPreset&)> onSave) {
    (new QuickKillEditorSheet(title, preset, std::move(onSave), window()))->open();
}
