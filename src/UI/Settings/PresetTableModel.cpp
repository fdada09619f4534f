#include "UI/Settings/PresetTableModel.h"

#include "Core/Formatters.h"
#include "UI/Kit/TableColumn.h"
#include "UI/Kit/ToolTip.h"

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
        {.title = u"Symbol",
         .width = 56,
         .text = [](const QuickKillPreset& preset) { return preset.symbol; }},
        {.title = u"Name",
         .text = [](const QuickKillPreset& preset) { return Formatters::visible(preset.name); }},
        {.title = u"Pattern",
         .width = 114,
         .text = [](const QuickKillPreset& preset) { return Formatters::visible(preset.pattern); }},
        {.title = u"Idle≥",
         .width = 50,
         .alignment = Qt::AlignRight,
         .text = [](const QuickKillPreset& preset) { return whole(preset.minIdleMinutes) + u'm'; }},
        {.title = u"RAM≥",
         .width = 66,
         .alignment = Qt::AlignRight,
         .text = [](const QuickKillPreset& preset) { return whole(preset.minRSSMB) + u"MB"_s; }},
        {.title = u"Force",
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
        return index.column() != Column::force ? text : preset.force ? u"Force"_s : u"No force"_s;
    if (role == Qt::ToolTipRole)
        return plainToolTip(text.toString());
    return cellData(column(index.column()), preset, role);
}

QVariant PresetTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? headData(column(section), role) : QVariant();
}
