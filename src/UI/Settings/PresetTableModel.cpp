#include "UI/Settings/PresetTableModel.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableColumn.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString whole(double value) {
    return QString::number(std::trunc(value), 'f', 0);
}

} // namespace

const PresetColumn& PresetTableModel::column(int index) {
    static constexpr PresetColumn table[columns] = {
        // in the order of Column
        {.title = QT_TRANSLATE_NOOP("Columns", "Symbol"),
         .width = 56,
         .text = [](const QuickKillPreset& preset) { return preset.symbol; }},
        {.title = QT_TRANSLATE_NOOP("Columns", "Name"),
         .text = [](const QuickKillPreset& preset) { return Formatters::visible(preset.name); }},
        {.title = QT_TRANSLATE_NOOP("Columns", "Pattern"),
         .width = 104,
         .text = [](const QuickKillPreset& preset) { return Formatters::visible(preset.pattern); }},
        {.title = QT_TRANSLATE_NOOP("Columns", "Idle≥"),
         .width = 60,
         .alignment = Qt::AlignRight,
         .text = [](const QuickKillPreset& preset) { return tr("%1m").arg(whole(preset.minIdleMinutes)); }},
        {.title = QT_TRANSLATE_NOOP("Columns", "RAM≥"),
         .width = 66,
         .alignment = Qt::AlignRight,
         .text = [](const QuickKillPreset& preset) { return tr("%1MB").arg(whole(preset.minRSSMB)); }},
        {.title = QT_TRANSLATE_NOOP("Columns", "Force"),
         .width = 48,
         .text = [](const QuickKillPreset& preset) { return preset.force ? u"bolt.fill"_s : u"minus"_s; }},
        {.width = 62}, // the buttons
    };
    return table[index];
}

void PresetTableModel::setPresets(const QList<QuickKillPreset>& presets) {
    beginResetModel();
    m_presets = presets;
    endResetModel();
}

int PresetTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_presets.size());
}

int PresetTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant PresetTableModel::data(const QModelIndex& index, int role) const {
    const QuickKillPreset& preset = m_presets[index.row()];
    const QVariant text = cellData(column(index.column()), preset, Qt::DisplayRole);
    if (role == Qt::AccessibleTextRole) // what the drawings say
        return index.column() != Column::force ? text : preset.force ? tr("Force") : tr("No force");
    if (role == Qt::ToolTipRole)
        return Formatters::toolTip(text.toString());
    return cellData(column(index.column()), preset, role);
}

QVariant PresetTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? headData(column(section), role) : QVariant();
}
