#include "UI/Settings/PresetTableModel.h"

#include "Core/Formatters.h"
#include "UI/Kit/ToolTip.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Column = PresetTableModel::Column;

QString titleOf(int column) {
    switch (column) {
    case Column::symbol:
        return PresetTableModel::tr("Symbol");
    case Column::name:
        return PresetTableModel::tr("Name");
    case Column::pattern:
        return PresetTableModel::tr("Pattern");
    case Column::idle:
        return PresetTableModel::tr("Idle≥");
    case Column::ram:
        return PresetTableModel::tr("RAM≥");
    case Column::force:
        return PresetTableModel::tr("Force");
    default:
        return {};
    }
}

QString whole(double value) {
    return QString::number(std::trunc(value), 'f', 0);
}

QString textOf(const QuickKillPreset& preset, int column) {
    switch (column) {
    case Column::symbol:
        return preset.symbol;
    case Column::name:
        return Formatters::visible(preset.name);
    case Column::pattern:
        return Formatters::visible(preset.pattern);
    case Column::idle:
        return PresetTableModel::tr("%1m").arg(whole(preset.minIdleMinutes));
    case Column::ram:
        return PresetTableModel::tr("%1MB").arg(whole(preset.minRSSMB));
    case Column::force:
        return preset.force ? u"bolt.fill"_s : u"minus"_s;
    default:
        return {};
    }
}

/// What the drawings say.
QString spokenText(const QuickKillPreset& preset, int column) {
    if (column == Column::force)
        return preset.force ? PresetTableModel::tr("Force") : PresetTableModel::tr("No force");
    return textOf(preset, column);
}

Qt::Alignment alignmentOf(int column) {
    if (column == Column::idle || column == Column::ram)
        return Qt::AlignRight | Qt::AlignVCenter;
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

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
    switch (role) {
    case Qt::DisplayRole:
        return textOf(preset, index.column());
    case Qt::AccessibleTextRole:
        return spokenText(preset, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(textOf(preset, index.column()));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(index.column()));
    default:
        return {};
    }
}

QVariant PresetTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return titleOf(section);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(section));
    return {};
}
